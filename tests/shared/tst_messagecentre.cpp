#include "shared/MessageCentre.h"

#include <QSignalSpy>
#include <QTest>

class TestMessageCentre : public QObject
{
    Q_OBJECT

private slots:
    void startsWithoutErrors();
    void reportedErrorIsKeptCountedAndSentByTheRobot();
    void reportedErrorMayHaveAnotherLevel();
    void sameErrorTwiceCountsTwice();
    void countIsUpToDateWhenTheMessageComes();
    void postedMessageIsNotCounted();
    void adviceIsAMessageAndNoError();
};

void TestMessageCentre::startsWithoutErrors()
{
    const MessageCentre messages;
    QCOMPARE(messages.errorString(), QString());
    QCOMPARE(messages.robotErrorCount(), 0);
}

void TestMessageCentre::reportedErrorIsKeptCountedAndSentByTheRobot()
{
    MessageCentre messages;
    QSignalSpy sent(&messages, &MessageCentre::appendMessage);
    QSignalSpy text(&messages, &MessageCentre::errorStringChanged);
    QSignalSpy count(&messages, &MessageCentre::robotErrorCountChanged);
    messages.reportError(QStringLiteral("broken"));
    QCOMPARE(messages.errorString(), QStringLiteral("broken"));
    QCOMPARE(messages.robotErrorCount(), 1);
    QCOMPARE(sent.count(), 1);
    QCOMPARE(sent.first(), (QVariantList{static_cast<int>(Zum::RobotMessage), static_cast<int>(Zum::Error),
                                         QStringLiteral("broken")}));
    QCOMPARE(text.count(), 1);
    QCOMPARE(count.count(), 1);
}

void TestMessageCentre::reportedErrorMayHaveAnotherLevel()
{
    MessageCentre messages;
    QSignalSpy sent(&messages, &MessageCentre::appendMessage);
    messages.reportError(QStringLiteral("odd"), Zum::Warning);
    QCOMPARE(sent.first().at(1).toInt(), static_cast<int>(Zum::Warning));
    QCOMPARE(messages.robotErrorCount(), 1);
}

void TestMessageCentre::sameErrorTwiceCountsTwice()
{
    MessageCentre messages;
    QSignalSpy sent(&messages, &MessageCentre::appendMessage);
    messages.reportError(QStringLiteral("broken"));
    messages.reportError(QStringLiteral("broken"));
    QCOMPARE(messages.robotErrorCount(), 2);
    QCOMPARE(sent.count(), 2);
}

void TestMessageCentre::countIsUpToDateWhenTheMessageComes()
{
    MessageCentre messages;
    int countSeen = 0;
    QString textSeen;
    connect(&messages, &MessageCentre::appendMessage, this, [&] {
        countSeen = messages.robotErrorCount();
        textSeen = messages.errorString();
    });
    messages.reportError(QStringLiteral("broken"));
    QCOMPARE(countSeen, 1);
    QCOMPARE(textSeen, QStringLiteral("broken"));
}

void TestMessageCentre::postedMessageIsNotCounted()
{
    MessageCentre messages;
    QSignalSpy sent(&messages, &MessageCentre::appendMessage);
    messages.post(Zum::FileMessage, Zum::Info, QStringLiteral("Project loaded"));
    QCOMPARE(sent.first(), (QVariantList{static_cast<int>(Zum::FileMessage), static_cast<int>(Zum::Info),
                                         QStringLiteral("Project loaded")}));
    QCOMPARE(messages.robotErrorCount(), 0);
    QCOMPARE(messages.errorString(), QString());
}

void TestMessageCentre::adviceIsAMessageAndNoError()
{
    MessageCentre messages;
    QSignalSpy sent(&messages, &MessageCentre::appendMessage);
    messages.advise(Zum::RobotMessage, QStringLiteral("try again"));
    QCOMPARE(sent.first(), (QVariantList{static_cast<int>(Zum::RobotMessage), static_cast<int>(Zum::Info),
                                         QStringLiteral("try again")}));
    QCOMPARE(messages.robotErrorCount(), 0);
    QCOMPARE(messages.errorString(), QString());
}

QTEST_APPLESS_MAIN(TestMessageCentre)

#include "tst_messagecentre.moc"
