#pragma once

#include "shared/Zum.h"

#include <functional>
#include <QObject>

class Settings;
class WebcamGlobal;

namespace morvane {
class Dialogs;
}

/// The open dialogs of the program: each kind of file has its caption, its filter and the folder it begins
/// in.
class FileSelection : public QObject
{
    Q_OBJECT

public:
    /// Where a dialog begins.
    enum class Start {
        /// In the open project's folder, else in the last one's, else at home.
        ProjectFolder,
        /// At the file that was chosen last in a dialog of this kind.
        LastChosen,
        /// Wherever the system likes.
        Anywhere,
    };

    /// What a dialog of one kind shows.
    struct Request
    {
        QString caption;
        QString filter;
        Start start = Start::ProjectFolder;
        /// With Start::LastChosen, the settings key of that file.
        QString rememberedKey;
    };

    /// `projectFolder` gives the open project's folder, or an empty string without a project.
    FileSelection(morvane::Dialogs &dialogs, Settings &settings, WebcamGlobal &global,
                  std::function<QString()> projectFolder, QObject *parent = nullptr);

    /// A value that has no row of its own gives the row of project files.
    static Request requestFor(int filterType);
    /// Filters of the dialogs that are not opened by kind.
    static QString imageImportFilter();
    static QString pdfFilter();
    static QString htmlFilter();

    /// Opens the dialog and returns the chosen path. Giving up returns an empty string and clears a pending
    /// after-confirm action.
    QString openFileDialog(int filterType = Zum::ProjectFilesFilter);
    QString selectFolderDialog(const QString &start);

private:
    QString startPath(const Request &request) const;

    morvane::Dialogs &m_dialogs;
    Settings &m_settings;
    WebcamGlobal &m_global;
    std::function<QString()> m_projectFolder;
};
