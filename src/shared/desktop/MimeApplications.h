#pragma once

#include <QString>
#include <QStringList>

namespace morvane {

/// Finds the program that a desktop opens files of a type with, in the "mimeapps.list" and ".desktop" files
/// of the freedesktop.org standards. Reads files only; unreadable or odd ones count as absent.
class MimeApplications
{
public:
    /// Where to look, the most important first.
    struct Folders
    {
        /// Hold mimeapps.list.
        QStringList config;
        /// Hold "applications" folders.
        QStringList data;
        /// Lower-case names of the desktop that runs, such as "gnome".
        QStringList desktops;

        static Folders ofThisUser();
    };

    explicit MimeApplications(Folders folders);

    /// Path of the executable: of the user's default application, or of the first other one that is
    /// registered for the type. An application that needs arguments of its own beside the file is passed
    /// over, since a path cannot stand for it. Empty when there is none.
    QString defaultProgram(const QString &mimeType) const;

private:
    QStringList candidates(const QString &mimeType) const;
    QStringList associationFiles() const;
    QString programOf(const QString &desktopId) const;

    Folders m_folders;
};

} // namespace morvane
