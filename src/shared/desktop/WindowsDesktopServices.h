#pragma once

#include "shared/DesktopServices.h"
#include "shared/ProcessStarter.h"

#include <QProcess>

namespace morvane {

/// The desktop of Windows: its Explorer and its Paint. Needs nothing of that system to be built.
class WindowsDesktopServices : public DesktopServices
{
public:
    /// `environment` holds lines of the form "NAME=value".
    explicit WindowsDesktopServices(ProcessStarter start = startDetached,
                                    const QStringList &environment = QProcess::systemEnvironment());

    void showInGraphicalShell(const QString &path) override;
    bool openUrl(const QUrl &url) override;
    QString defaultImageEditor() const override;

private:
    ProcessStarter m_start;
    QStringList m_environment;
};

} // namespace morvane
