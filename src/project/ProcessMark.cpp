#include "project/ProcessMark.h"

#include <QFile>

#if defined(Q_OS_WIN)
#include <windows.h>
#else
#include <cerrno>
#include <csignal>
#endif

using namespace Qt::StringLiterals;

namespace morvane {

namespace {

#if defined(Q_OS_WIN)
bool isRunning(qint64 pid)
{
    const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(pid));
    if (process == nullptr)
        return GetLastError() == ERROR_ACCESS_DENIED;
    const bool running = WaitForSingleObject(process, 0) == WAIT_TIMEOUT;
    CloseHandle(process);
    return running;
}
#else
bool isRunning(qint64 pid)
{
    return ::kill(static_cast<pid_t>(pid), 0) == 0 || errno == EPERM;
}
#endif

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

QString processMark(qint64 pid)
{
    if (pid <= 0 || !isRunning(pid))
        return {};
    // The command in parentheses may hold blanks: count fields behind its end. The start time, in ticks since
    // the system came up, is the twentieth of them.
    constexpr qsizetype startTimeField = 19;
    const QByteArray status = contentOf(u"/proc/%1/stat"_s.arg(pid));
    const QList<QByteArray> fields = status.mid(status.lastIndexOf(')') + 2).split(' ');
    if (fields.size() <= startTimeField)
        return u"running"_s;
    const QByteArray boot = contentOf(u"/proc/sys/kernel/random/boot_id"_s).trimmed();
    return QString::fromLatin1(boot + '/' + fields.at(startTimeField));
}

} // namespace morvane
