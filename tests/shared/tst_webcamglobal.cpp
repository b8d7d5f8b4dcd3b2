#include "shared/WebcamGlobal.h"

#include <cmath>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace std::chrono_literals;

class TestWebcamGlobal : public QObject
{
    Q_OBJECT

private slots:
    void scalesWaitOneSecondForANewerRequest();
    void tenRequestsComputeOnceWithTheLastPair();
    void newerRequestsDoNotPutTheComputationOff();
    void displayScale_data();
    void displayScale();
    void withoutDeviceAndPictureBothScalesAreOne();
    void withoutEnlargingTheScaleStopsAtOne();
    void coordSystemScaleHasFourDecimals();
    void pictureSmallerThanTheCoordinateSystemScalesIt();
    void pictureLargerThanTheCoordinateSystemDoesNot();
    void areaOfNothingKeepsTheDisplayScale();
    void requestsWhilePausedAreForgotten();
    void requestThatComesDueWhilePausedComputesNothing();
    void requestAfterAPausedOneIsServed();
    void anotherCameraIndexResetsTheCoordinateSystem();
    void anotherCameraIndexWhilePausedComputesNoScale();
    void connectedDeviceKeepsItsCoordinateSystem();
    void cropAreaScaleDividesByThePicture();
    void cropAreaScaleOfNoPictureChangesNothing();
    void exportSizes_data();
    void exportSizes();
    void videoAndSequenceSizesAreIndependent();
    void filterSettingsAreKeptByKey();
    void inactivityCountsMinutes();
    void inactivityAtTheMaximumPausesTheLiveView();
    void activityReleasesThePausedLiveView();
    void inactivityLeavesOtherTabsAndDevicesAlone();
    void savedFollowsAProjectThatIsNoLongerChanged();
    void iconNameOfAMessage();
    void blendNames();
    void exportPolicyIcons();
    void chromakeyColors();
    void blendModes();
    void textAndColourSlotsForward();

private:
    /// Gives the scales a picture and an area and waits for the result.
    static void scale(WebcamGlobal &global, QSize picture, QSize area);
};

void TestWebcamGlobal::scale(WebcamGlobal &global, QSize picture, QSize area)
{
    global.setScaleDelay(0ms);
    global.setWidth(picture.width());
    global.setHeight(picture.height());
    global.calculateDisplayAndCoordSystemScale(area.width(), area.height());
    QCoreApplication::processEvents();
}

void TestWebcamGlobal::scalesWaitOneSecondForANewerRequest()
{
    WebcamGlobal global;
    const auto timers = global.findChildren<QTimer *>();
    QCOMPARE(timers.size(), 1);
    QVERIFY(timers.first()->isSingleShot());
    QCOMPARE(timers.first()->intervalAsDuration(), 1000ms);
    global.setWidth(100);
    global.setHeight(100);
    global.calculateDisplayAndCoordSystemScale(50, 50);
    QVERIFY(timers.first()->isActive());
    QCoreApplication::processEvents();
    QCOMPARE(global.displayScale(), 1.0);
}

void TestWebcamGlobal::tenRequestsComputeOnceWithTheLastPair()
{
    WebcamGlobal global;
    global.setScaleDelay(0ms);
    global.setWidth(100);
    global.setHeight(100);
    QList<qreal> computed;
    connect(&global, &WebcamGlobal::displayScaleChanged, &global, [&] {
        computed.append(global.displayScale());
        // A second computation would show itself by another scale.
        global.setWidth(global.width() * 2);
    });
    for (int request = 1; request <= 10; ++request)
        global.calculateDisplayAndCoordSystemScale(request * 10 + 100, 1000);
    QVERIFY(computed.isEmpty());
    for (int turn = 0; turn < 20; ++turn)
        QCoreApplication::processEvents();
    QCOMPARE(computed, QList<qreal>{2.0});
}

void TestWebcamGlobal::newerRequestsDoNotPutTheComputationOff()
{
    WebcamGlobal global;
    global.setScaleDelay(20ms);
    global.setWidth(100);
    global.setHeight(100);
    QElapsedTimer watch;
    watch.start();
    while (global.displayScale() == 1.0 && watch.elapsed() < 500) {
        global.calculateDisplayAndCoordSystemScale(50, 50);
        QCoreApplication::processEvents();
    }
    QCOMPARE(global.displayScale(), 0.5);
}

