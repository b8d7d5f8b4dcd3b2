#include "ui/timeline/StripWindow.h"

/// What the frames of the strip look like in each of their states, what stands on the strip beside them, and
/// how it answers changes of the model.
class TestStripFrames : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void currentFrameHasABorder();
    void groupedFrameHasALighterBox();
    void selectedFramesNumberStandsOnRed();
    void frameAboutToBeDeletedIsInTheActiveColour();
    void holdReadsAsOneBlock();
    void hiddenFrameIsDimWithAGreenSquare();
    void phaseStandsAtTheLeftUnlessItIsTheDefault();
    void numberCountsFromTheStartIndex();
    void missingImagesAreTold_data();
    void missingImagesAreTold();
    void thumbnailIsShownAndMirrored();
    void thumbnailsAreLoadedOffTheMainThreadAtTheirSize();
    void secondRowShowsTheReference();
    void markersShowTheRange();
    void reusedFramesShowTheirNewRow();

    void messagesOnTheStrip();
    void selectionMessageDismisses();
    void editFlashes();
    void editScansForHoldsAndGoesToItsRow();
    void foreignChangesDoNot();
    void countGoesToTheRowOfTheEdit();
    void keyToTheStartShowsItAlsoWhenItIsCurrent();
    void endOfPlayingKeepsTheCurrentFrameInSight();
    void loadedFilmShowsItsEnd();
    void changeOfWidthDismisses();
    void unconnectedListHasNoModelAndABusySign();
    void arrowsTurnPages();
    void compactFormShowsTheFramesAlone();
    void everyFontSizeLeavesRoomForTheFrames_data();
    void everyFontSizeLeavesRoomForTheFrames();

private:
    QQuickItem *box(int row)
    {
        return d->frame(row)->childItems().constFirst();
    }
    QColor boxColor(int row)
    {
        return box(row)->property("color").value<QColor>();
    }
    QList<QQuickItem *> thumbs(int row)
    {
        return d->itemsOf("TimelineThumb", d->frame(row));
    }
    bool writeThumb(const QString &name, bool reference = false);

    std::unique_ptr<StripWindow> d;
};

void TestStripFrames::init()
{
    d = std::make_unique<StripWindow>(8);
}

void TestStripFrames::cleanup()
{
    QCOMPARE(d->sceneWarnings(), QStringList());
    d.reset();
}

/// Red at the left, blue at the right.
bool TestStripFrames::writeThumb(const QString &name, bool reference)
{
    QImage image(90, 60, QImage::Format_RGB32);
    image.fill(reference ? Qt::green : Qt::blue);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width() / 2; ++x)
            image.setPixelColor(x, y, Qt::red);
    return image.save((reference ? d->window().refTumbDirPath() : d->window().capTumbDirPath()) + name);
}

void TestStripFrames::currentFrameHasABorder()
{
    d->frames().setCurrentIndex(2);
    QVERIFY(d->settle());
    QCOMPARE(d->colorAt(d->frame(2), {1, d->frame(2)->height() / 2}), QColor("#FF9900"));
    QCOMPARE(d->colorAt(d->frame(3), {1, d->frame(3)->height() / 2}), QColor("#4F4F4F"));
    QVERIFY(d->frame(2)->property("current").toBool());
    d->frames().setCurrentIndex(3);
    QVERIFY(!d->frame(2)->property("current").toBool());
    QVERIFY(d->frame(3)->property("current").toBool());
}

void TestStripFrames::groupedFrameHasALighterBox()
{
    QCOMPARE(boxColor(3), QColor("#4F4F4F"));
    d->select({3});
    QCOMPARE(boxColor(3), QColor("#75797E"));
    QCOMPARE(boxColor(4), QColor("#4F4F4F"));
    d->select({3});
    QCOMPARE(boxColor(3), QColor("#4F4F4F"));
}

void TestStripFrames::selectedFramesNumberStandsOnRed()
{
    const auto hasRed = [this](int row) {
        return d->findItem("color", QColor("#C00202"), d->frame(row)) != nullptr;
    };
    QVERIFY(!hasRed(3));
    d->select({3});
    QVERIFY(hasRed(3));
    QVERIFY(!hasRed(2));
}

void TestStripFrames::frameAboutToBeDeletedIsInTheActiveColour()
{
    d->frames().setCurrentIndex(4);
    d->press(Qt::Key_Delete);
    QVERIFY(d->frames().goingToDeleteCurrentFrame());
    QCOMPARE(boxColor(4), QColor("#FF9900"));
    QCOMPARE(boxColor(3), QColor("#4F4F4F"));
    d->press(Qt::Key_Escape);
    QCOMPARE(boxColor(4), QColor("#4F4F4F"));
}

