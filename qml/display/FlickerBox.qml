import QtQuick

// A view that is zoomed with the wheel around the pointer and moved with the middle button, or with the left one
// while zoomed in. `zoom` belongs to the owner, who takes over what zoomWanted() asks for.
Item {
    id: flicker

    property real zoom: 1
    // Of what the view shows, before it is zoomed.
    property real contentWidth: 0
    property real contentHeight: 0
    // Off, the left button belongs to what the view shows.
    property bool leftButtonMoves: true
    default property alias content: holder.data

    readonly property real smallestZoom: commonMinScaleFactor
    readonly property real largestZoom: 16
    readonly property bool zoomed: zoom !== 1
    readonly property bool movable: contentWidth * zoom > width || contentHeight * zoom > height
    // Where the content's middle is, seen from the view's middle.
    property real shiftX: 0
    property real shiftY: 0
    // What stays in place while the zoom changes, from the view's middle.
    property point anchorPoint: Qt.point(0, 0)
    property real lastZoom: 1

    signal zoomWanted(real zoom)
    signal rightClicked()

    // Nothing moves in a direction in which the whole content is to be seen.
    function limited(shift, contentSize, viewSize) {
        const room = Math.max(0, (contentSize * zoom - viewSize) / 2);
        return Math.max(-room, Math.min(room, shift));
    }

    function moveTo(x, y) {
        shiftX = limited(x, contentWidth, width);
        shiftY = limited(y, contentHeight, height);
    }

    // Zooming comes to rest at the fitting size on its way past it.
    function zoomTo(wanted, x, y) {
        const crosses = (zoom - 1) * (wanted - 1) < 0;
        const next = crosses ? 1 : Math.max(smallestZoom, Math.min(largestZoom, wanted));
        if (next === zoom)
            return;
        anchorPoint = Qt.point(x - width / 2, y - height / 2);
        zoomWanted(next);
        anchorPoint = Qt.point(0, 0);
    }

    function fit() {
        zoomWanted(1);
        moveTo(0, 0);
    }

    clip: true
    onZoomChanged: {
        const ratio = zoom / lastZoom;
        lastZoom = zoom;
        moveTo(anchorPoint.x - (anchorPoint.x - shiftX) * ratio, anchorPoint.y - (anchorPoint.y - shiftY) * ratio);
    }
    onWidthChanged: moveTo(shiftX, shiftY)
    onHeightChanged: moveTo(shiftX, shiftY)
    onContentWidthChanged: moveTo(shiftX, shiftY)
    onContentHeightChanged: moveTo(shiftX, shiftY)

    component Mover: DragHandler {
        property point start: Qt.point(0, 0)

        target: null
        cursorShape: active ? Qt.ClosedHandCursor : undefined
        onActiveChanged: start = Qt.point(flicker.shiftX, flicker.shiftY)
        onActiveTranslationChanged: flicker.moveTo(start.x + activeTranslation.x, start.y + activeTranslation.y)
    }

    Item {
        id: holder

        x: Math.round((flicker.width - width * flicker.zoom) / 2 + flicker.shiftX)
        y: Math.round((flicker.height - height * flicker.zoom) / 2 + flicker.shiftY)
        width: flicker.contentWidth
        height: flicker.contentHeight
        transformOrigin: Item.TopLeft
        scale: flicker.zoom
    }

    // In front, or what the view shows would keep the presses that begin a drag.
    Item {
        anchors.fill: parent

        WheelHandler {
            target: null
            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
            acceptedModifiers: Qt.KeyboardModifierMask
            onWheel: event => {
                if (event.angleDelta.y !== 0)
                    flicker.zoomTo(flicker.zoom * Math.pow(1.2, event.angleDelta.y / 120), event.x, event.y);
            }
        }

        Mover {
            acceptedButtons: Qt.MiddleButton
            dragThreshold: 0
        }

        Mover {
            enabled: flicker.leftButtonMoves && flicker.movable
            acceptedButtons: Qt.LeftButton
        }

        TapHandler {
            enabled: flicker.leftButtonMoves
            acceptedButtons: Qt.LeftButton
            gesturePolicy: TapHandler.DragThreshold
            onDoubleTapped: flicker.fit()
        }

        TapHandler {
            acceptedButtons: Qt.RightButton
            onTapped: flicker.rightClicked()
        }
    }
}
