#include "app/WindowPlacement.h"

#include "shared/Settings.h"

#include <QDataStream>
#include <QGuiApplication>
#include <QIODevice>
#include <QRect>
#include <QScreen>
#include <QWindow>

namespace {

constexpr quint32 geometryMagic = 0x4d56474d;

QByteArray packed(const QRect &geometry)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_0);
    stream << geometryMagic << geometry;
    return bytes;
}

QRect unpacked(const QByteArray &bytes)
{
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_6_0);
    quint32 magic = 0;
    QRect geometry;
    stream >> magic >> geometry;
    return stream.status() == QDataStream::Ok && magic == geometryMagic ? geometry : QRect();
}

bool standsOnAScreen(const QRect &geometry)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [&](const QScreen *screen) {
        return screen->availableGeometry().intersects(geometry);
    });
}

} // namespace

WindowPlacement::WindowPlacement(Settings &settings, const QString &group, const QString &maximizedKey)
    : m_settings(settings), m_group(group), m_maximizedKey(maximizedKey)
{
}

QString WindowPlacement::key(const QString &name) const
{
    return m_group + QLatin1Char('/') + name;
}

void WindowPlacement::restore(QWindow &window) const
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    if (m_settings.boolean(key(m_maximizedKey), false)) {
        const int screen = m_settings.integer(key(QStringLiteral("screenNumber")), 0);
        if (screen >= 0 && screen < screens.size())
            window.setPosition(screens.at(screen)->geometry().topLeft());
        window.setWindowStates(Qt::WindowMaximized);
        return;
    }
    const QRect geometry = unpacked(m_settings.value(key(QStringLiteral("geometry"))).toByteArray());
    if (geometry.isValid() && standsOnAScreen(geometry))
        window.setGeometry(geometry);
}

void WindowPlacement::save(const QWindow &window, bool maximized) const
{
    m_settings.setValue(key(m_maximizedKey), maximized);
    m_settings.setValue(key(QStringLiteral("screenNumber")),
                        static_cast<int>(QGuiApplication::screens().indexOf(window.screen())));
    if (!maximized)
        m_settings.setValue(key(QStringLiteral("geometry")), packed(window.geometry()));
}
