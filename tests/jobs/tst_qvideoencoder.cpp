#include "MadeMovie.h"

#include "shared/Names.h"
#include "support/LogLines.h"

#include <QDate>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

class TestQVideoEncoder : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void everyFormatHoldsEveryPictureAtItsTime_data();
    void everyFormatHoldsEveryPictureAtItsTime();
    void holdsKeepTheirLength_data();
    void holdsKeepTheirLength();
    void aMovieOfOneFrame_data();
    void aMovieOfOneFrame();
    void ratesAreKept_data();
    void ratesAreKept();
    void everyRateOfTheTimelineOpens();
    void aMovieWithoutAnyFrameIsClosedAllTheSame_data();
    void aMovieWithoutAnyFrameIsClosedAllTheSame();
    void transparencySurvives_data();
    void transparencySurvives();
    void softTransparencySurvivesWithItsColour();
    void metadataTellsWhoMadeIt();
    void nameOfAFormatInAnyCase();
    void soundIsSilentAndAsLongAsWholeSeconds_data();
    void soundIsSilentAndAsLongAsWholeSeconds();
    void formatsWithoutSoundHaveNone();
    void unknownFormatIsAnAviWithFlac();
    void sizeMustBeAMultipleOfEight();
    void effectsWithoutDescriptionFail();
    void effectThatIsNotThereFails();
    void pictureOfAnotherSizeIsRefused();
    void pictureOfAnotherFormatIsRefused();
    void nothingIsTakenBeforeAFileIsOpen();
    void qualityChangesTheFile();
    void webpSettingsAreReadByCreateFile();
    void emptiedEncodersAreLogged();

private:
    QString base() const
    {
        return folder->filePath("film");
    }
    Made make(const QString &format, const QList<int> &marks, double fps = 12.5);

    std::unique_ptr<QTemporaryDir> folder;
};

void TestQVideoEncoder::init()
{
    folder = std::make_unique<QTemporaryDir>();
}

Made TestQVideoEncoder::make(const QString &format, const QList<int> &marks, double fps)
{
    return makeMovie(base(), format, marks, fps);
}

void TestQVideoEncoder::everyFormatHoldsEveryPictureAtItsTime_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("codec");
    QTest::addColumn<QString>("pixels");
    QTest::newRow("avi") << "film.avi"
                         << "mpeg4"
                         << "yuv420p";
    QTest::newRow("mjpg") << "film.avi"
                          << "mjpeg"
                          << "yuvj420p";
    QTest::newRow("webm") << "film.webm"
                          << "vp8"
                          << "yuv420p";
    QTest::newRow("ogv") << "film.ogv"
                         << "theora"
                         << "yuv420p";
    QTest::newRow("mkv") << "film.mkv"
                         << "vp8"
                         << "yuv420p";
    QTest::newRow("apng") << "film.apng"
                          << "apng"
                          << "rgb24";
    QTest::newRow("raw") << "film-uncompressed.avi"
                         << "rawvideo"
                         << "bgra";
}

void TestQVideoEncoder::everyFormatHoldsEveryPictureAtItsTime()
{
    QFETCH(QString, file);
    QFETCH(QString, codec);
    QFETCH(QString, pixels);
    const QList<int> marks{0, 1, 2, 3, 4, 5, 6, 0, 2, 4, 6, 1, 3, 5, 0};
    const Made made = make(QTest::currentDataTag(), marks);
    QVERIFY2(made.ok(), qPrintable(made.reason()));
    QCOMPARE(made.refused, 0);
    QCOMPARE(made.error, QString());
    QCOMPARE(made.path, folder->filePath(file));

    const MovieProbe probe(made.path);
    QCOMPARE(probe.video().value("codec_name").toString(), codec);
    QCOMPARE(probe.video().value("pix_fmt").toString(), pixels);
    QCOMPARE(probe.video().value("width").toInt(), smallSize.width());
    QCOMPARE(probe.video().value("height").toInt(), smallSize.height());
    QCOMPARE(probe.rate(), 12.5);
    if (codec != "mjpeg") // Its decoder complains of the tool's own movies too.
        QCOMPARE(probe.complaints(), QString());
    const QList<QImage> frames = probe.frames();
    const QList<double> times = probe.frameTimes();
    QCOMPARE(frames.size(), marks.size());
    QCOMPARE(times.size(), marks.size());
    for (int i = 0; i < marks.size(); ++i) {
        QVERIFY2(colourDistance(frames.at(i), markColour(marks.at(i))) <= 12,
                 qPrintable(QStringLiteral("frame %1").arg(i)));
        QVERIFY2(std::abs(times.at(i) - i / 12.5) < 0.002, qPrintable(QStringLiteral("frame %1").arg(i)));
    }
    QVERIFY2(std::abs(probe.duration() - 15 / 12.5) <= 1 / 12.5,
             qPrintable(QString::number(probe.duration())));
}

