#pragma once

#include "shared/WebcamGlobal.h"

#include <memory>
#include <QQuickItem>
#include <QQuickView>
#include <QStringList>

/// A window with the controls of the program in it, at one row of the font table, and a hand to use them
/// with.
///
/// Collects every warning from its making to its end; pictures that are not there do not count.
class ControlHost
{
public:
    explicit ControlHost(int fontRow = 1, QSize windowSize = {900, 600});
    ~ControlHost();

    /// Shows controls written in QML, on the ground of the program and with a ToolTip at the root. Returns
    /// the first one, or null when it does not load; warnings() tells why.
    QQuickItem *load(const QString &qml);

    QQuickView &window();
    QQuickItem *root() const;
    WebcamGlobal &global();
    QStringList warnings() const;

    /// The item with that object name, visual children included; null when there is none.
    QQuickItem *item(const QString &objectName) const;
    /// The result of a QML expression, with the root as `root`.
    QVariant evaluate(const QString &expression);

    QPoint centreOf(const QQuickItem *item) const;
    void click(const QQuickItem *item, Qt::MouseButton button = Qt::LeftButton);
    void hover(const QQuickItem *item);
    /// Turns the wheel over the item; positive away from the user.
    void wheel(const QQuickItem *item, int steps);
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString &text);
    /// Gives the keyboard to the item as the Tab key would.
    void focus(QQuickItem *item);

private:
    WebcamGlobal m_global;
    std::unique_ptr<QQuickView> m_view;
};

/// What assistive programs are told of an item or of the part of it that carries the words.
struct AccessibleFacts
{
    QString name;
    QString description;
    int role = 0;
    /// Of the item itself: the oldest toolkit that the program runs with does not pass it on.
    bool disabled = false;
    bool checked = false;
    bool focusable = false;
};
AccessibleFacts accessibleFacts(QQuickItem *item);
/// The first item below, or the item itself, that assistive programs see; null when none.
QQuickItem *accessiblePart(QQuickItem *item);

/// Every text below the item that is cut off, with an ellipsis or by its box.
QStringList cutTexts(const QQuickItem *item);

QRectF sceneRect(const QQuickItem *item);

/// Test data: each corner of the window at the smallest and the largest font, as "anchors" of an item and
/// "row" of the font table.
void addCorners();
