#include "ui/dialogs/DialogHost.h"

#include <memory>
#include <QSignalSpy>
#include <QtTest>

/// The list of recent projects.
class TestLastProjects : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void nineProjectsShowTheEightNewest();
    void showsWhatIsKnownOfAProject();
    void opensTheClickedProject();
    void clickOnTheCurrentProjectDoesNothing();
    void missingProjectCannotBeOpened();
    void missingProjectIsRemovedFromTheList();
    void missingProjectOfAnOddNameIsRemovedToo();
    void missingThumbnailGivesWayToTheEmptyFrame();
    void keyboardGoesThroughTheList();
    void keyboardRemovesAMissingProject();
    void tellsThatNothingIsThere();
    void olderEntriesWithoutFactsAreShown();

private:
    /// Remembers a project; the higher the age, the older.
    QString remember(const QString &name, int age, bool exists = true);
    void openList();
    QList<QQuickItem *> items() const;
    QStringList names() const;
    QStringList stored() const
    {
        return d->window.settings().groupValues("lastprojects").keys();
    }

    std::unique_ptr<DialogHost> d;
};

void TestLastProjects::init()
{
    d = std::make_unique<DialogHost>();
}

void TestLastProjects::cleanup()
{
    const QStringList warnings = d->host.warnings();
    d.reset();
    QCOMPARE(warnings, QStringList());
}

QString TestLastProjects::remember(const QString &name, int age, bool exists)
{
    const QString path = d->filePath(QString("p%1.kzfx").arg(age));
    QFile file(path);
    if (exists && !file.open(QIODevice::WriteOnly))
        qWarning("Cannot write the project");
    d->window.settings().setGroupValue("lastprojects", name,
                                       QVariantMap{{"sortkey", 20251120101500.0 - age},
                                                   {"lastModifiedTime", "10:15:00"},
                                                   {"lastModifiedDate", "20 November, Thursday 2025"},
                                                   {"name", name},
                                                   {"frames", 120.0},
                                                   {"path", path},
                                                   {"framesize", "1920 x 1080"},
                                                   {"tmb", ""},
                                                   {"suffix", ""}});
    return path;
}

void TestLastProjects::openList()
{
    QVERIFY(d->open("LastProjects.qml"));
    QCoreApplication::processEvents();
}

QList<QQuickItem *> TestLastProjects::items() const
{
    return d->parts("lastProject");
}

QStringList TestLastProjects::names() const
{
    QStringList all;
    for (const QQuickItem *item : items())
        all.append(item->property("name").toString());
    return all;
}

void TestLastProjects::nineProjectsShowTheEightNewest()
{
    // The store sorts by name, which must not matter.
    const QStringList byAge{"d", "h", "a", "i", "c", "g", "b", "f", "e"};
    for (int age = 0; age < byAge.size(); ++age)
        remember(byAge[age], age);
    openList();
    QCOMPARE(names(), byAge.mid(0, 8));
    QCOMPARE(stored(), QStringList({"a", "b", "c", "d", "f", "g", "h", "i"}));
}

void TestLastProjects::showsWhatIsKnownOfAProject()
{
    const QString path = remember("The Snow Fox", 0);
    openList();
    const QStringList texts = d->texts();
    QVERIFY(texts.contains("The Snow Fox"));
    QVERIFY(texts.contains("Frames: 120, 1920 x 1080"));
    QVERIFY(texts.contains("20 November, Thursday 2025, 10:15:00"));
    QVERIFY(texts.contains(QFileInfo(path).path()));
}

void TestLastProjects::opensTheClickedProject()
{
    remember("a", 0);
    const QString path = remember("b", 1);
    openList();
    d->click(items().at(1));
    QVERIFY(!d->isOpen());
    QTRY_COMPARE(d->window.calls, QStringList("openProject " + path));
}

void TestLastProjects::clickOnTheCurrentProjectDoesNothing()
{
    d->window.setProjPath(remember("a", 0));
    openList();
    d->click(items().at(0));
    QCoreApplication::processEvents();
    QVERIFY(d->isOpen());
    QCOMPARE(d->window.calls, QStringList());
}

void TestLastProjects::missingProjectCannotBeOpened()
{
    const QString path = remember("a", 0, false);
    openList();
    QVERIFY(d->texts().contains("Not available: " + path));
    QTest::mouseClick(&d->host.window(), Qt::LeftButton, Qt::NoModifier,
                      d->textItem("a")->mapToScene(QPointF(3, 3)).toPoint());
    d->host.key(Qt::Key_Up);
    QCoreApplication::processEvents();
    QVERIFY(d->isOpen());
    QCOMPARE(d->window.calls, QStringList());
}

void TestLastProjects::missingProjectIsRemovedFromTheList()
{
    remember("a", 0);
    remember("b", 1, false);
    openList();
    QCOMPARE(d->parts("remove").size(), 1);
    d->click("remove");
    QCOMPARE(names(), QStringList("a"));
    QCOMPARE(stored(), QStringList("a"));
    QVERIFY(d->isOpen());
}

void TestLastProjects::missingProjectOfAnOddNameIsRemovedToo()
{
    remember("Fox ( take  two )", 0, false);
    openList();
    d->click("remove");
    QCOMPARE(stored(), QStringList());
}

void TestLastProjects::missingThumbnailGivesWayToTheEmptyFrame()
{
    remember("a", 0);
    QVariantMap entry = d->window.settings().groupValues("lastprojects").value("a").toMap();
    entry["tmb"] = "file:///nowhere/at/all.jpg";
    d->window.settings().setGroupValue("lastprojects", "a", entry);
    openList();
    QCOMPARE(items().at(0)->property("thumbnail").toString(), "images/empty_96.png");
}

void TestLastProjects::keyboardGoesThroughTheList()
{
    remember("a", 0);
    const QString path = remember("b", 1);
    remember("c", 2);
    openList();
    QVERIFY(items().at(0)->hasActiveFocus());
    d->host.key(Qt::Key_Up);
    QVERIFY(items().at(0)->hasActiveFocus());
    d->host.key(Qt::Key_Down);
    d->host.key(Qt::Key_Down);
    QVERIFY(items().at(2)->hasActiveFocus());
    d->host.key(Qt::Key_Down);
    d->host.key(Qt::Key_Up);
    QVERIFY(items().at(1)->hasActiveFocus());
    d->host.key(Qt::Key_Return);
    QVERIFY(!d->isOpen());
    QTRY_COMPARE(d->window.calls, QStringList("openProject " + path));
}

void TestLastProjects::keyboardRemovesAMissingProject()
{
    remember("a", 0, false);
    remember("b", 1);
    openList();
    d->host.key(Qt::Key_Space);
    QCOMPARE(stored(), QStringList("b"));
    d->host.key(Qt::Key_Escape);
    QVERIFY(!d->isOpen());
}

void TestLastProjects::tellsThatNothingIsThere()
{
    openList();
    QCOMPARE(items().size(), 0);
    QVERIFY(d->texts().contains("No recent projects"));
    d->host.key(Qt::Key_Escape);
    QVERIFY(!d->isOpen());
}

void TestLastProjects::olderEntriesWithoutFactsAreShown()
{
    d->window.settings().setGroupValue("lastprojects", "bare", QVariantMap{{"name", "bare"}});
    openList();
    QCOMPARE(names(), QStringList("bare"));
    QVERIFY(d->part("remove"));
}

QTEST_MAIN(TestLastProjects)

#include "tst_lastprojects.moc"
