#include "shared/Settings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void absentKeysGiveTheFallback();
    void valuesLastBeyondTheProgram();
    void numbersAndTruthValuesComeBackAsSuch_data();
    void numbersAndTruthValuesComeBackAsSuch();
    void textStaysText();
    void bytesSurvive();
    void truthValuesOfAnotherKindCountAsAbsent_data();
    void truthValuesOfAnotherKindCountAsAbsent();
    void integersOfAnotherKindCountAsAbsent();
    void integersAreLimited();
    void removeForgetsOneKey();
    void clearForgetsEverything();
    void groupKeysAreCleaned();
    void groupKeyOfForbiddenCharactersOnlySetsNothing();
    void groupsAreSeparate();
    void groupMapsWithoutANameAreLeftOut();
    void groupMapsSurviveTheFile();
    void groupKeyIsRemovedByEitherForm();
    void removingNothingFromAGroupKeepsTheGroup();
    void clearingAGroupKeepsTheRest();
    void emptyFileIsFine();
    void readOnlyPlaceIsTold_data();
    void readOnlyPlaceIsTold();
    void damagedFileIsSetAside();
    void olderDamagedCopyIsReplaced();

private:
    QString writeFile(const QByteArray &content);
    /// The file as another run of the program finds it: within one process an open file is kept in memory.
    std::unique_ptr<Settings> inTheNextRun() const;
    QStringList filesInFolder() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

void TestSettings::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath(QStringLiteral("settings.ini"));
}

QString TestSettings::writeFile(const QByteArray &content)
{
    QFile file(m_path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? m_path : QString();
}

std::unique_ptr<Settings> TestSettings::inTheNextRun() const
{
    const QString copy = m_path + QStringLiteral(".next");
    QFile::remove(copy);
    return QFile::copy(m_path, copy) ? std::make_unique<Settings>(copy) : nullptr;
}

QStringList TestSettings::filesInFolder() const
{
    return QDir(m_folder->path()).entryList(QDir::Files, QDir::Name);
}

void TestSettings::absentKeysGiveTheFallback()
{
    const Settings settings(m_path);
    QCOMPARE(settings.health(), Settings::Health::Good);
    QCOMPARE(settings.filePath(), m_path);
    QVERIFY(!settings.contains(QStringLiteral("x")));
    QVERIFY(!settings.value(QStringLiteral("x")).isValid());
    QCOMPARE(settings.value(QStringLiteral("x"), 5), QVariant(5));
    QCOMPARE(settings.boolean(QStringLiteral("performAutosave"), true), true);
    QCOMPARE(settings.boolean(QStringLiteral("soundsOn"), false), false);
    QCOMPARE(settings.integer(QStringLiteral("inactivityMax"), 90), 90);
    QCOMPARE(settings.integer(QStringLiteral("autosaveDelay"), 3, 3, 60), 3);
    QVERIFY(settings.groupValues(QStringLiteral("lastprojects")).isEmpty());
    QVERIFY(filesInFolder().isEmpty());
}

void TestSettings::valuesLastBeyondTheProgram()
{
    {
        Settings settings(m_path);
        settings.setValue(QStringLiteral("mainwindow/screenNumber"), 2);
        settings.setValue(QStringLiteral("localename"), QStringLiteral("ru_RU"));
        QVERIFY(settings.sync());
    }
    const auto settings = inTheNextRun();
    QCOMPARE(settings->integer(QStringLiteral("mainwindow/screenNumber"), 0), 2);
    QCOMPARE(settings->value(QStringLiteral("localename")).toString(), QStringLiteral("ru_RU"));
}

void TestSettings::numbersAndTruthValuesComeBackAsSuch_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QVariant>("fallback");
    QTest::addColumn<QVariant>("read");
    QTest::newRow("false") << QVariant(false) << QVariant(true) << QVariant(false);
    QTest::newRow("true") << QVariant(true) << QVariant(false) << QVariant(true);
    QTest::newRow("int") << QVariant(7) << QVariant(1) << QVariant(7);
    QTest::newRow("real") << QVariant(0.25) << QVariant(0.8) << QVariant(0.25);
    QTest::newRow("real where an int was thought of") << QVariant(55.5) << QVariant(100) << QVariant(55.5);
    QTest::newRow("whole real") << QVariant(60.0) << QVariant(100.0) << QVariant(60);
    QTest::newRow("text instead of a number")
        << QVariant(QStringLiteral("abc")) << QVariant(100) << QVariant(100);
    QTest::newRow("text instead of a truth value")
        << QVariant(QStringLiteral("abc")) << QVariant(true) << QVariant(true);
}

