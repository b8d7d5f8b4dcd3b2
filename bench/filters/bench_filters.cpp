// What the chain of filters costs beside the calls of OpenCV and the conversions that it cannot do without,
// on a picture of the size that a preview shows.

#include "Figures.h"
#include "preview/ImLightEq.h"

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
void compare(const char *name, int runs, const QVariantMap &settings, Filter filter)
{
    const QImage image = picture();
    ImLightEq filters;
    const auto chain = [&] {
        return figures::timed([&] {
            if (filters.process(image, settings, 1.0).isNull())
                qFatal("%s gives no picture", name);
        });
    };
    const auto bare = [&] {
        return figures::timed([&] {
            if (argb(filter(bgr(image))).isNull())
                qFatal("no picture");
        });
    };
    figures::print(name, figures::inTurn(runs, chain, bare));
}

} // namespace

int main(int argc, char **argv)
{
    const int runs = figures::quick(argc, argv) ? 3 : 9;
    compare("contrast", runs, {{"contrast", 20}}, contrast);
    compare("saturation", runs, {{"saturation", 80}}, saturation);
    compare("denoise", runs, {{"denoise", 30}}, denoise);
    compare("enhance", runs, {{"enhance", "10;0.15"}}, enhance);
    compare("all-filters", runs,
            {{"contrast", 20}, {"saturation", 80}, {"denoise", 30}, {"enhance", "10;0.15"}}, all);
    return 0;
}
