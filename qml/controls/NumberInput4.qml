import QtQuick

// A whole number to type or to step.
NumberField {
    id: input

    property int value: 0

    signal edited(int value)

    number: value
    onNumberEdited: number => input.edited(Math.round(number))
}
