import QtQuick
import Zum 1.0

// How pictures come to the size of what is exported: a button that names the way chosen, and a panel with the four
// there are. `policy` belongs to the owner: chosen() only asks for another.
DialogButton {
    id: dialog

    property int policy: Zum.ExportPolicyCropped
    property int cropWidth: 0
    property int cropHeight: 0
    property size exportSize
    readonly property var policies: [Zum.ExportPolicyCropped, Zum.ExportPolicyCroppedAndResized,
                                     Zum.ExportPolicyFitByWidth, Zum.ExportPolicyFitByHeight]
    readonly property string policyText: textOf(policy)

    signal chosen(int policy)

    text: policyText
    icon: WebcamGlobal.videoExportPolicyIcon(policy)
    toolTip: qsTr("How pictures come to the size of the movie")
    role: Accessible.ButtonMenu
    toggled: panel.opened
    onClicked: {
        panel.toggle();
        if (panel.opened && activeFocus)
            panel.enter();
    }

    function textOf(policy) {
        switch (policy) {
        case Zum.ExportPolicyCropped:
            return qsTr("Crop to %1x%2").arg(cropWidth).arg(cropHeight);
        case Zum.ExportPolicyCroppedAndResized:
            return qsTr("Crop and scale to %1x%2").arg(exportSize.width).arg(exportSize.height);
        case Zum.ExportPolicyFitByWidth:
            return qsTr("Fit by width");
        default:
            return qsTr("Fit by height");
        }
    }

    function tipOf(policy) {
        switch (policy) {
        case Zum.ExportPolicyCropped:
            return qsTr("What reaches out of the frame is cut off, what is missing becomes a margin");
        case Zum.ExportPolicyCroppedAndResized:
            return qsTr("The same, then made smaller or larger");
        case Zum.ExportPolicyFitByWidth:
            return qsTr("The whole picture, as wide as the frame");
        default:
            return qsTr("The whole picture, as high as the frame");
        }
    }

    DropPanel {
        id: panel

        owner: dialog
        contentWidth: choices.width
        contentHeight: choices.height

        Column {
            id: choices

            width: DefFontSizeNormal_x20
            spacing: Theme.spacing

            Repeater {
                model: dialog.policies
                delegate: DialogButton {
                    required property int modelData

                    objectName: "exportPolicy" + modelData
                    width: choices.width
                    text: dialog.textOf(modelData)
                    icon: WebcamGlobal.videoExportPolicyIcon(modelData)
                    toolTip: dialog.tipOf(modelData)
                    role: Accessible.RadioButton
                    toggled: modelData === dialog.policy
                    onClicked: {
                        panel.close();
                        dialog.chosen(modelData);
                    }
                }
            }
        }
    }
}
