#pragma once

#include <memory>
#include <QString>
#include <QUrl>

namespace morvane {

/// What the program asks of the desktop it runs on. Injected, so that a test opens nothing. Main thread only;
/// no call waits for the program that it starts.
class DesktopServices
{
public:
    virtual ~DesktopServices() = default;

    /// Shows a file in the system's file browser, selected where the browser can do that.
    virtual void showInGraphicalShell(const QString &path) = 0;
    /// Opens an address with the program that the user set for it; false when there is none.
    virtual bool openUrl(const QUrl &url) = 0;
    /// Path of the program that opens PNG pictures on this desktop; empty when none is known.
    virtual QString defaultImageEditor() const = 0;
};

/// The desktop of the system that the program was built for.
std::unique_ptr<DesktopServices> makeDesktopServices();

} // namespace morvane
