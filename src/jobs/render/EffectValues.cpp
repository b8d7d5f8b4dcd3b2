#include "jobs/render/EffectValues.h"

#include "shared/VideoEffect.h"

#include <algorithm>
#include <cmath>
#include <QtDebug>

namespace effectvalues {

namespace {

double cutToHundredths(double value)
{
    return std::trunc(value * 100) / 100;
}

void applyPrefix(QVariant &value, const Record &record)
{
    if (value.typeId() != QMetaType::QString) {
        qWarning().noquote() << "boundEffectValue: property" << record.property
                             << "supposed to be a string but its not";
        return;
    }
    value = record.prefix + value.toString() + record.suffix;
}

void applyRange(QVariant &value, const Record &record)
{
    bool isNumber = false;
    const double given = value.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(given)) {
        qWarning().noquote() << "boundEffectValue: filter property" << record.property << "is not a number";
        return;
    }
    const Record::Range &range = *record.range;
    const double input = cutToHundredths(std::clamp(given, range.inpMin, range.inpMax));
    double output = input * (range.outMax - range.outMin) / (range.inpMax - range.inpMin);
    output = cutToHundredths(std::clamp(output, range.outMin, range.outMax));
    if (range.scale > 0 && range.scale <= 1)
        output *= range.scale;
    value = QString::number(output);
}

bool rangeIsGood(const Record &record)
{
    if (!record.range)
        return true;
    if (record.range->inpMax <= record.range->inpMin) {
        qWarning("boundEffectValue: wrong inpMin or inpMax values set");
        return false;
    }
    if (record.range->outMax <= record.range->outMin) {
        qWarning("boundEffectValue: wrong outMin or outMax values set");
        return false;
    }
    return true;
}

} // namespace

QList<Record> recordsOf(const QString &filterName)
{
    static const QStringList keyed{QStringLiteral("chromakey"), QStringLiteral("colorkey"),
                                   QStringLiteral("chromahold"), QStringLiteral("colorize")};
    using Range = Record::Range;
    if (keyed.contains(filterName))
        return {{QStringLiteral("similarity"), Range{0.01, 1, 0, 100, -1}, {}, {}},
                {QStringLiteral("blend"), Range{0, 1, 0, 100, -1}, {}, {}},
                {QStringLiteral("color"), {}, QStringLiteral("0x"), {}}};
    if (filterName == QLatin1String("cas"))
        return {{QStringLiteral("strength"), Range{0.1, 1, 1, 100, -1}, {}, {}}};
    if (filterName == QLatin1String("bilateral"))
        return {{QStringLiteral("sigmaS"), Range{0, 512, 0, 1000, 0.1}, {}, {}},
                {QStringLiteral("sigmaR"), Range{0, 1, 0, 100, -1}, {}, {}}};
    return {};
}

QString boundEffectValue(const QString &effect, const QString &filterName, const QList<Record> &records)
{
    QVariantMap map = morvane::effect::parse(effect);
    const QString name = map.value(QStringLiteral("filtername")).toString();
    if (name.isEmpty()) {
        qWarning("boundEffectValue: 'filtername' property not found");
        return {};
    }
    if (name != filterName) {
        qWarning().noquote() << QStringLiteral("boundEffectValue: filter '%1' not found").arg(filterName);
        return {};
    }
    for (const Record &record : records) {
        const auto found = map.find(record.property);
        if (found == map.end()) {
            qDebug().noquote() << "boundEffectValue: filter property" << record.property << "not found";
            continue;
        }
        if (!rangeIsGood(record))
            return {};
        if (record.range)
            applyRange(*found, record);
        else
            applyPrefix(*found, record);
    }
    return morvane::effect::build(map);
}

QString adapted(const QString &effect)
{
    if (effect.isEmpty())
        return {};
    const QString name = morvane::effect::filterName(effect);
    const QList<Record> records = recordsOf(name);
    const QString text = records.isEmpty() ? effect : boundEffectValue(effect, name, records);
    qDebug().noquote() << "Filter to be passed to the renderer:" << text;
    return text;
}

} // namespace effectvalues
