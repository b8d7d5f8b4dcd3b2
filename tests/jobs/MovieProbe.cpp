#include "MovieProbe.h"

#include <algorithm>
#include <cmath>
#include <QColor>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>

MovieProbe::MovieProbe(const QString &path, const QString &decoder) : m_path(path), m_decoder(decoder)
{
    const QByteArray facts =
        run(QStringLiteral("ffprobe"),
            QStringList{"-v", "error", "-print_format", "json", "-show_streams", "-show_format"}
                + input(Tool::Prober));
    m_facts = QJsonDocument::fromJson(facts).object();
}

QStringList MovieProbe::input(Tool tool) const
{
    QStringList arguments;
    if (!m_decoder.isEmpty() && tool == Tool::Decoder)
        arguments << "-c:v" << m_decoder;
    return arguments << "-i" << m_path;
}

QByteArray MovieProbe::run(const QString &program, const QStringList &arguments, QString *errors) const
{
    QProcess process;
    process.start(program, arguments, QIODevice::ReadOnly);
    if (!process.waitForFinished(60000))
        return {};
    if (errors != nullptr)
        *errors = QString::fromUtf8(process.readAllStandardError());
    return process.readAllStandardOutput();
}

namespace {

QJsonObject streamOf(const QJsonObject &facts, const QString &kind)
{
    for (const QJsonValue &stream : facts.value("streams").toArray()) {
        if (stream["codec_type"].toString() == kind)
            return stream.toObject();
    }
    return {};
}

double fraction(const QString &text)
{
    const QStringList parts = text.split('/');
    return parts.size() == 2 ? parts.at(0).toDouble() / parts.at(1).toDouble() : text.toDouble();
}

} // namespace

QJsonObject MovieProbe::video() const
{
    return streamOf(m_facts, "video");
}

QJsonObject MovieProbe::audio() const
{
    return streamOf(m_facts, "audio");
}

QString MovieProbe::tag(const QString &key) const
{
    for (const QJsonObject &holder : {m_facts.value("format").toObject(), video()}) {
        const QJsonObject tags = holder.value("tags").toObject();
        for (auto it = tags.begin(); it != tags.end(); ++it) {
            if (it.key().toLower() == key)
                return it.value().toString();
        }
    }
    return {};
}

double MovieProbe::duration() const
{
    bool ok = false;
    const double seconds = m_facts.value("format").toObject().value("duration").toString().toDouble(&ok);
    if (ok)
        return seconds;
    const QByteArray text = run("ffprobe", QStringList{"-v", "error", "-select_streams", "v", "-show_entries",
                                                       "packet=pts_time,duration_time", "-of", "csv=p=0"}
                                               + input(Tool::Prober));
    const QList<QByteArray> last = text.trimmed().split('\n').last().split(',');
    return last.size() < 2 ? 0 : last.at(0).toDouble() + last.at(1).toDouble();
}

double MovieProbe::rate() const
{
    return fraction(video().value("r_frame_rate").toString());
}

qint64 MovieProbe::audioSamples() const
{
    const QByteArray samples =
        run("ffmpeg", QStringList{"-v", "error"} + input(Tool::Decoder)
                          + QStringList{"-map", "0:a", "-ac", "1", "-f", "s16le", "-"});
    return samples.size() / 2;
}

QList<double> MovieProbe::frameTimes() const
{
    const QByteArray text = run("ffprobe", QStringList{"-v", "error", "-select_streams", "v", "-show_entries",
                                                       "frame=pts_time", "-of", "csv=p=0"}
                                               + input(Tool::Prober));
    QList<double> times;
    for (const QByteArray &line : text.split('\n')) {
        if (!line.trimmed().isEmpty())
            times.append(line.split(',').first().toDouble());
    }
    return times;
}

QList<QImage> MovieProbe::frames() const
{
    const QJsonObject stream = video();
    const QSize size(stream.value("width").toInt(), stream.value("height").toInt());
    const QByteArray bytes = run("ffmpeg", QStringList{"-v", "error"} + input(Tool::Decoder)
                                               + QStringList{"-map", "0:v", "-fps_mode", "passthrough", "-f",
                                                             "rawvideo", "-pix_fmt", "bgra", "-"});
    const qsizetype frameBytes = qsizetype(4) * size.width() * size.height();
    QList<QImage> pictures;
    for (qsizetype at = 0; frameBytes > 0 && at + frameBytes <= bytes.size(); at += frameBytes) {
        const auto *data = reinterpret_cast<const uchar *>(bytes.constData() + at);
        pictures.append(
            QImage(data, size.width(), size.height(), size.width() * 4, QImage::Format_ARGB32).copy());
    }
    return pictures;
}

QString MovieProbe::complaints() const
{
    QString errors;
    run("ffmpeg", QStringList{"-v", "warning"} + input(Tool::Decoder) + QStringList{"-f", "null", "-"},
        &errors);
    return errors;
}

QColor markColour(int number)
{
    static const QList<QColor> colours{QColor(220, 30, 30),  QColor(30, 200, 30), QColor(40, 40, 220),
                                       QColor(230, 230, 40), QColor(30, 30, 30),  QColor(235, 235, 235),
                                       QColor(200, 40, 200)};
    return colours.at(number % colours.size());
}

QImage markedPicture(const QSize &size, int number)
{
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(markColour(number));
    return picture;
}

int markOf(const QImage &picture)
{
    int nearest = -1;
    int distance = 1000;
    for (int number = 0; number < 7; ++number) {
        if (const int found = colourDistance(picture, markColour(number)); found < distance) {
            distance = found;
            nearest = number;
        }
    }
    return nearest;
}

int colourDistance(const QImage &picture, const QColor &colour)
{
    const QColor found = picture.pixelColor(picture.width() / 2, picture.height() / 2);
    return std::max({std::abs(found.red() - colour.red()), std::abs(found.green() - colour.green()),
                     std::abs(found.blue() - colour.blue())});
}
