#pragma once

#include "shared/PropertyMacros.h"

#include <QString>

/// The one progress bar of the program. A total above 0 means that something long runs. Main thread only.
class ProgressState : public QObject
{
    Q_OBJECT

    MORVANE_PROPERTY(int, progressTotal, ProgressTotal, 0)
    MORVANE_PROPERTY(int, progressCurrent, ProgressCurrent, 0)
    MORVANE_PROPERTY(QString, progressAction, ProgressAction)

public:
    using QObject::QObject;

    void increaseProgressCurrent()
    {
        setProgressCurrent(progressCurrent() + 1);
    }

    /// Back to rest: no total, no position, no text.
    void stopProgress()
    {
        setProgressCurrent(0);
        setProgressAction(QString());
        setProgressTotal(0);
    }
};
