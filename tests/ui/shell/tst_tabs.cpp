#include "support/ShellWindow.h"

#include <QTest>

/// The four tabs of the scene and their forms: what shows in each, what else they change, and how the keys,
/// the mouse and the layout switch lead from one to the other.
class TestTabs : public QObject
{
    Q_OBJECT

private slots:
    void state_data();
    void state();
    void enteringATabSetsTheRestOfTheProgram_data();
    void enteringATabSetsTheRestOfTheProgram();
    void changeDuringPlaybackStopsIt_data();
    void changeDuringPlaybackStopsIt();
    void layoutSwitch_data();
    void layoutSwitch();
    void layoutSwitchTellsTheWayBack_data();
    void layoutSwitchTellsTheWayBack();
    void formIsNoEntry();
    void tabsAreClicked_data();
    void tabsAreClicked();
    void buttonsOfTheTopLine();

private:
    static bool shows(ShellWindow &shell, const QString &id);
};

namespace {

const QStringList captureShows{"screenArea",       "timelineBox",        "displayContainer",
                               "controlsPanesBox", "statusBar",          "toggleRow",
                               "maximizedBtn",     "showHideRightPanel", "screenControls"};
const QStringList captureHides{"ramPreviewContainer", "videoPreviewContainer", "docsView"};
const QStringList timingShows{"screenArea",         "controlsPanesBox",    "timelineBox", "mainControlBox",
                              "maximizedBtn",       "ramPreviewContainer", "statusBar",   "toggleRow",
                              "showHideRightPanel", "screenControls"};
const QStringList timingHides{"displayContainer", "videoPreviewContainer", "docsView"};
const QStringList videoShows{"screenArea", "mainControlBox", "videoPreviewContainer", "toggleRow",
                             "maximizedBtn"};
const QStringList videoHides{"timelineBox", "displayContainer", "ramPreviewContainer",
                             "statusBar",   "docsView",         "screenControls"};
const QStringList docsShows{"docsView", "toggleRow"};
const QStringList docsHides{"screenArea",       "controlsPanesBox",      "ramPreviewContainer", "timelineBox",
                            "mainControlBox",   "maximizedBtn",          "showHideRightPanel",  "statusBar",
                            "displayContainer", "videoPreviewContainer", "screenControls"};
const QStringList besideThePicture{"controlsPanesBox", "statusBar", "mainControlBox", "showHideRightPanel"};

QStringList without(QStringList all, const QStringList &gone)
{
    for (const QString &one : gone)
        all.removeAll(one);
    return all;
}

} // namespace

/// An item of no extent does not show.
bool TestTabs::shows(ShellWindow &shell, const QString &id)
{
    const QStringList ofTheScreen{"displayContainer", "ramPreviewContainer", "videoPreviewContainer"};
    const QStringList ofTheTopLine{"maximizedBtn", "showHideRightPanel"};
    QString file;
    if (ofTheScreen.contains(id))
        file = "screenArea";
    else if (ofTheTopLine.contains(id))
        file = "topLine";
    const QVariant found = file.isEmpty() ? shell.evaluate(id) : shell.evaluateInside(shell.item(file), id);
    const auto *item = found.value<QQuickItem *>();
    if (item == nullptr)
        qFatal("No %s in the scene", qPrintable(id));
    return item->isVisible() && item->width() > 0 && item->height() > 0;
}

void TestTabs::state_data()
{
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<QStringList>("hidden");
    QTest::newRow("captureUIisOn") << captureShows << captureHides;
    QTest::newRow("timingUIisOn") << timingShows << timingHides;
    QTest::newRow("playbackUIisOn") << videoShows << videoHides;
    QTest::newRow("docsUIisOn") << docsShows << docsHides;
    QTest::newRow("captureUIisOn_compacted")
        << without(captureShows, besideThePicture) << captureHides + besideThePicture;
    QTest::newRow("timingUIisOn_compacted")
        << without(timingShows, besideThePicture) << timingHides + besideThePicture;
    QTest::newRow("playbackUIisOn_compacted")
        << without(videoShows, besideThePicture) << videoHides + besideThePicture;
    const QStringList allButThePicture =
        besideThePicture + QStringList{"timelineBox", "toggleRow", "screenControls"};
    QTest::newRow("captureUIisOn_maximized")
        << without(captureShows, allButThePicture) << captureHides + allButThePicture;
    QTest::newRow("timingUIisOn_maximized")
        << without(timingShows, allButThePicture) << timingHides + allButThePicture;
    QTest::newRow("playbackUIisOn_maximized")
        << without(videoShows, allButThePicture) << videoHides + allButThePicture;
}

