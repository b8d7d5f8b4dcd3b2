import QtQuick

// The way to the size of a movie; the project and the settings keep it.
ExportPolicyDialog {
    id: dialog

    policy: WebcamGlobal.videoExportPolicy
    cropWidth: WebcamGlobal.cropAreaW
    cropHeight: WebcamGlobal.cropAreaH
    exportSize: WebcamGlobal.exportSize
    onPolicyTextChanged: WebcamGlobal.exportPolicyText = policyText
    onChosen: policy => {
        WebcamGlobal.videoExportPolicy = policy;
        MainWindow.addSetting("videoExportPolicy", policy);
    }
}
