#include "ui/render/RenderWindow.h"

#include "app/Translations.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/// The panel of the Timing tab: what each control changes and remembers, what is noted beside it, when the
/// start button can be pressed, and the line that says what would be made.
class TestRenderPane : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void standsOnTheTimingTabOnly();
    void boxesInTheirOrder();
    void whatIsStillToComeIsAbsent();

    void filtersPreviewSwitchesTheProcessing();
    void filtersSayWhenTheyWork();
    void filterSlidersKeepTheirKeys_data();
    void filterSlidersKeepTheirKeys();
    void moreFiltersOpensTheirDialog();

    void fileNameIsCleaned_data();
    void fileNameIsCleaned();
    void formatsInTheirOrder();
    void formatIsChosen_data();
    void formatIsChosen();
    void qualityIsChosen_data();
    void qualityIsChosen();
    void choicesFollowTheKeyboard();
    void policyIsChosen_data();
    void policyIsChosen();
    void policyTextsTellTheSizes();
    void choicesAreRemembered();
    void wrongChoicesOfTheStoreCountAsNone();
    void projectsPolicyGoesBeforeTheSettings();
    void timecodeIsSwitched();

    void sizeShowsForItsPolicyOnly();
    void widthRoundsUpAndHeightFollows_data();
    void widthRoundsUpAndHeightFollows();
    void marginsAreNoted_data();
    void marginsAreNoted();
    void sizeFollowsTheCropArea();

    void effectIsNamedAndRemoved();
    void unknownEffectIsNamedAfterItsFilter();
    void effectsDialogOpens();

    void everySummary_data();
    void everySummary();
    void sequenceSummary_data();
    void sequenceSummary();

    void startNeedsARange();
    void startNeedsAFreeWorker();
    void problemsAreNamed_data();
    void problemsAreNamed();
    void tabsAreBlockedDuringAnExport_data();
    void tabsAreBlockedDuringAnExport();
    void folderOfMoviesIsShown();

    void frameInfoFollowsTheCurrentFrame();
    void frameInfoTellsTheState();
    void everyControlIsReachedByTheKeyboard();
    void everyControlHasAToolTipAndAName();

private:
    QQuickItem *pane() const
    {
        return w->shell().item(u"controlsPanesBox"_s);
    }
    QObject *strings() const;
    QList<QQuickItem *> tabStops() const;

    std::unique_ptr<RenderWindow> w;
};

namespace {

void visitShown(QQuickItem *item, const std::function<void(QQuickItem *)> &visit)
{
    if (!item->isVisible())
        return;
    visit(item);
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children)
        visitShown(child, visit);
}

} // namespace

void TestRenderPane::initTestCase()
{
    w = std::make_unique<RenderWindow>();
}

void TestRenderPane::cleanupTestCase()
{
    w.reset();
}

/// One window serves all: back to what a new project has.
void TestRenderPane::init()
{
    WebcamGlobal &g = w->global();
    g.setMainTabsState(u"timingUIisOn"_s);
    g.setRenderFormatNameStr(u"avi"_s);
    g.setRenderQmax(2);
    g.setVideoExportPolicy(Zum::ExportPolicyCropped);
    g.setCropAreaW(1280);
    g.setCropAreaH(720);
    g.setExportSizeW(1920);
    g.setExportSizeH(1080);
    g.setRenderTimecode(false);
    g.setPostProcessing(Zum::NoProcessing);
    g.setPostProcessSettings({});
    g.setVideoEffectsString({});
    g.setRenderFileName(u"videotest"_s);
    g.setExportPicFormat(Zum::ExportPNG);
    w->frames().setTimelineRangeStart(0);
    w->frames().setTimelineRangeEnd(11);
    w->frames().setCurrentIndex(0);
    QVERIFY(w->shell().settle());
}

void TestRenderPane::cleanup()
{
    w->window().setQmlDialogUrl({});
    QCOMPARE(w->shell().sceneWarnings(), QStringList());
}

