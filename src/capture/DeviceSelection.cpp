#include "capture/DeviceSelection.h"

#include "shared/Settings.h"
#include "shared/WebcamGlobal.h"
#include "shared/Zum.h"

#include <algorithm>
#include <array>
#include <QCoreApplication>
#include <QtDebug>

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("MainWindow", source);
}

/// Parts of names that web cameras bear.
constexpr std::array<const char *, 18> webcamWords{
    "web", "usb",   "logi",  "microsoft", "razer",    "mevo",  "defe",  "sven", "trust",
    "tec", "gopro", "creat", "b2",        "rosewill", "intel", "front", "rear", "device"};

bool soundsLikeWebcam(const QString &lowerName)
{
    return std::any_of(webcamWords.begin(), webcamWords.end(),
                       [&](const char *word) { return lowerName.contains(QLatin1String(word)); });
}

QString iconOf(int kind)
{
    switch (kind) {
        case Zum::CapturingDeviceCanonEOS:
            return QStringLiteral("images/photocam.svg");
        case Zum::CapturingDeviceHDMITethering:
            return QStringLiteral("images/dongle.svg");
        default:
            return QStringLiteral("images/webcam.svg");
    }
}

} // namespace

DeviceSelection::DeviceSelection(WebcamGlobal &global, QObject *parent)
    : QObject(parent), m_global(global), m_chosenKind(Zum::CapturingDeviceCanonEOS),
      m_deducedKind(Zum::CapturingDeviceCanonEOS), m_icon(iconOf(Zum::CapturingDeviceCanonEOS))
{
}

void DeviceSelection::setCurrentCapturingDevice(int kind)
{
    if (m_chosenKind == kind)
        return;
    m_chosenKind = kind;
    m_icon = getIconByDeviceName(QString());
    emit currentCapturingDeviceIconChanged();
    emit currentCapturingDeviceChanged();
}

QString DeviceSelection::currentCapturingDeviceType() const
{
    switch (m_chosenKind) {
        case Zum::CapturingDeviceCanonEOS:
            return text(QT_TRANSLATE_NOOP("MainWindow", "DSLR"));
        case Zum::CapturingDeviceWebcam:
            return text(QT_TRANSLATE_NOOP("MainWindow", "Webcam"));
        case Zum::CapturingDeviceHDMITethering:
            return text(QT_TRANSLATE_NOOP("MainWindow", "Video Capture Device"));
        default:
            return QString();
    }
}

void DeviceSelection::setCapturingDeviceObject(const QVariant &object)
{
    if (m_deviceObject == object)
        return;
    m_deviceObject = object;
    emit capturingDeviceObjectChanged();
}

void DeviceSelection::setCameraQML(const QVariant &descriptor)
{
    if (m_descriptor == descriptor)
        return;
    m_descriptor = descriptor;
    emit cameraQMLChanged();
}

int DeviceSelection::getDeviceTypeByName(const QString &name) const
{
    if (m_chosenKind == Zum::CapturingDeviceCanonEOS)
        return Zum::CapturingDeviceCanonEOS;
    const QString lowerName = (name.isEmpty() ? m_global.cameraName() : name).toLower();
    if (soundsLikeWebcam(lowerName) || lowerName.contains(QLatin1String("genius")))
        return Zum::CapturingDeviceWebcam;
    // A device that calls itself a device or a camera in the user's language is taken for a web camera. The
    // translation is not lowered, so one that begins with a capital never matches.
    //: Looked for in the names that devices give themselves, which are English: keep the word as it is
    const QString device = text(QT_TRANSLATE_NOOP("MainWindow", "device"));
    //: Looked for in the names that devices give themselves, which are English: keep the word as it is
    const QString camera = text(QT_TRANSLATE_NOOP("MainWindow", "camera"));
    const bool generic = lowerName.contains(device) || lowerName.contains(camera);
    return generic ? Zum::CapturingDeviceWebcam : Zum::CapturingDeviceHDMITethering;
}

QString DeviceSelection::getIconByDeviceName(const QString &name) const
{
    return iconOf(getDeviceTypeByName(name));
}

void DeviceSelection::updateCurrentDeviceType()
{
    m_deducedKind = getDeviceTypeByName(QString());
    emit currentDeviceTypeChanged();
}

void DeviceSelection::updateCurrentCapturingDeviceIcon()
{
    const QString icon = getIconByDeviceName(QString());
    if (icon == m_icon)
        return;
    m_icon = icon;
    emit currentCapturingDeviceIconChanged();
}

void DeviceSelection::rememberConnectedCamera(Settings &settings)
{
    if (m_chosenKind != Zum::CapturingDeviceCanonEOS || !m_global.connected())
        return;
    const QString group = QStringLiteral("Device");
    const QString key = QStringLiteral("camera");
    const QString name =
        m_global.cameraName().section(text(QT_TRANSLATE_NOOP("MainWindow", "#")), 0, 0).trimmed();
    if (name.isEmpty() || settings.groupValues(group).value(key).toString() == name)
        return;
    settings.setGroupValue(group, key, name);
    qDebug().noquote() << "My new camera:" << name;
}
