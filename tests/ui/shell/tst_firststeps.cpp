#include "FirstStepsWindow.h"

#include "app/Translations.h"

#include <QFile>

using namespace Qt::StringLiterals;

/// What the Capture tab shows until there is something to see: what to do, in order, by buttons and by keys.
class TestFirstSteps : public QObject
{
    Q_OBJECT

private slots:
    void withoutAProjectTheFirstStepIsTheProject();
    void newProjectTicksTheFirstStep();
    void openingAProjectTakesTheFirstStep();
    void cancelledDialogLeavesTheStepsAsTheyAre();
    void lastProjectsAreOffered();
    void projectWhoseFileIsGoneIsNotOffered();
    void moreProjectsLeadToTheirDialog();
    void kindWithoutDriverLeadsToACameraByOnePress_data();
    void kindWithoutDriverLeadsToACameraByOnePress();
    void chosenCameraIsNamedAndConnected();
    void anotherCameraCanBeChosen();
    void cameraThatDoesNotConnectIsToldOfWithWhatToDo();
    void connectingGoesOnAfterAVisitToAnotherTab();
    void connectedCameraTicksItsStepWithoutAProject();
    void stepsGiveWayToThePicture();
    void projectWithFramesShowsThemInstead();
    void stepsComeBackWithTheEndOfTheProject();
    void keysReachTheButtons();
    void everyButtonIsNamedAndExplained();
    void fitsTheWindow_data();
    void fitsTheWindow();
};

