#include "DemoRun.h"

#include <QTest>

/// The program with "--demo" where there is a screen.
class TestDemoOnScreen : public QObject
{
    Q_OBJECT

private slots:
    void wholeDemoInTheWindow();
    void noWindowWhereNoneIsWanted();
};

void TestDemoOnScreen::wholeDemoInTheWindow()
{
    DemoRun run;
    run.start({"--demo", run.path("films")});
    QVERIFY2(run.waitFor("3/7"), qPrintable(run.said() + run.complaints()));
    QVERIFY(run.said().startsWith("A demo of 24 frames on twos, in the window\n"));
    QProcess search;
    search.start("xdotool", {"search", "--onlyvisible", "--name", "Morvane Capture"});
    QVERIFY(search.waitForFinished());
    QVERIFY(!search.readAllStandardOutput().trimmed().isEmpty());
    QCOMPARE(run.end(), 0);
    DemoRun::checkWhole(run.path("films/morvane-demo"));
}

void TestDemoOnScreen::noWindowWhereNoneIsWanted()
{
    DemoRun run;
    run.environment.insert("QT_QPA_PLATFORM", "offscreen");
    run.start({"--demo", run.path("films")});
    QVERIFY2(run.waitFor("1/7"), qPrintable(run.said() + run.complaints()));
    QVERIFY(run.said().startsWith("A demo of 24 frames on twos, without a window\n"));
    run.process().terminate();
    QCOMPARE(run.end(), 1);
}

QTEST_MAIN(TestDemoOnScreen)
#include "tst_demoonscreen.moc"
