#include "capture/OsSpecific.h"

#include "capture/CaptureEnvironment.h"

void OsSpecific::setEnvironment(CaptureEnvironment *environment)
{
    if (m_environment)
        m_environment->disconnect(this);
    m_environment = environment;
    if (environment)
        connect(environment, &CaptureEnvironment::devicesChanged, this, &OsSpecific::deviceChanged);
}

void OsSpecific::componentComplete()
{
    if (!m_environment)
        setEnvironment(CaptureEnvironment::of(this));
}

void OsSpecific::getDevices()
{
    m_devices = m_environment ? m_environment->devices() : QVariantList();
    emit usbCapturingDevicesListChanged();
}
