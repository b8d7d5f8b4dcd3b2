import QtQuick

// Turning dots: something is under way and nobody knows how long.
Item {
    id: sign

    property bool running: false
    readonly property int dots: 8

    implicitWidth: DefFontSizeNormal_x3
    implicitHeight: DefFontSizeNormal_x3
    visible: running
    Accessible.role: Accessible.Animation
    Accessible.name: qsTr("Busy")

    Repeater {
        model: sign.running ? sign.dots : 0

        Rectangle {
            required property int index
            readonly property real angle: 2 * Math.PI * index / sign.dots

            x: sign.width / 2 * (1 + 0.78 * Math.sin(angle)) - width / 2
            y: sign.height / 2 * (1 - 0.78 * Math.cos(angle)) - height / 2
            width: sign.width / 7
            height: width
            radius: width / 2
            color: Theme.active
            opacity: 0.15 + 0.85 * (index + 1) / sign.dots
        }
    }

    RotationAnimation on rotation {
        from: 0
        to: 360
        duration: 1000
        loops: Animation.Infinite
        running: sign.running && sign.visible
    }
}
