#include "ui/timeline/StripWindow.h"

/// The mouse on the strip of frames: clicks, drags, the wheel and the middle button.
class TestStripMouse : public QObject
{
    Q_OBJECT

private slots:
    void clickDismissesAndMakesTheFrameCurrent();
    void shiftClickSelectsFromTheCurrentFrame();
    void controlClickSelectsOneFrame();
    void rightClickMakesTheFrameCurrentAndOpensItsMenu();
    void menuActsOnTheFrame();
    void clickBesideTheFramesDoesNothing();

    void dragSelectsTheRowsBetween();
    void dragOverSelectedRowsDeselectsThem();
    void dragThatEndsOnTheRowWhereItBeganDoesNothing();
    void dragBeyondTheLastFrameGoesUpToIt();
    void dragWithAltMovesOneFrame();
    void dragWithAltAndControlCopiesOneFrame();
    void dragWithAltOfASelectedFrameMovesTheSelection();
    void dragWithAltAndControlOfASelectedFrameCopiesTheSelection();
    void dragWithAltOfAnUnselectedFrameLeavesTheSelectionWhereItIs();
    void dragAtTheEdgeScrolls();
    void markShowsWhatADragIsAboutToDo();

    void wheelTurnsOneFrameFromTheLeftmost();
    void middleButtonMovesTheList();
    void movingTheListPausesTheLiveViewOnTheCaptureTab();
    void movingTheListLeavesAPausedViewPaused();
    void movingTheListLeavesOtherTabsAlone();

    void visibleRowsHaveTwoMoreAtEachSide();
    void visibleRowsOfAShortListAreAllOfThem();
    void middleFrameFollowsTheCurrentOne();
    void onlyFramesInSightAreMade();
    void nothingIsMovedOrDeletedWhilePlaying();
};

void TestStripMouse::clickDismissesAndMakesTheFrameCurrent()
{
    StripWindow strip(6);
    QSignalSpy dismissals(&strip.global(), &WebcamGlobal::globalDismiss);
    strip.clickFrame(3);
    QCOMPARE(strip.frames().currentIndex(), 3);
    QCOMPARE(dismissals.count(), 1);
    QCOMPARE(strip.selected(), QList<int>());
}

void TestStripMouse::shiftClickSelectsFromTheCurrentFrame()
{
    StripWindow strip(6);
    strip.clickFrame(1);
    strip.clickFrame(4, Qt::ShiftModifier);
    QCOMPARE(strip.selected(), QList<int>({1, 2, 3, 4}));
    QCOMPARE(strip.frames().currentIndex(), 1);
}

void TestStripMouse::controlClickSelectsOneFrame()
{
    StripWindow strip(6);
    QSignalSpy dismissals(&strip.global(), &WebcamGlobal::globalDismiss);
    strip.clickFrame(4, Qt::ControlModifier);
    strip.clickFrame(2, Qt::ControlModifier);
    QCOMPARE(strip.selected(), QList<int>({2, 4}));
    strip.clickFrame(4, Qt::ControlModifier);
    QCOMPARE(strip.selected(), QList<int>({2}));
    QCOMPARE(strip.frames().currentIndex(), 0);
    QCOMPARE(dismissals.count(), 0);
}

void TestStripMouse::rightClickMakesTheFrameCurrentAndOpensItsMenu()
{
    StripWindow strip(6);
    strip.clickFrame(4, Qt::NoModifier, Qt::RightButton);
    QCOMPARE(strip.frames().currentIndex(), 4);
    const QList<QQuickItem *> lists = strip.itemsOf("MenuList");
    QCOMPARE(lists.size(), 1);
    // At the pointer, or above it where there is no room below.
    const QRectF place = lists.constFirst()->mapRectToScene(lists.constFirst()->boundingRect());
    const QPoint pointer = strip.at(4);
    QVERIFY(qAbs(place.left() - pointer.x()) < 40);
    QVERIFY(place.bottom() <= pointer.y() + 1 || place.top() >= pointer.y());
    strip.press(Qt::Key_Escape);
    QCOMPARE(strip.itemsOf("MenuList").size(), 0);
}

