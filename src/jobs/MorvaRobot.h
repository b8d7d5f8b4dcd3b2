#pragma once

#include "jobs/render/RenderInput.h"
#include "jobs/RobotTools.h"

#include <atomic>
#include <optional>
#include <QObject>
#include <QStringList>

class FramesModel;
class WebcamGlobal;

/// The worker of one long job. It is made for the job, lives on the worker thread, tells how far it is by
/// signals, and goes with the thread. Only stop() may be called from another thread while a job runs.
class MorvaRobot : public QObject
{
    Q_OBJECT

public:
    /// `job` is one of Zum::RobotJobTypes, `importTarget` one of Zum::ImportTargets; both come back with
    /// robotStarted. A project without a name gets one of the current time.
    MorvaRobot(int job, int importTarget, const QString &projectDir, const QString &projectName,
               RobotTools tools);
    ~MorvaRobot() override;

    /// The snapshot for renderVideo, handed over before the job begins. Without one the job takes it itself,
    /// which only the main thread may do.
    void setRenderInput(const RenderInput &input);

    QString projectName() const
    {
        return m_projectName;
    }
    /// True when the last job came to its natural end.
    bool finished() const
    {
        return m_finished;
    }
    /// Frames that the last job's encoder took.
    int writtenCount() const
    {
        return m_writtenCount;
    }

public slots:
    /// Asks the job to end between two items. From any thread.
    void stop();
    void renderThumbs(const QStringList &list, WebcamGlobal *global, FramesModel *kadry, int importTarget,
                      int actionType);
    void renderVideo(WebcamGlobal *global, FramesModel *kadry);
    void exportFrames(WebcamGlobal *global, FramesModel *kadry);
    void importVideo(WebcamGlobal *global, FramesModel *kadry);
    /// The thread runs: asks for the job.
    void sendBeginSignal();

signals:
    void progressCurrentChanged(int current);
    void progressTotalChanged(int total);
    void progressActionChanged(const QString &action);
    /// `level` is one of Zum::MessageTypes.
    void errorStringChanged(const QString &text, int level);
    /// What to do about the error that is told next; once for each job.
    void advised(const QString &text);
    /// `result` is the path of the file that the job made, or empty.
    void complete(const QString &result, const QStringList &paths);
    void done();
    void robotStarted(int job, int importTarget);

private:
    void openJob(int kind, int total, const QString &name);
    void closeJob();
    void refuse(int kind);
    void report(const QString &text);
    void report(const QString &text, const QString &advice);
    static QString adviceForDisk();
    void reportFromEncoder(const QString &text, int level);

    bool validate(const RenderInput &input);
    QString outputBase(const RenderInput &input) const;
    bool createMovie(const RenderInput &input);
    /// Takes the frames of the range through the pipeline; true at the natural end.
    void processFrames(const RenderInput &input);
    bool takePicture(const FramePicture &picture);

    const int m_requestedJob;
    const int m_importTarget;
    const QString m_projectDir;
    QString m_projectName;
    bool m_projectIsNameless = false;
    RobotTools m_tools;

    std::atomic<int> m_jobKind{Zum::NoJob};
    std::atomic_bool m_stop = false;
    bool m_finished = false;
    int m_index = 0;
    int m_handledCount = 0;
    int m_writtenCount = 0;
    QStringList m_advice;
    std::optional<RenderInput> m_renderInput;
    std::shared_ptr<EncoderBase> m_encoder;
};
