#pragma once

#include "app/facade/WindowFacet.h"

#include <QColor>
#include <QVariant>

/// The user's settings, language, external editor, light box choice and clipboard.
class SettingsFacet : public WindowFacet
{
    Q_OBJECT
    Q_PROPERTY(QString localeName READ localeName WRITE setLocaleName NOTIFY localeNameChanged)
    Q_PROPERTY(QString externalEditor READ externalEditor NOTIFY externalEditorChanged)
    Q_PROPERTY(QString externalEditorName READ externalEditorName NOTIFY externalEditorNameChanged)
    Q_PROPERTY(bool openPrevWndwOnStart READ openPrevWndwOnStart CONSTANT)
    Q_PROPERTY(bool openLightboxWndwOnStart READ openLightboxWndwOnStart CONSTANT)
    Q_PROPERTY(bool openOscilloscopyWndwOnStart READ openOscilloscopyWndwOnStart CONSTANT)
    Q_PROPERTY(bool openVillageWndwOnStart READ openVillageWndwOnStart CONSTANT)
    /// One of Zum::LightboxMode.
    Q_PROPERTY(int lightboxMode READ lightboxMode WRITE setLightboxMode NOTIFY lightboxModeChanged)
    Q_PROPERTY(QColor lightboxColor READ lightboxColor WRITE setLightboxColor NOTIFY lightboxColorChanged)

public:
    explicit SettingsFacet(std::unique_ptr<AppControllers> controllers);

    QString localeName() const;
    QString externalEditor() const;
    QString externalEditorName() const;
    bool openPrevWndwOnStart() const;
    bool openLightboxWndwOnStart() const;
    bool openOscilloscopyWndwOnStart() const;
    bool openVillageWndwOnStart() const;
    int lightboxMode() const;
    void setLightboxMode(int mode);
    QColor lightboxColor() const;
    void setLightboxColor(const QColor &color);

public slots:
    QVariant getSetting(const QString &param, const QVariant &defval) const;
    void addSetting(const QString &param, const QVariant &value);
    void clearSetting(const QString &mykey);
    void clearSettings();
    void setGroupSetting(const QString &groupName, const QString &mykey, const QVariant &value);
    QVariantMap getGroupSetting(const QString &groupName) const;
    void clearGroupSetting(const QString &groupName);
    void removeGroupSetting(const QString &groupName, const QString &mykey);

    /// Takes effect with the next start. A language that the program does not have is refused.
    void setLocaleName(const QString &name);
    QString getSystemLocale() const;
    void useSystemLocale();
    /// The font index that stands for "the screen's density decides".
    int getFontsize() const;

    void setSpecialColor(const QColor &clr);
    void resetSpecialColor();

    void setExternalEditor();
    void removeExternalEditor();
    void setDefExternalEditor();
    void startWithExternalEditor(const QString &path);
    void showInGraphicalShell(const QString &pathIn);
    void openUrlExternally(const QString &url);
    void openInDefaultBrowser(const QString &url);

    QString openFileDialog(int filterType);
    QString openFileDialog();
    QString selectFolderDialog();

    /// Looks whether there is anything to import on the clipboard now.
    void clipboardChanged();
    int countClipboardFrames() const;
    void clearClipboardFrames();

signals:
    void localeNameChanged();
    void externalEditorChanged();
    void externalEditorNameChanged();
    void lightboxModeChanged();
    void lightboxColorChanged();
    void weHaveClipboardFrames();

private:
    void openAddress(const QString &url);
};
