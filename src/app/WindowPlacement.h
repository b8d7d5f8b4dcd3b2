#pragma once

#include <QString>

class QWindow;
class Settings;

/// Where a window stood, kept in the settings under a group of its own. A window that was maximized comes
/// back maximized on its screen; one whose place is on no screen any more comes to the first.
class WindowPlacement
{
public:
    /// `group` is the settings group; `maximizedKey` the name of its flag.
    WindowPlacement(Settings &settings, const QString &group, const QString &maximizedKey);

    void restore(QWindow &window) const;
    void save(const QWindow &window, bool maximized) const;

private:
    QString key(const QString &name) const;

    Settings &m_settings;
    QString m_group;
    QString m_maximizedKey;
};