void TestTabs::state()
{
    QFETCH(QStringList, shown);
    QFETCH(QStringList, hidden);
    const QString name = QTest::currentDataTag();
    ShellWindow shell;
    QVERIFY(shell.createProject());
    // Come from elsewhere, so that the state's own rules are at work.
    shell.global().setMainTabsState(name == "docsUIisOn" ? "captureUIisOn" : "docsUIisOn");
    shell.global().setMainTabsState(name);
    QCOMPARE(shell.evaluate("toggleRow.state").toString(), name);
    for (const QString &id : shown)
        QVERIFY2(shows(shell, id), qPrintable(id));
    for (const QString &id : hidden)
        QVERIFY2(!shows(shell, id), qPrintable(id));

    const bool maximized = name.endsWith("_maximized");
    const bool compacted = name.endsWith("_compacted");
    QCOMPARE(shell.evaluateInside(shell.item("topLine"), "maximizedBtn.isMaximized").toBool(), maximized);
    QCOMPARE(shell.evaluate("topLine.height").toInt() == 1, maximized);
    QCOMPARE(shell.evaluate("timelineBox.compactMode").toBool(), compacted);
    QCOMPARE(shell.evaluate("timelineBox.rangeControlVisible").toBool(), name.startsWith("timing"));
    QCOMPARE(shell.evaluate("timelineBox.scale").toReal(), compacted ? 0.8 : 1.0);
    if (compacted && shown.contains("timelineBox")) {
        QCOMPARE(shell.evaluate("timelineBox.height").toInt(), 140);
        // The scaled timeline spans the window and touches the picture and the bottom.
        const QQuickItem *timeline = shell.item("timelineBox");
        const QRectF place = timeline->mapRectToScene(QRectF(0, 0, timeline->width(), timeline->height()));
        QCOMPARE(place, QRectF(0, shell.window().height() - 112, shell.window().width(), 112));
        QCOMPARE(shell.evaluate("screenArea.y + screenArea.height").toReal(), place.top());
    }
    if (maximized) {
        const QQuickItem *screen = shell.item("screenArea");
        QCOMPARE(screen->mapRectToScene(QRectF(0, 0, screen->width(), screen->height())),
                 QRectF(0, 1, shell.window().width(), shell.window().height() - 1));
    }
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestTabs::enteringATabSetsTheRestOfTheProgram_data()
{
    QTest::addColumn<QString>("tabState");
    QTest::addColumn<int>("tab");
    QTest::addColumn<bool>("paused");
    QTest::addColumn<bool>("playerPaused");
    QTest::addColumn<bool>("ramPaused");
    QTest::addColumn<bool>("endsStackAndFlipFlop");
    QTest::addColumn<bool>("stacks");
    for (const bool stacks : {true, false}) {
        const char *with = stacks ? "onion skin" : "flip-flop";
        const auto row = [&](const char *state) -> QTestData & {
            return QTest::addRow("%s with %s", state, with) << QString::fromLatin1(state);
        };
        row("captureUIisOn") << int(Zum::CaptureTab) << false << true << true << false << stacks;
        row("timingUIisOn") << int(Zum::TimingTab) << true << true << false << true << stacks;
        row("playbackUIisOn") << int(Zum::VideoTab) << true << false << true << true << stacks;
        row("docsUIisOn") << int(Zum::DocsTab) << true << true << true << true << stacks;
    }
}

void TestTabs::enteringATabSetsTheRestOfTheProgram()
{
    QFETCH(QString, tabState);
    QFETCH(int, tab);
    QFETCH(bool, paused);
    QFETCH(bool, playerPaused);
    QFETCH(bool, ramPaused);
    QFETCH(bool, endsStackAndFlipFlop);
    QFETCH(bool, stacks);
    ShellWindow shell;
    WebcamGlobal &global = shell.global();
    global.setMainTabsState(tab == Zum::DocsTab ? "captureUIisOn" : "docsUIisOn");
    global.setPaused(!paused);
    global.setPlayerPaused(!playerPaused);
    global.setRamPaused(!ramPaused);
    // Each would end the other.
    if (stacks)
        global.setStackMode(Zum::StackPast);
    else
        global.setFlipFlop(Zum::FadeFlipFlop);
    global.setVideoExtractorOn(true);
    global.setLayersSettingsOn(true);

    global.setMainTabsState(tabState);
    QCOMPARE(global.currentActiveTab(), tab);
    QCOMPARE(global.paused(), paused);
    QCOMPARE(global.playerPaused(), playerPaused);
    QCOMPARE(global.ramPaused(), ramPaused);
    QCOMPARE(global.stackMode(), stacks && !endsStackAndFlipFlop ? int(Zum::StackPast) : int(Zum::NoStack));
    QCOMPARE(global.flipFlop(),
             stacks || endsStackAndFlipFlop ? int(Zum::NoFlipFlop) : int(Zum::FadeFlipFlop));
    QCOMPARE(global.videoExtractorOn(), tab != Zum::VideoTab);
    QCOMPARE(global.montageMode(), tab == Zum::TimingTab);
    QVERIFY(!global.layersSettingsOn());
}

void TestTabs::changeDuringPlaybackStopsIt_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<bool>("goesOn");
    QTest::newRow("captureUIisOn") << "timingUIisOn" << false;
    QTest::newRow("playbackUIisOn") << "timingUIisOn" << false;
    QTest::newRow("docsUIisOn") << "timingUIisOn" << false;
    QTest::newRow("timingUIisOn") << "captureUIisOn" << true;
}

