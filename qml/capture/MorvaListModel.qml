import QtQuick

// The list of devices. A row has `name`, `value` (the index to open), `image` and `isize` (texts about the
// pictures) and `battery` (per cent, -1 where unknown).
ListModel {}
