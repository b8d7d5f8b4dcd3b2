#pragma once

#include <mutex>
#include <QStringList>
#include <QtGlobal>
#include <utility>

/// Collects what the program logs instead of printing it, for as long as it lives. Any thread.
class LogLines
{
public:
    LogLines()
    {
        s_lines = this;
        m_previous = qInstallMessageHandler(&LogLines::receive);
    }
    ~LogLines()
    {
        qInstallMessageHandler(m_previous);
        s_lines = nullptr;
    }
    Q_DISABLE_COPY_MOVE(LogLines)

    QStringList lines() const
    {
        const std::lock_guard lock(m_mutex);
        return m_lines;
    }
    int count(const QString &line) const
    {
        return int(lines().count(line));
    }
    QStringList take()
    {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_lines, {});
    }

private:
    static void receive(QtMsgType, const QMessageLogContext &, const QString &line)
    {
        const std::lock_guard lock(s_lines->m_mutex);
        s_lines->m_lines.append(line.trimmed());
    }

    inline static LogLines *s_lines = nullptr;
    mutable std::mutex m_mutex;
    QStringList m_lines;
    QtMessageHandler m_previous = nullptr;
};