void TestQVideoEncoder::holdsKeepTheirLength_data()
{
    QTest::addColumn<QList<int>>("marks");
    const QList<int> middle{0, 1, 1, 1, 1, 1, 1, 1, 1, 2, 3};
    const QList<int> end{0, 1, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2};
    const QList<int> whole(20, 5);
    for (const char *format : everyFormat) {
        QTest::addRow("%s in the middle", format) << middle;
        QTest::addRow("%s at the end", format) << end;
        QTest::addRow("%s from the first to the last", format) << whole;
    }
}

void TestQVideoEncoder::holdsKeepTheirLength()
{
    QFETCH(QList<int>, marks);
    const QString format = QString::fromLatin1(QTest::currentDataTag()).section(' ', 0, 0);
    const Made made = make(format, marks, 24);
    QVERIFY2(made.ok(), qPrintable(made.reason()));
    QCOMPARE(made.error, QString());
    const MovieProbe probe(made.path);
    QList<int> found;
    for (const QImage &frame : probe.frames())
        found.append(markOf(frame));
    QCOMPARE(found, marks);
    const double wanted = static_cast<double>(marks.size()) / 24;
    QVERIFY2(std::abs(probe.duration() - wanted) <= 1.0 / 24, qPrintable(QString::number(probe.duration())));
}

void TestQVideoEncoder::aMovieOfOneFrame_data()
{
    addEveryFormat();
}

void TestQVideoEncoder::aMovieOfOneFrame()
{
    const Made made = make(QTest::currentDataTag(), {2}, 25);
    QVERIFY2(made.ok(), qPrintable(made.reason()));
    QCOMPARE(made.error, QString());
    const MovieProbe probe(made.path);
    const QList<QImage> frames = probe.frames();
    QCOMPARE(frames.size(), 1);
    QCOMPARE(markOf(frames.first()), 2);
    QVERIFY2(probe.duration() <= 2.0 / 25, qPrintable(QString::number(probe.duration())));
}

void TestQVideoEncoder::ratesAreKept_data()
{
    QTest::addColumn<double>("fps");
    QTest::addColumn<double>("encoded");
    const QList<std::pair<double, double>> rates{{3, 5},         {5, 5},   {12.5, 12.5},
                                                 {23.98, 23.98}, {60, 60}, {72, 60}};
    for (const char *format : {"avi", "webm", "apng"}) {
        for (const auto &[fps, encoded] : rates)
            QTest::addRow("%s %g", format, fps) << fps << encoded;
    }
}

void TestQVideoEncoder::ratesAreKept()
{
    QFETCH(double, fps);
    QFETCH(double, encoded);
    const QString format = QString::fromLatin1(QTest::currentDataTag()).section(' ', 0, 0);
    const QList<int> marks(30, 3);
    const Made made = make(format, marks, fps);
    QVERIFY2(made.ok(), qPrintable(made.reason()));
    QCOMPARE(made.error, QString());
    const MovieProbe probe(made.path);
    QCOMPARE(probe.frameTimes().size(), marks.size());
    const double wanted = static_cast<double>(marks.size()) / encoded;
    QVERIFY2(std::abs(probe.duration() - wanted) <= 1 / encoded,
             qPrintable(QString::number(probe.duration())));
    QVERIFY2(std::abs(probe.frameTimes().last() - (wanted - 1 / encoded)) < 0.01,
             qPrintable(QString::number(probe.frameTimes().last())));
}

