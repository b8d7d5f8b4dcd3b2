import QtQuick

// The camera is set to pictures that are smaller than they could be.
QuestionBox {
    question: qsTr("The camera takes pictures of a reduced size. Choose the size L in the camera's settings, or the frames will be smaller than they could be.")
    cancelText: qsTr("Close")
    onConfirmed: WebcamGlobal.dialogClosing()
    onRefused: WebcamGlobal.dialogClosing()
}
