#include "capture/FileCameras.h"
#include "capture/source/DemoWebcam.h"
#include "capture/source/ImageSequenceSource.h"
#include "capture/source/OpenCvSource.h"
#include "capture/source/VideoFileSource.h"
#include "support/FakeCapture.h"

#include <opencv2/imgproc.hpp>
#include <opencv2/videoio.hpp>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

namespace {

cv::Mat pictureOf(VideoSource &source)
{
    cv::Mat picture;
    return source.read(picture) ? picture : cv::Mat();
}

double difference(const cv::Mat &a, const cv::Mat &b)
{
    return cv::norm(a, b, cv::NORM_L1) / double(a.total());
}

/// How much a picture has of sharp edges.
double detail(const cv::Mat &picture)
{
    cv::Mat edges;
    cv::Laplacian(picture, edges, CV_16S);
    return cv::norm(edges, cv::NORM_L1) / double(picture.total());
}

} // namespace

class TestVideoSources : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void demoStandsStillUntilAShotIsTaken();
    void demoKeepsThirtyASecond();
    void demoOffersTwoSizes_data();
    void demoOffersTwoSizes();
    void demoPropertiesAreSeen_data();
    void demoPropertiesAreSeen();
    void demoFocusCountsWithoutAutofocus();
    void demoExposureCountsWithoutItsAutomatic();
    void demoHasNoOtherProperty();
    void demoCanBeToldToDeliverNothing();
    void demoCanVanishAndComeBack();
    void demoCanDeliverOtherSizesAndChannels();

    void sequenceFollowsTheNumbersAndStartsAnew();
    void sequenceOfOneImageStands();
    void sequencePassesOverWhatItCannotRead();
    void sequenceWithoutFilesDoesNotOpen();
    void movieRunsAtItsOwnRateAndStartsAnew();
    void movieThatIsNoneDoesNotOpen();
    void anIndexWithoutCameraDoesNotOpen();
    void withoutTheirModuleTheySayWhatIsWrong();
    void theSuffixTellsMoviesFromImages();

private:
    QString imageFile(const QString &name, const QColor &colour, const QSize &size = {8, 6})
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        const QString path = folder.filePath(name);
        image.save(path);
        return path;
    }
    QString movieFile(double rate, int frames);

    QTemporaryDir folder;
    std::shared_ptr<FakeCaptureClock> clock;
    std::shared_ptr<DemoWebcamControls> controls;
    std::unique_ptr<DemoWebcam> demo;
};

void TestVideoSources::init()
{
    clock = std::make_shared<FakeCaptureClock>();
    controls = std::make_shared<DemoWebcamControls>();
    demo = std::make_unique<DemoWebcam>(clock, controls);
    QVERIFY(demo->open());
}

QString TestVideoSources::movieFile(double rate, int frames)
{
    const QString path = folder.filePath("movie.avi");
    cv::VideoWriter writer;
    if (!writer.open(path.toStdString(), cv::CAP_OPENCV_MJPEG, cv::VideoWriter::fourcc('M', 'J', 'P', 'G'),
                     rate, {64, 48}))
        return QString();
    for (int i = 0; i < frames; ++i)
        writer.write(cv::Mat(48, 64, CV_8UC3, cv::Scalar(i * 60, 0, 0)));
    return path;
}

void TestVideoSources::demoStandsStillUntilAShotIsTaken()
{
    const cv::Mat first = pictureOf(*demo);
    QCOMPARE(first.type(), CV_8UC3);
    QCOMPARE(difference(first, pictureOf(*demo)), 0.0);
    demo->frameTaken();
    const cv::Mat second = pictureOf(*demo);
    const double step = difference(first, second);
    QVERIFY(step > 0.01 && step < 10);
    QCOMPARE(controls->taken(), 1);
    QCOMPARE(controls->delivered(), 3);
    for (int i = 1; i < DemoStage::posesPerRound; ++i)
        demo->frameTaken();
    QVERIFY(difference(first, pictureOf(*demo)) < step);
}