void TestSettings::numbersAndTruthValuesComeBackAsSuch()
{
    QFETCH(QVariant, stored);
    QFETCH(QVariant, fallback);
    QFETCH(QVariant, read);
    const QString key = QStringLiteral("key");
    Settings(m_path).setValue(key, stored);
    const QVariant value = inTheNextRun()->value(key, fallback);
    QCOMPARE(value.typeId(), read.typeId());
    QCOMPARE(value, read);
}

void TestSettings::textStaysText()
{
    const QString key = QStringLiteral("key");
    Settings(m_path).setValue(key, QStringLiteral("12"));
    QCOMPARE(inTheNextRun()->value(key), QVariant(QStringLiteral("12")));
    QCOMPARE(inTheNextRun()->value(key, QString()), QVariant(QStringLiteral("12")));
}

void TestSettings::bytesSurvive()
{
    const QByteArray bytes("\x00\x01,;=\xff\n", 7);
    Settings(m_path).setValue(QStringLiteral("mainwindow/geometry"), bytes);
    QCOMPARE(inTheNextRun()->value(QStringLiteral("mainwindow/geometry")).toByteArray(), bytes);
}

void TestSettings::truthValuesOfAnotherKindCountAsAbsent_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("whenTrueIsTheFallback");
    QTest::addColumn<bool>("whenFalseIsTheFallback");
    QTest::newRow("true") << QByteArray("true") << true << true;
    QTest::newRow("1") << QByteArray("1") << true << true;
    QTest::newRow("false") << QByteArray("false") << false << false;
    QTest::newRow("0") << QByteArray("0") << false << false;
    QTest::newRow("word") << QByteArray("maybe") << true << false;
    QTest::newRow("number") << QByteArray("7") << true << false;
    QTest::newRow("nothing") << QByteArray() << true << false;
    QTest::newRow("list") << QByteArray("true, false") << true << false;
}

void TestSettings::truthValuesOfAnotherKindCountAsAbsent()
{
    QFETCH(QByteArray, text);
    writeFile("[General]\nflag=" + text + "\n");
    const Settings settings(m_path);
    QTEST(settings.boolean(QStringLiteral("flag"), true), "whenTrueIsTheFallback");
    QTEST(settings.boolean(QStringLiteral("flag"), false), "whenFalseIsTheFallback");
}

void TestSettings::integersOfAnotherKindCountAsAbsent()
{
    writeFile("[General]\nword=many\nreal=2.5\nbig=99999999999\ngood=-4\n");
    const Settings settings(m_path);
    QCOMPARE(settings.integer(QStringLiteral("word"), 9), 9);
    QCOMPARE(settings.integer(QStringLiteral("real"), 9), 9);
    QCOMPARE(settings.integer(QStringLiteral("big"), 9), 9);
    QCOMPARE(settings.integer(QStringLiteral("good"), 9), -4);
}

void TestSettings::integersAreLimited()
{
    Settings settings(m_path);
    const QString key = QStringLiteral("autosaveDelay");
    settings.setValue(key, 2);
    QCOMPARE(settings.integer(key, 3, 3, 60), 3);
    settings.setValue(key, 61);
    QCOMPARE(settings.integer(key, 3, 3, 60), 60);
    settings.setValue(key, 10);
    QCOMPARE(settings.integer(key, 3, 3, 60), 10);
}

