#include "shared/LocaleChoice.h"

#include "shared/Names.h"
#include "shared/Settings.h"

#include <QLocale>
#include <QtDebug>

LocaleChoice::LocaleChoice(Settings &settings, SystemLocale systemLocale, QObject *parent)
    : QObject(parent), m_settings(settings), m_systemLocale(std::move(systemLocale)),
      m_localeName(startLocale(settings, m_systemLocale()))
{
}

QStringList LocaleChoice::supportedLocales()
{
    return {QStringLiteral("ru_RU"), QStringLiteral("en_US")};
}

QString LocaleChoice::systemLocaleName()
{
    return QLocale::system().name();
}

QString LocaleChoice::startLocale(const Settings &settings, const QString &systemLocale)
{
    const QVariant stored = settings.value(morvane::localeKey);
    const bool chosen =
        stored.typeId() == QMetaType::QString && supportedLocales().contains(stored.toString());
    return chosen ? stored.toString() : systemLocale;
}

QString LocaleChoice::localeName() const
{
    return m_localeName;
}

void LocaleChoice::setLocaleName(const QString &name)
{
    if (!supportedLocales().contains(name)) {
        qWarning().noquote() << QStringLiteral("setLocaleName: Wrong locale '%1'").arg(name);
        return;
    }
    m_settings.setValue(morvane::localeKey, name);
    changeTo(name);
}

void LocaleChoice::useSystemLocale()
{
    m_settings.remove(morvane::localeKey);
    changeTo(getSystemLocale());
}

QString LocaleChoice::getSystemLocale() const
{
    return m_systemLocale();
}

void LocaleChoice::changeTo(const QString &name)
{
    if (name == m_localeName)
        return;
    m_localeName = name;
    emit localeNameChanged();
}