void TestStripMouse::menuActsOnTheFrame()
{
    StripWindow strip(6);
    strip.clickFrame(2, Qt::NoModifier, Qt::RightButton);
    QVERIFY(strip.settle());
    strip.click(strip.findItem("text", "Mirror"));
    QVERIFY(strip.frames().frameAt(2).mirrored);
    QCOMPARE(strip.itemsOf("MenuList").size(), 0);
    QVERIFY(strip.waitIdle());
    strip.clickFrame(4, Qt::NoModifier, Qt::RightButton);
    QVERIFY(strip.settle());
    strip.click(strip.findItem("text", "End the range here"));
    QCOMPARE(strip.frames().timelineRangeEnd(), 4);
}

void TestStripMouse::clickBesideTheFramesDoesNothing()
{
    StripWindow strip(3);
    QSignalSpy dismissals(&strip.global(), &WebcamGlobal::globalDismiss);
    strip.clickFrame(5);
    strip.clickFrame(5, Qt::NoModifier, Qt::RightButton);
    QCOMPARE(strip.frames().currentIndex(), 0);
    QCOMPARE(dismissals.count(), 0);
    QCOMPARE(strip.itemsOf("MenuList").size(), 0);
}

void TestStripMouse::dragSelectsTheRowsBetween()
{
    StripWindow strip(8);
    strip.dragFrames(5, 2);
    QCOMPARE(strip.selected(), QList<int>({2, 3, 4, 5}));
    QCOMPARE(strip.frames().currentIndex(), 0);
}

void TestStripMouse::dragOverSelectedRowsDeselectsThem()
{
    StripWindow strip(8);
    strip.dragFrames(2, 5);
    strip.dragFrames(4, 6);
    QCOMPARE(strip.selected(), QList<int>({2, 3, 6}));
}

void TestStripMouse::dragThatEndsOnTheRowWhereItBeganDoesNothing()
{
    StripWindow strip(8);
    strip.select({2});
    const QList<int> before = strip.order();
    QVERIFY(strip.settle());
    QTest::keyPress(&strip.window(), Qt::Key_Alt);
    QTest::mousePress(&strip.window(), Qt::LeftButton, Qt::NoModifier, strip.at(3));
    QTest::mouseMove(&strip.window(), strip.at(6));
    QTest::mouseMove(&strip.window(), strip.at(3));
    QTest::mouseRelease(&strip.window(), Qt::LeftButton, Qt::NoModifier, strip.at(3));
    QTest::keyRelease(&strip.window(), Qt::Key_Alt);
    QVERIFY(strip.waitIdle());
    QCOMPARE(strip.order(), before);
    QCOMPARE(strip.selected(), QList<int>({2}));
    QCOMPARE(strip.frames().undoCount(), 8);
}

void TestStripMouse::dragBeyondTheLastFrameGoesUpToIt()
{
    StripWindow strip(5);
    strip.dragFrames(2, 8);
    QCOMPARE(strip.selected(), QList<int>({2, 3, 4}));
}

void TestStripMouse::dragWithAltMovesOneFrame()
{
    StripWindow strip(6);
    strip.dragFramesWithAlt(1, 4);
    QVERIFY(strip.waitIdle());
    QCOMPARE(strip.order(), QList<int>({0, 2, 3, 4, 1, 5}));
    QCOMPARE(strip.selected(), QList<int>());
}

void TestStripMouse::dragWithAltAndControlCopiesOneFrame()
{
    StripWindow strip(6);
    strip.dragFramesWithAlt(1, 4, Qt::ControlModifier);
    QVERIFY(strip.waitIdle());
    QCOMPARE(strip.order(), QList<int>({0, 1, 2, 3, 4, 1, 5}));
}

void TestStripMouse::dragWithAltOfASelectedFrameMovesTheSelection()
{
    StripWindow strip(8);
    strip.select({1, 2});
    strip.dragFramesWithAlt(1, 5);
    QCOMPARE(strip.frames().currentIndex(), 5);
    QVERIFY(strip.waitIdle());
    QCOMPARE(strip.order(), QList<int>({0, 3, 4, 5, 1, 2, 6, 7}));
}

void TestStripMouse::dragWithAltAndControlOfASelectedFrameCopiesTheSelection()
{
    StripWindow strip(8);
    strip.frames().setDuplicateQuantity(4);
    strip.select({1, 2});
    strip.dragFramesWithAlt(2, 5, Qt::ControlModifier);
    QVERIFY(strip.waitIdle());
    QCOMPARE(strip.order(), QList<int>({0, 1, 2, 3, 4, 5, 1, 2, 6, 7}));
    QCOMPARE(strip.frames().duplicateQuantity(), 1);
}

