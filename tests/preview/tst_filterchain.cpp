// Each filter by itself against OpenCV's own calls, their order, and the arithmetic of keying.

#include "preview/ImLightEq.h"

#include <cmath>
#include <opencv2/imgproc.hpp>
#include <opencv2/photo.hpp>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// Colours of all kinds, of an odd width so that rows have padding in 24 bits.
QImage sample(int width = 61, int height = 40)
{
    QImage image(width, height, QImage::Format_ARGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgba(x * 4 % 256, y * 6 % 256, (x * 7 + y * 3) % 256, 255));
    return image;
}

cv::Mat bgrOf(const QImage &image)
{
    const QImage swapped = image.convertToFormat(QImage::Format_RGB888).rgbSwapped();
    return cv::Mat(swapped.height(), swapped.width(), CV_8UC3, const_cast<uchar *>(swapped.constBits()),
                   size_t(swapped.bytesPerLine()))
        .clone();
}

QImage imageOf(const cv::Mat &bgr)
{
    return QImage(bgr.data, bgr.cols, bgr.rows, qsizetype(bgr.step), QImage::Format_RGB888)
        .rgbSwapped()
        .convertToFormat(QImage::Format_ARGB32);
}

QImage evened(const QImage &image, double clip)
{
    cv::Mat lab;
    cv::cvtColor(bgrOf(image), lab, 44);
    std::vector<cv::Mat> planes;
    cv::split(lab, planes);
    const cv::Ptr<cv::CLAHE> clahe = cv::createCLAHE(40);
    clahe->setClipLimit(clip);
    clahe->apply(planes[0], planes[0]);
    cv::merge(planes, lab);
    cv::Mat result;
    cv::cvtColor(lab, result, 56);
    return imageOf(result);
}

QImage saturated(const QImage &image, int value)
{
    cv::Mat hsv;
    cv::cvtColor(bgrOf(image), hsv, 41);
    for (int y = 0; y < hsv.rows; ++y) {
        for (int x = 0; x < hsv.cols; ++x) {
            auto &pixel = hsv.at<cv::Vec3b>(y, x);
            pixel[1] = uchar(qBound(0, int(pixel[1] * (value / 100.0 + value / 100.0)), 255));
        }
    }
    cv::Mat result;
    cv::cvtColor(hsv, result, 55);
    return imageOf(result);
}

QImage smoothed(const QImage &image, double sigma)
{
    cv::Mat result;
    cv::bilateralFilter(bgrOf(image), result, 10, sigma, sigma);
    return imageOf(result);
}

QImage detailed(const QImage &image, float sigmaS, float sigmaR)
{
    cv::Mat result;
    cv::detailEnhance(bgrOf(image), result, sigmaS, sigmaR);
    return imageOf(result);
}

/// Alpha of one pixel, worked out in reals step by step as for a single pixel.
int alphaOf(QRgb pixel, QColor key, double similarity, double smoothness)
{
    const auto cb = [](int r, int g, int b) {
        return ((-173 * r - 339 * g + 511 + 512 * b) >> 10) + 128;
    };
    const auto cr = [](int r, int g, int b) {
        return ((512 * r - 429 * g - 83 * b + 511) >> 10) + 128;
    };
    const int b0 = qBlue(pixel);
    const int b1 = qGreen(pixel);
    const int b2 = qRed(pixel);
    const double dCb = cb(b0, b1, b2) - cb(key.red(), key.green(), key.blue());
    const double dCr = cr(b0, b1, b2) - cr(key.red(), key.green(), key.blue());
    const double d = std::sqrt((dCb * dCb + dCr * dCr) / 130050) / 9;
    if (!(smoothness > 0.0001))
        return d > similarity ? 255 : 0;
    const double t = (d - similarity) / smoothness;
    return t > 1 ? 255 : t <= 0 ? 0 : int(t * 255);
}

QImage plain(QColor color, QSize size = {16, 12})
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

