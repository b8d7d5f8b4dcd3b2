#pragma once

#include <QObject>

/// Decides whether the window may close, and does what must be done before it does. A refusal leaves the
/// program as it is; at the sixth attempt the program ends without asking, so that no refusing part can keep
/// a user in. Main thread only.
class QuitSequence : public QObject
{
    Q_OBJECT

public:
    /// What the sequence asks of the rest of the program.
    class Host
    {
    public:
        virtual ~Host() = default;

        /// No unsaved work: the window may close without asking.
        virtual bool allowQuietExit() const = 0;
        virtual void setAllowQuietExit(bool allow) = 0;
        virtual int progressTotal() const = 0;
        /// Keeps "quit" as what follows the answer, and shows the question whether to save.
        virtual void askToSave() = 0;
        /// Ends a load, waits for the file operations that may not be cut off and cancels the others.
        virtual void finishOperations() = 0;
        virtual void saveWindowState() = 0;
        virtual void stopPlayback() = 0;
        /// A device call is under way that may not be cut off.
        virtual bool busy() const = 0;
        virtual void restDisplay() = 0;
        virtual bool connected() const = 0;
        /// Asks the device to disconnect; the scene quits again when it has.
        virtual void disconnectDevice() = 0;
        virtual void leave() = 0;
    };

    static constexpr int refusalLimit = 5;

    explicit QuitSequence(Host &host, QObject *parent = nullptr);

    bool closing() const
    {
        return m_closing;
    }
    int closeAttempts() const
    {
        return m_closeAttempts;
    }

    /// One attempt to close. True: the close goes through, and leave() has been called.
    bool attempt();

signals:
    void closingChanged();
    void closeAttemptsChanged();

private:
    bool mayClose();
    void setClosing();

    Host &m_host;
    bool m_closing = false;
    int m_closeAttempts = 0;
};
