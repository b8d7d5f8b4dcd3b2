import QtQuick

// One of several steps below each other: its number, or a tick once it was taken, and what it is called. What is
// declared in it shows while it is the present one.
Item {
    id: step

    required property int number
    required property string title
    property string text: ""
    property bool done: false
    property bool present: false
    property bool last: false
    // What the text tells went wrong.
    property bool warns: false
    // Leaves out what the step's name and its buttons say as well.
    property bool brief: false
    default property alias content: controls.data
    readonly property string progress: done ? qsTr("done") : present ? qsTr("now") : qsTr("later")

    implicitHeight: Math.max(badge.height, body.height) + (last ? 0 : DefFontSizeNormal)
    Accessible.role: Accessible.ListItem
    Accessible.name: number + ". " + title + ", " + progress

    // Leads to the next step.
    Rectangle {
        x: Math.round((badge.width - width) / 2)
        y: badge.height + DefFontSizePico
        width: lineWidth
        height: Math.max(0, step.height - y - DefFontSizePico)
        visible: !step.last
        color: Theme.line
    }

    Rectangle {
        id: badge

        width: Theme.controlHeight
        height: width
        radius: width / 2
        color: step.present ? Theme.active : "transparent"
        border.width: step.present ? 0 : lineWidth
        border.color: step.done ? Theme.dimText : Theme.line

        TextLabel {
            anchors.centerIn: parent
            visible: !step.done
            text: step.number
            color: step.present ? Theme.well : Theme.dimText
            Accessible.ignored: true
        }

        Icon {
            anchors.centerIn: parent
            icon: step.done ? "svgicons/check.svg" : ""
            size: Theme.smallIconSize
        }
    }

    Column {
        id: body

        x: badge.width + Theme.padding
        width: step.width - x
        spacing: Theme.spacing

        TextLabel {
            width: parent.width
            height: Math.max(badge.height, implicitHeight)
            wrapMode: Text.Wrap
            elide: Text.ElideNone
            dim: !step.present
            text: step.title
            Accessible.role: Accessible.Heading
        }

        TextLabel {
            objectName: "stepText"
            width: parent.width
            visible: text !== "" && (!step.brief || step.warns)
            wrapMode: Text.Wrap
            elide: Text.ElideNone
            small: !step.present
            dim: !step.warns
            color: step.warns ? Theme.warning : Theme.dimText
            text: step.text
        }

        Column {
            id: controls

            width: parent.width
            visible: step.present
            spacing: Theme.spacing
        }
    }
}
