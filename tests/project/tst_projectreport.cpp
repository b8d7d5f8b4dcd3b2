#include "project/ProjectReport.h"
#include "shared/MessageCentre.h"
#include "shared/ProgressState.h"
#include "support/FakeDialogs.h"

#include <QSignalSpy>
#include <QtTest>

using namespace Qt::StringLiterals;
using Status = ProjectReadResult::Status;

class TestProjectReport : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<MessageCentre> m_messages;
    std::unique_ptr<ProgressState> m_progress;
    FakeDialogs m_dialogs;
    QList<QVariantList> m_sent;

    Zum::OpenFileEvents tell(const ProjectReadResult &result)
    {
        return ProjectReport(*m_messages, *m_progress, m_dialogs).tell(result, u"/x/p.kzfx"_s);
    }
    static ProjectReadResult failure(Status status, const QString &error)
    {
        ProjectReadResult result;
        result.status = status;
        result.error = error;
        return result;
    }

private slots:
    void init()
    {
        m_messages = std::make_unique<MessageCentre>();
        m_progress = std::make_unique<ProgressState>();
        m_dialogs = {};
        m_sent.clear();
        connect(m_messages.get(), &MessageCentre::appendMessage, this,
                [this](int sender, int type, const QString &text) {
                    m_sent.append({sender, type, text});
                });
    }

    void goodFileSaysNothingButWhatWasRefused()
    {
        ProjectReadResult result;
        result.status = Status::Ok;
        result.refusals = {u"one"_s, u"two"_s};
        QCOMPARE(tell(result), Zum::FileIsOk);
        QCOMPARE(m_sent, QList<QVariantList>({{int(Zum::FileMessage), int(Zum::Warning), u"one"_s},
                                              {int(Zum::FileMessage), int(Zum::Warning), u"two"_s}}));
        QCOMPARE(m_progress->progressTotal(), 0);
        QVERIFY(m_dialogs.asked.isEmpty());
    }

    void fileThatDoesNotOpenShowsABox()
    {
        QTest::ignoreMessage(QtDebugMsg, "Failed to read XML file");
        QCOMPARE(tell(failure(Status::CannotOpen, {})), Zum::FileXMLunparseble);
        QCOMPARE(m_dialogs.asked.size(), 1);
        QCOMPARE(m_dialogs.asked.first().caption, u"Load XML File Problem"_s);
        QCOMPARE(m_dialogs.asked.first().start, u"Couldn't open '/x/p.kzfx'"_s);
        QVERIFY(m_sent.first().at(2).toString().contains(u"open a copy of it"_s));
        QCOMPARE(m_progress->progressTotal(), 0);
    }

    void parserErrorIsReported()
    {
        QTest::ignoreMessage(QtDebugMsg, "Failed to read XML file");
        QCOMPARE(tell(failure(Status::NotParsable, u"bad at line 1, column 2"_s)), Zum::FileXMLunparseble);
        QCOMPARE(m_progress->progressTotal(), 100);
        QCOMPARE(m_messages->errorString(), u"bad at line 1, column 2"_s);
        QCOMPARE(m_sent.size(), 2);
        QCOMPARE(m_sent.first().at(1).toInt(), int(Zum::Info));
        QVERIFY(m_sent.first().at(2).toString().contains(u"open a backup of it"_s));
        QCOMPARE(m_sent.last().at(1).toInt(), int(Zum::Error));
        QCOMPARE(m_messages->robotErrorCount(), 1);
    }

    void foreignFileIsReportedAndLogged()
    {
        ProjectReadResult result = failure(Status::NotAProject, u"Unrecognized project version (3)"_s);
        result.logLine = u"Version 0"_s;
        QTest::ignoreMessage(QtDebugMsg, "Version 0");
        QTest::ignoreMessage(QtDebugMsg, "Not an Morvane file");
        QCOMPARE(tell(result), Zum::NotMorvaneFile);
        QCOMPARE(m_messages->errorString(), u"Unrecognized project version (3)"_s);
        QCOMPARE(m_messages->robotErrorCount(), 1);
        QVERIFY(m_sent.first().at(2).toString().contains(u"open it with the program that wrote it"_s));
        QCOMPARE(m_progress->progressTotal(), 0);
    }

    void fileWithoutAVersionStopsTheProgressBar()
    {
        ProjectReadResult result = failure(Status::NotAProject, u"No 'Version' node"_s);
        result.hasVersion = false;
        QTest::ignoreMessage(QtDebugMsg, "Not an Morvane file");
        QCOMPARE(tell(result), Zum::NotMorvaneFile);
        QCOMPARE(m_progress->progressTotal(), 100);
    }

    void legacyFileIsAnnounced()
    {
        QCOMPARE(tell(failure(Status::Legacy, u"Legacy version (2.5). Converting..."_s)), Zum::LegacyFile);
        QCOMPARE(m_sent.size(), 1);
        QCOMPARE(m_sent.first().at(1).toInt(), int(Zum::Info));
        QCOMPARE(m_sent.first().at(2).toString(), u"Legacy version (2.5). Converting..."_s);
    }

    void cancelledReadIsSilent()
    {
        QCOMPARE(tell(failure(Status::Cancelled, {})), Zum::FileSelectionCanceled);
        QVERIFY(m_sent.isEmpty());
    }

    void failedSaveIsToldToTheUserAndTheLog()
    {
        ProjectReport report(*m_messages, *m_progress, m_dialogs);
        QTest::ignoreMessage(QtDebugMsg, "Failed to open file '/x/p.kzfx' for writing");
        report.tellSaveFailed(u"/x/p.kzfx"_s, u"No space left on device"_s);
        QCOMPARE(m_sent.size(), 1);
        QVERIFY(m_sent.first().at(2).toString().contains(u"No space left on device"_s));
        QVERIFY(m_sent.first().at(2).toString().contains(u"Make room on the disk"_s));
        QTest::ignoreMessage(QtDebugMsg, "Project path is empty. Cannot save");
        report.tellSaveFailed(QString(), u"No file name"_s);
    }
};

QTEST_GUILESS_MAIN(TestProjectReport)
#include "tst_projectreport.moc"
