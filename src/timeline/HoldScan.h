#pragma once

#include <atomic>
#include <QString>
#include <QStringList>
#include <vector>

/// What the scan for holds and missing files looks at, and what it finds. Works on values only, so that it
/// can run in any thread.
namespace HoldScan {

/// One frame as it stood when the scan began.
struct Row
{
    QString captured;
    QString reference;
    bool mirrored = false;
};

/// A closed span of rows; empty when last is below first.
struct Range
{
    int first = 0;
    int last = -1;
};

struct Request
{
    /// All rows: the neighbours of the range's ends count too.
    std::vector<Row> rows;
    Range range;
    /// Folders with a trailing "/". Without a folder its files are not looked for.
    QString capturedFolder;
    QString referenceFolder;
    bool looksForCaptured = false;
    bool looksForReference = false;
};

enum class File {
    NotLookedFor,
    There,
    Missing,
};

struct Finding
{
    int hold = -1;
    File captured = File::NotLookedFor;
    File reference = File::NotLookedFor;
};

/// The limits of a scan or of a playback in a list of so many rows: anything that is no proper span from row
/// 1 on becomes a span from row 0, and an end that is not above 0 becomes the last row.
Range limitRange(int from, int to, int rowCount);

/// Hold marker of one row. Frames next to each other hold when they show the same captured file, mirrored
/// alike; a frame without a captured file never holds.
int holdAt(const std::vector<Row> &rows, int row);

/// One finding per row of the range. Each file is looked for once. Ends early, with what it has, when
/// `cancelled` goes up.
std::vector<Finding> scan(const Request &request, const std::atomic<bool> &cancelled);

} // namespace HoldScan
