#pragma once

#include "timeline/FramesModel.h"

/// The rows that become current while it lives, each once however often it is told of.
class PlayedRows : public QObject
{
public:
    explicit PlayedRows(FramesModel &frames)
    {
        connect(&frames, &FramesModel::currentIndexChanged, this, [this, &frames] {
            const int row = frames.currentIndex();
            if (m_rows.isEmpty() || m_rows.constLast() != row)
                m_rows.append(row);
        });
    }
    const QList<int> &rows() const
    {
        return m_rows;
    }

private:
    QList<int> m_rows;
};
