#include "project/ProcessMark.h"
#include "project/ProjectLock.h"
#include "support/FullDisk.h"
#include "ui/project/FilmWindow.h"

#include <unistd.h>
#include <QTest>
#include <QThreadPool>

/// Whatever the program refuses or asks, nothing that was on the disk goes away by it.
class TestProjectNothingLost : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void savingAnswerSavesBeforeTheOtherProjectOpens();
    void goingOnAnswerOpensTheOtherProjectWithoutSaving();
    void closingTheQuestionGoesBackToWork();
    void savingAnswerLeadsToTheNewProjectsFileDialog();
    void goingOnAnswerMakesTheNewProjectWithoutSaving();
    void givingUpTheNewProjectLeavesTheOpenOne();
    void quittingAsksToo_data();
    void quittingAsksToo();

    void pictureWithoutAFrameIsAdded();
    void pictureWithoutAFrameIsMovedToTheRecycleFolder();
    void pictureWithoutAFrameIsLeftAndNotOfferedAgain();

    void projectOfARunningProgramIsNotOpened();
    void projectOfARunningProgramIsNotWrittenOver();
    void projectOfAProgramThatHasEndedMayBeOpened();

    void damagedProjectIsToldAndLeftAlone_data();
    void damagedProjectIsToldAndLeftAlone();
    void damagedProjectIsNotImported_data();
    void damagedProjectIsNotImported();
    void frameWithAPathIsRefusedAndNothingOutsideIsTouched();
    void saveThatFindsNoRoomIsToldAndLeavesTheOldFile();
    void shotThatFindsNoRoomIsToldAndAskedAboutOnTheWayOut();
    void answerToLeaveHoldsWhenTheSaveOfAShotFailsAfterIt();

private:
    void makeFilms();
    /// Mirrors the current frame of the open project.
    void edit();
    void answer(const QString &text);
    bool isOpen(const QString &project);
    bool write(const QString &name, const QByteArray &bytes);
    /// The text of every message and every dialog so far.
    QString told();
    void damagedProjects();
    void damage(const QString &how);
    /// Marks a project as open in the program of that id.
    void lockFor(const QString &project, qint64 pid, const QString &mark);

    std::unique_ptr<FilmWindow> d;
};

void TestProjectNothingLost::init()
{
    d = std::make_unique<FilmWindow>();
}

void TestProjectNothingLost::cleanup()
{
    const QStringList warnings = d->sceneWarnings();
    d.reset();
    QCOMPARE(warnings, QStringList());
}

/// "other" with the frames 10 and 11 and "film" with 0 to 2, which is open.
void TestProjectNothingLost::makeFilms()
{
    QVERIFY(d->create("other"));
    d->shoot("other", 10, 2);
    QVERIFY(d->create("film"));
    d->shoot("film", 0, 3);
    QVERIFY(!d->shell().global().projectChanged());
}

void TestProjectNothingLost::edit()
{
    d->clickTip("Mirror");
    QVERIFY(d->waitIdle());
    QCOMPARE(d->rows(), (QStringList{"0", "1", "2m"}));
    QVERIFY(d->shell().global().projectChanged());
}

void TestProjectNothingLost::answer(const QString &text)
{
    QTRY_COMPARE(d->dialogFile(), QString("SaveConfirmDialog.qml"));
    d->clickText(text);
}

bool TestProjectNothingLost::isOpen(const QString &project)
{
    return QTest::qWaitFor([&] {
               MainWindow &window = d->shell().window();
               return window.projectLoaded() && window.projName() == project;
           })
           && d->waitIdle();
}

