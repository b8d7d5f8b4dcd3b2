#include "ui/timeline/StripWindow.h"

/// The row of controls, the Add and Replace panel, the column at the left, and how the strip answers the
/// model.
class TestStripControls : public QObject
{
    Q_OBJECT

private slots:
    void controlsStandInTheirOrder();
    void addAndReplaceSayWhichOneIsMeant();
    void emptyFrameGoesBehindTheCurrentOne();
    void emptyFrameReplacesWhatIsInTheCurrentOne();
    void emptyFrameStartsAnEmptyTimeline();
    void projectEntryAsksForAProject();
    void entriesWithoutAJobAreAbsent();
    void keysOpenAndCloseTheAddPanel();
    void nothingIsAddedWithoutAProject();

    void hideHidesTheSelectionOrTheCurrentFrame();
    void clearTakesTheChosenPictures();
    void referenceButtonsAreInactiveInOneRowMode();
    void duplicateMakesAsManyCopiesAsChosen();
    void duplicateOffersOneToEight();
    void duplicateOfAnUnselectedFrameLeavesNoSelection();
    void moveButtonMovesTheSelectionBehindTheCurrentFrame();
    void deletionTakesTwoPresses();
    void rightClickOnDeleteCancels();
    void secondDeletePressWithoutFramesDoesNothing();
    void deselectDismissesAndEmptiesTheBuffer();
    void mirrorMirrors();
    void numbersCountFromTheStartIndex();
    void typedNumberMakesTheFrameCurrent();
    void controlsRestWhilePlaying();

    void bufferMarkerShowsTheAmount();
    void copyAndPasteOfOneFrame();
    void copyAndPasteOfTheSelection();
    void cutAndPasteOfOneFrame();
    void cutAndPasteOfTheSelection();
    void infoTellsOfTheCurrentFrame();

    void rowModeIsRememberedAndSetsTheHeight();
    void scaleMakesFramesSmallerAndIsRemembered();
    void refreshSearchesForHolds();
};

namespace {

QString frameName(StripWindow &strip, int row)
{
    return strip.frames().frameAt(row).capFull;
}

} // namespace

void TestStripControls::controlsStandInTheirOrder()
{
    ShellWindow::Options options;
    options.size = {1500, 800};
    StripWindow strip(3, options);
    const char *texts[] = {"Add",      "Replace", "Duplicate (1)  ", "Delete",
                           "Deselect", "Total 3", "Selected 0"};
    qreal before = -1;
    for (const char *text : texts) {
        QQuickItem *item = strip.findItem("text", text, strip.item("timelineBox"));
        QVERIFY2(item != nullptr, text);
        const qreal x = item->mapToScene({0, 0}).x();
        QVERIFY2(x > before, text);
        before = x;
    }
    before = -1;
    for (const char *tip :
         {"Add frames after the current one [=]", "Replace what is in the current frame",
          "Hide or show: hidden frames are neither played nor exported",
          "Clear what is in the selected frames or the current one", "Duplicate (1)  ",
          "How many copies each frame gets", "Move the selected frames behind the current one",
          "Delete the selected frames or the current one [Del]", "Cancel the selection [Esc]",
          "Number of the current frame", "Mirror", "About the current frame"}) {
        const qreal x = strip.control(tip)->mapToScene({0, 0}).x();
        QVERIFY2(x > before, tip);
        before = x;
    }
    strip.press(Qt::Key_C, Qt::ControlModifier);
    const QQuickItem *about = strip.control("About the current frame");
    const QQuickItem *marker =
        strip.control("Copied frames: 1. Click to paste them, right click to forget them");
    // The row hangs on its right end: what was measured before the marker got its place is of no use.
    QTRY_VERIFY(marker->mapToScene({0, 0}).x() > about->mapToScene({0, 0}).x());
}

void TestStripControls::addAndReplaceSayWhichOneIsMeant()
{
    StripWindow strip(3);
    strip.press("Add frames after the current one [=]");
    QVERIFY(strip.frames().addInsteadOfReplace());
    QVERIFY(strip.findItem("text", "Empty Frame") != nullptr);
    strip.press(Qt::Key_Escape);
    QVERIFY(strip.findItem("text", "Empty Frame") == nullptr);
    strip.press("Replace what is in the current frame");
    QVERIFY(!strip.frames().addInsteadOfReplace());
    QVERIFY(strip.findItem("text", "Empty Frame") != nullptr);
}

