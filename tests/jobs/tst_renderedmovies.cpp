#include "RobotRun.h"
#include "SmallFilm.h"

#include "jobs/QVideoEncoder.h"
#include "support/FullDisk.h"

#include <QTemporaryDir>
#include <QTest>

/// Renders that end in movies: the job with the program's own encoder.
class TestRenderedMovies : public QObject
{
    Q_OBJECT

private slots:
    void stopAtAnyFrame_data();
    void stopAtAnyFrame();
    void pipelineGivesTheSameMovie_data();
    void pipelineGivesTheSameMovie();
    void realMovieOfEveryFormat_data();
    void realMovieOfEveryFormat();
    void marginsAreTransparentInFormatsWithAlpha();
    void effectThatIsMissingLeavesNoFile();
    void encoderThatCannotBeLoadedIsToldAsOneThatFails();
    void fullDiskIsToldAndTheEarlierMovieStays();

private:
    static RobotTools realTools(int lookAhead = 2);
};

RobotTools TestRenderedMovies::realTools(int lookAhead)
{
    RobotTools tools;
    tools.makeEncoder = [](const QString &) {
        return std::make_unique<QVideoEncoder>();
    };
    tools.lookAhead = lookAhead;
    return tools;
}

void TestRenderedMovies::stopAtAnyFrame_data()
{
    QTest::addColumn<int>("stopAfter");
    QTest::addColumn<bool>("interrupted");
    QTest::newRow("first") << 1 << true;
    QTest::newRow("middle") << 4 << true;
    QTest::newRow("last but one") << 7 << false;
    QTest::newRow("last") << 8 << false;
}

void TestRenderedMovies::stopAtAnyFrame()
{
    QFETCH(int, stopAfter);
    QFETCH(bool, interrupted);
    const SmallFilm film({0, 1, 2, 3, 4, 5, 6, 0});
    const RobotRun run = RobotRun::render(film.input, realTools(), stopAfter);
    QCOMPARE(run.errors, interrupted ? QStringList("Processing image. Robot interrupted") : QStringList());
    QCOMPARE(run.written, stopAfter);
    QCOMPARE(run.finished, stopAfter == 8);
    QCOMPARE(run.result, film.folder.filePath("video/film.avi"));
    const MovieProbe probe(run.result);
    QCOMPARE(probe.frames().size(), stopAfter);
    QCOMPARE(markOf(probe.frames().last()), (stopAfter - 1) % 7);
    QCOMPARE(film.movies(), QStringList("film.avi"));
}

void TestRenderedMovies::pipelineGivesTheSameMovie_data()
{
    QTest::addColumn<QString>("format");
    for (const char *format : {"avi", "webm", "raw"})
        QTest::newRow(format) << QString(format);
}

void TestRenderedMovies::pipelineGivesTheSameMovie()
{
    QFETCH(QString, format);
    SmallFilm film({0, 1, 2, -1, 3, 3, 3, 4, 5, 6, 0, 1});
    film.input.formatName = format;
    film.input.timecode = true;
    QList<QList<QImage>> movies;
    for (const int lookAhead : {1, 2, 7}) {
        const RobotRun run = RobotRun::render(film.input, realTools(lookAhead));
        QVERIFY(run.finished);
        movies.append(MovieProbe(run.result).frames());
    }
    QCOMPARE(movies.first().size(), 11);
    QVERIFY(movies.at(1) == movies.first());
    QVERIFY(movies.at(2) == movies.first());
}

void TestRenderedMovies::realMovieOfEveryFormat_data()
{
    QTest::addColumn<QString>("format");
    for (const char *format : {"avi", "mjpg", "webm", "ogv", "mkv", "apng", "raw"})
        QTest::newRow(format) << QString(format);
}

void TestRenderedMovies::realMovieOfEveryFormat()
{
    QFETCH(QString, format);
    SmallFilm film({0, 1, 2, 2, 2, 3, 3, 3, 3});
    film.input.formatName = format;
    const RobotRun run = RobotRun::render(film.input, realTools());
    QCOMPARE(run.errors, QStringList());
    QVERIFY(run.finished);
    QList<int> found;
    for (const QImage &frame : MovieProbe(run.result).frames())
        found.append(markOf(frame));
    QCOMPARE(found, (QList<int>{0, 1, 2, 2, 2, 3, 3, 3, 3}));
}

void TestRenderedMovies::marginsAreTransparentInFormatsWithAlpha()
{
    SmallFilm film({0, 1});
    film.input.formatName = "mkv";
    for (int row = 0; row < 2; ++row)
        markedPicture({160, 280}, row).save(film.picturePath(row));
    const QList<QImage> frames =
        MovieProbe(RobotRun::render(film.input, realTools()).result, "libvpx").frames();
    QCOMPARE(frames.size(), 2);
    QVERIFY(qAlpha(frames.last().pixel(20, 140)) < 8);
    QVERIFY(qAlpha(frames.last().pixel(160, 140)) > 247);
}

void TestRenderedMovies::effectThatIsMissingLeavesNoFile()
{
    SmallFilm film({0});
    film.input.applyEffects = true;
    film.input.effect = "paintlikerembrandt=strength=1";
    const RobotRun run = RobotRun::render(film.input, realTools());
    QCOMPARE(run.errors,
             (QStringList{"Error initializing", "Encoder error: Cannot apply post-process effects"}));
    QCOMPARE(run.result, QString());
    QCOMPARE(film.movies(), QStringList());
}

void TestRenderedMovies::encoderThatCannotBeLoadedIsToldAsOneThatFails()
{
    const SmallFilm film({0, 1});
    const QTemporaryDir empty;
    const RobotRun run = RobotRun::render(film.input, RobotTools::standard(empty.path()));
    QCOMPARE(run.errors.size(), 2);
    QCOMPARE(run.errors.first(), "Error initializing");
    QVERIFY2(run.errors.last().startsWith("Encoder error: The part of the program that makes movies is "
                                          "missing or damaged. Install the program again. "),
             qPrintable(run.errors.last()));
    QVERIFY2(run.errors.last().contains(empty.path()), qPrintable(run.errors.last()));
    QVERIFY(!run.finished && run.result.isEmpty());
    QCOMPARE(run.done, 1);
    QCOMPARE(RobotRun::render(film.input, RobotTools::standard()).errors, QStringList());
}

void TestRenderedMovies::fullDiskIsToldAndTheEarlierMovieStays()
{
#ifdef Q_OS_UNIX
    SmallFilm film({0, 1, 2, 3, 4, 5, 6});
    film.input.formatName = "raw";
    const QString earlier = RobotRun::render(film.input, realTools()).result;
    const qint64 size = QFileInfo(earlier).size();
    const RobotRun run = [&] {
        const FullDisk disk(1000000);
        return RobotRun::render(film.input, realTools());
    }();
    QVERIFY(!run.finished);
    QVERIFY(run.errors.contains("Error creating video"));
    QVERIFY2(run.errors.last().contains("File too large"), qPrintable(run.errors.join('\n')));
    QVERIFY(run.result != earlier);
    QVERIFY(!MovieProbe(run.result).frames().isEmpty());
    QCOMPARE(QFileInfo(earlier).size(), size);
#endif
}

QTEST_MAIN(TestRenderedMovies)
#include "tst_renderedmovies.moc"
