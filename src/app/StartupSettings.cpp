#include "app/StartupSettings.h"

#include "shared/Settings.h"
#include "shared/WebcamGlobal.h"

#include <algorithm>
#include <QCoreApplication>

namespace startup {

WindowFlags windowFlags(const Settings &settings)
{
    return {settings.boolean(QStringLiteral("previewWindowVisible"), false),
            settings.boolean(QStringLiteral("lightboxWindowVisible"), false),
            settings.boolean(QStringLiteral("oscilloscopyWindowVisible"), false),
            settings.boolean(QStringLiteral("villageWindowVisible"), false)};
}

void readInto(WebcamGlobal &global, const Settings &settings)
{
    global.setSoundsOn(settings.boolean(QStringLiteral("soundsOn"), false));
    global.setBeepWhenCaptured(settings.boolean(QStringLiteral("beepWhenCaptured"), false));
    global.setShowToolTips(settings.boolean(QStringLiteral("showToolTips"), true));
    global.setInactivityWatchOn(settings.boolean(QStringLiteral("inactivityWatcher"), false));
    global.setJumpToLastFrame(settings.boolean(QStringLiteral("jumpToLastFrame"), true));
    global.setInactivityMaximum(
        settings.integer(QStringLiteral("inactivityMax"), global.inactivityMaximum(), 5, 180));
}

int timelineScale(const Settings &settings)
{
    constexpr int whole = 100;
    const int stored = settings.integer(QStringLiteral("timelinescale"), whole);
    return std::min(stored, whole);
}

QString complaint(const Settings &settings)
{
    switch (settings.health()) {
        case Settings::Health::Damaged:
            return QCoreApplication::translate(
                       "MainWindow",
                       "The settings file was damaged. It is kept as %1, and the program "
                       "starts with its defaults.")
                .arg(settings.damagedCopyPath());
        case Settings::Health::ReadOnly:
            return QCoreApplication::translate(
                       "MainWindow",
                       "The settings file %1 cannot be written. Changes last until the program ends.")
                .arg(settings.filePath());
        case Settings::Health::Good:
            break;
    }
    return QString();
}

} // namespace startup
