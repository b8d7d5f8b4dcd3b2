#pragma once

#include <QList>
#include <QMetaType>
#include <QObject>
#include <QPointF>

/// Limits that hold for every path in the program, whatever it comes from.
namespace morvane {

inline constexpr int maxPathNodes = 100000;
/// Coordinates are finite and lie within plus and minus this, in canvas units.
inline constexpr double maxPathCoordinate = 1.0e7;

/// Whether a coordinate may be stored: a finite number within the limit.
bool isPathCoordinate(double value);

/// The nearest value that may be stored; 0 for a value that is not a number.
double boundedPathCoordinate(double value);

} // namespace morvane

/// One node of a vector path: a drawing command with its handles. A plain value, in canvas units.
///
/// V1 to V6 by type. Move and line: (V1, V2) is the point. Quadratic: (V1, V2) control, (V3, V4) end.
/// Cubic: (V1, V2) first control, (V3, V4) second control, (V5, V6) end. (IX, IY) repeats the end point and
/// is renewed by every member function that writes; whoever writes a field directly calls refreshEnd().
class MPathPoint
{
    Q_GADGET
    Q_PROPERTY(bool Ingroup MEMBER Ingroup)
    Q_PROPERTY(int type MEMBER type)
    Q_PROPERTY(int GUID MEMBER GUID)
    Q_PROPERTY(double V1 MEMBER V1)
    Q_PROPERTY(double V2 MEMBER V2)
    Q_PROPERTY(double V3 MEMBER V3)
    Q_PROPERTY(double V4 MEMBER V4)
    Q_PROPERTY(double V5 MEMBER V5)
    Q_PROPERTY(double V6 MEMBER V6)
    Q_PROPERTY(double IX MEMBER IX)
    Q_PROPERTY(double IY MEMBER IY)
    Q_PROPERTY(int Store MEMBER Store)

public:
    /// The numbers stand in project files.
    enum PointType {
        Move = 0,
        Line = 1,
        Cubic = 2,
        Quadratic = 3,
    };
    Q_ENUM(PointType)

    /// Whether a number names a command.
    static bool isType(int number);

    /// A move or line to a point.
    static MPathPoint plain(int type, QPointF point);
    static MPathPoint cubic(QPointF firstControl, QPointF secondControl, QPointF end);
    static MPathPoint quadratic(QPointF control, QPointF end);

    bool isCurve() const
    {
        return type == Cubic || type == Quadratic;
    }

    /// The end point by the rule of the type, read from the V fields.
    QPointF end() const;
    /// Writes the V fields that hold the end point; handles stay where they are.
    void setEnd(QPointF point);
    /// Sets (IX, IY) from the V fields.
    void refreshEnd();

    /// The handles: none, one or two.
    QList<QPointF> controls() const;

    /// The same node as another command that ends at the same point. A node that becomes a curve gets
    /// handles on the straight line from `previousEnd`, so that the picture does not change.
    MPathPoint converted(int newType, QPointF previousEnd) const;

    void translate(QPointF offset);
    /// Scales end and handles about a fixed point.
    void scale(double scaleX, double scaleY, QPointF about = {});

    /// Same command at the same place; identity and selection are not compared.
    bool sameGeometry(const MPathPoint &other) const;

    bool Ingroup = false; ///< The node is selected.
    int type = Move;
    int GUID = 0; ///< Unique within a model and never used again; 0 for a node outside any model.
    double V1 = 0.0;
    double V2 = 0.0;
    double V3 = 0.0;
    double V4 = 0.0;
    double V5 = 0.0;
    double V6 = 0.0;
    double IX = 0.0;
    double IY = 0.0;
    int Store = 0; ///< A length along the path, whole units.

private:
    template <typename Function>
    void mapPoints(Function function);
};

Q_DECLARE_METATYPE(MPathPoint)
