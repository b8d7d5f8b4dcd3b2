#include "timeline/model/CurrentFrame.h"

#include "timeline/CurrentImageNames.h"

#include <QDebug>

CurrentFrame::CurrentFrame(QObject *parent) : ActionState(parent)
{
    connect(this, &CurrentFrame::countChanged, this, &CurrentFrame::calculateRange, Qt::UniqueConnection);
    connect(this, &CurrentFrame::currentIndexChanged, this, &CurrentFrame::setCurrentImages,
            Qt::DirectConnection);
    connect(this, &QAbstractItemModel::rowsRemoved, this, &CurrentFrame::forgetImagesOfNoFrame);
}

void CurrentFrame::setCurrentIndex(int row)
{
    if (!loaded() || !isRow(row))
        return;
    m_currentIndex = row;
    emit currentIndexChanged();
    if (isBusy() || playing()) {
        qDebug().noquote() << QStringLiteral(
                                  "Cannot setPointedGuid, m_currentAction=%1, m_playing=%2, "
                                  "m_currentIndex=%3")
                                  .arg(currentAction())
                                  .arg(int(playing()))
                                  .arg(m_currentIndex);
        return;
    }
    // A listener may have changed the rows.
    if (isRow(m_currentIndex))
        setPointedGuid(frameAt(m_currentIndex).guid());
}

void CurrentFrame::setPointedGuid(int guid)
{
    if (guid == m_pointedGuid)
        return;
    if (!Frame::isGuid(guid)) {
        qDebug().noquote() << QStringLiteral("setPointedGuid: bad guid %1").arg(guid);
        return;
    }
    m_pointedGuid = guid;
    emit currentGuidChanged();
}

void CurrentFrame::setLoaded(bool loaded)
{
    storeLoaded(loaded);
    if (loaded) {
        m_currentIndex = last();
        emit currentIndexChanged();
    }
    emit loadedChanged(QModelIndex(), 0, 0);
}

void CurrentFrame::setCurrentImages()
{
    if (loaded() && isRow(m_currentIndex))
        refreshCurrent(frameAt(m_currentIndex));
}

void CurrentFrame::forgetImagesOfNoFrame()
{
    if (frames().isEmpty())
        refreshCurrent(Frame());
}

void CurrentFrame::calculateRange(const QModelIndex &, int, int)
{
    if (!loaded() || frames().isEmpty())
        return;
    if (!isRow(m_currentIndex))
        m_currentIndex = last();
    repairRange();
    emit currentIndexChanged();
    emit timelineRangeStartChanged();
    emit timelineRangeEndChanged();
}

void CurrentFrame::selectLastFrame(const QModelIndex &, int, int)
{
    if (isBusy())
        qDebug("cannot selectLastFrame()");
    else
        setCurrentIndex(last());
}

void CurrentFrame::refreshCurrentMirrored()
{
    m_currentMirrored = frameAt(m_currentIndex).mirrored;
    emit currentMirroredChanged();
}

void CurrentFrame::refreshCurrentWithin(int a, int b)
{
    if (m_currentIndex >= qMin(a, b) && m_currentIndex <= qMax(a, b))
        setCurrentImages();
}

/// Takes a copy: listeners may change the rows between two signals.
void CurrentFrame::refreshCurrent(Frame frame)
{
    emit aboutToGoToNetFrame();
    m_currentCapturedThumb = frame.capTumb;
    emit currentCapturedThumbChanged();
    m_currentReferenceThumb = frame.refTumb;
    emit currentReferenceThumbChanged();
    m_hasCaptured = !frame.capFull.isEmpty();
    emit hasCapturedChanged();
    m_currentCaptured = frame.capFull;
    CurrentImageNames::setCaptured(m_currentCaptured);
    emit currentCapturedChanged();
    m_hasReference = !frame.refFull.isEmpty();
    emit hasReferenceChanged();
    m_currentReference = frame.refFull;
    CurrentImageNames::setReference(m_currentReference);
    emit currentReferenceChanged();
    m_currentMirrored = frame.mirrored;
    emit currentMirroredChanged();
}
