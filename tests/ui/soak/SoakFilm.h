#pragma once

#include "ProcessFigures.h"
#include "support/FakeCapture.h"
#include "ui/capture/CaptureWindow.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

/// One time for the whole program, of which the camera's thread and a time-lapse of one frame in two seconds
/// both live. It goes on while the camera waits for its next picture, and jumps to the next shot as soon as
/// the one before is done.
class SoakTime : public Ticker
{
    Q_OBJECT

public:
    explicit SoakTime(std::shared_ptr<FakeCaptureClock> clock) : m_clock(std::move(clock))
    {
    }
    void start(int intervalMs) override
    {
        m_intervalMs = intervalMs;
        m_dueMs = m_clock->nowMs() + intervalMs;
    }
    void stop() override
    {
        m_intervalMs = 0;
    }
    bool isActive() const override
    {
        return m_intervalMs > 0;
    }
    int intervalMs() const
    {
        return m_intervalMs;
    }
    /// Lets the rest of the interval pass.
    void jump();

private:
    std::shared_ptr<FakeCaptureClock> m_clock;
    int m_intervalMs = 0;
    qint64 m_dueMs = 0;
};

/// A film shot by the clock in the program's window, and what it took. The live view is on and must be shown
/// anew between two shots.
class SoakFilm : public QObject
{
    Q_OBJECT

public:
    /// Taken between two shots.
    struct Sample
    {
        int frames = 0;
        ProcessFigures process;
        /// Pictures that the views of the film keep in memory.
        double cacheBytes = 0;
        int objects = 0;
        int items = 0;
        /// A shot, the mean since the sample before.
        double shotMs = 0;
        /// What of it the main thread was at work, whatever else the machine does.
        double mainThreadMs = 0;
        /// The longest time in which the main thread did not come to its event loop since the sample before.
        double longestGapMs = 0;
        qint64 livePictures = 0;
        qint64 projectFileBytes = 0;
    };

    SoakFilm();

    CaptureWindow &shell()
    {
        return *m_shell;
    }
    /// Starts the time-lapse by its own controls, lets it shoot that many frames and stops it. Empty, or what
    /// went wrong.
    QString shoot(int frames, int framesPerSample);
    const QList<Sample> &samples() const
    {
        return m_samples;
    }
    /// What the program's clock shows now, as it stands in names.
    QString timeStamp() const;
    /// Of the program's time.
    double hours() const
    {
        return double(m_clock->nowMs()) / 3600e3;
    }

signals:
    /// There is one more of them.
    void sampled();

private:
    ShellWindow::Options options();
    QDateTime now() const;
    QString stateNow() const;
    void goOn();
    void takeSample();
    void beat();
    void count(const QQuickItem *item, Sample &sample) const;

    std::shared_ptr<FakeCaptureClock> m_clock = std::make_shared<FakeCaptureClock>();
    SoakTime *m_time = nullptr;
    std::unique_ptr<CaptureWindow> m_shell;
    QList<Sample> m_samples;
    QEventLoop m_loop;
    QTimer m_watchdog;
    QTimer m_heart;
    QElapsedTimer m_sinceBeat;
    QElapsedTimer m_sinceSample;
    double m_longestGapMs = 0;
    double m_mainThreadMs = 0;
    int m_wanted = 0;
    int m_framesPerSample = 1;
    int m_asked = 0;
    bool m_shown = false;
};
