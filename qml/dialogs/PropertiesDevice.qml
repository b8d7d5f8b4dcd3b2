import QtQuick
import Zum 1.0

// The kind of capturing device. While one is connected, another kind waits for the next start or reload.
PropertiesRow {
    id: row

    readonly property var kinds: [Zum.CapturingDeviceCanonEOS, Zum.CapturingDeviceWebcam,
                                  Zum.CapturingDeviceHDMITethering]
    property int kind: Number(MainWindow.getSetting("currentCapturingDevice", Zum.CapturingDeviceCanonEOS))

    function choose(chosen) {
        kind = chosen;
        MainWindow.addSetting("currentCapturingDevice", chosen);
        WebcamGlobal.globalDismiss();
        if (WebcamGlobal.connected)
            return;
        MainWindow.updateCurrentDeviceType();
        WebcamGlobal.reloadCapturingDevice();
    }

    text: qsTranslate("PropertiesDialog", "Device Type")

    ChoiceRow {
        objectName: "deviceType"
        width: parent.width
        label: row.text
        toolTip: qsTranslate("PropertiesDialog", "What the frames are captured with")
        model: [qsTranslate("PropertiesDialog", "DSLR Cameras"), qsTranslate("PropertiesDialog", "Web Cameras"),
                qsTranslate("PropertiesDialog", "Video Capture")]
        currentIndex: row.kinds.indexOf(row.kind)
        onChosen: index => row.choose(row.kinds[index])
    }
}
