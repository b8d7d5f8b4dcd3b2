#include "jobs/encoder/MovieFile.h"

#include <QFile>
#include <QtDebug>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#include <cerrno>
#endif

namespace {

QByteArray url(const QString &path)
{
    // The protocol in front keeps a path with a colon in it a path.
    return "file:" + path.toUtf8();
}

// The rename must not reach the disk before the data does.
int flushToDisk(const QString &path)
{
#ifdef Q_OS_UNIX
    const int file = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CLOEXEC);
    if (file < 0)
        return AVERROR(errno);
    int result = ::fsync(file) == 0 ? 0 : AVERROR(errno);
    ::close(file);
    // Some network and user-space file systems cannot flush; there the rename has to do.
    if (result == AVERROR(EINVAL) || result == AVERROR(ENOSYS) || result == AVERROR(ENOTSUP))
        result = 0;
    return result;
#else
    Q_UNUSED(path);
    return 0;
#endif
}

} // namespace

MovieFile::~MovieFile()
{
    if (m_context)
        close(false, m_path);
}

bool MovieFile::knows(const QString &path)
{
    return av_guess_format(nullptr, url(path).constData(), nullptr) != nullptr;
}

int MovieFile::prepare(const QString &path, const QString &extension)
{
    m_path = path;
    AVFormatContext *context = nullptr;
    const AVOutputFormat *format = av_guess_format(nullptr, url(path).constData(), nullptr);
    const int result = avformat_alloc_output_context2(&context, format, extension.toLatin1().constData(),
                                                      url(path).constData());
    m_context.reset(context);
    if (result < 0)
        return result;
    // A stream that ended, or has nothing to say at all, would keep the packets of the other in memory.
    m_context->max_interleave_delta = AV_TIME_BASE / 10;
    return 0;
}

void MovieFile::setMetadata(const char *key, const QString &value)
{
    av_dict_set(&m_context->metadata, key, value.toUtf8().constData(), 0);
}

AVStream *MovieFile::addStream()
{
    AVStream *stream = avformat_new_stream(m_context.get(), nullptr);
    if (stream == nullptr) {
        qWarning("Could not allocate stream");
        return nullptr;
    }
    stream->id = static_cast<int>(m_context->nb_streams) - 1;
    return stream;
}

bool MovieFile::wantsGlobalHeader() const
{
    return (m_context->oformat->flags & AVFMT_GLOBALHEADER) != 0;
}

bool MovieFile::takesLateHeaders() const
{
    return QByteArrayView(m_context->oformat->name) != QByteArrayView("avi");
}

int MovieFile::open()
{
    m_temporaryPath = m_path + QStringLiteral(".part");
    const int result = avio_open(&m_context->pb, url(m_temporaryPath).constData(), AVIO_FLAG_WRITE);
    if (result < 0)
        m_temporaryPath.clear();
    return result;
}

int MovieFile::writeHeader()
{
    const int result = avformat_write_header(m_context.get(), nullptr);
    if (result < 0) {
        keepError(result);
        return result;
    }
    m_headerWritten = true;
    return 0;
}

int MovieFile::write(AVPacket &packet, const AVStream &stream, AVRational timeBase)
{
    packet.stream_index = stream.index;
    av_packet_rescale_ts(&packet, timeBase, stream.time_base);
    const int result = av_interleaved_write_frame(m_context.get(), &packet);
    if (result < 0)
        keepError(result);
    return result < 0 ? result : 0;
}

void MovieFile::keepError(int code)
{
    if (m_error == 0)
        m_error = code;
}

void MovieFile::finish()
{
    if (m_headerWritten) {
        const int result = av_write_trailer(m_context.get());
        if (result < 0) {
            qWarning().noquote() << "av_write_trailer" << ffmpeg::errorText(result);
            keepError(result);
        }
    }
    m_headerWritten = false;
    // What the buffer still held may be what the disk had no room for.
    if (m_context->pb != nullptr) {
        avio_flush(m_context->pb);
        if (m_context->pb->error < 0)
            keepError(m_context->pb->error);
    }
    const int closed = avio_closep(&m_context->pb);
    if (closed < 0)
        keepError(closed);
}

QString MovieFile::takeName(const QString &path)
{
#ifdef Q_OS_UNIX
    // Unlike Qt's, the system's rename puts one file in place of another in a single step.
    if (::rename(QFile::encodeName(m_temporaryPath).constData(), QFile::encodeName(path).constData()) == 0)
        return path;
    keepError(AVERROR(errno));
#else
    if ((!QFile::exists(path) || QFile::remove(path)) && QFile::rename(m_temporaryPath, path))
        return path;
    keepError(AVERROR(EIO));
#endif
    return m_temporaryPath;
}

QString MovieFile::close(bool whole, const QString &fallbackPath)
{
    if (!m_context)
        return {};
    const bool begun = m_headerWritten;
    finish();
    m_context.reset();
    if (m_temporaryPath.isEmpty())
        return {};
    if (!begun) {
        QFile::remove(m_temporaryPath);
        m_temporaryPath.clear();
        return {};
    }
    if (m_error == 0)
        keepError(flushToDisk(m_temporaryPath));
    const bool replaces = whole && m_error == 0;
    const QString kept = takeName(replaces || !QFile::exists(m_path) ? m_path : fallbackPath);
    m_temporaryPath.clear();
    return kept;
}
