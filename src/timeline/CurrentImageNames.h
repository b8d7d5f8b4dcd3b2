#pragma once

#include <QString>

/// File names of the current frame's images, kept for the whole process so that the capture side can read
/// them from its own threads. The frames model writes them; any thread may read.
class CurrentImageNames
{
public:
    static QString captured();
    static QString reference();
    static void setCaptured(const QString &name);
    static void setReference(const QString &name);
};
