import QtQuick

// Names a kind of capturing device and the files of its window and its panel.
QtObject {
    property string name
    property string window
    property string controls
}
