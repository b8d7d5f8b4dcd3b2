#include "support/ShownItems.h"
#include "ui/render/RenderTest.h"

#include "app/Translations.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

/// The panel of the Timing tab: what each control changes and remembers, and what is noted beside it.
class TestRenderPane : public RenderTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

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

private:
    QQuickItem *pane() const
    {
        return w->pane();
    }
};

void TestRenderPane::initTestCase()
{
    w = std::make_unique<RenderWindow>();
}

/// One window serves all.
void TestRenderPane::init()
{
    w->reset();
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
    shownItems::visit(pane(), [&](QQuickItem *item) {
        if (item->metaObject()->indexOfProperty("contentSpacing") >= 0)
            titles.append(item->property("title").toString());
    });
    titles.removeAll({});
    QCOMPARE(titles.first(3), (QStringList{"Filters", "Video", "Frame Info"}));
    const QStringList headings = shownItems::texts(pane());
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
    QCOMPARE(w->dialogFile(), "FiltersDialog.qml");
}

void TestRenderPane::fileNameIsCleaned_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << "walk"
                           << "walk";
    QTest::newRow("blanks and hyphens") << "  walk  of-the fox "
                                        << "walk_of_the_fox";
    QTest::newRow("what no name bears") << "w/a\\l?k\"{1}"
                                        << "walk1";
    QTest::newRow("nothing is left") << "?/?"
                                     << "videotest";
    QTest::newRow("emptied") << " "
                             << "videotest";
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
    QCOMPARE(shown,
             (QStringList{"AVI||", "OGV||HTML5 Video - OGG/OGV video format",
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
    QTest::newRow("Crop to 1280x720")
        << static_cast<int>(Zum::ExportPolicyCropped) << "svgicons/cutframe.svg";
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
    QCOMPARE(w->dialogFile(), "PostProcessFiltersDialog.qml");
    QVERIFY(w->part("effects"));
}

QTEST_MAIN(TestRenderPane)
#include "tst_renderpane.moc"
