#pragma once

#include "app/QuitSequence.h"

struct AppControllers;
class MainWindow;

/// What the way out does to this program.
class WindowQuitHost : public QuitSequence::Host
{
public:
    WindowQuitHost(AppControllers &controllers, MainWindow &window);

    bool allowQuietExit() const override;
    void setAllowQuietExit(bool allow) override;
    int progressTotal() const override;
    void askToSave() override;
    void finishOperations() override;
    void saveWindowState() override;
    void stopPlayback() override;
    bool busy() const override;
    void restDisplay() override;
    bool connected() const override;
    void disconnectDevice() override;
    void leave() override;

private:
    AppControllers &m_controllers;
    MainWindow &m_window;
};
