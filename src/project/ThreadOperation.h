#pragma once

#include "shared/Zum.h"

#include <functional>
#include <QObject>

/// The one lock of the long file operations: which of them runs. A lock by convention: whoever starts one
/// begins it here first, and gives up with a line in the log when another runs. Nothing is queued. Main
/// thread only.
class ThreadOperation : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int currentThreadOperation READ currentThreadOperation NOTIFY currentThreadOperationChanged)

public:
    using ProcessEvents = std::function<void()>;

    /// `processEvents` lets the scene see a change at once; by default it runs the application's events
    /// without those of the user.
    explicit ThreadOperation(ProcessEvents processEvents = {}, QObject *parent = nullptr);

    /// One of Zum::CurrentThreadOperations; ONoOperation at rest.
    int currentThreadOperation() const
    {
        return m_operation;
    }
    bool isFree() const
    {
        return m_operation == Zum::ONoOperation;
    }

    /// Takes the lock. False, with nothing changed, while an operation runs.
    bool begin(Zum::CurrentThreadOperations operation);
    /// Hands the lock from a running operation to the one that continues it.
    void continueWith(Zum::CurrentThreadOperations operation);
    /// Gives the lock back; pending events are processed once after the change was signalled. Harmless when
    /// no operation runs.
    void end();
    /// Signals without a change and lets the scene see it.
    void announce();

signals:
    void currentThreadOperationChanged();

private:
    ProcessEvents m_processEvents;
    int m_operation = Zum::ONoOperation;
};
