#pragma once

#include <QColor>
#include <QList>
#include <QQuickItem>

/// Draws the counts of a picture's values as bars that stand on the bottom edge, each 1/256 of the item wide.
/// The last entry of the data is the height that fills the item; the others are the bars.
class Histogram : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(bool running READ running WRITE setRunning NOTIFY runningChanged)
    Q_PROPERTY(QColor bodyColor READ bodyColor WRITE setBodyColor NOTIFY bodyColorChanged)
    Q_PROPERTY(
        QList<qreal> histogramData READ histogramData WRITE setHistogramData NOTIFY histogramDataChanged)
    Q_PROPERTY(qreal maxCoeff READ maxCoeff WRITE setMaxCoeff NOTIFY maxCoeffChanged)

public:
    static constexpr qreal minMaxCoeff = 0.05;

    explicit Histogram(QQuickItem *parent = nullptr);

    /// While false nothing is drawn, and data that is written is dropped.
    bool running() const
    {
        return m_running;
    }
    void setRunning(bool running);

    QColor bodyColor() const
    {
        return m_bodyColor;
    }
    void setBodyColor(const QColor &color);

    QList<qreal> histogramData() const
    {
        return m_data;
    }
    void setHistogramData(const QList<qreal> &data);

    /// The share of the largest count that fills the height, limited to 0.05 to 1: less makes the bars
    /// higher.
    qreal maxCoeff() const
    {
        return m_maxCoeff;
    }
    void setMaxCoeff(qreal coefficient);

    /// The height of each bar in an item of that height; empty when there is nothing to draw.
    QList<qreal> barHeights(qreal itemHeight) const;

signals:
    void runningChanged();
    void bodyColorChanged();
    void histogramDataChanged();
    void maxCoeffChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    bool m_running = false;
    QColor m_bodyColor{QStringLiteral("#99ff5544")};
    QList<qreal> m_data;
    qreal m_maxCoeff = 1;
};