void TestStripFrames::holdReadsAsOneBlock()
{
    for (const int row : {3, 4, 5})
        d->frames().setValue(row, Zum::CapFull, "frame_2.jpg");
    d->frames().searchStaticness(0, 7);
    QVERIFY(d->waitIdle());
    QVERIFY(d->settle());
    const QColor hold("#1854dd");
    const qreal height = d->frame(2)->height();
    // Full height on the first, a line at the bottom on the others.
    QCOMPARE(d->colorAt(d->frame(2), {2, 6}), hold);
    for (const int row : {2, 3, 4, 5})
        QCOMPARE(d->colorAt(d->frame(row), {3, height - 2}), hold);
    for (const int row : {3, 4, 5})
        QVERIFY(d->colorAt(d->frame(row), {2, 6}) != hold);
    QVERIFY(d->colorAt(d->frame(6), {3, height - 2}) != hold);
    // The frames of a hold touch, the last one keeps its distance.
    const qreal width = d->frame(2)->width();
    for (const int row : {2, 3, 4})
        QCOMPARE(box(row)->width(), width);
    for (const int row : {1, 5, 6})
        QVERIFY(box(row)->width() < width);
    QCOMPARE(d->colorAt(d->frame(4), {width - 1, height - 2}), hold);
}

void TestStripFrames::hiddenFrameIsDimWithAGreenSquare()
{
    QCOMPARE(thumbs(3).constFirst()->opacity(), 1.0);
    d->frames().setValue(3, Zum::Hidden, true);
    QCOMPARE(thumbs(3).constFirst()->opacity(), 0.25);
    QVERIFY(d->findItem("color", QColor("#93e308"), d->frame(3)) != nullptr);
    QVERIFY(d->findItem("color", QColor("#93e308"), d->frame(2)) == nullptr);
}

void TestStripFrames::phaseStandsAtTheLeftUnlessItIsTheDefault()
{
    d->frames().setValue(3, Zum::PhaseNumber, 77);
    QQuickItem *phase = d->findItem("text", "77", d->frame(3));
    QVERIFY(phase != nullptr);
    QVERIFY(phase->mapToItem(d->frame(3), QPointF()).x() < d->frame(3)->width() / 3);
    d->frames().setValue(3, Zum::PhaseNumber, 0);
    QVERIFY(d->findItem("text", "77", d->frame(3)) == nullptr);
    QVERIFY(d->findItem("text", "0", d->frame(3)) == nullptr);
}

void TestStripFrames::numberCountsFromTheStartIndex()
{
    d->frames().setStartIndex(500);
    QQuickItem *number = d->findItem("text", "503", d->frame(3));
    QVERIFY(number != nullptr);
    QVERIFY(number->mapToItem(d->frame(3), QPointF()).x() > d->frame(3)->width() / 2);
}

void TestStripFrames::missingImagesAreTold_data()
{
    QTest::addColumn<QString>("captured");
    QTest::addColumn<QString>("reference");
    QTest::addColumn<QString>("text");
    QTest::newRow("captured") << "t.jpg"
                              << ""
                              << "Captured image is missing ";
    QTest::newRow("reference") << ""
                               << "r.jpg"
                               << "Reference image is missing";
    QTest::newRow("both") << "t.jpg"
                          << "r.jpg"
                          << "Captured image is missing Reference image is missing";
    QTest::newRow("no thumbnail names") << ""
                                        << ""
                                        << "";
}

void TestStripFrames::missingImagesAreTold()
{
    QFETCH(QString, captured);
    QFETCH(QString, reference);
    d->frames().setValue(3, Zum::CapTumb, captured);
    d->frames().setValue(3, Zum::RefTumb, reference);
    QCOMPARE(d->frame(3)->property("toolTip").toString(),
             reference.isEmpty() ? "" : "Reference image is missing");
    d->frames().setValue(3, Zum::CapFullMissing, true);
    d->frames().setValue(3, Zum::RefFullMissing, true);
    QTEST(d->frame(3)->property("toolTip").toString(), "text");
    d->frames().setValue(3, Zum::CapFullMissing, false);
    d->frames().setValue(3, Zum::RefFullMissing, false);
    QCOMPARE(d->frame(3)->property("toolTip").toString(), QString());
}

