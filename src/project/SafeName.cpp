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
    return clean && !hasDrive && name.toUtf8().size() <= maxFileNameBytes;
}

} // namespace morvane