void TestStripControls::emptyFrameGoesBehindTheCurrentOne()
{
    StripWindow strip(4);
    strip.frames().setCurrentIndex(1);
    QSignalSpy changed(&strip.frames(), &FramesModel::timelineChanged);
    strip.press("Add frames after the current one [=]");
    strip.click(strip.findItem("text", "Empty Frame"));
    QCOMPARE(changed.takeFirst().constFirst().toInt(), int(Zum::ActInsert));
    QVERIFY(strip.waitIdle());
    QCOMPARE(strip.order(), QList<int>({0, 1, -1, 2, 3}));
    // The panel has closed.
    QVERIFY(strip.findItem("text", "Empty Frame") == nullptr);
}

void TestStripControls::emptyFrameReplacesWhatIsInTheCurrentOne()
{
    StripWindow strip(4);
    strip.frames().setCurrentIndex(1);
    strip.press("Replace what is in the current frame");
    strip.click(strip.findItem("text", "Empty Frame"));
    QCOMPARE(strip.order(), QList<int>({0, -1, 2, 3}));
}

void TestStripControls::emptyFrameStartsAnEmptyTimeline()
{
    StripWindow strip(0);
    QVERIFY(strip.findItem("text", "No Frames") != nullptr);
    strip.click(strip.findItem("text", "Empty Frame", strip.strip()));
    QCOMPARE(strip.frames().framesCount(), 1);
    QVERIFY(strip.waitIdle());
    QVERIFY(strip.findItem("text", "No Frames") == nullptr);
}

void TestStripControls::projectEntryAsksForAProject()
{
    StripWindow strip(2);
    strip.press("Add frames after the current one [=]");
    const auto asked = strip.dialogs().asked.size();
    strip.click(strip.findItem("text", "Project", strip.itemsOf("AddRemoveEntries").constFirst()));
    QCOMPARE(strip.dialogs().asked.size(), asked + 1);
    // Frames of another project are added, never put into others.
    strip.press("Replace what is in the current frame");
    QVERIFY(strip.findItem("text", "Empty Frame") != nullptr);
    QQuickItem *entries = strip.itemsOf("AddRemoveEntries").constFirst();
    QVERIFY(strip.findItem("text", "Project", entries) == nullptr);
}

void TestStripControls::entriesWithoutAJobAreAbsent()
{
    StripWindow strip(2);
    strip.press("Add frames after the current one [=]");
    QQuickItem *entries = strip.itemsOf("AddRemoveEntries").constFirst();
    QStringList texts;
    for (QQuickItem *button : strip.itemsOf("TextButton", entries))
        texts.append(button->property("text").toString());
    QCOMPARE(texts, (QStringList{"Project", "Empty Frame"}));
}

void TestStripControls::keysOpenAndCloseTheAddPanel()
{
    StripWindow strip(2);
    strip.press(Qt::Key_Equal);
    QVERIFY(strip.findItem("text", "Empty Frame") != nullptr);
    QVERIFY(strip.frames().addInsteadOfReplace());
    strip.press(Qt::Key_Minus);
    QVERIFY(strip.findItem("text", "Empty Frame") == nullptr);
    QCOMPARE(strip.frames().framesCount(), 2);
}

void TestStripControls::nothingIsAddedWithoutAProject()
{
    ShellWindow shell;
    QVERIFY(!shell.evaluate("timelineBox.allowAdd").toBool());
    QVERIFY(!shell.evaluate("timelineBox.allowManipulate").toBool());
    QCOMPARE(shell.evaluate("timelineBox.framesTotal").toInt(), 0);
    shell.press(Qt::Key_Equal);
    QVERIFY(shell.findItem("text", "Empty Frame") == nullptr);
    QVERIFY(
        shell.findItem("text", "No project. Create or load project to capture, add, remove or modify frames")
        != nullptr);
    QVERIFY(shell.createProject());
    QVERIFY(shell.evaluate("timelineBox.allowAdd").toBool());
    shell.addFrames(3);
    QCOMPARE(shell.evaluate("timelineBox.framesTotal").toInt(), 2);
}

