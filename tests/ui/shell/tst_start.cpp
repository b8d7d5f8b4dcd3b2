#include "support/ShellWindow.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <QThread>

/// How the program starts: with which settings and language, in what place and with which project.
class TestStart : public QObject
{
    Q_OBJECT

private slots:
    void firstRunHasTheDefaults();
    void storedSettingsAreRead();
    void numbersOutOfRangeAreLimited_data();
    void numbersOutOfRangeAreLimited();
    void language_data();
    void language();

    void emptySettingsFileIsAFirstRun();
    void damagedSettingsFileIsToldOf();
    void settingsFileThatCannotBeWrittenIsToldOf();

    void windowComesBackInItsPlace();
    void windowComesBackMaximized();
    void windowIsNoSmallerThanItsContentNeeds();
    void titleSaysWhatIsOpen();
    void titleNamesTheKindOfDevice_data();
    void titleNamesTheKindOfDevice();

    void projectOfTheCommandLineOpens_data();
    void projectOfTheCommandLineOpens();
    void argumentThatIsNoProjectIsLogged_data();
    void argumentThatIsNoProjectIsLogged();
    void startReadsThePanelsAndTheDevice();

private:
    /// The full name that leads the title.
    static QString program(ShellWindow &shell);
};

QString TestStart::program(ShellWindow &shell)
{
    return "Morvane Capture " + shell.window().appInfo()["appVersion"].toString();
}

void TestStart::firstRunHasTheDefaults()
{
    ShellWindow shell;
    MainWindow &window = shell.window();
    QVERIFY(window.performAutosave());
    QCOMPARE(window.autosaveDelay(), 3);
    QVERIFY(!shell.global().soundsOn());
    QVERIFY(!shell.global().beepWhenCaptured());
    QVERIFY(shell.global().showToolTips());
    QVERIFY(!shell.global().inactivityWatchOn());
    QCOMPARE(shell.global().inactivityMaximum(), 90);
    QVERIFY(shell.global().jumpToLastFrame());
    QCOMPARE(shell.global().fontSize(), -1);
    QCOMPARE(window.localeName(), "en_US");
    QCOMPARE(window.getSystemLocale(), "en_US");
    QVERIFY(!window.openPrevWndwOnStart());
    QVERIFY(!window.openLightboxWndwOnStart());
    QVERIFY(!window.openOscilloscopyWndwOnStart());
    QVERIFY(!window.openVillageWndwOnStart());
    QCOMPARE(window.externalEditor(), QString());
    QCOMPARE(window.currentCapturingDevice(), int(Zum::CapturingDeviceCanonEOS));
    QVERIFY(shell.global().rightPanelPinned());
    QVERIFY(!shell.global().rightPanelExpanded());

    QCOMPARE(window.progressTotal(), 0);
    QCOMPARE(window.closeAttempts(), 0);
    QVERIFY(!window.closing());
    QVERIFY(window.loadingProject());
    QVERIFY(window.allowQuietExit());
    QVERIFY(!window.projectLoaded());
    QCOMPARE(window.currentThreadOperation(), int(Zum::ONoOperation));
    QCOMPARE(window.currentRobotJob(), int(Zum::NoJob));
    QCOMPARE(window.idealThreads(), QThread::idealThreadCount());
    QVERIFY(shell.messages().isEmpty());
    QVERIFY(shell.findItem("text", "Create New Project") != nullptr);
}

void TestStart::storedSettingsAreRead()
{
    ShellWindow::Options options;
    options.settings = {{"previewWindowVisible", true},
                        {"lightboxWindowVisible", true},
                        {"oscilloscopyWindowVisible", true},
                        {"villageWindowVisible", true},
                        {"performAutosave", false},
                        {"autosaveDelay", 12},
                        {"soundsOn", true},
                        {"beepWhenCaptured", true},
                        {"showToolTips", false},
                        {"inactivityWatcher", true},
                        {"jumpToLastFrame", false},
                        {"inactivityMax", 30},
                        {"exteditorpath", "/usr/bin/gimp"}};
    ShellWindow shell(options);
    const MainWindow &window = shell.window();
    QVERIFY(window.openPrevWndwOnStart());
    QVERIFY(window.openLightboxWndwOnStart());
    QVERIFY(window.openOscilloscopyWndwOnStart());
    QVERIFY(window.openVillageWndwOnStart());
    QVERIFY(!window.performAutosave());
    QCOMPARE(window.autosaveDelay(), 12);
    QVERIFY(shell.global().soundsOn());
    QVERIFY(shell.global().beepWhenCaptured());
    QVERIFY(!shell.global().showToolTips());
    QVERIFY(shell.global().inactivityWatchOn());
    QVERIFY(!shell.global().jumpToLastFrame());
    QCOMPARE(shell.global().inactivityMaximum(), 30);
    QCOMPARE(window.externalEditor(), "/usr/bin/gimp");
}

void TestStart::numbersOutOfRangeAreLimited_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("delay");
    QTest::newRow("too short") << 2 << 3;
    QTest::newRow("too long") << 61 << 60;
}

