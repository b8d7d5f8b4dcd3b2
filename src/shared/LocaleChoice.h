#pragma once

#include <functional>
#include <QObject>
#include <QStringList>

class Settings;

/// The language of the interface: what the user chose, or else the system's. A choice takes effect at the
/// next start. Main thread only.
class LocaleChoice : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString localeName READ localeName WRITE setLocaleName NOTIFY localeNameChanged)

public:
    using SystemLocale = std::function<QString()>;

    explicit LocaleChoice(Settings &settings, SystemLocale systemLocale = systemLocaleName,
                          QObject *parent = nullptr);

    /// The languages that can be chosen.
    static QStringList supportedLocales();
    /// The name of the system's locale, such as "en_US".
    static QString systemLocaleName();
    /// What the program starts with: the stored choice when it is a supported one, else the system's locale,
    /// supported or not.
    static QString startLocale(const Settings &settings, const QString &systemLocale);

    QString localeName() const;

public slots:
    /// Stores one of supportedLocales(); another name changes nothing but leaves a line in the log.
    void setLocaleName(const QString &name);
    /// Forgets the choice: the system's locale holds again.
    void useSystemLocale();
    QString getSystemLocale() const;

signals:
    void localeNameChanged();

private:
    void changeTo(const QString &name);

    Settings &m_settings;
    SystemLocale m_systemLocale;
    QString m_localeName;
};
