#include "project/ProcessMark.h"
#include "project/ProjectLock.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

/// Who holds a project.
class TestProjectLock : public QObject
{
    Q_OBJECT

private slots:
    void anUntouchedProjectIsFree();
    void aRunningProgramHoldsItsProject();
    void theOwnerIsToldWithHostAndTime();
    void anEndedProgramIsGone();
    void anotherProgramWithTheSameNumberIsNotTheOwner();
    void anotherHostIsElsewhere();
    void aDamagedLockHasNoOwner();
    void takingAnotherProjectGivesTheFirstBack();
    void aHeldProjectIsNotTaken();
    void theEndGivesTheProjectBack();
    void aProjectTakenOverIsNotGivenBack();
    void aFolderThatCannotBeWrittenHasNoLock();
    void marksTellProcessesApart();

private:
    ProjectLock::Host host(qint64 pid, const QString &name = "studio") const
    {
        return {pid, name, [this](qint64 asked) { return running.value(asked); },
                [] {
                    return QDateTime(QDate(2024, 5, 6), QTime(7, 8));
                }};
    }

    QHash<qint64, QString> running{{10, "a"}, {11, "b"}};
    QTemporaryDir dir;
    QString project = dir.filePath("p.kzfx");
};

void TestProjectLock::anUntouchedProjectIsFree()
{
    QCOMPARE(ProjectLock(host(10)).look(project), ProjectLock::State::Free);
}

void TestProjectLock::aRunningProgramHoldsItsProject()
{
    ProjectLock first(host(10));
    QVERIFY(first.take(project));
    QCOMPARE(first.look(project), ProjectLock::State::Free);
    QCOMPARE(ProjectLock(host(11)).look(project), ProjectLock::State::Held);
}

void TestProjectLock::theOwnerIsToldWithHostAndTime()
{
    ProjectLock first(host(10));
    QVERIFY(first.take(project));
    ProjectLock::Owner owner;
    ProjectLock(host(11)).look(project, &owner);
    QCOMPARE(owner.pid, 10);
    QCOMPARE(owner.host, QStringLiteral("studio"));
    QCOMPARE(owner.since, QDateTime(QDate(2024, 5, 6), QTime(7, 8)));
}

void TestProjectLock::anEndedProgramIsGone()
{
    ProjectLock first(host(10));
    QVERIFY(first.take(project));
    running.remove(10);
    QCOMPARE(ProjectLock(host(11)).look(project), ProjectLock::State::OwnerGone);
    running.insert(10, "a");
}

void TestProjectLock::anotherProgramWithTheSameNumberIsNotTheOwner()
{
    ProjectLock first(host(10));
    QVERIFY(first.take(project));
    running.insert(10, "started later");
    QCOMPARE(ProjectLock(host(11)).look(project), ProjectLock::State::OwnerGone);
    running.insert(10, "a");
}

void TestProjectLock::anotherHostIsElsewhere()
{
    ProjectLock first(host(10, "laptop"));
    QVERIFY(first.take(project));
    QCOMPARE(ProjectLock(host(10)).look(project), ProjectLock::State::HeldElsewhere);
}

void TestProjectLock::aDamagedLockHasNoOwner()
{
    QFile file(ProjectLock::lockPath(project));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("not a lock");
    file.close();
    ProjectLock lock(host(10));
    QCOMPARE(lock.look(project), ProjectLock::State::OwnerGone);
    QVERIFY(lock.take(project));
    QCOMPARE(ProjectLock(host(11)).look(project), ProjectLock::State::Held);
}

void TestProjectLock::takingAnotherProjectGivesTheFirstBack()
{
    ProjectLock lock(host(10));
    QVERIFY(lock.take(project));
    QVERIFY(lock.take(dir.filePath("q.kzfx")));
    QCOMPARE(ProjectLock(host(11)).look(project), ProjectLock::State::Free);
    QCOMPARE(lock.heldProject(), dir.filePath("q.kzfx"));
}

void TestProjectLock::aHeldProjectIsNotTaken()
{
    ProjectLock first(host(10));
    QVERIFY(first.take(project));
    ProjectLock second(host(11));
    QVERIFY(!second.take(project));
    QCOMPARE(first.look(project), ProjectLock::State::Free);
}

void TestProjectLock::theEndGivesTheProjectBack()
{
    {
        ProjectLock lock(host(10));
        QVERIFY(lock.take(project));
        QVERIFY(QFile::exists(ProjectLock::lockPath(project)));
    }
    QVERIFY(!QFile::exists(ProjectLock::lockPath(project)));
}

void TestProjectLock::aProjectTakenOverIsNotGivenBack()
{
    ProjectLock second(host(11));
    {
        ProjectLock first(host(10, "laptop"));
        QVERIFY(first.take(project));
        QVERIFY(second.take(project));
    }
    QVERIFY(QFile::exists(ProjectLock::lockPath(project)));
}

void TestProjectLock::aFolderThatCannotBeWrittenHasNoLock()
{
    ProjectLock lock(host(10));
    QVERIFY(!lock.take(dir.filePath("nowhere/p.kzfx")));
    QCOMPARE(lock.heldProject(), QString());
}

void TestProjectLock::marksTellProcessesApart()
{
    const qint64 self = QCoreApplication::applicationPid();
    QVERIFY(!morvane::processMark(self).isEmpty());
    QCOMPARE(morvane::processMark(self), morvane::processMark(self));
    QVERIFY(morvane::processMark(-1).isEmpty());
    constexpr qint64 neverGiven = 0x7ffffffe;
    QVERIFY(morvane::processMark(neverGiven).isEmpty());
#if defined(Q_OS_LINUX)
    QVERIFY(morvane::processMark(self) != morvane::processMark(1));
#endif
}

QTEST_GUILESS_MAIN(TestProjectLock)
#include "tst_projectlock.moc"
