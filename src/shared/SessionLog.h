#pragma once

#include <atomic>
#include <QString>

namespace morvane {

/// Whether a project's session is logged to a file. Off, and nothing in a normal run turns it on: then the
/// messages go through Qt's own handler alone.
inline std::atomic_bool sessionLogEnabled{false};

} // namespace morvane

/// The log of one project's session. While it is open, every message of the program, from any thread, goes
/// to stderr as "Debug: <text>" and to the file as "<time> Debug: <text>", one line each; the other level
/// words are "Warning", "Critical" and "Fatal". After a fatal message the program aborts.
///
/// The message handler is one for the process, so only one log is open at a time: opening another closes the
/// one before. Opened and closed on the main thread.
class SessionLog
{
public:
    SessionLog() = default;
    ~SessionLog();
    SessionLog(const SessionLog &) = delete;
    SessionLog &operator=(const SessionLog &) = delete;

    /// Begins a new file of that name, in place of an existing one. Does nothing while sessionLogEnabled is
    /// off. False when no file was begun; messages then go where they went before.
    bool open(const QString &path);
    /// Closes the file and gives the messages back to the handler of before. Harmless when nothing is open.
    void close();
    bool isOpen() const;
};
