#pragma once

#include "app/facade/MessagesFacet.h"

#include <QVariant>

/// The choice of the capturing device.
class CaptureFacet : public MessagesFacet
{
    Q_OBJECT
    Q_PROPERTY(int currentCapturingDevice READ currentCapturingDevice WRITE setCurrentCapturingDevice NOTIFY
                   currentCapturingDeviceChanged)
    Q_PROPERTY(int currentDeviceType READ currentDeviceType NOTIFY currentDeviceTypeChanged)
    Q_PROPERTY(QString currentCapturingDeviceIcon READ currentCapturingDeviceIcon NOTIFY
                   currentCapturingDeviceIconChanged)
    Q_PROPERTY(QString currentCapturingDeviceType READ currentCapturingDeviceType NOTIFY
                   currentCapturingDeviceChanged)
    Q_PROPERTY(QVariant capturingDeviceObject READ capturingDeviceObject WRITE setCapturingDeviceObject NOTIFY
                   capturingDeviceObjectChanged)
    Q_PROPERTY(QVariant cameraQML READ cameraQML WRITE setCameraQML NOTIFY cameraQMLChanged)

public:
    explicit CaptureFacet(std::unique_ptr<AppControllers> controllers);

    int currentCapturingDevice() const;
    void setCurrentCapturingDevice(int kind);
    int currentDeviceType() const;
    QString currentCapturingDeviceIcon() const;
    QString currentCapturingDeviceType() const;
    QVariant capturingDeviceObject() const;
    void setCapturingDeviceObject(const QVariant &object);
    QVariant cameraQML() const;
    void setCameraQML(const QVariant &descriptor);

public slots:
    int getDeviceTypeByName(const QString &str) const;
    QString getIconByDeviceName(const QString &str) const;
    void updateCurrentDeviceType();
    void updateCurrentCapturingDeviceIcon();
    /// Remembers the name of a camera that has just connected.
    void cameraConnected();
    /// Asks for a movie or the first of numbered images and puts it into the list of cameras. Its index, or
    /// -1 when the user gave up or the file is of no use, which a message tells.
    int addFileCamera();
    /// The same with a given path, for this run alone.
    int useFileAsCamera(const QString &path);
    void removeFileCamera(int index);
    bool isFileCamera(int index) const;

signals:
    void currentCapturingDeviceChanged();
    void currentDeviceTypeChanged();
    void currentCapturingDeviceIconChanged();
    void capturingDeviceObjectChanged();
    void cameraQMLChanged();

private:
    int tellUnlessAdded(int index);
};
