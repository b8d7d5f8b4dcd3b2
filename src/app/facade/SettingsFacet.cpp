#include "app/facade/SettingsFacet.h"

#include "app/AppControllers.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QQmlContext>
#include <QtDebug>
#include <QUrl>

namespace {

constexpr int automaticFontIndex = -1;

} // namespace

SettingsFacet::SettingsFacet(std::unique_ptr<AppControllers> controllers)
    : WindowFacet(std::move(controllers))
{
    AppControllers &c = this->controllers();
    connect(&c.locale, &LocaleChoice::localeNameChanged, this, &SettingsFacet::localeNameChanged);
    connect(&c.editor, &ExternalEditor::externalEditorChanged, this, &SettingsFacet::externalEditorChanged);
    connect(&c.editor, &ExternalEditor::externalEditorNameChanged, this,
            &SettingsFacet::externalEditorNameChanged);
    connect(&c.clipboard, &ClipboardFrames::weHaveClipboardFrames, this,
            &SettingsFacet::weHaveClipboardFrames);
    connect(&c.lightbox, &LightboxChoice::lightboxModeChanged, this, &SettingsFacet::lightboxModeChanged);
    connect(&c.lightbox, &LightboxChoice::lightboxColorChanged, this, &SettingsFacet::lightboxColorChanged);
}

QString SettingsFacet::localeName() const
{
    return controllers().locale.localeName();
}

void SettingsFacet::setLocaleName(const QString &name)
{
    controllers().locale.setLocaleName(name);
}

QString SettingsFacet::externalEditor() const
{
    return controllers().editor.externalEditor();
}

QString SettingsFacet::externalEditorName() const
{
    return controllers().editor.externalEditorName();
}

bool SettingsFacet::openPrevWndwOnStart() const
{
    return controllers().windowFlags.preview;
}

bool SettingsFacet::openLightboxWndwOnStart() const
{
    return controllers().windowFlags.lightbox;
}

bool SettingsFacet::openOscilloscopyWndwOnStart() const
{
    return controllers().windowFlags.oscilloscope;
}

bool SettingsFacet::openVillageWndwOnStart() const
{
    return controllers().windowFlags.village;
}

int SettingsFacet::lightboxMode() const
{
    return controllers().lightbox.lightboxMode();
}

void SettingsFacet::setLightboxMode(int mode)
{
    controllers().lightbox.setLightboxMode(mode);
}

QColor SettingsFacet::lightboxColor() const
{
    return controllers().lightbox.lightboxColor();
}

void SettingsFacet::setLightboxColor(const QColor &color)
{
    controllers().lightbox.setLightboxColor(color);
}

QVariant SettingsFacet::getSetting(const QString &param, const QVariant &defval) const
{
    return controllers().settings().value(param, defval);
}

void SettingsFacet::addSetting(const QString &param, const QVariant &value)
{
    controllers().settings().setValue(param, value);
}

void SettingsFacet::clearSetting(const QString &mykey)
{
    qDebug().noquote() << "Clear setting" << mykey;
    controllers().settings().remove(mykey);
}

void SettingsFacet::clearSettings()
{
    controllers().settings().clear();
}

void SettingsFacet::setGroupSetting(const QString &groupName, const QString &mykey, const QVariant &value)
{
    controllers().settings().setGroupValue(groupName, mykey, value);
}

QVariantMap SettingsFacet::getGroupSetting(const QString &groupName) const
{
    return controllers().settings().groupValues(groupName);
}

void SettingsFacet::clearGroupSetting(const QString &groupName)
{
    controllers().settings().clearGroup(groupName);
}

void SettingsFacet::removeGroupSetting(const QString &groupName, const QString &mykey)
{
    controllers().settings().removeGroupValue(groupName, mykey);
}

QString SettingsFacet::getSystemLocale() const
{
    return controllers().locale.getSystemLocale();
}

void SettingsFacet::useSystemLocale()
{
    controllers().locale.useSystemLocale();
}

int SettingsFacet::getFontsize() const
{
    return automaticFontIndex;
}

void SettingsFacet::setSpecialColor(const QColor &clr)
{
    rootContext()->setContextProperty(QStringLiteral("specialColor"), clr);
}

void SettingsFacet::resetSpecialColor()
{
    setSpecialColor(Qt::transparent);
}

void SettingsFacet::setExternalEditor()
{
    controllers().editor.setExternalEditor();
}

void SettingsFacet::removeExternalEditor()
{
    controllers().editor.removeExternalEditor();
}

void SettingsFacet::setDefExternalEditor()
{
    controllers().editor.setDefExternalEditor();
}

void SettingsFacet::startWithExternalEditor(const QString &path)
{
    controllers().editor.startWithExternalEditor(path);
}

void SettingsFacet::showInGraphicalShell(const QString &pathIn)
{
    controllers().environment.desktop->showInGraphicalShell(pathIn);
}

void SettingsFacet::openUrlExternally(const QString &url)
{
    openAddress(url);
}

void SettingsFacet::openInDefaultBrowser(const QString &url)
{
    openAddress(url);
}

void SettingsFacet::openAddress(const QString &url)
{
    if (!controllers().environment.desktop->openUrl(QUrl::fromUserInput(url)))
        controllers().messages.post(Zum::CommonMessage, Zum::Warning,
                                    tr("Cannot open %1. Open it in a web browser yourself").arg(url));
}

QString SettingsFacet::openFileDialog(int filterType)
{
    return controllers().files.openFileDialog(filterType);
}

QString SettingsFacet::openFileDialog()
{
    return controllers().files.openFileDialog();
}

QString SettingsFacet::selectFolderDialog()
{
    return controllers().files.selectFolderDialog(QString());
}

void SettingsFacet::clipboardChanged()
{
    controllers().clipboard.clipboardChanged(QGuiApplication::clipboard()->mimeData(),
                                             controllers().lifecycle.projectLoaded());
}

int SettingsFacet::countClipboardFrames() const
{
    return controllers().clipboard.countClipboardFrames();
}

void SettingsFacet::clearClipboardFrames()
{
    controllers().clipboard.clearClipboardFrames();
}
