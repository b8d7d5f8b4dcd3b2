#include "app/AppInfo.h"

#include <QTest>

class TestAppInfo : public QObject
{
    Q_OBJECT

private slots:
    void fullNameLeadsWithNameTypeAndVersion();
    void titleShowsWhatIsKnown_data();
    void titleShowsWhatIsKnown();
    void aboutHasEveryFact();
    void aReleaseHasNoSuffix();
};

void TestAppInfo::fullNameLeadsWithNameTypeAndVersion()
{
    QCOMPARE(appinfo::fullName(), "Morvane Capture " + appinfo::versionText());
    QVERIFY(appinfo::versionText().startsWith("3.9.7."));
    QCOMPARE(appinfo::version().major, 3);
    QCOMPARE(appinfo::version().minor, 9);
    QCOMPARE(appinfo::version().bugfix, 7);
}

void TestAppInfo::titleShowsWhatIsKnown_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<int>("threads");
    QTest::addColumn<QString>("project");
    QTest::addColumn<QString>("rest");
    QTest::newRow("all") << "DSLR" << 4 << "/film/a.kzfx"
                         << " [DSLR] [4] - [ /film/a.kzfx ][*]";
    QTest::newRow("no device") << "" << 4 << "/film/a.kzfx"
                               << " [4] - [ /film/a.kzfx ][*]";
    QTest::newRow("no project") << "Webcam" << 2 << ""
                                << " [Webcam] [2][*]";
    QTest::newRow("unknown threads") << "Webcam" << -1 << ""
                                     << " [Webcam][*]";
    QTest::newRow("nothing") << "" << -1 << ""
                             << "[*]";
}

void TestAppInfo::titleShowsWhatIsKnown()
{
    QFETCH(QString, device);
    QFETCH(int, threads);
    QFETCH(QString, project);
    QFETCH(QString, rest);
    QCOMPARE(appinfo::windowTitle(device, threads, project), appinfo::fullName() + rest);
}

void TestAppInfo::aboutHasEveryFact()
{
    const QVariantMap about = appinfo::about();
    const QStringList keys{"appName", "appType",   "appVersion", "appWebsite", "buildDate",
                           "openCV",  "qtVersion", "runningOS",  "vendorName", "vendorWebsite"};
    QStringList sorted = keys;
    sorted.sort();
    QCOMPARE(about.keys(), sorted);
    for (const QString &key : keys)
        QVERIFY2(!about.value(key).toString().isEmpty(), qPrintable(key));
    QCOMPARE(about.value("buildDate").toString(), QString("12.06.2022"));
    QCOMPARE(about.value("appName").toString(), QString("Morvane"));
    QCOMPARE(about.value("appType").toString(), QString("Capture"));
}

void TestAppInfo::aReleaseHasNoSuffix()
{
    QCOMPARE(appinfo::buildSuffix(), QString());
}

QTEST_GUILESS_MAIN(TestAppInfo)
#include "tst_appinfo.moc"
