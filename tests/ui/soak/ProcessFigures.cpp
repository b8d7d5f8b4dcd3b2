#include "ProcessFigures.h"

#include <malloc.h>
#include <unistd.h>
#include <QDir>
#include <QFile>

namespace {

QStringList entries(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot);
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList threadNames()
{
    const QString folder = QStringLiteral("/proc/self/task/");
    QStringList names;
    const QStringList ids = entries(folder);
    for (const QString &id : ids)
        names.append(QString::fromUtf8(contents(folder + id + QStringLiteral("/comm")).trimmed()));
    names.sort();
    return names;
}

QStringList fileNames()
{
    const QString folder = QStringLiteral("/proc/self/fd/");
    QStringList names;
    const QStringList numbers = entries(folder);
    for (const QString &number : numbers) {
        // The handle of this listing has gone by now.
        const QString name = QFile::symLinkTarget(folder + number);
        if (!name.isEmpty())
            names.append(name);
    }
    names.sort();
    return names;
}

} // namespace

ProcessFigures ProcessFigures::now()
{
    ProcessFigures figures;
    // Pages of the whole address space, then those in place.
    const QList<QByteArray> pages = contents(QStringLiteral("/proc/self/statm")).split(' ');
    figures.residentBytes = pages.value(1).toLongLong() * ::sysconf(_SC_PAGESIZE);
    const struct mallinfo2 heap = ::mallinfo2();
    figures.heapBytes = qint64(heap.uordblks + heap.hblkhd);
    figures.threads = threadNames();
    figures.files = fileNames();
    return figures;
}
