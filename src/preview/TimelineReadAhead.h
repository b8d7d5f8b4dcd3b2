#pragma once

#include "preview/ReadAheadPlan.h"

#include <QBitArray>
#include <QObject>
#include <QTimer>
#include <QVariantList>
#include <vector>

class FramesModel;

/// Tells a preview's worker which pictures the play range is going to want, in play order from the cursor on,
/// and which rows of the range are ready by what the worker answers. Main thread.
///
/// The rows are looked through when they, the range or what plays of them has changed, never for a mere step
/// of the cursor: the worker follows that by the requests.
class TimelineReadAhead : public QObject
{
    Q_OBJECT

public:
    explicit TimelineReadAhead(FramesModel &timeline, QObject *parent = nullptr);

    /// Sizes, folder and filters of what is to be read, and whether to read at all.
    void setWish(const PictureRequest &like, bool active);
    /// Which pictures of the plan of that number lie in memory; that of an earlier plan is dropped.
    void setReady(int plan, const QBitArray &ready);

    /// Pairs [first row, last row], both included, in order. Hidden rows neither break a run nor count; a row
    /// without a picture is ready.
    QVariantList readyRuns() const;
    /// Share of the range's rows, 0 to 100.
    qreal readyPercent() const;

signals:
    void planned(const ReadAheadPlan &plan);
    /// A few times a second at most.
    void readyChanged();

private:
    void replanSoon();
    void replan();
    void listRows(ReadAheadPlan &plan);
    void watchDirection();
    bool isReady(int position) const;

    static constexpr int noPicture = -1;

    struct Row
    {
        int row = 0;
        /// Among the plan's names.
        int position = noPicture;
    };

    FramesModel &m_timeline;
    QTimer m_replan;
    QTimer m_readyNotice;
    PictureRequest m_like;
    bool m_active = false;
    int m_direction = 0;
    int m_lastPlan = 0;
    std::vector<Row> m_rows;
    QBitArray m_ready;
};
