#include "shared/desktop/WindowsDesktopServices.h"

#include "shared/PathText.h"

#include <QDesktopServices>
#include <QDir>
#include <QRegularExpression>

namespace morvane {

WindowsDesktopServices::WindowsDesktopServices(ProcessStarter start, const QStringList &environment)
    : m_start(std::move(start)), m_environment(environment)
{
}

void WindowsDesktopServices::showInGraphicalShell(const QString &path)
{
    m_start(QStringLiteral("explorer"),
            {QStringLiteral("/select,"), QDir::toNativeSeparators(withoutFilePrefix(path))});
}

bool WindowsDesktopServices::openUrl(const QUrl &url)
{
    return QDesktopServices::openUrl(url);
}

QString WindowsDesktopServices::defaultImageEditor() const
{
    static const QRegularExpression systemRoot(QStringLiteral("^WINDIR=.*"),
                                               QRegularExpression::CaseInsensitiveOption);
    const QStringList found = m_environment.filter(systemRoot);
    if (found.isEmpty())
        return QString();
    const QString root = found.first().section(QLatin1Char('='), 1);
    return ensureDirSeparator(QDir::fromNativeSeparators(root)) + QStringLiteral("System32/mspaint.exe");
}

} // namespace morvane