void TestStripFrames::thumbnailIsShownAndMirrored()
{
    QVERIFY(writeThumb("t.png"));
    d->frames().setValue(3, Zum::CapTumb, "t.png");
    QQuickItem *thumb = thumbs(3).constFirst();
    QTRY_COMPARE(thumb->property("status").toInt(), 1);
    QVERIFY(d->settle());
    const qreal middle = thumb->height() / 2;
    const qreal width = thumb->width();
    QCOMPARE(d->colorAt(thumb, {width * 0.4, middle}), QColor(Qt::red));
    QCOMPARE(d->colorAt(thumb, {width * 0.6, middle}), QColor(Qt::blue));
    d->frames().setValue(3, Zum::Mirrored, true);
    QVERIFY(d->settle());
    QCOMPARE(d->colorAt(thumb, {width * 0.4, middle}), QColor(Qt::blue));
    QCOMPARE(d->colorAt(thumb, {width * 0.6, middle}), QColor(Qt::red));
    QVERIFY(thumb->width() <= d->window().scaledThumbSize().width());
}

void TestStripFrames::thumbnailsAreLoadedOffTheMainThreadAtTheirSize()
{
    for (QQuickItem *thumb : d->itemsOf("TimelineThumb")) {
        QVERIFY(thumb->property("asynchronous").toBool());
        QCOMPARE(thumb->property("sourceSize").toSize().width(), int(d->window().scaledThumbSize().width()));
    }
}

void TestStripFrames::secondRowShowsTheReference()
{
    QVERIFY(writeThumb("r.png", true));
    d->frames().setValue(3, Zum::RefTumb, "r.png");
    QCOMPARE(thumbs(3).size(), 1);
    d->frames().setDoubleDecker(true);
    QVERIFY(d->settle());
    const QList<QQuickItem *> both = thumbs(3);
    QCOMPARE(both.size(), 2);
    QVERIFY(both.at(1)->mapToScene({0, 0}).y() >= both.at(0)->mapToScene({0, both.at(0)->height()}).y() - 1);
    QTRY_COMPARE(both.at(1)->property("status").toInt(), 1);
    QVERIFY(d->settle());
    QCOMPARE(d->colorAt(both.at(1), {both.at(1)->width() * 0.6, both.at(1)->height() / 2}),
             QColor(Qt::green));
    d->frames().setDoubleDecker(false);
    QCOMPARE(thumbs(3).size(), 1);
}

void TestStripFrames::markersShowTheRange()
{
    d->frames().setTimelineRangeStart(2);
    d->frames().setTimelineRangeEnd(5);
    const auto marker = [this](int row, const char *name) {
        return d->itemsOf("TimelineMarkers", d->frame(row)).constFirst()->property(name).toBool();
    };
    QList<int> inRange;
    QList<int> ends;
    for (int row = 0; row < 8; ++row) {
        if (marker(row, "inRange"))
            inRange.append(row);
        if (marker(row, "isFirst") || marker(row, "isLast"))
            ends.append(row);
    }
    QCOMPARE(inRange, QList<int>({2, 3, 4, 5}));
    QCOMPARE(ends, QList<int>({2, 5}));
    QVERIFY(marker(2, "isFirst") && marker(5, "isLast"));
}

void TestStripFrames::reusedFramesShowTheirNewRow()
{
    d->addFrames(200);
    for (int row = 0; row < 208; ++row)
        d->frames().setValue(row, Zum::PhaseNumber, row);
    d->goToStart();
    for (int i = 0; i < 8; ++i) {
        d->wheel(-25);
        QVERIFY(d->settle());
    }
    const int left = d->timeline("leftMostIndex").toInt();
    QVERIFY(left > 150);
    for (int row = left; row < left + 5; ++row) {
        QVERIFY(d->frame(row) != nullptr);
        QVERIFY2(d->findItem("text", row, d->frame(row)) != nullptr, qPrintable(QString::number(row)));
    }
}

void TestStripFrames::messagesOnTheStrip()
{
    const auto shows = [this](const char *text) {
        return d->findItem("text", text, d->strip()) != nullptr;
    };
    QVERIFY(!shows("No Frames") && !shows("Click here or press Esc to cancel selection"));
    d->select({1});
    QVERIFY(shows("Click here or press Esc to cancel selection"));
    d->frames().clear();
    QVERIFY(shows("No Frames"));
    QVERIFY(!shows("Click here or press Esc to cancel selection"));
    d->global().setProjectChanged(false);
    d->window().closeProject();
    QTRY_VERIFY(!d->window().projectLoaded());
    QVERIFY(shows("No project. Create or load project to capture, add, remove or modify frames"));
    QVERIFY(!shows("No Frames"));
}

void TestStripFrames::keyToTheStartShowsItAlsoWhenItIsCurrent()
{
    d->addFrames(60);
    QVERIFY(d->settle());
    QCOMPARE(d->frames().currentIndex(), 0);
    QVERIFY(d->timeline("leftMostIndex").toInt() > 0);
    d->press(Qt::Key_Home);
    QCOMPARE(d->timeline("leftMostIndex").toInt(), 0);
}

