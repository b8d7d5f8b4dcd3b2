import QtQuick

// A question that closes with its answer.
ConfirmDialog {
    id: box

    // Closes, and does what the answer asked for once nothing of this dialog is left: it may open another.
    function closeAnd(action, argument) {
        if (argument === undefined)
            Qt.callLater(action);
        else
            Qt.callLater(action, argument);
        WebcamGlobal.dialogClosing();
    }

    Keys.forwardTo: keys.shortcuts

    DialogKeys {
        id: keys

        parent: box
        dialog: box
    }
}
