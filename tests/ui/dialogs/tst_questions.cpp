#include "ui/dialogs/DialogHost.h"

#include <memory>
#include <QSignalSpy>
#include <QtTest>

/// The questions: saving before work is lost, and what is done to a camera.
class TestQuestions : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void asksToSaveTheProject();
    void okSavesAndLeavesWhatFollowsToTheSave_data();
    void okSavesAndLeavesWhatFollowsToTheSave();
    void returnSaysOk();
    void okDoesNotCloseWhatTheSaveOpens();
    void cancelQuitsWithoutSaving();
    void cancelOpensTheOtherProjectWithoutSaving();
    void cancelCreatesTheProjectWithoutSaving();
    void cancelWithNothingToFollowOnlyCloses();
    void closingForgetsWhatWasToFollow();
    void escapeForgetsWhatWasToFollow();
    void cameraQuestions_data();
    void cameraQuestions();
    void tabReachesTheAnswers();

private:
    void ask(int afterConfirmAction);
    int afterConfirmAction() const
    {
        return d->host.global().afterConfirmAction();
    }

    std::unique_ptr<DialogHost> d;
    std::unique_ptr<QSignalSpy> saves;
};

void TestQuestions::init()
{
    d = std::make_unique<DialogHost>();
    saves = std::make_unique<QSignalSpy>(&d->host.global(), &WebcamGlobal::saveProject);
    d->window.setAllowQuietExit(false);
}

void TestQuestions::cleanup()
{
    const QStringList warnings = d->host.warnings();
    d.reset();
    QCOMPARE(warnings, QStringList());
}

void TestQuestions::ask(int afterConfirmAction)
{
    d->host.global().setAfterConfirmAction(afterConfirmAction);
    emit d->window.confirmClose();
    QVERIFY(d->isOpen());
    QCOMPARE(d->window.qmlDialogUrl(), "SaveConfirmDialog.qml");
}

void TestQuestions::asksToSaveTheProject()
{
    ask(Zum::QuitAfterConfirm);
    const QStringList texts = d->texts();
    QCOMPARE(texts.constFirst(), "Save Project?");
    QVERIFY(texts.contains("Ok"));
    QVERIFY(texts.contains("Cancel"));
    QVERIFY(d->frames.calls.contains("stop"));
}

void TestQuestions::okSavesAndLeavesWhatFollowsToTheSave_data()
{
    QTest::addColumn<int>("action");
    QTest::newRow("quit") << int(Zum::QuitAfterConfirm);
    QTest::newRow("open") << int(Zum::OpenProjectAfterConfirm);
    QTest::newRow("create") << int(Zum::CreateProjectAfterConfirm);
}

void TestQuestions::okSavesAndLeavesWhatFollowsToTheSave()
{
    QFETCH(int, action);
    ask(action);
    d->clickText("Ok");
    QVERIFY(!d->isOpen());
    QTRY_COMPARE(saves->count(), 1);
    QCOMPARE(afterConfirmAction(), action);
    QVERIFY(!d->window.allowQuietExit());
    QCOMPARE(d->window.calls, QStringList(QString("saveProjectXmlFile %1").arg(int(Zum::SaveProject))));
}

void TestQuestions::returnSaysOk()
{
    ask(Zum::OpenProjectAfterConfirm);
    d->host.key(Qt::Key_Return);
    QVERIFY(!d->isOpen());
    QTRY_COMPARE(saves->count(), 1);
    QCOMPARE(afterConfirmAction(), int(Zum::OpenProjectAfterConfirm));
}

void TestQuestions::okDoesNotCloseWhatTheSaveOpens()
{
    connect(&d->host.global(), &WebcamGlobal::saveProject, &d->window,
            [this] { d->window.setProgressTotal(40); });
    ask(Zum::OpenProjectAfterConfirm);
    d->host.key(Qt::Key_Return);
    QTRY_COMPARE(d->window.qmlDialogUrl(), "LoadDialog.qml");
    QCoreApplication::processEvents();
    QVERIFY(d->isOpen());
}

void TestQuestions::cancelQuitsWithoutSaving()
{
    ask(Zum::QuitAfterConfirm);
    d->clickText("Cancel");
    QVERIFY(!d->isOpen());
    QTRY_COMPARE(d->window.calls, QStringList("quit true"));
    QCOMPARE(afterConfirmAction(), int(Zum::NoAfterConfirmAction));
    QCOMPARE(saves->count(), 0);
}

