#pragma once

#include <QString>

namespace morvane {

/// White space simplified and the characters that file names and settings keys do not bear removed. With
/// `removeSeparators` also ":", "*", "|", "=" and ";"; with `isFilename` "-" and blanks become "_".
QString cleanStr(const QString &text, bool isFilename = false, bool removeSeparators = false);

/// Russian letters to Latin ones, blanks to "_"; a character in no list is dropped with a line in the log.
QString translit(const QString &text);

} // namespace morvane
