import QtQuick

// What capturing lays over the picture: the drawn frame, the colour under the pointer,
// and a button that wakes a live view which has fallen asleep.
Item {
    id: overlay

    CropAreaSelector {
        anchors.fill: parent
    }

    IconButton {
        objectName: "wakeButton"
        anchors.centerIn: parent
        width: DefFontSizeNormal_x5
        height: width
        icon: "svgicons/play.svg"
        visible: WebcamGlobal.paused && WebcamGlobal.userIsInactive
        toolTip: qsTr("Go on with the live view")
        onClicked: {
            WebcamGlobal.inactivityElapsed = 0;
            WebcamGlobal.userIsInactive = false;
            WebcamGlobal.paused = false;
        }
    }

    EyedropperInfo {}
}
