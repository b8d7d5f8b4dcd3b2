#include "timeline/FrameSelection.h"

#include <QRandomGenerator>
#include <QTest>

class tst_FrameSelection : public QObject
{
    Q_OBJECT

private slots:
    void listsTheNewestFirst();
    void keepsOneEntryPerGuid();
    void answersOutsideTheList();
    void forgetsWhatIsDeselected();
    void staysInOrderHoweverManyComeAndGo();
};

void tst_FrameSelection::listsTheNewestFirst()
{
    FrameSelection selection;
    for (const int guid : {3, 1, 2})
        QCOMPARE(selection.select(guid), 0);
    QCOMPARE(selection.guids(), QList<int>({2, 1, 3}));
    QCOMPARE(selection.at(0), 2);
    QCOMPARE(selection.at(2), 3);
}

void tst_FrameSelection::keepsOneEntryPerGuid()
{
    FrameSelection selection;
    for (const int guid : {3, 1, 2})
        selection.select(guid);
    QCOMPARE(selection.select(3), 1);
    QCOMPARE(selection.guids(), QList<int>({3, 2, 1}));
}

void tst_FrameSelection::answersOutsideTheList()
{
    FrameSelection selection;
    QCOMPARE(selection.at(0), -1);
    selection.select(5);
    QCOMPARE(selection.at(1), -1);
    QCOMPARE(selection.at(-1), -1);
}

void tst_FrameSelection::forgetsWhatIsDeselected()
{
    FrameSelection selection;
    for (const int guid : {3, 1, 2})
        selection.select(guid);
    selection.deselect(1);
    selection.deselect(9);
    QCOMPARE(selection.guids(), QList<int>({2, 3}));
    QVERIFY(!selection.contains(1));
    selection.clear();
    QVERIFY(selection.isEmpty());
    QVERIFY(!selection.contains(2));
}

void tst_FrameSelection::staysInOrderHoweverManyComeAndGo()
{
    FrameSelection selection;
    QList<int> newestFirst;
    QRandomGenerator random(7);
    for (int i = 0; i < 2000; ++i) {
        const int guid = random.bounded(1, 60);
        newestFirst.removeAll(guid);
        // Now mostly in, now mostly out.
        if (random.bounded(10) < (i / 200 % 2 == 0 ? 8 : 2)) {
            selection.select(guid);
            newestFirst.prepend(guid);
        } else {
            selection.deselect(guid);
        }
        QCOMPARE(selection.guids(), newestFirst);
        QCOMPARE(selection.count(), newestFirst.size());
        for (int position = 0; position < newestFirst.size(); ++position)
            QCOMPARE(selection.at(position), newestFirst.at(position));
    }
}

QTEST_GUILESS_MAIN(tst_FrameSelection)
#include "tst_frameselection.moc"
