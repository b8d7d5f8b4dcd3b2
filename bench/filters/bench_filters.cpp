// What the chain of filters costs beside the calls of OpenCV and the conversions that it cannot do without:
// each "chain" has its "bare" of the same filter, on a picture of the size that a preview shows.

#include "preview/ImLightEq.h"

#include <benchmark/benchmark.h>
#include <opencv2/imgproc.hpp>
#include <opencv2/photo.hpp>
#include <QVariantMap>
#include <vector>

namespace {

QImage picture()
{
    QImage image(1280, 720, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb((x ^ y) % 256, (x * 3 + y) % 256, (x + y * 5) / 7 % 256));
    return image;
}

cv::Mat bgr(const QImage &image)
{
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    const cv::Mat pixels(argb.height(), argb.width(), CV_8UC4, const_cast<uchar *>(argb.constBits()),
                         size_t(argb.bytesPerLine()));
    cv::Mat mat;
    cv::cvtColor(pixels, mat, cv::COLOR_BGRA2BGR);
    return mat;
}

QImage argb(const cv::Mat &mat)
{
    QImage image(mat.cols, mat.rows, QImage::Format_ARGB32);
    cv::Mat pixels(mat.rows, mat.cols, CV_8UC4, image.bits(), size_t(image.bytesPerLine()));
    cv::cvtColor(mat, pixels, cv::COLOR_BGR2BGRA);
    return image;
}

cv::Mat contrast(const cv::Mat &mat)
{
    cv::Mat lab;
    cv::cvtColor(mat, lab, cv::COLOR_BGR2Lab);
    std::vector<cv::Mat> planes;
    cv::split(lab, planes);
    cv::createCLAHE(2)->apply(planes[0], planes[0]);
    cv::merge(planes, lab);
    cv::Mat result;
    cv::cvtColor(lab, result, cv::COLOR_Lab2BGR);
    return result;
}

cv::Mat saturation(const cv::Mat &mat)
{
    cv::Mat hsv;
    cv::cvtColor(mat, hsv, cv::COLOR_RGB2HSV);
    std::vector<cv::Mat> planes;
    cv::split(hsv, planes);
    planes[1] *= 1.6;
    cv::merge(planes, hsv);
    cv::Mat result;
    cv::cvtColor(hsv, result, cv::COLOR_HSV2RGB);
    return result;
}

cv::Mat denoise(const cv::Mat &mat)
{
    cv::Mat result;
    cv::bilateralFilter(mat, result, 10, 30, 30);
    return result;
}

cv::Mat enhance(const cv::Mat &mat)
{
    cv::Mat result;
    cv::detailEnhance(mat, result, 10, 0.15F);
    return result;
}

cv::Mat all(const cv::Mat &mat)
{
    return enhance(denoise(saturation(contrast(mat))));
}

template <typename Filter>
void bare(benchmark::State &state, Filter filter)
{
    const QImage image = picture();
    for (auto _ : state)
        benchmark::DoNotOptimize(argb(filter(bgr(image))));
}

void chain(benchmark::State &state, const QVariantMap &settings)
{
    const QImage image = picture();
    ImLightEq filters;
    for (auto _ : state)
        benchmark::DoNotOptimize(filters.process(image, settings, 1.0));
}

const QVariantMap contrastOnly{{"contrast", 20}};
const QVariantMap saturationOnly{{"saturation", 80}};
const QVariantMap denoiseOnly{{"denoise", 30}};
const QVariantMap enhanceOnly{{"enhance", "10;0.15"}};
const QVariantMap everything{{"contrast", 20}, {"saturation", 80}, {"denoise", 30}, {"enhance", "10;0.15"}};
const QVariantMap keyOnly{{"chromakey", "60;40;#00ff01"}};

#define COMPARED(name, settings, ...)                          \
    BENCHMARK_CAPTURE(bare, name, __VA_ARGS__)->UseRealTime(); \
    BENCHMARK_CAPTURE(chain, name, settings)->UseRealTime()

COMPARED(contrast, contrastOnly, contrast);
COMPARED(saturation, saturationOnly, saturation);
COMPARED(denoise, denoiseOnly, denoise);
COMPARED(enhance, enhanceOnly, enhance);
COMPARED(all, everything, all);
// Keying calls nothing of OpenCV; there is nothing beside it.
BENCHMARK_CAPTURE(chain, chromakey, keyOnly)->UseRealTime();

} // namespace

BENCHMARK_MAIN();
