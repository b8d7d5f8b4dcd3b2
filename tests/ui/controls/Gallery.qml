import QtQuick

// Every control in its states, to be looked at.
Flow {
    y: DefFontSizeNormal
    height: parent.height - 2 * DefFontSizeNormal
    flow: Flow.TopToBottom
    spacing: DefFontSizeNormal

    Pane {
        title: "Buttons"
        Row {
            spacing: Theme.spacing
            IconButton { icon: "svgicons/add.svg"; toolTip: "Add" }
            IconButton { icon: "svgicons/onion.svg"; toolTip: "Onion"; toggled: true }
            IconButton { icon: "svgicons/delete.svg"; toolTip: "Delete"; active: false }
            IconButton { icon: "svgicons/menu.svg"; toolTip: "Menu"; objectName: "focused" }
        }
        Row {
            spacing: Theme.spacing
            TextButton { text: "Duplicate" }
            TextButton { text: "Captured"; icon: "svgicons/camera.svg"; toggled: true }
            TextButton { text: "Delete"; icon: "svgicons/delete.svg"; active: false }
        }
        Row {
            TabButton { text: "Capture"; icon: "svgicons/capture.svg"; toggled: true }
            TabButton { text: "Timing" }
            TabButton { text: "Video" }
            TabButton { text: "Docs"; active: false }
        }
        CheckButton { text: "Anti-Alias"; checked: true }
        CheckButton { text: "Save Cropped" }
        CheckButton { text: "Rotate 180"; checked: true; active: false }
        ChoiceRow { model: ["Min", "Middle", "Max"]; currentIndex: 1 }
        ChoiceRow {
            width: parent.width
            model: ["1280x720", "1600x900", "1920x1080", "1920x1200", "2048x1152", "3840x2160"]
            currentIndex: 2
        }
    }

    Pane {
        title: "Values"
        NumberInput4 { width: parent.width; label: "Start index"; value: 120; maximum: 30000; toolTip: "First number" }
        NumberInput4 { width: parent.width; label: "Frames per second"; value: 12; maximum: 60; suffix: "fps" }
        NumberInput5 { width: parent.width; label: "Shift"; value: 0.5; maximum: 10; step: 0.1; active: false }
        TextPropertyInput { width: parent.width; text: "Puppet_01"; toolTip: "Prefix" }
        TextPropertyInput { width: parent.width; placeholder: "Name of the project"; toolTip: "Name" }
        TextPropertyInput { width: parent.width; text: "Fixed"; active: false; toolTip: "Fixed" }
        SliderNew { width: parent.width; label: "Live View"; value: 70; suffix: " %"; labelWidth: DefFontSizeNormal_x7 }
        SliderNew { width: parent.width; label: "Captured"; value: 100; suffix: " %"; labelWidth: DefFontSizeNormal_x7 }
        SliderNew { width: parent.width; label: "Reference"; value: 30; active: false; labelWidth: DefFontSizeNormal_x7 }
    }

    Pane {
        title: "Colour"
        ColorChooser { width: parent.width; color: "#3a7d9c" }
    }

    Pane {
        title: "Signs"
        Row {
            spacing: Theme.spacing
            BusySign { running: true }
            Column {
                spacing: Theme.spacing
                ProgressLine { total: 10; current: 4 }
                ProgressLine { indeterminate: true }
                TextLabel { text: "Normal text" }
                TextLabel { text: "Small and dim"; small: true; dim: true }
            }
        }
        Row {
            spacing: Theme.spacing
            ButtonDropPanel { text: "Panel"; icon: "svgicons/layers.svg"; CheckButton { text: "In it" } }
            ButtonRowDropPanel { icon: "svgicons/add.svg"; toolTip: "Row"; TextButton { text: "In it" } }
        }
    }

    Pane {
        title: "Menu"
        MenuList {
            width: parent.width
            currentIndex: 1
            model: [{text: "Create New Project", icon: "svgicons/new-project.svg", shortcut: "Ctrl+N"},
                    {text: "Open Project", icon: "svgicons/open.svg", shortcut: "Ctrl+O"},
                    {text: "Save Project", icon: "svgicons/save.svg", shortcut: "Ctrl+S", active: false},
                    {text: "Quit", icon: "svgicons/quit.svg", shortcut: "Ctrl+Q"}]
        }
    }

    Pane {
        EmptyState {
            width: parent.width
            icon: "svgicons/film.svg"
            title: "No Frames"
            text: "Capture a frame, or add pictures from files."
            TextButton { text: "Capture" }
            TextButton { text: "Add" }
        }
    }

    ConfirmDialog {
        title: "Save the project?"
        width: ControlsPanesBoxW
        question: "The project has changes that are not saved. Without saving they are lost when it closes."
        okText: "Save"
    }
}
