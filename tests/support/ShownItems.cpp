#include "support/ShownItems.h"

#include <QQuickItem>

namespace shownItems {

QQuickItem *find(QQuickItem *item, const std::function<bool(QQuickItem *)> &wanted)
{
    if (item == nullptr || !item->isVisible())
        return nullptr;
    if (wanted(item))
        return item;
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children) {
        if (QQuickItem *found = find(child, wanted))
            return found;
    }
    return nullptr;
}

void visit(QQuickItem *item, const std::function<void(QQuickItem *)> &visitor)
{
    find(item, [&](QQuickItem *shown) {
        visitor(shown);
        return false;
    });
}

bool isText(const QQuickItem *item)
{
    return item->inherits("QQuickText") && !item->property("text").toString().isEmpty();
}

bool isCutOff(const QQuickItem *item)
{
    return isText(item)
           && (item->property("truncated").toBool()
               || item->property("contentWidth").toReal() > item->width() + 1);
}

QStringList texts(QQuickItem *item)
{
    QStringList all;
    visit(item, [&](QQuickItem *shown) {
        if (isText(shown))
            all.append(shown->property("text").toString());
    });
    return all;
}

QStringList textsOutside(QQuickItem *item)
{
    QStringList outside;
    const QRectF box = item->mapRectToScene(item->boundingRect());
    visit(item, [&](QQuickItem *shown) {
        if (!isText(shown))
            return;
        const QRectF area = shown->mapRectToScene(shown->boundingRect());
        if (isCutOff(shown) || area.left() < box.left() || area.right() > box.right())
            outside.append(shown->property("text").toString());
    });
    return outside;
}

void bringIntoSight(QQuickItem *item)
{
    for (QQuickItem *above = item->parentItem(); above != nullptr; above = above->parentItem()) {
        if (!above->inherits("QQuickFlickable") || above->height() <= 0)
            continue;
        const double top = item->mapToItem(above, QPointF(0, 0)).y();
        const double bottom = top + item->height();
        const double at = above->property("contentY").toDouble();
        if (bottom > above->height())
            above->setProperty("contentY", at + bottom - above->height());
        else if (top < 0)
            above->setProperty("contentY", at + top);
    }
}

} // namespace shownItems
