#include "timeline/UndoStack.h"

#include "shared/Zum.h"

#include <QSignalSpy>
#include <QTest>

namespace {

QVariantMap snapshot(int guid)
{
    return {{"guid", guid}, {"prevGuid", -1}, {"undoAct", int(Zum::ActionModify)}};
}

void write(UndoStack &stack, int guid)
{
    stack.writeUndo(snapshot(guid));
    stack.writeRedo(snapshot(guid));
}

} // namespace

class tst_UndoStack : public QObject
{
    Q_OBJECT

private slots:
    void holdsThreeHundredRecords();
    void dropsTheRecordsAboveTheCursor();
    void dropsAllRecordsWhenAllWereUndone();
    void keepsTheCursorWhenEmptied();
    void completesTheNewestRecordOnly();
    void aimsIntoTheStack();
    void stopsFallingBelowTheFirstRecord();
    void logsASnapshotWithoutAGuid();
    void logsWhyThereIsNoEntry_data();
    void logsWhyThereIsNoEntry();
    void readsAnEntry();
};

void tst_UndoStack::holdsThreeHundredRecords()
{
    UndoStack stack;
    for (int i = 0; i < 301; ++i)
        write(stack, 10000000 + i);
    QCOMPARE(stack.count(), 300);
    QCOMPARE(stack.current(), 299);
    for (int i = 0; i < 299; ++i)
        stack.passUndone();
    // The oldest record has gone, the second oldest is the first now.
    QCOMPARE(stack.entry("undo").guid, 10000001);
}

void tst_UndoStack::dropsTheRecordsAboveTheCursor()
{
    UndoStack stack;
    for (int i = 0; i < 5; ++i)
        write(stack, 10000000 + i);
    stack.passUndone();
    stack.passUndone();
    QCOMPARE(stack.current(), 2);
    QSignalSpy counted(&stack, &UndoStack::countChanged);
    write(stack, 20000000);
    QCOMPARE(stack.count(), 4);
    QCOMPARE(stack.current(), 3);
    QCOMPARE(stack.entry("undo").guid, 20000000);
    QCOMPARE(counted.count(), 2);
}

void tst_UndoStack::dropsAllRecordsWhenAllWereUndone()
{
    UndoStack stack;
    for (int i = 0; i < 3; ++i)
        write(stack, 10000000 + i);
    for (int i = 0; i < 3; ++i)
        stack.passUndone();
    write(stack, 20000000);
    QCOMPARE(stack.count(), 1);
    QCOMPARE(stack.current(), 0);
}

void tst_UndoStack::keepsTheCursorWhenEmptied()
{
    UndoStack stack;
    for (int i = 0; i < 3; ++i)
        write(stack, 10000000 + i);
    stack.clear();
    QCOMPARE(stack.count(), 0);
    QCOMPARE(stack.current(), 2);
    write(stack, 20000000);
    QCOMPARE(stack.current(), 0);
}

void tst_UndoStack::completesTheNewestRecordOnly()
{
    UndoStack stack;
    stack.writeRedo(snapshot(1));
    QCOMPARE(stack.count(), 0);
    write(stack, 10000000);
    stack.writeUndo(snapshot(10000001));
    stack.writeRedo(snapshot(30000000));
    QCOMPARE(stack.entry("undo").guid, 10000001);
    QCOMPARE(stack.entry("redo").guid, 30000000);
    stack.passUndone();
    QCOMPARE(stack.entry("redo").guid, 10000000);
}

void tst_UndoStack::aimsIntoTheStack()
{
    UndoStack stack;
    write(stack, 10000000);
    stack.passRedone();
    QCOMPARE(stack.current(), 1);
    stack.aimAtUndo();
    QCOMPARE(stack.current(), 0);
    stack.passUndone();
    stack.aimAtRedo();
    QCOMPARE(stack.current(), 0);
}

void tst_UndoStack::stopsFallingBelowTheFirstRecord()
{
    UndoStack stack;
    stack.passUndone();
    stack.passUndone();
    QCOMPARE(stack.current(), -1);
}

void tst_UndoStack::logsASnapshotWithoutAGuid()
{
    UndoStack stack;
    QTest::ignoreMessage(QtDebugMsg, "Error. Frame has no guid. Current action = 3");
    stack.writeUndo({{"undoAct", int(Zum::ActionModify)}});
    QCOMPARE(stack.count(), 0);
    write(stack, 10000000);
    QTest::ignoreMessage(QtDebugMsg, "Error. Frame has no guid. Current action = 2");
    stack.writeRedo({{"undoAct", int(Zum::ActionRemove)}});
    QCOMPARE(stack.entry("redo").guid, 10000000);
}

void tst_UndoStack::logsWhyThereIsNoEntry_data()
{
    QTest::addColumn<QVariantMap>("section");
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QByteArray>("line");
    const QVariantMap good = snapshot(10000000);
    const auto without = [good](const QString &key) {
        QVariantMap map = good;
        map.remove(key);
        return map;
    };
    const auto with = [good](const QString &key, const QVariant &value) {
        QVariantMap map = good;
        map.insert(key, value);
        return map;
    };
    QTest::newRow("no section") << good << "redo" << QByteArray("Error: redo section not found");
    QTest::newRow("no type") << without("undoAct") << "undo"
                             << QByteArray("Error: Undo object has no undo type");
    QTest::newRow("type is text") << with("undoAct", "x") << "undo"
                                  << QByteArray("Error converting variant to int");
    QTest::newRow("guid is text") << with("guid", "x") << "undo"
                                  << QByteArray("Error converting variant to int");
    QTest::newRow("previous guid is text")
        << with("prevGuid", "x") << "undo" << QByteArray("Error converting variant to int");
    QTest::newRow("no previous guid")
        << without("prevGuid") << "undo" << QByteArray("Error converting variant to int");
}

void tst_UndoStack::logsWhyThereIsNoEntry()
{
    QFETCH(QVariantMap, section);
    QFETCH(QString, asked);
    QFETCH(QByteArray, line);
    UndoStack stack;
    QTest::ignoreMessage(QtDebugMsg, "Undo not allowed");
    QVERIFY(!stack.entry(asked).valid);
    stack.writeUndo(section);
    QTest::ignoreMessage(QtDebugMsg, line.constData());
    QVERIFY(!stack.entry(asked).valid);
    QCOMPARE(stack.current(), 0);
}

void tst_UndoStack::readsAnEntry()
{
    UndoStack stack;
    write(stack, 10000005);
    const UndoStack::Entry entry = stack.entry("undo");
    QVERIFY(entry.valid);
    QCOMPARE(entry.action, int(Zum::ActionModify));
    QCOMPARE(entry.guid, 10000005);
    QCOMPARE(entry.previousGuid, -1);
    QCOMPARE(entry.section, snapshot(10000005));
}

QTEST_GUILESS_MAIN(tst_UndoStack)
#include "tst_undostack.moc"
