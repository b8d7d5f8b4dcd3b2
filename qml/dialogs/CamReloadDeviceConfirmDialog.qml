import QtQuick

// Takes the device away and loads it anew.
QuestionBox {
    question: qsTr("Reload device connection subsystem?")
    onConfirmed: closeAnd(WebcamGlobal.reloadCapturingDevice)
    onRefused: WebcamGlobal.dialogClosing()
}
