#include "jobs/MorvaRobot.h"

#include "jobs/render/AheadQueue.h"
#include "jobs/render/EffectValues.h"
#include "project/SafeName.h"
#include "shared/Names.h"
#include "shared/PathText.h"

#include <QCoreApplication>
#include <QtDebug>

namespace {

constexpr int minimumBitrate = 1000;

struct Candidate
{
    int index = 0;
    int handled = 0;
};

// The rows that become frames of the movie, each with the number of those before it.
QList<Candidate> candidatesOf(const RenderInput &input)
{
    QList<Candidate> candidates;
    for (int i = 0; i < input.frames.size(); ++i) {
        if (!input.frames.at(i).isLeftOut())
            candidates.append({input.rangeStart + i, static_cast<int>(candidates.size())});
    }
    return candidates;
}

} // namespace

void MorvaRobot::renderVideo(WebcamGlobal *global, FramesModel *kadry)
{
    const RenderInput input =
        m_renderInput ? *m_renderInput : RenderInput::take(*global, *kadry, m_projectDir);
    m_encoder = m_tools.makeEncoder(input.formatName);
    openJob(Zum::RenderVideo, input.rangeSize(), input.fileName);
    if (!morvane::ensureFolder(input.videoFolder)) {
        report(tr("Cannot cteate dir %1").arg(input.videoFolder), adviceForDisk());
        closeJob();
        return;
    }
    if (!validate(input) || !createMovie(input)) {
        closeJob();
        return;
    }
    if (input.rangeIsGood()) {
        m_index = input.rangeStart;
        processFrames(input);
        if (m_index == input.rangeEnd)
            emit progressActionChanged(tr("Encode audio"));
    }
    closeJob();
}

bool MorvaRobot::validate(const RenderInput &input)
{
    bool good = true;
    if (input.cropSize.width() < morvane::exportVideoMinFrameWidth
        || input.cropSize.height() < morvane::exportVideoMinFrameHeight) {
        report(tr("Frame size: %1x%2").arg(input.cropSize.width()).arg(input.cropSize.height()),
               tr("Set a larger frame width and height in the Project panel"));
        report(tr("Minimum frame size is %1x%2")
                   .arg(morvane::exportVideoMinFrameWidth)
                   .arg(morvane::exportVideoMinFrameHeight));
        good = false;
    }
    if (!(input.fps > 0)) {
        report(tr("FPS is too low"), tr("Set the frames per second in the Project panel"));
        good = false;
    }
    if (input.bitrate < minimumBitrate) {
        report(tr("Bitrate is too low"), tr("The bit rate comes with the project's file: change it there, or "
                                            "import the frames into a new project"));
        good = false;
    }
    if (good && !m_encoder) {
        report(tr("No Encoder"), tr("Choose another format"));
        good = false;
    }
    return good;
}

// The name comes with a project and must not lead out of the folder.
QString MorvaRobot::outputBase(const RenderInput &input) const
{
    const bool usable = !m_projectIsNameless && morvane::isBareFileName(input.fileName);
    return input.videoFolder + (usable ? input.fileName : m_projectName);
}

bool MorvaRobot::createMovie(const RenderInput &input)
{
    m_encoder->setFeedback([this](const QString &text, int level) { reportFromEncoder(text, level); });
    if (input.formatName == morvane::formatWebp)
        m_encoder->setWebpSettings(input.webpSettings);
    const QSize size = input.encodingSize();
    const QVariantMap result = m_encoder->createFile(
        outputBase(input), size.width(), size.height(), input.quality, input.fps, input.formatName,
        input.applyEffects, effectvalues::adapted(input.effect), input.rangeEnd - input.rangeStart, false);
    const QVariant ok = result.value(QStringLiteral("ok"));
    if (m_encoder->isOk() && ok.typeId() == QMetaType::Bool && ok.toBool())
        return true;
    const QString advice =
        tr("Choose another format or quality, or switch the video effects off, and render again");
    if (!m_encoder->isOk())
        report(tr("Error initializing"), advice);
    const QVariant reason = result.value(QStringLiteral("reason"));
    if (reason.typeId() == QMetaType::QString)
        report(tr("Encoder error: %1").arg(reason.toString()), advice);
    else
        report(tr("Got an error from encoder, but with no reason"), advice);
    return false;
}

void MorvaRobot::processFrames(const RenderInput &input)
{
    const QList<Candidate> candidates = candidatesOf(input);
    AheadQueue<FramePicture> pictures(
        static_cast<int>(candidates.size()), m_tools.lookAhead, [this, &input, &candidates] {
            const FrameFilter filter =
                m_tools.makeFilter ? m_tools.makeFilter(input.backgroundFolder) : FrameFilter();
            return [maker = FramePictureMaker(input, filter), &candidates](int position) {
                const Candidate &candidate = candidates.at(position);
                return maker.make(candidate.index, candidate.handled);
            };
        });
    while (m_index <= input.rangeEnd) {
        QCoreApplication::processEvents();
        if (m_stop)
            break;
        if (input.frames.at(m_index - input.rangeStart).isLeftOut()) {
            ++m_index;
            continue;
        }
        const std::optional<FramePicture> picture = pictures.next();
        if (!picture || !takePicture(*picture))
            break;
        ++m_handledCount;
        ++m_index;
        emit progressCurrentChanged(m_writtenCount);
    }
    m_finished = m_index > input.rangeEnd;
    if (m_index < input.rangeEnd)
        report(tr("Processing image. Robot interrupted"));
}

bool MorvaRobot::takePicture(const FramePicture &picture)
{
    for (const QString &text : picture.reports)
        report(text,
               tr("Put the picture back into the project's folder, or capture the frame again in its place"));
    if (picture.outcome == FramePicture::Outcome::Skipped)
        return true;
    if (picture.outcome == FramePicture::Outcome::Lost)
        return false;
    if (m_encoder->encodeImage(picture.image) < 0) {
        report(tr("Error creating video"), adviceForDisk());
        return false;
    }
    ++m_writtenCount;
    return true;
}
