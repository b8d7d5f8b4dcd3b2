#pragma once

#include "capture/system/DeviceMonitor.h"

struct udev;
struct udev_monitor;

/// Listens to the device manager's events about video nodes. Without the manager it stays silent.
class UdevMonitor : public DeviceMonitor
{
    Q_OBJECT

public:
    explicit UdevMonitor(QObject *parent = nullptr);
    ~UdevMonitor() override;

private:
    void receive();

    udev *m_udev = nullptr;
    udev_monitor *m_monitor = nullptr;
};
