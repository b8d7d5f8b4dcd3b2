#include "support/ShellWindow.h"

#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

/// The ways out of the window and into it: closing it, dropping files on it, and the main menu.
class TestQuitAndDrop : public QObject
{
    Q_OBJECT

private slots:
    void closesWithNothingToSave();
    void unsavedWorkIsAskedFor();
    void closingSixTimesWithARefusedDialogClosesWithoutAsking();
    void closesNotWhileSomethingLongRuns();
    void busyDeviceRefusesOnce();
    void connectedDeviceIsDisconnectedFirst();
    void closingStopsThePlaybackAndRestsTheDisplay();
    void forcedQuitGivesUnsavedWorkUp();
    void placeOfTheWindowIsKept();
    void windowGoesWhileAProjectLoads();

    void onlyAddressesAreTaken_data();
    void onlyAddressesAreTaken();
    void droppedProjectOpens();
    void droppedProjectAsksForUnsavedWork();
    void droppedVideoIsPlayedOnTheVideoTabOnly_data();
    void droppedVideoIsPlayedOnTheVideoTabOnly();
    void droppedPictureIsAnswered();
    void droppedFilesThatAreNoneDoNothing_data();
    void droppedFilesThatAreNoneDoNothing();

    void menuEntry_data();
    void menuEntry();
    void menuSavesAndClears();
    void recentListOpensByKey();
    void recentListOpensAProject();

private:
    static void drop(ShellWindow &shell, const QList<QUrl> &urls);
    static QUrl fileIn(ShellWindow &shell, const QString &name);
    static void choose(ShellWindow &shell, const char *entry);
};

void TestQuitAndDrop::drop(ShellWindow &shell, const QList<QUrl> &urls)
{
    QMimeData data;
    data.setUrls(urls);
    const QPoint place(300, 300);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&shell.window(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&shell.window(), &event);
    QVERIFY(event.isAccepted());
}

QUrl TestQuitAndDrop::fileIn(ShellWindow &shell, const QString &name)
{
    const QString path = shell.folder() + QLatin1Char('/') + name;
    QFile file(path);
    return file.open(QIODevice::WriteOnly) ? QUrl::fromLocalFile(path) : QUrl();
}

void TestQuitAndDrop::choose(ShellWindow &shell, const char *entry)
{
    shell.click(shell.findItem("toolTip", "Main menu"));
    // The panel lies over all else, and other screens may offer the same words.
    QQuickItem *row = nullptr;
    const QList<QQuickItem *> layers = shell.window().contentItem()->childItems();
    for (auto layer = layers.crbegin(); layer != layers.crend() && !row; ++layer)
        row = shell.findItem("text", entry, *layer);
    QVERIFY2(row != nullptr, entry);
    shell.click(row);
    QVERIFY(!shell.findItem("toolTip", "Main menu")->property("opened").toBool());
}

void TestQuitAndDrop::closesWithNothingToSave()
{
    ShellWindow shell;
    QVERIFY(shell.createProject());
    QSignalSpy closing(&shell.window(), &MainWindow::closingChanged);
    QVERIFY(shell.window().close());
    QCOMPARE(shell.quits(), 1);
    QVERIFY(shell.window().closing());
    QCOMPARE(closing.count(), 1);
    QCOMPARE(shell.window().closeAttempts(), 1);
}

void TestQuitAndDrop::unsavedWorkIsAskedFor()
{
    ShellWindow shell;
    QVERIFY(shell.createProject());
    shell.global().setMovieTitle("The Hare");
    QVERIFY(!shell.window().close());
    QVERIFY(shell.window().isVisible());
    QCOMPARE(shell.quits(), 0);
    QVERIFY(!shell.window().closing());
    QCOMPARE(shell.global().afterConfirmAction(), int(Zum::QuitAfterConfirm));
    QCOMPARE(shell.window().qmlDialogUrl(), "SaveConfirmDialog.qml");
}

