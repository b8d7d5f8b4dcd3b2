#pragma once

/// Qt ends a program that finds no screen by aborting, with a text about plug-ins. While an object of this
/// class lives, that end is a message on standard error, of what to do and of Qt's reasons, and exit
/// status 1. What Qt warns of in that time is held back for that message, and given out after all when the
/// screen was found.
///
/// Stands around the making of the application object, on the main thread; one at a time.
class NoScreen
{
public:
    NoScreen();
    ~NoScreen();

    NoScreen(const NoScreen &) = delete;
    NoScreen &operator=(const NoScreen &) = delete;
};
