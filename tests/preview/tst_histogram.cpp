#include "preview/Histogram.h"
#include "shared/HistoCalc.h"

#include <algorithm>
#include <numeric>
#include <QSignalSpy>
#include <QtTest>

namespace {

QImage filled(QColor color, QSize size = {64, 48}, QImage::Format format = QImage::Format_RGB32)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    return image.convertToFormat(format, Qt::ThresholdDither | Qt::AvoidDither);
}

/// All of the pixels in one bin.
bool isAllIn(const QList<qreal> &list, int value)
{
    for (int i = 0; i < 256; ++i) {
        if (list.at(i) != (i == value ? 1.0 : 0.0))
            return false;
    }
    return list.size() == 257 && list.at(256) == 1.0;
}

} // namespace

/// Counting and drawing the values of a picture.
class TestHistogram : public QObject
{
    Q_OBJECT

private slots:
    void blackPictureHasAllMassInBin0();
    void channelsAreCountedByThemselves();
    void luminanceIsWeighedInEighths();
    void sharesAddUpAndTheLastIsTheLargest();
    void pictureWithoutAreaIsLoggedAndGivesNothing();
    void everySizeIsCounted_data();
    void everySizeIsCounted();
    void everyFormatIsCounted_data();
    void everyFormatIsCounted();
    void maxCoeffIsLimited_data();
    void maxCoeffIsLimited();
    void dataIsWrittenOnlyWhileRunning();
    void startsAsPublished();
    void barsAreMeasuredByTheLastValue();
    void smallerCoefficientMakesHigherBars();
    void nothingToDraw_data();
    void nothingToDraw();
};

void TestHistogram::blackPictureHasAllMassInBin0()
{
    const HistoCalc::Channels channels = HistoCalc::calculate(filled(Qt::black));
    for (const QList<qreal> &list : {channels.y, channels.r, channels.g, channels.b})
        QVERIFY(isAllIn(list, 0));
}

void TestHistogram::channelsAreCountedByThemselves()
{
    const HistoCalc::Channels channels = HistoCalc::calculate(filled(QColor(10, 20, 30)));
    QVERIFY(isAllIn(channels.r, 10));
    QVERIFY(isAllIn(channels.g, 20));
    QVERIFY(isAllIn(channels.b, 30));
}

void TestHistogram::luminanceIsWeighedInEighths()
{
    QVERIFY(isAllIn(HistoCalc::calculate(filled(QColor(10, 20, 30))).y, (3 * 10 + 30 + 4 * 20) >> 3));
    QVERIFY(isAllIn(HistoCalc::calculate(filled(Qt::red)).y, 95));
    QVERIFY(isAllIn(HistoCalc::calculate(filled(Qt::white)).y, 255));
}

void TestHistogram::sharesAddUpAndTheLastIsTheLargest()
{
    QImage image(300, 300, QImage::Format_RGB32);
    image.fill(Qt::white);
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 75; ++x)
            image.setPixelColor(x, y, QColor(7, 7, 7));
    const HistoCalc::Channels channels = HistoCalc::calculate(image);
    for (const QList<qreal> &list : {channels.y, channels.r, channels.g, channels.b}) {
        QCOMPARE(list.size(), 257);
        QCOMPARE(list.at(7), 0.25);
        QCOMPARE(list.at(255), 0.75);
        QCOMPARE(list.at(256), 0.75);
        QCOMPARE(std::accumulate(list.begin(), list.end() - 1, 0.0), 1.0);
    }
}

void TestHistogram::pictureWithoutAreaIsLoggedAndGivesNothing()
{
    QTest::ignoreMessage(QtDebugMsg, "HistoCalc: No input image for histogram");
    QCOMPARE(HistoCalc::calculate({}), HistoCalc::Channels());
    QTest::ignoreMessage(QtDebugMsg, "HistoCalc: No input image for histogram");
    QCOMPARE(HistoCalc::calculate(QImage(0, 5, QImage::Format_RGB32)), HistoCalc::Channels());
}

void TestHistogram::everySizeIsCounted_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize size : {QSize(1, 1), QSize(20000, 10), QSize(1, 5000), QSize(6000, 4000)})
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
}

void TestHistogram::everySizeIsCounted()
{
    QFETCH(QSize, size);
    QVERIFY(isAllIn(HistoCalc::calculate(filled(QColor(1, 2, 3), size)).b, 3));
}

