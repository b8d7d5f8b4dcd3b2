#include "shared/desktop/MimeApplications.h"

#include "shared/PathText.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QProcess>
#include <QStandardPaths>

namespace morvane {

namespace {

/// The keys of one group of an ini-like file, raw: these files know neither the quoting nor the lists of
/// QSettings.
QHash<QString, QString> readGroup(const QString &filePath, const QString &group)
{
    QHash<QString, QString> values;
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly))
        return values;
    const QString header = QLatin1Char('[') + group + QLatin1Char(']');
    bool inGroup = false;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (line.startsWith(QLatin1Char('[')))
            inGroup = line == header;
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        if (inGroup && equals > 0 && !line.startsWith(QLatin1Char('#')))
            values.insert(line.left(equals).trimmed(), line.mid(equals + 1).trimmed());
    }
    return values;
}

/// The files that may describe an application: "vendor-name.desktop" may also lie at "vendor/name.desktop".
QStringList pathsOfId(const QString &desktopId)
{
    QStringList paths{desktopId};
    QString path = desktopId;
    for (qsizetype dash = path.indexOf(QLatin1Char('-')); dash >= 0; dash = path.indexOf(QLatin1Char('-'))) {
        path[dash] = QLatin1Char('/');
        paths.append(path);
    }
    return paths;
}

bool isFieldCode(const QString &argument)
{
    return argument.size() == 2 && argument.startsWith(QLatin1Char('%'));
}

QString programOfCommand(const QString &command)
{
    QStringList words = QProcess::splitCommand(command);
    if (words.isEmpty())
        return QString();
    const QString program = words.takeFirst();
    for (const QString &word : words) {
        if (!isFieldCode(word))
            return QString();
    }
    return QStandardPaths::findExecutable(program);
}

} // namespace

MimeApplications::Folders MimeApplications::Folders::ofThisUser()
{
    Folders folders;
    folders.config = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
    folders.data = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    folders.desktops =
        qEnvironmentVariable("XDG_CURRENT_DESKTOP").toLower().split(QLatin1Char(':'), Qt::SkipEmptyParts);
    return folders;
}

MimeApplications::MimeApplications(Folders folders) : m_folders(std::move(folders))
{
}

QString MimeApplications::defaultProgram(const QString &mimeType) const
{
    for (const QString &desktopId : candidates(mimeType)) {
        const QString program = programOf(desktopId);
        if (!program.isEmpty())
            return program;
    }
    return QString();
}

QStringList MimeApplications::associationFiles() const
{
    QStringList folders = m_folders.config;
    for (const QString &folder : m_folders.data)
        folders.append(ensureDirSeparator(folder) + QStringLiteral("applications"));
    QStringList files;
    for (const QString &folder : folders) {
        for (const QString &desktop : m_folders.desktops)
            files.append(ensureDirSeparator(folder) + desktop + QStringLiteral("-mimeapps.list"));
        files.append(ensureDirSeparator(folder) + QStringLiteral("mimeapps.list"));
    }
    return files;
}

QStringList MimeApplications::candidates(const QString &mimeType) const
{
    QStringList ids;
    const auto append = [&ids, &mimeType](const QString &file, const QString &group) {
        ids += readGroup(file, group).value(mimeType).split(QLatin1Char(';'), Qt::SkipEmptyParts);
    };
    const QStringList files = associationFiles();
    for (const QString &file : files)
        append(file, QStringLiteral("Default Applications"));
    for (const QString &file : files)
        append(file, QStringLiteral("Added Associations"));
    for (const QString &folder : m_folders.data)
        append(ensureDirSeparator(folder) + QStringLiteral("applications/mimeinfo.cache"),
               QStringLiteral("MIME Cache"));
    return ids;
}

QString MimeApplications::programOf(const QString &desktopId) const
{
    for (const QString &folder : m_folders.data) {
        for (const QString &path : pathsOfId(desktopId.trimmed())) {
            const QString file = ensureDirSeparator(folder) + QStringLiteral("applications/") + path;
            if (!QFileInfo::exists(file))
                continue;
            // The first description found hides the others of its name, also when it says "not here".
            const QHash<QString, QString> entry = readGroup(file, QStringLiteral("Desktop Entry"));
            if (entry.value(QStringLiteral("Hidden")) == QLatin1String("true"))
                return QString();
            return programOfCommand(entry.value(QStringLiteral("Exec")));
        }
    }
    return QString();
}

} // namespace morvane