QObject *TestRenderPane::strings() const
{
    const QList<QObject *> all = w->shell().root().findChildren<QObject *>();
    for (QObject *object : all) {
        if (object->metaObject()->indexOfProperty("sequeExpStr") >= 0)
            return object;
    }
    return nullptr;
}

void TestRenderPane::standsOnTheTimingTabOnly()
{
    QVERIFY(w->part("startRender"));
    w->global().setMainTabsState("captureUIisOn");
    QVERIFY(w->shell().settle());
    QVERIFY(!w->part("startRender"));
    QVERIFY(!w->part("renderFormat"));
    w->global().setMainTabsState("timingUIisOn");
    QVERIFY(w->shell().settle());
    QVERIFY(w->part("startRender"));
}

void TestRenderPane::boxesInTheirOrder()
{
    QStringList titles;
    visitShown(pane(), [&](QQuickItem *item) {
        if (item->metaObject()->indexOfProperty("contentSpacing") >= 0)
            titles.append(item->property("title").toString());
    });
    titles.removeAll({});
    QCOMPARE(titles.first(3), (QStringList{"Filters", "Video", "Frame Info"}));
    QStringList headings;
    visitShown(pane(), [&](QQuickItem *item) {
        if (item->inherits("QQuickText"))
            headings.append(item->property("text").toString());
    });
    qsizetype before = -1;
    for (const char *heading : {"Output", "Format & Quality", "Video Effects", "Size & Options"}) {
        const qsizetype at = headings.indexOf(QLatin1String(heading));
        QVERIFY2(at > before, heading);
        before = at;
    }
}

void TestRenderPane::whatIsStillToComeIsAbsent()
{
    for (const char *text : {"Layers", "Exposure Sheet", "Sequence", "WebP"})
        QVERIFY2(!w->text(QLatin1String(text)), text);
}

void TestRenderPane::filtersPreviewSwitchesTheProcessing()
{
    w->global().setEyedropperOn(true);
    w->global().setChromakeyOn(true);
    w->click("filtersPreview");
    QCOMPARE(w->global().postProcessing(), static_cast<int>(Zum::NonRealtimeProcessing));
    QVERIFY(!w->global().eyedropperOn());
    QVERIFY(!w->global().chromakeyOn());
    w->click("filtersPreview");
    QCOMPARE(w->global().postProcessing(), static_cast<int>(Zum::NoProcessing));
}

void TestRenderPane::filtersSayWhenTheyWork()
{
    QVERIFY(!w->text("Processing, please wait..."));
    w->global().setCachingRightNow(true);
    QVERIFY(!w->text("Processing, please wait..."));
    w->global().setPostProcessing(Zum::NonRealtimeProcessing);
    QVERIFY(w->text("Processing, please wait..."));
    w->global().setCachingRightNow(false);
    QVERIFY(!w->text("Processing, please wait..."));
}

void TestRenderPane::filterSlidersKeepTheirKeys_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("contrast") << "Adjust Contrast";
    QTest::newRow("denoise") << "Remove Noise";
    QTest::newRow("saturation") << "Adjust Saturation";
}

void TestRenderPane::filterSlidersKeepTheirKeys()
{
    QFETCH(QString, text);
    const QString key = QTest::currentDataTag();
    QVERIFY(w->text(text));
    w->part(key + "Slider")->forceActiveFocus(Qt::TabFocusReason);
    w->shell().press(Qt::Key_Right);
    QTRY_VERIFY(w->global().postProcessSettings().contains(key));
    w->shell().press(Qt::Key_Backspace);
    QTRY_VERIFY(!w->global().postProcessSettings().contains(key));
}

void TestRenderPane::moreFiltersOpensTheirDialog()
{
    w->click("moreFilters");
    QCOMPARE(w->dialogFile(), "PostProcessFiltersDialog.qml");
}

void TestRenderPane::fileNameIsCleaned_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << "walk" << "walk";
    QTest::newRow("blanks and hyphens") << "  walk  of-the fox " << "walk_of_the_fox";
    QTest::newRow("what no name bears") << "w/a\\l?k\"{1}" << "walk1";
    QTest::newRow("nothing is left") << "?/?" << "videotest";
    QTest::newRow("emptied") << " " << "videotest";
}