void TestVideoSources::demoKeepsThirtyASecond()
{
    for (int i = 0; i <= 60; ++i)
        pictureOf(*demo);
    QVERIFY(qAbs(clock->nowMs() - 2000) <= 40);
    // Who comes late gets a picture at once, and no picture that was missed.
    clock->wait(500);
    const qint64 waited = clock->waitedMs();
    pictureOf(*demo);
    QCOMPARE(clock->waitedMs(), waited);
    pictureOf(*demo);
    QCOMPARE(clock->waitedMs(), waited + 33);
}

void TestVideoSources::demoOffersTwoSizes_data()
{
    QTest::addColumn<QSize>("asked");
    QTest::addColumn<QSize>("given");
    QTest::newRow("HD 720p") << QSize(1280, 720) << QSize(1280, 720);
    QTest::newRow("Full HD 1080p") << QSize(1920, 1080) << QSize(1920, 1080);
    QTest::newRow("VGA") << QSize(640, 480) << QSize(1280, 720);
    QTest::newRow("4K") << QSize(4096, 2160) << QSize(1920, 1080);
    QTest::newRow("none") << QSize(-1, -1) << QSize(1280, 720);
}

void TestVideoSources::demoOffersTwoSizes()
{
    QFETCH(QSize, asked);
    QFETCH(QSize, given);
    demo->set(cv::CAP_PROP_FRAME_WIDTH, asked.width());
    demo->set(cv::CAP_PROP_FRAME_HEIGHT, asked.height());
    const cv::Mat picture = pictureOf(*demo);
    QCOMPARE(QSize(picture.cols, picture.rows), given);
    QCOMPARE(demo->get(cv::CAP_PROP_FRAME_WIDTH), double(given.width()));
    QCOMPARE(demo->get(cv::CAP_PROP_FRAME_HEIGHT), double(given.height()));
}

void TestVideoSources::demoPropertiesAreSeen_data()
{
    QTest::addColumn<int>("property");
    QTest::addColumn<double>("value");
    QTest::newRow("brightness") << int(cv::CAP_PROP_BRIGHTNESS) << 180.0;
    QTest::newRow("contrast") << int(cv::CAP_PROP_CONTRAST) << 10.0;
    QTest::newRow("saturation") << int(cv::CAP_PROP_SATURATION) << 0.0;
    QTest::newRow("hue") << int(cv::CAP_PROP_HUE) << 100.0;
    QTest::newRow("gain") << int(cv::CAP_PROP_GAIN) << 100.0;
    QTest::newRow("sharpness") << int(cv::CAP_PROP_SHARPNESS) << 200.0;
    QTest::newRow("zoom") << int(cv::CAP_PROP_ZOOM) << 50.0;
}

void TestVideoSources::demoPropertiesAreSeen()
{
    QFETCH(int, property);
    QFETCH(double, value);
    const cv::Mat plain = pictureOf(*demo);
    const double before = demo->get(property);
    QVERIFY(demo->set(property, value));
    QCOMPARE(demo->get(property), value);
    const cv::Mat changed = pictureOf(*demo);
    QVERIFY(difference(plain, changed) > 0.1);
    if (property == cv::CAP_PROP_BRIGHTNESS || property == cv::CAP_PROP_GAIN)
        QVERIFY(cv::mean(changed)[1] > cv::mean(plain)[1]);
    if (property == cv::CAP_PROP_SHARPNESS)
        QVERIFY(detail(changed) > detail(plain));
    QVERIFY(demo->set(property, 1000));
    QVERIFY(demo->get(property) <= 255);
    QVERIFY(demo->set(property, before));
    QCOMPARE(difference(plain, pictureOf(*demo)), 0.0);
}

void TestVideoSources::demoFocusCountsWithoutAutofocus()
{
    const cv::Mat plain = pictureOf(*demo);
    demo->set(cv::CAP_PROP_FOCUS, 40);
    QCOMPARE(difference(plain, pictureOf(*demo)), 0.0);
    demo->set(cv::CAP_PROP_AUTOFOCUS, 0);
    QVERIFY(detail(pictureOf(*demo)) < detail(plain) / 2);
    demo->set(cv::CAP_PROP_FOCUS, 20);
    QCOMPARE(difference(plain, pictureOf(*demo)), 0.0);
}

