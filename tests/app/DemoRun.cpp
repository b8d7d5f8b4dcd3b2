#include "DemoRun.h"

#include "MovieProbe.h"
#include "project/ProjectTree.h"

#include <cmath>
#include <QDir>
#include <QImage>
#include <QSet>
#include <QTest>

namespace {

constexpr int longestMs = 240000;

/// The largest difference of two pictures, looked at coarsely, in steps of a channel.
int difference(const QImage &a, const QImage &b)
{
    const QSize size(160, 90);
    const QImage small = a.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QImage other = b.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    int most = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            most = qMax(most, std::abs(qGray(small.pixel(x, y)) - qGray(other.pixel(x, y))));
    }
    return most;
}

void checkMovie(const QString &path)
{
    const MovieProbe movie(path);
    const QList<QImage> frames = movie.frames();
    QCOMPARE(frames.size(), 24);
    QCOMPARE(frames.first().size(), QSize(1280, 720));
    QVERIFY2(std::abs(movie.duration() - 1.0) < 0.05, qPrintable(QString::number(movie.duration())));
    for (int i = 0; i + 2 < frames.size(); i += 2) {
        const int within = difference(frames.at(i), frames.at(i + 1));
        const int across = difference(frames.at(i + 1), frames.at(i + 2));
        QVERIFY2(across > 30 && within < across / 2,
                 qPrintable(QString("%1: %2 %3").arg(i).arg(within).arg(across)));
    }
}

} // namespace

DemoRun::DemoRun() : environment(QProcessEnvironment::systemEnvironment())
{
    environment.insert("HOME", m_home.path());
    environment.insert("XDG_CONFIG_HOME", m_home.filePath("config"));
    environment.insert("XDG_CACHE_HOME", m_home.filePath("cache"));
    environment.insert("XDG_RUNTIME_DIR", m_home.path());
    environment.insert("LC_ALL", "C.UTF-8");
    environment.remove("QT_QPA_PLATFORM");
}

void DemoRun::start(const QStringList &arguments)
{
    start(MORVANE_PROGRAM, arguments);
}

void DemoRun::start(const QString &program, const QStringList &arguments)
{
    m_process.setProcessEnvironment(environment);
    m_process.start(program, arguments);
}

bool DemoRun::waitFor(const QString &words)
{
    return QTest::qWaitFor(
               [&] { return said().contains(words) || m_process.state() == QProcess::NotRunning; }, longestMs)
           && said().contains(words);
}

int DemoRun::end()
{
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(longestMs)) {
        m_process.kill();
        m_process.waitForFinished();
        return -1;
    }
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

QString DemoRun::said()
{
    m_said += QString::fromUtf8(m_process.readAllStandardOutput());
    return m_said;
}

QString DemoRun::complaints()
{
    m_complaints += QString::fromUtf8(m_process.readAllStandardError());
    return m_complaints;
}

QString DemoRun::settingsPath() const
{
    return path("config/Morvane/Morvane Capture.ini");
}

void DemoRun::checkWhole(const QString &folder)
{
    const QString path = folder + "/morvane-demo.kzfx";
    const ProjectReadResult read = ProjectReader::readFile(path);
    QCOMPARE(read.status, ProjectReadResult::Status::Ok);
    QCOMPARE(read.refusals, QStringList());
    const QList<ProjectFrame> &frames = read.document.frames;
    QCOMPARE(frames.size(), 24);
    const ProjectTree tree = ProjectTree::of(path, {});
    QSet<QString> pictures;
    for (int i = 0; i < frames.size(); ++i) {
        QCOMPARE(frames.at(i).capFull, frames.at(i - i % 2).capFull);
        QCOMPARE(frames.at(i).capTumb, frames.at(i - i % 2).capTumb);
        pictures.insert(frames.at(i).capFull);
        QCOMPARE(QImage(tree.capFullDirPath + frames.at(i).capFull).size(), QSize(1280, 720));
        QVERIFY(!QImage(tree.capTumbDirPath + frames.at(i).capTumb).isNull());
    }
    QCOMPARE(pictures.size(), 12);
    QCOMPARE(QDir(tree.capFullDirPath).entryList(QDir::Files | QDir::Hidden).size(), 12);
    QVERIFY(read.document.frameSettings && read.document.render);
    QCOMPARE(read.document.frameSettings->timelineRangeStart.value_or(-1), 0);
    QCOMPARE(read.document.frameSettings->timelineRangeEnd.value_or(-1), 23);
    QCOMPARE(read.document.render->fps.value_or(0), 24.0);
    // Nobody holds it any more, and nothing half done lies about.
    QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList({"morvane-demo.kzfx", "morvane-demo_files"}));
    QCOMPARE(QDir(tree.videoDirPath).entryList(QDir::Files | QDir::Hidden),
             QStringList({"demo.avi", "demo.webm"}));
    checkMovie(tree.videoDirPath + "demo.webm");
    checkMovie(tree.videoDirPath + "demo.avi");
}