void TestQVideoEncoder::everyRateOfTheTimelineOpens()
{
    // Rates have two decimals; MPEG-4 takes 16 bits for its clock.
    for (int hundredths = 500; hundredths <= 6000; hundredths += 31) {
        QVideoEncoder encoder;
        const QVariantMap result =
            encoder.createFile(base(), 64, 48, 2, hundredths / 100.0, "avi", false, {}, 10, false);
        QVERIFY2(result.value("ok").toBool(), qPrintable(QString::number(hundredths)));
        encoder.closeFile();
    }
}

void TestQVideoEncoder::aMovieWithoutAnyFrameIsClosedAllTheSame_data()
{
    addEveryFormat();
}

void TestQVideoEncoder::aMovieWithoutAnyFrameIsClosedAllTheSame()
{
    const Made made = make(QTest::currentDataTag(), {});
    QVERIFY(made.ok());
    QVERIFY(QFile::exists(made.path));
    QVERIFY(!QFile::exists(made.path + ".part"));
    QCOMPARE(made.error, QString());
}

void TestQVideoEncoder::transparencySurvives_data()
{
    QTest::addColumn<QString>("decoder");
    QTest::newRow("webm") << "libvpx";
    QTest::newRow("mkv") << "libvpx";
    QTest::newRow("raw") << "";
}

void TestQVideoEncoder::transparencySurvives()
{
    QFETCH(QString, decoder);
    QVideoEncoder encoder;
    QVERIFY(encoder.createFile(base(), 64, 48, 2, 25, QTest::currentDataTag(), false, {}, 5, false)["ok"]
                .toBool());
    for (int i = 0; i < 5; ++i) {
        QImage picture = markedPicture(smallSize, 1);
        for (int y = 0; y < 48; ++y) {
            for (int x = 0; x < 32; ++x)
                picture.setPixel(x, y, 0);
        }
        QVERIFY(encoder.encodeImage(picture) >= 0);
    }
    const QList<QImage> frames = MovieProbe(encoder.closeFile(), decoder).frames();
    QCOMPARE(frames.size(), 5);
    for (const QImage &frame : frames) {
        QVERIFY(qAlpha(frame.pixel(8, 24)) < 8);
        QVERIFY(qAlpha(frame.pixel(56, 24)) > 247);
        QVERIFY(colourDistance(frame.copy(48, 16, 8, 8), markColour(1)) <= 12);
    }
}

void TestQVideoEncoder::softTransparencySurvivesWithItsColour()
{
    QVideoEncoder encoder;
    QVERIFY(encoder.createFile(base(), 64, 48, 3, 25, "webm", false, {}, 3, false)["ok"].toBool());
    QImage picture(smallSize, QImage::Format_ARGB32);
    picture.fill(QColor(200, 40, 40, 128));
    for (int i = 0; i < 3; ++i)
        QVERIFY(encoder.encodeImage(picture) >= 0);
    const QList<QImage> frames = MovieProbe(encoder.closeFile(), "libvpx").frames();
    QCOMPARE(frames.size(), 3);
    QVERIFY(std::abs(qAlpha(frames.last().pixel(30, 30)) - 128) <= 6);
    QVERIFY(colourDistance(frames.last(), QColor(200, 40, 40)) <= 10);
}

void TestQVideoEncoder::metadataTellsWhoMadeIt()
{
    const MovieProbe probe(make("mkv", {0, 1, 2, 3, 4, 5}, 25).path);
    QCOMPARE(probe.tag("comment"), "Created with Morvane");
    QCOMPARE(probe.tag("genre"), "Action");
    const QDate today = QDate::currentDate();
    QCOMPARE(probe.tag("year"),
             QStringLiteral("%1-%2-%3").arg(today.day()).arg(today.month()).arg(today.year()));
}

void TestQVideoEncoder::nameOfAFormatInAnyCase()
{
    QCOMPARE(make("WebM", {0, 1}).path, folder->filePath("film.webm"));
}

