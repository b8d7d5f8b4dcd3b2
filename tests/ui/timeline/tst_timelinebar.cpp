#include "ui/timeline/StripWindow.h"

#include "timeline/RowBand.h"
#include "timeline/TimelineIndicator.h"

/// The bar below the strip with its handles, the indicator, and the controls of playback on the Timing tab.
class TestTimelineBar : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void labelsCountFromTheStartIndex();
    void rangeHandlesShowOnTheTimingTabOnly();
    void handlesFollowTheModel();
    void clickOnTheBarMakesTheFrameCurrent();
    void dragOfTheHandleMovesTheCurrentFrame();
    void dragsOfTheRangeHandlesSetTheRange();
    void rangeHandlesDoNotPassEachOther();
    void heldHandleDoesNotFollowTheModel();
    void keysMoveTheHandles();
    void grabbingTheBarStopsPlaying();
    void oneFrameAndNoFrame();

    void readyRunsAreDrawn();
    void indicatorFollowsTheFrames();

    void playButtonPlaysAndStops();
    void switchesOfPlaybackReachTheModel();
    void directionIsReadAnewWhenARunEnds();
    void durationIsSplitIntoHoursMinutesSecondsAndFrames();
    void shownRateReplacesTheDurationWhilePlaying();
    void settingsOfTheRange();
    void narrowBarKeepsThePlayButtonAndThePanel();

private:
    QQuickItem *bar()
    {
        return d->itemsOf("ProgressControl").value(0);
    }
    QQuickItem *handle(const char *toolTip)
    {
        return d->findItem("toolTip", QString::fromLatin1(toolTip), bar());
    }
    QPoint middleOf(QQuickItem *item)
    {
        return item->mapToScene({item->width() / 2, item->height() / 2}).toPoint();
    }
    /// Where a frame has its place on the bar, in the window.
    QPoint placeOf(int row, qreal y = 3)
    {
        auto *progress = bar()->property("progress").value<QQuickItem *>();
        return progress->mapToScene({row * progress->width() / (d->frames().framesCount() - 1), y}).toPoint();
    }
    void dragHandle(QQuickItem *item, int toRow)
    {
        QVERIFY(d->settle());
        const QPoint from = middleOf(item);
        const int row = item->property("value").toInt();
        d->drag(from, from + placeOf(toRow) - placeOf(row));
    }

    std::unique_ptr<StripWindow> d;
};

void TestTimelineBar::init()
{
    d = std::make_unique<StripWindow>(21);
    d->frames().setTimelineRangeStart(4);
    d->frames().setTimelineRangeEnd(16);
    d->frames().setCurrentIndex(10);
    d->showTab("timingUIisOn");
}

void TestTimelineBar::cleanup()
{
    QCOMPARE(d->sceneWarnings(), QStringList());
    d.reset();
}

void TestTimelineBar::labelsCountFromTheStartIndex()
{
    d->frames().setStartIndex(100);
    QCOMPARE(bar()->property("currentLabel").toString(), QString("110"));
    QCOMPARE(bar()->property("startLabel").toString(), QString("104"));
    QCOMPARE(bar()->property("endLabel").toString(), QString("116"));
    QCOMPARE(handle("First frame of the range")->property("text").toString(), QString("104"));
}

void TestTimelineBar::rangeHandlesShowOnTheTimingTabOnly()
{
    QVERIFY(handle("First frame of the range") != nullptr && handle("Last frame of the range") != nullptr);
    d->showTab("captureUIisOn");
    QVERIFY(handle("First frame of the range") == nullptr && handle("Last frame of the range") == nullptr);
    QVERIFY(handle("Current frame") != nullptr);
    QVERIFY(d->itemsOf("PlayPauseButton").isEmpty());
}

