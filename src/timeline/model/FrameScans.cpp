// The scans of FrameBatches: each takes a snapshot, looks at it on the pool, and brings the findings home.

#include "timeline/model/FrameBatches.h"

#include <QDebug>

using morvane::frameKey;

struct FrameBatches::Scan
{
    /// What a row says of itself.
    struct Marks
    {
        int hold = Frame::notHeld;
        bool capturedMissing = false;
        bool referenceMissing = false;
    };
    /// A row of which there is something to write or to log.
    struct News
    {
        int row = 0;
        HoldScan::Finding finding;
    };

    HoldScan::Request request;
    /// Of all rows, at the time of the snapshot.
    std::vector<Marks> marks;
    std::vector<News> news;
    /// Revision of the rows that the snapshot was taken from.
    quint64 revision = 0;

    void run(const std::atomic<bool> &cancelled);
};

// Most scans find nearly all rows as they were, so the main thread goes through the others alone.
void FrameBatches::Scan::run(const std::atomic<bool> &cancelled)
{
    const auto isNew = [](HoldScan::File file, bool missing) {
        return file == HoldScan::File::Missing || (file == HoldScan::File::There && missing);
    };
    int row = request.range.first;
    for (const HoldScan::Finding &finding : HoldScan::scan(request, cancelled)) {
        const Marks &mark = marks[size_t(row)];
        if (finding.hold != mark.hold || isNew(finding.captured, mark.capturedMissing)
            || isNew(finding.reference, mark.referenceMissing))
            news.push_back({row, finding});
        ++row;
    }
}

void FrameBatches::scanHolds(HoldScan::Range range)
{
    const auto scan = std::make_shared<Scan>();
    scan->revision = revision();
    scan->request.range = range;
    scan->request.rows.reserve(size_t(framesCount()));
    scan->marks.reserve(size_t(framesCount()));
    frames().forEach(0, last(), [&scan](const Frame &frame) {
        scan->request.rows.push_back({frame.capFull, frame.refFull, frame.mirrored});
        scan->marks.push_back({frame.staticState, frame.capfullmiss, frame.reffullmiss});
    });
    const QString captured = frameKey(Zum::CapFull);
    const QString reference = frameKey(Zum::RefFull);
    scan->request.looksForCaptured = m_folders.contains(captured);
    scan->request.looksForReference = m_folders.contains(reference);
    scan->request.capturedFolder = m_folders.value(captured).toString();
    scan->request.referenceFolder = m_folders.value(reference).toString();
    batch().runInPool([scan, cancelled = m_cancelled] { scan->run(*cancelled); },
                      [this, scan] { applyHolds(scan); });
}

void FrameBatches::applyHolds(const std::shared_ptr<Scan> &scan)
{
    const auto isStale = [this, scan] {
        return scan->revision != revision();
    };
    batch().runSliced(
        int(scan->news.size()),
        [this, scan, isStale](int position) {
            // A shot may have come in since the snapshot was taken.
            if (isStale())
                return false;
            const Scan::News &news = scan->news[size_t(position)];
            applyFinding(news.finding, news.row);
            return true;
        },
        [this, isStale] {
            if (isStale() && !frames().isEmpty())
                scanHolds({0, last()});
            else
                scanCompleted();
        });
}

/// Views hear of what has changed only; most scans find the list as it was.
void FrameBatches::applyFinding(const HoldScan::Finding &finding, int row)
{
    const auto write = [this, row](int role, const QVariant &value) {
        if (frameAt(row).value(role) != value)
            setData(index(row), value, role);
    };
    write(Zum::StaticState, finding.hold);
    const bool capturedMissing = finding.captured == HoldScan::File::Missing;
    if (capturedMissing)
        qDebug().noquote() << QStringLiteral("Missing Captured: %1").arg(frameAt(row).capFull);
    if (finding.captured != HoldScan::File::NotLookedFor)
        write(Zum::CapFullMissing, capturedMissing);
    const bool referenceMissing = finding.reference == HoldScan::File::Missing;
    if (referenceMissing)
        qDebug().noquote() << QStringLiteral("Missing Reference: %1").arg(frameAt(row).refFull);
    if (finding.reference != HoldScan::File::NotLookedFor)
        write(Zum::RefFullMissing, referenceMissing);
}

void FrameBatches::searchHiddenFrames(HoldScan::Range range)
{
    std::vector<bool> hidden;
    frames().forEach(range.first, range.last,
                     [&hidden](const Frame &frame) { hidden.push_back(frame.hidden); });
    const auto rows = std::make_shared<QList<int>>();
    batch().runInPool(
        [rows, hidden = std::move(hidden), first = range.first] {
            for (size_t i = 0; i < hidden.size(); ++i)
                if (!hidden[i])
                    rows->append(first + int(i));
        },
        [this, rows] {
            batch().reset();
            playbackPrepared(*rows);
        });
}
