#include "timeline/FrameList.h"

#include <algorithm>
#include <QList>
#include <QRandomGenerator>
#include <QTest>

namespace {

Frame frameWith(int guid)
{
    Frame frame;
    frame.setGuid(guid);
    return frame;
}

/// The same list the plain way: an array, and a pass over it for each lookup.
class PlainList
{
public:
    QList<int> guids;

    int rowOf(int guid)
    {
        if (Frame::isGuid(guid))
            m_probe = guid;
        return int(guids.indexOf(m_probe));
    }

private:
    int m_probe = -1;
};

QList<int> guidsOf(const FrameList &list)
{
    QList<int> guids;
    list.forEach(0, list.count() - 1, [&guids](const Frame &frame) { guids.append(frame.guid()); });
    return guids;
}

} // namespace

class tst_FrameList : public QObject
{
    Q_OBJECT

private slots:
    void repeatsThePreviousLookupForAValueThatIsNoGuid();
    void findsTheFirstOfTwoFramesWithOneGuid();
    void refusesAGuidOutOfRange();
    void visitsTheRowsOfASpanInOrder();
    void answersAsAPassOverTheListWould_data();
    void answersAsAPassOverTheListWould();
};

void tst_FrameList::repeatsThePreviousLookupForAValueThatIsNoGuid()
{
    FrameList list;
    QCOMPARE(list.rowOf(-1), -1);
    for (int i = 0; i < 5; ++i)
        list.insert(i, frameWith(10000000 + i));
    QCOMPARE(list.rowOf(-1), -1);
    QCOMPARE(list.rowOf(10000003), 3);
    QCOMPARE(list.rowOf(-1), 3);
    QCOMPARE(list.rowOf(99), 3);
    list.move(3, 0);
    QCOMPARE(list.rowOf(-1), 0);
    QCOMPARE(list.rowOf(20000000), -1);
    QCOMPARE(list.rowOf(-1), -1);
}

void tst_FrameList::findsTheFirstOfTwoFramesWithOneGuid()
{
    FrameList list;
    for (int i = 0; i < 5; ++i)
        list.insert(i, frameWith(10000000 + i));
    QVERIFY(list.setGuid(1, 10000004));
    QCOMPARE(list.rowOf(10000004), 1);
    QCOMPARE(list.rowOf(10000001), -1);
    list.remove(1);
    QCOMPARE(list.rowOf(10000004), 3);
}

void tst_FrameList::refusesAGuidOutOfRange()
{
    FrameList list;
    list.insert(0, frameWith(10000000));
    QVERIFY(!list.setGuid(0, 5));
    QCOMPARE(list.at(0).guid(), 10000000);
    QCOMPARE(list.rowOf(10000000), 0);
}

void tst_FrameList::visitsTheRowsOfASpanInOrder()
{
    FrameList list;
    for (int i = 0; i < 3000; ++i)
        list.insert(i, frameWith(10000000 + i));
    QList<int> seen;
    list.forEach(500, 2499, [&seen](const Frame &frame) { seen.append(frame.guid() - 10000000); });
    QCOMPARE(seen.size(), 2000);
    QCOMPARE(seen.first(), 500);
    QCOMPARE(seen.last(), 2499);
    QVERIFY(std::is_sorted(seen.cbegin(), seen.cend()));
}

void tst_FrameList::answersAsAPassOverTheListWould_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("a handful") << 5;
    QTest::newRow("one block") << 400;
    QTest::newRow("many blocks") << 5000;
}

void tst_FrameList::answersAsAPassOverTheListWould()
{
    QFETCH(int, size);
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    FrameList list;
    PlainList plain;
    int nextGuid = 10000000;
    const auto below = [&random](int limit) {
        return int(random.bounded(limit));
    };
    for (int i = 0; i < size; ++i) {
        const int row = below(i + 1);
        list.insert(row, frameWith(nextGuid));
        plain.guids.insert(row, nextGuid++);
    }
    for (int step = 0; step < 4000; ++step) {
        const int count = list.count();
        const int choice = below(10);
        if (choice < 3 || count == 0) {
            const int row = below(count + 1);
            list.insert(row, frameWith(nextGuid));
            plain.guids.insert(row, nextGuid++);
        } else if (choice < 6) {
            const int row = below(count);
            list.remove(row);
            plain.guids.removeAt(row);
        } else if (choice < 8) {
            const int from = below(count);
            const int to = below(count);
            list.move(from, to);
            plain.guids.move(from, to);
        } else {
            // One of the frames, one that has gone, or no GUID at all.
            const int guid = choice == 8 ? 10000000 + below(nextGuid - 10000000) : below(200) - 100;
            QCOMPARE(list.rowOf(guid), plain.rowOf(guid));
        }
        QCOMPARE(list.count(), int(plain.guids.size()));
        if (list.count() > 0) {
            const int row = below(list.count());
            QCOMPARE(list.at(row).guid(), plain.guids.at(row));
        }
    }
    QCOMPARE(guidsOf(list), plain.guids);
}

QTEST_GUILESS_MAIN(tst_FrameList)
#include "tst_framelist.moc"
