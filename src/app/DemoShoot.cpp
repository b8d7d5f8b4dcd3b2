#include "app/DemoShoot.h"

#include "app/AppControllers.h"
#include "app/MainWindow.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QTextStream>
#include <utility>

namespace {

/// How long the program may take to come to rest before it is told to quit all the same, and the time between
/// two attempts; the last of them goes through whatever refuses.
constexpr int mostTicksToRest = 30;
constexpr int ticksBetweenAttempts = 10;
constexpr int mostPlaybacks = 5;

const QString timingTab = QStringLiteral("timingUIisOn");

} // namespace

const std::array<DemoShoot::Step, 7> &DemoShoot::steps()
{
    static const std::array<Step, 7> all{{
        {QStringLiteral("New project"), &DemoShoot::createProject, &DemoShoot::projectIsThere,
         &DemoShoot::projectPath},
        {QStringLiteral("Connect"), &DemoShoot::connectCamera, &DemoShoot::cameraIsReady,
         &DemoShoot::cameraName},
        {QStringLiteral("Shoot on twos"), &DemoShoot::beginShooting, &DemoShoot::allIsShot,
         &DemoShoot::shotFrames},
        {QStringLiteral("Play"), &DemoShoot::playRange, &DemoShoot::rangeWasPlayed, &DemoShoot::playedFrames},
        {QStringLiteral("Render WebM"), &DemoShoot::renderWebm, &DemoShoot::movieIsThere,
         &DemoShoot::renderedPart},
        {QStringLiteral("Render AVI"), &DemoShoot::renderAvi, &DemoShoot::movieIsThere,
         &DemoShoot::renderedPart},
        {QStringLiteral("Save"), &DemoShoot::saveProject, &DemoShoot::projectIsSaved,
         &DemoShoot::savedFrames},
    }};
    return all;
}

DemoShoot::DemoShoot(MainWindow &window, Pace pace, std::unique_ptr<Ticker> ticker, QTextStream &out)
    : m_window(window), m_pace(pace), m_ticker(std::move(ticker)), m_out(out)
{
    connect(m_ticker.get(), &Ticker::ticked, this, &DemoShoot::tick);
}

void DemoShoot::start()
{
    m_window.installEventFilter(this);
    listen();
    m_ticker->start(tickMs);
    rest(m_pace.betweenSteps, &DemoShoot::beginStep);
}

void DemoShoot::listen()
{
    AppControllers &c = m_window.controllers();
    connect(&c.global, &WebcamGlobal::appendMessage, this,
            [this](int, int type, const QString &text) { heard(type, text); });
    connect(&m_window, &MainWindow::closingChanged, this,
            [this] { giveUp(QStringLiteral("the window was closed")); });
    connect(&c.frames, &FramesModel::currentIndexChanged, this, [this] {
        const FramesModel &frames = m_window.controllers().frames;
        if (frames.playing())
            m_playedRows.insert(frames.currentIndex());
        lookSoon();
    });
    connect(&c.frames, &FramesModel::playingChanged, this, [this] {
        m_hasPlayed = m_hasPlayed || m_window.controllers().frames.playing();
        lookSoon();
    });
    connect(&m_window, &MainWindow::projLoadedChanged, this, &DemoShoot::lookSoon);
    connect(&c.global, &WebcamGlobal::connectedChanged, this, &DemoShoot::lookSoon);
    connect(&c.global, &WebcamGlobal::readyChanged, this, &DemoShoot::lookSoon);
    connect(&c.global, &WebcamGlobal::capturingInprogressChanged, this, &DemoShoot::lookSoon);
    connect(&m_window, &MainWindow::progressCurrentChanged, this, &DemoShoot::lookSoon);
    connect(&m_window, &MainWindow::progressTotalChanged, this, &DemoShoot::lookSoon);
    connect(&m_window, &MainWindow::morvaRobotThreadStartedChanged, this, &DemoShoot::lookSoon);
    connect(&m_window, &MainWindow::allowQuietExitChanged, this, &DemoShoot::lookSoon);
}

// What has told of a change may not be through with it, so nothing is done from inside.
void DemoShoot::lookSoon()
{
    if (!m_leaving)
        m_quietTicks = 0;
    if (m_lookIsDue)
        return;
    m_lookIsDue = true;
    QMetaObject::invokeMethod(this, &DemoShoot::look, Qt::QueuedConnection);
}

void DemoShoot::tick()
{
    ++m_quietTicks;
    if (m_restTicks > 0 && --m_restTicks == 0) {
        m_quietTicks = 0;
        (this->*std::exchange(m_afterRest, nullptr))();
    } else if (!m_leaving && m_quietTicks > m_pace.patience) {
        const QString warning =
            m_lastWarning.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(m_lastWarning);
        fail(
            QStringLiteral("nothing has moved for %1 s%2").arg(m_pace.patience * tickMs / 1000).arg(warning));
    }
    look();
}

void DemoShoot::look()
{
    m_lookIsDue = false;
    if (m_leaving) {
        leaveWhenQuiet();
        return;
    }
    if (m_restTicks > 0 || m_afterRest != nullptr)
        return;
    showProgress();
    if ((this->*step().isOver)())
        endStep();
}

