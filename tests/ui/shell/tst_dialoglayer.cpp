#include "support/ShellWindow.h"

#include <QFile>
#include <QSignalSpy>
#include <QTest>

/// The dialog layer of the scene: one dialog over a dimmed scene, the question before work is lost, and the
/// dialog that follows long work.
class TestDialogLayer : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsThereAtTheStart();
    void showsTheDialogThatTheWindowNames_data();
    void showsTheDialogThatTheWindowNames();
    void showsOneDialogAtMost();
    void curtainIsDarkerDuringACapture();
    void clickOnTheCurtainIsToldAndReachesNothingBehind();
    void clickIntoTheDialogIsNoClickOnTheCurtain();
    void closeButtonIsHiddenWhereADialogClosesItself_data();
    void closeButtonIsHiddenWhereADialogClosesItself();
    void closeButtonForgetsWhatWasToFollow();
    void endingDialogTellsAndGivesTheKeyboardBack();
    void dialogPausesTheLiveViewOnTheCaptureTab();
    void dialogLeavesTheLiveViewAloneElsewhere();
    void fileThatIsNotThereDoesNotHoldTheSceneUp();

    void questionBeforeWorkIsLost_data();
    void questionBeforeWorkIsLost();
    void questionIsAnsweredWithTheKeyboard_data();
    void questionIsAnsweredWithTheKeyboard();
    void noQuestionWithoutChanges();

    void progressShowsItsDialogUntilTheEnd();
    void endOfAJobWithErrorsKeepsTheDialogOpen();
    void endOfAJobThatAsksForItKeepsTheDialogOpen();
    void progressLeavesOtherDialogsAloneAtItsEnd();
    void closingTheProgressDialogStopsTheWorkAndForgetsItsErrors();

private:
    static QVariant inside(ShellWindow &shell, const QString &expression)
    {
        return shell.evaluateInside(shell.item("dialogLayer"), expression);
    }
    static QQuickItem *closeButton(ShellWindow &shell)
    {
        return shell.findItem("icon", "svgicons/close.svg", shell.item("dialogLayer"));
    }
};

namespace {

/// A value that a test puts into the project, and finds again in its file.
const char *const changedTitle = "The Hare and the Tortoise";

void makeDirty(ShellWindow &shell)
{
    shell.global().setMovieTitle(changedTitle);
    QVERIFY(!shell.window().allowQuietExit());
}

} // namespace

void TestDialogLayer::nothingIsThereAtTheStart()
{
    ShellWindow shell;
    QVERIFY(!shell.item("dialogLayer")->isVisible());
    QCOMPARE(shell.window().qmlDialogUrl(), QString());
    QVERIFY(!shell.window().qmlDialogVisible());
    QVERIFY(shell.hasKeyboard());
}

void TestDialogLayer::showsTheDialogThatTheWindowNames_data()
{
    QTest::addColumn<QString>("function");
    QTest::newRow("SaveConfirmDialog.qml") << "saveConfirmBox()";
    QTest::newRow("CamReconnectConfirmDialog.qml") << "camReconnectConfirmBox()";
    QTest::newRow("CamDisconnectConfirmDialog.qml") << "camDisconnectConfirmBox()";
    QTest::newRow("CamReloadDeviceConfirmDialog.qml") << "camReloadDeviceConfirmBox()";
    QTest::newRow("ProjectPresets.qml") << "projectPresetsBox()";
    QTest::newRow("About.qml") << "aboutBox()";
    QTest::newRow("LastProjects.qml") << "lastProjects()";
    QTest::newRow("PropertiesDialog.qml") << "propertiesBox()";
    QTest::newRow("Empty.qml") << "emptyBox()";
}

