#pragma once

#include "shared/PropertyMacros.h"

#include <QColor>
#include <QPoint>
#include <QQuickItem>
#include <QVariantList>

/// What a webcam tells the scene: the state of its connection, the latest histogram, the progress of a save,
/// and the signals that every capturing device has. WebCamWindow writes it.
class WebCamReports : public QQuickItem
{
    Q_OBJECT

    MORVANE_READ_ONLY_PROPERTY(bool, connected, Connected, false)
    /// A connection is being tried.
    MORVANE_READ_ONLY_PROPERTY(bool, busy, Busy, false)
    /// Always empty: a webcam does not tell.
    MORVANE_READ_ONLY_PROPERTY(QString, firmWareVer, FirmWareVer)
    /// Size of the pictures as the camera gives them.
    MORVANE_READ_ONLY_PROPERTY(qreal, coordSystemWidth, CoordSystemWidth, 99)
    MORVANE_READ_ONLY_PROPERTY(qreal, coordSystemHeight, CoordSystemHeight, 99)
    MORVANE_READ_ONLY_PROPERTY(QVariantList, histogramDataY, HistogramDataY)
    MORVANE_READ_ONLY_PROPERTY(QVariantList, histogramDataR, HistogramDataR)
    MORVANE_READ_ONLY_PROPERTY(QVariantList, histogramDataG, HistogramDataG)
    MORVANE_READ_ONLY_PROPERTY(QVariantList, histogramDataB, HistogramDataB)
    MORVANE_READ_ONLY_PROPERTY(QString, progressAction, ProgressAction)
    MORVANE_READ_ONLY_PROPERTY(int, progressTotal, ProgressTotal, 0)
    MORVANE_READ_ONLY_PROPERTY(int, progressCurrent, ProgressCurrent, 0)
    /// Nothing to zoom into.
    MORVANE_READ_ONLY_PROPERTY(int, zoomFactor, ZoomFactor, 1)
    /// Without effect on a webcam.
    MORVANE_PROPERTY(bool, focusFrameOn, FocusFrameOn, true)

public:
    using QQuickItem::QQuickItem;

signals:
    void coordSystemChanged();

    /// Image and thumbnail are on the disk; WebcamGlobal's unsavedCapturedFull and -Tumb are their names.
    void frameSaved();
    /// The image is on the disk, the thumbnail is not.
    void frameSaveError();
    /// The image is not on the disk, as a message has told. The next shot may start at once.
    void frameNotSaved();
    /// The camera went away by itself while it was connected; `connected` falls after this.
    void cameraLost();
    /// `mtype` is one of Zum::MessageTypes.
    void message(int mtype, const QString &mtext);
    void enableEyedropper(bool on);
    /// The colour under the mouse, at a position of the scene.
    void setEyedropper(QPoint mouse, QColor colour);
    void mousePressed(QPoint mouse);
    void rightClick(QPoint mouse);

    // Of properties that other devices have; never emitted here.
    void avListChanged();
    void tvListChanged();
    void isoListChanged();
    void wbListChanged();
    void aeModeListChanged();
    void expoCompListChanged();
};