void TestVideoSources::demoExposureCountsWithoutItsAutomatic()
{
    const cv::Mat plain = pictureOf(*demo);
    demo->set(cv::CAP_PROP_EXPOSURE, 20);
    QCOMPARE(difference(plain, pictureOf(*demo)), 0.0);
    demo->set(cv::CAP_PROP_AUTO_EXPOSURE, 0);
    QVERIFY(cv::mean(pictureOf(*demo))[1] < cv::mean(plain)[1] / 2);
}

void TestVideoSources::demoHasNoOtherProperty()
{
    QVERIFY(!demo->set(cv::CAP_PROP_SETTINGS, 1));
    QVERIFY(demo->get(cv::CAP_PROP_SETTINGS) < 0);
}

void TestVideoSources::demoCanBeToldToDeliverNothing()
{
    controls->setDelivering(false);
    QVERIFY(pictureOf(*demo).empty());
    QVERIFY(demo->isOpened());
    controls->setDelivering(true);
    QVERIFY(!pictureOf(*demo).empty());
}

void TestVideoSources::demoCanVanishAndComeBack()
{
    controls->setPresent(false);
    QVERIFY(pictureOf(*demo).empty());
    demo->close();
    QVERIFY(!demo->open() && !demo->isOpened());
    controls->setPresent(true);
    QVERIFY(demo->open());
    QVERIFY(!pictureOf(*demo).empty());
}

void TestVideoSources::demoCanDeliverOtherSizesAndChannels()
{
    controls->setForcedSize({320, 200});
    QCOMPARE(pictureOf(*demo).size(), cv::Size(320, 200));
    controls->setChannels(1);
    QCOMPARE(pictureOf(*demo).type(), CV_8UC1);
    controls->setChannels(4);
    QCOMPARE(pictureOf(*demo).type(), CV_8UC4);
    controls->setChannels(3);
    controls->setForcedSize({});
    QCOMPARE(pictureOf(*demo).size(), cv::Size(1280, 720));
}

void TestVideoSources::sequenceFollowsTheNumbersAndStartsAnew()
{
    imageFile("walk_9.png", Qt::red);
    imageFile("walk_10.png", Qt::green);
    imageFile("walk_x.png", Qt::white);
    imageFile("talk_9.png", Qt::white);
    imageFile("walk_11.jpg", Qt::white);
    ImageSequenceSource source(folder.filePath("walk_10.png"), clock);
    QVERIFY(source.open());
    QList<cv::Vec3b> seen;
    for (int i = 0; i < 3; ++i)
        seen.append(pictureOf(source).at<cv::Vec3b>(0, 0));
    QCOMPARE(seen.at(0), cv::Vec3b(0, 0, 255));
    QCOMPARE(seen.at(1), cv::Vec3b(0, 255, 0));
    QCOMPARE(seen.at(2), seen.at(0));
    QCOMPARE(clock->nowMs(), 80);
    QCOMPARE(source.get(cv::CAP_PROP_FRAME_WIDTH), 8.0);
    QCOMPARE(source.get(cv::CAP_PROP_FRAME_HEIGHT), 6.0);
    QVERIFY(!source.set(cv::CAP_PROP_FRAME_WIDTH, 100) && source.get(cv::CAP_PROP_ZOOM) < 0);
    source.close();
    QVERIFY(!source.isOpened() && pictureOf(source).empty());
}

void TestVideoSources::sequenceOfOneImageStands()
{
    ImageSequenceSource source(imageFile("still.png", Qt::blue), clock);
    QVERIFY(source.open());
    QCOMPARE(pictureOf(source).at<cv::Vec3b>(0, 0), cv::Vec3b(255, 0, 0));
    QCOMPARE(pictureOf(source).at<cv::Vec3b>(0, 0), cv::Vec3b(255, 0, 0));
}

