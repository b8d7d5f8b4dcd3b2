#include "project/SafeName.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace morvane {

bool isBareFileName(const QString &name)
{
    if (name.isEmpty() || name.size() > maxFileNameBytes || name == "."_L1 || name == ".."_L1)
        return false;
    const bool hasDrive = name.size() > 1 && name.at(1) == u':' && name.at(0).isLetter();
    const bool clean = std::none_of(name.cbegin(), name.cend(), [](QChar c) {
        return c == u'/' || c == u'\\' || c.unicode() < 0x20 || c.unicode() == 0x7f;
    });
    // A UTF-16 unit takes three bytes at most, so that a short name need not be converted to be measured.
    const bool fits = name.size() * 3 <= maxFileNameBytes || name.toUtf8().size() <= maxFileNameBytes;
    return clean && !hasDrive && fits;
}

} // namespace morvane
