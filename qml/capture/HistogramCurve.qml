import QtQuick
import QtQuick.Shapes

// One channel of a histogram: 256 values from dark to light, and the highest of them in the last place.
Shape {
    id: curve

    property var values: []
    property color colour: "white"
    readonly property real peak: values.length > 2 ? values[values.length - 1] : 0
    // The tallest channel stands at the back, where it hides no other.
    readonly property var outline: visible ? points() : []

    function points() {
        const last = values.length - 2;
        const path = [Qt.point(0, height)];
        for (let i = 0; i <= last; ++i)
            path.push(Qt.point(i / last * width, height - values[i] / peak * height));
        path.push(Qt.point(width, height), Qt.point(0, height));
        return path;
    }

    visible: peak > 0
    z: -peak

    ShapePath {
        strokeWidth: 1
        strokeColor: curve.colour
        fillColor: Qt.rgba(curve.colour.r, curve.colour.g, curve.colour.b, 0.35)

        PathPolyline {
            path: curve.outline
        }
    }
}