void TestStripControls::hideHidesTheSelectionOrTheCurrentFrame()
{
    StripWindow strip(4);
    const QString hide = "Hide or show: hidden frames are neither played nor exported";
    strip.press(hide);
    QVERIFY(strip.frames().frameAt(0).hidden);
    QVERIFY(strip.waitIdle());
    strip.select({1, 2});
    strip.press(hide);
    QVERIFY(strip.waitIdle());
    QVERIFY(strip.frames().frameAt(1).hidden && strip.frames().frameAt(2).hidden);
    QVERIFY(!strip.frames().frameAt(3).hidden);
    QCOMPARE(strip.selected(), QList<int>());
}

void TestStripControls::clearTakesTheChosenPictures()
{
    StripWindow strip(4);
    strip.frames().setDoubleDecker(true);
    for (int row = 0; row < 4; ++row)
        strip.frames().setValue(row, Zum::RefFull, "reference.jpg");
    const auto clear = [&](const char *entry, const QList<int> &rows) {
        strip.select(rows);
        strip.press("Clear what is in the selected frames or the current one");
        strip.click(strip.findItem("toolTip", entry));
        return strip.waitIdle();
    };
    QVERIFY(clear("Clear the captured picture", {1}));
    QVERIFY(frameName(strip, 1).isEmpty() && strip.frames().frameAt(1).gotRefImg);
    QVERIFY(clear("Clear the reference picture", {2}));
    QVERIFY(!frameName(strip, 2).isEmpty() && !strip.frames().frameAt(2).gotRefImg);
    // Without a selection it is the current frame.
    strip.frames().setCurrentIndex(3);
    QVERIFY(clear("Clear both pictures", {}));
    QVERIFY(frameName(strip, 3).isEmpty() && !strip.frames().frameAt(3).gotRefImg);
    QVERIFY(!frameName(strip, 0).isEmpty() && strip.frames().frameAt(0).gotRefImg);
    QCOMPARE(strip.selected(), QList<int>());
}

void TestStripControls::referenceButtonsAreInactiveInOneRowMode()
{
    StripWindow strip(2);
    for (const bool two : {false, true}) {
        strip.frames().setDoubleDecker(two);
        strip.press("Clear what is in the selected frames or the current one");
        QCOMPARE(strip.control("Clear the reference picture")->property("active").toBool(), two);
        QVERIFY(strip.control("Clear the captured picture")->property("active").toBool());
        strip.press(Qt::Key_Escape);
    }
}

void TestStripControls::duplicateMakesAsManyCopiesAsChosen()
{
    StripWindow strip(3);
    strip.press("How many copies each frame gets");
    strip.press("Copies: 3");
    QCOMPARE(strip.frames().duplicateQuantity(), 3);
    QCOMPARE(strip.order().size(), 3);
    strip.select({1});
    strip.press("Duplicate (3)  ");
    QVERIFY(strip.waitIdle());
    QCOMPARE(strip.order(), QList<int>({0, 1, 1, 1, 1, 2}));
}

void TestStripControls::duplicateOffersOneToEight()
{
    StripWindow strip(1);
    strip.press("How many copies each frame gets");
    for (int copies = 1; copies <= 8; ++copies)
        QVERIFY(strip.findItem("toolTip", QString("Copies: %1").arg(copies)) != nullptr);
    QVERIFY(strip.findItem("toolTip", "Copies: 9") == nullptr);
    strip.press("Copies: 8");
    QVERIFY(strip.findItem("toolTip", "Copies: 8") == nullptr);
}

void TestStripControls::duplicateOfAnUnselectedFrameLeavesNoSelection()
{
    StripWindow strip(4);
    strip.frames().setCurrentIndex(2);
    QStringList states;
    QObject::connect(&strip.global(), &WebcamGlobal::disconnectModel, &strip.frames(), [&] {
        states.append(strip.timeline("strip.connected").toBool() ? "connected" : "unconnected");
    });
    strip.press(Qt::Key_D, Qt::ControlModifier);
    QVERIFY(strip.waitIdle());
    QCOMPARE(strip.order(), QList<int>({0, 1, 2, 2, 3}));
    QCOMPARE(strip.selected(), QList<int>());
    QCOMPARE(strip.frames().selectedCount(), 0);
    QCOMPARE(states, QStringList{"unconnected"});
    QVERIFY(strip.timeline("strip.connected").toBool());
}