void TestStripMouse::dragWithAltOfAnUnselectedFrameLeavesTheSelectionWhereItIs()
{
    StripWindow strip(8);
    strip.select({6});
    strip.dragFramesWithAlt(1, 3);
    QVERIFY(strip.waitIdle());
    QCOMPARE(strip.order(), QList<int>({0, 2, 3, 1, 4, 5, 6, 7}));
}

void TestStripMouse::dragAtTheEdgeScrolls()
{
    StripWindow strip(60);
    QVERIFY(strip.settle());
    const QPoint start = strip.at(1);
    const QPoint edge(int(strip.strip()->mapToScene({strip.strip()->width() - 3, 0}).x()), start.y());
    QTest::mousePress(&strip.window(), Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseMove(&strip.window(), (start + edge) / 2);
    QTest::mouseMove(&strip.window(), edge);
    QTRY_VERIFY(strip.timeline("leftMostIndex").toInt() > 2);
    QTest::mouseRelease(&strip.window(), Qt::LeftButton, Qt::NoModifier, edge);
    const int last = strip.rowAt(strip.strip()->width() - 3);
    QCOMPARE(strip.selected().constFirst(), 1);
    QCOMPARE(strip.selected().constLast(), last);
    QCOMPARE(strip.selected().size(), last);
}

void TestStripMouse::markShowsWhatADragIsAboutToDo()
{
    StripWindow strip(8);
    QQuickItem *selector = strip.itemsOf("AreaSelector").constFirst();
    QVERIFY(strip.settle());
    QTest::mousePress(&strip.window(), Qt::LeftButton, Qt::NoModifier, strip.at(2));
    QTest::mouseMove(&strip.window(), strip.at(3));
    QTest::mouseMove(&strip.window(), strip.at(4));
    QCOMPARE(selector->property("startRow").toInt(), 2);
    QCOMPARE(selector->property("endRow").toInt(), 4);
    const auto marks = [&] {
        QList<qreal> widths;
        for (QQuickItem *item : selector->childItems())
            if (item->isVisible())
                widths.append(item->width());
        return widths;
    };
    const qreal frameWidth = strip.strip()->property("frameWidth").toReal();
    QCOMPARE(marks(), QList<qreal>({3 * frameWidth}));
    strip.global().setTimelineInteractive(false);
    QCOMPARE(marks().size(), 1);
    QVERIFY(marks().constFirst() < 10);
    strip.global().setTimelineInteractive(true);
    QTest::mouseRelease(&strip.window(), Qt::LeftButton, Qt::NoModifier, strip.at(4));
    QCOMPARE(marks(), QList<qreal>());
}

void TestStripMouse::wheelTurnsOneFrameFromTheLeftmost()
{
    StripWindow strip(60);
    QCOMPARE(strip.timeline("leftMostIndex").toInt(), 0);
    strip.wheel(-1);
    QCOMPARE(strip.timeline("leftMostIndex").toInt(), 1);
    strip.wheel(-3);
    QCOMPARE(strip.timeline("leftMostIndex").toInt(), 4);
    strip.wheel(1);
    QCOMPARE(strip.timeline("leftMostIndex").toInt(), 3);
    QCOMPARE(strip.timeline("strip.placeOf(3)").toReal(), 0.0);
    strip.wheel(20);
    QCOMPARE(strip.timeline("leftMostIndex").toInt(), 0);
    strip.wheel(-100);
    QCOMPARE(strip.rowAt(strip.strip()->width() - 1), 59);
}

void TestStripMouse::middleButtonMovesTheList()
{
    StripWindow strip(60);
    QVERIFY(strip.settle());
    const QPoint from = strip.at(5);
    strip.drag(from, from - QPoint(200, 0), Qt::NoModifier, Qt::MiddleButton);
    QCOMPARE(strip.timeline("strip.placeOf(0)").toReal(), -200.0);
    QCOMPARE(strip.selected(), QList<int>());
    QCOMPARE(strip.frames().currentIndex(), 0);
}

void TestStripMouse::movingTheListPausesTheLiveViewOnTheCaptureTab()
{
    StripWindow strip(60);
    strip.global().setPaused(false);
    strip.wheel(-1);
    QVERIFY(strip.global().paused());
    QTRY_VERIFY(!strip.global().paused());
    const QPoint from = strip.at(5);
    QTest::mousePress(&strip.window(), Qt::MiddleButton, Qt::NoModifier, from);
    QVERIFY(strip.global().paused());
    QTest::mouseMove(&strip.window(), from - QPoint(50, 0));
    QVERIFY(strip.global().paused());
    QTest::mouseRelease(&strip.window(), Qt::MiddleButton, Qt::NoModifier, from - QPoint(50, 0));
    QTRY_VERIFY(!strip.global().paused());
}

void TestStripMouse::movingTheListLeavesAPausedViewPaused()
{
    StripWindow strip(60);
    strip.global().setPaused(true);
    QQuickItem *hand = strip.itemsOf("TimelineStrip").constFirst();
    strip.wheel(-1);
    QTRY_VERIFY(!strip.evaluateInside(hand, "hand.moving").toBool());
    QVERIFY(strip.global().paused());
}

void TestStripMouse::movingTheListLeavesOtherTabsAlone()
{
    StripWindow strip(60);
    strip.showTab("timingUIisOn");
    strip.global().setPaused(false);
    strip.wheel(-1);
    QVERIFY(!strip.global().paused());
}

void TestStripMouse::visibleRowsHaveTwoMoreAtEachSide()
{
    StripWindow strip(60);
    strip.wheel(-10);
    const int last = strip.rowAt(strip.strip()->width() - 10);
    QCOMPARE(strip.timeline("getVisibleFramesIndxs()").toList(), QVariantList({8, last + 2}));
    strip.wheel(100);
    QCOMPARE(strip.timeline("getVisibleFramesIndxs()").toList().constFirst().toInt(), 0);
    strip.wheel(-100);
    QCOMPARE(strip.timeline("getVisibleFramesIndxs()").toList().constLast().toInt(), 59);
}

void TestStripMouse::visibleRowsOfAShortListAreAllOfThem()
{
    StripWindow strip(4);
    QCOMPARE(strip.timeline("getVisibleFramesIndxs()").toList(), QVariantList({0, 3}));
    StripWindow empty(0);
    QCOMPARE(empty.timeline("getVisibleFramesIndxs()").toList(), QVariantList());
    QCOMPARE(empty.timeline("leftMostIndex").toInt(), -1);
}

void TestStripMouse::middleFrameFollowsTheCurrentOne()
{
    StripWindow strip(60);
    strip.wheel(-20);
    strip.frames().setCurrentIndex(25);
    const int middle = strip.rowAt(strip.strip()->width() / 2);
    QVERIFY(middle > 20);
    QCOMPARE(strip.timeline("currentMiddleFrame").toInt(), middle);
    // Nothing is in the middle of a short list.
    StripWindow few(2);
    few.frames().setValue(1, Zum::PhaseNumber, 3);
    few.frames().switchMirroredOnSingleFrame(1);
    QVERIFY(few.waitIdle());
    few.frames().setCurrentIndex(0);
    QCOMPARE(few.timeline("currentMiddleFrame").toInt(), 1);
}

void TestStripMouse::onlyFramesInSightAreMade()
{
    StripWindow strip(2000);
    QVERIFY(strip.framesMade() > 5);
    for (int i = 0; i < 10; ++i) {
        strip.wheel(-150);
        QVERIFY(strip.settle());
        QVERIFY2(strip.framesMade() < 60, qPrintable(QString::number(strip.framesMade())));
    }
    QVERIFY(strip.frame(1400) == nullptr);
    QVERIFY(strip.frame(strip.timeline("leftMostIndex").toInt() + 1) != nullptr);
}

void TestStripMouse::nothingIsMovedOrDeletedWhilePlaying()
{
    StripWindow strip(6);
    strip.frames().setTimelineRangeEnd(5);
    strip.frames().setTimelineFps(1);
    strip.frames().play();
    QTRY_VERIFY(strip.frames().playing());
    const QList<int> before = strip.order();
    strip.dragFrames(1, 3);
    QCOMPARE(strip.selected(), QList<int>());
    strip.clickFrame(2, Qt::ControlModifier);
    QCOMPARE(strip.selected(), QList<int>());
    strip.press(Qt::Key_Delete);
    strip.press(Qt::Key_Delete);
    strip.press(Qt::Key_D, Qt::ControlModifier);
    strip.press(Qt::Key_C, Qt::ControlModifier);
    QVERIFY(!strip.frames().copyModeOn());
    QCOMPARE(strip.order(), before);
    QVERIFY(strip.frames().playing());
    strip.frames().stop();
}

QTEST_MAIN(TestStripMouse)
#include "tst_stripmouse.moc"
