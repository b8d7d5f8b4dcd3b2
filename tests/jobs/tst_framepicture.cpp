#include "SmallFilm.h"

#include "jobs/render/FramePicture.h"

#include <QFile>
#include <QTest>

class TestFramePicture : public QObject
{
    Q_OBJECT

private slots:
    void pictureComesAsItIs();
    void missingPictureIsSkipped();
    void damagedPictureIsSkipped();
    void croppedKeepsTheMiddle();
    void smallerPictureGetsTransparentMarginsAndAReport();
    void oneSpareLineIsNoMargin();
    void fitsByWidth();
    void fitsByHeight();
    void croppedThenResized();
    void mirroredFrame();
    void mirroringComesAfterTheFit();
    void filtersGetTheirScale_data();
    void filtersGetTheirScale();
    void filtersThatAreOffAreNotAsked();
    void filterThatLosesThePictureEndsTheMovie();
    void sizeThatCannotBeMade();
    void timecodeText_data();
    void timecodeText();
    void timecodeIsDrawnInTheLowestBand();
    void timecodeOnAPictureWithoutRoom();
};

namespace {

FramePicture make(const SmallFilm &film, int index = 0, int handled = 0, const FrameFilter &filter = {})
{
    return FramePictureMaker(film.input, filter).make(index, handled);
}

// Left half red, right half blue.
QImage twoHalves(const QSize &size)
{
    QImage picture(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            picture.setPixelColor(x, y, x < size.width() / 2 ? Qt::red : Qt::blue);
    }
    return picture;
}

} // namespace

void TestFramePicture::pictureComesAsItIs()
{
    const SmallFilm film({0, 1});
    const FramePicture picture = make(film, 1);
    QCOMPARE(picture.outcome, FramePicture::Outcome::Ready);
    QCOMPARE(picture.image.format(), QImage::Format_ARGB32);
    QCOMPARE(picture.image, markedPicture(SmallFilm::size, 1));
    QCOMPARE(picture.reports, QStringList());
}

void TestFramePicture::missingPictureIsSkipped()
{
    const SmallFilm film({0});
    QFile::remove(film.picturePath(0));
    const FramePicture picture = make(film);
    QCOMPARE(picture.outcome, FramePicture::Outcome::Skipped);
    QCOMPARE(picture.reports, QStringList("Cannot load " + film.picturePath(0) + ". Skipping image"));
}

void TestFramePicture::damagedPictureIsSkipped()
{
    const SmallFilm film({0});
    QFile file(film.picturePath(0));
    QVERIFY(file.open(QIODevice::ReadWrite));
    file.resize(40);
    QCOMPARE(make(film).outcome, FramePicture::Outcome::Skipped);
}

void TestFramePicture::croppedKeepsTheMiddle()
{
    SmallFilm film({0});
    QImage large(400, 400, QImage::Format_ARGB32);
    large.fill(Qt::green);
    for (int y = 0; y < 400; ++y)
        large.setPixelColor(39, y, Qt::red); // the last column that is cut off
    large.save(film.picturePath(0));
    const FramePicture picture = make(film);
    QCOMPARE(picture.image.size(), SmallFilm::size);
    QCOMPARE(picture.image.pixelColor(0, 100), QColor(Qt::green));
    QCOMPARE(picture.reports, QStringList());
}

void TestFramePicture::smallerPictureGetsTransparentMarginsAndAReport()
{
    const SmallFilm film({0});
    markedPicture({300, 200}, 3).save(film.picturePath(0));
    const FramePicture picture = make(film);
    QCOMPARE(picture.reports, QStringList("Image #0: Margins added (top: 40px, left: 10px)"));
    QCOMPARE(picture.image.pixel(5, 140), 0U);
    QCOMPARE(picture.image.pixel(160, 20), 0U);
    QCOMPARE(picture.image.pixelColor(10, 40), markColour(3));
    QCOMPARE(picture.image.pixelColor(309, 239), markColour(3));
    QCOMPARE(picture.image.pixel(310, 240), 0U);
}

void TestFramePicture::oneSpareLineIsNoMargin()
{
    QImage picture = markedPicture({319, 279}, 1);
    QCOMPARE(framepicture::addMargins(picture, SmallFilm::size, 7), QStringList());
    QCOMPARE(picture.size(), SmallFilm::size);
}

