import QtQuick
import Zum 1.0

// What the light box on a second screen shows.
PropertiesRow {
    id: row

    readonly property var modes: [Zum.LightboxModePicture, Zum.LightboxModeColor]

    text: qsTranslate("PropertiesDialog", "Lightbox Shows")

    Flow {
        width: parent.width
        spacing: Theme.padding

        ChoiceRow {
            objectName: "lightboxMode"
            width: Math.min(implicitWidth, parent.width)
            label: row.text
            toolTip: qsTranslate("PropertiesDialog", "What lights the scene from a second screen")
            model: [qsTranslate("PropertiesDialog", "Reference"), qsTranslate("PropertiesDialog", "Color")]
            currentIndex: row.modes.indexOf(MainWindow.lightboxMode)
            onChosen: index => MainWindow.lightboxMode = row.modes[index]
        }

        ButtonBase {
            id: swatch

            objectName: "lightboxColor"
            implicitWidth: Theme.controlHeight + DefFontSizeNormal_x2
            visible: MainWindow.lightboxMode === Zum.LightboxModeColor
            toggled: panel.opened
            toolTip: qsTranslate("PropertiesDialog", "Color of the light")
            role: Accessible.ButtonMenu
            onClicked: {
                panel.toggle();
                if (panel.opened && activeFocus)
                    panel.enter();
            }

            Rectangle {
                anchors.fill: parent
                anchors.margins: DefFontSizePico
                radius: Theme.corner
                color: MainWindow.lightboxColor
            }
        }
    }

    DropPanel {
        id: panel

        owner: swatch
        contentWidth: chooser.implicitWidth
        contentHeight: chooser.implicitHeight

        ColorChooser {
            id: chooser

            objectName: "colorChooser"
            toolTip: swatch.toolTip
            color: MainWindow.lightboxColor
            onChosen: value => MainWindow.lightboxColor = value
        }
    }
}