class NoMemory : public cv::MatAllocator
{
public:
    cv::UMatData *allocate(int, const int *, int, void *, size_t *, cv::AccessFlag,
                           cv::UMatUsageFlags) const override
    {
        CV_Error(cv::Error::StsNoMem, "no memory");
    }
    bool allocate(cv::UMatData *, cv::AccessFlag, cv::UMatUsageFlags) const override
    {
        return false;
    }
    void deallocate(cv::UMatData *) const override
    {
    }
};

} // namespace

class TestFilterChain : public QObject
{
    Q_OBJECT

private slots:
    void contrastIsEvenedInLab_data();
    void contrastIsEvenedInLab();
    void contrastWithoutPictureIsLogged();
    void saturationOf50LeavesThePictureAlone();
    void saturationOf0IsGray();
    void saturationOf100Doubles();
    void saturationIsLimited();
    void unreadableSaturationCountsAs0();
    void saturationWithoutPictureIsLogged();
    void denoiseBelow10IsRaisedTo10();
    void denoiseIsLimitedTo100();
    void strengthScalesNoiseAndDetail();
    void enhanceIsRead_data();
    void enhanceIsRead();
    void unreadableValueLeavesItsFilterOut_data();
    void unreadableValueLeavesItsFilterOut();
    void filtersRunInTheirOrder();
    void keyChromaIsInIntegers();
    void sameColorIsNotStoredAgain();
    void keyingFollowsTheArithmetic_data();
    void keyingFollowsTheArithmetic();
    void keySwapsRedAndBlue();
    void keyWritesAlphaOnly();
    void keyOfSimilarity0IsIgnored();
    void keyTextThatIsNotAKeyIsIgnored_data();
    void keyTextThatIsNotAKeyIsIgnored();
    void drawpointsAloneLetTheBackgroundThrough();
    void backgroundNeedsKeyOrDrawpoints();
    void backgroundShowsThroughTheKey();
    void backgroundIsCentredAtItsScale();
    void backgroundTextThatIsNotOneIsIgnored_data();
    void backgroundTextThatIsNotOneIsIgnored();
    void unreadableScaleIs1();
    void missingBackgroundIsLoggedAndTheFrameStays();
    void changedBackgroundFileIsReadAnew();
    void instancesRunSideBySide();
    void failureOfAStepIsLoggedAndThePictureStays();

private:
    void writeBackground(const QImage &image, const QString &name = u"bg.png"_s)
    {
        QVERIFY(image.save(m_folder.filePath(name)));
    }
    QString folder() const
    {
        return m_folder.path() + '/';
    }

    QTemporaryDir m_folder;
};

void TestFilterChain::contrastIsEvenedInLab_data()
{
    QTest::addColumn<double>("setting");
    QTest::addColumn<double>("clip");
    QTest::newRow("1") << 1.0 << 0.1;
    QTest::newRow("20") << 20.0 << 2.0;
    QTest::newRow("40 is the upper limit") << 40.0 << 4.0;
    QTest::newRow("above") << 400.0 << 4.0;
    QTest::newRow("far below") << 0.0001 << 0.001;
}

void TestFilterChain::contrastIsEvenedInLab()
{
    QFETCH(double, setting);
    QFETCH(double, clip);
    const QImage image = sample(160, 120);
    const QImage result = ImLightEq().process(image, {{u"contrast"_s, setting}}, 1.0);
    QCOMPARE(result, evened(image, clip));
    QVERIFY(result != image);
}

void TestFilterChain::contrastWithoutPictureIsLogged()
{
    QTest::ignoreMessage(QtDebugMsg, "\"changeContrast: input image is NULL\"");
    QVERIFY(ImLightEq().changeContrast({}, 1).isNull());
}

void TestFilterChain::saturationOf50LeavesThePictureAlone()
{
    const QImage image = sample();
    QCOMPARE(ImLightEq().process(image, {{u"saturation"_s, 50}}, 1.0), image);
    // The way through the other colour space would have left its traces.
    QVERIFY(saturated(image, 50) != image);
}

void TestFilterChain::saturationOf0IsGray()
{
    const QImage result = ImLightEq().process(sample(), {{u"saturation"_s, 0}}, 1.0);
    QVERIFY(result.allGray());
    QCOMPARE(result, saturated(sample(), 0));
}

