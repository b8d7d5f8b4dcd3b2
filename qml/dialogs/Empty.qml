import QtQuick

// Something is under way that nobody can measure.
FocusScope {
    implicitWidth: sign.width + DefFontSizeNormal_x4
    implicitHeight: sign.height + DefFontSizeNormal_x4
    Accessible.role: Accessible.Dialog
    Accessible.name: sign.Accessible.name

    BusySign {
        id: sign

        anchors.centerIn: parent
        running: true
    }
}
