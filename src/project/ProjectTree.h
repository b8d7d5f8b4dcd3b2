#pragma once

#include <QString>

/// Where everything of one project lies, worked out from the path of its file alone. A plain value: making
/// one touches no disk, so the same rules serve the open project and one that is only imported from.
///
/// Every folder ends in "/". The project's name is its file name up to the first dot, so "a.b.kzfx" and
/// "a.c.kzfx" in one folder share the content folder "a_files".
struct ProjectTree
{
    QString projPath;
    QString projName;
    QString projDirPath;
    QString projContntDirPath;
    QString capFullDirPath;
    QString capTiffDirPath;
    QString capRawDirPath;
    QString metaDirPath;
    QString capTumbDirPath;
    /// Carries a doubled slash before its last part; file names built on it are stored nowhere.
    QString recycleBinDirPath;
    QString refFullDirPath;
    QString refTumbDirPath;
    QString backgroundDirPath;
    QString videoDirPath;
    QString tempDirPath;
    QString sessionLogPath;
    QString cacheDirPath;
    QString extractedDirPath;
    QString camPresetsFullDirPath;

    /// The tree of the project file at `projPath`. An empty path gives the tree of a nameless project in
    /// `homePath`.
    static ProjectTree of(const QString &projPath, const QString &homePath);

    /// An absolute, cleaned folder path with one trailing "/". The two slashes that begin a network path
    /// stay.
    static QString cleanedFolder(const QString &path);
};
