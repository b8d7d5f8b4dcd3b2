#pragma once

#include "jobs/EncoderBase.h"

#include <memory>
#include <QDate>
#include <QTime>

/// Writes movies through FFmpeg: every render format but animated WebP, with the effect of the project and a
/// silent sound track where the format carries one.
///
/// The file grows under its name with ".part" behind it. A movie that could not be written to its end, or
/// was marked as interrupted, is kept and can be played, but never takes the place of an earlier movie.
class QVideoEncoder : public EncoderBase
{
    Q_OBJECT

public:
    explicit QVideoEncoder(QObject *parent = nullptr);
    ~QVideoEncoder() override;

    QVariantMap createFile(const QString &basePath, int width, int height, int qualityIndex, double fps,
                           const QString &formatName, bool applyEffects, const QString &filter,
                           int frameCount, bool reserved) override;
    QString closeFile() override;
    int encodeImage(const QImage &image) override;
    bool isOk() const override;
    void setWebpSettings(const QVariantMap &settings) override;
    QString writeError() const override;

private:
    struct Movie;

    QString begin(Movie &movie, bool applyEffects, const QString &filter, int frameCount);
    QString addVideo(Movie &movie, bool applyEffects, const QString &filter, const QString &duration);
    QString addAudio(Movie &movie, int frameCount, const QString &duration);
    QString startWriting(Movie &movie);

    std::unique_ptr<Movie> m_movie;
    QVariantMap m_webpSettings;
    QString m_writeError;
};
