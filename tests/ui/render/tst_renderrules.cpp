#include "support/ShownItems.h"
#include "ui/render/RenderTest.h"

#include "app/Translations.h"

#include <functional>

using namespace Qt::StringLiterals;

/// What the render pane tells and allows: the lines that say what would be made, when the start button can be
/// pressed and what stands against it, what is known of the current frame, how the keyboard comes through,
/// and that every text is whole.
class TestRenderRules : public RenderTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

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
    void everyTextIsWhole_data();
    void everyTextIsWhole();

private:
    QQuickItem *pane() const
    {
        return w->pane();
    }
    QObject *strings() const;
    QList<QQuickItem *> tabStops() const;
};

void TestRenderRules::initTestCase()
{
    w = std::make_unique<RenderWindow>();
}

/// One window serves all.
void TestRenderRules::init()
{
    w->reset();
}

QObject *TestRenderRules::strings() const
{
    const QList<QObject *> all = w->shell().root().findChildren<QObject *>();
    for (QObject *object : all) {
        if (object->metaObject()->indexOfProperty("sequeExpStr") >= 0)
            return object;
    }
    return nullptr;
}

void TestRenderRules::everySummary_data()
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

void TestRenderRules::everySummary()
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

void TestRenderRules::sequenceSummary_data()
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

void TestRenderRules::sequenceSummary()
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

void TestRenderRules::startNeedsARange()
{
    QVERIFY(w->part("startRender")->property("usable").toBool());
    w->frames().setTimelineRangeEnd(0);
    QVERIFY(!w->part("startRender")->property("usable").toBool());
    w->frames().setTimelineRangeEnd(1);
    QVERIFY(w->part("startRender")->property("usable").toBool());
}

void TestRenderRules::startNeedsAFreeWorker()
{
    RobotSupervisor &robot = w->shell().controllers().robot;
    robot.setMorvaRobotThreadStarted(true);
    QVERIFY(!w->part("startRender")->property("usable").toBool());
    robot.setMorvaRobotThreadStarted(false);
    QVERIFY(w->part("startRender")->property("usable").toBool());
}

void TestRenderRules::problemsAreNamed_data()
{
    QTest::addColumn<QSize>("crop");
    QTest::addColumn<int>("policy");
    QTest::addColumn<int>("rangeEnd");
    QTest::addColumn<QString>("problem");
    const int crop = Zum::ExportPolicyCropped;
    const int scale = Zum::ExportPolicyCroppedAndResized;
    QTest::newRow("none") << QSize(1280, 720) << crop << 11 << "";
    QTest::newRow("no range")
        << QSize(1280, 720) << crop << 0
        << "Nothing to render: the range needs two frames or more. Capture more frames, or "
           "drag its ends on the timeline";
    QTest::newRow("too narrow") << QSize(312, 720) << crop << 11 << "Minimum frame size is 320x280";
    QTest::newRow("too low") << QSize(1280, 272) << crop << 11 << "Minimum frame size is 320x280";
    QTest::newRow("the least there may be") << QSize(320, 280) << crop << 11 << "";
    QTest::newRow("no multiple of 8") << QSize(1000, 562) << crop << 11 << "Size must be a multiple of 8";
    QTest::newRow("no multiple of 8, scaled") << QSize(1000, 562) << scale << 11 << "";
}

void TestRenderRules::problemsAreNamed()
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

void TestRenderRules::tabsAreBlockedDuringAnExport_data()
{
    QTest::addColumn<int>("job");
    QTest::addColumn<bool>("blocked");
    QTest::newRow("rendering") << static_cast<int>(Zum::RenderVideo) << true;
    QTest::newRow("exporting frames") << static_cast<int>(Zum::ExportFrames) << true;
    QTest::newRow("importing pictures") << static_cast<int>(Zum::GenThumbnails) << false;
    QTest::newRow("no job") << static_cast<int>(Zum::NoJob) << false;
}

void TestRenderRules::tabsAreBlockedDuringAnExport()
{
    QFETCH(int, job);
    QFETCH(bool, blocked);
    w->shell().controllers().robot.setCurrentRobotJob(job);
    w->clickText("Capture");
    QCOMPARE(w->global().mainTabsState(), blocked ? "timingUIisOn" : "captureUIisOn");
    w->global().setMainTabsState("timingUIisOn");
    w->shell().controllers().robot.setCurrentRobotJob(Zum::NoJob);
}

void TestRenderRules::folderOfMoviesIsShown()
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

void TestRenderRules::frameInfoFollowsTheCurrentFrame()
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

void TestRenderRules::frameInfoTellsTheState()
{
    QVERIFY(!w->text("hidden, not in the movie; mirrored"));
    w->frames().modifyFrame({{"hidden", true}, {"mirrored", true}}, 0);
    QTRY_VERIFY(w->text("hidden, not in the movie; mirrored"));
    w->frames().modifyFrame({{"hidden", false}, {"mirrored", false}}, 0);
    QTRY_VERIFY(!w->text("hidden, not in the movie; mirrored"));
}

QList<QQuickItem *> TestRenderRules::tabStops() const
{
    QList<QQuickItem *> stops;
    shownItems::visit(pane(), [&](QQuickItem *item) {
        if (item->activeFocusOnTab() && item->isEnabled())
            stops.append(item);
    });
    return stops;
}

void TestRenderRules::everyControlIsReachedByTheKeyboard()
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

void TestRenderRules::everyControlHasAToolTipAndAName()
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

void TestRenderRules::everyTextIsWhole_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<int>("fontRow");
    QTest::addColumn<QSize>("size");
    for (const char *locale : {"en_US", "ru_RU"}) {
        for (const int row : {1, 3, 5, 8}) {
            for (const QSize size : {QSize(1024, 600), QSize(1600, 1000)}) {
                // The largest letters leave no room for a word in the smallest window.
                if (row == 8 && size.width() == 1024)
                    continue;
                QTest::newRow(qPrintable(QString(locale) + '_' + QString::number(row) + '_'
                                         + QString::number(size.width())))
                    << QString(locale) << row << size;
            }
        }
    }
}

void TestRenderRules::everyTextIsWhole()
{
    QFETCH(QString, locale);
    RenderWindow::Options options;
    options.locale = locale;
    QObject owner;
    if (locale != "en_US")
        translations::install(locale, &owner);
    QFETCH(int, fontRow);
    QFETCH(QSize, size);
    options.fontRow = fontRow;
    options.size = size;
    RenderWindow window(options);
    window.global().setVideoExportPolicy(Zum::ExportPolicyCroppedAndResized);
    window.global().setCropAreaW(1000);
    window.global().setPostProcessing(Zum::NonRealtimeProcessing);
    window.global().setRenderTimecode(true);
    window.global().setVideoEffectsString("bilateral=sigmaR=0:sigmaS=0");
    QVERIFY(window.shell().settle());
    window.keepPicture("pane_" + QLatin1String(QTest::currentDataTag()));
    for (const char *part : {"renderPane", "renderButtons"})
        QCOMPARE(shownItems::textsOutside(window.part(part)).join('\n'), QString());
    window.click("openEffects");
    QVERIFY(window.shell().settle());
    window.keepPicture("effects_" + QLatin1String(QTest::currentDataTag()));
    auto *dialog = window.shell().evaluate("dialog.item").value<QQuickItem *>();
    QVERIFY(dialog);
    QCOMPARE(shownItems::textsOutside(dialog).join('\n'), QString());
}

QTEST_MAIN(TestRenderRules)
#include "tst_renderrules.moc"
