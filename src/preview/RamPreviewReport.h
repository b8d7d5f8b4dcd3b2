#pragma once

#include "preview/RamPreviewState.h"
#include "shared/PropertyMacros.h"

/// Second layer of RamPreview: what it tells of the picture that it shows and of its cache. Percentages go
/// from 0 to 100.
class RamPreviewReport : public RamPreviewState
{
    Q_OBJECT
    /// Size of the frame's file in pixels.
    Q_PROPERTY(int sourceImageWidth READ sourceImageWidth NOTIFY sourceImageInfoChanged STORED false)
    Q_PROPERTY(int sourceImageHeight READ sourceImageHeight NOTIFY sourceImageInfoChanged STORED false)
    /// The last histogram: per channel 256 shares of the pixels and, in the last place, the largest of them.
    Q_PROPERTY(QVariantList histogramDataY READ histogramDataY NOTIFY histogramDataChanged STORED false)
    Q_PROPERTY(QVariantList histogramDataR READ histogramDataR NOTIFY histogramDataChanged STORED false)
    Q_PROPERTY(QVariantList histogramDataG READ histogramDataG NOTIFY histogramDataChanged STORED false)
    Q_PROPERTY(QVariantList histogramDataB READ histogramDataB NOTIFY histogramDataChanged STORED false)
    /// What of the play range lies ready in memory: pairs [first row, last row], and the share of
    /// the range's rows in per cent. Without a timeline there is none. Told a few times a second at most.
    Q_PROPERTY(QVariantList readyRuns READ readyRuns NOTIFY readyChanged STORED false)
    Q_PROPERTY(qreal readyPercent READ readyPercent NOTIFY readyChanged STORED false)

    /// Size of the picture over the size of its file.
    MORVANE_READ_ONLY_PROPERTY(qreal, imageScale, ImageScale, 1.0)
    /// Height over width of what the crop has left.
    MORVANE_READ_ONLY_PROPERTY(qreal, proportion, Proportion, 1.0)
    /// Share of the picture's width that the crop has left.
    MORVANE_READ_ONLY_PROPERTY(qreal, currentCroppedCoefX, CurrentCroppedCoefX, 1.0)
    /// Share of the cache's budget in use.
    MORVANE_READ_ONLY_PROPERTY(qreal, cacheUsedPercent, CacheUsedPercent, 0.0)
    /// What the disk copies take of the space that they and the free space of their disk make together.
    MORVANE_READ_ONLY_PROPERTY(qreal, diskCacheUsedPercent, DiskCacheUsedPercent, 0.0)

public:
    using RamPreviewState::RamPreviewState;

    int sourceImageWidth() const
    {
        return m_sourceSize.width();
    }
    int sourceImageHeight() const
    {
        return m_sourceSize.height();
    }
    QVariantList histogramDataY() const
    {
        return m_histogram.y;
    }
    QVariantList histogramDataR() const
    {
        return m_histogram.r;
    }
    QVariantList histogramDataG() const
    {
        return m_histogram.g;
    }
    QVariantList histogramDataB() const
    {
        return m_histogram.b;
    }
    QVariantList readyRuns() const
    {
        return m_readyRuns;
    }
    qreal readyPercent() const
    {
        return m_readyPercent;
    }

signals:
    void sourceImageInfoChanged();
    void histogramDataChanged();
    void readyChanged();

protected:
    struct Histograms
    {
        QVariantList y;
        QVariantList r;
        QVariantList g;
        QVariantList b;
    };

    /// -1 leaves a side as it is; told also when nothing has changed.
    void setSourceSize(int width, int height);
    void setHistogram(const Histograms &histogram);
    void setReady(const QVariantList &runs, qreal percent);

private:
    QSize m_sourceSize{1, 1};
    Histograms m_histogram;
    QVariantList m_readyRuns;
    qreal m_readyPercent = 0;
};