void TestSettings::removeForgetsOneKey()
{
    Settings settings(m_path);
    settings.setValue(QStringLiteral("a"), 1);
    settings.setValue(QStringLiteral("b"), 2);
    settings.remove(QStringLiteral("a"));
    QVERIFY(!settings.contains(QStringLiteral("a")));
    QVERIFY(settings.contains(QStringLiteral("b")));
}

void TestSettings::clearForgetsEverything()
{
    Settings settings(m_path);
    settings.setValue(QStringLiteral("a"), 1);
    settings.setGroupValue(QStringLiteral("group"), QStringLiteral("b"), 2);
    settings.clear();
    QVERIFY(!settings.contains(QStringLiteral("a")));
    QVERIFY(settings.groupValues(QStringLiteral("group")).isEmpty());
}

void TestSettings::groupKeysAreCleaned()
{
    Settings settings(m_path);
    settings.setGroupValue(QStringLiteral("group"), QStringLiteral("  a/b?  c "), 1);
    QCOMPARE(settings.groupValues(QStringLiteral("group")), (QVariantMap{{QStringLiteral("ab c"), 1}}));
    QVERIFY(settings.contains(QStringLiteral("group/ab c")));
}

void TestSettings::groupKeyOfForbiddenCharactersOnlySetsNothing()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    Settings settings(m_path);
    settings.setGroupValue(QStringLiteral("group"), QStringLiteral("?/"), 1);
    QVERIFY(settings.groupValues(QStringLiteral("group")).isEmpty());
}

void TestSettings::groupsAreSeparate()
{
    Settings settings(m_path);
    settings.setGroupValue(QStringLiteral("one"), QStringLiteral("key"), 1);
    settings.setGroupValue(QStringLiteral("two"), QStringLiteral("key"), 2);
    settings.setValue(QStringLiteral("key"), 3);
    QCOMPARE(settings.groupValues(QStringLiteral("one")), (QVariantMap{{QStringLiteral("key"), 1}}));
    QCOMPARE(settings.groupValues(QStringLiteral("two")), (QVariantMap{{QStringLiteral("key"), 2}}));
    QCOMPARE(settings.integer(QStringLiteral("key"), 0), 3);
}

void TestSettings::groupMapsWithoutANameAreLeftOut()
{
    Settings settings(m_path);
    const QString group = QStringLiteral("lastprojects");
    const QVariantMap named{{QStringLiteral("name"), QStringLiteral("Film")},
                            {QStringLiteral("frames"), 12.0}};
    settings.setGroupValue(group, QStringLiteral("Film"), named);
    settings.setGroupValue(group, QStringLiteral("nameless"), QVariantMap{{QStringLiteral("frames"), 1.0}});
    settings.setGroupValue(group, QStringLiteral("plain"), QStringLiteral("text"));
    const QVariantMap values = settings.groupValues(group);
    QCOMPARE(values.keys(), (QStringList{QStringLiteral("Film"), QStringLiteral("plain")}));
    QCOMPARE(values.value(QStringLiteral("Film")).toMap(), named);
    QCOMPARE(values.value(QStringLiteral("plain")), QVariant(QStringLiteral("text")));
}

void TestSettings::groupMapsSurviveTheFile()
{
    const QString group = QStringLiteral("lastprojects");
    const QVariantMap entry{{QStringLiteral("name"), QStringLiteral("Фильм")},
                            {QStringLiteral("sortkey"), 20221120102457.0}};
    Settings(m_path).setGroupValue(group, QStringLiteral("Фильм"), entry);
    const QVariantMap values = inTheNextRun()->groupValues(group);
    QCOMPARE(values.value(QStringLiteral("Фильм")).toMap(), entry);
}

void TestSettings::groupKeyIsRemovedByEitherForm()
{
    const QString group = QStringLiteral("group");
    // Cleaning this twice would also take the second blank.
    const QString name = QStringLiteral("a ( b");
    Settings settings(m_path);
    settings.setGroupValue(group, name, 1);
    settings.removeGroupValue(group, settings.groupValues(group).firstKey());
    QVERIFY(settings.groupValues(group).isEmpty());
    settings.setGroupValue(group, name, 1);
    settings.removeGroupValue(group, name);
    QVERIFY(settings.groupValues(group).isEmpty());
}