void TestStart::numbersOutOfRangeAreLimited()
{
    QFETCH(int, stored);
    QFETCH(int, delay);
    ShellWindow::Options options;
    options.settings.insert("autosaveDelay", stored);
    ShellWindow shell(options);
    QCOMPARE(shell.window().autosaveDelay(), delay);
}

void TestStart::language_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("system");
    QTest::addColumn<QString>("locale");
    QTest::newRow("none stored") << ""
                                 << "ru_RU"
                                 << "ru_RU";
    QTest::newRow("stored") << "ru_RU"
                            << "en_US"
                            << "ru_RU";
    QTest::newRow("stored one that is not supported") << "fr_FR"
                                                      << "en_US"
                                                      << "en_US";
    QTest::newRow("system without a translation") << "fr_FR"
                                                  << "de_DE"
                                                  << "de_DE";
}

void TestStart::language()
{
    QFETCH(QString, stored);
    QFETCH(QString, system);
    QFETCH(QString, locale);
    ShellWindow::Options options;
    options.locale = system;
    if (!stored.isEmpty())
        options.settings.insert("localename", stored);
    ShellWindow shell(options);
    QCOMPARE(shell.window().localeName(), locale);
    QCOMPARE(shell.window().getSystemLocale(), system);
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestStart::emptySettingsFileIsAFirstRun()
{
    QTemporaryDir folder;
    ShellWindow::Options options;
    options.settingsPath = folder.filePath("settings.ini");
    QFile file(options.settingsPath);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    ShellWindow shell(options);
    QCOMPARE(shell.window().status(), QQuickView::Ready);
    QVERIFY(shell.messages().isEmpty());
    QCOMPARE(shell.window().autosaveDelay(), 3);
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestStart::damagedSettingsFileIsToldOf()
{
    QTemporaryDir folder;
    ShellWindow::Options options;
    options.settingsPath = folder.filePath("settings.ini");
    QFile file(options.settingsPath);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[General]\nautosaveDelay=12\nthis line is no setting\n\x01\x02\x03\n");
    file.close();
    ShellWindow shell(options);
    QCOMPARE(shell.window().autosaveDelay(), 3);
    QCOMPARE(shell.messages(),
             QStringList(": The settings file was damaged. It is kept as " + options.settingsPath
                         + ".damaged, and the program starts with its defaults."));
    QVERIFY(shell.findItem("toolTip", "Messages") != nullptr);
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestStart::settingsFileThatCannotBeWrittenIsToldOf()
{
    QTemporaryDir folder;
    ShellWindow::Options options;
    // A folder in its place: not even root writes there.
    options.settingsPath = folder.filePath("settings.ini");
    QVERIFY(QDir().mkpath(options.settingsPath + "/x"));
    ShellWindow shell(options);
    QCOMPARE(shell.window().autosaveDelay(), 3);
    QCOMPARE(shell.messages(), QStringList(": The settings file " + options.settingsPath
                                           + " cannot be written. Changes last until the program ends."));
    shell.window().setAutosaveDelay(5);
    QCOMPARE(shell.window().getSetting("autosaveDelay", 3).toInt(), 5);
    QVERIFY(shell.window().close());
    QCOMPARE(shell.quits(), 1);
}

void TestStart::windowComesBackInItsPlace()
{
    QTemporaryDir folder;
    ShellWindow::Options options;
    options.settingsPath = folder.filePath("settings.ini");
    options.size = QSize();
    const QRect place(60, 40, 1100, 650);
    {
        ShellWindow shell(options);
        QCOMPARE(shell.window().size(), QSize(1280, 760));
        shell.window().setGeometry(place);
        QTRY_COMPARE(shell.window().geometry(), place);
        QVERIFY(shell.window().close());
    }
    ShellWindow shell(options);
    QTRY_COMPARE(shell.window().geometry(), place);
    QCOMPARE(shell.root().size(), QSizeF(place.size()));
    QCOMPARE(shell.window().windowSize(), place.size());
}

void TestStart::windowComesBackMaximized()
{
    ShellWindow::Options options;
    options.size = QSize();
    options.settings = {{"mainwindow/maximized", true}, {"mainwindow/screenNumber", 0}};
    // What a maximized window becomes on the screen is up to the window manager.
    options.shown = false;
    ShellWindow shell(options);
    QVERIFY(shell.window().windowStates().testFlag(Qt::WindowMaximized));
    QCOMPARE(shell.window().position(), shell.window().screen()->geometry().topLeft());
}

void TestStart::windowIsNoSmallerThanItsContentNeeds()
{
    ShellWindow shell;
    QCOMPARE(shell.window().minimumSize(), QSize(1024, 600));
    QCOMPARE(shell.window().color(), QColor("#393939"));
    QTRY_VERIFY(!shell.window().icon().isNull());
    QCOMPARE(shell.window().resizeMode(), QQuickView::SizeRootObjectToView);
}

void TestStart::titleSaysWhatIsOpen()
{
    ShellWindow shell;
    const QString name = program(shell);
    QVERIFY2(name.startsWith("Morvane Capture 3.9.7."), qPrintable(name));
    const QString start = QString("%1 [DSLR] [%2]").arg(name).arg(QThread::idealThreadCount());
    QCOMPARE(shell.window().title().simplified(), start);
    QVERIFY(shell.createProject());
    const QString withProject = start + QString(" - [ %1 ]").arg(shell.window().projPath());
    QCOMPARE(shell.window().title().simplified(), withProject);
    shell.global().setMovieTitle("The Hare");
    QCOMPARE(shell.window().title().simplified(), withProject + "*");
    QVERIFY(shell.window().saveProjectXmlFile(Zum::SaveProject));
    QCOMPARE(shell.window().title().simplified(), withProject);
    shell.window().closeProject();
    QCOMPARE(shell.window().title().simplified(), start);
}

void TestStart::titleNamesTheKindOfDevice_data()
{
    QTest::addColumn<int>("device");
    QTest::addColumn<QString>("word");
    QTest::newRow("DSLR") << int(Zum::CapturingDeviceCanonEOS) << " [DSLR]";
    QTest::newRow("webcam") << int(Zum::CapturingDeviceWebcam) << " [Webcam]";
    QTest::newRow("adapter") << int(Zum::CapturingDeviceHDMITethering) << " [Video Capture Device]";
    QTest::newRow("none") << int(Zum::NoCapturingDevice) << "";
}

void TestStart::titleNamesTheKindOfDevice()
{
    QFETCH(int, device);
    QFETCH(QString, word);
    ShellWindow shell;
    const QString name = program(shell);
    shell.window().setCurrentCapturingDevice(device);
    QCOMPARE(shell.window().title().simplified(),
             QString("%1%2 [%3]").arg(name, word).arg(QThread::idealThreadCount()));
}

void TestStart::projectOfTheCommandLineOpens_data()
{
    QTest::addColumn<bool>("asAddress");
    QTest::newRow("path") << false;
    QTest::newRow("address") << true;
}

void TestStart::projectOfTheCommandLineOpens()
{
    QFETCH(bool, asAddress);
    QTemporaryDir folder;
    const QString path = folder.filePath("film.kzfx");
    {
        ShellWindow shell;
        shell.dialogs().pathAnswers.append(path);
        QVERIFY(shell.window().saveProjectXmlFile(Zum::NewProject));
        shell.addFrames(3);
        QVERIFY(shell.window().saveProjectXmlFile(Zum::SaveProject));
    }
    ShellWindow::Options options;
    options.arguments.append(asAddress ? QUrl::fromLocalFile(path).toString() : path);
    ShellWindow shell(options);
    QTRY_VERIFY(shell.window().projectLoaded());
    QCOMPARE(shell.window().projPath(), path);
    QCOMPARE(shell.frames().framesCount(), 3);
    QVERIFY(shell.window().title().contains(path));
    QTRY_COMPARE(shell.window().qmlDialogUrl(), QString());
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestStart::argumentThatIsNoProjectIsLogged_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("line");
    QTest::newRow("unknown word") << "--frobnicate"
                                  << "Cannot find project file at --frobnicate";
    QTest::newRow("file that is not there") << "/nowhere/film.kzfx"
                                            << "Cannot find project file at /nowhere/film.kzfx";
    QTest::newRow("nothing") << ""
                             << "Given commandline parameter is not a path";
}

void TestStart::argumentThatIsNoProjectIsLogged()
{
    QFETCH(QString, argument);
    QFETCH(QString, line);
    ShellWindow::Options options;
    options.arguments.append(argument);
    QTest::ignoreMessage(QtWarningMsg, qPrintable(line));
    ShellWindow shell(options);
    QCOMPARE(shell.window().status(), QQuickView::Ready);
    QVERIFY(!shell.window().projectLoaded());
    QCOMPARE(shell.window().projPath(), QString());
    QVERIFY(shell.dialogs().asked.isEmpty());
}

void TestStart::startReadsThePanelsAndTheDevice()
{
    ShellWindow::Options options;
    options.settings = {{"rightPanelPinned", false},
                        {"rightPanelExpanded", true},
                        {"autoMaximizeRange", false},
                        {"doubleDecker", true},
                        {"currentCapturingDevice", int(Zum::CapturingDeviceHDMITethering)}};
    ShellWindow shell(options);
    QVERIFY(!shell.global().rightPanelPinned());
    QVERIFY(shell.global().rightPanelExpanded());
    QVERIFY(!shell.frames().autoMaximizeRange());
    QVERIFY(shell.evaluate("FramesModel.doubleDecker").toBool());
    QCOMPARE(shell.window().currentCapturingDevice(), int(Zum::CapturingDeviceHDMITethering));
    QCOMPARE(shell.evaluate("MainWindow.cameraQML.name").toString(), "Video capture");
}

QTEST_MAIN(TestStart)
#include "tst_start.moc"