bool TestProjectNothingLost::write(const QString &name, const QByteArray &bytes)
{
    QFile file(d->path(name));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QString TestProjectNothingLost::told()
{
    QStringList texts = d->shell().messages();
    for (const FakeDialogs::Asked &asked : d->dialogs().asked)
        texts.append(asked.caption + ": " + asked.start);
    const QVariant errors = d->shell().evaluate(
        "Array.from({length: robotMessgModel.count}, (_, i) => robotMessgModel.get(i).text)");
    return (texts + errors.toStringList()).join('\n');
}

void TestProjectNothingLost::savingAnswerSavesBeforeTheOtherProjectOpens()
{
    makeFilms();
    edit();
    d->dialogs().pathAnswers.append(d->path("other.kzfx"));
    d->press(Qt::Key_O, Qt::ControlModifier);
    answer("Ok");
    QVERIFY(isOpen("other"));
    QCOMPARE(d->rowsOnDisk("film"), (QStringList{"0", "1", "2m"}));
    QCOMPARE(d->rows(), (QStringList{"10", "11"}));
}

void TestProjectNothingLost::goingOnAnswerOpensTheOtherProjectWithoutSaving()
{
    makeFilms();
    edit();
    const auto before = d->listing();
    d->dialogs().pathAnswers.append(d->path("other.kzfx"));
    d->press(Qt::Key_O, Qt::ControlModifier);
    answer("Cancel");
    QVERIFY(isOpen("other"));
    QCOMPARE(d->rows(), (QStringList{"10", "11"}));
    QCOMPARE(d->listing(), before);
}

void TestProjectNothingLost::closingTheQuestionGoesBackToWork()
{
    makeFilms();
    edit();
    const auto before = d->listing();
    d->press(Qt::Key_O, Qt::ControlModifier);
    QTRY_COMPARE(d->dialogFile(), QString("SaveConfirmDialog.qml"));
    d->press(Qt::Key_Escape);
    QTRY_COMPARE(d->dialogFile(), QString());
    QCOMPARE(d->dialogs().asked.constLast().kind, QString("save"));
    QVERIFY(isOpen("film"));
    QVERIFY(d->shell().global().projectChanged());
    QCOMPARE(d->listing(), before);
    // What had waited for the answer does not follow a later save.
    d->press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(isOpen("film"));
    QCOMPARE(d->rowsOnDisk("film"), (QStringList{"0", "1", "2m"}));
}

void TestProjectNothingLost::savingAnswerLeadsToTheNewProjectsFileDialog()
{
    makeFilms();
    edit();
    d->dialogs().pathAnswers.append(d->path("third.kzfx"));
    d->chooseInMenu("Create New Project");
    answer("Ok");
    QVERIFY(isOpen("third"));
    QCOMPARE(d->rowsOnDisk("film"), (QStringList{"0", "1", "2m"}));
    QCOMPARE(d->frames().framesCount(), 0);
}

void TestProjectNothingLost::goingOnAnswerMakesTheNewProjectWithoutSaving()
{
    makeFilms();
    edit();
    d->dialogs().pathAnswers.append(d->path("third.kzfx"));
    d->chooseInMenu("Create New Project");
    answer("Cancel");
    QVERIFY(isOpen("third"));
    QCOMPARE(d->rowsOnDisk("film"), (QStringList{"0", "1", "2"}));
}

void TestProjectNothingLost::givingUpTheNewProjectLeavesTheOpenOne()
{
    makeFilms();
    edit();
    const auto before = d->listing();
    d->chooseInMenu("Create New Project");
    answer("Cancel");
    QTRY_COMPARE(d->dialogFile(), QString());
    QTRY_COMPARE(d->dialogs().asked.constLast().caption, QString("Create New Project..."));
    QVERIFY(isOpen("film"));
    QCOMPARE(d->rows(), (QStringList{"0", "1", "2m"}));
    QCOMPARE(d->listing(), before);
}

void TestProjectNothingLost::quittingAsksToo_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("quits");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("saved") << "Ok" << 1 << QStringList{"0", "1", "2m"};
    QTest::newRow("not saved") << "Cancel" << 1 << QStringList{"0", "1", "2"};
    QTest::newRow("given up") << QString() << 0 << QStringList{"0", "1", "2"};
}

void TestProjectNothingLost::quittingAsksToo()
{
    QFETCH(QString, text);
    QFETCH(int, quits);
    makeFilms();
    edit();
    d->press(Qt::Key_Q, Qt::ControlModifier);
    QCOMPARE(d->shell().quits(), 0);
    QTRY_COMPARE(d->dialogFile(), QString("SaveConfirmDialog.qml"));
    if (text.isEmpty())
        d->press(Qt::Key_Escape);
    else
        d->clickText(text);
    QTRY_COMPARE(d->dialogFile(), QString());
    QTRY_COMPARE(d->shell().quits(), quits);
    QTEST(d->rowsOnDisk("film"), "rows");
}

