import QtQuick

// The choices of the panels that outlive a run.
Item {
    id: panelSettings

    function read() {
        WebcamGlobal.rightPanelPinned = asBool(MainWindow.getSetting("rightPanelPinned", true));
        WebcamGlobal.rightPanelExpanded = asBool(MainWindow.getSetting("rightPanelExpanded", false));
        FramesModel.autoMaximizeRange = asBool(MainWindow.getSetting("autoMaximizeRange", true));
        FramesModel.doubleDecker = asBool(MainWindow.getSetting("doubleDecker", false)) || !FramesModel.playingCaptured;
        WebcamGlobal.timelineCompact = !FramesModel.doubleDecker;
        pinned.enabled = true;
    }

    // The store gives texts back for what was a truth value.
    function asBool(value) {
        return value === true || value === "true" || value === 1 || value === "1";
    }

    visible: false

    Connections {
        id: pinned

        target: WebcamGlobal
        enabled: false

        function onRightPanelPinnedChanged() {
            MainWindow.addSetting("rightPanelPinned", WebcamGlobal.rightPanelPinned);
        }

        function onRightPanelExpandedChanged() {
            MainWindow.addSetting("rightPanelExpanded", WebcamGlobal.rightPanelExpanded);
        }
    }
}
