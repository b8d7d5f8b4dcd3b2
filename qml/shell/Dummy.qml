import QtQuick

// Nothing: what the window shows while the program goes down.
Item {}