void TestWebcamGlobal::displayScale_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<QSize>("area");
    QTest::addColumn<qreal>("displayScale");
    QTest::newRow("narrow area") << QSize(1000, 500) << QSize(500, 500) << 0.5;
    QTest::newRow("low area") << QSize(1000, 500) << QSize(1000, 125) << 0.25;
    QTest::newRow("enlarged") << QSize(100, 50) << QSize(400, 150) << 3.0;
    QTest::newRow("no height") << QSize(100, 0) << QSize(50, 7) << 0.5;
    QTest::newRow("no width") << QSize(0, 100) << QSize(50, 25) << 0.25;
}

void TestWebcamGlobal::displayScale()
{
    QFETCH(QSize, picture);
    QFETCH(QSize, area);
    WebcamGlobal global;
    scale(global, picture, area);
    QTEST(global.displayScale(), "displayScale");
}

void TestWebcamGlobal::withoutDeviceAndPictureBothScalesAreOne()
{
    WebcamGlobal global;
    global.setDisplayScale(0.5);
    global.setCoordSystemScale(0.5);
    scale(global, QSize(0, 0), QSize(700, 300));
    QCOMPARE(global.displayScale(), 1.0);
    QCOMPARE(global.coordSystemScale(), 1.0);
}

void TestWebcamGlobal::withoutEnlargingTheScaleStopsAtOne()
{
    WebcamGlobal global;
    global.setResize(false);
    scale(global, QSize(100, 100), QSize(300, 300));
    QCOMPARE(global.displayScale(), 1.0);
    scale(global, QSize(100, 100), QSize(30, 30));
    QCOMPARE(global.displayScale(), 0.3);
}

void TestWebcamGlobal::coordSystemScaleHasFourDecimals()
{
    WebcamGlobal global;
    scale(global, QSize(300, 300), QSize(200, 200));
    QCOMPARE(global.displayScale(), 200.0 / 300.0);
    QCOMPARE(global.coordSystemScale(), static_cast<qreal>(6667.0F / 10000.0F));
}

void TestWebcamGlobal::pictureSmallerThanTheCoordinateSystemScalesIt()
{
    WebcamGlobal global;
    global.setCoordSystemWidth(4000);
    scale(global, QSize(1000, 500), QSize(500, 500));
    QCOMPARE(global.displayScale(), 0.5);
    QCOMPARE(global.coordSystemScale(), 0.125);
}

void TestWebcamGlobal::pictureLargerThanTheCoordinateSystemDoesNot()
{
    WebcamGlobal global;
    global.setCoordSystemWidth(500);
    scale(global, QSize(1000, 500), QSize(500, 500));
    QCOMPARE(global.coordSystemScale(), 0.5);
    global.setCoordSystemWidth(0);
    scale(global, QSize(1000, 500), QSize(250, 500));
    QCOMPARE(global.coordSystemScale(), 0.25);
}

void TestWebcamGlobal::areaOfNothingKeepsTheDisplayScale()
{
    WebcamGlobal global;
    scale(global, QSize(100, 100), QSize(50, 50));
    scale(global, QSize(100, 100), QSize(0, 50));
    QCOMPARE(global.displayScale(), 0.5);
    QCOMPARE(global.coordSystemScale(), 0.0);
}

void TestWebcamGlobal::requestsWhilePausedAreForgotten()
{
    WebcamGlobal global;
    global.setPaused(true);
    scale(global, QSize(100, 100), QSize(50, 50));
    QCOMPARE(global.displayScale(), 1.0);
    global.setPaused(false);
    QCoreApplication::processEvents();
    QCOMPARE(global.displayScale(), 1.0);
}

void TestWebcamGlobal::requestThatComesDueWhilePausedComputesNothing()
{
    WebcamGlobal global;
    global.setScaleDelay(0ms);
    global.setWidth(100);
    global.setHeight(100);
    global.calculateDisplayAndCoordSystemScale(50, 50);
    global.setPaused(true);
    QCoreApplication::processEvents();
    QCOMPARE(global.displayScale(), 1.0);
}

void TestWebcamGlobal::requestAfterAPausedOneIsServed()
{
    WebcamGlobal global;
    global.setScaleDelay(0ms);
    global.setWidth(100);
    global.setHeight(100);
    global.calculateDisplayAndCoordSystemScale(50, 50);
    global.setPaused(true);
    QCoreApplication::processEvents();
    global.setPaused(false);
    global.calculateDisplayAndCoordSystemScale(25, 25);
    QCoreApplication::processEvents();
    QCOMPARE(global.displayScale(), 0.25);
}