void TestProjectNothingLost::pictureWithoutAFrameIsAdded()
{
    makeFilms();
    QVERIFY(d->writePicture("film", 7));
    d->restart();
    const auto before = d->listing();
    d->dialogs().askAnswers.append(morvane::Dialogs::Answer::Yes);
    QVERIFY(d->open("film"));
    QTRY_COMPARE(d->rows(), (QStringList{"0", "1", "2", "7"}));
    QVERIFY(told().contains("Pictures Without a Frame: 1 captured picture"));
    QVERIFY(d->shell().global().projectChanged());
    QCOMPARE(d->listing(), before);
    d->press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(d->rowsOnDisk("film"), (QStringList{"0", "1", "2", "7"}));
    QTRY_COMPARE(d->thumbnailsOnStrip(), 4);
}

void TestProjectNothingLost::pictureWithoutAFrameIsMovedToTheRecycleFolder()
{
    makeFilms();
    QVERIFY(d->writePicture("film", 7));
    d->restart();
    auto expected = d->listing();
    const QString name = FilmWindow::pictureName(7);
    const QByteArray hash = expected.take(d->capturedFolder("film") + name);
    const QByteArray thumbnailHash =
        expected.take(d->capturedFolder("film") + "tmb/" + FilmWindow::pictureName(7, "mini"));
    QVERIFY(!hash.isEmpty());
    d->dialogs().askAnswers.append(morvane::Dialogs::Answer::No);
    QVERIFY(d->open("film"));
    QTRY_VERIFY(!QFile::exists(d->capturedFolder("film") + name));
    QVERIFY(d->waitIdle());
    auto after = d->listing();
    for (auto it = expected.cbegin(); it != expected.cend(); ++it)
        QCOMPARE(after.value(it.key(), "gone"), it.value());
    QVERIFY(after.values().contains(hash));
    QVERIFY(after.values().contains(thumbnailHash));
    QCOMPARE(d->rows(), (QStringList{"0", "1", "2"}));
}

void TestProjectNothingLost::pictureWithoutAFrameIsLeftAndNotOfferedAgain()
{
    makeFilms();
    QVERIFY(d->writePicture("film", 7));
    d->restart();
    const auto before = d->listing();
    QVERIFY(d->open("film"));
    QTRY_VERIFY(told().contains("Pictures Without a Frame"));
    QVERIFY(d->waitIdle());
    QCOMPARE(d->rows(), (QStringList{"0", "1", "2"}));
    const auto after = d->listing();
    for (auto it = before.cbegin(); it != before.cend(); ++it)
        QCOMPARE(after.value(it.key(), "gone"), it.value());
    d->restart();
    QVERIFY(d->open("film"));
    QVERIFY(d->waitIdle());
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    QVERIFY(!told().contains("Pictures Without a Frame"));
}