void TestFilterChain::saturationOf100Doubles()
{
    const QImage result = ImLightEq().process(plain(QColor(200, 150, 150)), {{u"saturation"_s, 100}}, 1.0);
    QCOMPARE(result.pixelColor(0, 0), QColor(200, 100, 100));
    QCOMPARE(ImLightEq().process(sample(), {{u"saturation"_s, 100}}, 1.0), saturated(sample(), 100));
    QCOMPARE(ImLightEq().process(sample(), {{u"saturation"_s, 73}}, 1.0), saturated(sample(), 73));
}

void TestFilterChain::saturationIsLimited()
{
    QCOMPARE(ImLightEq().saturate(sample(), 1000), saturated(sample(), 100));
    QCOMPARE(ImLightEq().saturate(sample(), -5), saturated(sample(), 0));
}

void TestFilterChain::unreadableSaturationCountsAs0()
{
    QVERIFY(ImLightEq().process(sample(), {{u"saturation"_s, u"much"_s}}, 1.0).allGray());
}

void TestFilterChain::saturationWithoutPictureIsLogged()
{
    QTest::ignoreMessage(QtDebugMsg, "saturate: input image is NULL");
    QVERIFY(ImLightEq().saturate({}, 1).isNull());
}

void TestFilterChain::denoiseBelow10IsRaisedTo10()
{
    const QImage result = ImLightEq().process(sample(), {{u"denoise"_s, 3}}, 1.0);
    QCOMPARE(result, smoothed(sample(), 10));
    QCOMPARE(ImLightEq().process(sample(), {{u"denoise"_s, 10}}, 1.0), result);
    QVERIFY(ImLightEq().process(sample(), {{u"denoise"_s, 30}}, 1.0) != result);
}

void TestFilterChain::denoiseIsLimitedTo100()
{
    QCOMPARE(ImLightEq().process(sample(), {{u"denoise"_s, 500}}, 1.0), smoothed(sample(), 100));
}

void TestFilterChain::strengthScalesNoiseAndDetail()
{
    QCOMPARE(ImLightEq().process(sample(), {{u"denoise"_s, 60}}, 0.5), smoothed(sample(), 30));
    QCOMPARE(ImLightEq().process(sample(), {{u"denoise"_s, 60}}, 0), sample());
    QCOMPARE(ImLightEq().process(sample(), {{u"enhance"_s, u"20;0.5"_s}}, 0.5),
             detailed(sample(), 10, 0.25F));
}

void TestFilterChain::enhanceIsRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QImage>("wanted");
    QTest::newRow("both") << u"10;0.15"_s << detailed(sample(), 10, 0.15F);
    QTest::newRow("empty parts dropped") << u";;10;;0.15"_s << detailed(sample(), 10, 0.15F);
    QTest::newRow("sigma S limited") << u"900;0.15"_s << detailed(sample(), 200, 0.15F);
    QTest::newRow("second part not a number") << u"10;x"_s << sample();
    QTest::newRow("one part") << u"10"_s << sample();
    QTest::newRow("nothing") << QString() << sample();
}

void TestFilterChain::enhanceIsRead()
{
    QFETCH(QString, text);
    QFETCH(QImage, wanted);
    QCOMPARE(ImLightEq().process(sample(), {{u"enhance"_s, text}}, 1.0), wanted);
}

void TestFilterChain::unreadableValueLeavesItsFilterOut_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    for (const char *key : {"contrast", "denoise"}) {
        QTest::addRow("%s text", key) << QString(key) << QVariant(u"much"_s);
        QTest::addRow("%s 0", key) << QString(key) << QVariant(0);
        QTest::addRow("%s negative", key) << QString(key) << QVariant(-3.5);
        QTest::addRow("%s not a number", key) << QString(key) << QVariant(qQNaN());
        QTest::addRow("%s empty", key) << QString(key) << QVariant();
    }
}

void TestFilterChain::unreadableValueLeavesItsFilterOut()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QCOMPARE(ImLightEq().process(sample(), {{key, value}}, 1.0), sample());
    // The others run.
    QCOMPARE(ImLightEq().process(sample(), {{key, value}, {u"saturation"_s, 20}}, 1.0),
             saturated(sample(), 20));
}

