import QtQuick

// Takes leave of the camera.
QuestionBox {
    question: qsTr("Disconnect %1 camera?").arg(WebcamGlobal.cameraName)
    onConfirmed: closeAnd(WebcamGlobal.capturingDeviceDisconnect)
    onRefused: WebcamGlobal.dialogClosing()
}
