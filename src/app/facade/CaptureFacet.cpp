#include "app/facade/CaptureFacet.h"

#include "app/AppControllers.h"

CaptureFacet::CaptureFacet(std::unique_ptr<AppControllers> controllers)
    : MessagesFacet(std::move(controllers))
{
    const DeviceSelection &devices = this->controllers().devices;
    connect(&devices, &DeviceSelection::currentCapturingDeviceChanged, this,
            &CaptureFacet::currentCapturingDeviceChanged);
    connect(&devices, &DeviceSelection::currentDeviceTypeChanged, this,
            &CaptureFacet::currentDeviceTypeChanged);
    connect(&devices, &DeviceSelection::currentCapturingDeviceIconChanged, this,
            &CaptureFacet::currentCapturingDeviceIconChanged);
    connect(&devices, &DeviceSelection::capturingDeviceObjectChanged, this,
            &CaptureFacet::capturingDeviceObjectChanged);
    connect(&devices, &DeviceSelection::cameraQMLChanged, this, &CaptureFacet::cameraQMLChanged);
}

int CaptureFacet::currentCapturingDevice() const
{
    return controllers().devices.currentCapturingDevice();
}

void CaptureFacet::setCurrentCapturingDevice(int kind)
{
    controllers().devices.setCurrentCapturingDevice(kind);
}

int CaptureFacet::currentDeviceType() const
{
    return controllers().devices.currentDeviceType();
}

QString CaptureFacet::currentCapturingDeviceIcon() const
{
    return controllers().devices.currentCapturingDeviceIcon();
}

QString CaptureFacet::currentCapturingDeviceType() const
{
    return controllers().devices.currentCapturingDeviceType();
}

QVariant CaptureFacet::capturingDeviceObject() const
{
    return controllers().devices.capturingDeviceObject();
}

void CaptureFacet::setCapturingDeviceObject(const QVariant &object)
{
    controllers().devices.setCapturingDeviceObject(object);
}

QVariant CaptureFacet::cameraQML() const
{
    return controllers().devices.cameraQML();
}

void CaptureFacet::setCameraQML(const QVariant &descriptor)
{
    controllers().devices.setCameraQML(descriptor);
}

int CaptureFacet::getDeviceTypeByName(const QString &str) const
{
    return controllers().devices.getDeviceTypeByName(str);
}

QString CaptureFacet::getIconByDeviceName(const QString &str) const
{
    return controllers().devices.getIconByDeviceName(str);
}

void CaptureFacet::updateCurrentDeviceType()
{
    controllers().devices.updateCurrentDeviceType();
}

void CaptureFacet::updateCurrentCapturingDeviceIcon()
{
    controllers().devices.updateCurrentCapturingDeviceIcon();
}

void CaptureFacet::cameraConnected()
{
    controllers().devices.rememberConnectedCamera(controllers().settings());
}

int CaptureFacet::addFileCamera()
{
    AppControllers &c = controllers();
    const QString path =
        c.environment.dialogs->openFile(FileCameras::dialogCaption(), QString(), FileCameras::dialogFilter());
    return path.isEmpty() ? -1 : tellUnlessAdded(c.capture.files().add(path));
}

int CaptureFacet::useFileAsCamera(const QString &path)
{
    return tellUnlessAdded(controllers().capture.files().addForThisRun(path));
}

int CaptureFacet::tellUnlessAdded(int index)
{
    AppControllers &c = controllers();
    if (index < 0)
        c.messages.post(Zum::CameraMessage, Zum::Warning, c.capture.files().errorString());
    return index;
}

void CaptureFacet::removeFileCamera(int index)
{
    controllers().capture.files().remove(index);
}

bool CaptureFacet::isFileCamera(int index) const
{
    return !controllers().capture.files().path(index).isEmpty();
}
