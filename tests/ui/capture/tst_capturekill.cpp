#include "project/ProjectReader.h"
#include "support/ShellWindow.h"

#include <csignal>
#include <QApplication>
#include <QDir>
#include <QImage>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Set for the process that shoots: the folder for its project.
constexpr auto folderVariable = "MORVANE_KILL_FOLDER";
/// How often to kill; a few times are enough for every day.
constexpr auto countVariable = "MORVANE_KILLS";
constexpr int usualKills = 12;
constexpr int longestShootingMs = 900;

/// Shoots without end with the whole program, and prints the names of the frames whenever it has shown more.
int shootUntilKilled(const QString &folder)
{
    ShellWindow::Options options;
    options.settings.insert(u"currentCapturingDevice"_s, int(Zum::CapturingDeviceWebcam));
    ShellWindow shell(options);
    shell.dialogs().pathAnswers.append(folder + u"/film.kzfx"_s);
    if (!shell.window().saveProjectXmlFile(Zum::NewProject)
        || !QTest::qWaitFor([&] { return shell.window().projectLoaded(); }))
        return 1;
    emit shell.global().capturingDeviceConnect();
    if (!QTest::qWaitFor([&] { return shell.global().connected(); }, 20000))
        return 2;

    int shown = 0;
    QObject::connect(&shell.window(), &QQuickWindow::frameSwapped, &shell.window(), [&] {
        for (; shown < shell.frames().framesCount(); ++shown)
            std::puts(qPrintable(shell.frames().get(shown, false).value(u"capFull"_s).toString()));
        std::fflush(stdout);
    });
    std::puts("shooting");
    std::fflush(stdout);
    for (;;) {
        if (shell.global().capturingInprogress() == -1)
            emit shell.global().doCaptureFrame();
        shell.window().update();
        QTest::qWait(2);
    }
}

} // namespace

/// The program is killed while it shoots.
class TestCaptureKill : public QObject
{
    Q_OBJECT

private slots:
    void whateverTheTimelineHadShownIsThereAfterAKill();

private:
    struct Outcome
    {
        int shown = 0;
        int rows = 0;
        int offered = 0;
    };
    void round(int waitMs, Outcome &outcome);
    void openAgain(const QString &path, int rows, int offered);
};

void TestCaptureKill::whateverTheTimelineHadShownIsThereAfterAKill()
{
    const int asked = qEnvironmentVariableIntValue(countVariable);
    const int kills = asked > 0 ? asked : usualKills;
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    int shown = 0;
    int offered = 0;
    for (int i = 0; i < kills; ++i) {
        Outcome outcome;
        round(random.bounded(longestShootingMs), outcome);
        if (QTest::currentTestFailed())
            return;
        shown += outcome.shown;
        offered += outcome.offered;
    }
    qInfo("%d kills, %d frames shown, %d pictures offered back", kills, shown, offered);
    // Kills that never met a frame would have proved little.
    QVERIFY(shown > kills);
}

void TestCaptureKill::round(int waitMs, Outcome &outcome)
{
    QTemporaryDir folder;
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(folderVariable), folder.path());
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), QStringList());
    QByteArray said;
    QVERIFY(QTest::qWaitFor(
        [&] {
            child.waitForReadyRead(50);
            said += child.readAllStandardOutput();
            return said.startsWith("shooting\n") || child.state() == QProcess::NotRunning;
        },
        30000));
    QCOMPARE(child.state(), QProcess::Running);
    QTest::qWait(waitMs);
    QCOMPARE(::kill(static_cast<pid_t>(child.processId()), SIGKILL), 0);
    QVERIFY(child.waitForFinished());
    QCOMPARE(child.exitStatus(), QProcess::CrashExit);
    said += child.readAllStandardOutput();

    // A line that was cut off by the kill was not shown.
    QStringList shown = QString::fromUtf8(said.left(said.lastIndexOf('\n'))).split('\n');
    shown.removeFirst();

    const QString path = folder.filePath(u"film.kzfx"_s);
    const ProjectReadResult read = ProjectReader::readFile(path);
    QVERIFY2(read.status == ProjectReadResult::Status::Ok, qPrintable(read.error));
    const QList<ProjectFrame> &rows = read.document.frames;
    const QDir pictures(folder.filePath(u"film_files/cap"_s));
    for (qsizetype i = 0; i < rows.size(); ++i) {
        if (i < shown.size())
            QCOMPARE(rows.at(i).capFull, shown.at(i));
        QVERIFY(pictures.exists(rows.at(i).capFull));
    }
    // The write of the last rows may have been cut off; their pictures are offered back in their order.
    for (const QString &name : shown)
        QVERIFY(pictures.exists(name));
    // What has its name is whole: with both ends of the file, and readable.
    const QStringList files = pictures.entryList(QDir::Files);
    for (const QString &name : files) {
        QFile file(pictures.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        QVERIFY2(bytes.startsWith("\xff\xd8") && bytes.endsWith("\xff\xd9"), qPrintable(name));
        QCOMPARE(QImage::fromData(bytes).size(), QSize(1280, 720));
    }
    outcome.shown = int(shown.size());
    outcome.rows = int(rows.size());
    outcome.offered = int(files.size() - rows.size());
    openAgain(path, outcome.rows, outcome.offered);
}

void TestCaptureKill::openAgain(const QString &path, int rows, int offered)
{
    ShellWindow shell;
    // The mark of the killed program, and the pictures without a row.
    shell.dialogs().askAnswers = {morvane::Dialogs::Answer::Yes, morvane::Dialogs::Answer::Yes};
    shell.window().openProject(path);
    QVERIFY(QTest::qWaitFor([&] { return shell.window().projectLoaded(); }, 10000));
    QTRY_COMPARE(shell.frames().framesCount(), rows + offered);
    int questions = 0;
    for (const FakeDialogs::Asked &asked : shell.dialogs().asked)
        questions += asked.caption == u"Pictures Without a Frame" ? 1 : 0;
    QCOMPARE(questions, offered > 0 ? 1 : 0);
}

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(u"morvane-test"_s);
    const QString folder = qEnvironmentVariable(folderVariable);
    if (!folder.isEmpty())
        return shootUntilKilled(folder);
    TestCaptureKill test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_capturekill.moc"
