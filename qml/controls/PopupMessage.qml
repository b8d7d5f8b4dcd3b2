import QtQuick

// A short word over the window that goes away by itself.
Rectangle {
    id: popup

    property int stayMs: 2500
    readonly property bool shown: stay.running || opacity > 0

    z: 2900
    width: Math.ceil(label.width) + 2 * DefFontSizeNormal
    height: Math.ceil(label.height) + DefFontSizeNormal
    anchors.horizontalCenter: parent ? parent.horizontalCenter : undefined
    anchors.bottom: parent ? parent.bottom : undefined
    anchors.bottomMargin: parent ? Math.max(0, Math.min(DefFontSizeNormal_x6, Math.floor((parent.height - height) / 2)))
                                 : 0
    radius: Theme.corner
    color: Theme.button
    border.width: 1
    border.color: Theme.line
    visible: opacity > 0
    opacity: stay.running ? 1 : 0
    Accessible.role: Accessible.AlertMessage
    Accessible.name: label.text

    Behavior on opacity {
        NumberAnimation { duration: Theme.fadeMs * 2 }
    }

    function show(text) {
        label.text = text
        stay.restart()
    }

    function hide() {
        stay.stop()
    }

    Timer {
        id: stay

        interval: popup.stayMs
    }

    TextLabel {
        id: label

        anchors.centerIn: parent
        width: Math.min(Math.ceil(implicitWidth), popup.parent ? popup.parent.width - DefFontSizeNormal_x4
                                                               : DefFontSizeNormal_x22)
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
