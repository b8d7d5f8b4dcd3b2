#include "project/ProjectVersion.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int oldestMajor = 3;
constexpr double oldestLegacy = 2.0;

ProjectVersion::Verdict refusal(const QString &message, int major)
{
    return {Zum::NotMorvaneFile, message, u"Version %1"_s.arg(major)};
}

} // namespace

ProjectVersion::Verdict ProjectVersion::check(const Facts &facts)
{
    if (!facts.hasVersionElement)
        return {Zum::NotMorvaneFile, u"No 'Version' node"_s, {}};
    if (!facts.majorText && !facts.verText)
        return {Zum::NotMorvaneFile, tr("Unrecognized project version. Version attribute not found"), {}};

    const int major = facts.majorText ? facts.majorText->toInt() : 0;
    if (facts.rootTag == "MorvaneProject"_L1 && major >= oldestMajor)
        return {Zum::FileIsOk, {}, {}};
    if (facts.rootTag != "Project"_L1) {
        return refusal(tr("Unrecognized root tag name, unrecognized version tag or version number"), major);
    }

    const QString text = facts.verText.value_or(QString());
    bool parsed = false;
    const double version = text.toDouble(&parsed);
    if (!parsed)
        return refusal(tr("Wrong version number for legacy project (%1)").arg(text), major);
    if (version >= oldestLegacy && version < oldestMajor)
        return {Zum::LegacyFile, tr("Legacy version (%1). Converting...").arg(version), {}};
    return refusal(tr("Unrecognized project version (%1)").arg(version), major);
}