void TestRenderPane::fileNameIsCleaned()
{
    QFETCH(QString, typed);
    QFETCH(QString, name);
    w->type("renderFileName", typed);
    QCOMPARE(w->global().renderFileName(), name);
    QCOMPARE(w->textOf("renderFileName"), name);
}

void TestRenderPane::formatsInTheirOrder()
{
    QStringList shown;
    for (int i = 0; QQuickItem *button = w->choice("renderFormat", i); ++i)
        shown.append(button->property("text").toString() + '|' + button->property("icon").toString() + '|'
                     + button->property("toolTip").toString());
    QCOMPARE(shown, (QStringList{"AVI||", "OGV||HTML5 Video - OGG/OGV video format",
                                 "WebM||HTML5 Video - WebM video format", "MKV||Matroska Multimedia Container",
                                 "|svgicons/cinema.svg|No compression, large file"}));
}

void TestRenderPane::formatIsChosen_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("ogv") << 1;
    QTest::newRow("webm") << 2;
    QTest::newRow("mkv") << 3;
    QTest::newRow("raw") << 4;
    QTest::newRow("avi") << 0;
}

void TestRenderPane::formatIsChosen()
{
    QFETCH(int, index);
    const QString format = QTest::currentDataTag();
    if (index == 0)
        w->global().setRenderFormatNameStr("mkv");
    w->click(w->choice("renderFormat", index));
    QCOMPARE(w->global().renderFormatNameStr(), format);
    QCOMPARE(w->settings().value("renderVideoFormat").toString(), format);
    QVERIFY(w->choice("renderFormat", index)->property("toggled").toBool());
}

void TestRenderPane::qualityIsChosen_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("Low") << 0;
    QTest::newRow("Medium") << 1;
    QTest::newRow("High") << 2;
    QTest::newRow("Maximum") << 3;
}

void TestRenderPane::qualityIsChosen()
{
    QFETCH(int, index);
    w->global().setRenderQmax(index == 0 ? 1 : 0);
    QCOMPARE(w->choice("renderQuality", index)->property("text").toString(), QTest::currentDataTag());
    w->click(w->choice("renderQuality", index));
    QCOMPARE(w->global().renderQmax(), index);
    QCOMPARE(w->settings().integer("renderQmax", -1), index);
}

void TestRenderPane::choicesFollowTheKeyboard()
{
    w->part("renderFormat")->forceActiveFocus();
    w->shell().press(Qt::Key_Right);
    QCOMPARE(w->global().renderFormatNameStr(), "ogv");
    w->shell().press(Qt::Key_Left);
    w->shell().press(Qt::Key_Left);
    QCOMPARE(w->global().renderFormatNameStr(), "avi");
    QCOMPARE(w->frames().currentIndex(), 0);
}

void TestRenderPane::policyIsChosen_data()
{
    QTest::addColumn<int>("policy");
    QTest::addColumn<QString>("icon");
    QTest::newRow("Crop and scale to 1920x1080")
        << static_cast<int>(Zum::ExportPolicyCroppedAndResized) << "svgicons/cut-n-scale.svg";
    QTest::newRow("Fit by width") << static_cast<int>(Zum::ExportPolicyFitByWidth) << "svgicons/width.svg";
    QTest::newRow("Fit by height") << static_cast<int>(Zum::ExportPolicyFitByHeight) << "svgicons/height.svg";
    QTest::newRow("Crop to 1280x720") << static_cast<int>(Zum::ExportPolicyCropped) << "svgicons/cutframe.svg";
}

