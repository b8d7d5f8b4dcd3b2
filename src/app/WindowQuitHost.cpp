#include "app/WindowQuitHost.h"

#include "app/AppControllers.h"
#include "app/MainWindow.h"
#include "app/WindowPlacement.h"

WindowQuitHost::WindowQuitHost(AppControllers &controllers, MainWindow &window)
    : m_controllers(controllers), m_window(window)
{
}

bool WindowQuitHost::allowQuietExit() const
{
    m_controllers.lifecycle.finishSaves();
    return m_controllers.lifecycle.allowQuietExit();
}

void WindowQuitHost::setAllowQuietExit(bool allow)
{
    m_controllers.lifecycle.setAllowQuietExit(allow);
}

int WindowQuitHost::progressTotal() const
{
    return m_controllers.progress.progressTotal();
}

void WindowQuitHost::askToSave()
{
    m_controllers.global.setAfterConfirmAction(Zum::QuitAfterConfirm);
    emit m_controllers.lifecycle.confirmClose();
}

void WindowQuitHost::finishOperations()
{
    m_controllers.global.setPaused(false);
    m_controllers.lifecycle.setLoadingProject(false);
    m_controllers.lifecycle.finishOperations();
}

void WindowQuitHost::saveWindowState()
{
    WindowPlacement(m_controllers.settings(), QStringLiteral("mainwindow"), QStringLiteral("maximized"))
        .save(m_window, m_window.windowStates().testFlag(Qt::WindowMaximized));
    m_controllers.settings().sync();
}

void WindowQuitHost::stopPlayback()
{
    m_controllers.global.setFlipFlop(Zum::NoFlipFlop);
    m_controllers.frames.stop();
}

bool WindowQuitHost::busy() const
{
    return m_controllers.global.busy();
}

void WindowQuitHost::restDisplay()
{
    m_controllers.global.setStackMode(Zum::NoStack);
    m_controllers.global.setPaused(true);
}

bool WindowQuitHost::connected() const
{
    return m_controllers.global.connected();
}

void WindowQuitHost::disconnectDevice()
{
    m_controllers.global.setCloseWhenDisconnected(true);
    emit m_controllers.global.capturingDeviceDisconnect();
}

void WindowQuitHost::leave()
{
    m_controllers.environment.quit();
}
