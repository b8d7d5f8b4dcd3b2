#include "timeline/RowBars.h"

#include <QTest>

using Bars = std::vector<RowBars::Bar>;

class tst_RowBars : public QObject
{
    Q_OBJECT

private slots:
    void givesEachRowItsShareOfTheWidth();
    void makesEachBarAtLeastAPixelWide();
    void joinsBarsThatTouch();
    void cutsOffWhatIsNoRow();
    void hasNothingToShowWithoutRowsOrWidth();
    void neverHasMoreBarsThanPixels();
};

namespace {
Bars barsOf(int rows, qreal width, const std::vector<std::pair<int, int>> &runs)
{
    RowBars bars(rows, width);
    for (const auto &[first, last] : runs)
        bars.add(first, last);
    return bars.bars();
}
} // namespace

void tst_RowBars::givesEachRowItsShareOfTheWidth()
{
    QVERIFY(barsOf(10, 100, {{0, 0}, {2, 4}, {9, 9}}) == (Bars{{0, 10}, {20, 50}, {90, 100}}));
    QVERIFY(barsOf(3, 100, {{0, 2}}) == (Bars{{0, 100}}));
}

void tst_RowBars::makesEachBarAtLeastAPixelWide()
{
    QVERIFY(barsOf(10000, 100, {{150, 150}}) == (Bars{{1, 2}}));
}

void tst_RowBars::joinsBarsThatTouch()
{
    QVERIFY(barsOf(10, 100, {{1, 2}, {3, 3}}) == (Bars{{10, 40}}));
    QVERIFY(barsOf(10000, 100, {{100, 100}, {150, 150}, {199, 199}}) == (Bars{{1, 2}}));
}

void tst_RowBars::cutsOffWhatIsNoRow()
{
    QVERIFY(barsOf(10, 100, {{-5, 1}, {8, 30}}) == (Bars{{0, 20}, {80, 100}}));
    QVERIFY(barsOf(10, 100, {{12, 14}, {5, 4}}).empty());
}

void tst_RowBars::hasNothingToShowWithoutRowsOrWidth()
{
    QVERIFY(barsOf(0, 100, {{0, 5}}).empty());
    QVERIFY(barsOf(10, 0, {{0, 5}}).empty());
}

void tst_RowBars::neverHasMoreBarsThanPixels()
{
    RowBars bars(100000, 640);
    for (int row = 0; row < 100000; row += 2)
        bars.add(row, row);
    QVERIFY(bars.bars().size() <= 640);
    QCOMPARE(bars.bars().front().left, 0);
    QCOMPARE(bars.bars().back().right, 640);
}

QTEST_APPLESS_MAIN(tst_RowBars)
#include "tst_rowbars.moc"