void TestFilterChain::filtersRunInTheirOrder()
{
    const QImage image = sample(80, 64);
    const QVariantMap settings{{u"contrast"_s, 20},
                               {u"saturation"_s, 90},
                               {u"denoise"_s, 40},
                               {u"enhance"_s, u"10;0.15"_s},
                               {u"chromakey"_s, u"60;40;#00ff01"_s}};
    const QImage colours = detailed(smoothed(saturated(evened(image, 2), 90), 40), 10, 0.15F);
    const QImage result = ImLightEq().process(image, settings, 1.0);
    QCOMPARE(result.convertToFormat(QImage::Format_RGB32), colours.convertToFormat(QImage::Format_RGB32));
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            QCOMPARE(qAlpha(result.pixel(x, y)),
                     alphaOf(colours.pixel(x, y), QColor("#00ff01"), 60 / 2500.0, 40 / 10000.0));
}

void TestFilterChain::keyChromaIsInIntegers()
{
    ImLightEq chain;
    chain.setColor(QColor(0, 255, 0));
    QCOMPARE(int(chain.keyCb()), 44);
    QCOMPARE(int(chain.keyCr()), 21);
    chain.setColor(QColor(255, 0, 0));
    QCOMPARE(int(chain.keyCb()), 85);
    QCOMPARE(int(chain.keyCr()), 255);
    chain.setColor(Qt::white);
    QCOMPARE(int(chain.keyCb()), 128);
    QCOMPARE(int(chain.keyCr()), 128);
}

void TestFilterChain::sameColorIsNotStoredAgain()
{
    ImLightEq chain;
    const QColor half(10, 20, 30, 128);
    chain.setColor(half);
    chain.setColor(half);
    QCOMPARE(chain.color(), half);
    chain.setColor(QColor(10, 20, 30));
    QCOMPARE(chain.color().alpha(), 255);
}

void TestFilterChain::keyingFollowsTheArithmetic_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<double>("similarity");
    QTest::addColumn<double>("smoothness");
    QTest::newRow("soft") << u"60"_s << u"100"_s << 60 / 2500.0 << 100 / 10000.0;
    QTest::newRow("hard") << u"60"_s << u"1"_s << 60 / 2500.0 << 1 / 10000.0;
    QTest::newRow("just soft") << u"60"_s << u"1.5"_s << 60 / 2500.0 << 1.5 / 10000.0;
    QTest::newRow("all the way") << u"1"_s << u"10000"_s << 1 / 2500.0 << 1.0;
    QTest::newRow("both limited") << u"1e9"_s << u"1e9"_s << 1.0 << 1.0;
}

void TestFilterChain::keyingFollowsTheArithmetic()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(double, similarity);
    QFETCH(double, smoothness);
    // Wider than what is worked out at a time.
    const QImage image = sample(1111, 23);
    for (const QColor &key : {QColor("#00ff01"), QColor("#7b53fe"), QColor(Qt::white), QColor("orange")}) {
        const QImage result = ImLightEq().process(
            image, {{u"chromakey"_s, QStringList{first, second, key.name()}.join(';')}}, 1.0);
        QCOMPARE(result.format(), QImage::Format_ARGB32);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                QCOMPARE(result.pixel(x, y),
                         (image.pixel(x, y) & 0xffffffU)
                             | QRgb(alphaOf(image.pixel(x, y), key, similarity, smoothness)) << 24);
    }
}

void TestFilterChain::keySwapsRedAndBlue()
{
    const QVariantMap redKey{{u"chromakey"_s, u"50;1;red"_s}};
    QCOMPARE(qAlpha(ImLightEq().process(plain(Qt::blue), redKey, 1.0).pixel(0, 0)), 0);
    QCOMPARE(qAlpha(ImLightEq().process(plain(Qt::red), redKey, 1.0).pixel(0, 0)), 255);
    const QVariantMap greenKey{{u"chromakey"_s, u"50;1;lime"_s}};
    QCOMPARE(qAlpha(ImLightEq().process(plain(Qt::green), greenKey, 1.0).pixel(0, 0)), 0);
}

