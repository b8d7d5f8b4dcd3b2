#include "support/ShellWindow.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTest>

/// A render of the open project in the window, with the real worker, encoder and dialog.
class TestRenderOnScreen : public QObject
{
    Q_OBJECT

private slots:
    void dialogFollowsTheRenderToItsMovie();
    void cancelEndsTheRenderBetweenTwoFrames();
    void whatWentWrongIsReadInTheDialog();
    void programClosesDuringARender();

private:
    static void shoot(ShellWindow &shell, int count);
    static bool start(ShellWindow &shell);
    static bool waitForTheEnd(ShellWindow &shell);
    static QQuickItem *button(ShellWindow &shell, const QString &name);
};

void TestRenderOnScreen::shoot(ShellWindow &shell, int count)
{
    QVERIFY(shell.createProject());
    shell.global().setSoundsOn(false);
    shell.global().setCropAreaW(640);
    shell.global().setCropAreaH(480);
    const QString folder = shell.window().capFullDirPath();
    for (int i = 0; i < count; ++i) {
        const QString name = QStringLiteral("%1.png").arg(i % 8);
        if (i < 8) {
            QImage picture(640, 480, QImage::Format_RGB32);
            picture.fill(QColor::fromHsv(i * 40, 200, 200));
            QVERIFY(picture.save(folder + name));
        }
        shell.frames().appendFrame({{"capFull", name}});
    }
    shell.frames().setTimelineRangeStart(0);
    shell.frames().setTimelineRangeEnd(count - 1);
}

bool TestRenderOnScreen::start(ShellWindow &shell)
{
    return shell.evaluate("MainWindow.runMorvaRobot(Zum.RenderVideo)").toBool();
}

bool TestRenderOnScreen::waitForTheEnd(ShellWindow &shell)
{
    return QTest::qWaitFor([&shell] { return !shell.window().morvaRobotThreadStarted(); }, 20000);
}

QQuickItem *TestRenderOnScreen::button(ShellWindow &shell, const QString &name)
{
    return shell.findItem("objectName", name);
}

void TestRenderOnScreen::dialogFollowsTheRenderToItsMovie()
{
    ShellWindow shell;
    shoot(shell, 12);
    QVERIFY(start(shell));
    QCOMPARE(shell.window().qmlDialogUrl(), "LoadDialog.qml");
    QVERIFY(waitForTheEnd(shell));
    QCOMPARE(shell.window().qmlDialogUrl(), "LoadDialog.qml");
    QVERIFY(shell.findItem("text", "Completed"));
    const QString movie = shell.window().videoDirPath() + "videotest.avi";
    QCOMPARE(shell.global().lastRenderedPath(), movie);
    QVERIFY(QFile::exists(movie));
    QCOMPARE(shell.global().playerSource(), movie);

    QQuickItem *view = button(shell, "viewVideo");
    QVERIFY(view && view->isVisible());
    shell.click(view);
    QCOMPARE(shell.desktop().shown, QStringList(movie));
    shell.click(button(shell, "close"));
    QTRY_COMPARE(shell.window().qmlDialogUrl(), QString());
    QVERIFY(!shell.global().dialogRemainsVisible());
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestRenderOnScreen::cancelEndsTheRenderBetweenTwoFrames()
{
    ShellWindow shell;
    shoot(shell, 600);
    QVERIFY(start(shell));
    QTRY_VERIFY(shell.window().progressCurrent() > 0);
    QCOMPARE(shell.window().progressAction(), "Encoding [ videotest ]");
    QCOMPARE(shell.window().progressTotal(), 600);
    shell.click(button(shell, "close"));
    QVERIFY(waitForTheEnd(shell));
    // The file that was begun is finished, and the dialog comes back to say so.
    QVERIFY(QFile::exists(shell.window().videoDirPath() + "videotest.avi"));
    QCOMPARE(shell.window().errorString(), "Processing image. Robot interrupted");
    QTRY_COMPARE(shell.window().qmlDialogUrl(), "LoadDialog.qml");
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestRenderOnScreen::whatWentWrongIsReadInTheDialog()
{
    ShellWindow shell;
    shoot(shell, 3);
    shell.global().setCropAreaW(200);
    QVERIFY(start(shell));
    QVERIFY(waitForTheEnd(shell));
    QCOMPARE(shell.window().robotErrorCount(), 2);
    QVERIFY(shell.findItem("text", "Robot: Minimum frame size is 320x280"));
    QVERIFY(!button(shell, "viewVideo") || !button(shell, "viewVideo")->isVisible());
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestRenderOnScreen::programClosesDuringARender()
{
    QString movie;
    {
        ShellWindow shell;
        shoot(shell, 600);
        movie = shell.window().videoDirPath() + "videotest.avi.part";
        QVERIFY(start(shell));
        QTRY_VERIFY(shell.window().progressCurrent() > 0);
    }
    QVERIFY(!QFile::exists(movie));
}

QTEST_MAIN(TestRenderOnScreen)
#include "tst_renderonscreen.moc"
