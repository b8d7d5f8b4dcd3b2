#include "capture/system/UdevMonitor.h"

#include <libudev.h>
#include <QSocketNotifier>

UdevMonitor::UdevMonitor(QObject *parent) : DeviceMonitor(parent), m_udev(udev_new())
{
    if (!m_udev)
        return;
    m_monitor = udev_monitor_new_from_netlink(m_udev, "udev");
    if (!m_monitor)
        return;
    udev_monitor_filter_add_match_subsystem_devtype(m_monitor, "video4linux", nullptr);
    if (udev_monitor_enable_receiving(m_monitor) < 0) {
        m_monitor = udev_monitor_unref(m_monitor);
        return;
    }
    auto *notifier = new QSocketNotifier(udev_monitor_get_fd(m_monitor), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &UdevMonitor::receive);
}

UdevMonitor::~UdevMonitor()
{
    if (m_monitor)
        udev_monitor_unref(m_monitor);
    if (m_udev)
        udev_unref(m_udev);
}

// A camera brings several nodes, so that events come in bunches: one word is enough for all that wait.
void UdevMonitor::receive()
{
    bool nodesCameOrWent = false;
    while (udev_device *device = udev_monitor_receive_device(m_monitor)) {
        const char *action = udev_device_get_action(device);
        if (qstrcmp(action, "add") == 0 || qstrcmp(action, "remove") == 0)
            nodesCameOrWent = true;
        udev_device_unref(device);
    }
    if (nodesCameOrWent)
        emit changed();
}

std::unique_ptr<DeviceMonitor> DeviceMonitor::ofSystem()
{
    return std::make_unique<UdevMonitor>();
}
