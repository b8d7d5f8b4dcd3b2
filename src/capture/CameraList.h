#pragma once

#include <QObject>
#include <QVariantList>

class DeviceSelection;
class Settings;
class WebcamGlobal;

/// The rows of the list of cameras, and which of them is the one to be opened. Main thread.
///
/// What chooses the row, first to last: the camera that was lost while it was connected, for as long as it
/// has not come back; the camera that the user picked, if it is there; the last row whose name tells of the
/// chosen kind, where a built-in camera or a file counts only if the machine has no such camera.
class CameraList : public QObject
{
    Q_OBJECT
    /// Maps with "name" (the label), "value" (the index to open), "image", "isize" and "battery".
    Q_PROPERTY(QVariantList rows READ rows NOTIFY rowsChanged)
    /// The index that opens the built-in camera.
    Q_PROPERTY(int demoIndex READ demoIndex CONSTANT)

public:
    CameraList(WebcamGlobal &global, DeviceSelection &devices, Settings &settings, QObject *parent = nullptr);

    QVariantList rows() const
    {
        return m_rows;
    }
    static int demoIndex();
    /// The label that stands for an index: its row's, "FireWire Device" for 300, else "Device #" and the
    /// index.
    Q_INVOKABLE QString nameOf(int index) const;

public slots:
    /// Takes OsSpecific's list over, sets camindex, and tells capturingDevicesListChanged(). Only for the
    /// kinds that OpenCV opens; the list of another kind comes by setRows().
    void fill(const QVariantList &devices);
    void setRows(const QVariantList &rows);
    /// The user picked this index in the list or typed it in.
    void choose(int index);
    /// Brings camindex back to the stored one and cameraName to its label. Not while connected.
    void refreshCamName();
    /// The connected camera has gone without being asked to.
    void cameraLost();

signals:
    void rowsChanged();
    /// A lost camera is in the list again and camindex is its index.
    void lostCameraReturned(int index);

private:
    int chosenIndex();
    int indexOfKind() const;
    int indexOfName(const QString &label) const;
    bool isThere(int index) const;

    WebcamGlobal &m_global;
    DeviceSelection &m_devices;
    Settings &m_settings;
    QVariantList m_rows;
    /// Label of the lost camera; empty when none is.
    QString m_lost;
};
