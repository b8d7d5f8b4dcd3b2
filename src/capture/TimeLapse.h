#pragma once

#include "timeline/Ticker.h"

#include <memory>
#include <QObject>

class FramesModel;
class WebcamGlobal;

/// The time-lapse tool: shoots a number of times in each minute, hour or day until it is stopped. While it
/// runs WebcamGlobal.zeitRafferRunning is set. A camera that was lost may come back within the next two
/// intervals, and the tool goes on; one that was disconnected on purpose stops it. Main thread.
class TimeLapse : public QObject
{
    Q_OBJECT
    /// 0 for minutes, 1 for hours, 2 for days. A change cuts `times` to the limit of the new unit.
    Q_PROPERTY(int unit READ unit WRITE setUnit NOTIFY unitChanged)
    /// Shots per unit, 1 to `limit`.
    Q_PROPERTY(int times READ times WRITE setTimes NOTIFY timesChanged)
    Q_PROPERTY(int limit READ limit NOTIFY unitChanged)
    Q_PROPERTY(int intervalMs READ intervalMs NOTIFY intervalMsChanged)
    /// Running, without a camera.
    Q_PROPERTY(bool waitsForCamera READ waitsForCamera NOTIFY waitsForCameraChanged)

public:
    enum Unit { Minute, Hour, Day };
    Q_ENUM(Unit)

    static constexpr int defaultTimes = 7;
    /// Shots that may be missed while the camera is away.
    static constexpr int patience = 2;

    TimeLapse(WebcamGlobal &global, FramesModel &frames, std::unique_ptr<Ticker> ticker = nullptr,
              QObject *parent = nullptr);
    ~TimeLapse() override;

    int unit() const
    {
        return m_unit;
    }
    void setUnit(int unit);
    int times() const
    {
        return m_times;
    }
    void setTimes(int times);
    int limit() const;
    int intervalMs() const;
    bool waitsForCamera() const
    {
        return m_waits;
    }

public slots:
    /// Shoots at once and then at each interval. Only while connected; leaves the replace mode for append.
    void start();
    void stop();
    /// The camera has gone without being asked to; to be told before WebcamGlobal.connected falls.
    void cameraLost();

signals:
    void unitChanged();
    void timesChanged();
    void intervalMsChanged();
    void waitsForCameraChanged();
    /// A shot was asked for: the progress bar begins anew.
    void fired();

private:
    void fire();
    void followConnection();
    void setWaits(bool waits);
    void applyInterval();

    WebcamGlobal &m_global;
    FramesModel &m_frames;
    std::unique_ptr<Ticker> m_ticker;
    int m_unit = Minute;
    int m_times = defaultTimes;
    int m_missed = 0;
    bool m_lost = false;
    bool m_waits = false;
    /// A tick that comes in the same turn of the event loop is one that was late, and not a shot of its own.
    bool m_firedThisTurn = false;
};
