import QtQuick

// Keeps in step what follows from the filters and the background, whoever changes them: the background's entry in
// the settings, and whether there are any settings.
Item {
    id: state

    readonly property string background: WebcamGlobal.backgroundOn && WebcamGlobal.backgroundImage !== ""
        ? ["true", WebcamGlobal.backgroundPreviewScale, WebcamGlobal.backgroundImage,
           WebcamGlobal.backgroundImageIsReference].join(";") : ""
    readonly property bool hasSettings: Object.keys(WebcamGlobal.postProcessSettings).length > 0

    visible: false
    onBackgroundChanged: {
        if (background !== "")
            WebcamGlobal.setPostProcessSetting("background", background);
        else
            WebcamGlobal.removePostProcessSetting("background");
    }
    onHasSettingsChanged: WebcamGlobal.hasPostProcessSettings = hasSettings
}
