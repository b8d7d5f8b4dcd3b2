#include "app/QuitSequence.h"

#include <QTest>

namespace {

/// Records what the sequence asks for, and answers as a test sets it.
class RecordingHost : public QuitSequence::Host
{
public:
    QStringList calls;
    bool quiet = true;
    bool isBusy = false;
    bool isConnected = false;
    int total = 0;

    bool allowQuietExit() const override
    {
        return quiet;
    }
    void setAllowQuietExit(bool allow) override
    {
        quiet = allow;
    }
    int progressTotal() const override
    {
        return total;
    }
    void askToSave() override
    {
        calls << QStringLiteral("ask");
    }
    void finishOperations() override
    {
        calls << QStringLiteral("finish");
    }
    void saveWindowState() override
    {
        calls << QStringLiteral("save window");
    }
    void stopPlayback() override
    {
        calls << QStringLiteral("stop playback");
    }
    bool busy() const override
    {
        return isBusy;
    }
    void restDisplay() override
    {
        calls << QStringLiteral("rest display");
    }
    bool connected() const override
    {
        return isConnected;
    }
    void disconnectDevice() override
    {
        calls << QStringLiteral("disconnect");
    }
    void leave() override
    {
        calls << QStringLiteral("leave");
    }
};

} // namespace

class TestQuitSequence : public QObject
{
    Q_OBJECT

private slots:
    void closesAtOnceWithNothingToSave();
    void asksWhenThereIsUnsavedWork();
    void asksWhileProgressRuns();
    void closingSixTimesWithARefusedDialogClosesWithoutAsking();
    void aBusyDeviceRefusesOnceAndTheNextAttemptGoesThrough();
    void aConnectedDeviceIsDisconnectedFirst();
    void secondCloseGoesStraightThrough();

private:
    RecordingHost host;
    const QStringList wholeWay{"finish", "save window", "stop playback", "rest display", "leave"};

private slots:
    void init()
    {
        host = RecordingHost();
    }
};

void TestQuitSequence::closesAtOnceWithNothingToSave()
{
    QuitSequence sequence(host);
    QVERIFY(sequence.attempt());
    QCOMPARE(host.calls, wholeWay);
    QVERIFY(sequence.closing());
    QCOMPARE(sequence.closeAttempts(), 1);
}

void TestQuitSequence::asksWhenThereIsUnsavedWork()
{
    host.quiet = false;
    QuitSequence sequence(host);
    QVERIFY(!sequence.attempt());
    QCOMPARE(host.calls, QStringList{"ask"});
    QVERIFY(!sequence.closing());
    host.quiet = true;
    host.calls.clear();
    QVERIFY(sequence.attempt());
    QCOMPARE(host.calls, wholeWay);
}

void TestQuitSequence::asksWhileProgressRuns()
{
    host.total = 10;
    QuitSequence sequence(host);
    QVERIFY(!sequence.attempt());
    QCOMPARE(host.calls, QStringList{"ask"});
}

void TestQuitSequence::closingSixTimesWithARefusedDialogClosesWithoutAsking()
{
    host.quiet = false;
    QuitSequence sequence(host);
    for (int i = 0; i < QuitSequence::refusalLimit; ++i)
        QVERIFY(!sequence.attempt());
    QCOMPARE(host.calls.count("ask"), 5);
    QVERIFY(sequence.attempt());
    QCOMPARE(host.calls.count("ask"), 5);
    QCOMPARE(host.calls.last(), QStringLiteral("leave"));
    QVERIFY(sequence.closing());
    QCOMPARE(sequence.closeAttempts(), 6);
}

void TestQuitSequence::aBusyDeviceRefusesOnceAndTheNextAttemptGoesThrough()
{
    host.isBusy = true;
    QuitSequence sequence(host);
    QVERIFY(!sequence.attempt());
    QCOMPARE(host.calls, (QStringList{"finish", "save window", "stop playback"}));
    QVERIFY(sequence.closing());
    QVERIFY(sequence.attempt());
    QCOMPARE(host.calls.last(), QStringLiteral("leave"));
}

void TestQuitSequence::aConnectedDeviceIsDisconnectedFirst()
{
    host.isConnected = true;
    QuitSequence sequence(host);
    QVERIFY(!sequence.attempt());
    QCOMPARE(host.calls,
             (QStringList{"finish", "save window", "stop playback", "rest display", "disconnect"}));
    host.isConnected = false;
    QVERIFY(sequence.attempt());
}

void TestQuitSequence::secondCloseGoesStraightThrough()
{
    QuitSequence sequence(host);
    QVERIFY(sequence.attempt());
    host.calls.clear();
    host.quiet = false;
    QVERIFY(sequence.attempt());
    QCOMPARE(host.calls, QStringList{"leave"});
}

QTEST_GUILESS_MAIN(TestQuitSequence)
#include "tst_quitsequence.moc"
