#pragma once

#include <functional>
#include <QObject>
#include <QString>
#include <QVariantMap>

class FramesModel;
class WebcamGlobal;

/// The way of a shot through the program: whether one may start, what its files are called, and which rows it
/// fills. The scene asks at each station and talks to the device; nothing here does. Main thread.
class CaptureWorkflow : public QObject
{
    Q_OBJECT

public:
    using TimeStamp = std::function<QString()>;

    /// `timeStamp` gives the twelve digits of now; the system's clock does when nothing is given.
    CaptureWorkflow(WebcamGlobal &global, FramesModel &frames, TimeStamp timeStamp = {},
                    QObject *parent = nullptr);

    /// The device is ready, nothing is being saved and no shot is under way.
    Q_INVOKABLE bool mayCapture() const;

    /// Number of the next shot's name: the current row when replacing, else the count of the rows.
    Q_INVOKABLE int nextNumber() const;

    /// Paths and names of the next shot: "fullPath", "tumbPath", "fullName", "tumbName".
    Q_INVOKABLE QVariantMap nextShot(const QString &capFullDirPath, const QString &capTumbDirPath) const;

    /// Takes the busy mark for the row that the shot will fill. With a shot under way it warns "Taking a
    /// picture. Please wait" and the result is false.
    Q_INVOKABLE bool beginShot();

    /// The files are there: gives the busy mark back and puts them into the timeline.
    Q_INVOKABLE void finishShot();

    /// The shot failed, or the device has gone: gives the busy mark back.
    Q_INVOKABLE void dropShot();

    /// Moves the current row back so far that all rows exist that a replacing shot fills. To be called when
    /// the amount of frames per shot or the mode changes.
    Q_INVOKABLE void makeRoomToReplace();

signals:
    /// A shot has taken the place of a frame. The timeline tells addedJustCapturedFrame() of added frames
    /// alone, and the project is to be saved after these as well.
    void shotReplaced(int row);

private:
    int rowToFill() const;

    WebcamGlobal &m_global;
    FramesModel &m_frames;
    TimeStamp m_timeStamp;
};