void TestTimelineBar::handlesFollowTheModel()
{
    d->frames().setCurrentIndex(7);
    d->frames().setTimelineRangeStart(2);
    d->frames().setTimelineRangeEnd(18);
    QVERIFY(d->settle());
    QCOMPARE(middleOf(handle("Current frame")).x(), placeOf(7).x());
    QVERIFY(qAbs(handle("First frame of the range")
                     ->mapToScene({handle("First frame of the range")->width(), 0})
                     .x()
                 - placeOf(2).x())
            < 3);
    QVERIFY(qAbs(handle("Last frame of the range")->mapToScene({0, 0}).x() - placeOf(18).x()) < 3);
}

void TestTimelineBar::clickOnTheBarMakesTheFrameCurrent()
{
    QVERIFY(d->settle());
    QTest::mouseClick(&d->window(), Qt::LeftButton, {}, placeOf(3) + QPoint(4, 0));
    QCOMPARE(d->frames().currentIndex(), 3);
    QTest::mouseClick(&d->window(), Qt::LeftButton, {}, placeOf(20));
    QCOMPARE(d->frames().currentIndex(), 20);
}

void TestTimelineBar::dragOfTheHandleMovesTheCurrentFrame()
{
    dragHandle(handle("Current frame"), 15);
    QCOMPARE(d->frames().currentIndex(), 15);
    dragHandle(handle("Current frame"), 40);
    QCOMPARE(d->frames().currentIndex(), 20);
    QCOMPARE(d->frames().timelineRangeStart(), 4);
}

void TestTimelineBar::dragsOfTheRangeHandlesSetTheRange()
{
    dragHandle(handle("First frame of the range"), 6);
    QCOMPARE(d->frames().timelineRangeStart(), 6);
    dragHandle(handle("Last frame of the range"), 19);
    QCOMPARE(d->frames().timelineRangeEnd(), 19);
    QCOMPARE(d->frames().currentIndex(), 10);
    QCOMPARE(d->frames().timelineRangeSize(), 14);
}

void TestTimelineBar::rangeHandlesDoNotPassEachOther()
{
    dragHandle(handle("First frame of the range"), 20);
    QCOMPARE(d->frames().timelineRangeStart(), 16);
    d->frames().setTimelineRangeStart(4);
    dragHandle(handle("Last frame of the range"), 0);
    QCOMPARE(d->frames().timelineRangeEnd(), 4);
}

void TestTimelineBar::heldHandleDoesNotFollowTheModel()
{
    QVERIFY(d->settle());
    QQuickItem *current = handle("Current frame");
    const QPoint from = middleOf(current);
    QTest::mousePress(&d->window(), Qt::LeftButton, {}, from);
    QTest::mouseMove(&d->window(), from + (placeOf(13) - placeOf(10)));
    QCOMPARE(d->frames().currentIndex(), 13);
    d->frames().setCurrentIndex(2);
    QCOMPARE(current->property("value").toInt(), 13);
    QTest::mouseRelease(&d->window(), Qt::LeftButton, {}, from + (placeOf(13) - placeOf(10)));
    QCOMPARE(current->property("value").toInt(), 2);
    QCOMPARE(d->frames().currentIndex(), 2);
}

void TestTimelineBar::keysMoveTheHandles()
{
    const auto press = [this](const char *toolTip, std::initializer_list<Qt::Key> keys) {
        handle(toolTip)->forceActiveFocus(Qt::TabFocusReason);
        for (const Qt::Key key : keys)
            d->press(key);
    };
    press("First frame of the range", {Qt::Key_Right, Qt::Key_Right, Qt::Key_Left});
    QCOMPARE(d->frames().timelineRangeStart(), 5);
    press("Last frame of the range", {Qt::Key_PageUp});
    QCOMPARE(d->frames().timelineRangeEnd(), 6);
    press("Last frame of the range", {Qt::Key_End});
    QCOMPARE(d->frames().timelineRangeEnd(), 20);
    press("First frame of the range", {Qt::Key_End, Qt::Key_PageDown});
    QCOMPARE(d->frames().timelineRangeStart(), 20);
    press("First frame of the range", {Qt::Key_Home});
    QCOMPARE(d->frames().timelineRangeStart(), 0);
    QCOMPARE(d->frames().currentIndex(), 10);
    press("Current frame", {Qt::Key_Right, Qt::Key_PageDown});
    QCOMPARE(d->frames().currentIndex(), 20);
}