void TestQuitAndDrop::closingSixTimesWithARefusedDialogClosesWithoutAsking()
{
    ShellWindow shell;
    QVERIFY(shell.createProject());
    shell.global().setMovieTitle("The Hare");
    for (int attempt = 1; attempt <= 5; ++attempt) {
        QVERIFY(!shell.window().close());
        QCOMPARE(shell.window().closeAttempts(), attempt);
        QCOMPARE(shell.window().qmlDialogUrl(), "SaveConfirmDialog.qml");
        shell.window().setQmlDialogUrl({});
        QCOMPARE(shell.quits(), 0);
    }
    QVERIFY(shell.window().close());
    QCOMPARE(shell.quits(), 1);
    QVERIFY(shell.window().closing());
    QCOMPARE(shell.window().qmlDialogUrl(), QString());
}

void TestQuitAndDrop::closesNotWhileSomethingLongRuns()
{
    ShellWindow shell;
    shell.window().setProgressTotal(10);
    QVERIFY(!shell.window().close());
    QCOMPARE(shell.quits(), 0);
    QCOMPARE(shell.window().qmlDialogUrl(), "SaveConfirmDialog.qml");
    shell.window().setProgressTotal(0);
    QVERIFY(shell.window().close());
    QCOMPARE(shell.quits(), 1);
}

void TestQuitAndDrop::busyDeviceRefusesOnce()
{
    ShellWindow shell;
    shell.global().setBusy(true);
    QVERIFY(!shell.window().close());
    QCOMPARE(shell.quits(), 0);
    QVERIFY(shell.window().closing());
    QVERIFY(shell.window().close());
    QCOMPARE(shell.quits(), 1);
}

void TestQuitAndDrop::connectedDeviceIsDisconnectedFirst()
{
    ShellWindow shell;
    shell.global().setConnected(true);
    QSignalSpy disconnects(&shell.global(), &WebcamGlobal::capturingDeviceDisconnect);
    QVERIFY(!shell.window().close());
    QCOMPARE(shell.quits(), 0);
    QCOMPARE(disconnects.count(), 1);
    QVERIFY(shell.global().closeWhenDisconnected());
    QTest::ignoreMessage(QtDebugMsg, "Camera disconnected while having Quit request");
    shell.global().setConnected(false);
    QCOMPARE(shell.quits(), 1);
}

void TestQuitAndDrop::closingStopsThePlaybackAndRestsTheDisplay()
{
    ShellWindow shell;
    QVERIFY(shell.createProject());
    shell.addFrames(5);
    shell.frames().setTimelineFps(12);
    shell.frames().setTimelineRangeEnd(4);
    shell.frames().play();
    QTRY_VERIFY(shell.frames().playing());
    shell.global().setFlipFlop(Zum::FadeFlipFlop);
    shell.global().setStackMode(Zum::StackPast);
    shell.controllers().lifecycle.setLoadingProject(true);
    QVERIFY(shell.window().saveProjectXmlFile(Zum::SaveProject));
    QVERIFY(shell.frames().playing());
    QVERIFY(shell.window().close());
    QVERIFY(!shell.frames().playing());
    QCOMPARE(shell.global().flipFlop(), int(Zum::NoFlipFlop));
    QCOMPARE(shell.global().stackMode(), int(Zum::NoStack));
    QVERIFY(shell.global().paused());
    QVERIFY(!shell.window().loadingProject());
}

void TestQuitAndDrop::forcedQuitGivesUnsavedWorkUp()
{
    ShellWindow shell;
    QVERIFY(shell.createProject());
    shell.global().setMovieTitle("The Hare");
    shell.window().quitApplication(true);
    QCOMPARE(shell.quits(), 1);
    QCOMPARE(shell.window().qmlDialogUrl(), QString());
}

void TestQuitAndDrop::placeOfTheWindowIsKept()
{
    ShellWindow shell;
    const Settings &settings = shell.controllers().settings();
    QVERIFY(!settings.contains("mainwindow/geometry"));
    QVERIFY(shell.window().close());
    QVERIFY(settings.contains("mainwindow/geometry"));
    QVERIFY(!settings.boolean("mainwindow/maximized", true));
    QCOMPARE(settings.integer("mainwindow/screenNumber", -1), 0);
}

