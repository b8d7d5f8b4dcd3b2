#include "project/AttributeReader.h"

#include <algorithm>
#include <cmath>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace morvane::fields {

namespace {

bool isWholeNumber(QStringView text)
{
    text = text.trimmed();
    if (text.startsWith(u'-') || text.startsWith(u'+'))
        text = text.mid(1);
    return !text.isEmpty()
           && std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

bool fits(const QString &text, TextRule::Kind kind)
{
    switch (kind) {
        case TextRule::Kind::FileName:
            return text.isEmpty() || isBareFileName(text);
        case TextRule::Kind::ProfilePath:
            return text.isEmpty()
                   || (QDir::isAbsolutePath(text)
                       && suffixInFilters(QFileInfo(text).suffix().toLower(), iccFilters));
        case TextRule::Kind::Any:
            break;
    }
    return true;
}

} // namespace

std::optional<int> readInteger(QStringView text, const IntegerRule &rule, bool &refused)
{
    bool parsed = false;
    double value = 0.0;
    if (rule.rounded) {
        const float real = text.toFloat(&parsed);
        if (!parsed || real < 0)
            return {};
        value = std::round(real);
    } else {
        value = static_cast<double>(text.toLongLong(&parsed, 10));
        if (!parsed) {
            refused = isWholeNumber(text);
            return {};
        }
    }
    if (value >= rule.lowest && value <= rule.highest)
        return static_cast<int>(value);
    refused = !rule.otherwise;
    return rule.otherwise;
}

std::optional<double> readReal(QStringView text, const RealRule &rule, bool &refused)
{
    bool parsed = false;
    const double value = text.toDouble(&parsed);
    if (!parsed || value < 0)
        return {};
    if (std::isfinite(value) && rule.clamped)
        return std::clamp(value, rule.lowest, rule.highest);
    if (value >= rule.lowest && value <= rule.highest)
        return value;
    refused = true;
    return {};
}

} // namespace morvane::fields

void Refusals::add(const QString &sentence)
{
    if (m_sentences.size() < m_room)
        m_sentences.append(sentence);
    else
        ++m_beyond;
}

QStringList Refusals::sentences() const
{
    QStringList all = m_sentences;
    if (m_beyond > 0)
        all.append(tr("%1 further values of the project file were refused").arg(m_beyond));
    return all;
}

AttributeReader::AttributeReader(const QXmlStreamAttributes &attributes, Refusals &refusals)
    : m_attributes(attributes), m_refusals(refusals)
{
}

QStringView AttributeReader::text(const char *name) const
{
    return m_attributes.value(QLatin1StringView(name));
}

void AttributeReader::refuse(const char *name, QStringView text)
{
    constexpr qsizetype shown = 60;
    const QString excerpt =
        text.size() > shown ? text.left(shown).toString() + QChar(0x2026) : text.toString();
    m_refusals.add(tr("The value \"%1\" of \"%2\" in the project file is refused")
                       .arg(excerpt, QString::fromLatin1(name)));
}

void AttributeReader::operator()(const char *name, std::optional<bool> &value)
{
    bool parsed = false;
    const qlonglong number = text(name).toLongLong(&parsed, 10);
    if (parsed)
        value = number != 0;
}

void AttributeReader::operator()(const char *name, std::optional<int> &value,
                                 const morvane::fields::IntegerRule &rule)
{
    bool refused = false;
    value = morvane::fields::readInteger(text(name), rule, refused);
    if (refused)
        refuse(name, text(name));
}

void AttributeReader::operator()(const char *name, std::optional<double> &value,
                                 const morvane::fields::RealRule &rule)
{
    bool refused = false;
    value = morvane::fields::readReal(text(name), rule, refused);
    if (refused)
        refuse(name, text(name));
}

void AttributeReader::operator()(const char *name, std::optional<QString> &value,
                                 const morvane::fields::TextRule &rule)
{
    const QLatin1StringView key(name);
    if (!m_attributes.hasAttribute(key))
        return;
    QString found = m_attributes.value(key).toString();
    if (found.size() <= rule.longest && morvane::fields::fits(found, rule.kind))
        value = std::move(found);
    else
        refuse(name, found);
}