void TestProjectNothingLost::lockFor(const QString &project, qint64 pid, const QString &mark)
{
    ProjectLock::Host host = ProjectLock::Host::system();
    host.pid = pid;
    host.processMark = [mark](qint64) {
        return mark;
    };
    // Left behind, as by a program that goes on; what it would give back is put in its place again.
    const QString path = d->path(project + ".kzfx");
    QByteArray content;
    {
        ProjectLock lock(host);
        QVERIFY(lock.take(path));
        QFile file(ProjectLock::lockPath(path));
        QVERIFY(file.open(QIODevice::ReadOnly));
        content = file.readAll();
    }
    QFile file(ProjectLock::lockPath(path));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

void TestProjectNothingLost::projectOfARunningProgramIsNotOpened()
{
    makeFilms();
    edit();
    lockFor("other", getppid(), morvane::processMark(getppid()));
    d->press(Qt::Key_S, Qt::ControlModifier);
    const auto before = d->listing();
    d->dialogs().pathAnswers.append(d->path("other.kzfx"));
    d->press(Qt::Key_O, Qt::ControlModifier);
    QCOMPARE(d->dialogs().asked.constLast().kind, QString("warn"));
    QVERIFY(told().contains("Project Is Already Open"));
    QVERIFY(told().contains(QString("by the program with the number %1").arg(getppid())));
    QVERIFY(isOpen("film"));
    QCOMPARE(d->rows(), (QStringList{"0", "1", "2m"}));
    QCOMPARE(d->listing(), before);
}

void TestProjectNothingLost::projectOfARunningProgramIsNotWrittenOver()
{
    makeFilms();
    lockFor("other", getppid(), morvane::processMark(getppid()));
    const auto before = d->listing();
    d->dialogs().pathAnswers.append(d->path("other.kzfx"));
    d->clickText("Save Project As");
    QVERIFY(told().contains("Project Is Already Open"));
    QVERIFY(isOpen("film"));
    d->dialogs().pathAnswers.append(d->path("other.kzfx"));
    d->chooseInMenu("Create New Project");
    QVERIFY(isOpen("film"));
    QCOMPARE(d->listing(), before);
}

void TestProjectNothingLost::projectOfAProgramThatHasEndedMayBeOpened()
{
    makeFilms();
    lockFor("other", getppid(), "of an earlier process");
    const auto before = d->listing();
    d->dialogs().pathAnswers.append(d->path("other.kzfx"));
    d->press(Qt::Key_O, Qt::ControlModifier);
    QVERIFY(told().contains("That program has ended without closing it."));
    QVERIFY(isOpen("film"));
    d->dialogs().pathAnswers.append(d->path("other.kzfx"));
    d->dialogs().askAnswers.append(morvane::Dialogs::Answer::Yes);
    d->press(Qt::Key_O, Qt::ControlModifier);
    QVERIFY(isOpen("other"));
    QCOMPARE(d->rows(), (QStringList{"10", "11"}));
    QCOMPARE(d->listing(), before);
}

void TestProjectNothingLost::damagedProjects()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<QString>("message");
    QTest::newRow("no content folder") << "no folder"
                                       << "Cannot find project folder";
    QTest::newRow("empty file") << "empty"
                                << "";
    QTest::newRow("cut off") << "cut"
                             << "";
    QTest::newRow("garbage") << "garbage"
                             << "";
    QTest::newRow("another document") << "document"
                                      << "";
    QTest::newRow("document type declaration") << "doctype"
                                               << "";
}

/// Damages the project "other" on the disk.
void TestProjectNothingLost::damage(const QString &how)
{
    const QString path = d->path("other.kzfx");
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    file.close();
    if (how == "no folder")
        QVERIFY(QFile::rename(d->path("other_files"), d->path("elsewhere")));
    else if (how == "empty")
        QVERIFY(write("other.kzfx", {}));
    else if (how == "cut")
        QVERIFY(write("other.kzfx", whole.left(whole.size() / 2)));
    else if (how == "garbage")
        QVERIFY(write("other.kzfx", QByteArray(100000, '\x07')));
    else if (how == "document")
        QVERIFY(write("other.kzfx", "<?xml version=\"1.0\"?>\n<html><body/></html>\n"));
    else
        QVERIFY(
            write("other.kzfx", "<!DOCTYPE x [<!ENTITY a \"b\">]>\n" + whole.mid(whole.indexOf("?>") + 2)));
}

void TestProjectNothingLost::damagedProjectIsToldAndLeftAlone_data()
{
    damagedProjects();
}

void TestProjectNothingLost::damagedProjectIsToldAndLeftAlone()
{
    QFETCH(QString, how);
    QFETCH(QString, message);
    makeFilms();
    damage(how);
    const auto before = d->listing();
    const QString toldBefore = told();
    d->dialogs().pathAnswers.append(d->path("other.kzfx"));
    d->press(Qt::Key_O, Qt::ControlModifier);
    QVERIFY(d->waitIdle());
    QVERIFY2(told().size() > toldBefore.size(), qPrintable(told()));
    QVERIFY2(told().contains(message), qPrintable(told()));
    QVERIFY(d->shell().window().projName() != "other");
    QCOMPARE(d->listing(), before);
    d->press(Qt::Key_Escape);
    QVERIFY(d->open("film"));
    QCOMPARE(d->rows(), (QStringList{"0", "1", "2"}));
    QCOMPARE(d->listing(), before);
}

