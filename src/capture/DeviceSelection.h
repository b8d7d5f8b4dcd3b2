#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

class Settings;
class WebcamGlobal;

/// Which kind of capturing device is chosen, which kind the current device's name tells of, and the icon and
/// word that stand for it. Holds the scene's device object and its descriptor without looking into them.
/// Main thread only.
class DeviceSelection : public QObject
{
    Q_OBJECT

public:
    explicit DeviceSelection(WebcamGlobal &global, QObject *parent = nullptr);

    /// One of Zum::CapturingDevice.
    int currentCapturingDevice() const
    {
        return m_chosenKind;
    }
    void setCurrentCapturingDevice(int kind);

    /// The kind deduced from the current device's name.
    int currentDeviceType() const
    {
        return m_deducedKind;
    }
    QString currentCapturingDeviceIcon() const
    {
        return m_icon;
    }
    /// The chosen kind's word for people; empty for a kind that has none.
    QString currentCapturingDeviceType() const;

    QVariant capturingDeviceObject() const
    {
        return m_deviceObject;
    }
    void setCapturingDeviceObject(const QVariant &object);
    QVariant cameraQML() const
    {
        return m_descriptor;
    }
    void setCameraQML(const QVariant &descriptor);

    /// The kind that a device of this name is. An empty name stands for the current device's.
    int getDeviceTypeByName(const QString &name) const;
    QString getIconByDeviceName(const QString &name) const;

    /// Both work from the current device's name; the first signals on every call.
    void updateCurrentDeviceType();
    void updateCurrentCapturingDeviceIcon();

    /// Stores the current device's name, cut before its number, as the user's camera when it is a new one.
    void rememberConnectedCamera(Settings &settings);

signals:
    void currentCapturingDeviceChanged();
    void currentDeviceTypeChanged();
    void currentCapturingDeviceIconChanged();
    void capturingDeviceObjectChanged();
    void cameraQMLChanged();

private:
    WebcamGlobal &m_global;
    int m_chosenKind;
    int m_deducedKind;
    QString m_icon;
    QVariant m_deviceObject;
    QVariant m_descriptor;
};
