import QtQuick

// The size that pictures are brought to: the width is typed, the height follows the shape of the crop area.
Column {
    id: exportSize

    property int exportWidth: 0
    property int exportHeight: 0
    property int cropWidth: 0
    property int cropHeight: 0
    readonly property bool sameShape: proportion(exportWidth, exportHeight) === proportion(cropWidth, cropHeight)

    signal widthEdited(int value)

    spacing: Theme.spacing

    function proportion(width, height) {
        return width > 0 ? Math.round(height / width * 10000) : 0;
    }

    ProjectNumber {
        objectName: "exportWidth"
        width: parent.width
        text: qsTr("Width")
        value: exportSize.exportWidth
        minimum: ExportVideoMinFrameWidth
        maximum: MaxFrameWidth
        step: 8
        onEdited: value => exportSize.widthEdited(value)
    }

    TextLabel {
        objectName: "exportHeight"
        width: parent.width
        text: qsTr("Height: %1").arg(exportSize.exportHeight)
        dim: true
        wrapMode: Text.Wrap
        elide: Text.ElideNone
    }

    TextLabel {
        width: parent.width
        small: true
        color: NoteColor
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        text: qsTr("Size must be a multiple of 8")
    }

    TextLabel {
        objectName: "marginsNote"
        width: parent.width
        visible: !exportSize.sameShape
        small: true
        color: NoteColor
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        text: qsTr("Black margins may occur")
    }
}
