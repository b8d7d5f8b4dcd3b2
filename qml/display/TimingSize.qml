import QtQuick

// How much of the room the picture of the Timing tab may take, each 0.1 to 1; kept with the settings.
QtObject {
    id: size

    property real widthShare: read("ramPreviewWidth")
    property real heightShare: read("ramPreviewHeight")

    function limited(share) {
        const number = Number(share);
        return isNaN(number) ? 0.8 : Math.max(0.1, Math.min(1, number));
    }

    function read(key) {
        return limited(MainWindow.getSetting(key, 0.8));
    }

    function setWidth(share) {
        widthShare = limited(share);
        MainWindow.addSetting("ramPreviewWidth", widthShare);
    }

    function setHeight(share) {
        heightShare = limited(share);
        MainWindow.addSetting("ramPreviewHeight", heightShare);
    }
}
