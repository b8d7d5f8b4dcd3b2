#pragma once

#include "shared/global/CommandBus.h"

#include <chrono>
#include <QTimer>
#include <QVariant>

/// The program's blackboard and command bus: notifying properties that the scene, the devices and the jobs
/// read and write, and signals that act as commands. Lives on the main thread.
///
/// The values that a new object holds are the defaults of every project attribute: a reset copies the
/// project properties of a fresh object into the live one.
class WebcamGlobal : public CommandBus
{
    Q_OBJECT
    Q_PROPERTY(QVariantList chromakeyColors READ chromakeyColors CONSTANT)
    Q_PROPERTY(QVariantList blendModes READ blendModes CONSTANT)

public:
    enum SizePart {
        IsWidth,
        IsHeight,
    };
    Q_ENUM(SizePart)

    explicit WebcamGlobal(QObject *parent = nullptr);

    /// Named key colours, each with "kill", "feather", "hue", "shift", "saturation", "lightness" and "name".
    QVariantList chromakeyColors() const;
    /// One entry per Zum::BlendType, in its order, each with "icon" and "text".
    QVariantList blendModes() const;

    /// Takes over every project property of another object, each with its signals when it differs.
    void copyProjectPropertiesFrom(const WebcamGlobal &other);

    /// How long a request for new scales waits for a newer one; 1000 ms unless a test shortens it.
    void setScaleDelay(std::chrono::milliseconds delay);

public slots:
    /// Asks for displayScale and coordSystemScale to be worked out for an area of that many pixels. Requests
    /// that come while one waits replace its size. Nothing happens while paused.
    void calculateDisplayAndCoordSystemScale(int availW, int availH);
    /// Sets camScaledCropAreaW and camScaledCropAreaH for a camera picture of w x h pixels; a picture without
    /// an area changes nothing.
    void updateCropAreaScale(qreal w, qreal h);
    /// Brings both export sizes to the shape of the crop area, in multiples of 8.
    void updateExportSizes();
    /// One filter's entry in postProcessSettings; a filter without an entry is off.
    void setPostProcessSetting(const QString &key, const QVariant &value);
    void removePostProcessSetting(const QString &key);
    QVariant getPostProcessSetting(const QString &key, const QVariant &defaultVal) const;
    /// One minute of the inactivity watch has passed.
    void checkUserInactivity();

    QString ensureDirSeparator(const QString &path) const;
    QString timeStamp() const;
    QString millisecondsToHHMMSS(int milliseconds) const;
    int roundUp(int value) const;
    QString stringIconName(int messageType) const;
    QString getBlendName(int blend) const;
    QString videoExportPolicyIcon(int policy) const;
    QColor hueShift(const QColor &color, qreal value) const;
    QColor saturationShift(const QColor &color, qreal value) const;
    QVariantMap hsla(const QColor &color) const;
    QVariantMap colorToRgb(const QColor &color) const;
    QColor lighterColor(const QColor &color, qreal factor) const;
    QColor yCbCrToRgb(qreal y, qreal cb, qreal cr, qreal alpha) const;
    QColor yCbCrToRgb(qreal y, qreal cb, qreal cr) const;
    int colorNameToHue(const QString &name) const;

private:
    void _calculateDisplayAndCoordSystemScale();
    void updateCoordSystemSize();
    void computeScales();

    QTimer m_scaleTimer{this};
    int m_availableWidth = 0;
    int m_availableHeight = 0;
};
