#include "app/facade/VocabularyFacet.h"

#include "app/AppControllers.h"

#include "shared/NumberText.h"
#include "shared/StringText.h"

QString VocabularyFacet::formatNumber(int value, int size) const
{
    return morvane::formatNumber(value, size);
}

QString VocabularyFacet::formatNumber(int value) const
{
    return morvane::formatNumber(value);
}

QString VocabularyFacet::formatSetOfNumbers(const QVariantList &vlist, const QString &separator,
                                            int size) const
{
    return morvane::formatSetOfNumbers(vlist, separator, size);
}

QString VocabularyFacet::cleanStr(const QString &str, bool isFilename, bool removeSeparators) const
{
    return morvane::cleanStr(str, isFilename, removeSeparators);
}

QString VocabularyFacet::cleanStr(const QString &str, bool isFilename) const
{
    return morvane::cleanStr(str, isFilename);
}

QString VocabularyFacet::cleanStr(const QString &str) const
{
    return morvane::cleanStr(str);
}

bool VocabularyFacet::strContains(const QString &str, const QString &part) const
{
    return str.contains(part);
}

bool VocabularyFacet::stringEndsWith(const QString &str, const QString &end) const
{
    return str.endsWith(end);
}
