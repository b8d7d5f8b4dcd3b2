#pragma once

#include <QStringList>

/// What this process holds of the machine.
struct ProcessFigures
{
    /// Memory that is in use and in place, in bytes.
    qint64 residentBytes = 0;
    /// What was asked of the allocator and not given back, in bytes.
    qint64 heapBytes = 0;
    /// The names of the threads, sorted.
    QStringList threads;
    /// What the open handles stand for, sorted.
    QStringList files;

    static ProcessFigures now();
};
