#include "shared/SessionLog.h"

#include <cstdlib>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QtDebug>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

namespace {

const QString childMark = QStringLiteral("--log-in-a-process-of-its-own");

/// What the test starts as a process of its own, to see its stderr and its end.
int runChild(const QString &logPath)
{
    morvane::sessionLogEnabled = true;
    SessionLog log;
    if (!log.open(logPath))
        return EXIT_FAILURE;
    qDebug("one %d", 1);
    qWarning("two");
    qCritical("three");
    qFatal("four");
    return EXIT_SUCCESS;
}

} // namespace

class TestSessionLog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void isOffAtTheStart();
    void nothingIsLoggedWhileOff();
    void linesHaveTimeLevelAndText();
    void existingFileIsReplaced();
    void otherLanguagesSurvive();
    void closedLogTakesNoMoreMessages();
    void closeGivesTheHandlerBack();
    void closeIsHarmlessWithoutALog();
    void openAgainEndsTheLogBefore();
    void anotherLogTakesOver();
    void fileThatCannotBeMadeLeavesTheHandler();
    void destroyedLogIsClosed();
    void messagesOfManyThreadsStayWhole();
    void stderrFormatsAndFatalEnd();

private:
    QStringList lines(const QString &name = QStringLiteral("session.log")) const;
    QString path(const QString &name = QStringLiteral("session.log")) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestSessionLog::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    morvane::sessionLogEnabled = QTest::currentTestFunction() != QByteArray("isOffAtTheStart");
}

void TestSessionLog::cleanup()
{
    morvane::sessionLogEnabled = false;
}

QString TestSessionLog::path(const QString &name) const
{
    return m_folder->filePath(name);
}

QStringList TestSessionLog::lines(const QString &name) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
}

void TestSessionLog::isOffAtTheStart()
{
    QVERIFY(!morvane::sessionLogEnabled);
}

void TestSessionLog::nothingIsLoggedWhileOff()
{
    morvane::sessionLogEnabled = false;
    SessionLog log;
    const QtMessageHandler before = qInstallMessageHandler(nullptr);
    qInstallMessageHandler(before);
    QVERIFY(!log.open(path()));
    QVERIFY(!log.isOpen());
    QVERIFY(!QFile::exists(path()));
    const QtMessageHandler now = qInstallMessageHandler(before);
    QCOMPARE(reinterpret_cast<quintptr>(now), reinterpret_cast<quintptr>(before));
}

void TestSessionLog::linesHaveTimeLevelAndText()
{
    SessionLog log;
    QVERIFY(log.open(path()));
    QVERIFY(log.isOpen());
    qDebug("first %d%%", 5);
    qInfo("second");
    qWarning("third");
    qCritical("fourth");
    // Readable while the session goes on.
    const QStringList written = lines();
    QCOMPARE(written.size(), 5);
    const QStringList expected{QStringLiteral("Debug: first 5%"), QStringLiteral("Debug: second"),
                               QStringLiteral("Warning: third"), QStringLiteral("Critical: fourth")};
    for (int i = 0; i < expected.size(); ++i) {
        const QRegularExpression line(QStringLiteral("^\\d\\d:\\d\\d:\\d\\d ")
                                      + QRegularExpression::escape(expected.at(i)) + QStringLiteral("$"));
        QVERIFY2(line.match(written.at(i)).hasMatch(), qPrintable(written.at(i)));
    }
    QCOMPARE(written.last(), QString());
}

void TestSessionLog::existingFileIsReplaced()
{
    QFile old(path());
    QVERIFY(old.open(QIODevice::WriteOnly));
    old.write("a session of long ago\n");
    old.close();
    QVERIFY(old.open(QIODevice::ReadOnly));
    SessionLog log;
    QVERIFY(log.open(path()));
    QCOMPARE(lines(), QStringList{QString()});
    // Deleted, not emptied: who still has it open keeps its text.
    QCOMPARE(old.readAll(), QByteArray("a session of long ago\n"));
}

void TestSessionLog::otherLanguagesSurvive()
{
    SessionLog log;
    log.open(path());
    qDebug().noquote() << QStringLiteral("Кадр");
    QVERIFY(lines().first().endsWith(QStringLiteral(" Debug: Кадр")));
}

