#include "project/AtomicFile.h"

#include <QSaveFile>

#ifdef Q_OS_UNIX
#include <unistd.h>
#include <cerrno>
#endif

namespace {

// The rename must not reach the disk before the data does.
bool flushToDisk(QSaveFile &file)
{
    if (!file.flush())
        return false;
#ifdef Q_OS_UNIX
    if (::fsync(file.handle()) == 0)
        return true;
    // Some network and user-space file systems cannot flush; there the rename has to do.
    return errno == EINVAL || errno == ENOSYS || errno == ENOTSUP;
#else
    return true;
#endif
}

// A disk that fills up takes a part first; only the write after that one says what is wrong.
bool writeAll(QSaveFile &file, const QByteArray &bytes)
{
    qint64 written = 0;
    while (written < bytes.size()) {
        const qint64 part = file.write(bytes.constData() + written, bytes.size() - written);
        if (part <= 0)
            return false;
        written += part;
    }
    return true;
}

} // namespace

AtomicFile::Result AtomicFile::write(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return {false, file.errorString()};
    if (!writeAll(file, bytes)) {
        const QString reason = file.errorString();
        file.cancelWriting();
        return {false, reason};
    }
    if (!flushToDisk(file)) {
        const bool known = file.error() != QFileDevice::NoError;
        const QString reason = known ? file.errorString() : tr("The data could not be flushed to the disk");
        file.cancelWriting();
        return {false, reason};
    }
    if (!file.commit())
        return {false, file.errorString()};
    return {true, {}};
}
