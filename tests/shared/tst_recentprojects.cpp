#include "shared/RecentProjects.h"
#include "shared/Settings.h"

#include <QLocale>
#include <QTemporaryDir>
#include <QTest>

class TestRecentProjects : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void remembersTheProject();
    void monthAndDayComeInTheUsersLanguage();
    void nameIsCleanedAsAKey();
    void addingAgainRenewsTheEntry();
    void someProjectsNeverEnter_data();
    void someProjectsNeverEnter();
    void nineProjectsLeaveTheEightNewest();
    void renewedProjectIsNotTheOldest();
    void oldestWithAnOddNameIsForgotten();
    void entriesWithoutAnAgeGoFirst();
    void otherGroupsStay();

private:
    static RecentProjects::Project project(const QString &name);
    QVariantMap stored() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Settings> m_settings;
    std::unique_ptr<RecentProjects> m_projects;
    QDateTime m_now;
};

void TestRecentProjects::init()
{
    QLocale::setDefault(QLocale::c());
    m_settings.reset();
    m_folder = std::make_unique<QTemporaryDir>();
    m_settings = std::make_unique<Settings>(m_folder->filePath(QStringLiteral("settings.ini")));
    m_now = QDateTime(QDate(2022, 6, 5), QTime(14, 3, 9));
    m_projects = std::make_unique<RecentProjects>(*m_settings, [this] { return m_now; });
}

RecentProjects::Project TestRecentProjects::project(const QString &name)
{
    RecentProjects::Project project;
    project.name = name;
    project.path = QStringLiteral("/films/") + name + QStringLiteral(".kzfx");
    project.frames = 120;
    project.frameSize = QSize(1280, 720);
    project.thumbnailUrl = QStringLiteral("file:////films/t.jpg");
    return project;
}

QVariantMap TestRecentProjects::stored() const
{
    return m_settings->groupValues(QStringLiteral("lastprojects"));
}

void TestRecentProjects::remembersTheProject()
{
    QVERIFY(m_projects->add(project(QStringLiteral("Film"))));
    const QVariantMap expected{
        {QStringLiteral("sortkey"), 20220605140309.0},
        {QStringLiteral("lastModifiedTime"), QStringLiteral("14:03:09")},
        {QStringLiteral("lastModifiedDate"), QStringLiteral("05 June, Sunday 2022")},
        {QStringLiteral("name"), QStringLiteral("Film")},
        {QStringLiteral("frames"), 120.0},
        {QStringLiteral("path"), QStringLiteral("/films/Film.kzfx")},
        {QStringLiteral("framesize"), QStringLiteral("1280 x 720")},
        {QStringLiteral("tmb"), QStringLiteral("file:////films/t.jpg")},
        {QStringLiteral("suffix"), QString()},
    };
    const QVariantMap entry = stored().value(QStringLiteral("Film")).toMap();
    QCOMPARE(entry, expected);
    QCOMPARE(entry.value(QStringLiteral("sortkey")).typeId(), static_cast<int>(QMetaType::Double));
    QCOMPARE(entry.value(QStringLiteral("frames")).typeId(), static_cast<int>(QMetaType::Double));
}

void TestRecentProjects::monthAndDayComeInTheUsersLanguage()
{
    QLocale::setDefault(QLocale(QLocale::Russian));
    m_projects->add(project(QStringLiteral("Film")));
    QCOMPARE(stored().first().toMap().value(QStringLiteral("lastModifiedDate")).toString(),
             QStringLiteral("05 июня, воскресенье 2022"));
}

void TestRecentProjects::nameIsCleanedAsAKey()
{
    m_projects->add(project(QStringLiteral("Film (2)")));
    QCOMPARE(stored().firstKey(), QStringLiteral("Film 2"));
    QCOMPARE(stored().first().toMap().value(QStringLiteral("name")).toString(), QStringLiteral("Film (2)"));
}

void TestRecentProjects::addingAgainRenewsTheEntry()
{
    m_projects->add(project(QStringLiteral("Film")));
    m_now = m_now.addSecs(1);
    m_projects->add(project(QStringLiteral("Film")));
    QCOMPARE(stored().size(), 1);
    QCOMPARE(stored().first().toMap().value(QStringLiteral("sortkey")).toReal(), 20220605140310.0);
}

void TestRecentProjects::someProjectsNeverEnter_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("legacy");
    QTest::newRow("the one named default") << "default"
                                           << "/films/default.kzfx" << false;
    QTest::newRow("of the older format") << "Film"
                                         << "/films/Film.kzf" << true;
    QTest::newRow("without a path") << "Film"
                                    << "" << false;
    QTest::newRow("without a name") << ""
                                    << "/films/.kzfx" << false;
    QTest::newRow("with a name that leaves no key") << "???"
                                                    << "/films/x.kzfx" << false;
}

void TestRecentProjects::someProjectsNeverEnter()
{
    QFETCH(QString, name);
    QFETCH(QString, path);
    QFETCH(bool, legacy);
    RecentProjects::Project odd = project(name);
    odd.path = path;
    odd.legacy = legacy;
    QVERIFY(!m_projects->add(odd));
    QVERIFY(stored().isEmpty());
}

void TestRecentProjects::nineProjectsLeaveTheEightNewest()
{
    // Named against the order of time, so that the order of names is not what decides.
    for (int number = 9; number >= 1; --number) {
        m_projects->add(project(QStringLiteral("Film %1").arg(number)));
        m_now = m_now.addDays(1);
    }
    QCOMPARE(stored().size(), 8);
    QVERIFY(!stored().contains(QStringLiteral("Film 9")));
}

void TestRecentProjects::renewedProjectIsNotTheOldest()
{
    for (int number = 1; number <= 8; ++number) {
        m_projects->add(project(QStringLiteral("Film %1").arg(number)));
        m_now = m_now.addSecs(1);
    }
    m_projects->add(project(QStringLiteral("Film 1")));
    m_now = m_now.addSecs(1);
    m_projects->add(project(QStringLiteral("Film 9")));
    QCOMPARE(stored().size(), 8);
    QVERIFY(stored().contains(QStringLiteral("Film 1")));
    QVERIFY(!stored().contains(QStringLiteral("Film 2")));
}

void TestRecentProjects::oldestWithAnOddNameIsForgotten()
{
    m_projects->add(project(QStringLiteral("a ( b")));
    for (int number = 1; number <= 8; ++number) {
        m_now = m_now.addSecs(1);
        m_projects->add(project(QStringLiteral("Film %1").arg(number)));
    }
    QCOMPARE(stored().size(), 8);
    QVERIFY(!stored().contains(QStringLiteral("a  b")));
}

void TestRecentProjects::entriesWithoutAnAgeGoFirst()
{
    m_settings->setGroupValue(QStringLiteral("lastprojects"), QStringLiteral("zz"),
                              QVariantMap{{QStringLiteral("name"), QStringLiteral("zz")}});
    for (int number = 1; number <= 8; ++number)
        m_projects->add(project(QStringLiteral("Film %1").arg(number)));
    QCOMPARE(stored().size(), 8);
    QVERIFY(!stored().contains(QStringLiteral("zz")));
}

void TestRecentProjects::otherGroupsStay()
{
    m_settings->setGroupValue(QStringLiteral("bookmarks"), QStringLiteral("key"), 1);
    for (int number = 1; number <= 9; ++number)
        m_projects->add(project(QStringLiteral("Film %1").arg(number)));
    QCOMPARE(m_settings->groupValues(QStringLiteral("bookmarks")).size(), 1);
}

QTEST_GUILESS_MAIN(TestRecentProjects)

#include "tst_recentprojects.moc"
