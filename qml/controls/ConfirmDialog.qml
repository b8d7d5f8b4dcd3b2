import QtQuick

// A question with two answers. Return in the window gives the first one.
DialogPane {
    id: dialog

    property string question: ""
    property string okText: qsTr("OK")
    property string cancelText: qsTr("Cancel")

    signal confirmed()
    signal refused()

    Accessible.name: title !== "" ? title : question

    buttons: [
        TextButton {
            text: dialog.cancelText
            toolTip: dialog.cancelText
            onClicked: dialog.refused()
        },
        TextButton {
            text: dialog.okText
            toolTip: dialog.okText
            toggled: true
            onClicked: dialog.confirmed()
        }
    ]

    TextLabel {
        width: parent.width
        text: dialog.question
        wrapMode: Text.Wrap
    }

    Connections {
        target: WebcamGlobal
        enabled: dialog.visible && dialog.enabled
        function onGlobalConfirm() { dialog.confirmed() }
    }
}