void TestFramePicture::fitsByWidth()
{
    SmallFilm film({0});
    film.input.policy = Zum::ExportPolicyFitByWidth;
    markedPicture({640, 720}, 2).save(film.picturePath(0));
    const FramePicture picture = make(film);
    QCOMPARE(picture.image.size(), SmallFilm::size);
    QCOMPARE(picture.image.pixelColor(160, 0), markColour(2));
    QCOMPARE(picture.reports, QStringList());
    markedPicture({640, 320}, 2).save(film.picturePath(0));
    QCOMPARE(make(film).reports, QStringList("Image #0: Margins added (top: 60px, left: 0px)"));
}

void TestFramePicture::fitsByHeight()
{
    SmallFilm film({0});
    film.input.policy = Zum::ExportPolicyFitByHeight;
    markedPicture({1280, 560}, 2).save(film.picturePath(0));
    QCOMPARE(make(film).image.size(), SmallFilm::size);
    QCOMPARE(make(film).reports, QStringList());
    markedPicture({280, 560}, 2).save(film.picturePath(0));
    QCOMPARE(make(film).reports, QStringList("Image #0: Margins added (top: 0px, left: 90px)"));
}

void TestFramePicture::croppedThenResized()
{
    SmallFilm film({0});
    film.input.policy = Zum::ExportPolicyCroppedAndResized;
    film.input.exportSize = QSize(640, 560);
    twoHalves({400, 280}).save(film.picturePath(0));
    const FramePicture picture = make(film);
    QCOMPARE(picture.image.size(), QSize(640, 560));
    QCOMPARE(picture.image.format(), QImage::Format_ARGB32);
    QCOMPARE(picture.image.pixelColor(310, 280), QColor(Qt::red));
    QCOMPARE(picture.image.pixelColor(330, 280), QColor(Qt::blue));
    QCOMPARE(picture.reports, QStringList());
}

void TestFramePicture::mirroredFrame()
{
    SmallFilm film({0});
    twoHalves(SmallFilm::size).save(film.picturePath(0));
    film.input.frames[0].mirrored = true;
    const QImage image = make(film).image;
    QCOMPARE(image.pixelColor(10, 100), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(310, 100), QColor(Qt::red));
}

void TestFramePicture::mirroringComesAfterTheFit()
{
    SmallFilm film({0});
    film.input.frames[0].mirrored = true;
    // Three columns spare: one on the left, two on the right, and then the other way round.
    markedPicture({317, 280}, 1).save(film.picturePath(0));
    const QImage image = make(film).image;
    QCOMPARE(qAlpha(image.pixel(1, 100)), 0);
    QCOMPARE(qAlpha(image.pixel(2, 100)), 255);
    QCOMPARE(qAlpha(image.pixel(318, 100)), 255);
    QCOMPARE(qAlpha(image.pixel(319, 100)), 0);
}

void TestFramePicture::filtersGetTheirScale_data()
{
    QTest::addColumn<int>("previewHeight");
    QTest::addColumn<double>("scale");
    QTest::newRow("no preview") << 0 << 1.0;
    QTest::newRow("larger preview") << 300 << 0.0;
    QTest::newRow("half") << 140 << 2.0;
    QTest::newRow("whole numbers only") << 100 << 2.0;
}

void TestFramePicture::filtersGetTheirScale()
{
    QFETCH(int, previewHeight);
    QFETCH(double, scale);
    SmallFilm film({0});
    film.input.postProcessing = Zum::NonRealtimeProcessing;
    film.input.postProcessSettings = {{"contrast", 3}};
    film.input.ramPreviewHeight = previewHeight;
    double asked = -1;
    const FramePicture picture =
        make(film, 0, 0, [&asked](const QImage &image, const QVariantMap &settings, double strength) {
            asked = strength;
            QImage changed = image;
            changed.fill(settings.value("contrast").toInt() == 3 ? Qt::cyan : Qt::black);
            return changed;
        });
    QCOMPARE(asked, scale);
    QCOMPARE(picture.image.pixelColor(5, 5), QColor(Qt::cyan));
}

