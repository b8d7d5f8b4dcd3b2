#include "capture/TimeLapse.h"

#include "shared/WebcamGlobal.h"
#include "timeline/FramesModel.h"

#include <algorithm>
#include <array>

namespace {

struct UnitRule
{
    int periodMs;
    int limit;
};

// In the order of TimeLapse::Unit.
constexpr std::array<UnitRule, 3> rules{{{60000, 30}, {3600000, 120}, {86400000, 720}}};

} // namespace

TimeLapse::TimeLapse(WebcamGlobal &global, FramesModel &frames, std::unique_ptr<Ticker> ticker,
                     QObject *parent)
    : QObject(parent), m_global(global), m_frames(frames), m_ticker(std::move(ticker))
{
    if (!m_ticker)
        m_ticker = std::make_unique<SteadyTicker>();
    connect(m_ticker.get(), &Ticker::ticked, this, &TimeLapse::fire);
    connect(&global, &WebcamGlobal::connectedChanged, this, &TimeLapse::followConnection);
}

TimeLapse::~TimeLapse() = default;

void TimeLapse::setUnit(int unit)
{
    const int known = std::clamp(unit, int(Minute), int(Day));
    if (known == m_unit)
        return;
    m_unit = known;
    emit unitChanged();
    if (m_times > limit()) {
        m_times = limit();
        emit timesChanged();
    }
    applyInterval();
}

void TimeLapse::setTimes(int times)
{
    const int allowed = std::clamp(times, 1, limit());
    if (allowed == m_times)
        return;
    m_times = allowed;
    emit timesChanged();
    applyInterval();
}

int TimeLapse::limit() const
{
    return rules[m_unit].limit;
}

int TimeLapse::intervalMs() const
{
    return rules[m_unit].periodMs / m_times;
}

void TimeLapse::applyInterval()
{
    emit intervalMsChanged();
    if (m_global.zeitRafferRunning())
        m_ticker->start(intervalMs());
}

void TimeLapse::start()
{
    if (m_global.zeitRafferRunning() || !m_global.connected())
        return;
    if (m_frames.captureMode() == Zum::CaptureModeReplace)
        m_frames.setCaptureMode(Zum::CaptureModeAppend);
    m_missed = 0;
    m_lost = false;
    m_global.setZeitRafferRunning(true);
    m_ticker->start(intervalMs());
    fire();
}

void TimeLapse::stop()
{
    if (!m_global.zeitRafferRunning())
        return;
    m_ticker->stop();
    m_lost = false;
    setWaits(false);
    m_global.setZeitRafferRunning(false);
    emit m_global.appendMessage(Zum::ZeitRafferMessage, Zum::Info, tr("Time-lapse photography tool stopped"));
}

void TimeLapse::fire()
{
    if (m_firedThisTurn)
        return;
    m_firedThisTurn = true;
    QMetaObject::invokeMethod(
        this, [this] { m_firedThisTurn = false; }, Qt::QueuedConnection);
    if (m_waits) {
        if (++m_missed > patience)
            stop();
        return;
    }
    if (m_global.capturingInprogress() != -1) {
        emit m_global.appendMessage(Zum::ZeitRafferMessage, Zum::Info,
                                    QStringLiteral("Cannot capture. Try to increase interval"));
        stop();
        return;
    }
    emit m_global.doCaptureFrame();
    emit fired();
}

void TimeLapse::cameraLost()
{
    m_lost = m_global.zeitRafferRunning();
}

void TimeLapse::followConnection()
{
    if (!m_global.zeitRafferRunning())
        return;
    if (m_global.connected()) {
        m_missed = 0;
        m_lost = false;
        setWaits(false);
    } else if (m_lost) {
        setWaits(true);
    } else {
        stop();
    }
}

void TimeLapse::setWaits(bool waits)
{
    if (m_waits == waits)
        return;
    m_waits = waits;
    emit waitsForCameraChanged();
}
