#pragma once

#include "paths/StoredPath.h"
#include "project/ProjectNeighbours.h"

#include <functional>

class Curves;
class LightboxChoice;

/// The path model as a project sees it: what is read in parts is put together and handed over with the nodes.
class CurvesPath : public ProjectVectorPath
{
public:
    explicit CurvesPath(Curves &curves);

    QByteArray pathBytes() const override;
    void readPathBytes(const QByteArray &bytes) override;
    void readOlderPathText(const QString &text) override;
    QSizeF pathViewport() const override;
    void setPathViewport(const QSizeF &viewport) override;
    int smoothValue() const override;
    void setSmoothValue(int value) override;

private:
    void restore(const StoredPath &path);

    Curves &m_curves;
    QSizeF m_viewport;
};

/// The camera settings that a project carries, kept as they were read until a camera takes them.
class KeptCameraSettings : public ProjectCamera
{
public:
    QVariantMap cameraSettings() const override;
    void setCameraSetting(const QString &key, const QString &value) override;

private:
    QVariantMap m_settings;
};

/// The window as a project sees it. Without a window, as in a batch run, heights are kept and given back.
class WindowScreen : public ProjectScreen
{
public:
    /// Access to the timeline's height in the window; set once the window stands.
    struct TimelineHeight
    {
        std::function<int()> limited;
        std::function<void(int)> set;
    };

    explicit WindowScreen(LightboxChoice &lightbox);
    void attach(TimelineHeight height);

    int limitedTimelineH() const override;
    void setTimelineH(int height) override;
    int lightboxMode() const override;
    void setLightboxMode(int mode) override;
    QColor lightboxColor() const override;
    void setLightboxColor(const QColor &color) override;

private:
    LightboxChoice &m_lightbox;
    TimelineHeight m_height;
};
