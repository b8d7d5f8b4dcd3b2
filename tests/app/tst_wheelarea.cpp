#include "app/ItemWindow.h"
#include "app/WheelArea.h"

#include <QSignalSpy>

class TestWheelArea : public QObject
{
    Q_OBJECT

private slots:
    void wholeStepsAreSentWithTheirModifiers();
    void smallTurnsGatherToAStep();
    void turnInTheOtherDirectionStartsAnew();
    void sidewaysWheelCountsWhenItIsTheOnlyOne();
    void clicksPassThroughToWhatLiesBehind();
};

void TestWheelArea::wholeStepsAreSentWithTheirModifiers()
{
    WheelArea area;
    ItemWindow window(area);
    QSignalSpy stepped(&area, &WheelArea::stepped);
    QVERIFY(window.wheel({0, 120}));
    QVERIFY(window.wheel({0, -240}, Qt::ControlModifier));
    QCOMPARE(stepped.size(), 2);
    QCOMPARE(stepped.at(0), QVariantList({1, 0}));
    QCOMPARE(stepped.at(1), QVariantList({-2, static_cast<int>(Qt::ControlModifier)}));
    area.setParentItem(nullptr);
}

void TestWheelArea::smallTurnsGatherToAStep()
{
    WheelArea area;
    ItemWindow window(area);
    QSignalSpy stepped(&area, &WheelArea::stepped);
    for (int i = 0; i < 7; ++i)
        QVERIFY(window.wheel({0, 40}));
    QCOMPARE(stepped.size(), 2);
    area.setParentItem(nullptr);
}

void TestWheelArea::turnInTheOtherDirectionStartsAnew()
{
    WheelArea area;
    ItemWindow window(area);
    QSignalSpy stepped(&area, &WheelArea::stepped);
    window.wheel({0, 100});
    window.wheel({0, -100});
    QCOMPARE(stepped.size(), 0);
    window.wheel({0, -20});
    QCOMPARE(stepped.size(), 1);
    QCOMPARE(stepped.at(0).at(0).toInt(), -1);
    area.setParentItem(nullptr);
}

void TestWheelArea::sidewaysWheelCountsWhenItIsTheOnlyOne()
{
    WheelArea area;
    ItemWindow window(area);
    QSignalSpy stepped(&area, &WheelArea::stepped);
    window.wheel({120, 0});
    QCOMPARE(stepped.size(), 1);
    QCOMPARE(stepped.at(0).at(0).toInt(), 1);
    area.setParentItem(nullptr);
}

void TestWheelArea::clicksPassThroughToWhatLiesBehind()
{
    ClickCounter behind;
    ItemWindow window(behind);
    WheelArea area(&behind);
    area.setSize(behind.size());
    window.press(10);
    window.release(10);
    QCOMPARE(behind.clicks, 1);
    behind.setParentItem(nullptr);
}

QTEST_MAIN(TestWheelArea)

#include "tst_wheelarea.moc"
