import QtQuick

// What the names of captured files begin with.
Column {
    id: tab

    // Naming what the name depends on makes it follow.
    function example() {
        const parts = [WebcamGlobal.useFrameNameMask, WebcamGlobal.frameNameMask, FramesModel.framesCount,
                       FramesModel.captureMode];
        return parts.length > 0 ? appWindow.nextShot().fullName : "";
    }

    spacing: Theme.spacing

    CheckButton {
        objectName: "useMask"
        width: Math.min(implicitWidth, parent.width)
        text: qsTr("Own prefix")
        toolTip: qsTr("Begin the names of captured files with a text of your own")
        checked: WebcamGlobal.useFrameNameMask
        onSwitched: on => {
            WebcamGlobal.useFrameNameMask = on;
            MainWindow.addSetting("useFrameNameMask", on);
        }
    }

    TextPropertyInput {
        objectName: "mask"
        width: parent.width
        active: WebcamGlobal.useFrameNameMask
        placeholder: qsTr("Prefix")
        toolTip: qsTr("Frame name prefix. Signs that files cannot have in their names are left out")
        text: WebcamGlobal.frameNameMask
        onEdited: text => WebcamGlobal.frameNameMask = MainWindow.cleanStr(text, true, true)
    }

    TextLabel {
        objectName: "nameExample"
        width: parent.width
        small: true
        dim: true
        wrapMode: Text.WrapAnywhere
        elide: Text.ElideNone
        text: example()
    }
}
