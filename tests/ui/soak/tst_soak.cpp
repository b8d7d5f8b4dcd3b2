#include "SoakFilm.h"

#include "project/ProjectReader.h"

#include <cstdio>
#include <functional>
#include <QApplication>
#include <QImage>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QThreadPool>

using namespace Qt::StringLiterals;

namespace {

/// How many frames to shoot. 14400 of them are a time-lapse of eight hours, at one frame in two seconds.
constexpr auto framesVariable = "MORVANE_SOAK_FRAMES";
/// Enough for every day: it finds what each shot loses when that is some ten kilobytes or a handle.
constexpr int everyDayFrames = 240;
constexpr int samplesTaken = 60;
/// From here on costs can be compared: shorter runs tell more of the machine's other work than of the
/// program.
constexpr int longFrames = 3000;

// What is flat. Handles, threads with a task of their own, objects and items of the scene are as many at the
// end as after the warm-up, exactly. What is asked of the allocator, without the pictures that a view keeps
// within a budget, may grow by what the timeline, the list of copies and the project file's bytes hold of
// each row; a leak of a picture or of a row's widgets is many times that. The memory in place also has the
// holes between kept pictures, which come and go with them and are at most as large again as their budget.
constexpr double heapBytesPerRow = 3000;
constexpr double heapSlackBytes = 16e6;
constexpr double residentBytesPerRow = 6000;
constexpr double residentSlackBytes = 160e6;
/// A shot in the second half of the film against one in the first.
constexpr double mostShotGrowth = 1.3;

const QString pooledThread = u"Thread (pooled)"_s;

using Sample = SoakFilm::Sample;

double mean(const QList<Sample> &samples, qsizetype from, qsizetype to,
            const std::function<double(const Sample &)> &value)
{
    double sum = 0;
    for (qsizetype i = from; i < to; ++i)
        sum += value(samples.at(i));
    return sum / double(qMax<qsizetype>(1, to - from));
}

/// Growth per frame, by least squares.
double slope(const QList<Sample> &samples, const std::function<double(const Sample &)> &value)
{
    const double middleX =
        mean(samples, 0, samples.size(), [](const Sample &sample) { return double(sample.frames); });
    const double middleY = mean(samples, 0, samples.size(), value);
    double above = 0;
    double below = 0;
    for (const Sample &sample : samples) {
        const double x = sample.frames - middleX;
        above += x * (value(sample) - middleY);
        below += x * x;
    }
    return below > 0 ? above / below : 0;
}

/// The pictures that the views keep have a budget of their own and are not looked at here.
double resident(const Sample &sample)
{
    return double(sample.process.residentBytes) - sample.cacheBytes;
}

double heap(const Sample &sample)
{
    return double(sample.process.heapBytes) - sample.cacheBytes;
}

double shotMs(const Sample &sample)
{
    return sample.shotMs;
}

double mainThreadMs(const Sample &sample)
{
    return sample.mainThreadMs;
}

/// A line of what was found. The test library would drop it behind the many that the program logs.
template <typename... Values>
void say(const char *format, Values... values)
{
    std::puts(qUtf8Printable(QString::asprintf(format, values...)));
    std::fflush(stdout);
}

void printHead()
{
    say(" frames  rss MB heap MB cache MB threads files objects items shot ms main ms  gap ms    live "
        "project KB");
}

void print(const Sample &sample)
{
    say("%7d %7.1f %7.1f %8.1f %7lld %5lld %7d %5d %7.1f %7.1f %7.1f %7lld %10.0f", sample.frames,
        double(sample.process.residentBytes) / 1e6, double(sample.process.heapBytes) / 1e6,
        sample.cacheBytes / 1e6, qlonglong(sample.process.threads.size()),
        qlonglong(sample.process.files.size()), sample.objects, sample.items, sample.shotMs,
        sample.mainThreadMs, sample.longestGapMs, sample.livePictures, double(sample.projectFileBytes) / 1e3);
}

} // namespace

/// A time-lapse over hours, with the time handed in: nothing piles up, and every frame is there afterwards.
class TestSoak : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void shootsAllFrames();
    void handlesThreadsAndObjectsStayAsTheyAre();
    void memoryGrowsWithTheRowsAlone();
    void aShotCostsTheSameAtTheEnd();
    void projectHasEveryFrame();
    void everyPictureIsWholeAndHasItsOwnName();
    void opensAgainWithoutAQuestion();
    void cleanupTestCase();

private:
    /// The samples behind the warm-up.
    QList<Sample> settled() const
    {
        return m_film->samples().mid(m_film->samples().size() / 3);
    }

    std::unique_ptr<SoakFilm> m_film;
    QList<ProjectFrame> m_rows;
    QString m_project;
    int m_frames = everyDayFrames;
};

void TestSoak::initTestCase()
{
    if (const int asked = qEnvironmentVariableIntValue(framesVariable); asked > 0)
        m_frames = asked;
    m_film = std::make_unique<SoakFilm>();
    m_project = m_film->shell().window().projPath();
}

void TestSoak::shootsAllFrames()
{
    printHead();
    connect(m_film.get(), &SoakFilm::sampled, this, [this] { print(m_film->samples().constLast()); });
    QCOMPARE(m_film->shoot(m_frames, qMax(1, m_frames / samplesTaken)), QString());
    say("%.2f hours have passed for the program", m_film->hours());
    QCOMPARE(m_film->shell().framesNow(), m_frames);
    QCOMPARE(m_film->shell().sceneWarnings(), QStringList());
}