void TestRenderPane::policyIsChosen()
{
    QFETCH(int, policy);
    QFETCH(QString, icon);
    if (policy == Zum::ExportPolicyCropped)
        w->global().setVideoExportPolicy(Zum::ExportPolicyFitByWidth);
    w->click("exportPolicy");
    w->click("exportPolicy" + QString::number(policy));
    QCOMPARE(w->global().videoExportPolicy(), policy);
    QCOMPARE(w->settings().integer("videoExportPolicy", -1), policy);
    QCOMPARE(w->textOf("exportPolicy"), QTest::currentDataTag());
    QCOMPARE(w->global().exportPolicyText(), QTest::currentDataTag());
    QCOMPARE(w->part("exportPolicy")->property("icon").toString(), icon);
    QVERIFY(!w->part("exportPolicy" + QString::number(policy)));
}

void TestRenderPane::policyTextsTellTheSizes()
{
    w->global().setCropAreaW(640);
    w->global().setCropAreaH(480);
    QCOMPARE(w->textOf("exportPolicy"), "Crop to 640x480");
    w->global().setVideoExportPolicy(Zum::ExportPolicyCroppedAndResized);
    QCOMPARE(w->textOf("exportPolicy"), "Crop and scale to 1920x1440");
}

void TestRenderPane::choicesAreRemembered()
{
    w->click(w->choice("renderFormat", 3));
    w->click(w->choice("renderQuality", 1));
    w->click("exportPolicy");
    w->click("exportPolicy1");
    w->restart();
    QCOMPARE(w->global().renderFormatNameStr(), "mkv");
    QCOMPARE(w->global().renderQmax(), 1);
    QCOMPARE(w->global().videoExportPolicy(), static_cast<int>(Zum::ExportPolicyFitByWidth));
    QVERIFY(w->choice("renderFormat", 3)->property("toggled").toBool());
    QVERIFY(w->choice("renderQuality", 1)->property("toggled").toBool());
}

void TestRenderPane::wrongChoicesOfTheStoreCountAsNone()
{
    w->settings().setValue("renderVideoFormat", "mjpg");
    w->settings().setValue("renderQmax", 4);
    w->settings().setValue("videoExportPolicy", -1);
    w->restart();
    QCOMPARE(w->global().renderFormatNameStr(), "avi");
    QCOMPARE(w->global().renderQmax(), 2);
    QCOMPARE(w->global().videoExportPolicy(), static_cast<int>(Zum::ExportPolicyCropped));
}

void TestRenderPane::projectsPolicyGoesBeforeTheSettings()
{
    const QString film = w->window().projPath();
    w->global().setVideoExportPolicy(Zum::ExportPolicyFitByHeight);
    QVERIFY(w->window().saveProjectXmlFile(Zum::SaveProject));
    QTRY_VERIFY(!w->global().projectChanged());
    w->global().setVideoExportPolicy(Zum::ExportPolicyCropped);
    w->global().setProjectChanged(false);
    w->window().openProject(film);
    QTRY_COMPARE(w->global().videoExportPolicy(), static_cast<int>(Zum::ExportPolicyFitByHeight));
    QTRY_COMPARE(w->frames().framesCount(), 12);
    QTRY_COMPARE(w->window().progressTotal(), 0);
    // Its frames have no pictures, and say so.
    w->restart();
}

void TestRenderPane::timecodeIsSwitched()
{
    w->click("renderTimecode");
    QVERIFY(w->global().renderTimecode());
    w->click("renderTimecode");
    QVERIFY(!w->global().renderTimecode());
}

void TestRenderPane::sizeShowsForItsPolicyOnly()
{
    QVERIFY(!w->part("exportSize"));
    w->global().setVideoExportPolicy(Zum::ExportPolicyCroppedAndResized);
    QVERIFY(w->part("exportSize"));
    QVERIFY(w->text("Size must be a multiple of 8"));
}

void TestRenderPane::widthRoundsUpAndHeightFollows_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QSize>("size");
    QTest::newRow("kept") << "1280" << QSize(1280, 720);
    QTest::newRow("rounded up") << "1001" << QSize(1008, 568);
    QTest::newRow("too small") << "100" << QSize(320, 184);
}

