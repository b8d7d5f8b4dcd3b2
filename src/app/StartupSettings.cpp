#include "app/StartupSettings.h"

#include "shared/Names.h"
#include "shared/Settings.h"
#include "shared/WebcamGlobal.h"

#include <algorithm>
#include <QCoreApplication>

namespace startup {

namespace {

/// A stored choice out of its range counts as none.
int choice(const Settings &settings, const QString &key, int fallback, int highest)
{
    const int stored = settings.integer(key, fallback);
    return stored < 0 || stored > highest ? fallback : stored;
}

/// The format of movies; one that no button offers counts as none.
QString videoFormat(const Settings &settings)
{
    const QStringList offered{morvane::formatAvi, morvane::formatOgv, morvane::formatWebm, morvane::formatMkv,
                              morvane::formatRaw};
    const QString stored = settings.value(QStringLiteral("renderVideoFormat")).toString();
    return offered.contains(stored) ? stored : morvane::formatAvi;
}

} // namespace

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
    global.setRenderFormatNameStr(videoFormat(settings));
    global.setRenderQmax(choice(settings, QStringLiteral("renderQmax"), 2, 3));
    global.setVideoExportPolicy(choice(settings, QStringLiteral("videoExportPolicy"),
                                       Zum::ExportPolicyCropped, Zum::ExportPolicyCroppedAndResized));
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
