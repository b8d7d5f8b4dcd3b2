import QtQuick

// What a part of a box is about.
TextLabel {
    width: parent ? parent.width : 0
    dim: true
    Accessible.role: Accessible.Heading
}