void DemoShoot::rest(int ticks, void (DemoShoot::*then)())
{
    m_restTicks = ticks;
    m_afterRest = then;
    if (ticks == 0)
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (m_afterRest != nullptr && !m_leaving)
                    (this->*std::exchange(m_afterRest, nullptr))();
                lookSoon();
            },
            Qt::QueuedConnection);
}

void DemoShoot::beginStep()
{
    m_quietTicks = 0;
    m_shownProgress.clear();
    m_lastWarning.clear();
    m_out << m_step + 1 << '/' << steps().size() << ' ' << step().title << ':' << Qt::flush;
    m_lineIsOpen = true;
    (this->*step().begin)();
}

void DemoShoot::endStep()
{
    showProgress();
    endLine();
    if (m_step + 1 < int(steps().size())) {
        ++m_step;
        rest(m_pace.betweenSteps, &DemoShoot::beginStep);
        return;
    }
    m_done = true;
    leave();
}

void DemoShoot::showProgress()
{
    const QString progress = (this->*step().progress)();
    if (progress.isEmpty() || progress == m_shownProgress)
        return;
    m_shownProgress = progress;
    m_out << ' ' << progress << Qt::flush;
}

void DemoShoot::endLine()
{
    if (std::exchange(m_lineIsOpen, false))
        m_out << Qt::endl;
}

void DemoShoot::heard(int type, const QString &text)
{
    if (type == Zum::Warning)
        m_lastWarning = text;
    else if (type == Zum::Error || type == Zum::FatalError)
        fail(text);
}

void DemoShoot::fail(const QString &reason)
{
    if (m_leaving)
        return;
    m_failure = QStringLiteral("Step %1 of %2 (%3) failed: %4")
                    .arg(m_step + 1)
                    .arg(steps().size())
                    .arg(step().title, reason);
    leave();
}

void DemoShoot::giveUp(const QString &reason)
{
    if (m_leaving)
        return;
    m_failure = QStringLiteral("Stopped in step %1 of %2 (%3): %4")
                    .arg(m_step + 1)
                    .arg(steps().size())
                    .arg(step().title, reason);
    leave();
}

void DemoShoot::leave()
{
    m_leaving = true;
    m_quietTicks = 0;
    m_restTicks = 0;
    m_afterRest = nullptr;
    endLine();
    m_window.breakMorvaRobot(QStringLiteral("demo"));
    lookSoon();
}

// The window may not close over a job or a shot that is being saved: it would ask about it.
void DemoShoot::leaveWhenQuiet()
{
    const bool isQuiet = m_window.progressTotal() == 0 && !m_window.morvaRobotThreadStarted()
                         && m_window.controllers().global.capturingInprogress() == -1;
    const bool isLate = m_quietTicks >= mostTicksToRest;
    if (!isQuiet && !isLate)
        return;
    if (m_quitAsked && m_quietTicks < ticksBetweenAttempts)
        return;
    // Whatever has happened, what there is so far is kept.
    if (!m_quitAsked && m_window.projectLoaded() && !m_window.allowQuietExit())
        m_window.saveProjectXmlFile(Zum::SaveProjectXMLonly);
    m_quitAsked = true;
    m_quietTicks = isLate ? mostTicksToRest - ticksBetweenAttempts : 0;
    m_window.quit(true);
}

bool DemoShoot::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Close || m_leaving)
        return QObject::eventFilter(watched, event);
    event->ignore();
    giveUp(QStringLiteral("the window was closed"));
    return true;
}

void DemoShoot::createProject()
{
    emit m_window.controllers().global.projectCreateNew();
    if (!m_window.projectLoaded())
        fail(QStringLiteral("the project could not be made"));
}

bool DemoShoot::projectIsThere()
{
    if (!m_window.projectLoaded())
        return false;
    m_outcome.projectPath = m_window.projPath();
    return true;
}

QString DemoShoot::projectPath() const
{
    return m_window.projectLoaded() ? m_window.projPath() : QString();
}

void DemoShoot::connectCamera()
{
    AppControllers &c = m_window.controllers();
    emit c.global.getCapturingDevicesList();
    c.cameras.choose(CaptureEnvironment::demoIndex);
    emit c.global.capturingDeviceConnect();
}

bool DemoShoot::cameraIsReady()
{
    AppControllers &c = m_window.controllers();
    const auto *device = m_window.capturingDeviceObject().value<QObject *>();
    if (!c.global.connected() && (!device || !device->property("threadIsRunning").toBool()))
        fail(m_lastWarning.isEmpty() ? QStringLiteral("the camera did not answer") : m_lastWarning);
    return c.global.connected() && c.shots.mayCapture();
}

QString DemoShoot::cameraName() const
{
    const WebcamGlobal &global = m_window.controllers().global;
    return global.connected() ? global.cameraName() : QString();
}

void DemoShoot::beginShooting()
{
    FramesModel &frames = m_window.controllers().frames;
    frames.setCaptureMode(Zum::CaptureModeAppend);
    frames.setShootMultipleFrames(framesPerPose - 1);
    m_framesToCome = frames.framesCount();
    wantShot();
}

