#include <QProcess>
#include <QTest>

class TestNoScreen : public QObject
{
    Q_OBJECT

private slots:
    void programTellsThatThereIsNoScreen_data();
    void programTellsThatThereIsNoScreen();
};

void TestNoScreen::programTellsThatThereIsNoScreen_data()
{
    QTest::addColumn<QString>("display");
    QTest::newRow("none is named") << "";
    QTest::newRow("the named one does not answer") << ":7654321";
}

void TestNoScreen::programTellsThatThereIsNoScreen()
{
    QFETCH(const QString, display);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("WAYLAND_DISPLAY");
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.insert("DISPLAY", display);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(MORVANE_PROGRAM, QStringList());
    QVERIFY(program.waitForFinished(30000));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 1);
    const QByteArray told = program.readAllStandardError();
    QVERIFY2(told.startsWith("Morvane Capture has found no screen"), told.constData());
    QVERIFY2(told.contains("could not connect to display " + display.toLocal8Bit()), told.constData());
    QVERIFY2(!told.contains("Reinstalling the application"), told.constData());
    QCOMPARE(program.readAllStandardOutput(), QByteArray());
}

QTEST_GUILESS_MAIN(TestNoScreen)
#include "tst_noscreen.moc"
