#pragma once

#include <QString>
#include <QVariantMap>

/// The video effect of a project as text, "filtername=key1=value1:key2=value2", and as a map of "filter" (the
/// whole text), "filtername" and one entry for each key.
namespace morvane::effect {

/// Keys of a catalogue entry's variables that say how the value is chosen.
enum Control { Menu, Scrollbar, ColorChooser, Chromakey, Grayscale, HueNumber };

/// What stands before the first "=".
QString filterName(const QString &text);

/// Name and pairs of a text. Empty without a name; a part that is no pair is logged and left out; a value in
/// square brackets is a place to be filled and comes out empty.
QVariantMap parse(const QString &text);

/// The text of a map, its pairs in the order of their keys.
QString build(const QVariantMap &map);

/// The map of a catalogue entry: its template with what is selected for each variable, or the variable's
/// first choice. Empty when the entry has no template; every oddity is logged.
QVariantMap fromEntry(const QVariantMap &entry);

} // namespace morvane::effect
