#include "app/ASlider.h"
#include "app/ItemWindow.h"

#include <QSignalSpy>

class TestASlider : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void ownerSetsWithoutMoved();
    void positionLiesBetweenTheLimits();
    void positionOfAnEmptyRangeIsZero();
    void clickOnTheTrackMovesThere();
    void pressOnTheHandleMovesNothing();
    void dragFollowsThePointerAndStopsAtTheEnds();
    void discreteDragStopsAtWholeSteps();
    void pressedLastsFromPressToRelease();
    void keysMoveByStepsAndToTheEnds_data();
    void keysMoveByStepsAndToTheEnds();
    void keysWithCommandModifiersPassBy();
    void movesStayWithinTheLimits();
    void stepsLeaveNoDust();
    void unsetStepIsAHundredthOfTheRange();
    void wheelMovesByOneStep();
    void wheelPassesByWhenSwitchedOff();
    void doubleClickGivesTheDefault();
    void sameValueSendsNoMoved();
    void disabledSliderTakesNoClick();
    void tabComesToIt();

private:
    std::unique_ptr<ASlider> m_slider;
    std::unique_ptr<ItemWindow> m_window;
    std::unique_ptr<QSignalSpy> m_moved;
};

// 120 pixels wide with a handle of 20: one pixel is one of a hundred, from pixel 10 to pixel 110.
void TestASlider::init()
{
    m_moved.reset();
    m_window.reset();
    m_slider = std::make_unique<ASlider>();
    m_slider->setHandleSize(20);
    m_slider->setValue(40);
    m_window = std::make_unique<ItemWindow>(*m_slider);
    m_moved = std::make_unique<QSignalSpy>(m_slider.get(), &ASlider::moved);
    m_slider->forceActiveFocus();
}

void TestASlider::ownerSetsWithoutMoved()
{
    QSignalSpy changed(m_slider.get(), &ASlider::valueChanged);
    m_slider->setValue(170);
    QCOMPARE(m_slider->value(), 170.0);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(m_moved->size(), 0);
}

void TestASlider::positionLiesBetweenTheLimits()
{
    QCOMPARE(m_slider->position(), 0.4);
    m_slider->setMinimum(-10);
    m_slider->setMaximum(90);
    QCOMPARE(m_slider->position(), 0.5);
    m_slider->setValue(200);
    QCOMPARE(m_slider->position(), 1.0);
    m_slider->setValue(-200);
    QCOMPARE(m_slider->position(), 0.0);
}

void TestASlider::positionOfAnEmptyRangeIsZero()
{
    m_slider->setMaximum(0);
    QCOMPARE(m_slider->position(), 0.0);
    m_window->press(100);
    m_window->release(100);
    QCOMPARE(m_slider->value(), 0.0);
}

void TestASlider::clickOnTheTrackMovesThere()
{
    m_window->press(85);
    QCOMPARE(m_slider->value(), 75.0);
    QCOMPARE(m_moved->size(), 1);
    QCOMPARE(m_moved->at(0).at(0).toReal(), 75.0);
    m_window->release(85);
    QCOMPARE(m_moved->size(), 1);
}

void TestASlider::pressOnTheHandleMovesNothing()
{
    m_window->press(57);
    m_window->release(57);
    QCOMPARE(m_slider->value(), 40.0);
    QCOMPARE(m_moved->size(), 0);
}

void TestASlider::dragFollowsThePointerAndStopsAtTheEnds()
{
    m_window->press(57);
    m_window->move(67);
    QCOMPARE(m_slider->value(), 50.0);
    m_window->move(190);
    QCOMPARE(m_slider->value(), 100.0);
    m_window->move(0);
    QCOMPARE(m_slider->value(), 0.0);
    m_window->release(0);
    m_window->move(60);
    QCOMPARE(m_slider->value(), 0.0);
}

void TestASlider::discreteDragStopsAtWholeSteps()
{
    m_slider->setMinimum(1);
    m_slider->setMaximum(101);
    m_slider->setStep(25);
    m_slider->setDiscrete(true);
    m_window->press(30);
    QCOMPARE(m_slider->value(), 26.0);
    m_window->move(47);
    QCOMPARE(m_slider->value(), 26.0);
    m_window->move(48);
    QCOMPARE(m_slider->value(), 51.0);
    m_window->release(48);
}