void TestTimelineBar::grabbingTheBarStopsPlaying()
{
    d->frames().play();
    QTRY_VERIFY(d->frames().playing());
    QTest::mouseClick(&d->window(), Qt::LeftButton, {}, placeOf(3));
    QVERIFY(!d->frames().playing());
    QCOMPARE(d->frames().currentIndex(), 3);
    QCOMPARE(d->frames().pointedGuid(), d->frames().frameAt(3).guid());
}

void TestTimelineBar::oneFrameAndNoFrame()
{
    d->frames().clear();
    QVERIFY(bar() == nullptr);
    d->addFrames(1);
    QVERIFY(d->settle());
    QCOMPARE(bar()->property("total").toInt(), 0);
    QTest::mouseClick(&d->window(), Qt::LeftButton, {}, middleOf(bar()));
    QCOMPARE(d->frames().currentIndex(), 0);
    QCOMPARE(d->frames().timelineRangeEnd(), 0);
}

void TestTimelineBar::readyRunsAreDrawn()
{
    QQuickItem *timeline = d->item("timelineBox");
    QCOMPARE(timeline->property("readyRuns").toList(), QVariantList());
    timeline->setProperty("readyRuns", QVariantList{QVariantList{6, 8}, QVariantList{12, 12}});
    timeline->setProperty("readyPercent", 53.6);
    QVERIFY(d->settle());
    auto *band = bar()->findChild<RowBand *>();
    QVERIFY(band != nullptr);
    QCOMPARE(band->bands().size(), size_t(1));
    QCOMPARE(band->bands().front().bars.size(), size_t(2));
    QCOMPARE(band->color(), QColor("#00b773"));
    QCOMPARE(bar()->property("toolTip").toString(), QString("In memory: 54 %"));
    const auto green = [&](int row) {
        const QPointF place = band->mapFromScene(placeOf(row));
        return d->colorAt(band, {place.x(), band->height() / 2}) == QColor("#00b773");
    };
    QVERIFY(green(6) && green(8) && green(12));
    QVERIFY(!green(5) && !green(9) && !green(11) && !green(13));
}

void TestTimelineBar::indicatorFollowsTheFrames()
{
    auto *indicator = d->root().findChild<TimelineIndicator *>();
    QVERIFY(indicator != nullptr);
    d->frames().setValue(3, Zum::Hidden, true);
    d->select({5, 6});
    QVERIFY(d->settle());
    const qreal cell = indicator->width() / 21;
    const auto color = [&](int row, qreal part) {
        return d->colorAt(indicator, {(row + 0.5) * cell, indicator->height() * part});
    };
    QCOMPARE(color(3, 0.5), QColor("#93e308"));
    QCOMPARE(color(5, 0.9), QColor("#9A0101"));
    QVERIFY(color(4, 0.9) != QColor("#9A0101"));
    d->frames().setValue(11, Zum::CapFull, "frame_10.jpg");
    d->frames().dismiss();
    d->frames().searchStaticness(0, 20);
    QVERIFY(d->waitIdle());
    QVERIFY(d->settle());
    QCOMPARE(color(10, 0.1), QColor("#1854dd"));
    QVERIFY(color(5, 0.9) != QColor("#9A0101"));
}

void TestTimelineBar::playButtonPlaysAndStops()
{
    d->press("Play the range [Space]");
    QTRY_VERIFY(d->frames().playing());
    d->press("Stop [Space]");
    QVERIFY(!d->frames().playing());
    d->press("Back to the beginning of the range");
    QCOMPARE(d->frames().currentIndex(), 4);
}

