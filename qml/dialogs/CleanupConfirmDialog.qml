import QtQuick

// Asks before the files that no frame names any more are removed.
QuestionBox {
    question: qsTr("Save the project and remove the pictures that no frame uses any more? They cannot be brought back, and undo will not find them.")
    onConfirmed: closeAnd(WebcamGlobal.saveAndCleanup)
    onRefused: WebcamGlobal.dialogClosing()
}
