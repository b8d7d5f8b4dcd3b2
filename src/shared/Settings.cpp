#include "shared/Settings.h"

#include "shared/Names.h"
#include "shared/StringText.h"

#include <algorithm>
#include <QFile>
#include <QFileInfo>

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
    return m_store->value(key, fallback);
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
    const QString text = stored.toString();
    if (text == QLatin1String("true") || text == QLatin1String("1"))
        return true;
    if (text == QLatin1String("false") || text == QLatin1String("0"))
        return false;
    return fallback;
}

int Settings::integer(const QString &key, int fallback) const
{
    bool ok = false;
    const int stored = m_store->value(key).toInt(&ok);
    return ok ? stored : fallback;
}

int Settings::integer(const QString &key, int fallback, int lowest, int highest) const
{
    return std::clamp(integer(key, fallback), lowest, highest);
}

void Settings::setGroupValue(const QString &group, const QString &key, const QVariant &value)
{
    m_store->beginGroup(group);
    m_store->setValue(morvane::cleanStr(key), value);
    m_store->endGroup();
}

void Settings::removeGroupValue(const QString &group, const QString &key)
{
    m_store->beginGroup(group);
    m_store->remove(morvane::cleanStr(key));
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