void TestWebcamGlobal::anotherCameraIndexResetsTheCoordinateSystem()
{
    WebcamGlobal global;
    scale(global, QSize(400, 400), QSize(200, 200));
    global.setCoordSystemWidth(800);
    global.setCoordSystemHeight(600);
    global.setWidth(50);
    global.setHeight(50);
    global.setConnectedCamIndex(3);
    QCOMPARE(global.coordSystemWidth(), 100.0);
    QCOMPARE(global.coordSystemHeight(), 100.0);
    QCOMPARE(global.displayScale(), 4.0);
    QCOMPARE(global.coordSystemScale(), 2.0);
}

void TestWebcamGlobal::anotherCameraIndexWhilePausedComputesNoScale()
{
    WebcamGlobal global;
    scale(global, QSize(400, 400), QSize(200, 200));
    global.setPaused(true);
    global.setWidth(50);
    global.setCoordSystemWidth(800);
    global.setConnectedCamIndex(3);
    QCOMPARE(global.coordSystemWidth(), 100.0);
    QCOMPARE(global.displayScale(), 0.5);
}

void TestWebcamGlobal::connectedDeviceKeepsItsCoordinateSystem()
{
    WebcamGlobal global;
    global.setConnected(true);
    global.setCoordSystemWidth(800);
    global.setCoordSystemHeight(600);
    global.setConnectedCamIndex(3);
    QCOMPARE(global.coordSystemWidth(), 800.0);
    QCOMPARE(global.coordSystemHeight(), 600.0);
}

void TestWebcamGlobal::cropAreaScaleDividesByThePicture()
{
    WebcamGlobal global;
    global.setCropAreaW(960);
    global.setCropAreaH(270);
    QSignalSpy width(&global, &WebcamGlobal::camScaledCropAreaWChanged);
    QSignalSpy height(&global, &WebcamGlobal::camScaledCropAreaHChanged);
    global.updateCropAreaScale(1920, 1080);
    QCOMPARE(global.camScaledCropAreaW(), 0.5F);
    QCOMPARE(global.camScaledCropAreaH(), 0.25F);
    QCOMPARE(width.count(), 1);
    QCOMPARE(height.count(), 1);
}

void TestWebcamGlobal::cropAreaScaleOfNoPictureChangesNothing()
{
    WebcamGlobal global;
    global.setCropAreaW(960);
    global.updateCropAreaScale(0, 0);
    QCOMPARE(global.camScaledCropAreaW(), 0.0F);
}

void TestWebcamGlobal::exportSizes_data()
{
    QTest::addColumn<QSize>("cropArea");
    QTest::addColumn<int>("wanted");
    QTest::addColumn<QSize>("size");
    QTest::newRow("100 becomes 320") << QSize(1600, 900) << 100 << QSize(320, 184);
    QTest::newRow("fits") << QSize(1920, 1080) << 1280 << QSize(1280, 720);
    QTest::newRow("odd height rounds up") << QSize(1000, 333) << 1000 << QSize(1000, 336);
    QTest::newRow("odd width rounds up") << QSize(1600, 800) << 1001 << QSize(1008, 504);
    QTest::newRow("no crop area is square") << QSize(0, 0) << 640 << QSize(640, 640);
    QTest::newRow("too wide") << QSize(200, 100) << 2000000 << QSize(1200000, 600000);
    QTest::newRow("absurdly high crop area") << QSize(1, 1000000) << 1000 << QSize(1000, 1200000);
}

void TestWebcamGlobal::exportSizes()
{
    QFETCH(QSize, cropArea);
    QFETCH(int, wanted);
    QFETCH(QSize, size);
    WebcamGlobal global;
    global.setCropAreaW(cropArea.width());
    global.setCropAreaH(cropArea.height());
    global.setExportSizeW(wanted);
    global.setSequenceExportSizeW(wanted);
    global.updateExportSizes();
    QCOMPARE(QSize(global.exportSizeW(), global.exportSizeH()), size);
    QCOMPARE(global.exportSize(), size);
    QCOMPARE(QSize(global.sequenceExportSizeW(), global.sequenceExportSizeH()), size);
    QCOMPARE(global.sequenceExportSize(), size);
}

