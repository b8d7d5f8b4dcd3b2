#include "timeline/HoldScan.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace HoldScan;

namespace {

/// One row per word: the captured name, with a trailing "!" when mirrored; "-" is an empty name.
std::vector<Row> rowsOf(const QString &words)
{
    std::vector<Row> rows;
    for (QString word : words.split(' ', Qt::SkipEmptyParts)) {
        Row row;
        row.mirrored = word.endsWith('!');
        if (row.mirrored)
            word.chop(1);
        row.captured = word == "-" ? QString() : word;
        rows.push_back(row);
    }
    return rows;
}

QList<int> holdsOf(const QString &words)
{
    const std::vector<Row> rows = rowsOf(words);
    QList<int> holds;
    for (int row = 0; row < int(rows.size()); ++row)
        holds.append(holdAt(rows, row));
    return holds;
}

void touch(const QString &path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

} // namespace

class tst_HoldScan : public QObject
{
    Q_OBJECT

private slots:
    void marksHolds_data();
    void marksHolds();
    void limitsTheRange_data();
    void limitsTheRange();
    void looksAtTheNeighboursOfTheRange();
    void looksForFiles();
    void looksForNoFilesWithoutAFolder();
    void endsWhenCancelled();
};

void tst_HoldScan::marksHolds_data()
{
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QList<int>>("holds");
    QTest::newRow("none") << "a b c" << QList<int>{-1, -1, -1};
    QTest::newRow("three rows") << "a a a" << QList<int>{0, 1, 2};
    QTest::newRow("two rows") << "x a a y" << QList<int>{-1, 0, 2, -1};
    QTest::newRow("a mirrored frame breaks it") << "a a! a" << QList<int>{-1, -1, -1};
    QTest::newRow("all mirrored alike") << "a! a!" << QList<int>{0, 2};
    QTest::newRow("empty names never hold") << "- - -" << QList<int>{-1, -1, -1};
    QTest::newRow("two holds in a row") << "a a b b" << QList<int>{0, 2, 0, 2};
    QTest::newRow("one frame") << "a" << QList<int>{-1};
}

void tst_HoldScan::marksHolds()
{
    QFETCH(QString, rows);
    QFETCH(QList<int>, holds);
    QCOMPARE(holdsOf(rows), holds);
}

void tst_HoldScan::limitsTheRange_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::newRow("all") << 0 << 0 << 0 << 9;
    QTest::newRow("a span") << 3 << 6 << 3 << 6;
    QTest::newRow("from row 0") << 0 << 6 << 0 << 6;
    QTest::newRow("below row 0") << -4 << 6 << 0 << 6;
    QTest::newRow("end past the list") << 3 << 50 << 3 << 9;
    QTest::newRow("end is the start") << 5 << 5 << 0 << 5;
    QTest::newRow("end before the start") << 5 << 2 << 0 << 2;
    QTest::newRow("end below row 0") << 2 << -1 << 0 << 9;
}

void tst_HoldScan::limitsTheRange()
{
    QFETCH(int, from);
    QFETCH(int, to);
    const Range range = limitRange(from, to, 10);
    QTEST(range.first, "first");
    QTEST(range.last, "last");
}

void tst_HoldScan::looksAtTheNeighboursOfTheRange()
{
    Request request;
    request.rows = rowsOf("a a a a");
    request.range = {1, 2};
    const std::vector<Finding> findings = scan(request, false);
    QCOMPARE(findings.size(), size_t(2));
    QCOMPARE(findings[0].hold, 1);
    QCOMPARE(findings[1].hold, 1);
}

void tst_HoldScan::looksForFiles()
{
    const QTemporaryDir dir;
    touch(dir.filePath("a"));
    Request request;
    request.rows = rowsOf("a b -");
    request.rows[0].reference = "gone";
    request.range = {0, 2};
    request.capturedFolder = dir.path() + '/';
    request.referenceFolder = dir.path() + '/';
    request.looksForCaptured = true;
    request.looksForReference = true;
    const std::vector<Finding> findings = scan(request, false);
    QCOMPARE(findings[0].captured, File::There);
    QCOMPARE(findings[0].reference, File::Missing);
    QCOMPARE(findings[1].captured, File::Missing);
    QCOMPARE(findings[1].reference, File::NotLookedFor);
    QCOMPARE(findings[2].captured, File::NotLookedFor);
}

void tst_HoldScan::looksForNoFilesWithoutAFolder()
{
    Request request;
    request.rows = rowsOf("a");
    request.range = {0, 0};
    QCOMPARE(scan(request, false)[0].captured, File::NotLookedFor);
}

void tst_HoldScan::endsWhenCancelled()
{
    Request request;
    request.rows = rowsOf("a b c");
    request.range = {0, 2};
    QVERIFY(scan(request, true).empty());
}

QTEST_GUILESS_MAIN(tst_HoldScan)
#include "tst_holdscan.moc"
