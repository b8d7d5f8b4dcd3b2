#include "app/QuitSequence.h"

QuitSequence::QuitSequence(Host &host, QObject *parent) : QObject(parent), m_host(host)
{
}

bool QuitSequence::attempt()
{
    if (!mayClose())
        return false;
    m_host.leave();
    return true;
}

bool QuitSequence::mayClose()
{
    ++m_closeAttempts;
    emit closeAttemptsChanged();
    if (m_closeAttempts > refusalLimit) {
        setClosing();
        return true;
    }
    if (m_closing)
        return true;
    if (!m_host.allowQuietExit() || m_host.progressTotal() != 0) {
        m_host.askToSave();
        return false;
    }
    m_host.finishOperations();
    m_host.saveWindowState();
    setClosing();
    m_host.stopPlayback();
    if (m_host.busy())
        return false;
    m_host.restDisplay();
    if (m_host.connected()) {
        m_host.disconnectDevice();
        return false;
    }
    return true;
}

void QuitSequence::setClosing()
{
    if (m_closing)
        return;
    m_closing = true;
    emit closingChanged();
}
