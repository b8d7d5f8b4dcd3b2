import QtQuick
import Zum 1.0

// What the Capture tab shows until there is something to see: what to do, in order, with the buttons that do it.
FocusScope {
    id: firstSteps

    required property var scene
    readonly property bool hasProject: MainWindow.projectLoaded
    // With little room the buttons of the present step come first.
    readonly property bool low: height < 16 * DefFontSizeNormal

    // The buttons of a step that was taken are gone.
    onHasProjectChanged: {
        if (activeFocus)
            FocusHome.goHome();
    }
    Accessible.role: Accessible.List
    Accessible.name: heading.text

    // There are no layers to be gone through yet, so the key for that leads to the buttons.
    Connections {
        target: WebcamGlobal

        function onSwitchDisplayTab() {
            (firstSteps.hasProject ? camera : project).takeFocus();
        }
    }

    CenteredColumn {
        anchors.fill: parent

        TextLabel {
            id: heading

            width: parent.width
            visible: !firstSteps.low
            wrapMode: Text.Wrap
            elide: Text.ElideNone
            font.pixelSize: DefFontSizeBigger
            text: qsTr("A film in three steps")
            Accessible.role: Accessible.Heading
        }

        Column {
            width: parent.width

            FirstStepProject {
                id: project

                objectName: "stepProject"
                width: parent.width
                scene: firstSteps.scene
                done: firstSteps.hasProject
                present: !done
                brief: firstSteps.low
            }

            FirstStepCamera {
                id: camera

                objectName: "stepCamera"
                width: parent.width
                scene: firstSteps.scene
                done: WebcamGlobal.connected
                present: firstSteps.hasProject && !done
                brief: firstSteps.low
            }

            FirstStep {
                objectName: "stepShoot"
                width: parent.width
                number: 3
                brief: firstSteps.low
                last: true
                title: qsTr("Shoot")
                text: qsTr("Pose the puppet and press Enter for each frame.")
            }
        }
    }
}
