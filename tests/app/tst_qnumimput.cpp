#include "app/ItemWindow.h"
#include "app/QNumImput.h"

#include <QSignalSpy>

class TestQNumImput : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void ownerSetsWithoutEdited();
    void typedTextCountsOnCommitOnly();
    void typedTextIsReadAndLimited_data();
    void typedTextIsReadAndLimited();
    void revertDropsWhatWasTyped();
    void ownersValueDoesNotDisturbTyping();
    void commitWithoutTypingKeepsAValueOutsideTheLimits();
    void decimalsAreShownAndRounded();
    void changedDecimalsRewriteTheText();
    void negativeZeroIsPlainZero();
    void keysStep_data();
    void keysStep();
    void stepCountsWhatWasTypedFirst();
    void stepsAreLimited();
    void stepsLeaveNoDust();
    void wheelStepsAndPassesByWhenSwitchedOff();

private:
    std::unique_ptr<QNumImput> m_input;
    std::unique_ptr<QSignalSpy> m_edited;
};

void TestQNumImput::init()
{
    m_edited.reset();
    m_input = std::make_unique<QNumImput>();
    m_input->setValue(12);
    m_edited = std::make_unique<QSignalSpy>(m_input.get(), &QNumImput::edited);
}

void TestQNumImput::ownerSetsWithoutEdited()
{
    m_input->setValue(999);
    QCOMPARE(m_input->value(), 999.0);
    QCOMPARE(m_input->text(), "999");
    QCOMPARE(m_edited->size(), 0);
}

void TestQNumImput::typedTextCountsOnCommitOnly()
{
    m_input->setText("34");
    QCOMPARE(m_input->value(), 12.0);
    QCOMPARE(m_edited->size(), 0);
    m_input->commit();
    QCOMPARE(m_input->value(), 34.0);
    QCOMPARE(m_edited->size(), 1);
    QCOMPARE(m_edited->at(0).at(0).toReal(), 34.0);
    m_input->commit();
    QCOMPARE(m_edited->size(), 1);
}

void TestQNumImput::typedTextIsReadAndLimited_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("edits");
    QTest::newRow("plain") << "7"
                           << "7.0" << 1;
    QTest::newRow("point") << "7.5"
                           << "7.5" << 1;
    QTest::newRow("comma") << "7,5"
                           << "7.5" << 1;
    QTest::newRow("blanks") << " 7 . 5 "
                            << "7.5" << 1;
    QTest::newRow("rounded to the decimals") << "7.46"
                                             << "7.5" << 1;
    QTest::newRow("above the maximum") << "5000"
                                       << "100.0" << 1;
    QTest::newRow("below the minimum") << "-3"
                                       << "0.0" << 1;
    QTest::newRow("the same value in other words") << "12.00"
                                                   << "12.0" << 0;
    QTest::newRow("empty") << ""
                           << "12.0" << 0;
    QTest::newRow("a word") << "twelve"
                            << "12.0" << 0;
    QTest::newRow("two points") << "1.2.3"
                                << "12.0" << 0;
    QTest::newRow("not a number") << "nan"
                                  << "12.0" << 0;
    QTest::newRow("endless") << "inf"
                             << "12.0" << 0;
    QTest::newRow("too large to be a number") << "1e999"
                                              << "12.0" << 0;
}

void TestQNumImput::typedTextIsReadAndLimited()
{
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    QFETCH(int, edits);
    m_input->setDecimals(1);
    m_input->setText(typed);
    m_input->commit();
    QCOMPARE(m_input->text(), shown);
    QCOMPARE(m_input->value(), shown.toDouble());
    QCOMPARE(m_edited->size(), edits);
}

void TestQNumImput::revertDropsWhatWasTyped()
{
    m_input->setText("55");
    m_input->revert();
    QCOMPARE(m_input->text(), "12");
    m_input->commit();
    QCOMPARE(m_input->value(), 12.0);
    QCOMPARE(m_edited->size(), 0);
}

