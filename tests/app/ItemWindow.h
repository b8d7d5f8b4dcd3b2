#pragma once

#include <QQuickItem>
#include <QQuickWindow>
#include <QtTest>

/// A window with one item in it, and the events that a person would send there.
class ItemWindow
{
public:
    explicit ItemWindow(QQuickItem &item, QSizeF size = {120, 20})
    {
        m_window.resize(200, 100);
        item.setParentItem(m_window.contentItem());
        item.setSize(size);
        m_window.show();
        m_window.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&m_window));
    }

    QQuickWindow &window()
    {
        return m_window;
    }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&m_window, key, modifiers);
    }

    void press(int x)
    {
        QTest::mousePress(&m_window, Qt::LeftButton, Qt::NoModifier, {x, 10});
    }

    void move(int x)
    {
        QTest::mouseMove(&m_window, {x, 10});
    }

    void release(int x)
    {
        QTest::mouseRelease(&m_window, Qt::LeftButton, Qt::NoModifier, {x, 10});
    }

    /// Whether somebody took the turn; `delta` is 120 for a whole step away from the user.
    bool wheel(QPoint delta, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWheelEvent event({10, 10}, m_window.mapToGlobal(QPointF(10, 10)), QPoint(), delta, Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        event.ignore();
        QCoreApplication::sendEvent(&m_window, &event);
        return event.isAccepted();
    }

private:
    QQuickWindow m_window;
};

/// What may lie behind an item: counts the clicks that reach it.
class ClickCounter : public QQuickItem
{
public:
    ClickCounter()
    {
        setAcceptedMouseButtons(Qt::AllButtons);
    }

    int clicks = 0;

protected:
    void mousePressEvent(QMouseEvent *) override
    {
        ++clicks;
    }
};