void TestTabs::changeDuringPlaybackStopsIt()
{
    QFETCH(QString, from);
    QFETCH(bool, goesOn);
    ShellWindow shell;
    QVERIFY(shell.createProject());
    shell.addFrames(5);
    shell.global().setMainTabsState(from);
    shell.frames().setTimelineFps(12);
    shell.frames().setTimelineRangeEnd(4);
    shell.frames().play();
    QTRY_VERIFY(shell.frames().playing());
    shell.global().setMainTabsState(QTest::currentDataTag());
    QCOMPARE(shell.frames().playing(), goesOn);
}

void TestTabs::layoutSwitch_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("to");
    for (const QString tab : {"captureUIisOn", "timingUIisOn", "playbackUIisOn"}) {
        const QByteArray name = tab.toLatin1();
        const QString compacted = tab + "_compacted";
        const QString maximized = tab + "_maximized";
        QTest::addRow("%s to compacted", name.data()) << tab << "compacted" << compacted;
        QTest::addRow("%s back from compacted", name.data()) << compacted << "compacted" << tab;
        QTest::addRow("%s to maximized", name.data()) << tab << "maximized" << maximized;
        QTest::addRow("%s back from maximized", name.data()) << maximized << "maximized" << tab;
        QTest::addRow("%s from compacted to maximized", name.data()) << compacted << "maximized" << maximized;
        QTest::addRow("%s from maximized to compacted", name.data()) << maximized << "compacted" << compacted;
    }
    QTest::newRow("nothing is compacted on the docs tab") << "docsUIisOn"
                                                          << "compacted"
                                                          << "docsUIisOn";
    QTest::newRow("nothing is maximized on the docs tab") << "docsUIisOn"
                                                          << "maximized"
                                                          << "docsUIisOn";
}