void TestQNumImput::ownersValueDoesNotDisturbTyping()
{
    m_input->setText("5");
    m_input->setValue(80);
    QCOMPARE(m_input->text(), "5");
    m_input->commit();
    QCOMPARE(m_input->value(), 5.0);
    m_input->setValue(80);
    QCOMPARE(m_input->text(), "80");
}

void TestQNumImput::commitWithoutTypingKeepsAValueOutsideTheLimits()
{
    m_input->setValue(500);
    m_input->setText("500");
    m_input->commit();
    QCOMPARE(m_input->value(), 500.0);
    QCOMPARE(m_edited->size(), 0);
}

void TestQNumImput::decimalsAreShownAndRounded()
{
    m_input->setDecimals(3);
    m_input->setValue(1.23456);
    QCOMPARE(m_input->text(), "1.235");
    QCOMPARE(m_input->value(), 1.23456);
}

void TestQNumImput::changedDecimalsRewriteTheText()
{
    m_input->setDecimals(2);
    QCOMPARE(m_input->text(), "12.00");
    m_input->setDecimals(-4);
    QCOMPARE(m_input->text(), "12");
}

void TestQNumImput::negativeZeroIsPlainZero()
{
    m_input->setMinimum(-10);
    m_input->setText("-0.2");
    m_input->commit();
    QCOMPARE(m_input->text(), "0");
}

void TestQNumImput::keysStep_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifier>("modifier");
    QTest::addColumn<qreal>("expected");
    QTest::newRow("Up") << Qt::Key_Up << Qt::NoModifier << 15.0;
    QTest::newRow("Down") << Qt::Key_Down << Qt::NoModifier << 9.0;
    QTest::newRow("PageUp") << Qt::Key_PageUp << Qt::NoModifier << 42.0;
    QTest::newRow("PageDown") << Qt::Key_PageDown << Qt::NoModifier << 0.0;
    QTest::newRow("Left belongs to the text") << Qt::Key_Left << Qt::NoModifier << 12.0;
    QTest::newRow("Ctrl+Up passes by") << Qt::Key_Up << Qt::ControlModifier << 12.0;
}

void TestQNumImput::keysStep()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifier, modifier);
    QFETCH(qreal, expected);
    m_input->setStep(3);
    ItemWindow window(*m_input);
    m_input->forceActiveFocus();
    window.key(key, modifier);
    QCOMPARE(m_input->value(), expected);
    QCOMPARE(m_edited->size(), expected == 12.0 ? 0 : 1);
    m_input->setParentItem(nullptr);
}

void TestQNumImput::stepCountsWhatWasTypedFirst()
{
    m_input->setText("50");
    m_input->stepBy(1);
    QCOMPARE(m_input->value(), 51.0);
    QCOMPARE(m_input->text(), "51");
}

void TestQNumImput::stepsAreLimited()
{
    m_input->stepBy(1000);
    QCOMPARE(m_input->value(), 100.0);
    m_input->stepBy(1);
    QCOMPARE(m_edited->size(), 1);
    m_input->stepBy(-1000);
    QCOMPARE(m_input->value(), 0.0);
}

void TestQNumImput::stepsLeaveNoDust()
{
    m_input->setDecimals(1);
    m_input->setStep(0.1);
    m_input->setValue(0);
    for (int i = 0; i < 3; ++i)
        m_input->stepBy(1);
    QVERIFY(m_input->value() == 0.3);
}

void TestQNumImput::wheelStepsAndPassesByWhenSwitchedOff()
{
    ItemWindow window(*m_input);
    QVERIFY(window.wheel({0, 120}));
    QCOMPARE(m_input->value(), 13.0);
    m_input->setWheelEnabled(false);
    QVERIFY(!window.wheel({0, 120}));
    QCOMPARE(m_input->value(), 13.0);
    m_input->setParentItem(nullptr);
}

QTEST_MAIN(TestQNumImput)

#include "tst_qnumimput.moc"
