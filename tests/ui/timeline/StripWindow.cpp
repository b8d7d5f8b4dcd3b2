#include "ui/timeline/StripWindow.h"

#include <QQuickWindow>

StripWindow::StripWindow(int frames, const Options &options) : ShellWindow(options)
{
    if (!createProject())
        QTest::qFail("no project", __FILE__, __LINE__);
    this->frames().setShootMultipleFrames(0);
    addFrames(frames);
    this->frames().setCurrentIndex(0);
    goToStart();
}

void StripWindow::goToStart()
{
    if (!settle())
        QTest::qFail("nothing is drawn", __FILE__, __LINE__);
    timeline(QStringLiteral("strip.goTo(0)"));
    settle();
}

QList<int> StripWindow::order()
{
    QList<int> numbers;
    for (int row = 0; row < frames().framesCount(); ++row) {
        const QString name = frames().frameAt(row).capFull;
        numbers.append(name.isEmpty() ? -1 : name.section(u'_', 1).section(u'.', 0, 0).toInt());
    }
    return numbers;
}

QList<int> StripWindow::selected()
{
    QList<int> rows;
    for (int row = 0; row < frames().framesCount(); ++row) {
        if (frames().frameAt(row).ingroup)
            rows.append(row);
    }
    return rows;
}

void StripWindow::select(const QList<int> &rows)
{
    for (const int row : rows)
        frames().switchSelectionOnSingleFrame(row);
}

void StripWindow::showTab(const char *state)
{
    global().setMainTabsState(QString::fromLatin1(state));
    QVERIFY(settle());
}

QList<QQuickItem *> StripWindow::itemsOf(const char *type, QQuickItem *from) const
{
    QList<QQuickItem *> found;
    QQuickItem *start = from != nullptr ? from : root().window()->contentItem();
    if (!start->isVisible())
        return found;
    if (QByteArray(start->metaObject()->className()).startsWith(QByteArray(type) + "_QML"))
        found.append(start);
    const QList<QQuickItem *> children = start->childItems();
    for (QQuickItem *child : children)
        found += itemsOf(type, child);
    return found;
}

QQuickItem *StripWindow::frame(int row) const
{
    const QList<QQuickItem *> made = itemsOf("TimelineFrame", strip());
    for (QQuickItem *item : made) {
        if (item->property("index") == row)
            return item;
    }
    return nullptr;
}

int StripWindow::framesMade() const
{
    return int(itemsOf("TimelineFrame", strip()).size());
}

QPoint StripWindow::at(int row) const
{
    const QPointF place(timeline(QStringLiteral("strip.placeOf(%1)").arg(row)).toReal()
                            + strip()->property("frameWidth").toReal() / 2,
                        strip()->height() / 2);
    return strip()->mapToScene(place).toPoint();
}

void StripWindow::clickFrame(int row, Qt::KeyboardModifiers modifiers, Qt::MouseButton button)
{
    QVERIFY(settle());
    QTest::mouseClick(&window(), button, modifiers, at(row));
}

void StripWindow::drag(const QPoint &from, const QPoint &to, Qt::KeyboardModifiers modifiers,
                       Qt::MouseButton button)
{
    QTest::mousePress(&window(), button, modifiers, from);
    QTest::mouseMove(&window(), (from + to) / 2);
    QTest::mouseMove(&window(), to);
    QTest::mouseRelease(&window(), button, modifiers, to);
}

void StripWindow::dragFrames(int from, int to, Qt::KeyboardModifiers modifiers)
{
    QVERIFY(settle());
    drag(at(from), at(to), modifiers);
}

void StripWindow::dragFramesWithAlt(int from, int to, Qt::KeyboardModifiers modifiers)
{
    QTest::keyPress(&window(), Qt::Key_Alt);
    QVERIFY(!global().timelineInteractive());
    dragFrames(from, to, modifiers);
    QTest::keyRelease(&window(), Qt::Key_Alt);
}

void StripWindow::wheel(int steps)
{
    const QPointF place = strip()->mapToScene(QPointF(strip()->width() / 2, strip()->height() / 2));
    QWheelEvent event(place, window().mapToGlobal(place), {}, {0, 120 * steps}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&window(), &event);
}

QQuickItem *StripWindow::control(const QString &toolTip) const
{
    QQuickItem *found = findItem("toolTip", toolTip);
    if (found == nullptr)
        QTest::qFail(qPrintable("no control: " + toolTip), __FILE__, __LINE__);
    return found;
}

bool StripWindow::waitIdle()
{
    const auto resting = [this] {
        return frames().currentAction() == Zum::ActNoAction && controllers().operation.isFree();
    };
    // What ends one action may start the next one in the same turn.
    return QTest::qWaitFor([&] {
        if (!resting())
            return false;
        QCoreApplication::processEvents();
        return resting();
    });
}

QColor StripWindow::colorAt(QQuickItem *item, const QPointF &place) const
{
    const QImage shown = root().window()->grabWindow();
    return shown.pixelColor((item->mapToScene(place) * shown.devicePixelRatio()).toPoint());
}
