#pragma once

#include <QImage>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

/// What the public tools `ffprobe` and `ffmpeg` find in a movie: a reader that shares nothing with the
/// program that wrote it.
class MovieProbe
{
public:
    /// `decoder` names the decoder to use, empty for the tools' own choice.
    explicit MovieProbe(const QString &path, const QString &decoder = {});

    bool hasVideo() const
    {
        return !video().isEmpty();
    }
    QJsonObject video() const;
    QJsonObject audio() const;
    /// Tags of the container and of the video stream, keys in lower case.
    QString tag(const QString &key) const;
    /// Seconds, of the container; of the last frame's end where the container does not say.
    double duration() const;
    /// Frames per second as the stream says.
    double rate() const;
    /// Samples of the sound, at its own rate.
    qint64 audioSamples() const;

    /// The time of each frame in seconds.
    QList<double> frameTimes() const;
    /// Each frame decoded, with transparency.
    QList<QImage> frames() const;
    /// What the tools complained of while decoding everything.
    QString complaints() const;

private:
    QByteArray run(const QString &program, const QStringList &arguments, QString *errors = nullptr) const;
    enum class Tool { Prober, Decoder };
    QStringList input(Tool tool) const;

    QString m_path;
    QString m_decoder;
    QJsonObject m_facts;
};

/// Colours that stay apart in every codec, by number.
QColor markColour(int number);
/// An opaque picture of one colour.
QImage markedPicture(const QSize &size, int number);
/// The number whose colour is nearest to the picture's middle.
int markOf(const QImage &picture);
/// The largest difference of the middle pixel's channels from the colour.
int colourDistance(const QImage &picture, const QColor &colour);
