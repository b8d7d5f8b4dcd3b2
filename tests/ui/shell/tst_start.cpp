#include "support/ShellWindow.h"

#include <qqml.h>
#include <QDir>
#include <QFile>
#include <QPainterPath>
#include <QPolygon>
#include <QPolygonF>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>
#include <QThread>

/// How the program starts: with which sizes, settings and languages, in what place and with which project.
class TestStart : public QObject
{
    Q_OBJECT

private slots:
    void typesAreRegisteredInTheirOrder();
    void metaTypesAreRegistered();

    void sizesByFontIndex_data();
    void sizesByFontIndex();
    void sizesByDensity_data();
    void sizesByDensity();
    void fontIndexOutOfRangeFallsBackToTheDensity_data();
    void fontIndexOutOfRangeFallsBackToTheDensity();
    void constantsReachTheScene();
    void objectsReachTheScene();
    void timelineScaleIsAtMostWhole_data();
    void timelineScaleIsAtMostWhole();

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
    static void compareSizes(ShellWindow &shell, int row);
    /// The full name that leads the title.
    static QString program(ShellWindow &shell);
};

namespace {

struct Row
{
    int normal;
    int smaller;
    int padding;
    int lineWidth;
};

const QList<Row> rows{{13, 11, 8, 2}, {13, 11, 2, 2}, {14, 12, 0, 3}, {18, 16, 4, 3}, {21, 19, 8, 3},
                      {26, 24, 8, 3}, {31, 29, 8, 3}, {41, 38, 8, 3}, {51, 47, 8, 3}};

} // namespace

QString TestStart::program(ShellWindow &shell)
{
    return "Morvane Capture " + shell.window().appInfo()["appVersion"].toString();
}

void TestStart::typesAreRegisteredInTheirOrder()
{
    ShellWindow shell;
    int before = -1;
    for (const char *name : {"Progress", "Zum", "WheelArea", "CursorShapeArea", "Aslider", "QNumImput"}) {
        const int id = qmlTypeId(name, 1, 0, name);
        QVERIFY2(id > before, name);
        before = id;
        QQmlComponent component(shell.window().engine());
        component.setData(
            QString("import QtQuick\nimport %1 1.0\nItem { property %1 one }").arg(name).toUtf8(), QUrl());
        QVERIFY2(component.isReady(), qPrintable(component.errorString()));
    }
    // These stand in the same row as soon as there is something behind them.
    for (const char *name : {"WebCamera", "Histogram", "CRamPreview", "CycloBarC", "PathRenderer",
                             "BufferPlayer", "QmlVideo", "CanonCamera"})
        QVERIFY2(qmlTypeId(name, 1, 0, name) == -1, name);
}

void TestStart::metaTypesAreRegistered()
{
    ShellWindow shell;
    QCOMPARE(QMetaType::fromName("QPainterPath"), QMetaType::fromType<QPainterPath>());
    QCOMPARE(QMetaType::fromName("QPolygonF"), QMetaType::fromType<QPolygonF>());
    QCOMPARE(QMetaType::fromName("QPolygon"), QMetaType::fromType<QPolygon>());
}

void TestStart::compareSizes(ShellWindow &shell, int row)
{
    const auto [n, s, padding, lineWidth] = rows.at(row);
    QList<std::pair<QString, int>> expected{
        {"DefFontSizeNormal", n},
        {"DefFontSizeSmaler", s},
        {"DefFontSizeNormal_TwoThirds", int(0.66 * n)},
        {"DefFontSizeNormal_Pltr", int(1.5 * n)},
        {"DefFontSizeBigger", int(1.5 * n)},
        {"DefFontSizeNormal_SevenEighths", int(1.75 * n)},
        {"DefFontSizeNormal_x2Half", int(2.5 * n)},
        {"DefFontSizeNormal_x3Half", 3 * n},
        {"DefFontSizeSmaler_2", 2 * s},
        {"DefFontSizeEvenSmaler", int(0.9 * s)},
        {"DefFontSizeMicro", n / 2},
        {"DefFontSizeNano", n / 3},
        {"DefFontSizePico", n / 4},
        {"DialogWidth", 46 * n},
        {"scrollBarW", n},
        {"RenderPanH", 25 * n},
        {"ControlsPanesBoxW", 30 * n},
        {"HPadding", padding},
        {"lineWidth", lineWidth},
    };
    for (int k = 2; k <= 22; ++k)
        expected.append({QString("DefFontSizeNormal_x%1").arg(k), k * n});
    for (const auto &[name, value] : expected) {
        bool isNumber = false;
        const int seen = shell.evaluate(name).toInt(&isNumber);
        QVERIFY2(isNumber, qPrintable(name));
        QVERIFY2(seen == value, qPrintable(QString("%1 is %2, not %3").arg(name).arg(seen).arg(value)));
    }
    QCOMPARE(shell.evaluate("DpiScale").toDouble(), n / 13.0);
    QCOMPARE(shell.window().dpiScale(), n / 13.0);
    QCOMPARE(Zum::dpiScale(), n / 13.0);
    QCOMPARE(shell.window().scaledThumbSize(), QSizeF(90, 60) * (n / 13.0));
    QCOMPARE(shell.window().timelineH(), qMax(qMin(760 / 2, 18 * n), 14 * n));
}

