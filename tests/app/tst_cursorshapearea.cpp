#include "app/CursorShapeArea.h"
#include "app/ItemWindow.h"

#include <QSignalSpy>

class TestCursorShapeArea : public QObject
{
    Q_OBJECT

private slots:
    void cursorShapeIsShownOverTheArea();
    void clicksAndWheelPassThroughToWhatLiesBehind();
};

void TestCursorShapeArea::cursorShapeIsShownOverTheArea()
{
    CursorShapeArea area;
    ItemWindow window(area);
    QSignalSpy changed(&area, &CursorShapeArea::cursorShapeChanged);
    QCOMPARE(area.cursorShape(), Qt::ArrowCursor);
    area.setCursorShape(Qt::CrossCursor);
    area.setCursorShape(Qt::CrossCursor);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(area.cursorShape(), Qt::CrossCursor);
    window.move(10);
    QTRY_COMPARE(window.window().cursor().shape(), Qt::CrossCursor);
    window.move(190);
    QTRY_COMPARE(window.window().cursor().shape(), Qt::ArrowCursor);
    area.setParentItem(nullptr);
}

void TestCursorShapeArea::clicksAndWheelPassThroughToWhatLiesBehind()
{
    ClickCounter behind;
    ItemWindow window(behind);
    CursorShapeArea area(&behind);
    area.setSize(behind.size());
    window.press(10);
    window.release(10);
    QCOMPARE(behind.clicks, 1);
    QVERIFY(!window.wheel({0, 120}));
    behind.setParentItem(nullptr);
}

QTEST_MAIN(TestCursorShapeArea)

#include "tst_cursorshapearea.moc"
