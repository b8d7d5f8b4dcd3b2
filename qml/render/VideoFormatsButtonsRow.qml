import QtQuick

// The movie formats to choose from.
ChoiceRow {
    id: formats

    property string format
    readonly property var names: [VideoFormatMPEG4, VideoFormatOGV, VideoFormatWEBM, VideoFormatMKV, VideoFormatRAW]

    signal formatChosen(string format)

    label: qsTr("Movie format")
    model: [
        { text: "AVI" },
        { text: "OGV", toolTip: qsTr("HTML5 Video - OGG/OGV video format") },
        { text: "WebM", toolTip: qsTr("HTML5 Video - WebM video format") },
        { text: "MKV", toolTip: qsTr("Matroska Multimedia Container") },
        { icon: "svgicons/cinema.svg", toolTip: qsTr("No compression, large file") }
    ]
    currentIndex: names.indexOf(format)
    onChosen: index => formats.formatChosen(names[index])
}
