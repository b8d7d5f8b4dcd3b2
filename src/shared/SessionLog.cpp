#include "shared/SessionLog.h"

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <QFile>
#include <QTime>

namespace {

/// The open log of the process. The handler may run on any thread, also while the log is being closed.
/// Nothing that may itself send a message is done under the mutex: the handler takes it.
struct OpenLog
{
    std::mutex mutex;
    std::unique_ptr<QFile> file;
    const SessionLog *owner = nullptr;
    QtMessageHandler handlerBefore = nullptr;
};

OpenLog &openLog()
{
    // Never destroyed: messages come until the very end of the process.
    static auto *log = new OpenLog;
    return *log;
}

const char *levelWord(QtMsgType type)
{
    switch (type) {
        case QtWarningMsg:
            return "Warning";
        case QtCriticalMsg:
            return "Critical";
        case QtFatalMsg:
            return "Fatal";
        case QtDebugMsg:
        case QtInfoMsg:
            break;
    }
    return "Debug";
}

void writeMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    const QByteArray message = text.toLocal8Bit();
    const char *level = levelWord(type);
    std::fprintf(stderr, "%s: %s\n", level, message.constData());
    {
        OpenLog &log = openLog();
        const std::lock_guard lock(log.mutex);
        if (log.file) {
            log.file->write(QTime::currentTime().toString(Qt::TextDate).toLatin1() + ' ' + level + ": "
                            + text.toUtf8() + '\n');
            // What was said last before a crash is what the log is read for.
            log.file->flush();
        }
    }
    if (type == QtFatalMsg)
        std::abort();
}

/// Closes the open log, if there is one, whoever opened it.
void endCurrent()
{
    OpenLog &log = openLog();
    std::unique_ptr<QFile> ended;
    const std::lock_guard lock(log.mutex);
    if (!log.owner)
        return;
    qInstallMessageHandler(log.handlerBefore);
    log.owner = nullptr;
    ended = std::move(log.file);
}

} // namespace

SessionLog::~SessionLog()
{
    close();
}

bool SessionLog::open(const QString &path)
{
    if (!morvane::sessionLogEnabled || path.isEmpty())
        return false;
    endCurrent();
    auto file = std::make_unique<QFile>(path);
    file->remove();
    if (!file->open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    OpenLog &log = openLog();
    const std::lock_guard lock(log.mutex);
    log.file = std::move(file);
    log.owner = this;
    log.handlerBefore = qInstallMessageHandler(writeMessage);
    return true;
}

void SessionLog::close()
{
    if (isOpen())
        endCurrent();
}

bool SessionLog::isOpen() const
{
    OpenLog &log = openLog();
    const std::lock_guard lock(log.mutex);
    return log.owner == this;
}