void TestFramePicture::filtersThatAreOffAreNotAsked()
{
    SmallFilm film({0});
    film.input.postProcessing = Zum::NonRealtimeProcessing;
    const FrameFilter lose = [](const QImage &, const QVariantMap &, double) {
        return QImage();
    };
    QCOMPARE(make(film, 0, 0, lose).outcome, FramePicture::Outcome::Ready);
    film.input.postProcessing = Zum::NoProcessing;
    film.input.postProcessSettings = {{"contrast", 3}};
    QCOMPARE(make(film, 0, 0, lose).outcome, FramePicture::Outcome::Ready);
}

void TestFramePicture::filterThatLosesThePictureEndsTheMovie()
{
    SmallFilm film({0});
    film.input.postProcessing = Zum::RealtimeProcessing;
    film.input.postProcessSettings = {{"contrast", 3}};
    const FrameFilter lose = [](const QImage &, const QVariantMap &, double) {
        return QImage();
    };
    QCOMPARE(make(film, 0, 0, lose).outcome, FramePicture::Outcome::Lost);
}

void TestFramePicture::sizeThatCannotBeMade()
{
    QImage picture = markedPicture({10, 10}, 1);
    QCOMPARE(framepicture::addMargins(picture, {-5, 20}, 0),
             QStringList("Failed to create image of size -5x20"));
    QCOMPARE(picture, markedPicture({10, 10}, 1));
}

void TestFramePicture::timecodeText_data()
{
    QTest::addColumn<int>("handled");
    QTest::addColumn<double>("fps");
    QTest::addColumn<QString>("text");
    QTest::newRow("two seconds at 12") << 24 << 12.0 << "Scene: 12, Layer: 3  |  0000024  |  00.00.02 :00";
    QTest::newRow("48 frames at 24") << 48 << 24.0 << "Scene: 12, Layer: 3  |  0000048  |  00.00.02 :00";
    QTest::newRow("the first frame") << 0 << 25.0 << "Scene: 12, Layer: 3  |  0000000  |  00.00.00 :00";
    QTest::newRow("within a second") << 37 << 25.0 << "Scene: 12, Layer: 3  |  0000037  |  00.00.01 :12";
    QTest::newRow("a broken rate") << 30 << 12.5 << "Scene: 12, Layer: 3  |  0000030  |  00.00.02 :05";
    QTest::newRow("no rate") << 30 << 0.0 << "Scene: 12, Layer: 3  |  0000030  |  00.00.00 :30";
    QTest::newRow("an hour") << 90000 << 25.0 << "Scene: 12, Layer: 3  |  0090000  |  01.00.00 :00";
}

void TestFramePicture::timecodeText()
{
    QFETCH(int, handled);
    QFETCH(double, fps);
    QTEST(framepicture::timecodeText("12", "3", handled, fps), "text");
    QVERIFY(framepicture::timecodeText("1234567", "abcdefg", handled, fps)
                .startsWith("Scene: 12345, Layer: abcde  |"));
}

void TestFramePicture::timecodeIsDrawnInTheLowestBand()
{
    SmallFilm film({5});
    film.input.timecode = true;
    film.input.scene = "12";
    film.input.cropSize = QSize(640, 480);
    markedPicture({640, 480}, 5).save(film.picturePath(0));
    const QImage plain = markedPicture({640, 480}, 5);
    const QImage image = make(film, 0, 48).image;
    int firstChanged = -1;
    int black = 0;
    int white = 0;
    for (int y = 0; y < 480; ++y) {
        for (int x = 0; x < 640; ++x) {
            const QColor colour = image.pixelColor(x, y);
            if (colour != plain.pixelColor(x, y) && firstChanged < 0)
                firstChanged = y;
            black += colour == QColor(Qt::black) ? 1 : 0;
            white += colour == QColor(Qt::white) ? 1 : 0;
        }
    }
    QVERIFY2(firstChanged > 480 - 120 && firstChanged < 480 - 30, qPrintable(QString::number(firstChanged)));
    QVERIFY(black > 5000);
    QVERIFY(white > 100);
    QCOMPARE(image.pixelColor(0, 479), markColour(5));
}

void TestFramePicture::timecodeOnAPictureWithoutRoom()
{
    SmallFilm film({5});
    film.input.timecode = true;
    film.input.cropSize = QSize(16, 16);
    const FramePicture picture = make(film, 0, 48);
    QCOMPARE(picture.outcome, FramePicture::Outcome::Ready);
    QCOMPARE(picture.image.size(), QSize(16, 16));
}

QTEST_MAIN(TestFramePicture)
#include "tst_framepicture.moc"