void TestHistogram::everyFormatIsCounted_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::newRow("gray") << QImage::Format_Grayscale8;
    QTest::newRow("premultiplied") << QImage::Format_ARGB32_Premultiplied;
    QTest::newRow("24 bits") << QImage::Format_RGB888;
    QTest::newRow("indexed") << QImage::Format_Indexed8;
    QTest::newRow("64 bits") << QImage::Format_RGBA64;
}

void TestHistogram::everyFormatIsCounted()
{
    QFETCH(QImage::Format, format);
    const QImage image = filled(QColor(99, 99, 99), {64, 48}, format);
    const int value = image.pixelColor(0, 0).red();
    QVERIFY(qAbs(value - 99) <= 3);
    QVERIFY(isAllIn(HistoCalc::calculate(image).r, value));
}

void TestHistogram::maxCoeffIsLimited_data()
{
    QTest::addColumn<qreal>("written");
    QTest::addColumn<qreal>("stored");
    QTest::newRow("2 is stored as 1") << 2.0 << 1.0;
    QTest::newRow("0 is stored as 0.05") << 0.0 << 0.05;
    QTest::newRow("0.4") << 0.4 << 0.4;
    QTest::newRow("below 0") << -1.0 << 0.05;
    QTest::newRow("not a number changes nothing") << qQNaN() << 0.7;
}

void TestHistogram::maxCoeffIsLimited()
{
    QFETCH(qreal, written);
    QFETCH(qreal, stored);
    Histogram histogram;
    histogram.setMaxCoeff(0.7);
    histogram.setMaxCoeff(written);
    QCOMPARE(histogram.maxCoeff(), stored);
}

void TestHistogram::dataIsWrittenOnlyWhileRunning()
{
    Histogram histogram;
    QSignalSpy changes(&histogram, &Histogram::histogramDataChanged);
    histogram.setHistogramData({1, 2});
    QVERIFY(histogram.histogramData().isEmpty());
    histogram.setRunning(true);
    histogram.setHistogramData({1, 2});
    QCOMPARE(histogram.histogramData(), QList<qreal>({1, 2}));
    histogram.setRunning(false);
    histogram.setHistogramData({3, 4});
    QCOMPARE(histogram.histogramData(), QList<qreal>({1, 2}));
    QCOMPARE(changes.count(), 1);
}

void TestHistogram::startsAsPublished()
{
    const Histogram histogram;
    QCOMPARE(histogram.bodyColor(), QColor("#99ff5544"));
    QCOMPARE(histogram.maxCoeff(), 1.0);
    QCOMPARE(histogram.running(), false);
    QCOMPARE(histogram.metaObject()->indexOfProperty("histogramData") >= 0, true);
}

void TestHistogram::barsAreMeasuredByTheLastValue()
{
    Histogram histogram;
    histogram.setRunning(true);
    histogram.setHistogramData({0, 0.25, 0.5, 0.5});
    QCOMPARE(histogram.barHeights(80), QList<qreal>({0, 40, 80}));
}

void TestHistogram::smallerCoefficientMakesHigherBars()
{
    Histogram histogram;
    histogram.setRunning(true);
    histogram.setHistogramData({0.25, 0.5, 0.5});
    histogram.setMaxCoeff(0.5);
    QCOMPARE(histogram.barHeights(80), QList<qreal>({80, 160}));
}

void TestHistogram::nothingToDraw_data()
{
    QTest::addColumn<QList<qreal>>("data");
    QTest::newRow("empty") << QList<qreal>();
    QTest::newRow("one value") << QList<qreal>{1};
    QTest::newRow("no peak") << QList<qreal>{1, 1, 0};
    QTest::newRow("negative peak") << QList<qreal>{1, 1, -1};
    QTest::newRow("peak is not a number") << QList<qreal>{1, 1, qQNaN()};
}

void TestHistogram::nothingToDraw()
{
    QFETCH(QList<qreal>, data);
    Histogram histogram;
    histogram.setRunning(true);
    histogram.setHistogramData(data);
    QVERIFY(histogram.barHeights(80).isEmpty());
    histogram.setHistogramData({1, 1});
    QVERIFY(!histogram.barHeights(80).isEmpty());
    histogram.setRunning(false);
    QVERIFY(histogram.barHeights(80).isEmpty());
}

QTEST_MAIN(TestHistogram)
#include "tst_histogram.moc"
