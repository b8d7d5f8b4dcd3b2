#include "capture/CameraList.h"

#include "capture/CaptureEnvironment.h"
#include "capture/DeviceSelection.h"
#include "shared/Settings.h"
#include "shared/WebcamGlobal.h"
#include "shared/Zum.h"

#include <algorithm>

namespace {

const QString nameKey = QStringLiteral("name");
const QString valueKey = QStringLiteral("value");
const QString indexSetting = QStringLiteral("lastWebcamIndex");
const QString chosenSetting = QStringLiteral("chosenCamera");
constexpr int fireWireIndex = 300;

int valueOf(const QVariant &row)
{
    return row.toMap().value(valueKey).toInt();
}

QString labelOf(const QVariant &row)
{
    return row.toMap().value(nameKey).toString();
}

// Plugged in elsewhere, a camera keeps its name and gets another index.
QString withoutIndex(const QString &label)
{
    return label.section(QStringLiteral(" #"), 0, -2);
}

bool isOfMachine(int index)
{
    return index < CaptureEnvironment::demoIndex;
}

} // namespace

CameraList::CameraList(WebcamGlobal &global, DeviceSelection &devices, Settings &settings, QObject *parent)
    : QObject(parent), m_global(global), m_devices(devices), m_settings(settings)
{
    connect(&global, &WebcamGlobal::camindexChanged, this,
            [this] { m_settings.setValue(indexSetting, m_global.camindex()); });
    connect(&global, &WebcamGlobal::connectedChanged, this, [this] {
        if (m_global.connected())
            m_lost.clear();
    });
}

int CameraList::demoIndex()
{
    return CaptureEnvironment::demoIndex;
}

QString CameraList::nameOf(int index) const
{
    for (const QVariant &row : m_rows) {
        if (valueOf(row) == index)
            return labelOf(row);
    }
    return index == fireWireIndex ? tr("FireWire Device") : tr("Device #%1").arg(index);
}

bool CameraList::isThere(int index) const
{
    return std::any_of(m_rows.begin(), m_rows.end(),
                       [&](const QVariant &row) { return valueOf(row) == index; });
}

// Of two cameras with one name the one that kept its index is meant.
int CameraList::indexOfName(const QString &label) const
{
    int found = -1;
    for (const QVariant &row : m_rows) {
        if (labelOf(row) == label)
            return valueOf(row);
        if (found < 0 && withoutIndex(labelOf(row)) == withoutIndex(label))
            found = valueOf(row);
    }
    return found;
}

int CameraList::indexOfKind() const
{
    int ofMachine = -1;
    int other = -1;
    bool machineHasAny = false;
    for (const QVariant &row : m_rows) {
        const int index = valueOf(row);
        const bool ofKind = m_devices.getDeviceTypeByName(labelOf(row)) == m_devices.currentCapturingDevice();
        machineHasAny = machineHasAny || isOfMachine(index);
        if (isOfMachine(index) && ofKind)
            ofMachine = index;
        if (index == CaptureEnvironment::demoIndex)
            other = index;
    }
    if (ofMachine >= 0)
        return ofMachine;
    return machineHasAny ? -1 : other;
}

int CameraList::chosenIndex()
{
    const QString picked = m_settings.value(chosenSetting).toString();
    const int index = picked.isEmpty() ? -1 : indexOfName(picked);
    const bool ofKind = m_devices.getDeviceTypeByName(picked) == m_devices.currentCapturingDevice();
    return index >= 0 && (ofKind || !isOfMachine(index)) ? index : indexOfKind();
}

void CameraList::fill(const QVariantList &devices)
{
    const int kind = m_devices.currentCapturingDevice();
    if (kind != Zum::CapturingDeviceWebcam && kind != Zum::CapturingDeviceHDMITethering)
        return;
    QVariantList rows;
    for (const QVariant &entry : devices) {
        const QVariantMap device = entry.toMap();
        const int index = device.value(QStringLiteral("index")).toInt();
        const QString label =
            QStringLiteral("%1 #%2").arg(device.value(nameKey).toString(), QString::number(index));
        rows.append(QVariantMap{{nameKey, label},
                                {valueKey, index},
                                {QStringLiteral("image"), QString()},
                                {QStringLiteral("isize"), QString()},
                                {QStringLiteral("battery"), -1}});
    }
    setRows(rows);
    const int returned = m_lost.isEmpty() ? -1 : indexOfName(m_lost);
    const int index = m_lost.isEmpty() ? chosenIndex() : returned;
    if (index >= 0 && !m_global.connected())
        m_global.setCamindex(index);
    emit m_global.capturingDevicesListChanged();
    if (returned >= 0) {
        m_lost.clear();
        emit lostCameraReturned(returned);
    }
}

void CameraList::setRows(const QVariantList &rows)
{
    m_rows = rows;
    emit rowsChanged();
}

void CameraList::choose(int index)
{
    m_lost.clear();
    if (isThere(index))
        m_settings.setValue(chosenSetting, nameOf(index));
    else
        m_settings.remove(chosenSetting);
    m_global.setCamindex(index);
    m_global.setCameraName(nameOf(index));
}

void CameraList::refreshCamName()
{
    if (m_global.connected())
        return;
    int index = m_settings.integer(indexSetting, 0, 0, CaptureEnvironment::demoIndex + FileCameras::most);
    if (m_devices.currentCapturingDevice() == Zum::CapturingDeviceCanonEOS && index >= m_rows.size())
        index = 0;
    m_global.setCamindex(index);
    m_global.setCameraName(nameOf(index));
}

void CameraList::cameraLost()
{
    m_lost = nameOf(m_global.connectedCamIndex());
}
