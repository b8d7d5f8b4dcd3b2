#include "project/ProjectVersion.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class TestProjectVersion : public QObject
{
    Q_OBJECT

private slots:
    void check_data()
    {
        QTest::addColumn<QString>("root");
        QTest::addColumn<QString>("major");
        QTest::addColumn<QString>("ver");
        QTest::addColumn<int>("event");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("logLine");
        const QString current = u"MorvaneProject"_s;
        const QString legacy = u"Project"_s;
        const QString none;
        const QString other = u"Unrecognized root tag name, unrecognized version tag or version number"_s;
        const int bad = Zum::NotMorvaneFile;
        QTest::newRow("current") << current << u"3"_s << none << int(Zum::FileIsOk) << none << none;
        QTest::newRow("newer") << current << u"4"_s << none << int(Zum::FileIsOk) << none << none;
        QTest::newRow("version 2 of the current root")
            << current << u"2"_s << none << bad << other << u"Version 2"_s;
        QTest::newRow("no number") << current << u"three"_s << none << bad << other << u"Version 0"_s;
        QTest::newRow("current root with the other attribute")
            << current << none << u"2.5"_s << bad << other << u"Version 0"_s;
        QTest::newRow("neither attribute")
            << current << none << none << bad
            << u"Unrecognized project version. Version attribute not found"_s << none;
        QTest::newRow("legacy") << legacy << none << u"2.5"_s << int(Zum::LegacyFile)
                                << u"Legacy version (2.5). Converting..."_s << none;
        QTest::newRow("oldest legacy") << legacy << none << u"2.0"_s << int(Zum::LegacyFile)
                                       << u"Legacy version (2). Converting..."_s << none;
        QTest::newRow("older than legacy")
            << legacy << none << u"1.9"_s << bad << u"Unrecognized project version (1.9)"_s << u"Version 0"_s;
        QTest::newRow("past legacy") << legacy << none << u"3.0"_s << bad
                                     << u"Unrecognized project version (3)"_s << u"Version 0"_s;
        QTest::newRow("legacy that is no number")
            << legacy << none << u"two"_s << bad << u"Wrong version number for legacy project (two)"_s
            << u"Version 0"_s;
        QTest::newRow("legacy root with a major number only")
            << legacy << u"3"_s << none << bad << u"Wrong version number for legacy project ()"_s
            << u"Version 3"_s;
        QTest::newRow("another root") << u"svg"_s << u"3"_s << none << bad << other << u"Version 3"_s;
    }
    void check()
    {
        QFETCH(QString, root);
        QFETCH(QString, major);
        QFETCH(QString, ver);
        ProjectVersion::Facts facts{root, true, {}, {}};
        if (!major.isNull())
            facts.majorText = major;
        if (!ver.isNull())
            facts.verText = ver;
        const ProjectVersion::Verdict verdict = ProjectVersion::check(facts);
        QTEST(int(verdict.event), "event");
        QTEST(verdict.message, "message");
        QTEST(verdict.logLine, "logLine");
    }

    void noVersionElement()
    {
        const ProjectVersion::Verdict verdict = ProjectVersion::check({u"MorvaneProject"_s, false, {}, {}});
        QCOMPARE(verdict.event, Zum::NotMorvaneFile);
        QCOMPARE(verdict.message, u"No 'Version' node"_s);
        QVERIFY(verdict.logLine.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestProjectVersion)
#include "tst_projectversion.moc"