void TestWebcamGlobal::videoAndSequenceSizesAreIndependent()
{
    WebcamGlobal global;
    global.setCropAreaW(1600);
    global.setCropAreaH(800);
    global.setExportSizeW(800);
    global.setSequenceExportSizeW(400);
    global.updateExportSizes();
    QCOMPARE(global.exportSize(), QSize(800, 400));
    QCOMPARE(global.sequenceExportSize(), QSize(400, 200));
}

void TestWebcamGlobal::filterSettingsAreKeptByKey()
{
    const QString key = QStringLiteral("contrast");
    WebcamGlobal global;
    QSignalSpy changes(&global, &WebcamGlobal::postProcessSettingsChanged);
    QCOMPARE(global.getPostProcessSetting(key, 7), QVariant(7));
    global.setPostProcessSetting(key, 12);
    QCOMPARE(global.getPostProcessSetting(key, 7), QVariant(12));
    QCOMPARE(global.postProcessSettings(), QVariantMap({{key, 12}}));
    global.setPostProcessSetting(key, 12);
    QCOMPARE(changes.count(), 1);
    global.removePostProcessSetting(key);
    QVERIFY(global.postProcessSettings().isEmpty());
    global.removePostProcessSetting(key);
    QCOMPARE(changes.count(), 2);
}

void TestWebcamGlobal::inactivityCountsMinutes()
{
    WebcamGlobal global;
    global.setInactivityMaximum(3);
    global.setUserIsInactive(true);
    global.checkUserInactivity();
    QVERIFY(!global.userIsInactive());
    QCOMPARE(global.inactivityElapsed(), 1);
}

void TestWebcamGlobal::inactivityAtTheMaximumPausesTheLiveView()
{
    WebcamGlobal global;
    global.setConnected(true);
    global.setInactivityMaximum(2);
    global.checkUserInactivity();
    global.checkUserInactivity();
    QVERIFY(!global.userIsInactive());
    QVERIFY(!global.paused());
    QTest::ignoreMessage(QtDebugMsg, "User is sleeping...");
    global.checkUserInactivity();
    QVERIFY(global.userIsInactive());
    QVERIFY(global.paused());
    QCOMPARE(global.inactivityElapsed(), 2);
}

void TestWebcamGlobal::activityReleasesThePausedLiveView()
{
    WebcamGlobal global;
    global.setConnected(true);
    global.setPaused(true);
    global.checkUserInactivity();
    QVERIFY(!global.paused());
}

void TestWebcamGlobal::inactivityLeavesOtherTabsAndDevicesAlone()
{
    WebcamGlobal unconnected;
    unconnected.setPaused(true);
    unconnected.checkUserInactivity();
    QVERIFY(unconnected.paused());

    WebcamGlobal otherTab;
    otherTab.setConnected(true);
    otherTab.setCurrentActiveTab(Zum::TimingTab);
    otherTab.setInactivityMaximum(0);
    QTest::ignoreMessage(QtDebugMsg, "User is sleeping...");
    otherTab.checkUserInactivity();
    QVERIFY(otherTab.userIsInactive());
    QVERIFY(!otherTab.paused());
}

void TestWebcamGlobal::savedFollowsAProjectThatIsNoLongerChanged()
{
    WebcamGlobal global;
    QSignalSpy saved(&global, &WebcamGlobal::saved);
    global.setProjectChanged(true);
    QCOMPARE(saved.count(), 0);
    global.setProjectChanged(false);
    QCOMPARE(saved.count(), 1);
    global.setProjectChanged(false);
    QCOMPARE(saved.count(), 1);
}

void TestWebcamGlobal::iconNameOfAMessage()
{
    const WebcamGlobal global;
    for (const int type : {Zum::FatalError, Zum::Error, Zum::Warning})
        QCOMPARE(global.stringIconName(type), QStringLiteral("warn"));
    for (const int type : {-1, static_cast<int>(Zum::Info), 4})
        QCOMPARE(global.stringIconName(type), QStringLiteral("info"));
}

