#include "jobs/encoder/PictureConversion.h"

#include <cmath>
#include <QTest>
#include <random>

namespace {

QImage smooth(const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y,
                           qRgba(x * 255 / size.width(), y * 255 / size.height(), 255 - x / 2, x % 256));
    }
    return image;
}

QImage noise(const QSize &size)
{
    std::mt19937 random(7);
    QImage image(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, random());
    }
    return image;
}

ffmpeg::FramePointer frameOf(const QSize &size, AVPixelFormat format)
{
    ffmpeg::FramePointer frame(av_frame_alloc());
    frame->format = format;
    frame->width = size.width();
    frame->height = size.height();
    return av_frame_get_buffer(frame.get(), 0) < 0 ? nullptr : std::move(frame);
}

// The definition, in real numbers.
double wanted(const QColor &colour, int plane)
{
    const double r = colour.red();
    const double g = colour.green();
    const double b = colour.blue();
    switch (plane) {
        case 0:
            return 16 + (0.299 * r + 0.587 * g + 0.114 * b) * 219 / 255;
        case 1:
            return 128 + (b - (0.299 * r + 0.587 * g + 0.114 * b)) / 1.772 * 224 / 255;
        default:
            return 128 + (r - (0.299 * r + 0.587 * g + 0.114 * b)) / 1.402 * 224 / 255;
    }
}

} // namespace

class TestPictureConversion : public QObject
{
    Q_OBJECT

private slots:
    void coloursAreThoseOfTheStandard();
    void everyWidthGivesTheSamePixels();
    void nearToTheGeneralConversion();
    void transparencyIsKept();
    void otherFormatsGoTheGeneralWay();
};

void TestPictureConversion::coloursAreThoseOfTheStandard()
{
    const QSize size(16, 2);
    for (const QColor &colour : {QColor(0, 0, 0), QColor(255, 255, 255), QColor(255, 0, 0), QColor(0, 255, 0),
                                 QColor(0, 0, 255), QColor(128, 128, 128), QColor(12, 200, 77)}) {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(colour);
        PictureConversion conversion;
        QVERIFY(conversion.prepare(size, AV_PIX_FMT_YUV420P));
        const ffmpeg::FramePointer frame = frameOf(size, AV_PIX_FMT_YUV420P);
        QCOMPARE(conversion.convert(image, *frame), 0);
        for (int plane = 0; plane < 3; ++plane) {
            for (int x = 0; x < (plane == 0 ? 16 : 8); ++x)
                QVERIFY2(std::abs(frame->data[plane][x] - wanted(colour, plane)) <= 0.6,
                         qPrintable(colour.name()));
        }
    }
}

// Eight pixels at once, and what is left over one by one, must be the same arithmetic.
void TestPictureConversion::everyWidthGivesTheSamePixels()
{
    const QImage image = noise({64, 2});
    uint8_t whole[6][64]{};
    const auto convert = [](const QImage &source, int from, int width, uint8_t(&planes)[6][64]) {
        pictureconversion::RowPair rows;
        rows.upper = reinterpret_cast<const uint32_t *>(source.constScanLine(0)) + from;
        rows.lower = reinterpret_cast<const uint32_t *>(source.constScanLine(1)) + from;
        rows.y[0] = planes[0] + from;
        rows.y[1] = planes[1] + from;
        rows.alpha[0] = planes[2] + from;
        rows.alpha[1] = planes[3] + from;
        rows.u = planes[4] + from / 2;
        rows.v = planes[5] + from / 2;
        pictureconversion::toLimitedRange(rows, width);
    };
    convert(image, 0, 64, whole);
    for (const int step : {2, 4, 6, 10, 14}) {
        uint8_t parts[6][64]{};
        for (int from = 0; from < 64; from += step)
            convert(image, from, std::min(step, 64 - from), parts);
        QVERIFY2(std::equal(&whole[0][0], &whole[0][0] + sizeof(whole), &parts[0][0]),
                 qPrintable(QString::number(step)));
    }
}

void TestPictureConversion::nearToTheGeneralConversion()
{
    const QSize size(200, 120);
    const QImage image = smooth(size);
    PictureConversion conversion;
    QVERIFY(conversion.prepare(size, AV_PIX_FMT_YUV420P));
    const ffmpeg::FramePointer direct = frameOf(size, AV_PIX_FMT_YUV420P);
    QCOMPARE(conversion.convert(image, *direct), 0);
    const ffmpeg::FramePointer general = frameOf(size, AV_PIX_FMT_YUV420P);
    const ffmpeg::Scaler scaler(sws_getContext(200, 120, AV_PIX_FMT_BGRA, 200, 120, AV_PIX_FMT_YUV420P,
                                               SWS_BICUBIC, nullptr, nullptr, nullptr));
    const uint8_t *const rows[] = {image.constBits()};
    const int strides[] = {static_cast<int>(image.bytesPerLine())};
    sws_scale(scaler.get(), rows, strides, 0, 120, general->data, general->linesize);
    for (int plane = 0; plane < 3; ++plane) {
        const int half = plane == 0 ? 1 : 2;
        for (int y = 0; y < 120 / half; ++y) {
            for (int x = 0; x < 200 / half; ++x) {
                const int a = direct->data[plane][y * direct->linesize[plane] + x];
                const int b = general->data[plane][y * general->linesize[plane] + x];
                QVERIFY2(std::abs(a - b) <= 2, qPrintable(QString("%1 %2 %3").arg(plane).arg(x).arg(y)));
            }
        }
    }
}

void TestPictureConversion::transparencyIsKept()
{
    const QSize size(30, 4);
    const QImage image = noise(size);
    PictureConversion conversion;
    QVERIFY(conversion.prepare(size, AV_PIX_FMT_YUVA420P));
    const ffmpeg::FramePointer frame = frameOf(size, AV_PIX_FMT_YUVA420P);
    QCOMPARE(conversion.convert(image, *frame), 0);
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 30; ++x)
            QCOMPARE(int(frame->data[3][y * frame->linesize[3] + x]), qAlpha(image.pixel(x, y)));
    }
}

void TestPictureConversion::otherFormatsGoTheGeneralWay()
{
    const QSize size(16, 16);
    for (const AVPixelFormat format : {AV_PIX_FMT_RGB24, AV_PIX_FMT_BGRA, AV_PIX_FMT_YUVJ420P}) {
        PictureConversion conversion;
        QVERIFY(!conversion.isReady());
        QVERIFY(conversion.prepare(size, format));
        QVERIFY(conversion.isReady());
        const ffmpeg::FramePointer frame = frameOf(size, format);
        QCOMPARE(conversion.convert(smooth(size), *frame), 0);
    }
}

QTEST_GUILESS_MAIN(TestPictureConversion)
#include "tst_pictureconversion.moc"
