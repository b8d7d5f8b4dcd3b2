#include "shared/LocaleChoice.h"
#include "shared/Settings.h"

#include <QLocale>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

class TestLocaleChoice : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void supportedLanguages();
    void startsWithTheStoredChoice();
    void startsWithTheSystemLocaleWithoutAChoice();
    void storedChoiceThatIsNotSupportedIsIgnored_data();
    void storedChoiceThatIsNotSupportedIsIgnored();
    void choosingStoresAndSignals();
    void choosingTheSameSignalsNothing();
    void choosingTheSystemsOwnLanguageStoresIt();
    void wrongLanguageIsRefusedWithALogLine_data();
    void wrongLanguageIsRefusedWithALogLine();
    void systemLocaleTakesOverAgain();
    void systemLocaleIsThatOfTheSystemUnlessTold();

private:
    const QString m_key = QStringLiteral("localename");
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Settings> m_settings;
};

void TestLocaleChoice::init()
{
    m_settings.reset();
    m_folder = std::make_unique<QTemporaryDir>();
    m_settings = std::make_unique<Settings>(m_folder->filePath(QStringLiteral("settings.ini")));
}

static QString german()
{
    return QStringLiteral("de_DE");
}

void TestLocaleChoice::supportedLanguages()
{
    QCOMPARE(LocaleChoice::supportedLocales(),
             (QStringList{QStringLiteral("ru_RU"), QStringLiteral("en_US")}));
}

void TestLocaleChoice::startsWithTheStoredChoice()
{
    m_settings->setValue(m_key, QStringLiteral("ru_RU"));
    QCOMPARE(LocaleChoice::startLocale(*m_settings, german()), QStringLiteral("ru_RU"));
    QCOMPARE(LocaleChoice(*m_settings, german).localeName(), QStringLiteral("ru_RU"));
}

void TestLocaleChoice::startsWithTheSystemLocaleWithoutAChoice()
{
    const LocaleChoice choice(*m_settings, german);
    QCOMPARE(choice.localeName(), german());
    QCOMPARE(choice.getSystemLocale(), german());
    QVERIFY(!m_settings->contains(m_key));
}

void TestLocaleChoice::storedChoiceThatIsNotSupportedIsIgnored_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::newRow("another language") << QVariant(QStringLiteral("fr_FR"));
    QTest::newRow("another spelling") << QVariant(QStringLiteral("ru"));
    QTest::newRow("no text") << QVariant(QStringList{QStringLiteral("ru_RU"), QStringLiteral("x")});
    QTest::newRow("empty") << QVariant(QString());
}

void TestLocaleChoice::storedChoiceThatIsNotSupportedIsIgnored()
{
    QFETCH(QVariant, stored);
    m_settings->setValue(m_key, stored);
    QCOMPARE(LocaleChoice(*m_settings, german).localeName(), german());
}

void TestLocaleChoice::choosingStoresAndSignals()
{
    LocaleChoice choice(*m_settings, german);
    QSignalSpy changes(&choice, &LocaleChoice::localeNameChanged);
    choice.setLocaleName(QStringLiteral("en_US"));
    QCOMPARE(choice.localeName(), QStringLiteral("en_US"));
    QCOMPARE(m_settings->value(m_key).toString(), QStringLiteral("en_US"));
    QCOMPARE(changes.count(), 1);
}

void TestLocaleChoice::choosingTheSameSignalsNothing()
{
    LocaleChoice choice(*m_settings, german);
    choice.setLocaleName(QStringLiteral("en_US"));
    QSignalSpy changes(&choice, &LocaleChoice::localeNameChanged);
    choice.setLocaleName(QStringLiteral("en_US"));
    QCOMPARE(changes.count(), 0);
}

void TestLocaleChoice::choosingTheSystemsOwnLanguageStoresIt()
{
    LocaleChoice choice(*m_settings, [] { return QStringLiteral("ru_RU"); });
    choice.setLocaleName(QStringLiteral("ru_RU"));
    QCOMPARE(m_settings->value(m_key).toString(), QStringLiteral("ru_RU"));
}

void TestLocaleChoice::wrongLanguageIsRefusedWithALogLine_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("another language") << "fr_FR";
    QTest::newRow("empty") << "";
}

void TestLocaleChoice::wrongLanguageIsRefusedWithALogLine()
{
    QFETCH(QString, name);
    LocaleChoice choice(*m_settings, german);
    QSignalSpy changes(&choice, &LocaleChoice::localeNameChanged);
    QTest::ignoreMessage(QtWarningMsg,
                         qPrintable(QStringLiteral("setLocaleName: Wrong locale '%1'").arg(name)));
    choice.setLocaleName(name);
    QCOMPARE(choice.localeName(), german());
    QVERIFY(!m_settings->contains(m_key));
    QCOMPARE(changes.count(), 0);
}

void TestLocaleChoice::systemLocaleTakesOverAgain()
{
    m_settings->setValue(m_key, QStringLiteral("ru_RU"));
    LocaleChoice choice(*m_settings, german);
    QSignalSpy changes(&choice, &LocaleChoice::localeNameChanged);
    choice.useSystemLocale();
    QCOMPARE(choice.localeName(), german());
    QVERIFY(!m_settings->contains(m_key));
    QCOMPARE(changes.count(), 1);
}

void TestLocaleChoice::systemLocaleIsThatOfTheSystemUnlessTold()
{
    QCOMPARE(LocaleChoice(*m_settings).getSystemLocale(), QLocale::system().name());
}

QTEST_GUILESS_MAIN(TestLocaleChoice)

#include "tst_localechoice.moc"