void TestStart::sizesByFontIndex_data()
{
    QTest::addColumn<int>("index");
    for (int index = 0; index <= 8; ++index)
        QTest::addRow("%d", index) << index;
}

void TestStart::sizesByFontIndex()
{
    QFETCH(int, index);
    ShellWindow::Options options;
    options.settings.insert("fontsize", index);
    // The density of another row has no say.
    options.logicalDpi = 180;
    ShellWindow shell(options);
    QCOMPARE(shell.global().fontSize(), index);
    compareSizes(shell, index);
}

void TestStart::sizesByDensity_data()
{
    QTest::addColumn<int>("logicalDpi");
    QTest::addColumn<int>("density");
    QTest::addColumn<int>("row");
    QTest::newRow("96, the least") << 96 << 96 << 0;
    QTest::newRow("below all") << 72 << 96 << 0;
    QTest::newRow("110 counts as 126") << 110 << 120 << 1;
    QTest::newRow("120 counts as 150") << 120 << 144 << 2;
    QTest::newRow("144 counts as 216") << 144 << 192 << 3;
    QTest::newRow("160 counts as 266") << 160 << 240 << 4;
    QTest::newRow("192 counts as 384 and falls below it") << 192 << 288 << 5;
    QTest::newRow("200 counts as 416") << 200 << 384 << 6;
    QTest::newRow("288 counts as 864") << 288 << 480 << 7;
}

void TestStart::sizesByDensity()
{
    QFETCH(int, logicalDpi);
    QFETCH(int, density);
    QFETCH(int, row);
    ShellWindow::Options options;
    options.logicalDpi = logicalDpi;
    ShellWindow shell(options);
    QCOMPARE(shell.window().currentDpi(), density);
    QCOMPARE(shell.global().fontSize(), -1);
    compareSizes(shell, row);
}

void TestStart::fontIndexOutOfRangeFallsBackToTheDensity_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::newRow("9") << QVariant(9);
    QTest::newRow("-1") << QVariant(-1);
    QTest::newRow("no number") << QVariant("large");
}

void TestStart::fontIndexOutOfRangeFallsBackToTheDensity()
{
    QFETCH(QVariant, stored);
    ShellWindow::Options options;
    options.settings.insert("fontsize", stored);
    options.logicalDpi = 144;
    ShellWindow shell(options);
    QCOMPARE(shell.global().fontSize(), -1);
    compareSizes(shell, 3);
}