void TestStripFrames::selectionMessageDismisses()
{
    d->select({1, 2});
    d->press(Qt::Key_C, Qt::ControlModifier);
    d->click(d->findItem("text", "Click here or press Esc to cancel selection"));
    QCOMPARE(d->selected(), QList<int>());
    QVERIFY(!d->frames().copyModeOn());
    QVERIFY(d->findItem("text", "Click here or press Esc to cancel selection") == nullptr);
}

void TestStripFrames::editFlashes()
{
    QVERIFY(d->itemsOf("FlashCover").isEmpty());
    d->frames().switchMirroredOnSingleFrame(1);
    const QList<QQuickItem *> covers = d->itemsOf("FlashCover");
    QCOMPARE(covers.size(), 1);
    QCOMPARE(covers.constFirst()->property("color").value<QColor>(), QColor("#11000000"));
    QCOMPARE(covers.constFirst()->width(), d->strip()->width());
    QTRY_VERIFY(d->itemsOf("FlashCover").isEmpty());
}

void TestStripFrames::editScansForHoldsAndGoesToItsRow()
{
    d->addFrames(60);
    d->frames().setCurrentIndex(0);
    d->goToStart();
    d->frames().setValue(41, Zum::CapFull, d->frames().frameAt(40).capFull);
    d->frames().switchMirroredOnSingleFrame(50);
    QVERIFY(d->frame(50) != nullptr);
    QVERIFY(d->waitIdle());
    QCOMPARE(d->frames().frameAt(40).staticState, 0);
    QCOMPARE(d->frames().frameAt(41).staticState, 2);
    const qreal place = d->timeline("strip.placeOf(50)").toReal();
    QVERIFY(place >= 0 && place < d->strip()->width());
}

void TestStripFrames::foreignChangesDoNot()
{
    d->frames().setValue(2, Zum::CapFull, d->frames().frameAt(1).capFull);
    emit d->frames().timelineChanged(1024);
    QVERIFY(d->itemsOf("FlashCover").isEmpty());
    QCOMPARE(d->frames().currentAction(), int(Zum::ActNoAction));
    QCOMPARE(d->frames().frameAt(1).staticState, -1);
    emit d->frames().timelineChanged(1023);
    QCOMPARE(d->itemsOf("FlashCover").size(), 1);
    QVERIFY(d->waitIdle());
    QCOMPARE(d->frames().frameAt(1).staticState, 0);
}

void TestStripFrames::countGoesToTheRowOfTheEdit()
{
    d->addFrames(60);
    QVERIFY(d->settle());
    QVERIFY(d->timeline("strip.placeOf(67)").toReal() < d->strip()->width());
}

void TestStripFrames::endOfPlayingKeepsTheCurrentFrameInSight()
{
    d->addFrames(60);
    d->frames().setCurrentIndex(0);
    d->frames().setTimelineRangeEnd(67);
    d->frames().setTimelineFps(1);
    d->goToStart();
    d->frames().play();
    QTRY_VERIFY(d->frames().playing());
    // The list stays where it is while the film runs.
    for (int i = 0; i < 45; ++i)
        d->frames().moveIndex();
    QCOMPARE(d->frames().currentIndex(), 44);
    QCOMPARE(d->timeline("leftMostIndex").toInt(), 0);
    d->frames().stop();
    const qreal place = d->timeline("strip.placeOf(44)").toReal();
    QVERIFY(place >= 0 && place < d->strip()->width());
}

void TestStripFrames::loadedFilmShowsItsEnd()
{
    d->addFrames(60);
    d->frames().setCurrentIndex(0);
    d->goToStart();
    QSignalSpy ends(&d->global(), &WebcamGlobal::timelineGotoEnd);
    d->frames().setLoaded(false);
    d->frames().setLoaded(true);
    QCOMPARE(ends.count(), 1);
    QCOMPARE(d->frames().currentIndex(), 67);
    QObject *later = d->root().findChild<QObject *>("afterLoading");
    QVERIFY(later != nullptr);
    QVERIFY(later->property("running").toBool());
    // A list that was moved by what came after the loading goes to the end again.
    QQuickItem *view = d->timeline("strip.flickable").value<QQuickItem *>();
    view->setProperty("contentX", 0);
    QMetaObject::invokeMethod(later, "triggered");
    QCOMPARE(d->rowAt(d->strip()->width() - 1), 67);
    // A user who went elsewhere stays there.
    d->wheel(30);
    QMetaObject::invokeMethod(later, "triggered");
    QVERIFY(d->rowAt(d->strip()->width() - 1) < 67);
}

