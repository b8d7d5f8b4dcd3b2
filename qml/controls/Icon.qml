import QtQuick

// A square picture of a control. Nothing is shown, and no room taken, without a path.
Image {
    id: picture

    property string icon: ""
    property int size: Theme.iconSize

    width: icon === "" ? 0 : size
    height: size
    visible: icon !== ""
    source: icon
    sourceSize: Qt.size(size, size)
    fillMode: Image.PreserveAspectFit
    Accessible.ignored: true
}
