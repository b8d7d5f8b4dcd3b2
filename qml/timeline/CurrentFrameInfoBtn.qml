import QtQuick
import Zum 1.0

// What is known of the current frame: its files, and its phase number, which can be set here.
IconDropPanel {
    id: button

    property var captured: ({})
    property var reference: ({})
    property int phase: 0
    readonly property string followed: opened ? FramesModel.currentIndex + FramesModel.currentCaptured
                                                + FramesModel.currentReference : ""

    function read() {
        captured = factsOf(Zum.CapFull, FramesModel.currentCaptured);
        reference = factsOf(Zum.RefFull, FramesModel.currentReference);
        phase = FramesModel.get(FramesModel.currentIndex, false).phase;
    }

    function factsOf(role, name) {
        if (name === "")
            return {};
        const facts = MainWindow.fileInfo(MainWindow.buildImagePath(role, name, true), true);
        facts.name = name;
        return facts;
    }

    function lineOf(facts) {
        if (facts.name === undefined)
            return qsTr("No picture");
        if (!facts.exists || facts.fileName !== facts.name)
            return qsTr("%1: the file is missing").arg(facts.name);
        const size = facts.width > 0 ? facts.width + "x" + facts.height + ", " : "";
        return facts.name + "\n" + size + facts.sizeText + ", " + facts.lastModifiedDate + " "
               + facts.lastModifiedTime;
    }

    icon: "svgicons/frame-info.svg"
    toolTip: qsTr("About the current frame")
    panelWidth: DefFontSizeNormal_x22
    onFollowedChanged: {
        if (opened)
            read();
    }

    TextLabel {
        width: parent.width
        text: qsTr("Captured")
        dim: true
    }

    TextLabel {
        width: parent.width
        wrapMode: Text.WrapAnywhere
        text: button.lineOf(button.captured)
    }

    TextLabel {
        width: parent.width
        text: qsTr("Reference")
        dim: true
    }

    TextLabel {
        width: parent.width
        wrapMode: Text.WrapAnywhere
        text: button.lineOf(button.reference)
    }

    NumberInput4 {
        width: parent.width
        label: qsTr("Phase")
        value: button.phase
        minimum: 0
        maximum: 9999
        toolTip: qsTr("Number of the phase, shown in the exposure sheet")
        active: !FramesModel.playing
        onEdited: value => {
            FramesModel.setValue(FramesModel.currentIndex, Zum.PhaseNumber, value);
            button.read();
        }
    }
}
