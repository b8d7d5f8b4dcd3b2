#include "paths/StrokeBuffer.h"

#include <QTest>

class TestStrokeBuffer : public QObject
{
    Q_OBJECT

private slots:
    void everyFourthPositionMakesANode();
    void strokeOverExactOriginSkipsTheNodeThere();
    void originBetweenNodesDoesNotMatter();
    void clearedBufferStartsCountingAnew();
};

namespace {

/// The nodes that a run of positions makes.
QList<QPointF> nodesOf(const QList<QPointF> &positions)
{
    morvane::StrokeBuffer buffer;
    QList<QPointF> nodes;
    for (const QPointF &position : positions)
        if (const auto node = buffer.append(position))
            nodes.append(*node);
    return nodes;
}

} // namespace

void TestStrokeBuffer::everyFourthPositionMakesANode()
{
    QList<QPointF> positions;
    for (int at = 1; at <= 11; ++at)
        positions.append(QPointF(at, -at));
    QCOMPARE(nodesOf(positions), (QList<QPointF>{{4, -4}, {8, -8}}));
}

void TestStrokeBuffer::strokeOverExactOriginSkipsTheNodeThere()
{
    QCOMPARE(nodesOf({{3, 0}, {2, 0}, {1, 0}, {0, 0}}), QList<QPointF>());
    QCOMPARE(nodesOf({{3, 0}, {2, 0}, {1, 0}, {0, 0}, {-1, 0}, {-2, 0}}), (QList<QPointF>{{-1, 0}}));
}

void TestStrokeBuffer::originBetweenNodesDoesNotMatter()
{
    QCOMPARE(nodesOf({{1, 0}, {0, 0}, {-1, 0}, {-2, 0}}), (QList<QPointF>{{-2, 0}}));
    QCOMPARE(nodesOf({{3, 0}, {2, 0}, {1, 0}, {0, 1}}), (QList<QPointF>{{0, 1}}));
}

void TestStrokeBuffer::clearedBufferStartsCountingAnew()
{
    morvane::StrokeBuffer buffer;
    for (int at = 1; at <= 3; ++at)
        QVERIFY(!buffer.append(QPointF(at, at)));
    buffer.clear();
    for (int at = 1; at <= 3; ++at)
        QVERIFY(!buffer.append(QPointF(at, at)));
    QVERIFY(buffer.append({4, 4}));
}

QTEST_GUILESS_MAIN(TestStrokeBuffer)
#include "tst_strokebuffer.moc"
