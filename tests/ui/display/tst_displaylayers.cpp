#include "DisplayWindow.h"

#include <QTest>

/// The layers of the Capture tab's view: which lies on top, how opaque and how large each is, and what shows.
class TestDisplayLayers : public QObject
{
    Q_OBJECT

private slots:
    void orderFollowsTheTabs_data();
    void orderFollowsTheTabs();
    void look();
};

void TestDisplayLayers::orderFollowsTheTabs_data()
{
    QTest::addColumn<int>("live");
    QTest::addColumn<int>("captured");
    QTest::addColumn<int>("reference");
    QTest::newRow("liveViewPreviewIsOn") << 2 << 1 << 0;
    QTest::newRow("capturePreviewIsOn") << 0 << 2 << 1;
    QTest::newRow("referencePreviewIsOn") << 1 << 0 << 2;
}

void TestDisplayLayers::orderFollowsTheTabs()
{
    QFETCH(int, live);
    QFETCH(int, captured);
    QFETCH(int, reference);
    DisplayWindow film(2);
    film.frames().setDoubleDecker(true);
    film.global().setCamboxState(QTest::currentDataTag());
    QCOMPARE(film.layers("liveLayer.z").toInt(), live);
    QCOMPARE(film.layers("bigCapturedPicBox.z").toInt(), captured);
    QCOMPARE(film.layers("bigReferencePicBox.z").toInt(), reference);
    QVERIFY(film.waitForPictures());
    const QColor expected = reference == 2 ? DisplayWindow::referenceColor(0) : DisplayWindow::capturedColor(0);
    QVERIFY(DisplayWindow::near(film.colorAt(film.cameraBox(), {0.25, 0.25}), expected));
    QCOMPARE(film.sceneWarnings(), QStringList());
}

void TestDisplayLayers::look()
{
    const QString out = qEnvironmentVariable("LOOK");
    if (out.isEmpty())
        return;
    for (const QSize size : {QSize(1024, 600), QSize(1920, 1080)}) {
        for (const int font : {1, 8}) {
            for (const char *locale : {"en_US", "ru_RU"}) {
                auto options = DisplayWindow::options(size);
                options.settings.insert("fontsize", font);
                options.locale = locale;
                DisplayWindow film(6, options);
                film.frames().setCurrentIndex(2);
                film.global().setGridOn(true);
                film.global().setSafeAreaOn(true);
                film.global().setCropAreaOn(true);
                QTest::qWait(500);
                film.shot().save(QString("%1/capture-%2-%3-%4.png").arg(out).arg(size.width()).arg(font).arg(locale));
                film.global().setMainTabsState("timingUIisOn");
                QTest::qWait(500);
                film.shot().save(QString("%1/timing-%2-%3-%4.png").arg(out).arg(size.width()).arg(font).arg(locale));
                qDebug() << film.sceneWarnings();
            }
        }
    }
}

QTEST_MAIN(TestDisplayLayers)
#include "tst_displaylayers.moc"
