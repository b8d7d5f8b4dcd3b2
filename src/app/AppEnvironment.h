#pragma once

#include "capture/CaptureEnvironment.h"
#include "shared/DesktopServices.h"
#include "shared/Dialogs.h"
#include "shared/Settings.h"
#include "timeline/Ticker.h"

#include <functional>
#include <memory>
#include <QDateTime>
#include <QString>

class QQmlEngine;

/// What the program needs of the world around it. A test hands in its own.
struct AppEnvironment
{
    /// What the scene runs in; it outlives the window.
    QQmlEngine *engine = nullptr;
    std::unique_ptr<Settings> settings;
    std::unique_ptr<morvane::Dialogs> dialogs;
    std::unique_ptr<morvane::DesktopServices> desktop;
    std::function<QDateTime()> now;
    /// Ends the event loop.
    std::function<void()> quit;
    /// Name of the system's locale.
    QString systemLocale;
    /// Logical horizontal density of the screen, in dots per inch.
    int logicalDpi = 96;
    /// The cameras that there are.
    CaptureEnvironment::Parts cameras;
    /// The clock of the time-lapse tool; its own when null.
    std::unique_ptr<Ticker> timeLapseTicker;

    /// The user's own desktop. Takes the engine and the settings that the start has already made.
    static AppEnvironment system(QQmlEngine &engine, std::unique_ptr<Settings> settings);
};