void TestFilterChain::keyWritesAlphaOnly()
{
    const QImage result =
        ImLightEq().process(plain(QColor(0, 250, 3)), {{u"chromakey"_s, u"100;1;lime"_s}}, 1.0);
    QCOMPARE(result.pixel(0, 0), qRgba(0, 250, 3, 0));
}

void TestFilterChain::keyOfSimilarity0IsIgnored()
{
    const QImage green = plain(Qt::green);
    QCOMPARE(ImLightEq().process(green, {{u"chromakey"_s, u"0;50;lime"_s}}, 1.0), green);
    QCOMPARE(ImLightEq().process(green, {{u"chromakey"_s, u"50;0;lime"_s}}, 1.0), green);
}

void TestFilterChain::keyTextThatIsNotAKeyIsIgnored_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("two parts") << u"50;50"_s;
    QTest::newRow("four parts") << u"50;50;lime;1"_s;
    QTest::newRow("no numbers") << u"a;b;lime"_s;
    QTest::newRow("no colour") << u"50;50;grass"_s;
    QTest::newRow("not a number") << u"nan;50;lime"_s;
}

void TestFilterChain::keyTextThatIsNotAKeyIsIgnored()
{
    QFETCH(QString, text);
    QCOMPARE(ImLightEq().process(plain(Qt::green), {{u"chromakey"_s, text}}, 1.0), plain(Qt::green));
}

void TestFilterChain::drawpointsAloneLetTheBackgroundThrough()
{
    writeBackground(plain(Qt::blue));
    QImage frame = plain(Qt::green);
    frame.setPixelColor(3, 4, Qt::transparent);
    const QImage result = ImLightEq(folder()).process(
        frame, {{u"drawpoints"_s, 1}, {u"background"_s, u"true;1.0;bg.png;false"_s}}, 1.0);
    QCOMPARE(result.format(), QImage::Format_ARGB32);
    QCOMPARE(result.pixelColor(3, 4), QColor(Qt::blue));
    QCOMPARE(result.pixelColor(0, 0), QColor(Qt::green));
}

void TestFilterChain::backgroundNeedsKeyOrDrawpoints()
{
    writeBackground(plain(Qt::blue));
    QImage frame = plain(Qt::green);
    frame.setPixelColor(3, 4, Qt::transparent);
    QCOMPARE(ImLightEq(folder()).process(frame, {{u"background"_s, u"true;1.0;bg.png;false"_s}}, 1.0), frame);
}

void TestFilterChain::backgroundShowsThroughTheKey()
{
    writeBackground(plain(Qt::blue));
    QImage frame = plain(QColor(0, 255, 1));
    frame.setPixelColor(5, 5, Qt::red);
    ImLightEq chain(folder());
    const QVariantMap settings{{u"chromakey"_s, u"60;10;#00ff01"_s},
                               {u"background"_s, u"true;1;bg.png;false"_s}};
    for (int run = 0; run < 2; ++run) {
        const QImage result = chain.process(frame, settings, 1.0);
        QCOMPARE(result.pixelColor(0, 0), QColor(Qt::blue));
        QCOMPARE(result.pixelColor(5, 5), QColor(Qt::red));
    }
}

void TestFilterChain::backgroundIsCentredAtItsScale()
{
    writeBackground(plain(Qt::blue, {100, 50}));
    const QImage frame = plain(Qt::transparent, {200, 120});
    const QImage result = ImLightEq(folder()).process(
        frame, {{u"drawpoints"_s, 1}, {u"background"_s, u"true;0.5;bg.png;false"_s}}, 1.0);
    // 100 x 60 is the room, which leaves 100 x 50.
    const QRect wanted(50, 35, 100, 50);
    for (int y = 0; y < frame.height(); ++y)
        for (int x = 0; x < frame.width(); ++x)
            QCOMPARE(result.pixel(x, y), wanted.contains(x, y) ? qRgb(0, 0, 255) : qRgba(0, 0, 0, 0));
}

void TestFilterChain::backgroundTextThatIsNotOneIsIgnored_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("three parts") << u"true;1.0;bg.png"_s;
    QTest::newRow("five parts") << u"true;1.0;bg.png;false;"_s;
    QTest::newRow("off") << u"false;1.0;bg.png;false"_s;
    QTest::newRow("on in capitals") << u"TRUE;1.0;bg.png;false"_s;
    QTest::newRow("no name") << u"true;1.0;;false"_s;
    QTest::newRow("empty") << QString();
}

