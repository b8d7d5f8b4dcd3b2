#include "preview/RamPreviewReport.h"

void RamPreviewReport::setSourceSize(int width, int height)
{
    if (width != -1)
        m_sourceSize.setWidth(qMax(1, width));
    if (height != -1)
        m_sourceSize.setHeight(qMax(1, height));
    emit sourceImageInfoChanged();
}

void RamPreviewReport::setHistogram(const Histograms &histogram)
{
    m_histogram = histogram;
    emit histogramDataChanged();
}

void RamPreviewReport::setReady(const QVariantList &runs, qreal percent)
{
    if (m_readyRuns == runs && m_readyPercent == percent)
        return;
    m_readyRuns = runs;
    m_readyPercent = percent;
    emit readyChanged();
}
