#pragma once

#include <QObject>
#include <QPointer>
#include <QQmlParserStatus>
#include <QVariantList>

class CaptureEnvironment;

/// The scene's view of the devices that deliver pictures: "OsSpecific" of the module "OsSpecific" 1.0. Main
/// thread.
class OsSpecific : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    /// Maps with "name" and "index", in the order of the indexes by which they are opened. Empty until
    /// getDevices().
    Q_PROPERTY(QVariantList usbCapturingDevicesList READ usbCapturingDevicesList NOTIFY
                   usbCapturingDevicesListChanged)

public:
    using QObject::QObject;

    void setEnvironment(CaptureEnvironment *environment);
    QVariantList usbCapturingDevicesList() const
    {
        return m_devices;
    }

    void classBegin() override
    {
    }
    void componentComplete() override;

public slots:
    /// Looks anew. The change is told even if the list is the same, for whoever asked waits for the answer.
    void getDevices();

signals:
    void usbCapturingDevicesListChanged();
    /// Hardware has come or gone; the list is the old one until the next getDevices().
    void deviceChanged();

private:
    QPointer<CaptureEnvironment> m_environment;
    QVariantList m_devices;
};
