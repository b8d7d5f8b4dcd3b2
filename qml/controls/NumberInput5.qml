import QtQuick

// A real number to type or to step.
NumberField {
    id: input

    property real value: 0

    signal edited(real value)

    decimals: 1
    number: value
    onNumberEdited: number => input.edited(number)
}