void TestStripControls::moveButtonMovesTheSelectionBehindTheCurrentFrame()
{
    StripWindow strip(6);
    const QString move = "Move the selected frames behind the current one";
    QVERIFY(!strip.control(move)->property("active").toBool());
    strip.frames().setCurrentIndex(4);
    strip.select({0, 1});
    strip.press(move);
    QVERIFY(strip.waitIdle());
    QCOMPARE(strip.order(), QList<int>({2, 3, 4, 0, 1, 5}));
}

void TestStripControls::deletionTakesTwoPresses()
{
    StripWindow strip(6);
    strip.frames().setCurrentIndex(2);
    strip.press("Delete the selected frames or the current one [Del]");
    QVERIFY(strip.frames().deletionConfirmed());
    QCOMPARE(strip.frames().framesCount(), 6);
    strip.press("Press again to delete, right click to cancel");
    QVERIFY(strip.waitIdle());
    QCOMPARE(strip.order(), QList<int>({0, 1, 3, 4, 5}));
    QVERIFY(!strip.frames().deletionConfirmed());
    strip.select({0, 3});
    strip.press(Qt::Key_Delete);
    strip.press(Qt::Key_Delete);
    QVERIFY(strip.waitIdle());
    QCOMPARE(strip.order(), QList<int>({1, 3, 5}));
}

void TestStripControls::rightClickOnDeleteCancels()
{
    StripWindow strip(3);
    strip.press("Delete the selected frames or the current one [Del]");
    strip.click(strip.control("Press again to delete, right click to cancel"), Qt::RightButton);
    QVERIFY(!strip.frames().deletionConfirmed());
    QVERIFY(!strip.frames().goingToDeleteCurrentFrame());
    QCOMPARE(strip.frames().framesCount(), 3);
}

void TestStripControls::secondDeletePressWithoutFramesDoesNothing()
{
    StripWindow strip(1);
    strip.press(Qt::Key_Delete);
    strip.press(Qt::Key_Delete);
    QVERIFY(strip.waitIdle());
    QCOMPARE(strip.frames().framesCount(), 0);
    QSignalSpy changed(&strip.frames(), &FramesModel::timelineChanged);
    strip.frames().setDeletionConfirmed(true);
    strip.press(Qt::Key_Delete);
    strip.press(Qt::Key_Delete);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(strip.frames().framesCount(), 0);
}

void TestStripControls::deselectDismissesAndEmptiesTheBuffer()
{
    StripWindow strip(4);
    QVERIFY(!strip.control("Cancel the selection [Esc]")->property("active").toBool());
    strip.select({1, 2});
    strip.press(Qt::Key_C, Qt::ControlModifier);
    strip.press(Qt::Key_X, Qt::ControlModifier);
    QVERIFY(strip.frames().cutModeOn());
    strip.press("Cancel the selection [Esc]");
    QCOMPARE(strip.selected(), QList<int>());
    QVERIFY(!strip.frames().copyModeOn() && !strip.frames().cutModeOn());
}

void TestStripControls::mirrorMirrors()
{
    StripWindow strip(4);
    strip.press("Mirror");
    QVERIFY(strip.waitIdle());
    QVERIFY(strip.frames().frameAt(0).mirrored);
    QVERIFY(strip.control("Mirror")->property("toggled").toBool());
    strip.select({0, 2});
    strip.press("Mirror");
    QVERIFY(strip.waitIdle());
    QVERIFY(!strip.frames().frameAt(0).mirrored && strip.frames().frameAt(2).mirrored);
}

void TestStripControls::numbersCountFromTheStartIndex()
{
    StripWindow strip(5);
    strip.frames().setStartIndex(100);
    strip.frames().setCurrentIndex(3);
    QCOMPARE(strip.control("Number of the current frame")->property("number").toInt(), 103);
    QVERIFY(strip.findItem("text", "Total 5") != nullptr);
    strip.select({1, 2});
    QVERIFY(strip.findItem("text", "Selected 2") != nullptr);
}

