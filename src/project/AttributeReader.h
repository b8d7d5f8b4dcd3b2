#pragma once

#include "project/ProjectFields.h"

#include <QCoreApplication>
#include <QStringList>
#include <QXmlStreamAttributes>

/// Gathers what was refused, in bounded room however bad the file is.
class Refusals
{
    Q_DECLARE_TR_FUNCTIONS(Refusals)

public:
    void add(const QString &sentence);
    /// All sentences, the last one giving the number of those that found no room.
    QStringList sentences() const;

private:
    static constexpr qsizetype m_room = 100;
    QStringList m_sentences;
    int m_beyond = 0;
};

/// Reads the attributes of one element by the rules of the project file. Usable as a visitor of
/// morvane::fields.
class AttributeReader
{
    Q_DECLARE_TR_FUNCTIONS(AttributeReader)

public:
    AttributeReader(const QXmlStreamAttributes &attributes, Refusals &refusals);

    void operator()(const char *name, std::optional<bool> &value);
    void operator()(const char *name, std::optional<int> &value, const morvane::fields::IntegerRule &rule);
    void operator()(const char *name, std::optional<double> &value, const morvane::fields::RealRule &rule);
    void operator()(const char *name, std::optional<QString> &value, const morvane::fields::TextRule &rule);

private:
    QStringView text(const char *name) const;
    void refuse(const char *name, QStringView text);

    const QXmlStreamAttributes &m_attributes;
    Refusals &m_refusals;
};

namespace morvane::fields {

/// The reading rules on a bare text. Empty when the text does not parse; `refused` is set when it parses and
/// makes no sense.
std::optional<int> readInteger(QStringView text, const IntegerRule &rule, bool &refused);
std::optional<double> readReal(QStringView text, const RealRule &rule, bool &refused);

} // namespace morvane::fields