void TestProjectNothingLost::damagedProjectIsNotImported_data()
{
    damagedProjects();
}

void TestProjectNothingLost::damagedProjectIsNotImported()
{
    QFETCH(QString, how);
    QFETCH(QString, message);
    makeFilms();
    edit();
    damage(how);
    const auto before = d->listing();
    const QString toldBefore = told();
    d->dialogs().pathAnswers.append(d->path("other.kzfx"));
    d->clickText("Import Project");
    QVERIFY(d->waitIdle());
    QVERIFY2(told().size() > toldBefore.size(), qPrintable(told()));
    QVERIFY2(told().contains(message), qPrintable(told()));
    QVERIFY(isOpen("film"));
    QCOMPARE(d->rows(), (QStringList{"0", "1", "2m"}));
    QVERIFY(d->shell().global().projectChanged());
    QCOMPARE(d->listing(), before);
}

void TestProjectNothingLost::frameWithAPathIsRefusedAndNothingOutsideIsTouched()
{
    makeFilms();
    QVERIFY(write("secret.jpg", "not of this film"));
    QFile file(d->path("other.kzfx"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QByteArray content = file.readAll();
    file.close();
    QVERIFY(content.contains(FilmWindow::pictureName(10).toUtf8()));
    content.replace(FilmWindow::pictureName(10).toUtf8(), "../../secret.jpg");
    QVERIFY(write("other.kzfx", content));
    const auto before = d->listing();
    d->dialogs().pathAnswers.append(d->path("other.kzfx"));
    d->clickText("Import Project");
    QTRY_COMPARE(d->frames().framesCount(), 5);
    QVERIFY(d->waitIdle());
    QCOMPARE(d->rows(), (QStringList{"0", "1", "2", "-", "11"}));
    QVERIFY2(told().contains("secret.jpg"), qPrintable(told()));
    auto after = d->listing();
    for (auto it = before.cbegin(); it != before.cend(); ++it) {
        if (it.key() != d->path("film.kzfx"))
            QCOMPARE(after.value(it.key(), "gone"), it.value());
    }
    QCOMPARE(after.keys().filter("secret.jpg").size(), 1);
}

void TestProjectNothingLost::saveThatFindsNoRoomIsToldAndLeavesTheOldFile()
{
    makeFilms();
    edit();
    const auto before = d->listing();
    {
        const FullDisk disk(16);
        d->press(Qt::Key_S, Qt::ControlModifier);
    }
    QVERIFY(d->shell().global().projectChanged());
    QVERIFY2(told().contains("The project could not be saved: File too large"), qPrintable(told()));
    QCOMPARE(d->listing(), before);
    d->press(Qt::Key_Escape);
    d->press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!d->shell().global().projectChanged());
    QCOMPARE(d->rowsOnDisk("film"), d->rows());
}

void TestProjectNothingLost::shotThatFindsNoRoomIsToldAndAskedAboutOnTheWayOut()
{
    makeFilms();
    QVERIFY(d->writePicture("film", 3));
    const auto before = d->listing();
    {
        const FullDisk disk(16);
        d->frames().appendFrame({{"capFull", FilmWindow::pictureName(3)}}, true);
        d->press(Qt::Key_Q, Qt::ControlModifier);
    }
    QVERIFY2(told().contains("The project could not be saved: File too large"), qPrintable(told()));
    QCOMPARE(d->shell().quits(), 0);
    QCOMPARE(d->listing(), before);
    answer("Ok");
    QTRY_COMPARE(d->shell().quits(), 1);
    QCOMPARE(d->rowsOnDisk("film"), (QStringList{"0", "1", "2", "3"}));
}

void TestProjectNothingLost::answerToLeaveHoldsWhenTheSaveOfAShotFailsAfterIt()
{
    makeFilms();
    QVERIFY(d->writePicture("film", 3));
    const FullDisk disk(16);
    d->frames().appendFrame({{"capFull", FilmWindow::pictureName(3)}}, true);
    d->shell().window().quit(true);
    QCOMPARE(d->shell().quits(), 1);
}

QTEST_MAIN(TestProjectNothingLost)
#include "tst_projectnothinglost.moc"