void TestSettings::removingNothingFromAGroupKeepsTheGroup()
{
    const QString group = QStringLiteral("group");
    Settings settings(m_path);
    settings.setGroupValue(group, QStringLiteral("key"), 1);
    settings.removeGroupValue(group, QStringLiteral("?"));
    settings.removeGroupValue(group, QString());
    QCOMPARE(settings.groupValues(group).size(), 1);
}

void TestSettings::clearingAGroupKeepsTheRest()
{
    Settings settings(m_path);
    settings.setGroupValue(QStringLiteral("one"), QStringLiteral("key"), 1);
    settings.setGroupValue(QStringLiteral("two"), QStringLiteral("key"), 2);
    settings.clearGroup(QStringLiteral("one"));
    QVERIFY(settings.groupValues(QStringLiteral("one")).isEmpty());
    QCOMPARE(settings.groupValues(QStringLiteral("two")).size(), 1);
}

void TestSettings::emptyFileIsFine()
{
    writeFile(QByteArray());
    Settings settings(m_path);
    QCOMPARE(settings.health(), Settings::Health::Good);
    settings.setValue(QStringLiteral("a"), 1);
    QVERIFY(settings.sync());
}

void TestSettings::readOnlyPlaceIsTold_data()
{
    QTest::addColumn<bool>("directoryInPlaceOfTheFile");
    QTest::newRow("folder that cannot be made") << false;
    QTest::newRow("folder in place of the file") << true;
}

void TestSettings::readOnlyPlaceIsTold()
{
    QFETCH(bool, directoryInPlaceOfTheFile);
    QString path = m_path;
    if (directoryInPlaceOfTheFile)
        QVERIFY(QDir().mkpath(path + QStringLiteral("/x")));
    else
        path = writeFile("a file") + QStringLiteral("/settings.ini");
    Settings settings(path);
    QCOMPARE(settings.health(), Settings::Health::ReadOnly);
    QVERIFY(settings.damagedCopyPath().isEmpty());
    QCOMPARE(settings.integer(QStringLiteral("a"), 4), 4);
    settings.setValue(QStringLiteral("a"), 5);
    QCOMPARE(settings.integer(QStringLiteral("a"), 4), 5);
    QVERIFY(!settings.sync());
    QCOMPARE(settings.integer(QStringLiteral("a"), 4), 5);
}

void TestSettings::damagedFileIsSetAside()
{
    const QByteArray damaged = "[General]\nlocalename=ru_RU\nthis line is no setting\n\x01\x02\x03\n";
    writeFile(damaged);
    Settings settings(m_path);
    QCOMPARE(settings.health(), Settings::Health::Damaged);
    QCOMPARE(settings.damagedCopyPath(), m_path + QStringLiteral(".damaged"));
    QFile copy(settings.damagedCopyPath());
    QVERIFY(copy.open(QIODevice::ReadOnly));
    QCOMPARE(copy.readAll(), damaged);
    QVERIFY(!settings.contains(QStringLiteral("localename")));
    settings.setValue(QStringLiteral("a"), 1);
    QVERIFY(settings.sync());
    QCOMPARE(Settings(m_path).health(), Settings::Health::Good);
}

void TestSettings::olderDamagedCopyIsReplaced()
{
    for (const char *content : {"first\n", "second\n"}) {
        writeFile(content);
        QCOMPARE(Settings(m_path).health(), Settings::Health::Damaged);
    }
    QFile copy(m_path + QStringLiteral(".damaged"));
    QVERIFY(copy.open(QIODevice::ReadOnly));
    QCOMPARE(copy.readAll(), QByteArray("second\n"));
}

QTEST_GUILESS_MAIN(TestSettings)

#include "tst_settings.moc"
