#include "jobs/QVideoEncoder.h"

#include "jobs/encoder/AudioTrack.h"
#include "jobs/encoder/MovieFile.h"
#include "jobs/encoder/MovieTables.h"
#include "jobs/encoder/VideoTrack.h"

#include <QFileInfo>
#include <QtDebug>

struct QVideoEncoder::Movie
{
    movie::Format format;
    movie::Quality quality;
    movie::Rate rate;
    QSize size;
    QString basePath;
    MovieFile file;
    VideoTrack video;
    AudioTrack audio;
    bool isOpen = false;
    int error = 0;

    QString path(const QString &extra) const
    {
        return basePath + extra + format.nameSuffix + QLatin1Char('.') + format.extension;
    }
    QString otherPath() const
    {
        return path(QTime::currentTime().toString(QStringLiteral("ddhhmmss")));
    }
    QString outputPath() const
    {
        const QString wanted = path({});
        const QFileInfo there(wanted);
        return there.exists() && !there.isWritable() ? otherPath() : wanted;
    }
};

namespace {

const AVCodec *encoderOf(AVCodecID codec)
{
    return avcodec_find_encoder(codec);
}

QString noEncoder(AVCodecID codec)
{
    return QVideoEncoder::tr("Could not find encoder for %1").arg(QString::fromUtf8(avcodec_get_name(codec)));
}

} // namespace

QVideoEncoder::QVideoEncoder(QObject *parent) : EncoderBase(parent)
{
    ffmpeg::installLog();
}

QVideoEncoder::~QVideoEncoder() = default;

QVariantMap QVideoEncoder::createFile(const QString &basePath, int width, int height, int qualityIndex,
                                      double fps, const QString &formatName, bool applyEffects,
                                      const QString &filter, int frameCount, bool)
{
    m_writeError.clear();
    m_movie = std::make_unique<Movie>();
    m_movie->format = movie::formatOf(formatName);
    m_movie->quality = movie::qualityOf(qualityIndex);
    m_movie->rate = movie::rateOf(fps);
    m_movie->size = QSize(width, height);
    m_movie->basePath = basePath;
    const QString reason = begin(*m_movie, applyEffects, filter, frameCount);
    m_movie->isOpen = reason.isEmpty();
    QVariantMap result{{QStringLiteral("ok"), m_movie->isOpen}};
    if (!m_movie->isOpen)
        result.insert(QStringLiteral("reason"), reason);
    return result;
}

// The steps in the order in which they may fail; the reason of the first that does.
QString QVideoEncoder::begin(Movie &movie, bool applyEffects, const QString &filter, int frameCount)
{
    const QString path = movie.outputPath();
    if (!MovieFile::knows(path))
        return tr("Unknown output format. Try to restart encoding");
    if (movie.file.prepare(path, movie.format.extension) < 0)
        return tr("Error allocating format context");
    const QString duration = QString::number(frameCount / movie.rate.fps, 'g');
    const QDate today = QDate::currentDate();
    movie.file.setMetadata("year",
                           QStringLiteral("%1-%2-%3").arg(today.day()).arg(today.month()).arg(today.year()));
    movie.file.setMetadata("comment", QStringLiteral("Created with Morvane"));
    movie.file.setMetadata("genre", QStringLiteral("Action"));
    movie.file.setMetadata("DURATION", duration);

    if (const QString reason = addVideo(movie, applyEffects, filter, duration); !reason.isEmpty())
        return reason;
    if (movie.format.hasAudio()) {
        if (const QString reason = addAudio(movie, frameCount, duration); !reason.isEmpty())
            return reason;
    }
    constexpr int step = 8;
    if (movie.size.width() % step != 0 || movie.size.height() % step != 0)
        return tr("Invalid size. Size must be a multiple of 8");
    return startWriting(movie);
}

QString QVideoEncoder::addVideo(Movie &movie, bool applyEffects, const QString &filter,
                                const QString &duration)
{
    const AVCodecID id = movie.format.videoCodec;
    const AVCodec *codec = encoderOf(id);
    if (codec == nullptr
        || !movie.video.addTo(movie.file, *codec,
                              {id, movie.size, movie.rate, movie.quality, m_webpSettings, duration}))
        return noEncoder(id);
    if (!movie.video.open(applyEffects ? filter : QString()))
        return tr("Could not open video codec");
    if (applyEffects && !movie.video.effectIsReady())
        return tr("Cannot apply post-process effects");
    return {};
}

QString QVideoEncoder::addAudio(Movie &movie, int frameCount, const QString &duration)
{
    const AVCodecID id = movie.format.audioCodec;
    const AVCodec *codec = encoderOf(id);
    if (codec == nullptr)
        return tr("Audio codec not found");
    if (!movie.audio.addTo(movie.file, *codec, movie.quality.compressionLevel(), duration))
        return noEncoder(id);
    if (!movie.audio.open())
        return tr("Could not open audio codec");
    movie.audio.setLength(frameCount, movie.rate.fps);
    return {};
}

QString QVideoEncoder::startWriting(Movie &movie)
{
    if (const int opened = movie.file.open(); opened < 0) {
        const QString reason = ffmpeg::errorText(opened);
        qWarning().noquote() << "try to avio_open2" << reason;
        return reason;
    }
    if (const int written = movie.file.writeHeader(); written < 0) {
        qWarning().noquote() << "avformat_write_header" << ffmpeg::errorText(written);
        return tr("Error occurred when opening output file");
    }
    return {};
}

bool QVideoEncoder::isOk() const
{
    return m_movie && m_movie->isOpen;
}

int QVideoEncoder::encodeImage(const QImage &image)
{
    if (!isOk())
        return -1;
    int result = m_movie->video.write(image);
    if (result >= 0 && m_movie->format.hasAudio())
        result = m_movie->audio.writeUpTo(m_movie->video.frameCount());
    if (result < 0 && m_movie->error == 0)
        m_movie->error = result;
    return result;
}

QString QVideoEncoder::closeFile()
{
    if (!m_movie)
        return {};
    int error = m_movie->error;
    if (m_movie->isOpen && error == 0) {
        error = m_movie->video.flush();
        if (error == 0 && m_movie->format.hasAudio())
            error = m_movie->audio.flush();
    }
    const bool whole = error == 0 && !isInterrupted();
    const bool wasOpen = m_movie->isOpen;
    const QString path = m_movie->file.close(whole, m_movie->otherPath());
    if (error == 0)
        error = m_movie->file.error();
    if (wasOpen && error != 0)
        m_writeError = ffmpeg::errorText(error);
    m_movie.reset();
    return path;
}

void QVideoEncoder::setWebpSettings(const QVariantMap &settings)
{
    m_webpSettings = settings;
}

QString QVideoEncoder::writeError() const
{
    return m_writeError;
}
