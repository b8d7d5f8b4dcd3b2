#pragma once

#include <QEvent>
#include <QVariant>

/// Everything that a webcam's thread says to the device and its live view item: a number and a value.
class WebCamEvent : public QEvent
{
public:
    enum Number {
        // To the device
        LiveViewFailed = 1302,
        /// The value says what is wrong when it is the program and not the camera.
        NoCamera = 1303,
        Rate = 1305,
        Warning = 1311,
        NoConnection = 1312,
        HistogramY = 1317,
        HistogramR = 1318,
        HistogramG = 1319,
        HistogramB = 1320,
        ProgressCurrent = 1335,
        ProgressTotal = 1336,
        ProgressAction = 1337,
        /// A map with "full" and "tumb", the paths that were written.
        FrameSaved = 1340,
        ThumbnailFailed = 1341,
        Busy = 1342,
        NotBusy = 1343,
        SizeChanged = 1346,
        /// The image could not be written; the value says why, for the user.
        FrameFailed = 1350,

        // To the live view item
        ShowingOn = 1301,
        NewPicture = 1304,
        ConnectionLost = 1312,
        AcceptingOff = 1313,
        AcceptingOn = 1314,
        RotatedOn = 1315,
        RotatedOff = 1316,
        SmoothOn = 1321,
        SmoothOff = 1322,
        GrayscaleOn = 1333,
        GrayscaleOff = 1334,
        LoopEnded = 1339,
        Blend = 1349,
    };

    explicit WebCamEvent(int number, QVariant value = {})
        : QEvent(static_cast<Type>(number)), m_value(std::move(value))
    {
    }

    const QVariant &value() const
    {
        return m_value;
    }

private:
    QVariant m_value;
};