void TestQVideoEncoder::soundIsSilentAndAsLongAsWholeSeconds_data()
{
    QTest::addColumn<QString>("codec");
    QTest::addColumn<int>("sampleRate");
    QTest::newRow("avi") << "mp2" << 48000;
    QTest::newRow("mjpg") << "mp2" << 48000;
    QTest::newRow("webm") << "opus" << 48000;
    QTest::newRow("ogv") << "flac" << 44100;
    QTest::newRow("raw") << "mp2" << 48000;
}

void TestQVideoEncoder::soundIsSilentAndAsLongAsWholeSeconds()
{
    QFETCH(QString, codec);
    QFETCH(int, sampleRate);
    const Made made = make(QTest::currentDataTag(), QList<int>(66, 1), 25);
    QVERIFY2(made.ok(), qPrintable(made.reason()));
    QCOMPARE(made.error, QString());
    const MovieProbe probe(made.path);
    QCOMPARE(probe.audio().value("codec_name").toString(), codec);
    QCOMPARE(probe.audio().value("sample_rate").toString().toInt(), sampleRate);
    QCOMPARE(probe.audio().value("channels").toInt(), 2);
    // 65 frames of 25 a second are two whole seconds; a codec rounds up to its own frame.
    const qint64 samples = probe.audioSamples();
    QVERIFY2(samples >= 2 * sampleRate && samples < 2 * sampleRate + 1152,
             qPrintable(QString::number(samples)));
}

void TestQVideoEncoder::formatsWithoutSoundHaveNone()
{
    for (const char *format : {"mkv", "apng"})
        QVERIFY(MovieProbe(make(format, QList<int>(30, 1), 25).path).audio().isEmpty());
}

void TestQVideoEncoder::unknownFormatIsAnAviWithFlac()
{
    const Made made = make("cinerama", QList<int>(30, 1), 25);
    QVERIFY(made.ok());
    QCOMPARE(made.error, QString());
    QCOMPARE(made.path, folder->filePath("film.avi"));
    const MovieProbe probe(made.path);
    QCOMPARE(probe.video().value("codec_name").toString(), "mpeg4");
    QCOMPARE(probe.audio().value("codec_name").toString(), "flac");
}

void TestQVideoEncoder::sizeMustBeAMultipleOfEight()
{
    QVideoEncoder encoder;
    const QVariantMap result = encoder.createFile(base(), 1000, 562, 2, 25, "avi", false, {}, 10, false);
    QCOMPARE(result.value("ok").toBool(), false);
    QCOMPARE(result.value("reason").toString(), "Invalid size. Size must be a multiple of 8");
    QVERIFY(!encoder.isOk());
    QCOMPARE(encoder.closeFile(), QString());
    QVERIFY(QDir(folder->path()).isEmpty());
}

void TestQVideoEncoder::effectsWithoutDescriptionFail()
{
    QVideoEncoder encoder;
    const QVariantMap result = encoder.createFile(base(), 64, 48, 2, 25, "avi", true, {}, 10, false);
    QCOMPARE(result.value("ok").toBool(), false);
    QCOMPARE(result.value("reason").toString(), "Cannot apply post-process effects");
    QVERIFY(QDir(folder->path()).isEmpty());
}

void TestQVideoEncoder::effectThatIsNotThereFails()
{
    QTest::ignoreMessage(QtWarningMsg, "Filter did not pass the test: Filter not found");
    const Made made = makeMovie(base(), "avi", {}, 25, "paintlikerembrandt=strength=1");
    QCOMPARE(made.reason(), "Cannot apply post-process effects");
    QCOMPARE(made.path, QString());
    QVERIFY(QDir(folder->path()).isEmpty());
}

