#include "app/ProjectAdapters.h"

#include "app/LightboxChoice.h"
#include "paths/Curves.h"

CurvesPath::CurvesPath(Curves &curves) : m_curves(curves)
{
}

QByteArray CurvesPath::pathBytes() const
{
    return QByteArray::fromBase64(m_curves.storedPath().data.toLatin1());
}

void CurvesPath::readPathBytes(const QByteArray &bytes)
{
    if (bytes.isEmpty()) {
        m_viewport = QSizeF();
        m_curves.resetPath();
        return;
    }
    StoredPath path;
    path.data = QString::fromLatin1(bytes.toBase64());
    restore(path);
}

void CurvesPath::readOlderPathText(const QString &text)
{
    StoredPath path;
    path.pathData = text;
    restore(path);
}

void CurvesPath::restore(const StoredPath &path)
{
    StoredPath whole = path;
    whole.viewportX = m_viewport.width();
    whole.viewportY = m_viewport.height();
    whole.smooth = m_curves.smoothValue();
    m_curves.restorePath(whole);
    m_viewport = QSizeF();
}

QSizeF CurvesPath::pathViewport() const
{
    const StoredPath path = m_curves.storedPath();
    return {path.viewportX, path.viewportY};
}

void CurvesPath::setPathViewport(const QSizeF &viewport)
{
    m_viewport = viewport;
}

int CurvesPath::smoothValue() const
{
    return m_curves.smoothValue();
}

void CurvesPath::setSmoothValue(int value)
{
    m_curves.setSmoothValue(value);
}

QVariantMap KeptCameraSettings::cameraSettings() const
{
    return m_settings;
}

void KeptCameraSettings::setCameraSetting(const QString &key, const QString &value)
{
    if (!value.isEmpty())
        m_settings.insert(key, value);
}

WindowScreen::WindowScreen(LightboxChoice &lightbox) : m_lightbox(lightbox)
{
}

void WindowScreen::attach(TimelineHeight height)
{
    m_height = std::move(height);
}

int WindowScreen::limitedTimelineH() const
{
    return m_height.limited ? m_height.limited() : 0;
}

void WindowScreen::setTimelineH(int height)
{
    if (m_height.set)
        m_height.set(height);
}

int WindowScreen::lightboxMode() const
{
    return m_lightbox.lightboxMode();
}

void WindowScreen::setLightboxMode(int mode)
{
    m_lightbox.setLightboxMode(mode);
}

QColor WindowScreen::lightboxColor() const
{
    return m_lightbox.lightboxColor();
}

void WindowScreen::setLightboxColor(const QColor &color)
{
    m_lightbox.setLightboxColor(color);
}
