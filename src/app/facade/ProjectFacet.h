#pragma once

#include "app/facade/JobsFacet.h"

#include <QVariantList>

/// The open project: its paths, its life, and the operations on its files.
class ProjectFacet : public JobsFacet
{
    Q_OBJECT
    Q_PROPERTY(bool projectLoaded READ projectLoaded NOTIFY projLoadedChanged)
    Q_PROPERTY(bool allowQuietExit READ allowQuietExit WRITE setAllowQuietExit NOTIFY allowQuietExitChanged)
    Q_PROPERTY(bool loadingProject READ loadingProject NOTIFY loadingProjectChanged)
    Q_PROPERTY(bool legacyProject READ legacyProject NOTIFY legacyProjectChanged)
    Q_PROPERTY(
        bool performAutosave READ performAutosave WRITE setPerformAutosave NOTIFY performAutosaveChanged)
    Q_PROPERTY(bool pauseAutosave READ pauseAutosave WRITE setPauseAutosave NOTIFY pauseAutosaveChanged)
    Q_PROPERTY(int autosaveDelay READ autosaveDelay WRITE setAutosaveDelay NOTIFY autosaveDelayChanged)
    Q_PROPERTY(int autosaveDelayMin READ autosaveDelayMin CONSTANT)
    Q_PROPERTY(int autosaveDelayMax READ autosaveDelayMax CONSTANT)
    Q_PROPERTY(int currentThreadOperation READ currentThreadOperation NOTIFY currentThreadOperationChanged)
    /// Rectangles with the proportion in x and y.
    Q_PROPERTY(QVariantList proportions READ proportions CONSTANT)
    /// Frame widths in units of 8 pixels.
    Q_PROPERTY(QVariantList presetsWidths READ presetsWidths CONSTANT)
    Q_PROPERTY(QVariantList projectPresets READ projectPresets CONSTANT)
    Q_PROPERTY(QString projPath READ projPath NOTIFY projPathChanged)
    Q_PROPERTY(QString projName READ projName NOTIFY projNameChanged)
    Q_PROPERTY(QString projDirPath READ projDirPath NOTIFY projDirPathChanged)
    Q_PROPERTY(QString projContntDirPath READ projContntDirPath NOTIFY projContntDirPathChanged)
    Q_PROPERTY(QString capFullDirPath READ capFullDirPath NOTIFY capFullDirPathChanged)
    Q_PROPERTY(QString capTumbDirPath READ capTumbDirPath NOTIFY capTumbDirPathChanged)
    Q_PROPERTY(QString refFullDirPath READ refFullDirPath NOTIFY refFullDirPathChanged)
    Q_PROPERTY(QString refTumbDirPath READ refTumbDirPath NOTIFY refTumbDirPathChanged)
    Q_PROPERTY(QString videoDirPath READ videoDirPath NOTIFY videoDirPathChanged)
    Q_PROPERTY(QString extractedDirPath READ extractedDirPath NOTIFY extractedDirPathChanged)

public:
    explicit ProjectFacet(std::unique_ptr<AppControllers> controllers);

    bool projectLoaded() const;
    bool allowQuietExit() const;
    void setAllowQuietExit(bool allow);
    bool loadingProject() const;
    bool legacyProject() const;
    bool performAutosave() const;
    void setPerformAutosave(bool perform);
    bool pauseAutosave() const;
    void setPauseAutosave(bool pause);
    int autosaveDelay() const;
    void setAutosaveDelay(int minutes);
    int autosaveDelayMin() const;
    int autosaveDelayMax() const;
    int currentThreadOperation() const;
    QVariantList proportions() const;
    QVariantList presetsWidths() const;
    QVariantList projectPresets() const;
    QString projPath() const;
    QString projName() const;
    QString projDirPath() const;
    QString projContntDirPath() const;
    QString capFullDirPath() const;
    QString capTumbDirPath() const;
    QString refFullDirPath() const;
    QString refTumbDirPath() const;
    QString videoDirPath() const;
    QString extractedDirPath() const;

public slots:
    /// Opens and tells the user how it went; projectFileOpen only returns it.
    int openProject(const QString &path);
    int projectFileOpen(const QString &path);
    int projectFileOpen();
    int readProjectXmlFile();
    bool saveProjectXmlFile(int saveMode);
    void projectChanged();
    void projectSaved();
    /// One turn of the autosave timer is over.
    void autosaveTick();
    void closeProject();
    void renameProject(const QString &newName);
    void stopLoadingProject();
    void addLastProject();
    bool importFrames();
    void cleanExtractedDir();
    void cleanCacheDirs();

    bool setProjectDirPath(bool emitUpdateSignal);
    QString buildImagePath(int type, const QString &subpath, bool noPrefix) const;
    QString buildImagePath(int type, const QString &subpath) const;
    QString buildMediaPath(const QString &path) const;
    QString projectName(bool returnBaseName) const;
    QString projectName() const;
    QString projectBaseName() const;
    QVariantMap projectDirInfo(const QString &takeThisProjectPath) const;
    QVariantMap projectDirInfo() const;
    QVariantMap fileInfo(const QString &path, bool isImage) const;
    QVariantMap fileInfo(const QString &path) const;
    QVariantMap urlInfo(const QString &path, bool isImage) const;
    QVariantMap urlInfo(const QString &path) const;
    QVariantList listDir(const QString &path, int ftype) const;
    QVariantList listDir(const QString &path) const;
    bool fileExists(const QString &path) const;
    bool deleteFile(const QString &path);

signals:
    void projLoadedChanged();
    void allowQuietExitChanged();
    void loadingProjectChanged();
    void legacyProjectChanged();
    void performAutosaveChanged();
    void pauseAutosaveChanged();
    void autosaveDelayChanged();
    void currentThreadOperationChanged();
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
    void startProjectLoad();
    void beginLoadProject();
    void connectModel();
    void disconnectModel();
    void confirmClose();

private:
    void connectPaths();
};
