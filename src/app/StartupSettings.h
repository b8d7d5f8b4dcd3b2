#pragma once

#include <QStringList>

class Settings;
class WebcamGlobal;

/// What the start takes from the user's settings.
namespace startup {

/// Windows that stood open when the program was closed and come back with it.
struct WindowFlags
{
    bool preview = false;
    bool lightbox = false;
    bool oscilloscope = false;
    bool village = false;
};
WindowFlags windowFlags(const Settings &settings);

/// Sounds, tool tips, inactivity watch, the jump to a new frame, and format, quality and size of movies.
void readInto(WebcamGlobal &global, const Settings &settings);

/// Scale of the timeline in per cent, at most 100.
int timelineScale(const Settings &settings);

/// What the user must know about the settings store itself; empty when it is in order.
QString complaint(const Settings &settings);

} // namespace startup
