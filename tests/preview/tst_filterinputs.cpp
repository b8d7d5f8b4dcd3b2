// Pictures of every size and format through the whole chain, settings that make no sense, and the
// conversions.

#include "preview/BackgroundLayer.h"
#include "preview/ImLightEq.h"
#include "preview/MatConversion.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

const QVariantMap everything{{u"contrast"_s, 20},
                             {u"saturation"_s, 80},
                             {u"denoise"_s, 30},
                             {u"enhance"_s, u"10;0.15"_s},
                             {u"chromakey"_s, u"50;50;lime"_s},
                             {u"background"_s, u"true;1.0;bg.png;false"_s}};

QImage sample(QSize size, int alpha = 255)
{
    QImage image(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgba(x * 5 % 256, y * 9 % 256, (x + y) * 3 % 256, alpha));
    return image;
}

QString randomText(QRandomGenerator &random)
{
    static const QStringList pieces{
        u";"_s,     u";"_s,     u"1"_s,      u"50"_s,         u"-3"_s,
        u"0.5"_s,   u"1e308"_s, u"-1e308"_s, u"1e-320"_s,     u"nan"_s,
        u"inf"_s,   u"-inf"_s,  u"true"_s,   u"false"_s,      u"lime"_s,
        u"#00f"_s,  u"#"_s,     u"bg.png"_s, u"../"_s,        u"99999999999999999999"_s,
        u" "_s,     u"\t"_s,    u"é漢"_s,    u"2147483647"_s, QString(QChar(0)),
        u"%1%s%n"_s};
    QString text;
    for (int count = random.bounded(8); count > 0; --count) {
        if (random.bounded(6) == 0)
            text += QChar(char16_t(random.bounded(0x10000)));
        else
            text += pieces.at(random.bounded(pieces.size()));
    }
    return text;
}

void dropLog(QtMsgType, const QMessageLogContext &, const QString &)
{
}

} // namespace

class TestFilterInputs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void emptyPictureComesBackAsItIs();
    void emptyMapGivesThePictureBackAsItIs();
    void unknownKeyOnlyConverts();
    void everySizeGoesThroughTheWholeChain_data();
    void everySizeGoesThroughTheWholeChain();
    void everyFormatIsFilteredAlike_data();
    void everyFormatIsFilteredAlike();
    void alphaOfTheInput();
    void inputStaysAsItWas();
    void conversionsKeepEveryColour();
    void conversionsRefuseWhatTheyDoNotKnow();
    void backgroundOfAnyScale_data();
    void backgroundOfAnyScale();
    void largeBackgroundIsDrawnAsIfMadeWhole();
    void flatBackgroundOfAnyShape_data();
    void flatBackgroundOfAnyShape();
    void randomTextsAreHarmless_data();
    void randomTextsAreHarmless();

private:
    QString folder() const
    {
        return m_folder.path() + '/';
    }

    QTemporaryDir m_folder;
};

void TestFilterInputs::initTestCase()
{
    QVERIFY(sample({40, 30}).save(m_folder.filePath("bg.png")));
}

void TestFilterInputs::emptyPictureComesBackAsItIs()
{
    QVERIFY(ImLightEq(folder()).process({}, everything, 1.0).isNull());
    QVERIFY(ImLightEq(folder()).process(QImage(0, 10, QImage::Format_RGB32), everything, 1.0).isNull());
}

void TestFilterInputs::emptyMapGivesThePictureBackAsItIs()
{
    const QImage image = sample({4, 4}).convertToFormat(QImage::Format_RGB16);
    const QImage result = ImLightEq().process(image, {}, 1.0);
    QCOMPARE(result.format(), QImage::Format_RGB16);
    QCOMPARE(result, image);
}

void TestFilterInputs::unknownKeyOnlyConverts()
{
    const QImage image = sample({4, 4}).convertToFormat(QImage::Format_RGB32);
    const QImage result = ImLightEq().process(image, {{u"sharpness"_s, 5}}, 1.0);
    QCOMPARE(result.format(), QImage::Format_ARGB32);
    QCOMPARE(result, sample({4, 4}));
}

