#pragma once

#include "project/ProjectDocument.h"
#include "project/ProjectVersion.h"

#include <atomic>
#include <QCoreApplication>
#include <QStringList>

class QIODevice;

/// What became of reading a project file.
struct ProjectReadResult
{
    enum class Status {
        /// The document is complete.
        Ok,
        /// There is no such plain file, or it cannot be read.
        CannotOpen,
        /// Not well-formed, cut off, or beyond the limits of a project file.
        NotParsable,
        /// Well-formed, but no project that this program reads.
        NotAProject,
        /// A project of the older kind: its settings and rows are not read.
        Legacy,
        /// Stopped by the caller.
        Cancelled,
    };

    Status status = Status::CannotOpen;
    /// The parser's message with line and column, or what is wrong with the version. Empty when all is well.
    QString error;
    /// Whether the file has a Version element at all.
    bool hasVersion = true;
    /// The version check's line for the log, or empty.
    QString logLine;
    /// Values refused because they reach outside the project or make no sense, one sentence each. Past the
    /// first hundred only their number is kept, in the last sentence.
    QStringList refusals;
    /// Empty unless the status is Ok.
    ProjectDocument document;

    /// The status as the scene knows it. A cancelled read counts as a selection given up.
    Zum::OpenFileEvents event() const;
};

/// Reads project files into plain values, in one pass and in bounded memory. The file is not trusted: see
/// ProjectReadResult::refusals. Stateless; safe on any thread, so that the main thread stays free.
///
/// A value that is absent or does not parse is left empty, as is a negative real. Values with a rule of their
/// own (limits, rounding) come out with the rule applied.
class ProjectReader
{
    Q_DECLARE_TR_FUNCTIONS(ProjectReader)

public:
    /// Frames that a project may have; a file with more is refused.
    static constexpr int maxFrames = 1'000'000;

    /// `cancelled`, when given, is looked at every few kilobytes and ends the reading early.
    static ProjectReadResult readFile(const QString &path, const std::atomic<bool> *cancelled = nullptr);
    /// The same from an open device.
    static ProjectReadResult read(QIODevice &device, const std::atomic<bool> *cancelled = nullptr);
};
