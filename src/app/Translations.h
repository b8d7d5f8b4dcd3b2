#pragma once

#include <QString>
#include <QStringList>

class QObject;

/// The program's texts in other languages: one file per screen or class, compiled into the program.
namespace translations {

/// Every name that a translation file may have, in the order of loading.
const QStringList &names();

/// Installs what there is for a locale such as "ru_RU"; the translators belong to `owner`. A file that is not
/// there is no error: English is the language of the source. Returns how many were installed.
int install(const QString &locale, QObject *owner);

} // namespace translations
