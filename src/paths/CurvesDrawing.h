#pragma once

#include "paths/CurvesState.h"

#include <QPainterPath>
#include <QPolygonF>
#include <QSizeF>

/// What is drawn of the path, and the canvas it is drawn on: the part of the path model that the renderer
/// and the overlay bind to.
///
/// Coordinates are those of the canvas at scale 1. When the canvas takes another size, the path is stretched
/// with it.
class CurvesDrawing : public CurvesState
{
    Q_OBJECT
    Q_PROPERTY(qreal pointSizeHalf READ pointSizeHalf NOTIFY pointSizeHalfChanged)
    Q_PROPERTY(QPainterPath path READ path NOTIFY pathChanged)
    Q_PROPERTY(QPainterPath handlers READ handlers NOTIFY handlersChanged)
    Q_PROPERTY(QPolygonF dots READ dots NOTIFY dotsChanged)
    Q_PROPERTY(qreal canvasWidth READ canvasWidth WRITE setCanvasWidth NOTIFY canvasWidthChanged)
    Q_PROPERTY(qreal canvasHeight READ canvasHeight WRITE setCanvasHeight NOTIFY canvasHeightChanged)

public:
    explicit CurvesDrawing(QObject *parent = nullptr);

    qreal pointSizeHalf() const;
    QPainterPath path() const;
    QPainterPath handlers() const;
    QPolygonF dots() const;

    qreal canvasWidth() const;
    qreal canvasHeight() const;
    /// 0, and any size that no canvas can have, means that there is none now: the path keeps the extent of
    /// the last one and is stretched when the next one comes.
    void setCanvasWidth(qreal width);
    void setCanvasHeight(qreal height);

    /// Whether a canvas can be so wide or high.
    static bool isExtent(qreal extent);

public slots:
    /// Builds what is drawn anew from the nodes.
    void updateRenderPaths();
    /// The length along the path of its point nearest to the position.
    qreal dragMarker(qreal x, qreal y) const;

signals:
    void pointSizeHalfChanged();
    void pathChanged();
    void handlersChanged();
    void dotsChanged();
    void canvasWidthChanged();
    void canvasHeightChanged();
    /// Lengths along the path have changed.
    void markersChanged();

protected:
    /// The canvas has taken another size: scale what is kept in its coordinates.
    virtual void stretch(qreal scaleX, qreal scaleY) = 0;

    /// The canvas in which the coordinates of the nodes are; 0 where none was ever given.
    QSizeF pathExtent() const;
    /// Brings nodes from a canvas of another size to this one. Where the scene has not given a canvas yet,
    /// that other canvas becomes this one.
    QList<MPathPoint> fittedToCanvas(QList<MPathPoint> nodes, QSizeF from);
    /// Forgets a canvas that came from fittedToCanvas().
    void forgetAdoptedCanvas();

private:
    /// One direction of the canvas.
    struct Extent
    {
        qreal now = 0.0;    ///< 0 for none.
        qreal ofPath = 0.0; ///< The last one there was.
        bool fromScene = false;
    };
    /// Stores a size from the scene; the factor by which the path is to be stretched.
    static qreal resize(Extent &extent, qreal size);
    /// Takes over a size from a file; the factor by which its coordinates are to be stretched.
    static qreal adopt(Extent &extent, qreal size);

    morvane::RenderPaths m_paths;
    Extent m_width;
    Extent m_height;
};
