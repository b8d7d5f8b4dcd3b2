#include "shared/ProgramModule.h"

#include <mutex>
#include <QCoreApplication>
#include <QDir>
#include <QLibrary>

#define MORVANE_TEXT(name) #name
#define MORVANE_TEXT_OF(macro) MORVANE_TEXT(macro)

namespace {

const QString moduleFolder = QStringLiteral(MORVANE_MODULE_FOLDER);
/// Holds the version, so that a module of another one, as after an update under a running program, has none.
constexpr auto entryName = MORVANE_TEXT_OF(MORVANE_MODULE_ENTRY);

/// The programs of a build lie at most this deep in its folder.
constexpr int deepest = 3;

} // namespace

ProgramModule::ProgramModule(const QString &name, const QString &folder)
{
    // Whoever comes second has to find all that the module sets up when it is loaded.
    static std::mutex loading;
    const std::lock_guard lock(loading);
    QLibrary library(QDir(folder).filePath(name));
    library.setLoadHints(QLibrary::PreventUnloadHint);
    m_entry = library.resolve(entryName);
    if (m_entry)
        return;
    m_error = library.isLoaded()
                  ? QStringLiteral("%1: no function %2").arg(library.fileName(), QLatin1String(entryName))
                  : library.errorString();
}

QString ProgramModule::standardFolder()
{
    QDir above(QCoreApplication::applicationDirPath());
    for (int i = 0; i <= deepest; ++i) {
        if (above.exists(moduleFolder))
            return above.filePath(moduleFolder);
        if (!above.cdUp())
            break;
    }
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../") + moduleFolder);
}
