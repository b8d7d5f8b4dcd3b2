#include "timeline/FramesModel.h"

#include <QDebug>
#include <utility>

namespace {
constexpr int rateSampleMs = 1000;

FramesModel::Tickers steadyTickers()
{
    return {std::make_unique<SteadyTicker>(), std::make_unique<SteadyTicker>()};
}
} // namespace

FramesModel::FramesModel(QObject *parent) : FramesModel(steadyTickers(), parent)
{
}

FramesModel::FramesModel(Tickers tickers, QObject *parent)
    : FrameBatches(parent), m_tickers(std::move(tickers))
{
    connect(m_tickers.play.get(), &Ticker::ticked, this, &FramesModel::moveIndex);
    connect(m_tickers.rate.get(), &Ticker::ticked, this, &FramesModel::setActualFps);
    // In this order: what is selected or can be undone belongs to the frames that have gone.
    connect(this, &FramesModel::loadedChanged, this, &FramesModel::calculateRange, Qt::UniqueConnection);
    connect(this, &FramesModel::loadedChanged, this, &FramesModel::cleanSelectedList, Qt::UniqueConnection);
    connect(this, &FramesModel::loadedChanged, this, &FramesModel::dismissUndos, Qt::UniqueConnection);
    connect(this, &FramesModel::loadedChanged, this, &FramesModel::selectLastFrame, Qt::DirectConnection);
}

FramesModel::~FramesModel() = default;

void FramesModel::play()
{
    if (interval() <= 0) {
        stop();
        return;
    }
    if (timelineRangeSize() > 0)
        updateInterval();
    if (isBusy() || batch().isPoolBusy() || !loaded() || frames().isEmpty()) {
        qDebug("FramesModel::begin - Not ready to start Timer");
        return;
    }
    if (currentIndex() >= timelineRangeEnd() || currentIndex() <= timelineRangeStart()) {
        m_run.rewind();
        storeCurrentIndex(startRow());
        emit currentIndexChanged();
    }
    storePaused(false);
    emit pausedChanged();
    m_tickers.rate->start(rateSampleMs);
    if (!acceptsActions()) {
        qDebug().noquote() << QStringLiteral(
                                  "Cannot start ram play: m_currentAction=%1, m_playing=%2, "
                                  "m_loaded=%3, m_frames.isEmpty()=%4")
                                  .arg(currentAction())
                                  .arg(int(playing()))
                                  .arg(int(loaded()))
                                  .arg(int(frames().isEmpty()));
        return;
    }
    m_run.setRows({});
    m_runWanted = true;
    startAction(Zum::ActSearchHiddenFrames, RangeOfFrames, timelineRangeStart(), timelineRangeEnd());
}

void FramesModel::playbackPrepared(const QList<int> &rows)
{
    m_run.setRows(rows);
    if (!m_runWanted)
        return;
    m_run.start(currentIndex(), playDirection());
    storePlaying(true);
    emit playingChanged();
    // A listener may have stopped the run.
    if (playing())
        m_tickers.play->start(int(interval()));
}

void FramesModel::stop()
{
    m_runWanted = false;
    m_tickers.rate->stop();
    m_tickers.play->stop();
    storePaused(true);
    storePlaying(false);
    m_run.rewind();
    if (isRow(currentIndex()))
        setPointedGuid(frameAt(currentIndex()).guid());
    emit pausedChanged();
    emit playingChanged();
}

void FramesModel::rewind()
{
    m_run.rewind();
    storeCurrentIndex(startRow());
    emit currentIndexChanged();
}

int FramesModel::startRow() const
{
    return playDirection() == Zum::Backward ? timelineRangeEnd() : timelineRangeStart();
}

void FramesModel::moveIndex()
{
    if (m_run.isEmpty()) {
        qDebug("jump indexes list is empty");
        return;
    }
    if (isBusy() || !loaded() || frames().isEmpty())
        return;
    if (flipFlopRunning()) {
        stop();
        return;
    }
    if (m_run.firstRow() < timelineRangeStart() || m_run.lastRow() > timelineRangeEnd()) {
        if (playing())
            stop();
        return;
    }
    const int row = m_run.row();
    if (!isRow(row)) {
        stop();
        return;
    }
    showRow(row);
    const PlaybackRun::Advance advance = m_run.advance(playDirection(), loop(), pendulum());
    turnTo(advance.direction);
    if (advance.stops)
        stop();
}

void FramesModel::showRow(int row)
{
    storeCurrentIndex(row);
    if (playDirection() >= Zum::NoDirection)
        return;
    emit currentIndexChanged();
    ++m_framesShown;
}

void FramesModel::setActualFps()
{
    if (m_framesShown == 0) {
        m_tickers.rate->stop();
        return;
    }
    RangeState::setActualFps(std::exchange(m_framesShown, 0));
}