void TestFilterInputs::everySizeGoesThroughTheWholeChain_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize size : {QSize(1, 1), QSize(1, 7), QSize(7, 1), QSize(3, 2), QSize(9, 9),
                             QSize(20000, 10), QSize(10, 20000)})
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
}

void TestFilterInputs::everySizeGoesThroughTheWholeChain()
{
    QFETCH(QSize, size);
    const QImage result = ImLightEq(folder()).process(sample(size), everything, 1.0);
    QCOMPARE(result.size(), size);
    QCOMPARE(result.format(), QImage::Format_ARGB32);
}

void TestFilterInputs::everyFormatIsFilteredAlike_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::newRow("RGB32") << QImage::Format_RGB32;
    QTest::newRow("ARGB32 premultiplied") << QImage::Format_ARGB32_Premultiplied;
    QTest::newRow("RGB888") << QImage::Format_RGB888;
    QTest::newRow("BGR888") << QImage::Format_BGR888;
    QTest::newRow("RGBA8888") << QImage::Format_RGBA8888;
    QTest::newRow("RGB16") << QImage::Format_RGB16;
    QTest::newRow("Grayscale8") << QImage::Format_Grayscale8;
    QTest::newRow("Grayscale16") << QImage::Format_Grayscale16;
    QTest::newRow("RGBX64") << QImage::Format_RGBX64;
    QTest::newRow("RGBA64") << QImage::Format_RGBA64;
    QTest::newRow("RGB30") << QImage::Format_RGB30;
    QTest::newRow("indexed") << QImage::Format_Indexed8;
    QTest::newRow("mono") << QImage::Format_Mono;
}

void TestFilterInputs::everyFormatIsFilteredAlike()
{
    QFETCH(QImage::Format, format);
    const QImage image = sample({50, 30}).convertToFormat(format);
    const QImage plain = image.convertToFormat(QImage::Format_ARGB32);
    QCOMPARE(ImLightEq(folder()).process(image, everything, 1.0),
             ImLightEq(folder()).process(plain, everything, 1.0));
    const ImLightEq chain;
    QCOMPARE(chain.changeContrast(image, 2), chain.changeContrast(plain, 2));
    QCOMPARE(chain.saturate(image, 70), chain.saturate(plain, 70));
    QCOMPARE(chain.denoise(image, 20), chain.denoise(plain, 20));
    QCOMPARE(chain.enhance(image, 10, 0.2), chain.enhance(plain, 10, 0.2));
}

void TestFilterInputs::alphaOfTheInput()
{
    const QImage clear = sample({10, 10}, 40);
    // The colours count as they are, and a filter that sees them makes them opaque.
    QCOMPARE(ImLightEq().process(clear, {{u"saturation"_s, 90}}, 1.0),
             ImLightEq().process(sample({10, 10}), {{u"saturation"_s, 90}}, 1.0));
    // Without one they stay.
    QCOMPARE(ImLightEq().process(clear, {{u"saturation"_s, 50}}, 1.0), clear);
}

void TestFilterInputs::inputStaysAsItWas()
{
    const QImage image = sample({20, 20});
    const QImage copy = image.copy();
    const QImage result = ImLightEq(folder()).process(image, everything, 1.0);
    QVERIFY(result != copy);
    QCOMPARE(image, copy);
}

void TestFilterInputs::conversionsKeepEveryColour()
{
    const QImage image = sample({13, 9});
    const cv::Mat bgr = morvane::bgrFrom(image);
    QCOMPARE(bgr.type(), CV_8UC3);
    QCOMPARE(QSize(bgr.cols, bgr.rows), image.size());
    const auto pixel = bgr.at<cv::Vec3b>(5, 7);
    QCOMPARE(QColor(pixel[2], pixel[1], pixel[0]), image.pixelColor(7, 5));
    QCOMPARE(morvane::imageFrom(bgr), image);
    QCOMPARE(morvane::imageFrom(morvane::bgrFrom(image.convertToFormat(QImage::Format_RGB888))), image);
    // A part of a matrix has rows that are further apart.
    QCOMPARE(morvane::imageFrom(bgr(cv::Rect(2, 3, 5, 4))), image.copy(2, 3, 5, 4));
}

