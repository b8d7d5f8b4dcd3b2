#include "support/ShellWindow.h"

#include <QSignalSpy>
#include <QTest>

/// Messages: from whoever sends one, through the two lists of the scene, to the list that the user unfolds.
class TestMessages : public QObject
{
    Q_OBJECT

private slots:
    void senderStandsBeforeTheText_data();
    void senderStandsBeforeTheText();
    void bothWaysUpAreOne();
    void newestStandsOnTop();
    void oldestGoBeyondTwentyThree();
    void emptyTextIsDropped();
    void unknownTypeIsDropped_data();
    void unknownTypeIsDropped();
    void robotHasAListOfItsOwn();
    void cameraTextFlashesOnTheDisplay();
    void errorIsStoredAndCounted();
    void errorTakesItsLevel();

    void listHasItsButtonOnlyWithMessages();
    void listOpensAndCloses();
    void longListIsNoHigherThanItMayBe();
    void iconFollowsTheType_data();
    void iconFollowsTheType();
    void cleanMessagesEmptiesTheList();

private:
    static QQuickItem *button(ShellWindow &shell)
    {
        return shell.findItem("toolTip", "Messages");
    }
    static QQuickItem *list(ShellWindow &shell)
    {
        return button(shell)->parentItem()->childItems().at(1);
    }
    static void send(ShellWindow &shell, int sender, int type, const QString &text)
    {
        emit shell.window().appendMessage(sender, type, text);
    }
};

void TestMessages::senderStandsBeforeTheText_data()
{
    QTest::addColumn<int>("sender");
    QTest::addColumn<QString>("shown");
    QTest::newRow("common, with nothing before the colon") << int(Zum::CommonMessage) << ": text";
    QTest::newRow("camera") << int(Zum::CameraMessage) << "Camera: text";
    QTest::newRow("robot") << int(Zum::RobotMessage) << "Robot: text";
    QTest::newRow("file") << int(Zum::FileMessage) << "File: text";
    QTest::newRow("time lapse") << int(Zum::ZeitRafferMessage) << "Time-Lapse Photography: text";
    QTest::newRow("player") << int(Zum::VideoPlayerMessage) << "VideoPlayer: text";
}

void TestMessages::senderStandsBeforeTheText()
{
    QFETCH(int, sender);
    QFETCH(QString, shown);
    ShellWindow shell;
    send(shell, sender, Zum::Info, "text");
    const QString model = sender == Zum::RobotMessage ? "robotMessgModel" : "messagesModel";
    QCOMPARE(shell.evaluate(model + ".count").toInt(), 1);
    QCOMPARE(shell.evaluate(model + ".get(0).text").toString(), shown);
    QCOMPARE(shell.evaluate(model + ".get(0).type").toInt(), int(Zum::Info));
}

void TestMessages::bothWaysUpAreOne()
{
    ShellWindow shell;
    QSignalSpy forwarded(&shell.global(), &WebcamGlobal::appendMessage);
    emit shell.window().appendMessage(Zum::FileMessage, Zum::Info, "by the window");
    QCOMPARE(forwarded.count(), 1);
    emit shell.global().appendMessage(Zum::FileMessage, Zum::Info, "by the shared state");
    shell.controllers().messages.post(Zum::FileMessage, Zum::Info, "by a controller");
    QCOMPARE(shell.messages(),
             QStringList({"File: by a controller", "File: by the shared state", "File: by the window"}));
}

void TestMessages::newestStandsOnTop()
{
    ShellWindow shell;
    send(shell, Zum::FileMessage, Zum::Info, "first");
    send(shell, Zum::CameraMessage, Zum::Error, "second");
    QCOMPARE(shell.messages(), QStringList({"Camera: second", "File: first"}));
}

