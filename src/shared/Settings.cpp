#include "shared/Settings.h"

#include "shared/Names.h"
#include "shared/StringText.h"

#include <algorithm>
#include <QFile>
#include <QFileInfo>

namespace {

bool boolFromText(const QString &text, bool fallback)
{
    if (text == QLatin1String("true") || text == QLatin1String("1"))
        return true;
    if (text == QLatin1String("false") || text == QLatin1String("0"))
        return false;
    return fallback;
}

/// An int where the text holds one, so that a script finds what it has stored; else a real, else `fallback`.
QVariant numberFromText(const QString &text, const QVariant &fallback)
{
    bool ok = false;
    const int integer = text.toInt(&ok);
    if (ok)
        return integer;
    const double real = text.toDouble(&ok);
    return ok ? QVariant(real) : fallback;
}

} // namespace

Settings::Settings(QObject *parent)
    : Settings(QSettings(QSettings::IniFormat, QSettings::UserScope, morvane::organisationName,
                         morvane::applicationName)
                   .fileName(),
               parent)
{
}

Settings::Settings(const QString &filePath, QObject *parent) : QObject(parent)
{
    open(filePath);
}

void Settings::open(const QString &filePath)
{
    m_store = std::make_unique<QSettings>(filePath, QSettings::IniFormat);
    m_store->allKeys();
    if (m_store->status() == QSettings::FormatError) {
        m_health = Health::Damaged;
        m_store.reset();
        const QString aside = filePath + QStringLiteral(".damaged");
        QFile::remove(aside);
        if (QFile::rename(filePath, aside))
            m_damagedCopyPath = aside;
        m_store = std::make_unique<QSettings>(filePath, QSettings::IniFormat);
        return;
    }
    const QFileInfo info(filePath);
    if (m_store->status() == QSettings::AccessError || (info.exists() && !info.isReadable())
        || !m_store->isWritable())
        m_health = Health::ReadOnly;
}

QString Settings::filePath() const
{
    return m_store->fileName();
}

QVariant Settings::value(const QString &key, const QVariant &fallback) const
{
    const QVariant stored = m_store->value(key, fallback);
    if (stored.typeId() != QMetaType::QString)
        return stored;
    switch (fallback.typeId()) {
        case QMetaType::Bool:
            return boolFromText(stored.toString(), fallback.toBool());
        case QMetaType::Int:
        case QMetaType::LongLong:
        case QMetaType::Double:
            return numberFromText(stored.toString(), fallback);
        default:
            return stored;
    }
}

void Settings::setValue(const QString &key, const QVariant &value)
{
    m_store->setValue(key, value);
}

bool Settings::contains(const QString &key) const
{
    return m_store->contains(key);
}

void Settings::remove(const QString &key)
{
    m_store->remove(key);
}

void Settings::clear()
{
    m_store->clear();
}

bool Settings::sync()
{
    m_store->sync();
    return m_store->status() == QSettings::NoError;
}

bool Settings::boolean(const QString &key, bool fallback) const
{
    const QVariant stored = m_store->value(key);
    if (stored.typeId() == QMetaType::Bool)
        return stored.toBool();
    return boolFromText(stored.toString(), fallback);
}

int Settings::integer(const QString &key, int fallback) const
{
    const QVariant stored = m_store->value(key);
    bool ok = false;
    // A text is read by itself: a variant would cut a number that is too large.
    const int number =
        stored.typeId() == QMetaType::QString ? stored.toString().toInt(&ok) : stored.toInt(&ok);
    return ok ? number : fallback;
}

int Settings::integer(const QString &key, int fallback, int lowest, int highest) const
{
    return std::clamp(integer(key, fallback), lowest, highest);
}

void Settings::setGroupValue(const QString &group, const QString &key, const QVariant &value)
{
    const QString clean = morvane::cleanStr(key);
    if (clean.isEmpty())
        return;
    m_store->beginGroup(group);
    m_store->setValue(clean, value);
    m_store->endGroup();
}

void Settings::removeGroupValue(const QString &group, const QString &key)
{
    m_store->beginGroup(group);
    // Cleaning twice is not always cleaning once, so a key that was read back is taken as it is.
    const QString stored = m_store->contains(key) ? key : morvane::cleanStr(key);
    if (!stored.isEmpty())
        m_store->remove(stored);
    m_store->endGroup();
}

QVariantMap Settings::groupValues(const QString &group) const
{
    QVariantMap values;
    m_store->beginGroup(group);
    const QStringList keys = m_store->childKeys();
    for (const QString &key : keys) {
        const QVariant value = m_store->value(key);
        const bool isMap = value.typeId() == QMetaType::QVariantMap;
        if (!isMap || value.toMap().contains(QStringLiteral("name")))
            values.insert(key, value);
    }
    m_store->endGroup();
    return values;
}

void Settings::clearGroup(const QString &group)
{
    m_store->beginGroup(group);
    m_store->remove(QString());
    m_store->endGroup();
}