void TestQuestions::cancelOpensTheOtherProjectWithoutSaving()
{
    d->host.global().setOpenProjectAfterConfirmPath("/films/other.kzfx");
    ask(Zum::OpenProjectAfterConfirm);
    d->clickText("Cancel");
    QVERIFY(!d->isOpen());
    QTRY_COMPARE(d->window.calls, QStringList("openProject /films/other.kzfx"));
    QVERIFY(d->window.allowQuietExit());
    QCOMPARE(afterConfirmAction(), int(Zum::NoAfterConfirmAction));
    QCOMPARE(saves->count(), 0);
}

void TestQuestions::cancelCreatesTheProjectWithoutSaving()
{
    ask(Zum::CreateProjectAfterConfirm);
    d->clickText("Cancel");
    QVERIFY(!d->isOpen());
    QTRY_COMPARE(d->window.calls, QStringList(QString("saveProjectXmlFile %1").arg(int(Zum::NewProject))));
    QVERIFY(d->window.allowQuietExit());
    QCOMPARE(afterConfirmAction(), int(Zum::NoAfterConfirmAction));
    QCOMPARE(saves->count(), 0);
}

void TestQuestions::cancelWithNothingToFollowOnlyCloses()
{
    ask(Zum::NoAfterConfirmAction);
    d->clickText("Cancel");
    QVERIFY(!d->isOpen());
    QCoreApplication::processEvents();
    QCOMPARE(d->window.calls, QStringList());
    QVERIFY(!d->window.allowQuietExit());
}

void TestQuestions::closingForgetsWhatWasToFollow()
{
    ask(Zum::QuitAfterConfirm);
    d->close();
    QVERIFY(!d->isOpen());
    QCoreApplication::processEvents();
    QCOMPARE(afterConfirmAction(), int(Zum::NoAfterConfirmAction));
    QCOMPARE(d->window.calls, QStringList());
    QCOMPARE(saves->count(), 0);
    QVERIFY(!d->window.allowQuietExit());
}

void TestQuestions::escapeForgetsWhatWasToFollow()
{
    ask(Zum::CreateProjectAfterConfirm);
    d->host.key(Qt::Key_Escape);
    QVERIFY(!d->isOpen());
    QCoreApplication::processEvents();
    QCOMPARE(afterConfirmAction(), int(Zum::NoAfterConfirmAction));
    QCOMPARE(d->window.calls, QStringList());
    QCOMPARE(saves->count(), 0);
}

void TestQuestions::cameraQuestions_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("question");
    QTest::addColumn<QByteArray>("command");
    QTest::newRow("disconnect") << "CamDisconnectConfirmDialog.qml"
                                << "Disconnect EOS 1300D camera?"
                                << QByteArray(SIGNAL(capturingDeviceDisconnect()));
    QTest::newRow("reconnect") << "CamReconnectConfirmDialog.qml"
                               << "Camera EOS 1300D is already connected. Reconnect camera?"
                               << QByteArray(SIGNAL(capturingDeviceConnect()));
    QTest::newRow("reload") << "CamReloadDeviceConfirmDialog.qml"
                            << "Reload device connection subsystem?"
                            << QByteArray(SIGNAL(reloadCapturingDevice()));
}

void TestQuestions::cameraQuestions()
{
    QFETCH(QString, file);
    QFETCH(QString, question);
    QFETCH(QByteArray, command);
    d->host.global().setCameraName("EOS 1300D");
    QSignalSpy commands(&d->host.global(), command.constData());

    QVERIFY(d->open(file));
    QCOMPARE(d->texts().constFirst(), question);
    d->clickText("Cancel");
    QVERIFY(!d->isOpen());
    QVERIFY(d->open(file));
    d->host.key(Qt::Key_Escape);
    QVERIFY(!d->isOpen());
    QCoreApplication::processEvents();
    QCOMPARE(commands.count(), 0);

    QVERIFY(d->open(file));
    d->clickText("OK");
    QVERIFY(!d->isOpen());
    QTRY_COMPARE(commands.count(), 1);
    QVERIFY(d->open(file));
    d->host.key(Qt::Key_Return);
    QVERIFY(!d->isOpen());
    QTRY_COMPARE(commands.count(), 2);
}

void TestQuestions::tabReachesTheAnswers()
{
    ask(Zum::QuitAfterConfirm);
    d->host.key(Qt::Key_Tab);
    d->host.key(Qt::Key_Space);
    QVERIFY(!d->isOpen());
    QTRY_COMPARE(d->window.calls, QStringList("quit true"));
}

QTEST_MAIN(TestQuestions)

#include "tst_questions.moc"