void TestSoak::handlesThreadsAndObjectsStayAsTheyAre()
{
    const QList<Sample> samples = settled();
    const Sample &first = samples.constFirst();
    // The threads that wait for work of any kind come as they are needed, up to their number, and so do those
    // in which the graphics driver writes its shaders to the disk.
    const auto ownThreads = [](const Sample &sample) {
        QStringList names = sample.process.threads;
        names.removeAll(pooledThread);
        names.removeIf([](const QString &name) { return name.contains(u":disk$"); });
        return names.join(u", "_s);
    };
    for (const Sample &sample : samples) {
        QCOMPARE(sample.process.files.join(u", "_s), first.process.files.join(u", "_s));
        QCOMPARE(ownThreads(sample), ownThreads(first));
        QVERIFY(sample.process.threads.count(pooledThread) <= QThread::idealThreadCount() + 1);
        QCOMPARE(sample.objects, first.objects);
        QCOMPARE(sample.items, first.items);
    }
}

void TestSoak::memoryGrowsWithTheRowsAlone()
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("A sanitizer keeps memory that was given back");
#endif
    const QList<Sample> samples = settled();
    const int rows = samples.constLast().frames - samples.constFirst().frames;
    const double heapSlope = slope(samples, heap);
    const double residentSlope = slope(samples, resident);
    say("growth a row: heap %.0f bytes, resident %.0f bytes", heapSlope, residentSlope);
    QVERIFY(residentSlope * rows < residentBytesPerRow * rows + residentSlackBytes);
    QVERIFY(heapSlope * rows < heapBytesPerRow * rows + heapSlackBytes);
}

void TestSoak::aShotCostsTheSameAtTheEnd()
{
    const QList<Sample> samples = m_film->samples();
    const qsizetype half = samples.size() / 2;
    // The first sample has the warm-up of caches and of the scene in it.
    const double early = mean(samples, 1, half, shotMs);
    const double late = mean(samples, half, samples.size(), shotMs);
    const double earlyWork = mean(samples, 1, half, mainThreadMs);
    const double lateWork = mean(samples, half, samples.size(), mainThreadMs);
    say("a shot: %.1f ms in the first half, %.1f ms in the second; of it work of the main thread %.1f and "
        "%.1f ms",
        early, late, earlyWork, lateWork);
    // With other work on the machine only that of this program's main thread can be compared.
    if (m_frames >= longFrames)
        QVERIFY2(qMin(late / early, lateWork / earlyWork) <= mostShotGrowth,
                 "a shot costs more the longer the film is");
}

void TestSoak::projectHasEveryFrame()
{
    CaptureWindow &shell = m_film->shell();
    QVERIFY(shell.disconnectCamera());
    QTRY_COMPARE(shell.framesInProjectFile(), m_frames);
    QVERIFY(!shell.global().projectChanged());
    m_rows = ProjectReader::readFile(m_project).document.frames;
}

void TestSoak::everyPictureIsWholeAndHasItsOwnName()
{
    static const QRegularExpression pattern(u"^frame_norm_(\\d{6})_(\\d{12})\\.jpg$"_s);
    CaptureWindow &shell = m_film->shell();
    const QDir pictures(shell.window().capFullDirPath());
    const QDir thumbs(shell.window().capTumbDirPath());
    QSet<QString> names;
    QString before;
    for (int row = 0; row < m_rows.size(); ++row) {
        const ProjectFrame &frame = m_rows.at(row);
        const QRegularExpressionMatch match = pattern.match(frame.capFull);
        QVERIFY2(match.hasMatch(), qPrintable(frame.capFull));
        QCOMPARE(match.captured(1).toInt(), row);
        // By the clock that was handed in, two seconds behind the one before or more.
        const auto stamp = [](const QString &text) {
            return QDateTime::fromString(text, u"yyMMddhhmmss"_s);
        };
        if (row > 0)
            QVERIFY(stamp(before).secsTo(stamp(match.captured(2))) >= 1);
        before = match.captured(2);
        names.insert(frame.capFull);
        QCOMPARE(QImage(pictures.filePath(frame.capFull)).size(), QSize(320, 180));
        QVERIFY(!QImage(thumbs.filePath(frame.capTumb)).isNull());
    }
    QCOMPARE(names.size(), m_frames);
    QVERIFY(before <= m_film->timeStamp());
    // And nothing else: no left-over of a save, no picture without a row.
    const auto everything = QDir::Files | QDir::Hidden | QDir::System;
    QCOMPARE(pictures.entryList(everything).size(), m_frames);
    QCOMPARE(thumbs.entryList(everything).size(), m_frames);
    QCOMPARE(QDir(shell.folder()).entryList({u"film*"_s}, everything), QStringList(u"film.kzfx"_s));
}

void TestSoak::opensAgainWithoutAQuestion()
{
    m_film->shell().window().closeProject();
    ShellWindow again;
    again.window().openProject(m_project);
    QVERIFY(QTest::qWaitFor([&] { return again.window().projectLoaded(); }, 60000));
    QCOMPARE(again.frames().framesCount(), m_frames);
    // The search for pictures without a frame ends before it could ask.
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    QCOMPARE(again.dialogs().asked.size(), 0);
    for (int row = 0; row < m_frames; ++row) {
        QCOMPARE(again.frames().get(row, false).value(u"capFull"_s).toString(), m_rows.at(row).capFull);
        QVERIFY(!again.frames().get(row, false).value(u"capfullmiss"_s).toBool());
    }
}

void TestSoak::cleanupTestCase()
{
    m_film.reset();
}

int main(int argc, char *argv[])
{
    // The long form takes longer than a test may by itself.
    if (!qEnvironmentVariableIsSet("QTEST_FUNCTION_TIMEOUT"))
        qputenv("QTEST_FUNCTION_TIMEOUT", "36000000");
    QApplication app(argc, argv);
    TestSoak test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_soak.moc"
