#include "preview/PictureGeometry.h"

#include "preview/PictureRequest.h"

#include <algorithm>
#include <cmath>

namespace {

/// A side never becomes nothing, and never more than pictures may have.
int side(double pixels)
{
    constexpr double longest = 1 << 20;
    return int(std::clamp(std::round(pixels), 1.0, longest));
}

QSize scaledBy(QSize size, QSize box, int policy)
{
    const double byWidth = double(box.width()) / size.width();
    const double byHeight = double(box.height()) / size.height();
    switch (policy) {
        case Zum::ScaleByWidth:
            return {side(box.width()), side(size.height() * byWidth)};
        case Zum::ScaleByHeight:
            return {side(size.width() * byHeight), side(box.height())};
        default: {
            const QSize fitted = size.scaled(box, Qt::KeepAspectRatio);
            return {side(fitted.width()), side(fitted.height())};
        }
    }
}

} // namespace

PictureGeometry PictureGeometry::of(QSize source, QSize loaded, bool fromCopy, const PictureRequest &request)
{
    PictureGeometry geometry;
    if (loaded.isEmpty())
        return geometry;
    geometry.needsCopy =
        !fromCopy && (loaded.width() > largestCopy.width() || loaded.height() > largestCopy.height());
    geometry.reduced = geometry.needsCopy ? scaledBy(loaded, largestCopy, request.policy) : loaded;

    geometry.target = request.target;
    if (request.scale > 0)
        geometry.target = {side(source.width() * request.scale), side(source.height() * request.scale)};
    // Before the view has a size there is nothing to fit into.
    geometry.scaled = geometry.target.isEmpty() ? geometry.reduced
                                                : scaledBy(geometry.reduced, geometry.target, request.policy);

    const QSize scaled = geometry.scaled;
    const QSize limit = request.cropLimit;
    const int width = std::min(scaled.width(), limit.width());
    geometry.coefficient = double(width) / scaled.width();
    geometry.kept = QRect(QPoint(0, 0), scaled);
    geometry.tellsProportion = request.policy == Zum::ScaleToFit;
    if (geometry.tellsProportion) {
        const int height = std::min(scaled.height(), limit.height());
        geometry.kept = QRect(std::max(0, (scaled.width() - limit.width()) / 2),
                              std::max(0, (scaled.height() - limit.height()) / 2), width, height);
        geometry.proportion = width < 1 ? 1 : double(height) / width;
    }
    geometry.scale = request.scale;
    if (request.scale <= 0)
        geometry.scale = source.width() > 0 ? double(geometry.kept.width()) / source.width() : 1;
    return geometry;
}
