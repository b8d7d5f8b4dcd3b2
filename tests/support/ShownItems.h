#pragma once

#include <functional>
#include <QStringList>

class QQuickItem;

/// What a user sees of an item and of all below it: whatever is not visible is passed over, with its
/// children.
namespace shownItems {

/// Parents come before their children, in the order in which they are drawn.
void visit(QQuickItem *item, const std::function<void(QQuickItem *)> &visitor);
/// The first one for which `wanted` holds; null without one.
QQuickItem *find(QQuickItem *item, const std::function<bool(QQuickItem *)> &wanted);

bool isText(const QQuickItem *item);
/// A text that its item has no room for.
bool isCutOff(const QQuickItem *item);
/// The texts that are not empty.
QStringList texts(QQuickItem *item);
/// The texts that are cut off, or reach out of the item at its sides.
QStringList textsOutside(QQuickItem *item);

/// Scrolls what holds the item, as the wheel would.
void bringIntoSight(QQuickItem *item);

} // namespace shownItems
