#include "shared/global/EffectState.h"

#include "shared/StringText.h"
#include "shared/VideoEffect.h"

namespace effect = morvane::effect;

namespace {

// The entry with what the effect in `text` holds selected, so that reading an effect does not undo it.
QVariantMap withValuesOf(QVariantMap entry, const QString &text)
{
    const QVariantMap current = effect::parse(text);
    QVariantList variables = entry.value(QStringLiteral("variables")).toList();
    for (QVariant &variable : variables) {
        QVariantMap map = variable.toMap();
        const QString value = current.value(map.value(QStringLiteral("propname")).toString()).toString();
        if (!value.isEmpty()) {
            map.insert(QStringLiteral("selected"), value);
            map.remove(QStringLiteral("control"));
        }
        variable = map;
    }
    entry.insert(QStringLiteral("filter"), text);
    entry.insert(QStringLiteral("variables"), variables);
    return entry;
}

} // namespace

void EffectState::setVideoEffectsString(const QString &text)
{
    const QString clean = morvane::cleanStr(text);
    if (clean != m_videoEffectsString || m_untold) {
        m_videoEffectsString = clean;
        m_untold = false;
        emit videoEffectsStringChanged();
        emit changed();
    }
    setVideoEffectsStringParsed();
}

void EffectState::setVideoEffectsStringParsed()
{
    setVideoEffectsStringParsed(m_videoEffectsString);
    setApplyPostProcessEffects(!m_videoEffectsString.isEmpty());
}

void EffectState::setApplyPostProcessEffects(bool apply)
{
    if (apply == m_applyPostProcessEffects)
        return;
    m_applyPostProcessEffects = apply;
    emit applyPostProcessEffectsChanged();
}

QVariant EffectState::videoEffectValue(const QString &key, int type) const
{
    QVariant value = effect::parse(m_videoEffectsString).value(key);
    if (!value.isValid() || !value.convert(QMetaType(type)))
        return {};
    return value;
}

QVariantMap EffectState::parseAndApplySingleVideoEffect(const QVariantMap &obj, bool fireUpdateSignal,
                                                        bool updateEffectsString)
{
    const QVariantMap map = effect::fromEntry(obj);
    if (map.isEmpty() || !updateEffectsString)
        return map;
    const QString text = map.value(QStringLiteral("filter")).toString();
    if (fireUpdateSignal) {
        setVideoEffectsString(text);
        return map;
    }
    const QString clean = morvane::cleanStr(text);
    m_untold = m_untold || clean != m_videoEffectsString;
    m_videoEffectsString = clean;
    return map;
}

QVariantMap EffectState::parseCurrentVideoEffect(const QVariantList &obj, bool fireUpdateEvent)
{
    const QString name = getFilterName(m_videoEffectsString);
    if (name.isEmpty())
        return {};
    for (const QVariant &candidate : obj) {
        const QVariantMap entry = candidate.toMap();
        if (getFilterName(entry.value(QStringLiteral("filter")).toString()) == name)
            return parseAndApplySingleVideoEffect(withValuesOf(entry, m_videoEffectsString), fireUpdateEvent);
    }
    return {};
}

QString EffectState::getFilterName(const QString &str) const
{
    return effect::filterName(str);
}
