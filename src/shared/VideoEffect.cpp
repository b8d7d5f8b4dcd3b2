#include "shared/VideoEffect.h"

#include <algorithm>
#include <optional>
#include <QColor>
#include <QtDebug>

namespace morvane::effect {

namespace {

const QString filterKey = QStringLiteral("filter");
const QString nameKey = QStringLiteral("filtername");

bool isList(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QStringList;
}

bool isNumber(const QVariant &value)
{
    switch (value.typeId()) {
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
        case QMetaType::Double:
        case QMetaType::Float:
            return true;
        default:
            return false;
    }
}

// A number chosen on a scale of greys stands for the grey.
QString asText(const QVariant &value, const QVariant &control)
{
    if (value.typeId() == QMetaType::QColor)
        return value.value<QColor>().name();
    bool number = false;
    const double level = value.toDouble(&number);
    if (control.isValid() && control.toInt() == Grayscale && number) {
        const int grey = static_cast<int>(std::clamp(level, 0.0, 255.0));
        return QColor(grey, grey, grey).name();
    }
    return value.toString();
}

std::optional<QVariant> firstChoice(const QVariant &choices)
{
    if (!isList(choices)) {
        qWarning("We have props but cannot extract them. Type:%s", choices.typeName());
        return {};
    }
    const QVariantList rows = choices.toList();
    if (rows.isEmpty()) {
        qWarning("No props provided");
        return {};
    }
    if (rows.first().typeId() != QMetaType::QVariantMap) {
        qWarning("Found first default value but its (%s), not a Map as it should be",
                 rows.first().typeName());
        return {};
    }
    const QVariantMap row = rows.first().toMap();
    const auto value = row.constFind(QStringLiteral("value"));
    if (value == row.constEnd()) {
        qWarning("Found a first default item but it has no 'value'");
        return {};
    }
    const bool colour = value->typeId() == QMetaType::QColor;
    if (value->typeId() != QMetaType::QString && !isNumber(*value) && !colour) {
        qWarning("Unsupported type of default value (%s) passed to parseAndApplySingleVideoEffect method",
                 value->typeName());
        return {};
    }
    return *value;
}

// The key and the value of one variable; no value when none can be found.
std::pair<QString, std::optional<QString>> process(const QVariantMap &variable)
{
    const QVariant name = variable.value(QStringLiteral("propname"));
    const QVariant selected = variable.value(QStringLiteral("selected"));
    if (!name.isValid() && !selected.isValid()) {
        qWarning("Type of 'propname' is %s, type of 'selected' is %s", name.typeName(), selected.typeName());
        return {};
    }
    const QVariant control = variable.value(QStringLiteral("control"));
    if (!selected.toString().isEmpty())
        return {name.toString(), asText(selected, control)};
    const QVariant choices = variable.value(QStringLiteral("prop"));
    if (!choices.isValid()) {
        qWarning("No props provided");
        return {name.toString(), {}};
    }
    const std::optional<QVariant> first = firstChoice(choices);
    if (!first)
        return {name.toString(), {}};
    return {name.toString(), asText(*first, control)};
}

} // namespace

QString filterName(const QString &text)
{
    return text.section(QLatin1Char('='), 0, 0);
}

QVariantMap parse(const QString &text)
{
    const QString name = filterName(text).simplified();
    if (name.isEmpty())
        return {};
    QVariantMap map{{filterKey, text}, {nameKey, name}};
    const QStringList parts = text.section(QLatin1Char('='), 1).split(QLatin1Char(':'), Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const QStringList pair = part.split(QLatin1Char('='));
        if (pair.size() != 2) {
            qWarning().noquote() << "Too much values in: " << part;
            continue;
        }
        const bool place = pair.at(1).contains(QLatin1Char('[')) || pair.at(1).contains(QLatin1Char(']'));
        // The two keys of the map itself are none that a filter could have.
        if (pair.at(0) != filterKey && pair.at(0) != nameKey)
            map.insert(pair.at(0), place ? QString() : pair.at(1));
    }
    return map;
}

QString build(const QVariantMap &map)
{
    QString text = map.value(nameKey).toString() + QLatin1Char('=');
    qsizetype position = 0;
    for (auto pair = map.constBegin(); pair != map.constEnd(); ++pair, ++position) {
        if (pair.key() == filterKey || pair.key() == nameKey)
            continue;
        text += pair.key() + QLatin1Char('=') + pair.value().toString();
        if (position < map.size() - 1)
            text += QLatin1Char(':');
    }
    return text;
}

QVariantMap fromEntry(const QVariantMap &entry)
{
    if (entry.isEmpty()) {
        qWarning("parseAndApplySingleVideoEffect: No data");
        return {};
    }
    const QVariant variables = entry.value(QStringLiteral("variables"));
    if (!isList(variables)) {
        qWarning("No values");
        qWarning().noquote() << QStringLiteral("Type: %1, exists: %2")
                                    .arg(QString::fromLatin1(variables.typeName()))
                                    .arg(entry.contains(QStringLiteral("variables")));
    }
    const QVariant pattern = entry.value(filterKey);
    if (pattern.typeId() != QMetaType::QString) {
        qWarning("No filter string. Return an empty map");
        return {};
    }
    QVariantMap map = parse(pattern.toString());
    if (map.isEmpty()) {
        qWarning("Video filter name is empty. Cannot continue");
        return {};
    }
    for (const QVariant &variable : variables.toList()) {
        if (variable.typeId() != QMetaType::QVariantMap)
            continue;
        const auto [key, value] = process(variable.toMap());
        if (value)
            map.insert(key, *value);
        else
            qWarning("Wrong ret value from processFilterProperty");
    }
    map.insert(filterKey, build(map));
    return map;
}

} // namespace morvane::effect