void TestSessionLog::closedLogTakesNoMoreMessages()
{
    SessionLog log;
    log.open(path());
    qDebug("inside");
    log.close();
    QVERIFY(!log.isOpen());
    QTest::ignoreMessage(QtDebugMsg, "outside");
    qDebug("outside");
    QCOMPARE(lines().size(), 2);
}

void TestSessionLog::closeGivesTheHandlerBack()
{
    const QtMessageHandler before = qInstallMessageHandler(nullptr);
    qInstallMessageHandler(before);
    SessionLog log;
    log.open(path());
    log.close();
    const QtMessageHandler now = qInstallMessageHandler(before);
    QCOMPARE(reinterpret_cast<quintptr>(now), reinterpret_cast<quintptr>(before));
}

void TestSessionLog::closeIsHarmlessWithoutALog()
{
    SessionLog log;
    log.close();
    log.open(path());
    log.close();
    log.close();
    QVERIFY(!log.isOpen());
}

void TestSessionLog::openAgainEndsTheLogBefore()
{
    const QString second = QStringLiteral("second.log");
    SessionLog log;
    log.open(path());
    qDebug("one");
    QVERIFY(log.open(path(second)));
    qDebug("two");
    log.close();
    QVERIFY(lines().first().endsWith(QStringLiteral("one")));
    QCOMPARE(lines().size(), 2);
    QVERIFY(lines(second).first().endsWith(QStringLiteral("two")));
    // The handler of before is back, and is not the log's own.
    QTest::ignoreMessage(QtDebugMsg, "three");
    qDebug("three");
    QCOMPARE(lines(second).size(), 2);
}

void TestSessionLog::anotherLogTakesOver()
{
    SessionLog first;
    SessionLog second;
    first.open(path());
    QVERIFY(second.open(path(QStringLiteral("second.log"))));
    QVERIFY(!first.isOpen());
    first.close();
    QVERIFY(second.isOpen());
}

void TestSessionLog::fileThatCannotBeMadeLeavesTheHandler()
{
    SessionLog log;
    QVERIFY(!log.open(path(QStringLiteral("no/such/folder.log"))));
    QVERIFY(!log.open(QString()));
    QVERIFY(!log.isOpen());
    QTest::ignoreMessage(QtDebugMsg, "still heard");
    qDebug("still heard");
}

void TestSessionLog::destroyedLogIsClosed()
{
    {
        SessionLog log;
        log.open(path());
    }
    QTest::ignoreMessage(QtDebugMsg, "still heard");
    qDebug("still heard");
    QCOMPARE(lines().size(), 1);
}

void TestSessionLog::messagesOfManyThreadsStayWhole()
{
    constexpr int threadCount = 4;
    constexpr int messagesEach = 50;
    SessionLog log;
    log.open(path());
    std::vector<std::unique_ptr<QThread>> threads;
    for (int number = 0; number < threadCount; ++number) {
        threads.emplace_back(QThread::create([number] {
            for (int i = 0; i < messagesEach; ++i)
                qDebug("thread %d says %d", number, i);
        }));
        threads.back()->start();
    }
    for (const auto &thread : threads)
        thread->wait();
    log.close();
    QStringList written = lines();
    QCOMPARE(written.takeLast(), QString());
    QCOMPARE(written.size(), threadCount * messagesEach);
    static const QRegularExpression whole(
        QStringLiteral("^\\d\\d:\\d\\d:\\d\\d Debug: thread \\d says \\d+$"));
    for (const QString &line : std::as_const(written))
        QVERIFY2(whole.match(line).hasMatch(), qPrintable(line));
}

void TestSessionLog::stderrFormatsAndFatalEnd()
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {childMark, path()});
    QVERIFY(child.waitForFinished());
    QCOMPARE(child.exitStatus(), QProcess::CrashExit);
    QCOMPARE(child.readAllStandardError(),
             QByteArray("Debug: one 1\nWarning: two\nCritical: three\nFatal: four\n"));
    const QStringList written = lines();
    QCOMPARE(written.size(), 5);
    QVERIFY(written.at(3).endsWith(QStringLiteral(" Fatal: four")));
}

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3 && arguments.at(1) == childMark)
        return runChild(arguments.at(2));
    TestSessionLog test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_sessionlog.moc"
