#include <chrono>
#include <cstdio>
#include <opencv2/imgproc.hpp>
#include <QByteArray>
#include <QImage>
#include <vector>

// bare_filters PICTURE RUNS: the milliseconds that OpenCV alone takes for contrast and denoise of one
// picture, with the settings of the program's own chain.
int main(int argc, char **argv)
{
    if (argc < 3)
        return 2;
    QImage image(QString::fromLocal8Bit(argv[1]));
    if (image.isNull())
        return 1;
    image.convertTo(QImage::Format_BGR888);
    const int runs = QByteArray(argv[2]).toInt();
    const cv::Mat picture(image.height(), image.width(), CV_8UC3, image.bits(),
                          static_cast<std::size_t>(image.bytesPerLine()));
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < runs; ++i) {
        cv::Mat lab;
        cv::cvtColor(picture, lab, cv::COLOR_BGR2Lab);
        std::vector<cv::Mat> planes;
        cv::split(lab, planes);
        cv::createCLAHE(2)->apply(planes[0], planes[0]);
        cv::merge(planes, lab);
        cv::Mat even;
        cv::cvtColor(lab, even, cv::COLOR_Lab2BGR);
        cv::Mat calm;
        cv::bilateralFilter(even, calm, 10, 30, 30);
    }
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    std::printf("%.2f\n", time.count() / runs);
    return 0;
}