void TestFilterChain::backgroundTextThatIsNotOneIsIgnored()
{
    QFETCH(QString, text);
    writeBackground(plain(Qt::blue));
    const QImage frame = plain(Qt::transparent);
    QCOMPARE(ImLightEq(folder()).process(frame, {{u"drawpoints"_s, 1}, {u"background"_s, text}}, 1.0), frame);
}

void TestFilterChain::unreadableScaleIs1()
{
    writeBackground(plain(Qt::blue));
    const QImage frame = plain(Qt::transparent);
    for (const QString &text : {u"true;wide;bg.png;false"_s, u"true;;bg.png;"_s})
        QCOMPARE(ImLightEq(folder()).process(frame, {{u"drawpoints"_s, 1}, {u"background"_s, text}}, 1.0),
                 plain(Qt::blue));
}

void TestFilterChain::missingBackgroundIsLoggedAndTheFrameStays()
{
    const QString line = "Failed top load background image \"" + folder() + "none.png\"";
    QTest::ignoreMessage(QtDebugMsg, qPrintable(line));
    const QImage frame = plain(Qt::transparent);
    QCOMPARE(ImLightEq(folder()).process(
                 frame, {{u"drawpoints"_s, 1}, {u"background"_s, u"true;1.0;none.png;false"_s}}, 1.0),
             frame);
}

void TestFilterChain::changedBackgroundFileIsReadAnew()
{
    const QVariantMap settings{{u"drawpoints"_s, 1}, {u"background"_s, u"true;1.0;new.png;false"_s}};
    ImLightEq chain(folder());
    writeBackground(plain(Qt::blue), u"new.png"_s);
    QCOMPARE(chain.process(plain(Qt::transparent), settings, 1.0), plain(Qt::blue));
    writeBackground(plain(Qt::red, {160, 120}), u"new.png"_s);
    QCOMPARE(chain.process(plain(Qt::transparent), settings, 1.0), plain(Qt::red));
    QCOMPARE(chain.process(plain(Qt::transparent, {32, 24}), settings, 1.0), plain(Qt::red, {32, 24}));
}

void TestFilterChain::instancesRunSideBySide()
{
    const QVariantMap settings{{u"contrast"_s, 20},
                               {u"saturation"_s, 90},
                               {u"denoise"_s, 40},
                               {u"enhance"_s, u"10;0.15"_s},
                               {u"chromakey"_s, u"60;40;#00ff01"_s}};
    const QImage image = sample(120, 90);
    const QImage wanted = ImLightEq().process(image, settings, 1.0);
    std::vector<QImage> results(6);
    {
        std::vector<std::jthread> threads;
        for (QImage &result : results)
            threads.emplace_back([&] { result = ImLightEq().process(image, settings, 1.0); });
    }
    for (const QImage &result : results)
        QCOMPARE(result, wanted);
}

void TestFilterChain::failureOfAStepIsLoggedAndThePictureStays()
{
    NoMemory noMemory;
    cv::MatAllocator *usual = cv::Mat::getDefaultAllocator();
    for (const char *step : {"changeContrast", "saturate", "denoise", "enhance"})
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^" + QString(step) + ": .*no memory"));
    const QVariantMap settings{{u"contrast"_s, 20},
                               {u"saturation"_s, 90},
                               {u"denoise"_s, 40},
                               {u"enhance"_s, u"10;0.15"_s},
                               {u"chromakey"_s, u"60;40;#00ff01"_s}};
    cv::Mat::setDefaultAllocator(&noMemory);
    const QImage result = ImLightEq().process(sample(), settings, 1.0);
    cv::Mat::setDefaultAllocator(usual);
    // Keying needs none of OpenCV.
    QCOMPARE(result, ImLightEq().process(sample(), {{u"chromakey"_s, u"60;40;#00ff01"_s}}, 1.0));
}

QTEST_GUILESS_MAIN(TestFilterChain)
#include "tst_filterchain.moc"
