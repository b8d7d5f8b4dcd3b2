#include "timeline/HoldScan.h"

#include "timeline/Frame.h"

#include <QFileInfo>
#include <QHash>

namespace HoldScan {

namespace {

/// Looks files up in one folder. The frames of a hold and copies elsewhere name the same file.
class Folder
{
public:
    Folder(const QString &path, bool looks) : m_path(path), m_looks(looks)
    {
    }

    File find(const QString &name)
    {
        if (!m_looks || name.isEmpty())
            return File::NotLookedFor;
        const auto known = m_known.constFind(name);
        if (known != m_known.cend())
            return *known;
        const File found = QFileInfo::exists(m_path + name) ? File::There : File::Missing;
        m_known.insert(name, found);
        return found;
    }

private:
    QString m_path;
    QHash<QString, File> m_known;
    bool m_looks;
};

bool showSame(const Row &a, const Row &b)
{
    return a.mirrored == b.mirrored && a.captured == b.captured;
}

} // namespace

Range limitRange(int from, int to, int rowCount)
{
    const int last = rowCount - 1;
    Range range;
    range.first = to <= from || from < 1 ? 0 : from;
    range.last = to > 0 ? qMin(to, last) : last;
    return range;
}

int holdAt(const std::vector<Row> &rows, int row)
{
    const auto at = [&rows](int i) -> const Row & {
        return rows[size_t(i)];
    };
    if (at(row).captured.isEmpty())
        return Frame::notHeld;
    const bool likePrevious = row > 0 && showSame(at(row - 1), at(row));
    const bool likeNext = row + 1 < int(rows.size()) && showSame(at(row + 1), at(row));
    if (likePrevious)
        return likeNext ? Frame::holdInside : Frame::holdLast;
    return likeNext ? Frame::holdFirst : Frame::notHeld;
}

std::vector<Finding> scan(const Request &request, const std::atomic<bool> &cancelled)
{
    Folder captured(request.capturedFolder, request.looksForCaptured);
    Folder reference(request.referenceFolder, request.looksForReference);
    std::vector<Finding> findings;
    findings.reserve(size_t(qMax(0, request.range.last - request.range.first + 1)));
    for (int row = request.range.first; row <= request.range.last && !cancelled; ++row) {
        const Row &frame = request.rows[size_t(row)];
        findings.push_back(
            {holdAt(request.rows, row), captured.find(frame.captured), reference.find(frame.reference)});
    }
    return findings;
}

} // namespace HoldScan
