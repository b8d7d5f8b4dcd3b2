#include "capture/SafeImageFile.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#include <cerrno>
#include <cstdio>
#include <cstring>
#endif

namespace {

constexpr auto temporarySuffix = ".part";

void beginFlush([[maybe_unused]] QFile &file)
{
#ifdef Q_OS_LINUX
    ::sync_file_range(file.handle(), 0, 0, SYNC_FILE_RANGE_WRITE);
#endif
}

// False with no reason in the file's own error text means that the disk could not be told.
bool flushToDisk(QFile &file)
{
    if (!file.flush())
        return false;
#ifdef Q_OS_UNIX
    // Some network and user-space file systems cannot flush; there the rename has to do.
    return ::fsync(file.handle()) == 0 || errno == EINVAL || errno == ENOSYS || errno == ENOTSUP;
#else
    return true;
#endif
}

#ifdef Q_OS_LINUX

// Whether the file system has no such way of giving a name, so that the next one may be tried.
bool unsupported()
{
    return errno == EINVAL || errno == ENOSYS || errno == ENOTSUP || errno == EPERM || errno == EOPNOTSUPP;
}

SafeImageFile::Placed giveName(const QString &temporary, const QString &path, QString &reason)
{
    const QByteArray from = QFile::encodeName(temporary);
    const QByteArray to = QFile::encodeName(path);
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return SafeImageFile::Placed::Done;
    if (unsupported() && ::link(from.constData(), to.constData()) == 0) {
        ::unlink(from.constData());
        return SafeImageFile::Placed::Done;
    }
    if (errno == EEXIST)
        return SafeImageFile::Placed::NameTaken;
    // File systems without either, such as those of memory cards: a look and a rename.
    if (unsupported() && !QFileInfo::exists(path) && ::rename(from.constData(), to.constData()) == 0)
        return SafeImageFile::Placed::Done;
    reason = QString::fromLocal8Bit(std::strerror(errno));
    return SafeImageFile::Placed::Failed;
}

#else

SafeImageFile::Placed giveName(const QString &temporary, const QString &path, QString &reason)
{
    QFile file(temporary);
    if (file.rename(path))
        return SafeImageFile::Placed::Done;
    if (QFileInfo::exists(path))
        return SafeImageFile::Placed::NameTaken;
    reason = file.errorString();
    return SafeImageFile::Placed::Failed;
}

#endif

} // namespace

SafeImageFile::SafeImageFile(const QString &path)
{
    const QFileInfo info(path);
    m_temporary = QStringLiteral("%1/.%2.%3%4")
                      .arg(info.path(), info.fileName(), QString::number(QCoreApplication::applicationPid()),
                           QLatin1String(temporarySuffix));
}

SafeImageFile::~SafeImageFile()
{
    if (!m_temporary.isEmpty())
        QFile::remove(m_temporary);
}

bool SafeImageFile::write(const QByteArray &bytes)
{
    m_file.setFileName(m_temporary);
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)
        || m_file.write(bytes) != bytes.size()) {
        keepReason();
        return false;
    }
    beginFlush(m_file);
    return true;
}

bool SafeImageFile::flush()
{
    const bool done = flushToDisk(m_file);
    if (!done)
        keepReason();
    return done;
}

void SafeImageFile::keepReason()
{
    const bool known = m_file.error() != QFileDevice::NoError;
    m_reason = known ? m_file.errorString() : tr("The disk is full or does not take the data");
}

SafeImageFile::Placed SafeImageFile::placeAs(const QString &path)
{
    const Placed placed = giveName(m_temporary, path, m_reason);
    if (placed == Placed::Done)
        m_temporary.clear();
    return placed;
}

void SafeImageFile::removeLeftovers(const QString &folder)
{
    const QDateTime limit = QDateTime::currentDateTime().addSecs(-3600);
    const QStringList patterns{QStringLiteral(".*") + QLatin1String(temporarySuffix)};
    const QFileInfoList files =
        QDir(folder).entryInfoList(patterns, QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QFileInfo &file : files) {
        if (file.lastModified() < limit)
            QFile::remove(file.filePath());
    }
}