void TestRenderPane::widthRoundsUpAndHeightFollows()
{
    QFETCH(QString, typed);
    QFETCH(QSize, size);
    w->global().setVideoExportPolicy(Zum::ExportPolicyCroppedAndResized);
    QVERIFY(w->shell().settle());
    w->type("exportWidth", typed);
    QCOMPARE(w->global().exportSize(), size);
    QCOMPARE(w->textOf("exportHeight"), "Height: " + QString::number(size.height()));
}

void TestRenderPane::marginsAreNoted_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("noted");
    QTest::newRow("the same shape") << QSize(1920, 1080) << false;
    QTest::newRow("the same to four digits") << QSize(1280, 720) << false;
    QTest::newRow("higher") << QSize(1008, 568) << true;
    QTest::newRow("a ten-thousandth") << QSize(12800, 7201) << true;
    QTest::newRow("less than that") << QSize(128000, 72004) << false;
}

void TestRenderPane::marginsAreNoted()
{
    QFETCH(QSize, size);
    QFETCH(bool, noted);
    w->global().setVideoExportPolicy(Zum::ExportPolicyCroppedAndResized);
    w->global().setExportSizeW(size.width());
    w->global().setExportSizeH(size.height());
    QCOMPARE(w->text("Black margins may occur") != nullptr, noted);
}

void TestRenderPane::sizeFollowsTheCropArea()
{
    w->global().setCropAreaW(800);
    w->global().setCropAreaH(600);
    QCOMPARE(w->global().exportSize(), QSize(1920, 1440));
}

void TestRenderPane::effectIsNamedAndRemoved()
{
    QCOMPARE(w->textOf("effectName"), "No Effect");
    QVERIFY(!w->part("removeEffect")->property("usable").toBool());
    w->global().setVideoEffectsString("cas=strength=40");
    QCOMPARE(w->textOf("effectName"), "Sharpen");
    QCOMPARE(w->global().currentFilterHumanReadableName(), "Sharpen");
    w->click("removeEffect");
    QCOMPARE(w->global().videoEffectsString(), QString());
    QVERIFY(!w->global().applyPostProcessEffects());
    QCOMPARE(w->textOf("effectName"), "No Effect");
}

void TestRenderPane::unknownEffectIsNamedAfterItsFilter()
{
    w->global().setVideoEffectsString("hue=s=0");
    QCOMPARE(w->textOf("effectName"), "hue");
}

void TestRenderPane::effectsDialogOpens()
{
    w->click("openEffects");
    QCOMPARE(w->dialogFile(), "VideoEffectsDialog.qml");
    QVERIFY(w->part("effects"));
}

void TestRenderPane::everySummary_data()
{
    QTest::addColumn<int>("policy");
    QTest::addColumn<int>("switches");
    QTest::addColumn<QString>("summary");
    const QStringList policies{"1280x720, crop", "1280x720, scale", "1280x720, scale",
                               "1920x1080, crop & scale"};
    for (int policy = 0; policy < 4; ++policy) {
        for (int switches = 0; switches < 8; ++switches) {
            const QString text = "WEBM " + policies.at(policy) + (switches & 1 ? ", filters" : "")
                                 + (switches & 2 ? ", timecode" : "") + (switches & 4 ? ", effects" : "");
            QTest::newRow(qPrintable(text + QString::number(policy))) << policy << switches << text;
        }
    }
}

void TestRenderPane::everySummary()
{
    QFETCH(int, policy);
    QFETCH(int, switches);
    QFETCH(QString, summary);
    w->global().setRenderFormatNameStr("webm");
    w->global().setVideoExportPolicy(policy);
    w->global().setPostProcessing((switches & 1) != 0 ? Zum::NonRealtimeProcessing : Zum::NoProcessing);
    w->global().setRenderTimecode((switches & 2) != 0);
    w->global().setVideoEffectsString((switches & 4) != 0 ? "cas=strength=40" : "");
    QCOMPARE(w->global().videoRenderSettsStr(), summary);
    QCOMPARE(w->textOf("renderSummary"), summary);
    QCOMPARE(strings()->property("videoExpStr").toString(), summary);
}