void TestDialogLayer::showsTheDialogThatTheWindowNames()
{
    QFETCH(QString, function);
    ShellWindow shell;
    shell.evaluate(function);
    QCOMPARE(shell.window().qmlDialogUrl(), QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(shell.window().qmlDialogVisible());
    auto *dialog = shell.evaluate("dialog.item").value<QQuickItem *>();
    QVERIFY(dialog != nullptr);
    QVERIFY(dialog->isVisible());
    QVERIFY(dialog->width() > 0 && dialog->height() > 0);
    QVERIFY(!shell.window().grabWindow().isNull());

    const int normal = shell.evaluate("DefFontSizeNormal").toInt();
    QCOMPARE(inside(shell, "frame.width").toReal(), dialog->width() + 2 * normal);
    QCOMPARE(inside(shell, "frame.height").toReal(), dialog->height() + 2 * normal);
    QCOMPARE(inside(shell, "frame.opacity").toReal(), 0.3);
    QCOMPARE(inside(shell, "frame.color").value<QColor>(), QColor(Qt::white));
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestDialogLayer::showsOneDialogAtMost()
{
    ShellWindow shell;
    shell.evaluate("aboutBox()");
    const QPointer<QQuickItem> first = shell.evaluate("dialog.item").value<QQuickItem *>();
    QVERIFY(first != nullptr);
    shell.evaluate("propertiesBox()");
    QVERIFY(shell.evaluate("dialog.item").value<QQuickItem *>() != first);
    QTRY_VERIFY(first.isNull());
    QVERIFY(shell.window().qmlDialogVisible());
}

void TestDialogLayer::curtainIsDarkerDuringACapture()
{
    ShellWindow shell;
    shell.evaluate("aboutBox()");
    QCOMPARE(inside(shell, "curtain.opacity").toReal(), 0.3);
    shell.global().setCapturingInprogress(0);
    QCOMPARE(inside(shell, "curtain.opacity").toReal(), 0.75);
    shell.global().setCapturingInprogress(-1);
    QCOMPARE(inside(shell, "curtain.opacity").toReal(), 0.3);
    QCOMPARE(inside(shell, "curtain.width").toInt(), shell.window().width());
    QCOMPARE(inside(shell, "curtain.height").toInt(), shell.window().height());
}

void TestDialogLayer::clickOnTheCurtainIsToldAndReachesNothingBehind()
{
    ShellWindow shell;
    shell.evaluate("aboutBox()");
    QSignalSpy clicks(shell.item("dialogLayer"), SIGNAL(dialogCurtainClick(double, double)));
    QVERIFY(clicks.isValid());
    QQuickItem *tab = shell.findItem("text", "Docs");
    QVERIFY(tab != nullptr);
    const QPoint place = tab->mapToScene(QPointF(5, 5)).toPoint();
    shell.click(tab);
    QCOMPARE(clicks.count(), 1);
    QTest::mouseClick(&shell.window(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(clicks.count(), 2);
    QCOMPARE(clicks.at(1).at(0).toInt(), place.x());
    QCOMPARE(clicks.at(1).at(1).toInt(), place.y());
    QCOMPARE(shell.global().currentActiveTab(), int(Zum::CaptureTab));
    QCOMPARE(shell.window().qmlDialogUrl(), "About.qml");
}

void TestDialogLayer::clickIntoTheDialogIsNoClickOnTheCurtain()
{
    ShellWindow shell;
    shell.evaluate("aboutBox()");
    QSignalSpy clicks(shell.item("dialogLayer"), SIGNAL(dialogCurtainClick(double, double)));
    auto *dialog = shell.evaluate("dialog.item").value<QQuickItem *>();
    const QPoint corner = dialog->mapToScene(QPointF(3, 3)).toPoint();
    QTest::mouseClick(&shell.window(), Qt::LeftButton, Qt::NoModifier, corner);
    QCOMPARE(clicks.count(), 0);
}

void TestDialogLayer::closeButtonIsHiddenWhereADialogClosesItself_data()
{
    QTest::addColumn<bool>("shown");
    QTest::newRow("About.qml") << true;
    QTest::newRow("SaveConfirmDialog.qml") << true;
    QTest::newRow("PropertiesDialog.qml") << true;
    QTest::newRow("LoadDialog.qml") << false;
    QTest::newRow("Empty.qml") << false;
}

void TestDialogLayer::closeButtonIsHiddenWhereADialogClosesItself()
{
    QFETCH(bool, shown);
    ShellWindow shell;
    shell.window().setQmlDialogUrl(QTest::currentDataTag());
    QVERIFY(shell.evaluate("dialog.item !== null").toBool());
    QCOMPARE(closeButton(shell) != nullptr, shown);
}

void TestDialogLayer::closeButtonForgetsWhatWasToFollow()
{
    ShellWindow shell;
    shell.evaluate("aboutBox()");
    shell.global().setAfterConfirmAction(Zum::OpenProjectAfterConfirm);
    QSignalSpy closing(&shell.global(), &WebcamGlobal::dialogClosing);
    shell.click(closeButton(shell));
    QVERIFY(closing.count() > 0);
    QCOMPARE(shell.window().qmlDialogUrl(), QString());
    QCOMPARE(shell.global().afterConfirmAction(), int(Zum::NoAfterConfirmAction));
}

void TestDialogLayer::endingDialogTellsAndGivesTheKeyboardBack()
{
    ShellWindow shell;
    shell.evaluate("propertiesBox()");
    // A field of the dialog takes the keyboard.
    shell.press(Qt::Key_Tab);
    QVERIFY(!shell.hasKeyboard());
    QSignalSpy closing(&shell.global(), &WebcamGlobal::dialogClosing);
    shell.window().setQmlDialogUrl({});
    QVERIFY(closing.count() > 0);
    QVERIFY(!shell.window().qmlDialogVisible());
    QVERIFY(!shell.item("dialogLayer")->isVisible());
    QVERIFY(shell.hasKeyboard());
}

void TestDialogLayer::dialogPausesTheLiveViewOnTheCaptureTab()
{
    ShellWindow shell;
    QVERIFY(!shell.global().paused());
    shell.evaluate("aboutBox()");
    QVERIFY(shell.global().paused());
    shell.window().setQmlDialogUrl("PropertiesDialog.qml");
    QVERIFY(shell.global().paused());
    shell.window().setQmlDialogUrl({});
    QVERIFY(!shell.global().paused());
}

void TestDialogLayer::dialogLeavesTheLiveViewAloneElsewhere()
{
    ShellWindow shell;
    for (const char *tab : {"timingUIisOn", "playbackUIisOn", "docsUIisOn"}) {
        shell.global().setMainTabsState(tab);
        QVERIFY2(shell.global().paused(), tab);
        shell.evaluate("aboutBox()");
        shell.window().setQmlDialogUrl({});
        QVERIFY2(shell.global().paused(), tab);
    }
}

void TestDialogLayer::fileThatIsNotThereDoesNotHoldTheSceneUp()
{
    ShellWindow shell;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Nowhere.qml"));
    shell.window().setQmlDialogUrl("Nowhere.qml");
    QTRY_COMPARE(shell.window().qmlDialogUrl(), QString());
    QVERIFY(!shell.window().qmlDialogVisible());
    QVERIFY(!shell.item("dialogLayer")->isVisible());
    QVERIFY(shell.hasKeyboard());
    shell.evaluate("aboutBox()");
    QVERIFY(shell.evaluate("dialog.item !== null").toBool());
}

void TestDialogLayer::questionBeforeWorkIsLost_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("answer");
    for (const char *before : {"quitting", "opening another", "creating another"}) {
        for (const char *answer : {"Ok", "Cancel", "close"})
            QTest::addRow("%s, %s", before, answer) << before << answer;
    }
}

void TestDialogLayer::questionBeforeWorkIsLost()
{
    QFETCH(QString, before);
    QFETCH(QString, answer);
    ShellWindow shell;
    QVERIFY(shell.createProject("second"));
    const QString other = shell.window().projPath();
    QVERIFY(shell.createProject("first"));
    const QString here = shell.window().projPath();
    makeDirty(shell);
    shell.dialogs().asked.clear();

    if (before == "quitting")
        shell.window().quit();
    else if (before == "opening another")
        shell.evaluate(QString("openProject('%1')").arg(other));
    else
        shell.evaluate("createNewProject()");
    QCOMPARE(shell.window().qmlDialogUrl(), "SaveConfirmDialog.qml");
    QVERIFY(shell.findItem("text", "Save Project?") != nullptr);
    QCOMPARE(shell.quits(), 0);
    QVERIFY(shell.dialogs().asked.isEmpty());
    QCOMPARE(shell.window().projPath(), here);

    const QByteArray unsaved = shell.projectFileText();
    shell.click(answer == "close" ? closeButton(shell) : shell.findItem("text", answer));
    QTRY_COMPARE(shell.window().qmlDialogUrl(), QString());
    if (answer == "close") {
        QTest::qWait(20);
        QCOMPARE(shell.quits(), 0);
        QVERIFY(shell.dialogs().asked.isEmpty());
        QCOMPARE(shell.window().projPath(), here);
        QVERIFY(!shell.window().allowQuietExit());
    } else if (before == "quitting") {
        QTRY_COMPARE(shell.quits(), 1);
    } else if (before == "opening another") {
        QTRY_COMPARE(shell.window().projPath(), other);
        QTRY_VERIFY(shell.window().projectLoaded());
        QVERIFY(shell.messages().contains("File: Project loaded"));
    } else {
        QTRY_COMPARE(shell.dialogs().asked.size(), 1);
        QCOMPARE(shell.dialogs().asked.constFirst().caption, "Create New Project...");
    }
    QCOMPARE(shell.global().afterConfirmAction(), int(Zum::NoAfterConfirmAction));
    QFile file(here);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QCOMPARE(content.contains(changedTitle), answer == "Ok");
    QCOMPARE(content == unsaved, answer != "Ok");
}

void TestDialogLayer::questionIsAnsweredWithTheKeyboard_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("quits");
    QTest::addColumn<bool>("saved");
    QTest::newRow("Return saves and goes on") << int(Qt::Key_Return) << 1 << true;
    QTest::newRow("Escape goes back to work") << int(Qt::Key_Escape) << 0 << false;
}

void TestDialogLayer::questionIsAnsweredWithTheKeyboard()
{
    QFETCH(int, key);
    QFETCH(int, quits);
    QFETCH(bool, saved);
    ShellWindow shell;
    QVERIFY(shell.createProject());
    makeDirty(shell);
    shell.window().quit();
    QVERIFY(shell.hasKeyboard());
    shell.press(key);
    QTRY_COMPARE(shell.quits(), quits);
    QCOMPARE(shell.window().qmlDialogUrl(), QString());
    QCOMPARE(shell.projectFileText().contains(changedTitle), saved);
    QTRY_COMPARE(shell.global().afterConfirmAction(), int(Zum::NoAfterConfirmAction));
    QVERIFY(shell.hasKeyboard());
}

void TestDialogLayer::noQuestionWithoutChanges()
{
    ShellWindow shell;
    QVERIFY(shell.createProject());
    QVERIFY(shell.window().allowQuietExit());
    shell.window().quit();
    QCOMPARE(shell.quits(), 1);
    QCOMPARE(shell.window().qmlDialogUrl(), QString());
}

void TestDialogLayer::progressShowsItsDialogUntilTheEnd()
{
    ShellWindow shell;
    shell.window().setProgressAction("Drawing frames");
    shell.window().setProgressTotal(10);
    QCOMPARE(shell.window().qmlDialogUrl(), "LoadDialog.qml");
    QVERIFY(shell.findItem("text", "Drawing frames") != nullptr);
    shell.window().setProgressCurrent(5);
    QVERIFY(shell.findItem("text", "50 %") != nullptr);
    shell.window().setProgressTotal(0);
    QCOMPARE(shell.window().qmlDialogUrl(), QString());
}

void TestDialogLayer::endOfAJobWithErrorsKeepsTheDialogOpen()
{
    ShellWindow shell;
    shell.window().setProgressTotal(10);
    shell.window().setErrorString("Frame 4 has no picture");
    shell.window().setProgressTotal(0);
    QCOMPARE(shell.window().qmlDialogUrl(), "LoadDialog.qml");
    QVERIFY(shell.findItem("text", "Completed") != nullptr);
    QVERIFY(shell.findItem("text", "Robot: Frame 4 has no picture") != nullptr);
}

void TestDialogLayer::endOfAJobThatAsksForItKeepsTheDialogOpen()
{
    ShellWindow shell;
    shell.global().setDialogRemainsVisible(true);
    shell.window().setProgressTotal(10);
    shell.window().setProgressTotal(0);
    QCOMPARE(shell.window().qmlDialogUrl(), "LoadDialog.qml");
    shell.click(shell.findItem("text", "Close"));
    QCOMPARE(shell.window().qmlDialogUrl(), QString());
}

void TestDialogLayer::progressLeavesOtherDialogsAloneAtItsEnd()
{
    ShellWindow shell;
    shell.window().setProgressTotal(10);
    shell.evaluate("saveConfirmBox()");
    shell.window().setProgressTotal(0);
    QCOMPARE(shell.window().qmlDialogUrl(), "SaveConfirmDialog.qml");
}

void TestDialogLayer::closingTheProgressDialogStopsTheWorkAndForgetsItsErrors()
{
    ShellWindow shell;
    QSignalSpy stops(&shell.window(), &MainWindow::stopRobot);
    shell.window().setProgressTotal(10);
    shell.window().setErrorString("Frame 4 has no picture");
    shell.global().setPaused(true);
    shell.controllers().lifecycle.setLoadingProject(true);
    shell.click(shell.findItem("text", "Cancel"));
    QCOMPARE(stops.count(), 1);
    QVERIFY(!shell.window().loadingProject());
    QCOMPARE(shell.window().robotErrorCount(), 0);
    QCOMPARE(shell.evaluate("robotMessgModel.count").toInt(), 0);
    QCOMPARE(shell.window().qmlDialogUrl(), QString());
}

QTEST_MAIN(TestDialogLayer)
#include "tst_dialoglayer.moc"