void DemoShoot::wantShot()
{
    m_shotWanted = true;
}

bool DemoShoot::allIsShot()
{
    AppControllers &c = m_window.controllers();
    if (!c.global.connected()) {
        fail(QStringLiteral("the camera has gone"));
        return false;
    }
    if (m_shotWanted) {
        if (!c.shots.mayCapture())
            return false;
        m_shotWanted = false;
        m_framesToCome += framesPerPose;
        emit c.global.doCaptureFrame();
    }
    if (c.global.capturingInprogress() != -1)
        return false;
    m_outcome.frames = c.frames.framesCount();
    if (m_outcome.frames != m_framesToCome) {
        fail(QStringLiteral("a shot brought no frames"));
        return false;
    }
    // A moment after the last shot the timeline goes to its end by itself.
    if (m_outcome.frames >= filmFrames)
        return !c.global.jumpToLastFrame() || c.frames.currentIndex() == c.frames.last();
    rest(m_pace.betweenShots, &DemoShoot::wantShot);
    return false;
}

QString DemoShoot::shotFrames() const
{
    const int count = m_window.controllers().frames.framesCount();
    return count == 0 ? QString() : QString::number(count);
}

void DemoShoot::playRange()
{
    AppControllers &c = m_window.controllers();
    c.global.setMainTabsState(timingTab);
    c.frames.setTimelineFps(filmFps);
    c.frames.setTimelineRangeStart(0);
    c.frames.setTimelineRangeEnd(c.frames.last());
    c.frames.setLoop(false);
    c.frames.rewind();
    m_hasPlayed = false;
    m_playbacks = 0;
    m_playedRows.clear();
    rest(m_pace.betweenSteps, &DemoShoot::startPlaying);
}

void DemoShoot::startPlaying()
{
    m_window.controllers().frames.play();
}

bool DemoShoot::rangeWasPlayed()
{
    FramesModel &frames = m_window.controllers().frames;
    if (!m_hasPlayed) {
        // It is refused while the frames are being looked through.
        startPlaying();
        return false;
    }
    if (frames.playing())
        return false;
    // A busy machine skips frames: the next time it may have more to spare.
    if (m_playedRows.size() != filmFrames && ++m_playbacks < mostPlaybacks) {
        m_hasPlayed = false;
        m_playedRows.clear();
        m_window.controllers().frames.rewind();
        startPlaying();
        return false;
    }
    if (m_playedRows.size() != filmFrames) {
        fail(QStringLiteral("%1 of %2 frames were shown").arg(m_playedRows.size()).arg(filmFrames));
        return false;
    }
    return true;
}

QString DemoShoot::playedFrames() const
{
    constexpr int part = filmFrames / 4;
    const auto parts = m_playedRows.size() / part;
    return parts == 0 ? QString() : QString::number(parts * part);
}

void DemoShoot::renderWebm()
{
    render(QStringLiteral("webm"));
}

void DemoShoot::renderAvi()
{
    render(QStringLiteral("avi"));
}

void DemoShoot::render(const QString &format)
{
    WebcamGlobal &global = m_window.controllers().global;
    global.setRenderFileName(movieName);
    global.setRenderFormatNameStr(format);
    emit global.clearCache();
    if (!m_window.runMorvaRobot(Zum::RenderVideo))
        fail(QStringLiteral("the render could not be started"));
}

bool DemoShoot::movieIsThere()
{
    if (m_window.morvaRobotThreadStarted())
        return false;
    WebcamGlobal &global = m_window.controllers().global;
    const QString movie = global.lastRenderedPath();
    if (movie.isEmpty()) {
        fail(QStringLiteral("no movie was made"));
        return false;
    }
    m_outcome.movies.append(QFileInfo(movie).absoluteFilePath());
    emit global.dialogClosing();
    return true;
}

QString DemoShoot::renderedPart() const
{
    if (!m_window.morvaRobotThreadStarted())
        return m_window.controllers().global.lastRenderedPath().isEmpty() ? QString()
                                                                          : QStringLiteral("100%");
    if (m_window.currentRobotJob() == Zum::NoJob || m_window.progressTotal() == 0)
        return {};
    const int quarters = 4 * m_window.progressCurrent() / m_window.progressTotal();
    return quarters == 0 ? QString() : QStringLiteral("%1%").arg(quarters * 25);
}

void DemoShoot::saveProject()
{
    emit m_window.controllers().global.saveProject();
}

bool DemoShoot::projectIsSaved()
{
    AppControllers &c = m_window.controllers();
    if (c.global.projectChanged() || !m_window.allowQuietExit())
        return false;
    m_outcome.frames = c.frames.framesCount();
    m_outcome.frameSize = {c.global.cropAreaW(), c.global.cropAreaH()};
    m_outcome.thumbnailUrl = m_window.buildImagePath(Zum::CapTumb, c.frames.currentCapturedThumb());
    return true;
}

QString DemoShoot::savedFrames() const
{
    const bool isSaved = m_window.allowQuietExit();
    return isSaved ? QStringLiteral("%1 frames").arg(m_window.controllers().frames.framesCount()) : QString();
}