void TestStart::constantsReachTheScene()
{
    const QList<std::pair<const char *, QVariant>> values{
        {"smoothUi", true},
        {"ChromaSimilarityMin", 0},
        {"ChromaSimilarityMax", 100},
        {"ChromaBlendMin", 1},
        {"ChromaBlendMax", 100},
        {"commonMinScaleFactor", 0.1},
        {"NoteColor", "#00b773"},
        {"CAPTURE_CACHE_MAX", 155520000},
        {"RAM_CACHE_MAX", 870912000},
        {"winId", 0},
        {"slh", "/"},
        {"prfx", "file:///"},
        {"textShift", 0},
        {"emptyFrameImage", "images/empty_96.png"},
        {"globalFonColor", "#393939"},
        {"GlobalDarkColor", "#393939"},
        {"GlobalDarkerColor", "#333333"},
        {"GlobalDarkestColor", "#282828"},
        {"GlobalButtonColor", "#202020"},
        {"activeColor", "#FF9900"},
        {"defaultGrayColor", "#A0A0A0"},
        {"controlsTextColor", "#999999"},
        {"staticFrameColor", "#1854dd"},
        {"staticFrameColorLight", "#2d7de7"},
        {"LinkColor", "#3396FF"},
        {"LinkColor2", "#1372d7"},
        {"LinkColor3", "#1854dd"},
        {"specialColor", QColor(Qt::transparent)},
        {"startIndexMax", 30000},
        {"thumbsDirName", "tmb"},
        {"capturedDirName", "cap"},
        {"refernceDirName", "ref"},
        {"videoDirName", "video"},
        {"LastProjectsKey", "lastprojects"},
        {"BookmarksGroupKey", "bookmarks"},
        {"ExtEditorPathKey", "exteditorpath"},
        {"LanguageLocaleKey", "localename"},
        {"digitalExposureMin", 3},
        {"digitalExposureMax", 80},
        {"digitalExposureDef", 10},
        {"referenceImageScaleMin", 10.0},
        {"referenceImageScaleDef", 100.0},
        {"referenceImageScaleMax", 300.0},
        {"defPathSmooting", 300},
        {"timelineScale", 100},
        {"globalCorner", 2},
        {"wrong", "?"},
        {"DefaultPhase", 0},
        {"ExportJpegQuality", 80},
        {"DupliQuantityMin", 1},
        {"DupliQuantityMax", 9},
        {"maxFps", 60.0},
        {"DefaultAutosaveDelayMin", 3},
        {"WbTempMax", 10000},
        {"WbTempMin", 2800},
        {"VideoFormatMPEG4", "avi"},
        {"VideoFormatOGV", "ogv"},
        {"VideoFormatWEBM", "webm"},
        {"VideoFormatAPNG", "apng"},
        {"VideoFormatWEBP", "webp"},
        {"VideoFormatRAW", "raw"},
        {"VideoFormatMKV", "mkv"},
        {"ExportVideoMinFrameWidth", 320},
        {"ExportVideoMinFrameHeight", 280},
        {"CanonCamImgQualityJPEG", "JPEG"},
        {"CanonCamImgQualityRAW", "RAW"},
        {"CanonCamImgQualityRAWJPEG", "RAW+JPEG"},
        {"MaxFrameWidth", 1200000},
        {"MaxFrameHeight", 1200000},
        {"RAMdefFrameWidth", 540},
        {"RAMdefFrameHeight", 360},
        {"appType", "capture"},
        {"underscore", "_"},
        {"onunix", false},
    };
    ShellWindow shell;
    for (const auto &[name, value] : values) {
        const QVariant seen = shell.evaluate(name);
        QVERIFY2(seen.isValid(), name);
        QVERIFY2((seen.typeId() == QMetaType::QString) == (value.typeId() == QMetaType::QString), name);
        QVERIFY2(seen == value, name);
    }
}

void TestStart::objectsReachTheScene()
{
    ShellWindow shell;
    QCOMPARE(shell.evaluate("MainWindow").value<QObject *>(), &shell.window());
    QCOMPARE(shell.evaluate("SubWindow").value<QObject *>(), &shell.window());
    QCOMPARE(shell.evaluate("FramesModel").value<QObject *>(), &shell.frames());
    QCOMPARE(shell.evaluate("WebcamGlobal").value<QObject *>(), &shell.global());
    QCOMPARE(shell.evaluate("CurvesModel").value<QObject *>(), &shell.controllers().curves);
    QCOMPARE(shell.evaluate("typeof SoundsAvailable").toString(), "boolean");
    QVERIFY(shell.window().engine()->imageProvider("systemicons") != nullptr);
    QCOMPARE(shell.window().source(), QUrl("qrc:/MorvaneRoot.qml"));
}

void TestStart::timelineScaleIsAtMostWhole_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("scale");
    QTest::newRow("smaller") << QVariant(60) << 60;
    QTest::newRow("larger") << QVariant(140) << 100;
    QTest::newRow("no number") << QVariant("wide") << 100;
}

void TestStart::timelineScaleIsAtMostWhole()
{
    QFETCH(QVariant, stored);
    QFETCH(int, scale);
    ShellWindow::Options options;
    options.settings.insert("timelinescale", stored);
    ShellWindow shell(options);
    QCOMPARE(shell.evaluate("timelineScale").toInt(), scale);
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
    QVERIFY(!shell.window().icon().isNull());
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
