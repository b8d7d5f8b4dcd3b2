import QtQuick

// How far a work has come: `current` of `total`, or a wandering piece while nobody knows.
Rectangle {
    id: line

    property real total: 0
    property real current: 0
    property bool indeterminate: false
    property string label: qsTr("Progress")
    readonly property real share: total > 0 ? Math.max(0, Math.min(1, current / total)) : 0

    implicitWidth: DefFontSizeNormal_x12
    implicitHeight: DefFontSizeMicro
    radius: Theme.corner
    color: Theme.button
    clip: indeterminate
    Accessible.role: Accessible.ProgressBar
    Accessible.name: label
    Accessible.description: indeterminate ? "" : Math.floor(100 * share) + " %"

    Rectangle {
        width: Math.round(line.width * line.share)
        height: parent.height
        radius: Theme.corner
        color: Theme.active
        visible: !line.indeterminate
    }

    Rectangle {
        id: piece

        width: Math.round(line.width / 4)
        height: parent.height
        radius: Theme.corner
        color: Theme.active
        visible: line.indeterminate

        NumberAnimation on x {
            from: -piece.width
            to: line.width
            duration: 1600
            loops: Animation.Infinite
            running: line.indeterminate && line.visible
        }
    }
}
