#pragma once

#include "shared/DesktopServices.h"

namespace morvane {

/// The desktops of Linux and its relatives, by the standards that they share.
class FreeDesktopServices : public DesktopServices
{
public:
    /// Asks the file manager over D-Bus; where none answers, the folder is opened without a selection.
    void showInGraphicalShell(const QString &path) override;
    bool openUrl(const QUrl &url) override;
    QString defaultImageEditor() const override;
};

} // namespace morvane
