import QtQuick
import Zum 1.0
import WheelArea 1.0

// The frames side by side. Only those in sight are made.
Item {
    id: frameStrip

    required property var timeline
    required property var commands
    readonly property alias flickable: view
    readonly property real viewWidth: view.width
    readonly property bool connected: view.connected
    property bool lastAccessedIsWanted: false
    // Whether the user has moved the list since the frames were loaded.
    property bool movedByHand: false
    readonly property int unit: timeline.unit
    // No wider than a thumbnail of that height could be.
    readonly property real thumbRoom: (view.height - 2.2 * unit) / (FramesModel.doubleDecker ? 2 : 1)
    readonly property int thumbWidth: Math.round(Math.max(2 * unit, timeline.contentScale
                                      * Math.min(MainWindow.scaledThumbSize.width, thumbRoom * 16 / 9)))
    readonly property int frameWidth: thumbWidth + Math.floor(unit / 2)
    readonly property int leftMostIndex: view.count === 0 ? -1 : Math.min(view.count - 1, Math.max(0, Math.floor(
                                         (view.contentX - view.originX) / frameWidth)))

    // The row at a place of the strip, -1 where there is none.
    function rowAt(x) {
        const row = Math.floor((view.contentX - view.originX + x) / frameWidth);
        return row >= 0 && row < view.count ? row : -1;
    }

    // The left edge of a row on the strip.
    function placeOf(row) {
        return view.originX + row * frameWidth - view.contentX;
    }

    // First and last row to be seen, with two more at each side; empty without frames.
    function getVisibleFramesIndxs() {
        if (view.count === 0)
            return [];
        const left = rowAt(10);
        const right = rowAt(view.width - 10);
        return [Math.max(0, (left < 0 ? 0 : left) - 2),
                Math.min(view.count - 1, (right < 0 ? view.count - 1 : right) + 2)];
    }

    function scrollTo(x) {
        view.contentX = Math.round(view.originX + Math.max(0, Math.min(view.contentWidth - view.width, x)));
        hand.moved();
    }

    function scrollBy(pixels) {
        scrollTo(view.contentX - view.originX + pixels);
    }

    // From the leftmost frame, a frame a step.
    function wheelBy(steps) {
        if (view.count > 0)
            scrollTo(Math.max(0, leftMostIndex - steps) * frameWidth);
    }

    function goTo(row) {
        lastAccessedIsWanted = false;
        const place = placeOf(row);
        const inSight = place >= 0 && place + frameWidth <= view.width;
        if (row >= 0 && row < view.count && !inSight)
            view.positionViewAtIndex(row, ListView.Contain);
    }

    function goToMiddle(row) {
        if (row >= 0 && row < view.count)
            view.positionViewAtIndex(row, ListView.Center);
    }

    function goToEnd() {
        movedByHand = false;
        lastAccessedIsWanted = false;
        view.positionViewAtEnd();
    }

    function goToLastAccessed() {
        goTo(FramesModel.lastAccessedIndex);
    }

    // Unless another place is gone to first.
    function goToLastAccessedSoon() {
        lastAccessedIsWanted = true;
        Qt.callLater(followLastAccessed);
    }

    function followLastAccessed() {
        if (lastAccessedIsWanted)
            goToLastAccessed();
    }

    // While rows multiply the list does without the model.
    function disconnectModel() {
        view.state = "unconnected";
    }

    function connectModel() {
        view.state = "connected";
        goToMiddle(timeline.currentMiddleFrame);
        goToLastAccessed();
    }

    function flash() {
        cover.flash();
    }

    function handMoves(moving) {
        hand.holds(moving);
    }

    clip: true
    onWidthChanged: {
        if (FramesModel.loaded)
            WebcamGlobal.globalDismiss();
    }
    onThumbWidthChanged: goToMiddle(timeline.currentMiddleFrame)

    FrameListView {
        id: view

        anchors.fill: parent
        anchors.topMargin: Math.floor(frameStrip.unit / 4)
        frameWidth: frameStrip.frameWidth
        thumbWidth: frameStrip.thumbWidth
        unit: frameStrip.unit
    }

    StripHand {
        id: hand

        strip: frameStrip
    }

    AreaSelector {
        anchors.fill: view
        strip: frameStrip
        onPicked: (row, modifiers) => frameStrip.commands.pick(row, modifiers)
        onDragged: (from, to, modifiers) => frameStrip.commands.drag(from, to, modifiers)
        onContextWanted: (row, x, y) => {
            FramesModel.currentIndex = row;
            frameMenu.openAt(x, y);
        }
    }

    WheelArea {
        anchors.fill: parent
        onStepped: (steps, modifiers) => frameStrip.wheelBy(steps)
    }

    StripArrows {
        anchors.fill: view
        visible: frameStrip.timeline.arrowsVisible && frameStrip.connected
        strip: frameStrip
    }

    FlashCover {
        id: cover

        anchors.fill: parent
    }

    TimelineMessages {
        anchors.fill: parent
        timeline: frameStrip.timeline
        commands: frameStrip.commands
        connected: frameStrip.connected
    }

    FrameMenu {
        id: frameMenu

        commands: frameStrip.commands
    }
}