void TestWebcamGlobal::blendNames()
{
    const WebcamGlobal global;
    const QStringList names =
        QStringLiteral(
            "No Blend,Darken,Multiply,Color Burn,Lighten,Screen,Color Dodge,Overlay,Soft Light,"
            "Hard Light,Difference,Exclusion,Plus,Xor")
            .split(QLatin1Char(','));
    for (int blend = Zum::NoBlend; blend <= Zum::BlendXor; ++blend)
        QCOMPARE(global.getBlendName(blend), names.at(blend));
    QCOMPARE(global.getBlendName(-1), QStringLiteral("No Blend"));
    QCOMPARE(global.getBlendName(14), QStringLiteral("No Blend"));
}

void TestWebcamGlobal::exportPolicyIcons()
{
    const WebcamGlobal global;
    QCOMPARE(global.videoExportPolicyIcon(Zum::ExportPolicyCropped), QStringLiteral("svgicons/cutframe.svg"));
    QCOMPARE(global.videoExportPolicyIcon(Zum::ExportPolicyFitByWidth), QStringLiteral("svgicons/width.svg"));
    QCOMPARE(global.videoExportPolicyIcon(Zum::ExportPolicyFitByHeight),
             QStringLiteral("svgicons/height.svg"));
    QCOMPARE(global.videoExportPolicyIcon(Zum::ExportPolicyCroppedAndResized),
             QStringLiteral("svgicons/cut-n-scale.svg"));
    QCOMPARE(global.videoExportPolicyIcon(9), QStringLiteral("svgicons/height.svg"));
}

void TestWebcamGlobal::chromakeyColors()
{
    const QStringList names =
        QStringLiteral("#7b53fe #00afff #00d87f #00ff01 #7bab00 #fe4f00 #fe2280 #ff00fd")
            .split(QLatin1Char(' '));
    const QStringList keys =
        QStringLiteral("feather hue kill lightness name saturation shift").split(QLatin1Char(' '));
    const QVariantList colors = WebcamGlobal().chromakeyColors();
    QCOMPARE(colors.size(), names.size());
    for (int i = 0; i < names.size(); ++i) {
        const QVariantMap entry = colors.at(i).toMap();
        QCOMPARE(entry.keys(), keys);
        QCOMPARE(entry.value(QStringLiteral("name")).toString(), names.at(i));
        QCOMPARE(entry.value(QStringLiteral("hue")).toInt(), QColor(names.at(i)).hslHue());
    }
}

void TestWebcamGlobal::blendModes()
{
    const WebcamGlobal global;
    const QVariantList modes = global.blendModes();
    QCOMPARE(modes.size(), Zum::BlendXor + 1);
    for (int blend = 0; blend < modes.size(); ++blend) {
        const QVariantMap mode = modes.at(blend).toMap();
        QCOMPARE(mode.keys(), (QStringList{QStringLiteral("icon"), QStringLiteral("text")}));
        QCOMPARE(mode.value(QStringLiteral("text")).toString(), global.getBlendName(blend));
        QVERIFY(!mode.value(QStringLiteral("icon")).toString().isEmpty());
    }
}

void TestWebcamGlobal::textAndColourSlotsForward()
{
    const WebcamGlobal global;
    QCOMPARE(global.ensureDirSeparator(QStringLiteral("a")), QStringLiteral("a/"));
    QCOMPARE(global.timeStamp().size(), 12);
    QCOMPARE(global.millisecondsToHHMMSS(3661000), QStringLiteral("01.01.01"));
    QCOMPARE(global.roundUp(9), 16);
    QCOMPARE(global.hueShift(QColor(255, 0, 0), 1 / 3.0).toRgb(), QColor(0, 255, 0));
    QCOMPARE(global.saturationShift(QColor(255, 0, 0), -1).hslSaturation(), 0);
    QCOMPARE(global.hsla(QColor(0, 255, 0)).value(QStringLiteral("hue")).toInt(), 120);
    QCOMPARE(global.colorToRgb(QColor(1, 2, 3)).value(QStringLiteral("b")).toInt(), 3);
    QCOMPARE(global.lighterColor(QColor(100, 0, 0), 1.5).red(), 150);
    QCOMPARE(global.yCbCrToRgb(255, 128, 128), QColor(255, 255, 255));
    QCOMPARE(global.yCbCrToRgb(255, 128, 128, 0.1), QColor(255, 255, 255));
    QCOMPARE(global.colorNameToHue(QStringLiteral("808080")), 128);
}

QTEST_GUILESS_MAIN(TestWebcamGlobal)

#include "tst_webcamglobal.moc"