void TestStripControls::typedNumberMakesTheFrameCurrent()
{
    StripWindow strip(30);
    strip.frames().setStartIndex(100);
    QQuickItem *field = strip.control("Number of the current frame");
    QVERIFY(QMetaObject::invokeMethod(field, "numberEdited", Q_ARG(double, 127.0)));
    QCOMPARE(strip.frames().currentIndex(), 27);
    QVERIFY(strip.settle());
    QVERIFY(strip.frame(27) != nullptr);
    QVERIFY(strip.timeline("strip.placeOf(27)").toReal() < strip.strip()->width());
}

void TestStripControls::controlsRestWhilePlaying()
{
    StripWindow strip(6);
    strip.select({1});
    strip.frames().setTimelineRangeEnd(5);
    strip.frames().setTimelineFps(1);
    strip.frames().play();
    QTRY_VERIFY(strip.frames().playing());
    QVERIFY(!strip.timeline("allowAdd").toBool() && !strip.timeline("allowManipulate").toBool());
    for (const char *tip :
         {"Add frames after the current one [=]", "Replace what is in the current frame",
          "Hide or show: hidden frames are neither played nor exported",
          "Clear what is in the selected frames or the current one", "Duplicate (1)  ",
          "Move the selected frames behind the current one",
          "Delete the selected frames or the current one [Del]", "Mirror", "Update static frames indication"})
        QVERIFY2(!strip.control(tip)->property("active").toBool(), tip);
    strip.frames().stop();
    QVERIFY(strip.timeline("allowAdd").toBool() && strip.timeline("allowManipulate").toBool());
}

void TestStripControls::bufferMarkerShowsTheAmount()
{
    StripWindow strip(5);
    const QString copied = "Copied frames: %1. Click to paste them, right click to forget them";
    const QString cut = "Cut frames: %1. Click to paste them, right click to forget them";
    QVERIFY(strip.findItem("toolTip", copied.arg(1)) == nullptr);
    strip.press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(strip.control(copied.arg(1))->property("text").toString(), QString("1"));
    strip.select({1, 3, 4});
    QVERIFY(strip.findItem("toolTip", copied.arg(3)) != nullptr);
    strip.press(Qt::Key_X, Qt::ControlModifier);
    QVERIFY(strip.findItem("toolTip", cut.arg(3)) != nullptr);
    strip.click(strip.control(cut.arg(3)), Qt::RightButton);
    QVERIFY(!strip.frames().cutModeOn());
    QCOMPARE(strip.selected().size(), 3);
}

void TestStripControls::copyAndPasteOfOneFrame()
{
    StripWindow strip(4);
    strip.frames().setDuplicateQuantity(5);
    strip.press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(strip.frames().duplicateQuantity(), 1);
    strip.frames().setCurrentIndex(2);
    strip.press(Qt::Key_V, Qt::ControlModifier);
    QVERIFY(strip.waitIdle());
    QCOMPARE(strip.order(), QList<int>({0, 1, 2, 0, 3}));
    QVERIFY(!strip.frames().copyModeOn());
    strip.press(Qt::Key_V, Qt::ControlModifier);
    QVERIFY(strip.waitIdle());
    QCOMPARE(strip.order().size(), 5);
}

void TestStripControls::copyAndPasteOfTheSelection()
{
    StripWindow strip(6);
    strip.select({0, 1});
    strip.press(Qt::Key_C, Qt::ControlModifier);
    strip.frames().setCurrentIndex(4);
    strip.press("Copied frames: 2. Click to paste them, right click to forget them");
    QVERIFY(strip.waitIdle());
    QCOMPARE(strip.order(), QList<int>({0, 1, 2, 3, 4, 0, 1, 5}));
    QVERIFY(!strip.frames().copyModeOn());
}

void TestStripControls::cutAndPasteOfOneFrame()
{
    StripWindow strip(4);
    strip.press(Qt::Key_X, Qt::ControlModifier);
    strip.frames().setCurrentIndex(2);
    QSignalSpy changed(&strip.frames(), &FramesModel::changed);
    strip.press(Qt::Key_V, Qt::ControlModifier);
    QVERIFY(strip.waitIdle());
    QCOMPARE(strip.order(), QList<int>({1, 2, 0, 3}));
    QVERIFY(!strip.frames().cutModeOn());
    QVERIFY(changed.count() > 0);
}

