import QtQuick

// Connects the camera anew.
QuestionBox {
    question: qsTr("Camera %1 is already connected. Reconnect camera?").arg(WebcamGlobal.cameraName)
    onConfirmed: closeAnd(WebcamGlobal.capturingDeviceConnect)
    onRefused: WebcamGlobal.dialogClosing()
}
