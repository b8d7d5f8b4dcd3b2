#include "SoakFilm.h"

#include "shared/TimeText.h"

#include <ctime>
#include <QFileInfo>
#include <QTest>
#include <QTimeZone>

namespace {

constexpr int timesPerMinute = 30;
/// A shot that takes longer, in real time, will not come any more.
constexpr int longestShotMs = 60000;
constexpr int heartMs = 4;
/// Looks at the handles, as one may be open for a moment while a thread reads a file.
constexpr int looks = 25;

double threadWorkMs()
{
    timespec used{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
    return double(used.tv_sec) * 1e3 + double(used.tv_nsec) / 1e6;
}

} // namespace

void SoakTime::jump()
{
    if (!isActive())
        return;
    const qint64 now = m_clock->nowMs();
    if (now < m_dueMs)
        m_clock->wait(int(m_dueMs - now));
    m_dueMs = qMax(now, m_dueMs) + m_intervalMs;
    emit ticked();
}

SoakFilm::SoakFilm() : m_shell(std::make_unique<CaptureWindow>(options()))
{
    // The current frame follows half a second after a shot, well before the next one.
    if (QObject *follow = m_shell->timer(500))
        follow->setProperty("interval", 1);
    else
        qWarning("the timer that makes the last frame current was not found");
    m_watchdog.setInterval(longestShotMs);
    m_watchdog.setSingleShot(true);
    connect(&m_watchdog, &QTimer::timeout, &m_loop, [this] { m_loop.exit(1); });
    m_heart.setTimerType(Qt::PreciseTimer);
    m_heart.setInterval(heartMs);
    connect(&m_heart, &QTimer::timeout, this, &SoakFilm::beat);
    connect(&m_shell->frames(), &FramesModel::addedJustCapturedFrame, this, &SoakFilm::goOn,
            Qt::QueuedConnection);
    connect(
        &m_shell->window(), &QQuickWindow::frameSwapped, this,
        [this] {
            m_shown = true;
            goOn();
        },
        Qt::QueuedConnection);
}

ShellWindow::Options SoakFilm::options()
{
    ShellWindow::Options options = CaptureWindow::options();
    options.cameras = [this] {
        CaptureEnvironment::Parts parts;
        parts.clock = m_clock;
        return parts;
    };
    options.timeLapseTicker = [this] {
        auto time = std::make_unique<SoakTime>(m_clock);
        m_time = time.get();
        return time;
    };
    options.now = [this] {
        return now();
    };
    return options;
}

QDateTime SoakFilm::now() const
{
    return QDateTime(QDate(2026, 3, 14), QTime(9, 0), QTimeZone::utc()).addMSecs(m_clock->nowMs());
}

QString SoakFilm::timeStamp() const
{
    return morvane::timeStamp(now());
}

QString SoakFilm::shoot(int frames, int framesPerSample)
{
    m_wanted = frames;
    m_framesPerSample = framesPerSample;
    if (!m_shell->connectCamera())
        return QStringLiteral("no camera");
    QMetaObject::invokeMethod(m_shell->control(QStringLiteral("cameraTab2")), "clicked");
    QMetaObject::invokeMethod(m_shell->control(QStringLiteral("timesPer")), "edited",
                              Q_ARG(int, timesPerMinute));
    m_asked = 1;
    m_shell->click(m_shell->control(QStringLiteral("startTimeLapse")));
    if (m_time->intervalMs() != 2000)
        return QStringLiteral("the time-lapse does not shoot every two seconds");
    m_watchdog.start();
    m_heart.start();
    m_mainThreadMs = threadWorkMs();
    m_sinceBeat.start();
    m_sinceSample.start();
    const bool stuck = m_loop.exec() != 0;
    m_heart.stop();
    m_watchdog.stop();
    if (stuck)
        return stateNow();
    m_shell->click(m_shell->control(QStringLiteral("startTimeLapse")));
    return m_shell->global().zeitRafferRunning() ? QStringLiteral("the time-lapse does not stop") : QString();
}

QString SoakFilm::stateNow() const
{
    const WebcamGlobal &global = m_shell->global();
    return QStringLiteral(
               "stuck at frame %1: asked %2, drawn since %3, shot under way %4, paused %5, ready %6, "
               "pictures %7, dialog '%8', messages: %9")
        .arg(m_shell->framesNow())
        .arg(m_asked)
        .arg(m_shown)
        .arg(global.capturingInprogress())
        .arg(global.paused())
        .arg(global.ready())
        .arg(m_shell->demo().delivered())
        .arg(m_shell->window().qmlDialogUrl(), m_shell->messages().join(u' '));
}

// The next shot, once the one before has its row and the screen has been drawn since.
void SoakFilm::goOn()
{
    const int frames = m_shell->framesNow();
    if (m_asked == 0 || frames < m_asked || !m_shown || m_shell->global().capturingInprogress() != -1)
        return;
    if (frames % m_framesPerSample == 0)
        takeSample();
    if (frames >= m_wanted) {
        m_asked = 0;
        m_loop.exit(0);
        return;
    }
    m_watchdog.start();
    m_asked = frames + 1;
    m_shown = false;
    // In a turn of the event loop of its own, as two ticks in one turn count as one.
    QMetaObject::invokeMethod(m_time, &SoakTime::jump, Qt::QueuedConnection);
}

void SoakFilm::beat()
{
    const double gap = double(m_sinceBeat.nsecsElapsed()) / 1e6 - heartMs;
    m_longestGapMs = qMax(m_longestGapMs, gap);
    m_sinceBeat.start();
}

void SoakFilm::count(const QQuickItem *item, Sample &sample) const
{
    ++sample.items;
    if (item->inherits("RamPreview"))
        sample.cacheBytes += item->property("cacheMaxInBytes").toDouble() / 100
                             * item->property("cacheUsedPercent").toDouble();
    const QList<QQuickItem *> children = item->childItems();
    for (const QQuickItem *child : children)
        count(child, sample);
}

void SoakFilm::takeSample()
{
    Sample sample;
    sample.frames = m_shell->framesNow();
    sample.shotMs = double(m_sinceSample.nsecsElapsed()) / 1e6 / m_framesPerSample;
    sample.mainThreadMs = (threadWorkMs() - m_mainThreadMs) / m_framesPerSample;
    sample.longestGapMs = m_longestGapMs;
    // A file that is being written would count as a handle.
    m_shell->controllers().lifecycle.finishSaves();
    sample.process = ProcessFigures::now();
    for (int look = 1; look < looks; ++look) {
        QTest::qSleep(1);
        const ProcessFigures again = ProcessFigures::now();
        if (again.files.size() < sample.process.files.size())
            sample.process.files = again.files;
    }
    sample.objects = int(m_shell->window().findChildren<QObject *>().size()
                         + m_shell->root().findChildren<QObject *>().size());
    count(m_shell->window().contentItem(), sample);
    sample.livePictures = m_shell->demo().delivered();
    sample.projectFileBytes = QFileInfo(m_shell->window().projPath()).size();
    m_samples.append(sample);
    emit sampled();
    m_longestGapMs = 0;
    m_mainThreadMs = threadWorkMs();
    m_sinceBeat.start();
    m_sinceSample.start();
}