void TestStripControls::cutAndPasteOfTheSelection()
{
    StripWindow strip(6);
    strip.select({0, 1});
    strip.press(Qt::Key_X, Qt::ControlModifier);
    strip.frames().setCurrentIndex(4);
    strip.press(Qt::Key_V, Qt::ControlModifier);
    QVERIFY(strip.waitIdle());
    QCOMPARE(strip.order(), QList<int>({2, 3, 4, 0, 1, 5}));
    QVERIFY(!strip.frames().cutModeOn());
}

void TestStripControls::infoTellsOfTheCurrentFrame()
{
    StripWindow strip(3);
    QImage(64, 48, QImage::Format_RGB32).save(strip.window().capFullDirPath() + "frame_1.jpg");
    strip.press("About the current frame");
    QVERIFY(strip.findItem("text", "frame_0.jpg: the file is missing") != nullptr);
    strip.frames().setCurrentIndex(1);
    const auto shown = [&] {
        QStringList texts;
        for (QQuickItem *label : strip.itemsOf("TextLabel"))
            texts.append(label->property("text").toString());
        return texts.join('|');
    };
    QVERIFY2(shown().contains("frame_1.jpg\n64x48, "), qPrintable(shown()));
    QQuickItem *phase = strip.findItem("label", "Phase");
    QVERIFY(phase != nullptr);
    QVERIFY(QMetaObject::invokeMethod(phase, "numberEdited", Q_ARG(double, 7.0)));
    QCOMPARE(strip.frames().frameAt(1).phase, 7);
    QCOMPARE(phase->property("number").toInt(), 7);
}

void TestStripControls::rowModeIsRememberedAndSetsTheHeight()
{
    StripWindow strip(3);
    QVERIFY(!strip.frames().doubleDecker());
    QVERIFY(strip.global().timelineCompact());
    const qreal one = strip.timeline("height").toReal();
    QCOMPARE(qRound(one), int(strip.window().timelineH() * 0.78));
    strip.press("Show the reference frames below the captured ones");
    QVERIFY(strip.frames().doubleDecker());
    QVERIFY(!strip.global().timelineCompact());
    QCOMPARE(strip.timeline("height").toInt(), strip.window().timelineH());
    const Settings &settings = strip.controllers().settings();
    QVERIFY(settings.boolean("doubleDecker", false));
    QVERIFY(!settings.boolean("timelineCompact", true));
    strip.press("Show the captured frames only");
    QVERIFY(!settings.boolean("doubleDecker", true));
    QVERIFY(settings.boolean("timelineCompact", false));
}

void TestStripControls::scaleMakesFramesSmallerAndIsRemembered()
{
    ShellWindow::Options options;
    options.settings.insert("timelinescale", 60);
    StripWindow strip(40, options);
    QCOMPARE(strip.timeline("contentScale").toReal(), 0.6);
    const int small = strip.strip()->property("frameWidth").toInt();
    strip.press("Size of the frames on the timeline");
    QQuickItem *slider = strip.findItem("label", "Scale");
    QVERIFY(slider != nullptr);
    QVERIFY(QMetaObject::invokeMethod(slider, "moved", Q_ARG(double, 100.0)));
    QCOMPARE(strip.timeline("contentScale").toReal(), 1.0);
    QVERIFY(strip.strip()->property("frameWidth").toInt() > 1.4 * small);
    QVERIFY(strip.strip()->property("thumbWidth").toReal() <= strip.window().scaledThumbSize().width());
    QCOMPARE(strip.controllers().settings().integer("timelinescale", 0), 100);
}

void TestStripControls::refreshSearchesForHolds()
{
    StripWindow strip(4);
    strip.frames().setValue(2, Zum::CapFull, "frame_1.jpg");
    QCOMPARE(strip.frames().frameAt(1).staticState, -1);
    strip.press("Update static frames indication");
    QVERIFY(strip.waitIdle());
    QCOMPARE(strip.frames().frameAt(1).staticState, 0);
    QCOMPARE(strip.frames().frameAt(2).staticState, 2);
}

QTEST_MAIN(TestStripControls)
#include "tst_stripcontrols.moc"