void TestVideoSources::sequencePassesOverWhatItCannotRead()
{
    imageFile("odd_1.png", Qt::red);
    QFile broken(folder.filePath("odd_2.png"));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("no image") > 0);
    broken.close();
    imageFile("odd_3.png", Qt::green, {10, 10});
    ImageSequenceSource source(folder.filePath("odd_1.png"), clock);
    QVERIFY(source.open());
    QCOMPARE(pictureOf(source).cols, 8);
    QCOMPARE(pictureOf(source).cols, 10);
    QVERIFY(QFile::remove(folder.filePath("odd_1.png")) && QFile::remove(folder.filePath("odd_3.png")));
    QVERIFY(pictureOf(source).empty());
}

void TestVideoSources::sequenceWithoutFilesDoesNotOpen()
{
    ImageSequenceSource source(folder.filePath("nothing_1.png"), clock);
    QVERIFY(!source.open());
}

void TestVideoSources::movieRunsAtItsOwnRateAndStartsAnew()
{
    const QString path = movieFile(10, 3);
    QVERIFY(!path.isEmpty());
    VideoFileSource source(path, clock);
    QVERIFY(source.open());
    QList<int> blues;
    for (int i = 0; i < 7; ++i)
        blues.append(pictureOf(source).at<cv::Vec3b>(20, 20)[0]);
    for (int i = 0; i < 7; ++i)
        QVERIFY2(qAbs(blues.at(i) - i % 3 * 60) < 12, qPrintable(QString::number(blues.at(i))));
    QCOMPARE(clock->nowMs(), 600);
    QCOMPARE(source.get(cv::CAP_PROP_FRAME_WIDTH), 64.0);
    QVERIFY(!source.set(cv::CAP_PROP_ZOOM, 3) && source.get(cv::CAP_PROP_ZOOM) < 0);
    source.close();
    QVERIFY(pictureOf(source).empty());
}

void TestVideoSources::movieThatIsNoneDoesNotOpen()
{
    VideoFileSource missing(folder.filePath("none.avi"), clock);
    QVERIFY(!missing.open() && pictureOf(missing).empty());
    QFile broken(folder.filePath("broken.avi"));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("no movie") > 0);
    broken.close();
    VideoFileSource source(broken.fileName(), clock);
    QVERIFY(!source.open());
}

void TestVideoSources::anIndexWithoutCameraDoesNotOpen()
{
    OpenCvSource source(287);
    QVERIFY(!source.open() && !source.isOpened());
    QVERIFY(pictureOf(source).empty());
    QVERIFY(!source.set(cv::CAP_PROP_ZOOM, 2));
    source.close();
}

void TestVideoSources::withoutTheirModuleTheySayWhatIsWrong()
{
    const QTemporaryDir empty;
    OpenCvSource camera(0, empty.path());
    QCOMPARE(camera.loadError(), QString());
    QVERIFY(!camera.open() && !camera.isOpened());
    QVERIFY2(camera.loadError().contains(empty.path()), qPrintable(camera.loadError()));
    QVERIFY(pictureOf(camera).empty());
    QVERIFY(!camera.set(cv::CAP_PROP_ZOOM, 2) && camera.get(cv::CAP_PROP_ZOOM) < 0);
    camera.close();

    VideoFileSource movie(folder.filePath("none.avi"), clock, empty.path());
    QVERIFY(!movie.open() && !movie.isOpened() && pictureOf(movie).empty());
    QVERIFY2(movie.loadError().contains(empty.path()), qPrintable(movie.loadError()));
    movie.close();

    VideoFileSource missing(folder.filePath("none.avi"), clock);
    QVERIFY(!missing.open());
    QCOMPARE(missing.loadError(), QString());
}

void TestVideoSources::theSuffixTellsMoviesFromImages()
{
    const auto image = FileCameras::makeSource(imageFile("still.png", Qt::blue), clock);
    QVERIFY(dynamic_cast<ImageSequenceSource *>(image.get()));
    const auto movie = FileCameras::makeSource("a.MP4", clock);
    QVERIFY(dynamic_cast<VideoFileSource *>(movie.get()));
}

QTEST_GUILESS_MAIN(TestVideoSources)
#include "tst_videosources.moc"