void TestQuitAndDrop::windowGoesWhileAProjectLoads()
{
    ShellWindow shell;
    QVERIFY(shell.createProject("long"));
    const QString path = shell.window().projPath();
    for (int i = 0; i < 200; ++i)
        shell.frames().appendFrame({});
    QVERIFY(shell.window().saveProjectXmlFile(Zum::SaveProjectXMLonly));
    QVERIFY(shell.createProject("other"));
    shell.controllers().fileOperations.setSliceMs(0);
    QCOMPARE(shell.window().openProject(path), int(Zum::FileIsOk));
    QCOMPARE(shell.window().currentThreadOperation(), int(Zum::OAddFrames));
    QVERIFY(!shell.window().projectLoaded());
    // What follows is the end of the window.
}

void TestQuitAndDrop::onlyAddressesAreTaken_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("taken");
    QTest::newRow("addresses") << "text/uri-list" << true;
    QTest::newRow("text") << "text/plain" << false;
    QTest::newRow("picture") << "image/png" << false;
}

void TestQuitAndDrop::onlyAddressesAreTaken()
{
    QFETCH(QString, type);
    QFETCH(bool, taken);
    ShellWindow shell;
    QMimeData data;
    data.setData(type, "file:///nowhere/film.kzfx");
    QDragEnterEvent enter(QPoint(300, 300), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&shell.window(), &enter);
    QCOMPARE(enter.isAccepted(), taken);
    QDragMoveEvent move(QPoint(310, 300), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&shell.window(), &move);
    QCOMPARE(move.isAccepted(), taken);
}

void TestQuitAndDrop::droppedProjectOpens()
{
    ShellWindow shell;
    QVERIFY(shell.createProject("film"));
    const QString path = shell.window().projPath();
    shell.window().closeProject();
    QVERIFY(!shell.window().projectLoaded());
    drop(shell, {QUrl::fromLocalFile(path)});
    QTRY_VERIFY(shell.window().projectLoaded());
    QCOMPARE(shell.window().projPath(), path);
}

void TestQuitAndDrop::droppedProjectAsksForUnsavedWork()
{
    ShellWindow shell;
    QVERIFY(shell.createProject("other"));
    const QString other = shell.window().projPath();
    QVERIFY(shell.createProject("film"));
    shell.global().setMovieTitle("The Hare");
    drop(shell, {QUrl::fromLocalFile(other)});
    QCOMPARE(shell.window().qmlDialogUrl(), "SaveConfirmDialog.qml");
    QCOMPARE(shell.global().openProjectAfterConfirmPath(), other);
    QCOMPARE(shell.window().projName(), "film");
}

void TestQuitAndDrop::droppedVideoIsPlayedOnTheVideoTabOnly_data()
{
    QTest::addColumn<QString>("tab");
    QTest::addColumn<bool>("played");
    QTest::newRow("video") << "playbackUIisOn" << true;
    QTest::newRow("capture") << "captureUIisOn" << false;
}

void TestQuitAndDrop::droppedVideoIsPlayedOnTheVideoTabOnly()
{
    QFETCH(QString, tab);
    QFETCH(bool, played);
    ShellWindow shell;
    shell.global().setMainTabsState(tab);
    shell.global().setPlayerPlaying(true);
    const QUrl video = fileIn(shell, "Take 1 #2 50%.MP4");
    drop(shell, {video});
    QCOMPARE(shell.global().playerSource(), played ? video.toLocalFile() : QString());
    QCOMPARE(shell.global().playerPlaying(), !played);
}

void TestQuitAndDrop::droppedPictureIsAnswered()
{
    ShellWindow shell;
    QVERIFY(shell.createProject());
    drop(shell, {fileIn(shell, "puppet.JPG")});
    QCOMPARE(shell.messages().size(), 1);
    QVERIFY(shell.messages().constFirst().startsWith("File: "));
    QCOMPARE(shell.frames().framesCount(), 0);
}

void TestQuitAndDrop::droppedFilesThatAreNoneDoNothing_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::newRow("two files at once with no project") << QStringList{"a.jpg", "b.jpg"};
    QTest::newRow("two projects at once") << QStringList{"a.kzfx", "b.kzfx"};
    QTest::newRow("text") << QStringList{"notes.txt"};
    QTest::newRow("project of the older format") << QStringList{"old.kzf"};
    QTest::newRow("file that is not there") << QStringList{"-gone.kzfx"};
    QTest::newRow("nothing") << QStringList{};
}

