#include "preview/PreviewWindow.h"

/// The preview item under the mouse: the colour that the eyedropper tells, clicks, and the mask that is
/// drawn.
class TestRamPreviewMouse : public QObject
{
    Q_OBJECT

private slots:
    void eyedropperTellsThePixelUnderTheMouse();
    void eyedropperSeesTheMirroredPicture();
    void hoverWithoutAToolTellsNothing();
    void leavingTellsNowhereAndBlack();
    void clicksAndForwardedClicksReachTheSameHandlers();
    void maskPointsAreKeptInPixelsOfTheFile();
};

void TestRamPreviewMouse::eyedropperTellsThePixelUnderTheMouse()
{
    PreviewWindow shown;
    PreviewWorld::add(shown.world.captured() + "a.png", PreviewWorld::halves({100, 50}));
    shown.item->setEyedropperOn(true);
    shown.show("a.png");
    const QSignalSpy told(shown.item, &RamPreview::setEyedropper);
    QTest::mouseMove(&shown.window, {10, 20});
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.last(), QVariantList({QPoint(10, 20), QColor(Qt::red)}));
    QTest::mouseClick(&shown.window, Qt::LeftButton, {}, {90, 20});
    QTRY_VERIFY(told.last() == QVariantList({QPoint(90, 20), QColor(Qt::blue)}));
}

void TestRamPreviewMouse::eyedropperSeesTheMirroredPicture()
{
    PreviewWindow shown;
    PreviewWorld::add(shown.world.captured() + "a.png", PreviewWorld::halves({100, 50}));
    shown.item->setMaskingOn(true);
    shown.item->setMirrored(true);
    // Where a former test has left the mouse it must not stay.
    QTest::mouseMove(&shown.window, {300, 200});
    shown.show("a.png");
    const QSignalSpy told(shown.item, &RamPreview::setEyedropper);
    shown.item->evokeMousePressEvent(1, 10, 20);
    const auto colorAt = [&told](QPoint point) {
        for (const QVariantList &pick : told)
            if (pick.first() == point)
                return pick.last().value<QColor>();
        return QColor();
    };
    QTRY_COMPARE(colorAt({10, 20}), QColor(Qt::blue));
    // A point outside of the picture tells nothing.
    shown.item->evokeMousePressEvent(1, 100, 20);
    QTest::qWait(30);
    QVERIFY(!colorAt({100, 20}).isValid());
}

void TestRamPreviewMouse::hoverWithoutAToolTellsNothing()
{
    PreviewWindow shown;
    shown.world.addCaptured("a.png", {100, 50});
    shown.show("a.png");
    const QSignalSpy told(shown.item, &RamPreview::setEyedropper);
    QTest::mouseMove(&shown.window, {10, 20});
    QTest::qWait(30);
    QVERIFY(told.isEmpty());
}

void TestRamPreviewMouse::leavingTellsNowhereAndBlack()
{
    PreviewWindow shown;
    shown.world.addCaptured("a.png", {100, 50});
    shown.item->setEyedropperOn(true);
    shown.show("a.png");
    QTest::mouseMove(&shown.window, {10, 20});
    const QSignalSpy told(shown.item, &RamPreview::setEyedropper);
    QTest::mouseMove(&shown.window, {300, 200});
    QTRY_VERIFY(!told.isEmpty());
    QCOMPARE(told.last(), QVariantList({QPoint(-1, -1), QColor(Qt::black)}));
}

void TestRamPreviewMouse::clicksAndForwardedClicksReachTheSameHandlers()
{
    PreviewWindow shown;
    shown.item->setSize({100, 50});
    const QSignalSpy left(shown.item, &RamPreview::mousePressed);
    const QSignalSpy right(shown.item, &RamPreview::rightClick);
    QTest::mouseClick(&shown.window, Qt::LeftButton, {}, {10, 20});
    QTest::mouseClick(&shown.window, Qt::RightButton, {}, {11, 21});
    shown.item->evokeMousePressEvent(1, 12, 22);
    shown.item->evokeMousePressEvent(2, 13, 23);
    shown.item->evokeMousePressEvent(4, 14, 24);
    shown.item->evokeMousePressEvent(0, 15, 25);
    QCOMPARE(QList<QVariantList>(left), QList<QVariantList>({{QPoint(10, 20)}, {QPoint(12, 22)}}));
    QCOMPARE(QList<QVariantList>(right), QList<QVariantList>({{QPoint(11, 21)}, {QPoint(13, 23)}}));
}

void TestRamPreviewMouse::maskPointsAreKeptInPixelsOfTheFile()
{
    PreviewWindow shown;
    shown.world.addCaptured("a.png", {200, 100}, Qt::white);
    shown.item->setMaskingOn(true);
    shown.item->setDrawablePointSize(10);
    shown.show("a.png");
    shown.item->addDrawablePoint({40, 25});
    QTRY_COMPARE(shown.window.grabWindow().pixelColor(40, 25), QColor("#aa00ff"));
    QCOMPARE(shown.window.grabWindow().pixelColor(60, 25), QColor(Qt::white));
    // At half the size it lies at half the place.
    shown.item->setCameraViewWidth(50);
    QTRY_COMPARE(shown.window.grabWindow().pixelColor(20, 12), QColor("#aa00ff"));
    // The polygon is filled with the mask's colour.
    shown.item->setPathNodes(
        {QPointF(0, 0), QVariantMap{{"x", 10}, {"y", 0}}, QPointF(10, 10), QPointF(0, 10)});
    shown.item->setMaskColor(Qt::black);
    QTRY_COMPARE(shown.window.grabWindow().pixelColor(5, 5), QColor(Qt::black));
    shown.item->setMaskingOn(false);
    QTRY_COMPARE(shown.window.grabWindow().pixelColor(20, 12), QColor(Qt::white));
}

QTEST_MAIN(TestRamPreviewMouse)
#include "tst_rampreviewmouse.moc"
