#pragma once

#include <opencv2/core/mat.hpp>
#include <QImage>

/// Between the program's pictures and OpenCV's. In any thread.
namespace morvane {

/// The pixels of a picture in Format_ARGB32 or Format_RGB32 as 8UC4 in BGRA order, without a copy: good for
/// as long as the picture lives and keeps its pixels. OpenCV has no matrix of constants: one made of a
/// constant picture is for reading.
cv::Mat pixelsOf(QImage &image);
cv::Mat pixelsOf(const QImage &image);

/// A copy of the colours as 8UC3 in BGR order. Alpha is dropped, not blended. Empty for a null picture.
cv::Mat bgrFrom(const QImage &image);

/// An opaque picture of its own in Format_ARGB32. Null unless the matrix is 8UC3.
QImage imageFrom(const cv::Mat &bgr);

} // namespace morvane