void TestTimelineBar::switchesOfPlaybackReachTheModel()
{
    QVERIFY(d->frames().loop());
    d->press("Play again and again");
    QVERIFY(!d->frames().loop());
    d->press("Turn round at the ends");
    QVERIFY(d->frames().pendulum());
    d->press("Plays forward");
    QCOMPARE(d->frames().playDirection(), int(Zum::Backward));
    d->press("Plays backward");
    QCOMPARE(d->frames().playDirection(), int(Zum::Forward));
    QQuickItem *rate = d->findItem("toolTip", "Frames per second", d->item("timelineBox"));
    QVERIFY(rate != nullptr);
    QVERIFY(QMetaObject::invokeMethod(rate, "numberEdited", Q_ARG(double, 12.5)));
    QCOMPARE(d->frames().timelineFps(), 12.5);
}

void TestTimelineBar::directionIsReadAnewWhenARunEnds()
{
    d->frames().setPendulum(true);
    d->frames().setTimelineFps(1);
    d->frames().play();
    QTRY_VERIFY(d->frames().playing());
    for (int i = 0; i < 10; ++i)
        d->frames().moveIndex();
    QCOMPARE(d->frames().playDirection(), int(Zum::Backward));
    QVERIFY(d->findItem("toolTip", "Plays forward") != nullptr);
    d->frames().stop();
    QVERIFY(d->findItem("toolTip", "Plays backward") != nullptr);
}

void TestTimelineBar::durationIsSplitIntoHoursMinutesSecondsAndFrames()
{
    d->frames().setTimelineFps(10);
    QVERIFY(d->findItem("text", "0:00:01:03") != nullptr);
    // A rate far too slow for a film, but long.
    d->frames().setTimelineFps(0.01);
    QVERIFY(d->findItem("text", "0:21:40:00") != nullptr);
}

void TestTimelineBar::shownRateReplacesTheDurationWhilePlaying()
{
    d->frames().play();
    QTRY_VERIFY(d->frames().playing());
    QQuickItem *shown = d->findItem("toolTip", "Frames shown in the last second");
    QVERIFY(shown != nullptr);
    d->frames().setActualFps();
    QTRY_COMPARE(shown->property("text").toString(), QString("%1 fps").arg(d->frames().actualFps()));
    d->frames().stop();
    QVERIFY(d->findItem("toolTip", "Frames shown in the last second") == nullptr);
}

void TestTimelineBar::settingsOfTheRange()
{
    d->frames().setStartIndex(100);
    d->press("Playback and its range");
    const auto edit = [this](const char *label, double value) {
        QQuickItem *field = d->findItem("label", label);
        return field != nullptr && QMetaObject::invokeMethod(field, "numberEdited", Q_ARG(double, value));
    };
    QVERIFY(edit("First frame of the range", 102));
    QVERIFY(edit("Last frame of the range", 109));
    QCOMPARE(d->frames().timelineRangeStart(), 2);
    QCOMPARE(d->frames().timelineRangeEnd(), 9);
    d->click(d->findItem("text", "Whole timeline"));
    QCOMPARE(d->frames().timelineRangeStart(), 0);
    QCOMPARE(d->frames().timelineRangeEnd(), 20);
    d->click(d->findItem("text", "Captured frames extend the range"));
    QVERIFY(!d->frames().autoMaximizeRange());
    QVERIFY(!d->controllers().settings().boolean("autoMaximizeRange", true));
    QVERIFY(!d->findItem("text", "Play the reference frames")->property("active").toBool());
    d->frames().setDoubleDecker(true);
    d->click(d->findItem("text", "Play the reference frames"));
    QVERIFY(!d->frames().playingCaptured());
    d->click(d->findItem("text", "Play backward"));
    QCOMPARE(d->frames().playDirection(), int(Zum::Backward));
}

void TestTimelineBar::narrowBarKeepsThePlayButtonAndThePanel()
{
    QVERIFY(d->findItem("toolTip", "Play again and again") != nullptr);
    d->window().resize(900, 600);
    QTRY_VERIFY(d->findItem("toolTip", "Play again and again") == nullptr);
    QVERIFY(d->findItem("toolTip", "Play the range [Space]") != nullptr);
    d->press("Playback and its range");
    d->click(d->findItem("text", "Play again and again"));
    QVERIFY(!d->frames().loop());
}

QTEST_MAIN(TestTimelineBar)
#include "tst_timelinebar.moc"