void TestMessages::oldestGoBeyondTwentyThree()
{
    ShellWindow shell;
    for (int i = 1; i <= 23; ++i)
        send(shell, Zum::FileMessage, Zum::Info, QString::number(i));
    QCOMPARE(shell.messages().size(), 23);
    QCOMPARE(shell.messages().constLast(), "File: 1");
    send(shell, Zum::FileMessage, Zum::Info, "24");
    send(shell, Zum::FileMessage, Zum::Info, "25");
    QCOMPARE(shell.messages().size(), 23);
    QCOMPARE(shell.messages().constFirst(), "File: 25");
    QCOMPARE(shell.messages().constLast(), "File: 3");
}

void TestMessages::emptyTextIsDropped()
{
    ShellWindow shell;
    send(shell, Zum::FileMessage, Zum::Error, QString());
    send(shell, Zum::RobotMessage, Zum::Error, QString());
    send(shell, Zum::CameraMessage, Zum::Error, QString());
    QVERIFY(shell.messages().isEmpty());
    QCOMPARE(shell.evaluate("robotMessgModel.count").toInt(), 0);
    QCOMPARE(shell.global().cameraMessageText(), QString());
}

void TestMessages::unknownTypeIsDropped_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("kept");
    QTest::newRow("below all") << -1 << false;
    QTest::newRow("fatal error") << int(Zum::FatalError) << true;
    QTest::newRow("error") << int(Zum::Error) << true;
    QTest::newRow("warning") << int(Zum::Warning) << true;
    QTest::newRow("information") << int(Zum::Info) << true;
    QTest::newRow("beyond all") << 4 << false;
}

void TestMessages::unknownTypeIsDropped()
{
    QFETCH(int, type);
    QFETCH(bool, kept);
    ShellWindow shell;
    send(shell, Zum::CameraMessage, type, "text");
    send(shell, Zum::RobotMessage, type, "text");
    QCOMPARE(shell.messages().size(), kept ? 1 : 0);
    QCOMPARE(shell.evaluate("robotMessgModel.count").toInt(), kept ? 1 : 0);
    QCOMPARE(shell.global().cameraMessageText(), kept ? QString("text") : QString());
}

void TestMessages::robotHasAListOfItsOwn()
{
    ShellWindow shell;
    for (int i = 1; i <= 30; ++i)
        send(shell, Zum::RobotMessage, Zum::Error, QString::number(i));
    QVERIFY(shell.messages().isEmpty());
    QVERIFY(button(shell) == nullptr);
    QCOMPARE(shell.evaluate("robotMessgModel.count").toInt(), 30);
    QCOMPARE(shell.evaluate("robotMessgModel.get(0).text").toString(), "Robot: 30");
}

void TestMessages::cameraTextFlashesOnTheDisplay()
{
    ShellWindow shell;
    send(shell, Zum::FileMessage, Zum::Error, "not the camera's");
    QCOMPARE(shell.global().cameraMessageText(), QString());
    send(shell, Zum::CameraMessage, Zum::Error, "The battery is low");
    QCOMPARE(shell.global().cameraMessageText(), "The battery is low");
}

void TestMessages::errorIsStoredAndCounted()
{
    ShellWindow shell;
    QSignalSpy sent(&shell.window(), &MainWindow::appendMessage);
    shell.window().setErrorString("No space left");
    shell.window().setErrorString("No space left");
    QCOMPARE(shell.window().errorString(), "No space left");
    QCOMPARE(shell.window().robotErrorCount(), 2);
    QCOMPARE(sent.count(), 2);
    QCOMPARE(sent.at(0), QVariantList({int(Zum::RobotMessage), int(Zum::Error), "No space left"}));
    QCOMPARE(shell.evaluate("robotMessgModel.count").toInt(), 2);
    QVERIFY(shell.messages().isEmpty());
}

void TestMessages::errorTakesItsLevel()
{
    ShellWindow shell;
    QSignalSpy sent(&shell.window(), &MainWindow::appendMessage);
    shell.window().setErrorString("Half of it", Zum::Warning);
    QCOMPARE(shell.window().robotErrorCount(), 1);
    QCOMPARE(sent.at(0), QVariantList({int(Zum::RobotMessage), int(Zum::Warning), "Half of it"}));
}

