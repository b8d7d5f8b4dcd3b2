#include "timeline/TimelineIndicator.h"

#include "timeline/model/FrameRows.h"

#include "shared/Zum.h"

#include <algorithm>

namespace {

/// Gathers the rows for which a mark is set into runs.
class MarkedRows
{
public:
    MarkedRows(int rows, qreal width) : m_bars(rows, width)
    {
    }
    void visit(int row, bool marked)
    {
        if (marked == (m_first >= 0))
            return;
        if (!marked)
            m_bars.add(m_first, row - 1);
        m_first = marked ? row : -1;
    }
    std::vector<RowBars::Bar> finish(int rows)
    {
        visit(rows, false);
        return m_bars.bars();
    }

private:
    RowBars m_bars;
    int m_first = -1;
};

} // namespace

TimelineIndicator::TimelineIndicator(QQuickItem *parent) : BarsItem(parent)
{
    connect(this, &TimelineIndicator::holdColorChanged, this, &TimelineIndicator::markChanged);
    connect(this, &TimelineIndicator::selectedColorChanged, this, &TimelineIndicator::markChanged);
    connect(this, &TimelineIndicator::hiddenColorChanged, this, &TimelineIndicator::markChanged);
}

QObject *TimelineIndicator::model() const
{
    return m_model;
}

void TimelineIndicator::setModel(QObject *model)
{
    if (model == m_model)
        return;
    if (m_model)
        m_model->disconnect(this);
    m_model = model;
    if (auto *rows = qobject_cast<FrameRows *>(model)) {
        connect(rows, &FrameRows::dataChanged, this, &TimelineIndicator::onDataChanged);
        connect(rows, &FrameRows::countChanged, this, &TimelineIndicator::markChanged);
        connect(rows, &FrameRows::rowsMoved, this, &TimelineIndicator::markChanged);
        connect(rows, &FrameRows::layoutChanged, this, &TimelineIndicator::markChanged);
        connect(rows, &FrameRows::modelReset, this, &TimelineIndicator::markChanged);
    }
    markChanged();
    emit modelChanged();
}

void TimelineIndicator::onDataChanged(const QModelIndex &, const QModelIndex &, const QList<int> &roles)
{
    const auto isShown = [](int role) {
        return role == Zum::StaticState || role == Zum::Ingroup || role == Zum::Hidden;
    };
    if (roles.isEmpty() || std::any_of(roles.cbegin(), roles.cend(), isShown))
        markChanged();
}

std::vector<BarsItem::Band> TimelineIndicator::collect() const
{
    const auto *model = qobject_cast<const FrameRows *>(m_model.data());
    if (!model || model->framesCount() == 0)
        return {};
    const int rows = model->framesCount();
    MarkedRows holds(rows, width());
    MarkedRows selected(rows, width());
    MarkedRows hidden(rows, width());
    int row = 0;
    model->frames().forEach(0, rows - 1, [&](const Frame &frame) {
        holds.visit(row, frame.staticState != Frame::notHeld);
        selected.visit(row, frame.ingroup);
        hidden.visit(row, frame.hidden);
        ++row;
    });
    constexpr qreal holdBottom = 0.34;
    constexpr qreal hiddenTop = 0.36;
    constexpr qreal selectedTop = 0.68;
    return {{holdColor(), 0, holdBottom, holds.finish(rows)},
            {hiddenColor(), hiddenTop, selectedTop, hidden.finish(rows)},
            {selectedColor(), selectedTop, 1, selected.finish(rows)}};
}
