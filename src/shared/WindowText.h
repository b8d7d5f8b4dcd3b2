#pragma once

#include <QCoreApplication>
#include <QString>

namespace morvane {

/// The translation of a text that belongs to the main window, for classes that work on its behalf: the
/// translators come one per screen, and theirs is the window's. Mark the text with
/// QT_TRANSLATE_NOOP("MainWindow", ...).
inline QString windowText(const char *source)
{
    return QCoreApplication::translate("MainWindow", source);
}

} // namespace morvane
