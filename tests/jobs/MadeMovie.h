#pragma once

#include "MovieProbe.h"

#include "jobs/QVideoEncoder.h"

#include <QTest>

inline constexpr QSize smallSize(64, 48);

inline constexpr const char *everyFormat[] = {"avi", "mjpg", "webm", "ogv", "mkv", "apng", "raw"};

inline void addFormats(std::initializer_list<const char *> formats)
{
    QTest::addColumn<QString>("format");
    for (const char *format : formats)
        QTest::newRow(format) << QString(format);
}

inline void addEveryFormat()
{
    addFormats({"avi", "mjpg", "webm", "ogv", "mkv", "apng", "raw"});
}

/// What became of a movie.
struct Made
{
    QVariantMap result;
    QString path;
    QString error;
    int refused = 0;

    bool ok() const
    {
        return result.value("ok").toBool();
    }
    QString reason() const
    {
        return result.value("reason").toString();
    }
};

/// Writes a movie of marked pictures.
inline Made makeMovie(const QString &base, const QString &format, const QList<int> &marks, double fps = 12.5,
                      const QString &effect = {})
{
    QVideoEncoder encoder;
    Made made;
    made.result = encoder.createFile(base, smallSize.width(), smallSize.height(), 2, fps, format,
                                     !effect.isEmpty(), effect, static_cast<int>(marks.size()) - 1, false);
    for (const int mark : marks) {
        if (encoder.encodeImage(markedPicture(smallSize, mark)) < 0)
            ++made.refused;
    }
    made.path = encoder.closeFile();
    made.error = encoder.writeError();
    return made;
}
