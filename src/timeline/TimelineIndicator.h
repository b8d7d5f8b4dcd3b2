#pragma once

#include "timeline/BarsItem.h"

#include "shared/PropertyMacros.h"

#include <QList>

/// The whole timeline at a glance, every frame in its share of the width: a band for holds at the top, one
/// for selected frames at the bottom and one for hidden frames above that.
class TimelineIndicator : public BarsItem
{
    Q_OBJECT
    /// The frames model; null shows nothing. Not owned.
    Q_PROPERTY(QObject *model READ model WRITE setModel NOTIFY modelChanged)
    MORVANE_PROPERTY(QColor, holdColor, HoldColor, Qt::blue)
    MORVANE_PROPERTY(QColor, selectedColor, SelectedColor, QColor(0x9a, 0x01, 0x01))
    MORVANE_PROPERTY(QColor, hiddenColor, HiddenColor, QColor(0x93, 0xe3, 0x08))

public:
    explicit TimelineIndicator(QQuickItem *parent = nullptr);

    QObject *model() const;
    void setModel(QObject *model);

signals:
    void modelChanged();

protected:
    std::vector<Band> collect() const override;

private:
    void onDataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight, const QList<int> &roles);

    QPointer<QObject> m_model;
};