void TestTabs::layoutSwitch()
{
    QFETCH(QString, from);
    QFETCH(QString, mode);
    QFETCH(QString, to);
    ShellWindow shell;
    shell.global().setMainTabsState(from);
    const int tab = shell.global().currentActiveTab();
    shell.evaluate(QString("switchLayout('%1')").arg(mode));
    QCOMPARE(shell.global().mainTabsState(), to);
    QCOMPARE(shell.global().currentActiveTab(), tab);
}

void TestTabs::layoutSwitchTellsTheWayBack_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::newRow("compacted") << int(Qt::Key_F9) << "Return to normal state [F9]";
    QTest::newRow("maximized") << int(Qt::Key_F6) << "Return to normal state [F6]";
}

void TestTabs::layoutSwitchTellsTheWayBack()
{
    QFETCH(int, key);
    QFETCH(QString, text);
    ShellWindow shell;
    shell.press(key);
    QCOMPARE(shell.global().mainTabsState(), QString("captureUIisOn_") + QTest::currentDataTag());
    QVERIFY(shell.evaluate("popup.shown").toBool());
    QTRY_VERIFY(shell.findItem("text", text) != nullptr);

    // The way back itself says nothing.
    shell.evaluate("popup.hide()");
    QTRY_VERIFY(!shell.evaluate("popup.shown").toBool());
    shell.press(key);
    QCOMPARE(shell.global().mainTabsState(), "captureUIisOn");
    QVERIFY(!shell.evaluate("popup.shown").toBool());
}

void TestTabs::formIsNoEntry()
{
    ShellWindow shell;
    shell.global().setPaused(true);
    shell.global().setPlayerPaused(false);
    shell.evaluate("switchLayout('maximized')");
    QVERIFY(shell.global().paused());
    QVERIFY(!shell.global().playerPaused());
}

void TestTabs::tabsAreClicked_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("with their words") << QSize(1280, 760);
    QTest::newRow("as pictures where there is little room") << QSize(1024, 600);
}

void TestTabs::tabsAreClicked()
{
    QFETCH(QSize, size);
    ShellWindow::Options options;
    options.size = size;
    options.settings.insert("fontsize", 3);
    ShellWindow shell(options);
    const QList<std::pair<const char *, const char *>> tabs{{"Timing", "timingUIisOn"},
                                                            {"Video", "playbackUIisOn"},
                                                            {"Docs", "docsUIisOn"},
                                                            {"Capture", "captureUIisOn"}};
    for (const auto &[label, name] : tabs) {
        QQuickItem *tab = shell.findItem("label", label, shell.item("toggleRow"));
        QVERIFY2(tab != nullptr, label);
        QCOMPARE(tab->property("text").toString().isEmpty(), size.width() < 1100);
        shell.click(tab);
        QCOMPARE(shell.global().mainTabsState(), name);
        QVERIFY(tab->property("toggled").toBool());
        QCOMPARE(shell.evaluate("toggleRow.state").toString(), name);
    }
}

void TestTabs::buttonsOfTheTopLine()
{
    ShellWindow shell;
    QVERIFY(shell.createProject());
    QQuickItem *topLine = shell.item("topLine");
    shell.click(shell.findItem("icon", "svgicons/maximize.svg", topLine));
    QCOMPARE(shell.global().mainTabsState(), "captureUIisOn_maximized");
    shell.click(shell.findItem("icon", "svgicons/restore.svg", topLine));
    QCOMPARE(shell.global().mainTabsState(), "captureUIisOn");

    shell.click(shell.findItem("icon", "svgicons/panel-hide.svg", topLine));
    QVERIFY(!shows(shell, "controlsPanesBox"));
    QCOMPARE(shell.controllers().settings().value("rightPanelPinned", true), QVariant(false));
    shell.click(shell.findItem("icon", "svgicons/panel-show.svg", topLine));
    QVERIFY(shows(shell, "controlsPanesBox"));
    QCOMPARE(shell.controllers().settings().value("rightPanelPinned", false), QVariant(true));
}

QTEST_MAIN(TestTabs)
#include "tst_tabs.moc"
