#pragma once

#include "jobs/encoder/Ffmpeg.h"

/// A movie's container on the disk. It grows under a temporary name beside its final one and takes that when
/// it is closed, so an earlier movie of the name stays whole until then.
///
/// Functions that give an int answer 0 or an FFmpeg error code; the first error of writing is kept.
class MovieFile
{
public:
    MovieFile() = default;
    ~MovieFile();
    MovieFile(const MovieFile &) = delete;
    MovieFile &operator=(const MovieFile &) = delete;

    /// Whether some container answers to the extension of this path.
    static bool knows(const QString &path);

    int prepare(const QString &path, const QString &extension);
    void setMetadata(const char *key, const QString &value);
    /// Null on failure. Owned by the file.
    AVStream *addStream();
    /// The container wants codec headers in one place.
    bool wantsGlobalHeader() const;

    /// The container can take an empty packet, which brings what a codec knows only at its end.
    bool takesLateHeaders() const;

    /// Makes the temporary file.
    int open();
    int writeHeader();
    /// Takes the packet's contents; its times count in `timeBase`.
    int write(AVPacket &packet, const AVStream &stream, AVRational timeBase);
    /// The first error of writing, 0 for none.
    int error() const
    {
        return m_error;
    }

    /// Ends the movie and gives it its final name, or `fallbackPath` when it is not whole and the name is
    /// taken. The path of the file, empty when none was begun.
    QString close(bool whole, const QString &fallbackPath);

private:
    void keepError(int code);
    void finish();
    QString takeName(const QString &path);

    ffmpeg::FormatContext m_context;
    QString m_path;
    QString m_temporaryPath;
    int m_error = 0;
    bool m_headerWritten = false;
};
