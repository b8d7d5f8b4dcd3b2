#include "preview/PreviewWindow.h"

namespace {

/// A preview that fills a window of the screen.
class OnScreen : public PreviewWindow
{
public:
    OnScreen() : PreviewWindow({200, 100})
    {
        item->setCameraViewWidth(200);
        item->setCameraViewHeight(100);
    }
    QColor at(int x, int y)
    {
        return window.grabWindow().pixelColor(x, y);
    }
};

} // namespace

/// What the preview puts on the screen, by the scene graph of a real window.
class TestRamPreviewItem : public QObject
{
    Q_OBJECT

private slots:
    void pictureIsOnScreenPixelForPixel();
    void mirroredIsFlippedLeftToRight();
    void transparencyShowsWhatLiesBelow();
    void opacityIsTheScenes();
    void withoutPermissionNothingIsPainted();
    void pictureStaysWhileTheNextOneLoads();
    void unsmoothItemShowsWholePixels();
    void comesBackAfterTheSceneGraphWasLost();
    void thousandPicturesDoNotPileUp();
};

void TestRamPreviewItem::pictureIsOnScreenPixelForPixel()
{
    OnScreen screen;
    QImage picture(200, 100, QImage::Format_RGB32);
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 200; ++x)
            picture.setPixel(x, y, qRgb(x, y, (x * y) % 256));
    PreviewWorld::add(screen.world.captured() + "a.png", picture);
    screen.show("a.png");
    const QImage seen = screen.window.grabWindow().convertToFormat(QImage::Format_RGB32);
    QCOMPARE(seen, picture);
}

void TestRamPreviewItem::mirroredIsFlippedLeftToRight()
{
    OnScreen screen;
    PreviewWorld::add(screen.world.captured() + "a.png", PreviewWorld::halves({200, 100}));
    screen.show("a.png");
    QCOMPARE(screen.at(20, 50), QColor(Qt::red));
    screen.item->setMirrored(true);
    QCOMPARE(screen.at(20, 50), QColor(Qt::blue));
    QCOMPARE(screen.at(180, 50), QColor(Qt::red));
    // The picture that is read back stays as it is.
    QCOMPARE(screen.item->image().pixelColor(20, 50), QColor(Qt::red));
    screen.item->setMirrored(false);
    QCOMPARE(screen.at(20, 50), QColor(Qt::red));
}

void TestRamPreviewItem::transparencyShowsWhatLiesBelow()
{
    OnScreen screen;
    QImage picture(200, 100, QImage::Format_ARGB32);
    picture.fill(QColor(255, 0, 0, 0));
    PreviewWorld::add(screen.world.captured() + "a.png", picture);
    screen.window.setColor(Qt::green);
    screen.show("a.png");
    QCOMPARE(screen.at(100, 50), QColor(Qt::green));
}

void TestRamPreviewItem::opacityIsTheScenes()
{
    OnScreen screen;
    screen.world.addCaptured("a.png", {200, 100}, Qt::black);
    screen.show("a.png");
    screen.item->setOpacity(0.5);
    QVERIFY(qAbs(screen.at(100, 50).red() - 128) < 3);
}

void TestRamPreviewItem::withoutPermissionNothingIsPainted()
{
    OnScreen screen;
    screen.world.addCaptured("a.png", {200, 100}, Qt::red);
    screen.show("a.png");
    QCOMPARE(screen.at(100, 50), QColor(Qt::red));
    screen.item->setRenderAllowed(false);
    screen.item->updateRendered();
    QCOMPARE(screen.at(100, 50), QColor(Qt::white));
    screen.item->setRenderAllowed(true);
    QTRY_COMPARE(screen.at(100, 50), QColor(Qt::red));
}

void TestRamPreviewItem::pictureStaysWhileTheNextOneLoads()
{
    OnScreen screen;
    screen.world.addCaptured("a.png", {200, 100}, Qt::red);
    screen.show("a.png");
    screen.item->setCaching(true);
    screen.item->updateRendered();
    QCOMPARE(screen.at(100, 50), QColor(Qt::red));
}

void TestRamPreviewItem::unsmoothItemShowsWholePixels()
{
    OnScreen screen;
    PreviewWorld::add(screen.world.captured() + "a.png", PreviewWorld::halves({200, 100}));
    screen.item->setCameraViewWidth(2);
    screen.item->setCameraViewHeight(1);
    screen.show("a.png");
    screen.item->setSmooth(false);
    screen.item->setSize({200, 100});
    screen.item->updateRendered();
    QCOMPARE(screen.at(98, 50), QColor(Qt::red));
    QCOMPARE(screen.at(101, 50), QColor(Qt::blue));
    screen.item->setSmooth(true);
    const QColor mixed = screen.at(98, 50);
    QVERIFY(mixed.red() > 60 && mixed.blue() > 60);
}

void TestRamPreviewItem::comesBackAfterTheSceneGraphWasLost()
{
    OnScreen screen;
    screen.world.addCaptured("a.png", {200, 100}, Qt::red);
    screen.show("a.png");
    screen.window.setPersistentSceneGraph(false);
    screen.window.setPersistentGraphics(false);
    screen.window.hide();
    screen.window.releaseResources();
    screen.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&screen.window));
    QTRY_COMPARE(screen.at(100, 50), QColor(Qt::red));
}

void TestRamPreviewItem::thousandPicturesDoNotPileUp()
{
    OnScreen screen;
    for (int i = 0; i < 5; ++i)
        screen.world.addCaptured(QString("%1.png").arg(i), {200, 100}, QColor::fromHsv(i * 60, 255, 255));
    for (int i = 0; i <= 1000; ++i) {
        screen.item->setImageName(QString("%1.png").arg(i % 5));
        if (i % 5 == 0)
            QTest::qWait(1);
    }
    QTRY_COMPARE(screen.item->image().pixelColor(5, 5), QColor(Qt::red));
    QTRY_COMPARE(screen.at(100, 50), QColor(Qt::red));
}

QTEST_MAIN(TestRamPreviewItem)
#include "tst_rampreviewitem.moc"
