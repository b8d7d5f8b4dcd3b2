#include "shared/FileSelection.h"

#include "shared/Dialogs.h"
#include "shared/Names.h"
#include "shared/Settings.h"
#include "shared/WebcamGlobal.h"
#include "shared/WindowText.h"

#include <QDir>

using morvane::windowText;

namespace {

QString pattern(const QString &label, const QString &filters)
{
    return label + QStringLiteral(" (") + filters + QStringLiteral(");;");
}

QString projectFilesLabel()
{
    return windowText(QT_TRANSLATE_NOOP("MainWindow", "Morvane project files"));
}

} // namespace

FileSelection::FileSelection(morvane::Dialogs &dialogs, Settings &settings, WebcamGlobal &global,
                             std::function<QString()> projectFolder, QObject *parent)
    : QObject(parent), m_dialogs(dialogs), m_settings(settings), m_global(global),
      m_projectFolder(std::move(projectFolder))
{
}

FileSelection::Request FileSelection::requestFor(int filterType)
{
    switch (filterType) {
        case Zum::NewProjectFilesFilter:
            return {windowText(QT_TRANSLATE_NOOP("MainWindow", "Open Project...")),
                    pattern(projectFilesLabel(), QStringLiteral("*.kzfx")),
                    Start::ProjectFolder,
                    {}};
        case Zum::VideoFilesFilter:
            return {windowText(QT_TRANSLATE_NOOP("MainWindow", "Open Video...")),
                    pattern(windowText(QT_TRANSLATE_NOOP("MainWindow", "Video files")), morvane::videoFilters)
                        + pattern(windowText(QT_TRANSLATE_NOOP("MainWindow", "Audio files")),
                                  QStringLiteral("*.mp3")),
                    Start::LastChosen, QStringLiteral("lastvideodir")};
        case Zum::ExpoImagesFilter:
            return {
                windowText(QT_TRANSLATE_NOOP("MainWindow", "Open file...")),
                pattern(windowText(QT_TRANSLATE_NOOP("MainWindow", "Images")), morvane::exportImageFilters),
                Start::LastChosen, QStringLiteral("lastbackgrounddir")};
        case Zum::IccProfilesFilter:
            return {windowText(QT_TRANSLATE_NOOP("MainWindow", "Open ICC Profile...")),
                    pattern(windowText(QT_TRANSLATE_NOOP("MainWindow", "ICC profiles")), morvane::iccFilters),
                    Start::LastChosen, QStringLiteral("lasticcpath")};
        case Zum::ExecudablesFilter:
            return {windowText(QT_TRANSLATE_NOOP("MainWindow", "Choose an external editor...")),
                    QString(),
                    Start::Anywhere,
                    {}};
        default:
            return {windowText(QT_TRANSLATE_NOOP("MainWindow", "Open Project...")),
                    pattern(projectFilesLabel(), QStringLiteral("*.kzfx *.kzf"))
                        + windowText(QT_TRANSLATE_NOOP("MainWindow", "All Files")) + QStringLiteral(" (*)"),
                    Start::ProjectFolder,
                    {}};
    }
}

QString FileSelection::imageImportFilter()
{
    return pattern(windowText(QT_TRANSLATE_NOOP("MainWindow", "Images")), morvane::importImageFilters);
}

QString FileSelection::pdfFilter()
{
    return pattern(windowText(QT_TRANSLATE_NOOP("MainWindow", "PDF files")), QStringLiteral("*.pdf"));
}

QString FileSelection::htmlFilter()
{
    return pattern(windowText(QT_TRANSLATE_NOOP("MainWindow", "HTML files")), QStringLiteral("*.HTML"));
}

QString FileSelection::startPath(const Request &request) const
{
    switch (request.start) {
        case Start::LastChosen:
            return m_settings.value(request.rememberedKey).toString();
        case Start::Anywhere:
            return QString();
        case Start::ProjectFolder:
            break;
    }
    const QString projectFolder = m_projectFolder();
    if (!projectFolder.isEmpty())
        return projectFolder;
    const QString last = m_settings.value(QStringLiteral("lastprojdirpath")).toString();
    return last.isEmpty() ? QDir::homePath() + QLatin1Char('/') : last;
}

QString FileSelection::openFileDialog(int filterType)
{
    const Request request = requestFor(filterType);
    const QString path = m_dialogs.openFile(request.caption, startPath(request), request.filter);
    if (path.isEmpty())
        m_global.setAfterConfirmAction(Zum::NoAfterConfirmAction);
    else if (request.start == Start::LastChosen)
        m_settings.setValue(request.rememberedKey, path);
    return path;
}

QString FileSelection::selectFolderDialog(const QString &start)
{
    return m_dialogs.selectFolder(windowText(QT_TRANSLATE_NOOP("MainWindow", "Choose a folder...")), start);
}
