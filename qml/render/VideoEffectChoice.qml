import QtQuick

// One of a list of values, which opens over the window. `value` belongs to the owner: chosen() only asks for another.
ButtonDropPanel {
    id: choice

    // Each {name, value}.
    property var choices: []
    property string value

    signal chosen(string value)

    text: nameOf(value)

    // A value that the list does not have shows as it is.
    function nameOf(value) {
        const found = choices.find(entry => entry.value === value);
        return found ? found.name : value;
    }

    MenuList {
        label: choice.label
        model: choice.choices.map(entry => ({ text: entry.name, action: () => choice.chosen(entry.value) }))
        currentIndex: choice.choices.findIndex(entry => entry.value === choice.value)
        onChosen: choice.close()
    }
}