void TestASlider::pressedLastsFromPressToRelease()
{
    QSignalSpy changed(m_slider.get(), &ASlider::pressedChanged);
    QVERIFY(!m_slider->isPressed());
    m_window->press(50);
    QVERIFY(m_slider->isPressed());
    m_window->release(50);
    QVERIFY(!m_slider->isPressed());
    QCOMPARE(changed.size(), 2);
}

void TestASlider::keysMoveByStepsAndToTheEnds_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<qreal>("expected");
    QTest::newRow("Left") << Qt::Key_Left << 38.0;
    QTest::newRow("Down") << Qt::Key_Down << 38.0;
    QTest::newRow("Right") << Qt::Key_Right << 42.0;
    QTest::newRow("Up") << Qt::Key_Up << 42.0;
    QTest::newRow("PageDown") << Qt::Key_PageDown << 20.0;
    QTest::newRow("PageUp") << Qt::Key_PageUp << 60.0;
    QTest::newRow("Home") << Qt::Key_Home << 0.0;
    QTest::newRow("End") << Qt::Key_End << 100.0;
    QTest::newRow("Backspace") << Qt::Key_Backspace << 7.0;
    QTest::newRow("another key") << Qt::Key_F5 << 40.0;
}

void TestASlider::keysMoveByStepsAndToTheEnds()
{
    QFETCH(Qt::Key, key);
    QFETCH(qreal, expected);
    m_slider->setStep(2);
    m_slider->setDefaultValue(7);
    m_window->key(key);
    QCOMPARE(m_slider->value(), expected);
    QCOMPARE(m_moved->size(), expected == 40.0 ? 0 : 1);
}

void TestASlider::keysWithCommandModifiersPassBy()
{
    m_window->key(Qt::Key_Left, Qt::ControlModifier);
    m_window->key(Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(m_slider->value(), 40.0);
}

void TestASlider::movesStayWithinTheLimits()
{
    m_slider->setValue(99.5);
    m_slider->stepBy(1);
    QCOMPARE(m_slider->value(), 100.0);
    m_slider->setDefaultValue(500);
    m_slider->setValue(3);
    m_slider->reset();
    QCOMPARE(m_slider->value(), 100.0);
    m_slider->setValue(-20);
    m_slider->stepBy(-1);
    QCOMPARE(m_slider->value(), 0.0);
}

void TestASlider::stepsLeaveNoDust()
{
    m_slider->setStep(0.1);
    m_slider->setValue(0);
    for (int i = 0; i < 3; ++i)
        m_slider->stepBy(1);
    QVERIFY(m_slider->value() == 0.3);
}

void TestASlider::unsetStepIsAHundredthOfTheRange()
{
    m_slider->setStep(0);
    m_slider->setMaximum(500);
    m_slider->stepBy(1);
    QCOMPARE(m_slider->value(), 45.0);
}

void TestASlider::wheelMovesByOneStep()
{
    QVERIFY(m_window->wheel({0, 120}));
    QCOMPARE(m_slider->value(), 41.0);
    QVERIFY(m_window->wheel({0, -240}));
    QCOMPARE(m_slider->value(), 39.0);
    QCOMPARE(m_moved->size(), 2);
}

void TestASlider::wheelPassesByWhenSwitchedOff()
{
    m_slider->setWheelEnabled(false);
    QVERIFY(!m_window->wheel({0, 120}));
    QCOMPARE(m_slider->value(), 40.0);
}

void TestASlider::doubleClickGivesTheDefault()
{
    m_slider->setDefaultValue(25);
    QTest::mouseDClick(&m_window->window(), Qt::LeftButton, Qt::NoModifier, {90, 10});
    QCOMPARE(m_slider->value(), 25.0);
    QCOMPARE(m_moved->last().at(0).toReal(), 25.0);
    QVERIFY(!m_slider->isPressed());
}

void TestASlider::sameValueSendsNoMoved()
{
    m_slider->setValue(100);
    m_slider->stepBy(1);
    QCOMPARE(m_moved->size(), 0);
}

void TestASlider::disabledSliderTakesNoClick()
{
    m_slider->setEnabled(false);
    m_window->press(85);
    m_window->release(85);
    QCOMPARE(m_slider->value(), 40.0);
}

void TestASlider::tabComesToIt()
{
    QVERIFY(m_slider->activeFocusOnTab());
}

QTEST_MAIN(TestASlider)

#include "tst_aslider.moc"