void TestFilterInputs::conversionsRefuseWhatTheyDoNotKnow()
{
    QVERIFY(morvane::bgrFrom({}).empty());
    QVERIFY(morvane::imageFrom({}).isNull());
    QVERIFY(morvane::imageFrom(cv::Mat(2, 2, CV_8UC1)).isNull());
    QVERIFY(morvane::imageFrom(cv::Mat(2, 2, CV_16UC3)).isNull());
}

void TestFilterInputs::backgroundOfAnyScale_data()
{
    QTest::addColumn<double>("scale");
    for (const double scale : {0.0, -1.0, 1e-9, 0.001, 3.0, 100.0, 1e9, 1e300, qInf(), -qInf(), qQNaN()})
        QTest::addRow("%g", scale) << scale;
}

void TestFilterInputs::backgroundOfAnyScale()
{
    QFETCH(double, scale);
    BackgroundLayer layer;
    const QSize frame(640, 480);
    const BackgroundLayer::Result result = layer.read(folder() + "bg.png", frame, scale);
    QVERIFY(result.readable);
    const QImage composed = BackgroundLayer::compose(result.image, sample(frame, 128));
    QCOMPARE(composed.size(), frame);
    QCOMPARE(qAlpha(composed.pixel(320, 240)) == 255, scale >= 1);
}

void TestFilterInputs::largeBackgroundIsDrawnAsIfMadeWhole()
{
    QImage half(40, 30, QImage::Format_RGB32);
    half.fill(Qt::red);
    for (int y = 0; y < 30; ++y)
        for (int x = 20; x < 40; ++x)
            half.setPixelColor(x, y, Qt::blue);
    QVERIFY(half.save(m_folder.filePath("half.png")));
    BackgroundLayer layer;
    const QSize frame(800, 600);
    const QImage clear = sample(frame, 0);
    for (const double scale : {1.0, 11.0, 12.0, 20.0}) {
        const QImage seen =
            BackgroundLayer::compose(layer.read(folder() + "half.png", frame, scale).image, clear);
        QCOMPARE(seen.pixelColor(2, 300), QColor(Qt::red));
        QCOMPARE(seen.pixelColor(797, 300), QColor(Qt::blue));
    }
}

void TestFilterInputs::flatBackgroundOfAnyShape_data()
{
    QTest::addColumn<QSize>("shape");
    QTest::newRow("flat") << QSize(20000, 1);
    QTest::newRow("thin") << QSize(1, 20000);
    QTest::newRow("dot") << QSize(1, 1);
}

void TestFilterInputs::flatBackgroundOfAnyShape()
{
    QFETCH(QSize, shape);
    QVERIFY(sample(shape).save(m_folder.filePath("shape.png")));
    BackgroundLayer layer;
    const BackgroundLayer::Result result = layer.read(folder() + "shape.png", {1000, 1000}, 1.0);
    QVERIFY(result.readable);
    QVERIFY(result.image.width() <= 1000 && result.image.height() <= 1000);
}

void TestFilterInputs::randomTextsAreHarmless_data()
{
    QTest::addColumn<QString>("key");
    for (const char *key : {"chromakey", "enhance", "background", "contrast", "saturation", "denoise"})
        QTest::newRow(key) << QString(key);
}

void TestFilterInputs::randomTextsAreHarmless()
{
    QFETCH(QString, key);
    QRandomGenerator random(20240229);
    const QtMessageHandler usual = qInstallMessageHandler(dropLog);
    const QImage image = sample({12, 9});
    ImLightEq chain(folder());
    bool sizesAreRight = true;
    for (int i = 0; i < 1500; ++i) {
        const QImage result = chain.process(image, {{key, randomText(random)}, {u"drawpoints"_s, 1}}, 1.0);
        sizesAreRight = sizesAreRight && result.size() == image.size();
    }
    qInstallMessageHandler(usual);
    QVERIFY(sizesAreRight);
}

QTEST_GUILESS_MAIN(TestFilterInputs)
#include "tst_filterinputs.moc"
