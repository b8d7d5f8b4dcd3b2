#include "paths/MPathPoint.h"

#include <algorithm>
#include <cmath>

namespace morvane {

bool isPathCoordinate(double value)
{
    return std::isfinite(value) && std::abs(value) <= maxPathCoordinate;
}

double boundedPathCoordinate(double value)
{
    if (std::isnan(value))
        return 0.0;
    return std::clamp(value, -maxPathCoordinate, maxPathCoordinate);
}

} // namespace morvane

bool MPathPoint::isType(int number)
{
    return number >= Move && number <= Quadratic;
}

MPathPoint MPathPoint::plain(int type, QPointF point)
{
    MPathPoint node;
    node.type = type;
    node.V1 = point.x();
    node.V2 = point.y();
    node.refreshEnd();
    return node;
}

MPathPoint MPathPoint::cubic(QPointF firstControl, QPointF secondControl, QPointF end)
{
    MPathPoint node;
    node.type = Cubic;
    node.V1 = firstControl.x();
    node.V2 = firstControl.y();
    node.V3 = secondControl.x();
    node.V4 = secondControl.y();
    node.V5 = end.x();
    node.V6 = end.y();
    node.refreshEnd();
    return node;
}

MPathPoint MPathPoint::quadratic(QPointF control, QPointF end)
{
    MPathPoint node;
    node.type = Quadratic;
    node.V1 = control.x();
    node.V2 = control.y();
    node.V3 = end.x();
    node.V4 = end.y();
    node.refreshEnd();
    return node;
}

QPointF MPathPoint::end() const
{
    switch (type) {
        case Cubic:
            return {V5, V6};
        case Quadratic:
            return {V3, V4};
        default:
            return {V1, V2};
    }
}

void MPathPoint::setEnd(QPointF point)
{
    switch (type) {
        case Cubic:
            V5 = point.x();
            V6 = point.y();
            break;
        case Quadratic:
            V3 = point.x();
            V4 = point.y();
            break;
        default:
            V1 = point.x();
            V2 = point.y();
            break;
    }
    refreshEnd();
}

void MPathPoint::refreshEnd()
{
    IX = end().x();
    IY = end().y();
}

QList<QPointF> MPathPoint::controls() const
{
    switch (type) {
        case Cubic:
            return {QPointF(V1, V2), QPointF(V3, V4)};
        case Quadratic:
            return {QPointF(V1, V2)};
        default:
            return {};
    }
}

MPathPoint MPathPoint::converted(int newType, QPointF previousEnd) const
{
    const QPointF point = end();
    const QPointF way = point - previousEnd;
    MPathPoint node;
    switch (newType) {
        case Cubic:
            node = cubic(previousEnd + way / 3.0, previousEnd + way * 2.0 / 3.0, point);
            break;
        case Quadratic:
            node = quadratic(previousEnd + way / 2.0, point);
            break;
        default:
            node = plain(newType, point);
            break;
    }
    node.Ingroup = Ingroup;
    node.GUID = GUID;
    node.Store = Store;
    return node;
}

template <typename Function>
void MPathPoint::mapPoints(Function function)
{
    const auto map = [&function](double &x, double &y) {
        const QPointF moved = function(QPointF(x, y));
        x = morvane::boundedPathCoordinate(moved.x());
        y = morvane::boundedPathCoordinate(moved.y());
    };
    map(V1, V2);
    if (isCurve())
        map(V3, V4);
    if (type == Cubic)
        map(V5, V6);
    refreshEnd();
}

void MPathPoint::translate(QPointF offset)
{
    mapPoints([offset](QPointF point) { return point + offset; });
}

void MPathPoint::scale(double scaleX, double scaleY, QPointF about)
{
    mapPoints([=](QPointF point) {
        return QPointF(about.x() + (point.x() - about.x()) * scaleX,
                       about.y() + (point.y() - about.y()) * scaleY);
    });
}

bool MPathPoint::sameGeometry(const MPathPoint &other) const
{
    return type == other.type && V1 == other.V1 && V2 == other.V2 && V3 == other.V3 && V4 == other.V4
           && V5 == other.V5 && V6 == other.V6;
}
