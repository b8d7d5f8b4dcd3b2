#pragma once

#include "project/ProjectTree.h"

#include <functional>
#include <QObject>
#include <QVariantMap>

class Settings;

/// The folders of the open project, and the way from a frame's stored file name to a path or a URL that the
/// scene can load. Main thread only.
///
/// All paths change together in setProjectDirPath, which is also what the signal projPathChanged(bool) runs
/// before anyone else hears of it. Folders are made when a project path is taken over; one that cannot be
/// made is logged and the program goes on.
class ProjectPaths : public QObject
{
    Q_OBJECT

public:
    /// What a change of the project sets off elsewhere; each may be left out.
    struct Hooks
    {
        /// Ends the log of the former project, if one is being written.
        std::function<void()> closeSessionLog;
        /// Begins a log in this file, if logging to a file is on.
        std::function<void(const QString &path)> openSessionLog;
        /// Takes the base folder of each role name, and of role number 23 under "23", replacing all others.
        std::function<void(const QVariantMap &folders)> setFrameFolders;
        /// Rewrites the window's title.
        std::function<void()> resetTitle;
    };

    /// `homePath` stands in for the project's folder while there is none.
    ProjectPaths(Settings &settings, Hooks hooks, const QString &homePath, QObject *parent = nullptr);

    /// Everything at once, for handing to another thread.
    const ProjectTree &tree() const
    {
        return m_tree;
    }
    QString projPath() const
    {
        return m_projPath;
    }
    QString projName() const
    {
        return m_tree.projName;
    }
    QString projDirPath() const
    {
        return m_tree.projDirPath;
    }
    QString projContntDirPath() const
    {
        return m_tree.projContntDirPath;
    }
    QString capFullDirPath() const
    {
        return m_tree.capFullDirPath;
    }
    QString capTumbDirPath() const
    {
        return m_tree.capTumbDirPath;
    }
    QString refFullDirPath() const
    {
        return m_tree.refFullDirPath;
    }
    QString refTumbDirPath() const
    {
        return m_tree.refTumbDirPath;
    }
    QString videoDirPath() const
    {
        return m_tree.videoDirPath;
    }
    QString extractedDirPath() const
    {
        return m_tree.extractedDirPath;
    }
    QString camPresetsFullDirPath() const
    {
        return m_tree.camPresetsFullDirPath;
    }

    /// Stores the path of the project file and nothing else; emit projPathChanged to take it over.
    void setProjPath(const QString &path);
    /// Forgets the project's paths, of its file too if asked. Makes and removes nothing, emits nothing.
    void clear(bool projPathToo);

    /// Works out every path from projPath and makes the folders. True when the folders of thumbnails,
    /// reference thumbnails and videos are there. Without `emitUpdateSignal` the signals of the frame and
    /// video folders and of the content folder stay out.
    bool setProjectDirPath(bool emitUpdateSignal = true);

    /// The file of a frame as a URL, or as a path with `noPrefix`; `type` is one of Zum::MorvaRoles. A file
    /// that is not there gives the empty frame image, and for the TIFF and RAW versions an empty string.
    /// Those two are always plain paths. A "file:///" or "image://" URL is returned as it is.
    QString buildImagePath(int type, const QString &subpath, bool noPrefix = false) const;
    QString buildMediaPath(const QString &path) const;

    /// The base name, or the file name of the project file.
    QString projectName(bool returnBaseName = false) const;
    QString projectBaseName() const;
    /// What lies in the project's folders; without an argument, those of the open project.
    QVariantMap projectDirInfo(const QString &takeThisProjectPath = {}) const;
    /// The role name to folder map that the frames model keeps.
    QVariantMap frameFolders() const;

signals:
    /// The project file's path has changed; setProjectDirPath has run with the same argument already.
    void projPathChanged(bool emitUpdateSignal);
    void projNameChanged();
    void projDirPathChanged();
    void projContntDirPathChanged();
    void capFullDirPathChanged();
    void capTumbDirPathChanged();
    void refFullDirPathChanged();
    void refTumbDirPathChanged();
    void videoDirPathChanged();
    void extractedDirPathChanged();

private:
    void takeFrameFolders(const ProjectTree &next, bool emitUpdateSignal);
    void takeTemporaryFolder(const ProjectTree &next);
    bool makeFolders() const;
    void publishFolders();
    QString folderOfRole(int type) const;

    Settings &m_settings;
    Hooks m_hooks;
    QString m_homePath;
    QString m_projPath;
    ProjectTree m_tree;
};
