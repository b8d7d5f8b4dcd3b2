#include "DisplayTest.h"

#include <QDir>
#include <QPainter>

/// The view's pictures in each state against stored ones. Run with MORVANE_RENEW_PICTURES=1 to store them
/// anew, and look at each.
class TestDisplayPictures : public DisplayTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void composition_data();
    void composition();
    void timing();

private:
    void compare(QQuickItem *item, const QString &name);
    static QImage scene(const QColor &ground, const QColor &ball, qreal x);
};

/// A ball in front of a ground that gets darker to the right.
QImage TestDisplayPictures::scene(const QColor &ground, const QColor &ball, qreal x)
{
    QImage image(320, 180, QImage::Format_RGB32);
    QPainter painter(&image);
    for (int column = 0; column < 320; column += 20)
        painter.fillRect(column, 0, 20, 180, ground.darker(100 + column / 2));
    painter.setPen(Qt::NoPen);
    painter.setBrush(ball);
    painter.drawRect(QRectF(x, 60, 60, 60));
    return image;
}

void TestDisplayPictures::initTestCase()
{
    // Only the picture, so that its size depends on nothing else.
    m_film = std::make_unique<DisplayWindow>(0, DisplayWindow::options({480, 271}));
    m_film->global().setMainTabsState("captureUIisOn_maximized");
    FramesModel &frames = m_film->frames();
    const QString references = m_film->window().refFullDirPath();
    for (int row = 0; row < 3; ++row) {
        const QString name = QStringLiteral("frame_%1.png").arg(row);
        QVERIFY(scene(QColor(120, 130, 150), QColor(230, 130, 40), 40 + 70 * row)
                    .save(m_film->window().capFullDirPath() + name));
        QVERIFY(scene(QColor(60, 110, 60), QColor(240, 240, 240), 200 - 40 * row).save(references + name));
        frames.appendFrame({{"capFull", name}, {"refFull", name}});
    }
    frames.setCurrentIndex(1);
    frames.setDoubleDecker(true);
    m_film->global().setTechInfoOn(false);
    m_film->global().setCropAreaOn(false);
    QVERIFY(m_film->waitForPictures());
}

void TestDisplayPictures::compare(QQuickItem *item, const QString &name)
{
    const QString path = QStringLiteral(MORVANE_TEST_DATA "/display/%1.png").arg(name);
    const auto taken = [&] {
        const QRectF place = item->mapRectToScene(item->boundingRect());
        return m_film->shot().copy(place.toAlignedRect()).convertToFormat(QImage::Format_RGB32);
    };
    if (qEnvironmentVariableIsSet("MORVANE_RENEW_PICTURES")) {
        QTest::qWait(900);
        QVERIFY(taken().save(path));
        return;
    }
    const QImage wanted = QImage(path).convertToFormat(QImage::Format_RGB32);
    QVERIFY2(!wanted.isNull(), qPrintable(path));
    int different = -1;
    QImage last;
    const auto looksRight = [&] {
        last = taken();
        if (last.size() != wanted.size())
            return false;
        different = 0;
        for (int y = 0; y < last.height(); ++y)
            for (int x = 0; x < last.width(); ++x)
                different += DisplayWindow::near(last.pixelColor(x, y), wanted.pixelColor(x, y), 16) ? 0 : 1;
        return different <= 60;
    };
    if (QTest::qWaitFor(looksRight, 4000))
        return;
    const QString kept = QDir::temp().filePath(QStringLiteral("display-%1.png").arg(name));
    last.save(kept);
    QFAIL(qPrintable(QStringLiteral("%1 pixels differ, see %2").arg(different).arg(kept)));
}

void TestDisplayPictures::composition_data()
{
    QTest::addColumn<QVariantMap>("settings");
    using Map = QVariantMap;
    QTest::newRow("live") << Map{{"camboxState", live}};
    QTest::newRow("live-with-device")
        << Map{{"camboxState", live}, {"connected", true}, {"opacityLiveView", 60}};
    QTest::newRow("captured") << Map{{"camboxState", captured}};
    QTest::newRow("captured-faint") << Map{{"camboxState", captured}, {"opacityCaptured", 40}};
    QTest::newRow("reference") << Map{{"camboxState", reference}, {"opacityReference", 70}};
    QTest::newRow("reference-small") << Map{{"camboxState", reference}, {"referenceImageScale", 60}};
    QTest::newRow("onion-past") << Map{{"stackMode", int(Zum::StackPast)}, {"opacityCaptured", 80}};
    QTest::newRow("onion-future") << Map{{"stackMode", int(Zum::StackFuture)}, {"opacityCaptured", 80}};
    QTest::newRow("blend-difference") << Map{{"camboxState", captured}, {"blend", int(Zum::BlendDifference)}};
    QTest::newRow("blend-screen") << Map{{"camboxState", reference}, {"blend", int(Zum::BlendScreen)}};
    QTest::newRow("lines") << Map{
        {"camboxState", captured}, {"cropAreaOn", true}, {"marginsOn", true},
        {"gridOn", true},          {"gridHStep", 40},    {"gridVStep", 40},
        {"crossOn", true},         {"safeAreaOn", true}, {"ruleOfThirdsGridOn", true},
        {"cropAreaW", 240},        {"cropAreaH", 136}};
    QTest::newRow("lines-zoomed") << Map{{"camboxState", captured}, {"cropAreaOn", true},
                                         {"safeAreaOn", true},      {"crossOn", true},
                                         {"wideCross", true},       {"camScaleFactor", 0.6}};
}

void TestDisplayPictures::composition()
{
    QFETCH(QVariantMap, settings);
    WebcamGlobal &global = m_film->global();
    // The onion skin sets the opacities, so it goes first.
    if (settings.contains("stackMode"))
        global.setStackMode(settings.take("stackMode").toInt());
    QVariantMap before;
    for (auto it = settings.cbegin(); it != settings.cend(); ++it) {
        before.insert(it.key(), global.property(it.key().toLatin1().constData()));
        QVERIFY(global.setProperty(it.key().toLatin1().constData(), it.value()));
    }
    compare(m_film->cameraBox(), QTest::currentDataTag());
    for (auto it = before.cbegin(); it != before.cend(); ++it)
        global.setProperty(it.key().toLatin1().constData(), it.value());
    global.setStackMode(Zum::NoStack);
    global.setCamboxState(live);
}

void TestDisplayPictures::timing()
{
    WebcamGlobal &global = m_film->global();
    global.setMainTabsState("timingUIisOn_maximized");
    global.setSafeAreaOn(true);
    compare(m_film->timingDisplay()->property("ramView").value<QQuickItem *>(), "timing");
}

QTEST_MAIN(TestDisplayPictures)
#include "tst_displaypictures.moc"