void TestStripFrames::changeOfWidthDismisses()
{
    QVERIFY(d->settle());
    QSignalSpy dismissals(&d->global(), &WebcamGlobal::globalDismiss);
    d->window().resize(1100, 760);
    QTRY_VERIFY(dismissals.count() > 0);
    d->frames().setLoaded(false);
    QVERIFY(d->settle());
    dismissals.clear();
    const qreal before = d->strip()->width();
    d->window().resize(1200, 760);
    QTRY_VERIFY(d->strip()->width() != before);
    QCOMPARE(dismissals.count(), 0);
}

void TestStripFrames::unconnectedListHasNoModelAndABusySign()
{
    d->addFrames(60);
    d->frames().setCurrentIndex(30);
    QVERIFY(d->settle());
    emit d->window().disconnectModel();
    QVERIFY(!d->timeline("strip.connected").toBool());
    QCOMPARE(d->timeline("strip.flickable.count").toInt(), 0);
    QVERIFY(d->settle());
    QCOMPARE(d->colorAt(d->strip(), {100, 20}), QColor("#333333"));
    QCOMPARE(d->itemsOf("BusySign", d->strip()).size(), 1);
    QVERIFY(d->findItem("text", "No Frames") == nullptr);
    emit d->window().connectModel();
    QVERIFY(d->settle());
    QVERIFY(d->colorAt(d->strip(), {100, 20}) != QColor("#333333"));
    QVERIFY(d->itemsOf("BusySign", d->strip()).isEmpty());
    QCOMPARE(d->timeline("strip.flickable.currentIndex").toInt(), 30);
    d->frames().setCurrentIndex(20);
    QCOMPARE(d->timeline("strip.flickable.currentIndex").toInt(), 20);
}

void TestStripFrames::arrowsTurnPages()
{
    QVERIFY(d->findItem("toolTip", "Later frames") == nullptr);
    d->addFrames(60);
    d->frames().setCurrentIndex(0);
    d->goToStart();
    QVERIFY(d->findItem("toolTip", "Earlier frames") == nullptr);
    d->press("Later frames");
    QVERIFY(d->timeline("leftMostIndex").toInt() > 4);
    d->press("Earlier frames");
    QCOMPARE(d->timeline("leftMostIndex").toInt(), 0);
    d->item("timelineBox")->setProperty("arrowsVisible", false);
    QVERIFY(d->findItem("toolTip", "Later frames") == nullptr);
}

void TestStripFrames::compactFormShowsTheFramesAlone()
{
    d->showTab("captureUIisOn_compacted");
    QVERIFY(d->findItem("toolTip", "Mirror") == nullptr);
    QVERIFY(d->findItem("toolTip", "Update static frames indication") == nullptr);
    QVERIFY(d->frame(3) != nullptr);
    QVERIFY(d->frame(3)->height() > 50);
    QCOMPARE(d->strip()->x(), 0.0);
    d->clickFrame(3);
    QCOMPARE(d->frames().currentIndex(), 3);
}

void TestStripFrames::everyFontSizeLeavesRoomForTheFrames_data()
{
    QTest::addColumn<int>("fontSize");
    for (const int size : {0, 1, 3, 5, 8})
        QTest::addRow("%d", size) << size;
}

void TestStripFrames::everyFontSizeLeavesRoomForTheFrames()
{
    QFETCH(int, fontSize);
    ShellWindow::Options options;
    options.settings.insert("fontsize", fontSize);
    options.size = {1024, 600};
    d.reset();
    d = std::make_unique<StripWindow>(8, options);
    for (const char *tab : {"captureUIisOn", "timingUIisOn"}) {
        d->showTab(tab);
        for (const bool two : {false, true}) {
            d->frames().setDoubleDecker(two);
            QVERIFY(d->settle());
            const qreal height = d->timeline("height").toReal();
            QVERIFY(height <= 300);
            QVERIFY2(d->strip()->height() > height * 0.3, qPrintable(QString::number(d->strip()->height())));
            QVERIFY(thumbs(1).constFirst()->height() > (two ? 15 : 40));
            // Nothing stands outside of its place.
            QQuickItem *bar = d->itemsOf("ProgressControl").value(0);
            QVERIFY(bar != nullptr && bar->width() > 200);
            QVERIFY(bar->mapToScene({0, 0}).y() >= d->strip()->mapToScene({0, d->strip()->height()}).y() - 1);
        }
    }
}

QTEST_MAIN(TestStripFrames)
#include "tst_stripframes.moc"