void TestQVideoEncoder::pictureOfAnotherSizeIsRefused()
{
    QVideoEncoder encoder;
    QVERIFY(encoder.createFile(base(), 64, 48, 2, 25, "avi", false, {}, 10, false)["ok"].toBool());
    QTest::ignoreMessage(QtWarningMsg,
                         "Got wrong image size: image w:72, image h: 48, video w: 64, video h: 48");
    QTest::ignoreMessage(QtWarningMsg, "Failed to get video frame");
    QVERIFY(encoder.encodeImage(markedPicture({72, 48}, 0)) < 0);
    QVERIFY(encoder.isOk());
}

void TestQVideoEncoder::pictureOfAnotherFormatIsRefused()
{
    QVideoEncoder encoder;
    QVERIFY(encoder.createFile(base(), 64, 48, 2, 25, "avi", false, {}, 10, false)["ok"].toBool());
    QTest::ignoreMessage(QtWarningMsg, "QVideoEncoder::get_video_frame: Wrong image format");
    QTest::ignoreMessage(QtWarningMsg, "Failed to get video frame");
    QVERIFY(encoder.encodeImage(markedPicture(smallSize, 0).convertToFormat(QImage::Format_RGB32)) < 0);
}

void TestQVideoEncoder::nothingIsTakenBeforeAFileIsOpen()
{
    QVideoEncoder encoder;
    QVERIFY(!encoder.isOk());
    QCOMPARE(encoder.encodeImage(markedPicture(smallSize, 0)), -1);
    QCOMPARE(encoder.closeFile(), QString());
    QVERIFY(encoder.createFile(base(), 64, 48, 2, 25, "avi", false, {}, 10, false)["ok"].toBool());
    QVERIFY(encoder.isOk());
    encoder.closeFile();
    QVERIFY(!encoder.isOk());
    QCOMPARE(encoder.encodeImage(markedPicture(smallSize, 0)), -1);
}

void TestQVideoEncoder::qualityChangesTheFile()
{
    QList<qint64> sizes;
    for (int quality = 0; quality < 4; ++quality) {
        QVideoEncoder encoder;
        QVERIFY(encoder.createFile(base(), 64, 48, quality, 25, "webm", false, {}, 10, false)["ok"].toBool());
        for (int i = 0; i < 10; ++i) {
            QImage picture = markedPicture(smallSize, i);
            for (int k = 0; k < 3000; ++k)
                picture.setPixel(k % 64, k / 64, qRgb(k * 7 & 255, k * 31 & 255, k * 3 & 255));
            encoder.encodeImage(picture);
        }
        sizes.append(QFileInfo(encoder.closeFile()).size());
    }
    QVERIFY(sizes.at(0) < sizes.at(1) && sizes.at(1) < sizes.at(2) && sizes.at(2) < sizes.at(3));
}

void TestQVideoEncoder::webpSettingsAreReadByCreateFile()
{
    QVideoEncoder encoder;
    encoder.setWebpSettings({{"lossless", 0}, {"quality", 300}, {"method", -2}, {"loopcount", 7}});
    QTest::ignoreMessage(QtDebugMsg, "1.WebP: quality=100, lossless=0, compression=2");
    QTest::ignoreMessage(QtDebugMsg, "2.WebP: method=0, snsstrength=100, autofilter=0, loopcount=7");
    QTest::ignoreMessage(QtDebugMsg, "3.WebP: filter_type=0, filter_strength=70, filter_sharpness=5");
    QVERIFY(
        encoder.createFile(base(), 64, 48, 2, 25, morvane::formatWebp, false, {}, 2, false)["ok"].toBool());
    encoder.encodeImage(markedPicture(smallSize, 0));
    QCOMPARE(encoder.closeFile(), folder->filePath("film.webp"));
}

void TestQVideoEncoder::emptiedEncodersAreLogged()
{
    const QString line = "The encoder has been fully flushed, and there will be no more output packets";
    const LogLines log;
    QVERIFY(make("mkv", QList<int>(26, 0)).ok());
    const int withoutSound = log.count(line);
    QVERIFY(make("avi", QList<int>(26, 0)).ok());
    QCOMPARE(withoutSound, 1);
    QCOMPARE(log.count(line), withoutSound + 2);
}

QTEST_GUILESS_MAIN(TestQVideoEncoder)
#include "tst_qvideoencoder.moc"