void TestFirstSteps::withoutAProjectTheFirstStepIsTheProject()
{
    FirstStepsWindow shell;
    QVERIFY(shell.settle());
    QVERIFY(shell.isPresent("stepProject"));
    QVERIFY(!shell.isPresent("stepCamera"));
    QVERIFY(!shell.isPresent("stepShoot"));
    QVERIFY(shell.part("createFirst") != nullptr);
    QVERIFY(shell.part("openFirst") != nullptr);
    QVERIFY(shell.part("connectFirst") == nullptr);
    QVERIFY(shell.part("recentFirst") == nullptr);
    QVERIFY(shell.part("stepProject")->y() < shell.part("stepCamera")->y());
    QVERIFY(shell.part("stepCamera")->y() < shell.part("stepShoot")->y());
    QCOMPARE(shell.wordsOf("stepShoot"), "Pose the puppet and press Enter for each frame.");
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestFirstSteps::newProjectTicksTheFirstStep()
{
    FirstStepsWindow shell;
    QVERIFY(shell.makeProject());
    QVERIFY(shell.isDone("stepProject"));
    QCOMPARE(shell.wordsOf("stepProject"), "film");
    QVERIFY(shell.isPresent("stepCamera"));
    QVERIFY(shell.part("createFirst") == nullptr);
    QVERIFY(shell.part("connectFirst") != nullptr);
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestFirstSteps::openingAProjectTakesTheFirstStep()
{
    FirstStepsWindow shell;
    QVERIFY(shell.makeProject());
    shell.window().closeProject();
    QTRY_VERIFY(shell.isPresent("stepProject"));
    shell.dialogs().pathAnswers.append(shell.folder() + "/film.kzfx");
    shell.clickPart("openFirst");
    QTRY_VERIFY(shell.isPresent("stepCamera"));
}

void TestFirstSteps::cancelledDialogLeavesTheStepsAsTheyAre()
{
    FirstStepsWindow shell;
    shell.clickPart("createFirst");
    QCOMPARE(shell.dialogs().asked.size(), 1);
    QVERIFY(shell.isPresent("stepProject"));
    shell.clickPart("openFirst");
    QCOMPARE(shell.dialogs().asked.size(), 2);
    QVERIFY(shell.isPresent("stepProject"));
}

void TestFirstSteps::lastProjectsAreOffered()
{
    FirstStepsWindow shell;
    QVERIFY(shell.makeProject("walk"));
    shell.window().closeProject();
    QTRY_VERIFY(shell.part("recentFirst") != nullptr);
    QCOMPARE(shell.part("recentFirst")->property("text").toString(), "walk");
    QVERIFY(shell.part("moreRecentFirst") == nullptr);
    shell.clickPart("recentFirst");
    QTRY_VERIFY(shell.window().projectLoaded());
    QCOMPARE(shell.window().projName(), "walk");
}

void TestFirstSteps::projectWhoseFileIsGoneIsNotOffered()
{
    FirstStepsWindow shell;
    QVERIFY(shell.makeProject("walk"));
    QVERIFY(QFile::remove(shell.folder() + "/walk.kzfx"));
    shell.window().closeProject();
    QTRY_VERIFY(shell.isPresent("stepProject"));
    QVERIFY(shell.part("recentFirst") == nullptr);
}

void TestFirstSteps::moreProjectsLeadToTheirDialog()
{
    FirstStepsWindow shell;
    for (const char *name : {"one", "two", "three", "four"}) {
        QVERIFY(shell.makeProject(name));
        shell.window().closeProject();
        QTRY_VERIFY(shell.isPresent("stepProject"));
    }
    int offered = 0;
    for (const char *name : {"one", "two", "three", "four"})
        offered += shell.findItem("text", QString(name), shell.part("stepProject")) != nullptr ? 1 : 0;
    QCOMPARE(offered, 3);
    shell.clickPart("moreRecentFirst");
    QCOMPARE(shell.window().qmlDialogUrl(), "LastProjects.qml");
}

void TestFirstSteps::kindWithoutDriverLeadsToACameraByOnePress_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("a web camera") << u"connectFirst"_s;
    QTest::newRow("the built-in one") << u"demoFirst"_s;
}

void TestFirstSteps::kindWithoutDriverLeadsToACameraByOnePress()
{
    QFETCH(QString, button);
    FirstStepsWindow shell;
    QCOMPARE(shell.window().currentCapturingDevice(), int(Zum::CapturingDeviceCanonEOS));
    QVERIFY(shell.makeProject());
    QVERIFY2(shell.wordsOf("stepCamera").contains("no driver for DSLR"),
             qPrintable(shell.wordsOf("stepCamera")));
    QVERIFY(shell.part("chooseFirst") == nullptr);
    shell.swapQuickly();
    shell.clickPart(button);
    QTRY_VERIFY_WITH_TIMEOUT(shell.global().connected(), 10000);
    QCOMPARE(shell.global().cameraName(), "Demo Webcam #301");
    QCOMPARE(shell.window().getSetting("currentCapturingDevice", -1).toInt(),
             int(Zum::CapturingDeviceWebcam));
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestFirstSteps::chosenCameraIsNamedAndConnected()
{
    ShellWindow::Options options;
    options.settings.insert("currentCapturingDevice", int(Zum::CapturingDeviceWebcam));
    FirstStepsWindow shell(options);
    QVERIFY(shell.makeProject());
    QTRY_COMPARE(shell.wordsOf("stepCamera"), "Demo Webcam #301");
    // It is the one that is chosen, so nothing else need lead to it.
    QVERIFY(shell.part("demoFirst") == nullptr);
    shell.clickPart("connectFirst");
    QTRY_VERIFY_WITH_TIMEOUT(shell.global().connected(), 10000);
}

void TestFirstSteps::anotherCameraCanBeChosen()
{
    ShellWindow::Options options;
    options.settings.insert("currentCapturingDevice", int(Zum::CapturingDeviceWebcam));
    FirstStepsWindow shell(options);
    QVERIFY(shell.makeProject());
    shell.clickPart("chooseFirst");
    QCOMPARE(shell.window().qmlDialogUrl(), "DeviceSelectionDialog.qml");
}

void TestFirstSteps::cameraThatDoesNotConnectIsToldOfWithWhatToDo()
{
    ShellWindow::Options options;
    options.settings.insert("currentCapturingDevice", int(Zum::CapturingDeviceWebcam));
    FirstStepsWindow shell(options);
    QVERIFY(shell.makeProject());
    shell.controllers().capture.demo().setPresent(false);
    shell.clickPart("connectFirst");
    QTRY_VERIFY2(shell.wordsOf("stepCamera").startsWith("Camera not present"),
                 qPrintable(shell.wordsOf("stepCamera")));
    QVERIFY(shell.wordsOf("stepCamera").contains("choose another camera"));
    QTRY_VERIFY(shell.part("connectFirst")->property("active").toBool());

    shell.controllers().capture.demo().setPresent(true);
    shell.clickPart("connectFirst");
    QTRY_VERIFY_WITH_TIMEOUT(shell.global().connected(), 10000);
    // The advice stands in the messages as well, below what went wrong.
    const int told = int(shell.messages().indexOf(
        "Camera: Camera not present, not connected or not supported. Check hardware connection"));
    QVERIFY(told >= 0);
    QVERIFY2(shell.messages().value(told + 1).contains("Close other programs"),
             qPrintable(shell.messages().join('\n')));
}

void TestFirstSteps::connectingGoesOnAfterAVisitToAnotherTab()
{
    FirstStepsWindow shell;
    QVERIFY(shell.makeProject());
    shell.swapQuickly();
    shell.clickPart("connectFirst");
    shell.global().setMainTabsState("timingUIisOn");
    QTRY_COMPARE(shell.window().currentCapturingDevice(), int(Zum::CapturingDeviceWebcam));
    shell.global().setMainTabsState("captureUIisOn");
    QTRY_VERIFY_WITH_TIMEOUT(shell.global().connected(), 10000);
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestFirstSteps::connectedCameraTicksItsStepWithoutAProject()
{
    ShellWindow::Options options;
    options.settings.insert("currentCapturingDevice", int(Zum::CapturingDeviceWebcam));
    FirstStepsWindow shell(options);
    shell.evaluate("connectCamera(CameraList.demoIndex)");
    QTRY_VERIFY_WITH_TIMEOUT(shell.isDone("stepCamera"), 10000);
    QVERIFY(shell.isPresent("stepProject"));
    QCOMPARE(shell.wordsOf("stepCamera"), "Demo Webcam #301");
    QVERIFY(shell.makeProject());
    QTRY_VERIFY(shell.part("stepProject") == nullptr);
}

void TestFirstSteps::stepsGiveWayToThePicture()
{
    FirstStepsWindow shell;
    QVERIFY(shell.makeProject());
    shell.swapQuickly();
    // Whatever layer was on top before, it is the live picture that is wanted now.
    shell.global().setCamboxState("capturePreviewIsOn");
    shell.clickPart("demoFirst");
    QTRY_VERIFY_WITH_TIMEOUT(shell.global().connected(), 10000);
    QTRY_VERIFY(shell.part("stepProject") == nullptr);
    QCOMPARE(shell.global().camboxState(), "liveViewPreviewIsOn");
}

void TestFirstSteps::projectWithFramesShowsThemInstead()
{
    FirstStepsWindow shell;
    QVERIFY(shell.makeProject());
    QVERIFY(shell.part("stepCamera") != nullptr);
    shell.addFrames(2);
    QTRY_VERIFY(shell.part("stepCamera") == nullptr);
}

void TestFirstSteps::stepsComeBackWithTheEndOfTheProject()
{
    FirstStepsWindow shell;
    QVERIFY(shell.makeProject());
    shell.addFrames(2);
    QTRY_VERIFY(shell.part("stepProject") == nullptr);
    shell.window().closeProject();
    QTRY_VERIFY(shell.isPresent("stepProject"));
}

void TestFirstSteps::keysReachTheButtons()
{
    FirstStepsWindow shell;
    QVERIFY(shell.settle());
    shell.press(Qt::Key_Return);
    QVERIFY(shell.dialogs().asked.isEmpty());

    shell.press(Qt::Key_Tab);
    QTRY_VERIFY(shell.part("createFirst")->hasActiveFocus());
    shell.press(Qt::Key_Tab);
    QVERIFY(shell.part("openFirst")->hasActiveFocus());
    shell.press(Qt::Key_Backtab);
    QVERIFY(shell.part("createFirst")->hasActiveFocus());
    shell.dialogs().pathAnswers.append(shell.folder() + "/film.kzfx");
    shell.press(Qt::Key_Return);
    QTRY_VERIFY(shell.isPresent("stepCamera"));

    shell.press(Qt::Key_Tab);
    QTRY_VERIFY(shell.part("connectFirst")->hasActiveFocus());
    shell.press(Qt::Key_Tab);
    QVERIFY(shell.part("demoFirst")->hasActiveFocus());
    shell.swapQuickly();
    shell.press(Qt::Key_Space);
    QTRY_VERIFY_WITH_TIMEOUT(shell.global().connected(), 10000);

    // The window's own keys go on where the steps have ended.
    QTRY_VERIFY(shell.part("stepCamera") == nullptr);
    shell.press(Qt::Key_Return);
    QTRY_COMPARE(shell.frames().framesCount(), 1);
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestFirstSteps::everyButtonIsNamedAndExplained()
{
    ShellWindow::Options options;
    options.settings.insert("currentCapturingDevice", int(Zum::CapturingDeviceWebcam));
    FirstStepsWindow shell(options);
    const auto check = [&shell](const QString &name) {
        QQuickItem *button = shell.part(name);
        QVERIFY2(button != nullptr, qPrintable(name));
        QVERIFY2(!button->property("label").toString().isEmpty(), qPrintable(name));
        QVERIFY2(!button->property("toolTip").toString().isEmpty(), qPrintable(name));
    };
    check("createFirst");
    check("openFirst");
    QVERIFY(shell.part("createFirst")->property("toolTip").toString().contains("[Ctrl+N]"));
    QVERIFY(shell.makeProject());
    check("connectFirst");
    check("chooseFirst");
    QTRY_VERIFY(shell.part("connectFirst")->property("toolTip").toString().contains("[F5]"));
    QVERIFY(shell.part("captureButton")->property("toolTip").toString().contains("[Enter]"));
}

void TestFirstSteps::fitsTheWindow_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("fontRow");
    QTest::addColumn<QString>("locale");
    for (const QSize size : {QSize(1024, 600), QSize(1920, 1080)}) {
        // The largest letters leave no room for a word in the smallest window.
        for (const int row : {0, size.width() > 1024 ? 8 : 5}) {
            for (const char *locale : {"en_US", "ru_RU"})
                QTest::addRow("%d wide, font %d, %s", size.width(), row, locale)
                    << size << row << QString(locale);
        }
    }
}

void TestFirstSteps::fitsTheWindow()
{
    QFETCH(QSize, size);
    QFETCH(int, fontRow);
    QFETCH(QString, locale);
    ShellWindow::Options options;
    options.size = size;
    options.locale = locale;
    QObject language;
    translations::install(locale, &language);
    options.settings.insert("fontsize", fontRow);
    FirstStepsWindow shell(options);
    for (const char *name : {"one", "two", "three", "four"}) {
        shell.window().closeProject();
        QTRY_VERIFY(shell.isPresent("stepProject"));
        QVERIFY(shell.createProject(QString("The long way home, part ") + name));
        QVERIFY(shell.settle());
    }
    const auto check = [&shell](const QString &state) {
        QVERIFY(shell.settle());
        shell.keepPicture(u"steps-%1-%2"_s.arg(QTest::currentDataTag(), state).replace(u", "_s, u"-"_s));
        QQuickItem *area = shell.item("screenArea");
        const QRectF room = area->mapRectToScene(area->boundingRect());
        for (const char *step : {"stepProject", "stepCamera", "stepShoot"}) {
            QQuickItem *item = shell.part(step);
            QVERIFY(item != nullptr);
            const QRectF box = item->mapRectToScene(item->boundingRect());
            QVERIFY(box.left() >= room.left() && box.right() <= room.right());
            QList<QQuickItem *> open{item};
            while (!open.isEmpty()) {
                QQuickItem *part = open.takeLast();
                if (!part->isVisible())
                    continue;
                open.append(part->childItems());
                const QRectF place = part->mapRectToScene(part->boundingRect());
                QVERIFY2(place.right() <= box.right() + 1, part->metaObject()->className());
                QVERIFY2(!part->inherits("QQuickText") || !part->property("truncated").toBool(),
                         qPrintable(part->property("text").toString()));
            }
        }
    };
    const auto seen = [&shell](const QString &button) {
        QQuickItem *area = shell.item("screenArea");
        const QRectF room = area->mapRectToScene(area->boundingRect());
        const QRectF place = shell.part(button)->mapRectToScene(shell.part(button)->boundingRect());
        return place.top() >= room.top() && place.bottom() <= room.bottom();
    };
    check("camera");
    // What is to be done next is in sight without scrolling.
    QVERIFY(seen("connectFirst") || fontRow == 8);
    shell.window().closeProject();
    QTRY_VERIFY(shell.isPresent("stepProject"));
    check("project");
    QVERIFY(seen("createFirst"));
}

QTEST_MAIN(TestFirstSteps)
#include "tst_firststeps.moc"