void TestRenderPane::sequenceSummary_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("policy");
    QTest::addColumn<QString>("summary");
    const QStringList formats{"PNG", "JPG", "TIFF", "WEBP", "BMP"};
    for (int format = 0; format < formats.size(); ++format) {
        QTest::newRow(qPrintable(formats.at(format)))
            << format << 0 << formats.at(format) + " 1280x720, crop, filters, timecode";
        QTest::newRow(qPrintable(formats.at(format) + " scaled"))
            << format << 3 << formats.at(format) + " 640x360, crop & scale, filters, timecode";
    }
}

void TestRenderPane::sequenceSummary()
{
    QFETCH(int, format);
    QFETCH(int, policy);
    QFETCH(QString, summary);
    w->global().setExportPicFormat(format);
    w->global().setVideoExportPolicy(policy);
    w->global().setSequenceExportSizeW(640);
    w->global().setSequenceExportSizeH(360);
    w->global().setPostProcessing(Zum::NonRealtimeProcessing);
    w->global().setRenderTimecode(true);
    w->global().setVideoEffectsString("cas=strength=40");
    QCOMPARE(strings()->property("sequeExpStr").toString(), summary);
}

void TestRenderPane::startNeedsARange()
{
    QVERIFY(w->part("startRender")->property("usable").toBool());
    w->frames().setTimelineRangeEnd(0);
    QVERIFY(!w->part("startRender")->property("usable").toBool());
    w->frames().setTimelineRangeEnd(1);
    QVERIFY(w->part("startRender")->property("usable").toBool());
}

void TestRenderPane::startNeedsAFreeWorker()
{
    RobotSupervisor &robot = w->shell().controllers().robot;
    robot.setMorvaRobotThreadStarted(true);
    QVERIFY(!w->part("startRender")->property("usable").toBool());
    robot.setMorvaRobotThreadStarted(false);
    QVERIFY(w->part("startRender")->property("usable").toBool());
}

void TestRenderPane::problemsAreNamed_data()
{
    QTest::addColumn<QSize>("crop");
    QTest::addColumn<int>("policy");
    QTest::addColumn<int>("rangeEnd");
    QTest::addColumn<QString>("problem");
    const int crop = Zum::ExportPolicyCropped;
    const int scale = Zum::ExportPolicyCroppedAndResized;
    QTest::newRow("none") << QSize(1280, 720) << crop << 11 << "";
    QTest::newRow("no range") << QSize(1280, 720) << crop << 0
                              << "Nothing to render: the range needs two frames or more";
    QTest::newRow("too narrow") << QSize(312, 720) << crop << 11 << "Minimum frame size is 320x280";
    QTest::newRow("too low") << QSize(1280, 272) << crop << 11 << "Minimum frame size is 320x280";
    QTest::newRow("the least there may be") << QSize(320, 280) << crop << 11 << "";
    QTest::newRow("no multiple of 8") << QSize(1000, 562) << crop << 11 << "Size must be a multiple of 8";
    QTest::newRow("no multiple of 8, scaled") << QSize(1000, 562) << scale << 11 << "";
}

void TestRenderPane::problemsAreNamed()
{
    QFETCH(QSize, crop);
    QFETCH(int, policy);
    QFETCH(int, rangeEnd);
    QFETCH(QString, problem);
    w->global().setVideoExportPolicy(policy);
    w->global().setCropAreaW(crop.width());
    w->global().setCropAreaH(crop.height());
    w->frames().setTimelineRangeEnd(rangeEnd);
    QCOMPARE(w->textOf("renderProblem"), problem);
}

void TestRenderPane::tabsAreBlockedDuringAnExport_data()
{
    QTest::addColumn<int>("job");
    QTest::addColumn<bool>("blocked");
    QTest::newRow("rendering") << static_cast<int>(Zum::RenderVideo) << true;
    QTest::newRow("exporting frames") << static_cast<int>(Zum::ExportFrames) << true;
    QTest::newRow("importing pictures") << static_cast<int>(Zum::GenThumbnails) << false;
    QTest::newRow("no job") << static_cast<int>(Zum::NoJob) << false;
}

