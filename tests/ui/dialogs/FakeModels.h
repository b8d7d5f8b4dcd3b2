#pragma once

#include "shared/PropertyMacros.h"

#include <QObject>
#include <QStringList>

/// Imitates the frames model as far as dialogs and the scene's keys reach it; keeps what it was told to do.
class FakeFramesModel : public QObject
{
    Q_OBJECT

    MORVANE_PROPERTY(qreal, timelineFps, TimelineFps, 25.0)
    MORVANE_PROPERTY(int, progressTotal, ProgressTotal, 0)
    MORVANE_PROPERTY(int, currentIndex, CurrentIndex, 0)
    MORVANE_PROPERTY(bool, copyModeOn, CopyModeOn, false)
    MORVANE_PROPERTY(bool, cutModeOn, CutModeOn, false)
    MORVANE_PROPERTY(bool, deletionConfirmed, DeletionConfirmed, false)

public:
    using QObject::QObject;

    QStringList calls;

public slots:
    void stop()
    {
        calls.append("stop");
    }
    void stopThreadAction()
    {
        calls.append("stopThreadAction");
    }

signals:
    void addedJustCapturedFrame();
};

/// Imitates the model of the vector paths: nothing is drawn.
class FakeCurvesModel : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

public slots:
    void clearSelected()
    {
    }
    void removePoint()
    {
    }

signals:
    void pathHasChanged();
};
