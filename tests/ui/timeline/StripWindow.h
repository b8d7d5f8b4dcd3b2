#pragma once

#include "support/ShellWindow.h"

#include <QImage>
#include <QSignalSpy>
#include <QTest>

/// The program with a film of a few frames open, and the mouse on its timeline.
class StripWindow : public ShellWindow
{
public:
    /// Frames named "frame_0.jpg" and so on; their files do not exist.
    explicit StripWindow(int frames, const Options &options = {});

    /// An item of the timeline that its own file names, such as "strip" or "commands".
    QVariant timeline(const QString &expression) const
    {
        return evaluate(QStringLiteral("timelineBox.") + expression);
    }
    QQuickItem *strip() const
    {
        return timeline(QStringLiteral("strip")).value<QQuickItem *>();
    }
    /// Scrolls to the first frame, once all that changes of the frames entail is over.
    void goToStart();
    /// The row at a place of the strip, -1 where there is none.
    int rowAt(qreal x) const
    {
        return timeline(QStringLiteral("strip.rowAt(%1)").arg(x)).toInt();
    }
    /// The numbers of the frames' pictures in row order; -1 for a frame without one.
    QList<int> order();
    /// The rows that are selected.
    QList<int> selected();
    void select(const QList<int> &rows);
    void showTab(const char *state);

    /// The delegate of a row; null when it is not made.
    QQuickItem *frame(int row) const;
    int framesMade() const;
    /// The middle of a row in the window, wherever it has been scrolled to.
    QPoint at(int row) const;
    void clickFrame(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                    Qt::MouseButton button = Qt::LeftButton);
    /// Presses at one place, moves in steps to the other and releases there.
    void drag(const QPoint &from, const QPoint &to, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
              Qt::MouseButton button = Qt::LeftButton);
    void dragFrames(int from, int to, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// The same with Alt held, which makes a drag move frames.
    void dragFramesWithAlt(int from, int to, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void wheel(int steps);
    /// The control with that tool tip; a test that uses it fails when there is none.
    QQuickItem *control(const QString &toolTip) const;
    void press(const QString &toolTip)
    {
        click(control(toolTip));
    }
    using ShellWindow::press;
    /// The items of a QML file of that name below one, the window's when null; only those that show.
    QList<QQuickItem *> itemsOf(const char *type, QQuickItem *from = nullptr) const;
    /// Waits until no action runs and nothing that follows one does.
    bool waitIdle();
    QColor colorAt(QQuickItem *item, const QPointF &place) const;
};
