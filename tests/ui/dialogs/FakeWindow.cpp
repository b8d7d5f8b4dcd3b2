#include "ui/dialogs/FakeWindow.h"

#include "shared/PathText.h"
#include "shared/WebcamGlobal.h"

#include <array>
#include <cmath>
#include <QFileInfo>
#include <QPair>

FakeWindow::FakeWindow(const QString &settingsPath, WebcamGlobal &global)
    : m_settings(settingsPath), m_files(systemDialogs, m_settings, global, [] { return QString(); }),
      m_locale(m_settings, [] { return QStringLiteral("en_GB"); }),
      m_editor(m_files, m_settings, desktop, m_messages)
{
    connect(&m_progress, &ProgressState::progressTotalChanged, this, &FakeWindow::progressTotalChanged);
    connect(&m_progress, &ProgressState::progressCurrentChanged, this, &FakeWindow::progressCurrentChanged);
    connect(&m_progress, &ProgressState::progressActionChanged, this, &FakeWindow::progressActionChanged);
    connect(&m_messages, &MessageCentre::robotErrorCountChanged, this, &FakeWindow::robotErrorCountChanged);
    connect(&m_messages, &MessageCentre::appendMessage, &global, &WebcamGlobal::appendMessage);
    connect(&m_locale, &LocaleChoice::localeNameChanged, this, &FakeWindow::localeNameChanged);
    connect(&m_editor, &ExternalEditor::externalEditorChanged, this, &FakeWindow::externalEditorChanged);
    connect(&m_editor, &ExternalEditor::externalEditorNameChanged, this,
            &FakeWindow::externalEditorNameChanged);
    connect(&global, &WebcamGlobal::reloadCapturingDevice, this,
            [this] { calls.append("reloadCapturingDevice"); });
}

QVariantList FakeWindow::allPresets()
{
    constexpr std::array<int, 27> widths{960, 912, 896, 832, 768, 750, 720, 704, 702, 640, 620, 600, 594, 562,
                                         560, 520, 512, 486, 480, 450, 374, 320, 300, 240, 160, 128, 96};
    constexpr std::array<std::pair<int, int>, 4> proportions{{{16, 9}, {16, 10}, {14, 9}, {4, 3}}};
    const WebcamGlobal helper;
    QVariantList presets;
    for (const auto &[x, y] : proportions) {
        for (const int fps : {24, 12}) {
            for (const int eighth : widths) {
                const int width = 8 * eighth;
                const int height = helper.roundUp(static_cast<int>(std::lround(width / (double(x) / y))));
                presets.append(QVariantMap{{"name", QString("%1x%2").arg(width).arg(height)},
                                           {"proportion", QString("%1:%2").arg(x).arg(y)},
                                           {"fps", fps},
                                           {"framewidth", width},
                                           {"frameheight", height}});
            }
        }
    }
    return presets;
}

QVariant FakeWindow::getSetting(const QString &param, const QVariant &defval) const
{
    return m_settings.value(param, defval);
}

void FakeWindow::addSetting(const QString &param, const QVariant &value)
{
    calls.append("addSetting " + param);
    m_settings.setValue(param, value);
}

void FakeWindow::clearSetting(const QString &mykey)
{
    m_settings.remove(mykey);
}

void FakeWindow::clearSettings()
{
    m_settings.clear();
}

QVariantMap FakeWindow::getGroupSetting(const QString &groupName) const
{
    return m_settings.groupValues(groupName);
}

void FakeWindow::removeGroupSetting(const QString &groupName, const QString &mykey)
{
    m_settings.removeGroupValue(groupName, mykey);
}

void FakeWindow::useSystemLocale()
{
    m_locale.useSystemLocale();
}

int FakeWindow::getFontsize() const
{
    return -1;
}

void FakeWindow::setExternalEditor()
{
    m_editor.setExternalEditor();
}

void FakeWindow::removeExternalEditor()
{
    m_editor.removeExternalEditor();
}

void FakeWindow::setDefExternalEditor()
{
    m_editor.setDefExternalEditor();
}

bool FakeWindow::fileExists(const QString &path) const
{
    return QFileInfo::exists(morvane::withoutFilePrefix(path));
}

void FakeWindow::resetSpecialColor()
{
}

void FakeWindow::clearClipboardFrames()
{
}

void FakeWindow::redrawing()
{
}

void FakeWindow::playSound(int soundKey)
{
    calls.append(QString("playSound %1").arg(soundKey));
}

void FakeWindow::updateCurrentDeviceType()
{
    calls.append("updateCurrentDeviceType");
}

void FakeWindow::breakMorvaRobot(const QString &retval)
{
    calls.append("breakMorvaRobot " + retval);
}

void FakeWindow::stopLoadingProject()
{
    calls.append("stopLoadingProject");
}

void FakeWindow::showInGraphicalShell(const QString &path)
{
    calls.append("showInGraphicalShell " + path);
}

void FakeWindow::openUrlExternally(const QString &url)
{
    calls.append("openUrlExternally " + url);
}

int FakeWindow::openProject(const QString &path)
{
    calls.append("openProject " + path);
    return Zum::FileIsOk;
}

bool FakeWindow::saveProjectXmlFile(int mode)
{
    calls.append(QString("saveProjectXmlFile %1").arg(mode));
    return true;
}

void FakeWindow::quit(bool force)
{
    calls.append(force ? "quit true" : "quit false");
}

void FakeWindow::quit()
{
    quit(false);
}
