#pragma once

#include <memory>
#include <QObject>

/// Tells at once when a camera is plugged in or pulled out. Main thread.
class DeviceMonitor : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// That of this system; one that never tells anything where the program does not know how to listen.
    static std::unique_ptr<DeviceMonitor> ofSystem();

signals:
    void changed();
};
