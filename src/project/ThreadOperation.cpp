#include "project/ThreadOperation.h"

#include <QCoreApplication>

ThreadOperation::ThreadOperation(ProcessEvents processEvents, QObject *parent)
    : QObject(parent), m_processEvents(std::move(processEvents))
{
    if (!m_processEvents)
        m_processEvents = [] {
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        };
}

bool ThreadOperation::begin(Zum::CurrentThreadOperations operation)
{
    if (!isFree())
        return false;
    m_operation = operation;
    emit currentThreadOperationChanged();
    return true;
}

void ThreadOperation::continueWith(Zum::CurrentThreadOperations operation)
{
    m_operation = operation;
    announce();
}

void ThreadOperation::end()
{
    if (isFree())
        return;
    m_operation = Zum::ONoOperation;
    announce();
}

void ThreadOperation::announce()
{
    emit currentThreadOperationChanged();
    m_processEvents();
}
