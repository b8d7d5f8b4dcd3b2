#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

/// Replaces a file's contents in one step.
class AtomicFile
{
    Q_DECLARE_TR_FUNCTIONS(AtomicFile)

public:
    struct Result
    {
        bool ok = false;
        /// Why it failed, for the user; empty when it did not.
        QString reason;
    };

    /// Writes `bytes` to a temporary file beside `path`, flushes it to the disk and renames it over `path`.
    /// On failure the old file is untouched and the temporary one is gone. Only a program killed half-way
    /// leaves its temporary file behind, never a half-written `path`.
    static Result write(const QString &path, const QByteArray &bytes);
};
