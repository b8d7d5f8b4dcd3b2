import QtQuick

// What stands where nothing is to be seen yet: what it would be, and what to do. Buttons declared in it stand
// in a row below the text.
Item {
    id: state

    property string icon: ""
    property string title: ""
    property string text: ""
    default property alias content: buttons.data

    implicitWidth: view.implicitWidth
    implicitHeight: view.implicitHeight
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    CenteredColumn {
        id: view

        anchors.fill: parent

        Icon {
            anchors.horizontalCenter: parent.horizontalCenter
            // The picture gives way first when there is little room.
            icon: state.height > 16 * DefFontSizeNormal ? state.icon : ""
            size: DefFontSizeNormal_x4
            opacity: 0.6
        }

        TextLabel {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            font.pixelSize: DefFontSizeBigger
            text: state.title
            visible: text !== ""
            Accessible.role: Accessible.Heading
        }

        TextLabel {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            text: state.text
            dim: true
            visible: text !== ""
        }

        Flow {
            id: buttons

            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(wantedWidth(children), parent.width)
            spacing: Theme.spacing

            function wantedWidth(items) {
                let sum = 0
                for (let i = 0; i < items.length; ++i) {
                    if (items[i].visible)
                        sum += items[i].width + (sum > 0 ? buttons.spacing : 0)
                }
                return sum
            }
        }
    }
}
