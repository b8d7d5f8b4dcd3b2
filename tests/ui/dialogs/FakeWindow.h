#pragma once

#include "shared/ExternalEditor.h"
#include "shared/FileSelection.h"
#include "shared/LocaleChoice.h"
#include "shared/MessageCentre.h"
#include "shared/ProgressState.h"
#include "shared/PropertyMacros.h"
#include "shared/Settings.h"
#include "shared/Zum.h"
#include "support/FakeDesktopServices.h"
#include "support/FakeDialogs.h"

#include <QColor>
#include <QObject>
#include <QStringList>
#include <QVariant>

class WebcamGlobal;

/// Imitates the window as the dialogs see it: with the real settings, language and editor behind it. What
/// would reach projects, jobs or devices is only kept in `calls`.
class FakeWindow : public QObject
{
    Q_OBJECT

    MORVANE_PROPERTY(QString, qmlDialogUrl, QmlDialogUrl)
    MORVANE_PROPERTY(bool, qmlDialogVisible, QmlDialogVisible, false)
    MORVANE_PROPERTY(bool, isFullscreen, IsFullscreen, false)
    MORVANE_PROPERTY(int, currentRobotJob, CurrentRobotJob, Zum::NoJob)
    MORVANE_PROPERTY(int, currentThreadOperation, CurrentThreadOperation, Zum::ONoOperation)
    MORVANE_PROPERTY(int, currentCapturingDevice, CurrentCapturingDevice, Zum::CapturingDeviceCanonEOS)
    MORVANE_PROPERTY(bool, allowQuietExit, AllowQuietExit, true)
    MORVANE_PROPERTY(QString, projPath, ProjPath)
    MORVANE_PROPERTY(bool, performAutosave, PerformAutosave, true)
    MORVANE_PROPERTY(int, autosaveDelay, AutosaveDelay, 3)
    MORVANE_PROPERTY(int, autosaveDelayMin, AutosaveDelayMin, 3)
    MORVANE_PROPERTY(int, autosaveDelayMax, AutosaveDelayMax, 60)
    MORVANE_PROPERTY(QVariantList, projectPresets, ProjectPresets)
    MORVANE_PROPERTY(QVariantMap, appInfo, AppInfo)
    MORVANE_FORWARDED_PROPERTY(int, progressTotal, ProgressTotal, m_progress)
    MORVANE_FORWARDED_PROPERTY(int, progressCurrent, ProgressCurrent, m_progress)
    MORVANE_FORWARDED_PROPERTY(QString, progressAction, ProgressAction, m_progress)
    MORVANE_FORWARDED_PROPERTY(int, robotErrorCount, RobotErrorCount, m_messages)
    MORVANE_FORWARDED_PROPERTY(QString, localeName, LocaleName, m_locale)
    MORVANE_FORWARDED_READ_ONLY(QString, externalEditor, m_editor)
    MORVANE_FORWARDED_READ_ONLY(QString, externalEditorName, m_editor)
    MORVANE_PROPERTY(int, lightboxMode, LightboxMode, Zum::LightboxModeColor)
    MORVANE_PROPERTY(QColor, lightboxColor, LightboxColor, Qt::green)
    Q_PROPERTY(bool projectLoaded MEMBER projectLoaded NOTIFY projLoadedChanged)

public:
    FakeWindow(const QString &settingsPath, WebcamGlobal &global);

    QStringList calls;
    FakeDialogs systemDialogs;
    FakeDesktopServices desktop;
    bool projectLoaded = false;

    Settings &settings()
    {
        return m_settings;
    }
    MessageCentre &messages()
    {
        return m_messages;
    }
    /// The presets as the program makes them: 27 widths at two rates for each of four proportions.
    static QVariantList allPresets();

public slots:
    QVariant getSetting(const QString &param, const QVariant &defval) const;
    void addSetting(const QString &param, const QVariant &value);
    void clearSetting(const QString &mykey);
    void clearSettings();
    QVariantMap getGroupSetting(const QString &groupName) const;
    void removeGroupSetting(const QString &groupName, const QString &mykey);
    void useSystemLocale();
    int getFontsize() const;
    void setExternalEditor();
    void removeExternalEditor();
    void setDefExternalEditor();
    bool fileExists(const QString &path) const;

    void resetSpecialColor();
    void clearClipboardFrames();
    void redrawing();
    void playSound(int soundKey);

    void updateCurrentDeviceType();
    void breakMorvaRobot(const QString &retval);
    void stopLoadingProject();
    void showInGraphicalShell(const QString &path);
    void openUrlExternally(const QString &url);
    int openProject(const QString &path);
    bool saveProjectXmlFile(int mode);
    void quit(bool force);
    void quit();

signals:
    void projLoadedChanged();
    void startProjectLoad();
    void confirmClose();
    void userIsActive();
    void redrawWindow();

private:
    Settings m_settings;
    FileSelection m_files;
    ProgressState m_progress;
    MessageCentre m_messages;
    LocaleChoice m_locale;
    ExternalEditor m_editor;
};