void TestMessages::listHasItsButtonOnlyWithMessages()
{
    ShellWindow shell;
    QVERIFY(button(shell) == nullptr);
    send(shell, Zum::FileMessage, Zum::Info, "text");
    QVERIFY(button(shell) != nullptr);
    const int size = shell.evaluate("DefFontSizeNormal_x2").toInt();
    QCOMPARE(button(shell)->size(), QSizeF(size, size));
    shell.evaluate("messagesModel.clear()");
    QVERIFY(button(shell) == nullptr);
}

void TestMessages::listOpensAndCloses()
{
    ShellWindow shell;
    send(shell, Zum::FileMessage, Zum::Info, "text");
    QVERIFY(!list(shell)->isVisible());
    shell.click(button(shell));
    QTRY_VERIFY(shell.findItem("text", "File: text") != nullptr);
    const int full = list(shell)->property("fullHeight").toInt();
    QVERIFY(list(shell)->height() < full);
    QTRY_COMPARE(list(shell)->height(), full);
    QCOMPARE(list(shell)->width(), 26 * shell.evaluate("DefFontSizeNormal").toInt());

    emit shell.global().globalDismiss();
    QVERIFY(list(shell)->height() > 0);
    QTRY_VERIFY(!list(shell)->isVisible());

    shell.click(button(shell));
    QTRY_VERIFY(list(shell)->isVisible());
    shell.click(button(shell));
    QTRY_VERIFY(!list(shell)->isVisible());
}

void TestMessages::longListIsNoHigherThanItMayBe()
{
    ShellWindow shell;
    for (int i = 0; i < 23; ++i)
        send(shell, Zum::FileMessage, Zum::Info,
             QString("A long message that takes a few lines. ").repeated(6));
    shell.click(button(shell));
    QTRY_COMPARE(list(shell)->height(), 600);
}

void TestMessages::iconFollowsTheType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("icon");
    QTest::newRow("fatal error") << int(Zum::FatalError) << "svgicons/warn.svg";
    QTest::newRow("error") << int(Zum::Error) << "svgicons/warn.svg";
    QTest::newRow("warning") << int(Zum::Warning) << "svgicons/warn.svg";
    QTest::newRow("information") << int(Zum::Info) << "svgicons/info.svg";
}

void TestMessages::iconFollowsTheType()
{
    QFETCH(int, type);
    QFETCH(QString, icon);
    ShellWindow shell;
    send(shell, Zum::FileMessage, type, "text");
    QCOMPARE(button(shell)->property("icon").toString(), icon);
    shell.click(button(shell));
    QTRY_VERIFY(shell.findItem("text", "File: text") != nullptr);
    QVERIFY(shell.findItem("source", QUrl(icon), list(shell)) != nullptr);
}

void TestMessages::cleanMessagesEmptiesTheList()
{
    ShellWindow shell;
    send(shell, Zum::FileMessage, Zum::Info, "one");
    send(shell, Zum::FileMessage, Zum::Info, "two");
    send(shell, Zum::RobotMessage, Zum::Info, "of the robot");
    shell.click(button(shell));
    QTRY_COMPARE(list(shell)->height(), list(shell)->property("fullHeight").toInt());
    shell.click(shell.findItem("text", "Clean messages"));
    QVERIFY(shell.messages().isEmpty());
    QVERIFY(button(shell) == nullptr);
    QCOMPARE(shell.evaluate("robotMessgModel.count").toInt(), 1);

    // A new message does not unfold the list again.
    send(shell, Zum::FileMessage, Zum::Info, "three");
    QTRY_VERIFY(!list(shell)->isVisible());
}

QTEST_MAIN(TestMessages)
#include "tst_messages.moc"