void TestQuitAndDrop::droppedFilesThatAreNoneDoNothing()
{
    QFETCH(QStringList, names);
    ShellWindow shell;
    QList<QUrl> urls;
    for (const QString &name : names) {
        urls.append(name.startsWith('-') ? QUrl::fromLocalFile(shell.folder() + '/' + name)
                                         : fileIn(shell, name));
    }
    if (urls.isEmpty())
        urls.append(QUrl("qrc:/MorvaneRoot.qml"));
    drop(shell, urls);
    QVERIFY(!shell.window().projectLoaded());
    QCOMPARE(shell.window().projPath(), QString());
    QVERIFY(shell.messages().isEmpty());
    QCOMPARE(shell.evaluate("robotMessgModel.count").toInt(), 0);
    QVERIFY(shell.dialogs().asked.isEmpty());
    QCOMPARE(shell.global().playerSource(), QString());
    QCOMPARE(shell.window().qmlDialogUrl(), QString());
}

void TestQuitAndDrop::menuEntry_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("dialog");
    QTest::newRow("Create New Project") << "save"
                                        << "Create New Project..."
                                        << "";
    QTest::newRow("Open Project") << "open"
                                  << "Open Project..."
                                  << "";
    QTest::newRow("Recent Projects") << ""
                                     << ""
                                     << "LastProjects.qml";
    QTest::newRow("Save Project As") << "save"
                                     << "Save Project..."
                                     << "";
}

void TestQuitAndDrop::menuEntry()
{
    QFETCH(QString, kind);
    QFETCH(QString, caption);
    QFETCH(QString, dialog);
    ShellWindow shell;
    QVERIFY(shell.createProject());
    shell.dialogs().asked.clear();
    choose(shell, QTest::currentDataTag());
    QCOMPARE(shell.dialogs().asked.size(), kind.isEmpty() ? 0 : 1);
    if (!kind.isEmpty()) {
        QCOMPARE(shell.dialogs().asked.constFirst().kind, kind);
        QCOMPARE(shell.dialogs().asked.constFirst().caption, caption);
    }
    QCOMPARE(shell.window().qmlDialogUrl(), dialog);
    QVERIFY(shell.window().projectLoaded());
}

void TestQuitAndDrop::menuSavesAndClears()
{
    ShellWindow shell;
    QVERIFY(shell.createProject());
    shell.global().setMovieTitle("The Hare");
    choose(shell, "Save Project");
    QVERIFY(!shell.global().projectChanged());

    shell.window().addSetting("showToolTips", false);
    choose(shell, "Clear Settings");
    QVERIFY(!shell.controllers().settings().contains("showToolTips"));
    QVERIFY(shell.window().getGroupSetting("lastprojects").isEmpty());
    // Nothing to be seen changes before the next start.
    QVERIFY(shell.global().showToolTips());
    QVERIFY(shell.window().projectLoaded());

    choose(shell, "Quit");
    QCOMPARE(shell.quits(), 1);
}

void TestQuitAndDrop::recentListOpensByKey()
{
    ShellWindow shell;
    shell.press(Qt::Key_F3);
    QCOMPARE(shell.window().qmlDialogUrl(), "LastProjects.qml");
    QTRY_VERIFY(shell.findItem("text", "No recent projects") != nullptr);
    shell.press(Qt::Key_Escape);
    QCOMPARE(shell.window().qmlDialogUrl(), QString());
    shell.global().setMainTabsState("docsUIisOn");
    shell.press(Qt::Key_F3);
    QCOMPARE(shell.window().qmlDialogUrl(), QString());
}

void TestQuitAndDrop::recentListOpensAProject()
{
    ShellWindow shell;
    QVERIFY(shell.createProject("first"));
    const QString first = shell.window().projPath();
    QVERIFY(shell.createProject("second"));
    shell.press(Qt::Key_F3);
    QQuickItem *entry = nullptr;
    QTRY_VERIFY((entry = shell.findItem("name", "first")) != nullptr);
    shell.click(entry);
    QTRY_COMPARE(shell.window().projPath(), first);
    QTRY_VERIFY(shell.window().projectLoaded());
    QCOMPARE(shell.window().qmlDialogUrl(), QString());
    QVERIFY(shell.messages().contains("File: Project loaded"));
}

QTEST_MAIN(TestQuitAndDrop)
#include "tst_quitanddrop.moc"
