import QtQuick

// What is known of the current frame. Playing leaves it as it was.
Pane {
    id: box

    property int row: -1
    property var frame: ({})
    readonly property bool known: row >= 0 && row < FramesModel.framesCount
    readonly property var facts: known ? [
        { text: qsTr("Number: %1").arg(row + FramesModel.startIndex) },
        { text: qsTr("Time: %1").arg(timeOf(row)) },
        { text: qsTr("Captured: %1").arg(nameOf(frame.capFull)), warns: frame.capfullmiss && frame.capFull !== "" },
        { text: qsTr("Reference: %1").arg(nameOf(frame.refFull)), warns: frame.reffullmiss && frame.refFull !== "" },
        { text: stateText() }
    ].filter(fact => fact.text !== "") : [{ text: qsTr("No frame") }]

    title: qsTr("Frame Info")
    Component.onCompleted: refresh()

    function refresh() {
        if (FramesModel.playing)
            return;
        box.frame = FramesModel.get(FramesModel.currentIndex);
        box.row = FramesModel.currentIndex;
    }

    function timeOf(row) {
        const rate = FramesModel.timelineFps;
        return WebcamGlobal.millisecondsToHHMMSS(rate > 0 ? row / rate * 1000 : 0);
    }

    function nameOf(fileName) {
        return fileName ? fileName : qsTr("none");
    }

    function stateText() {
        return [
            frame.hidden ? qsTr("hidden, not in the movie") : "",
            frame.mirrored ? qsTr("mirrored") : "",
            frame.capfullmiss && frame.capFull !== "" ? qsTr("the picture's file is missing") : ""
        ].filter(text => text !== "").join("; ");
    }

    Repeater {
        model: box.facts
        delegate: TextLabel {
            required property var modelData

            objectName: "frameFact"
            width: box.contentWidth
            small: true
            wrapMode: Text.WrapAnywhere
            elide: Text.ElideNone
            color: modelData.warns ? Theme.warning : Theme.text
            text: modelData.text
        }
    }

    Connections {
        target: FramesModel

        function onCurrentIndexChanged() {
            box.refresh();
        }

        function onPlayingChanged() {
            box.refresh();
        }

        // Comes once for each frame of a batch.
        function onChanged() {
            Qt.callLater(box.refresh);
        }

        function onTimelineChanged() {
            Qt.callLater(box.refresh);
        }
    }
}
