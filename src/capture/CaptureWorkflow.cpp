#include "capture/CaptureWorkflow.h"

#include "capture/CaptureNaming.h"
#include "shared/NumberText.h"
#include "shared/TimeText.h"
#include "shared/WebcamGlobal.h"
#include "timeline/FramesModel.h"

CaptureWorkflow::CaptureWorkflow(WebcamGlobal &global, FramesModel &frames, TimeStamp timeStamp,
                                 QObject *parent)
    : QObject(parent), m_global(global), m_frames(frames), m_timeStamp(std::move(timeStamp))
{
    if (!m_timeStamp)
        m_timeStamp = [] {
            return morvane::timeStamp();
        };
}

bool CaptureWorkflow::mayCapture() const
{
    return m_global.ready() && !m_global.savingFrame() && m_global.capturingInprogress() == -1;
}

int CaptureWorkflow::nextNumber() const
{
    const bool replaces = m_frames.captureMode() == Zum::CaptureModeReplace;
    return replaces && m_frames.currentIndex() >= 0 ? m_frames.currentIndex() : m_frames.framesCount();
}

QVariantMap CaptureWorkflow::nextShot(const QString &capFullDirPath, const QString &capTumbDirPath) const
{
    const capturenaming::Rules rules{m_global.useFrameNameMask(), m_global.frameNameMask(),
                                     m_global.frameLabel(),       m_global.thumbLabel(),
                                     m_global.frameExt(),         m_global.thumbExt()};
    const capturenaming::Names names =
        capturenaming::namesOf(rules, morvane::formatNumber(nextNumber()), m_timeStamp());
    return {{QStringLiteral("fullName"), names.full},
            {QStringLiteral("tumbName"), names.thumb},
            {QStringLiteral("fullPath"), capFullDirPath + names.full},
            {QStringLiteral("tumbPath"), capTumbDirPath + names.thumb}};
}

int CaptureWorkflow::rowToFill() const
{
    switch (m_frames.captureMode()) {
        case Zum::CaptureModeReplace:
            return m_frames.currentIndex();
        case Zum::CaptureModeAppend:
            return m_frames.framesCount();
        default:
            return -1;
    }
}

bool CaptureWorkflow::beginShot()
{
    if (m_global.capturingInprogress() != -1) {
        emit m_global.appendMessage(Zum::CameraMessage, Zum::Warning, tr("Taking a picture. Please wait"));
        return false;
    }
    m_global.setCapturingInprogress(rowToFill());
    return true;
}

void CaptureWorkflow::finishShot()
{
    m_global.setCapturingInprogress(-1);
    const QVariantMap record{{QStringLiteral("capTumb"), m_global.unsavedCapturedTumb()},
                             {QStringLiteral("capFull"), m_global.unsavedCapturedFull()},
                             {QStringLiteral("static"), -1}};
    // A shot that is to replace a row of an empty timeline still gets its row.
    if (m_frames.captureMode() != Zum::CaptureModeReplace || m_frames.framesCount() == 0) {
        m_frames.appendFrame(record, true, -1, true, false);
        return;
    }
    makeRoomToReplace();
    m_frames.modifyFrame(record, m_frames.currentIndex(), false, true);
    emit m_frames.timelineChanged(Zum::ActInsert);
    emit shotReplaced(m_frames.currentIndex());
}

void CaptureWorkflow::dropShot()
{
    m_global.setCapturingInprogress(-1);
}

void CaptureWorkflow::makeRoomToReplace()
{
    if (m_frames.captureMode() != Zum::CaptureModeReplace)
        return;
    const int first = m_frames.last() - m_frames.shootMultipleFrames();
    if (m_frames.currentIndex() > first)
        m_frames.setCurrentIndex(qMax(0, first));
}