void TestRenderPane::tabsAreBlockedDuringAnExport()
{
    QFETCH(int, job);
    QFETCH(bool, blocked);
    w->shell().controllers().robot.setCurrentRobotJob(job);
    w->clickText("Capture");
    QCOMPARE(w->global().mainTabsState(), blocked ? "timingUIisOn" : "captureUIisOn");
    w->global().setMainTabsState("timingUIisOn");
    w->shell().controllers().robot.setCurrentRobotJob(Zum::NoJob);
}

void TestRenderPane::folderOfMoviesIsShown()
{
    QFile::remove(w->window().videoDirPath());
    w->clickText("Timing");
    QQuickItem *button = w->shell().findItem("toolTip", "Show the folder of the movies");
    w->click(button);
    QCOMPARE(w->shell().desktop().shown.last(), w->window().videoDirPath());
    const QString movie = w->window().videoDirPath() + "videotest.avi";
    QFile file(movie);
    QVERIFY(file.open(QIODevice::WriteOnly));
    w->global().setLastRenderedPath(movie);
    w->click(button);
    QCOMPARE(w->shell().desktop().shown.last(), movie);
    w->global().setLastRenderedPath({});
}

void TestRenderPane::frameInfoFollowsTheCurrentFrame()
{
    w->frames().setStartIndex(100);
    w->frames().setCurrentIndex(5);
    QVERIFY(w->text("Number: 105"));
    QVERIFY(w->text("Captured: frame_5.jpg"));
    QVERIFY(w->text("Reference: none"));
    w->frames().setTimelineFps(5);
    w->frames().setCurrentIndex(10);
    QVERIFY(w->text("Time: 00.00.02"));
    w->frames().setStartIndex(0);
    w->frames().setTimelineFps(25);
}

void TestRenderPane::frameInfoTellsTheState()
{
    QVERIFY(!w->text("hidden, not in the movie; mirrored"));
    w->frames().modifyFrame({{"hidden", true}, {"mirrored", true}}, 0);
    QTRY_VERIFY(w->text("hidden, not in the movie; mirrored"));
    w->frames().modifyFrame({{"hidden", false}, {"mirrored", false}}, 0);
    QTRY_VERIFY(!w->text("hidden, not in the movie; mirrored"));
}

QList<QQuickItem *> TestRenderPane::tabStops() const
{
    QList<QQuickItem *> stops;
    visitShown(pane(), [&](QQuickItem *item) {
        if (item->activeFocusOnTab() && item->isEnabled())
            stops.append(item);
    });
    return stops;
}

void TestRenderPane::everyControlIsReachedByTheKeyboard()
{
    const QList<QQuickItem *> stops = tabStops();
    QVERIFY(stops.size() > 12);
    QQuickItem *item = stops.first();
    QList<QQuickItem *> reached;
    for (int i = 0; i < 80 && !reached.contains(item); ++i) {
        reached.append(item);
        item = item->nextItemInFocusChain();
    }
    for (QQuickItem *stop : stops) {
        QVERIFY(reached.contains(stop));
        stop->forceActiveFocus(Qt::TabFocusReason);
        QVERIFY(w->shell().settle());
        const QRectF area = stop->mapRectToItem(pane(), stop->boundingRect());
        QVERIFY2(area.top() >= 0 && area.bottom() <= pane()->height() + 1, qPrintable(stop->objectName()));
    }
}

void TestRenderPane::everyControlHasAToolTipAndAName()
{
    const QList<QQuickItem *> stops = tabStops();
    for (QQuickItem *stop : stops) {
        QString tip;
        for (QQuickItem *above = stop; above != pane() && tip.isEmpty(); above = above->parentItem())
            tip = above->property("toolTip").toString() + above->property("label").toString();
        const bool scrolls = QByteArray(stop->metaObject()->className()).startsWith("Scrollbar");
        QVERIFY2(!tip.isEmpty() || scrolls, stop->metaObject()->className());
    }
}

QTEST_MAIN(TestRenderPane)
#include "tst_renderpane.moc"
