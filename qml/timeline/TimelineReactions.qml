import QtQuick
import Zum 1.0

// What the timeline does when a key is pressed or the frames change.
Item {
    id: reactions

    required property var timeline
    required property var commands
    required property Item strip

    // Actions of the model; other numbers are the announcer's own.
    readonly property int firstForeignAction: 1024
    // The model also tells of a current row that is the same as before, after each change of its rows.
    property int knownIndex: -1

    // Also brings a row into sight that was current already.
    function makeCurrent(row) {
        FramesModel.currentIndex = row;
        strip.goTo(FramesModel.currentIndex);
    }

    function goToEnd() {
        strip.goToEnd();
        WebcamGlobal.timelineGotoEnd();
        FramesModel.currentIndex = FramesModel.last();
    }

    visible: false

    Connections {
        target: WebcamGlobal
        enabled: reactions.timeline.visible

        function onTimelineGotoStart() {
            reactions.makeCurrent(0);
        }

        function onTimelineGotoEnd() {
            reactions.makeCurrent(FramesModel.last());
        }

        function onTimelinePrevFrame() {
            reactions.makeCurrent(FramesModel.currentIndex - 1);
        }

        function onTimelineNextFrame() {
            reactions.makeCurrent(FramesModel.currentIndex + 1);
        }

        function onTimelineSelectFrame() {
            FramesModel.switchSelectionOnSingleFrame(FramesModel.currentIndex);
        }

        function onTimelineDeleteFrames() {
            reactions.commands.deleteFrames();
        }

        function onTimelineFrameDuplicate() {
            reactions.commands.dublicateFrames();
        }

        function onTimelineDismiss() {
            reactions.commands.dismiss();
        }

        function onTimelineShowAddBox() {
            reactions.timeline.openAddBox();
        }

        function onTimelineHideAddBox() {
            reactions.timeline.closeAddBox();
        }
    }

    Connections {
        target: WebcamGlobal

        function onDisconnectModel() {
            reactions.strip.disconnectModel();
        }

        function onConnectModel() {
            reactions.strip.connectModel();
        }
    }

    Connections {
        target: FramesModel

        function onTimelineChanged(action) {
            if (action >= reactions.firstForeignAction)
                return;
            reactions.strip.goToLastAccessed();
            reactions.commands.searchStaticness();
            reactions.strip.flash();
        }

        function onCountChanged() {
            // Once for all the frames that come in a row.
            if (FramesModel.loaded)
                reactions.strip.goToLastAccessedSoon();
        }

        function onPlayingChanged() {
            if (FramesModel.playing)
                return;
            reactions.strip.goToLastAccessed();
            reactions.strip.goTo(FramesModel.currentIndex);
        }

        function onCurrentIndexChanged() {
            if (!FramesModel.playing && FramesModel.currentIndex !== reactions.knownIndex)
                reactions.strip.goTo(FramesModel.currentIndex);
            reactions.knownIndex = FramesModel.currentIndex;
            reactions.timeline.getCurrentMiddleFrame();
        }

        function onCurrentActionChanged() {
            if (FramesModel.currentAction === Zum.ActNoAction)
                reactions.commands.pointAtCurrent();
        }

        function onLoadedChanged() {
            reactions.commands.pointAtCurrent();
            if (!FramesModel.loaded)
                return;
            reactions.goToEnd();
            afterLoading.restart();
        }

        function onDublicateAndMoveFrames() {
            reactions.commands.dublicateAndMoveFrames();
        }

        function onDoubleDeckerChanged() {
            WebcamGlobal.timelineCompact = !FramesModel.doubleDecker;
        }
    }

    // By then the strip has its size. Who has gone elsewhere in the meantime stays there.
    Timer {
        id: afterLoading

        objectName: "afterLoading"
        interval: 1000
        onTriggered: {
            if (FramesModel.currentIndex === FramesModel.last() && !reactions.strip.movedByHand)
                reactions.strip.goToEnd();
        }
    }
}
