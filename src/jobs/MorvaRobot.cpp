#include "jobs/MorvaRobot.h"

#include "shared/TimeText.h"

#include <QtDebug>

MorvaRobot::MorvaRobot(int job, int importTarget, const QString &projectDir, const QString &projectName,
                       RobotTools tools)
    : m_requestedJob(job), m_importTarget(importTarget), m_projectDir(projectDir), m_projectName(projectName),
      m_projectIsNameless(projectName.isEmpty()), m_tools(std::move(tools))
{
    if (m_projectIsNameless)
        m_projectName = QStringLiteral("movie_") + morvane::timeStamp();
}

MorvaRobot::~MorvaRobot() = default;

void MorvaRobot::setRenderInput(const RenderInput &input)
{
    m_renderInput = input;
}

void MorvaRobot::sendBeginSignal()
{
    emit robotStarted(m_requestedJob, m_importTarget);
}

// The flag is set in any case: a robot has one job only, and a stop that comes before the job does counts.
void MorvaRobot::stop()
{
    m_stop = true;
    if (m_jobKind != Zum::NoJob) {
        qDebug("Stopping MorvaRobot: Job is on the go, let's set Stop=true");
        return;
    }
    qDebug("Stopping MorvaRobot: No job. Goto finalState");
}

void MorvaRobot::openJob(int kind, int total, const QString &name)
{
    m_index = 0;
    m_handledCount = 0;
    m_writtenCount = 0;
    m_finished = false;
    m_advice.clear();
    m_jobKind = kind;
    emit progressTotalChanged(total);
    const QString wrapped = name.isEmpty() ? QString() : QStringLiteral(" [ %1 ]").arg(name);
    QString action;
    switch (kind) {
        case Zum::RenderVideo:
            action = tr("Encoding") + wrapped;
            break;
        case Zum::GenThumbnails:
            action = tr("Import images");
            break;
        case Zum::ExportFrames:
            action = tr("Export images");
            break;
        case Zum::UpdateFromRAWs:
            action = tr("Update images");
            break;
        default:
            break;
    }
    emit progressActionChanged(action);
}

void MorvaRobot::closeJob()
{
    if (m_jobKind == Zum::NoJob)
        return;
    QString result;
    if (m_encoder) {
        // What is not a whole movie stays on the disk, but not in the place of one.
        if (!m_finished || m_writtenCount == 0)
            m_encoder->markInterrupted();
        result = m_encoder->closeFile();
        if (const QString error = m_encoder->writeError(); !error.isEmpty()) {
            m_finished = false;
            report(tr("Error creating video") + QStringLiteral(": ") + error, adviceForDisk());
        }
        m_encoder.reset();
    }
    m_jobKind = Zum::NoJob;
    emit progressTotalChanged(0);
    emit progressActionChanged(QString());
    emit complete(result, {});
    emit done();
}

void MorvaRobot::report(const QString &text)
{
    emit errorStringChanged(text, Zum::Error);
}

void MorvaRobot::report(const QString &text, const QString &advice)
{
    if (!m_advice.contains(advice)) {
        m_advice.append(advice);
        emit advised(advice);
    }
    report(text);
}

QString MorvaRobot::adviceForDisk()
{
    return tr(
        "Check that the disk is not full and that the project's folder can be written, and render again");
}

void MorvaRobot::reportFromEncoder(const QString &text, int level)
{
    if (level == Zum::FatalError || level == Zum::Error || level == Zum::Info)
        emit errorStringChanged(text, level);
}

void MorvaRobot::refuse(int kind)
{
    openJob(kind, 0, {});
    report(tr("This job is not available"));
    closeJob();
}

void MorvaRobot::renderThumbs(const QStringList &, WebcamGlobal *, FramesModel *, int, int actionType)
{
    refuse(actionType);
}

void MorvaRobot::exportFrames(WebcamGlobal *, FramesModel *)
{
    refuse(Zum::ExportFrames);
}

void MorvaRobot::importVideo(WebcamGlobal *, FramesModel *)
{
    refuse(Zum::SplitVideo);
}
