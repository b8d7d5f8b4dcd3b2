#include "shared/desktop/FreeDesktopServices.h"

#include "shared/desktop/MimeApplications.h"
#include "shared/PathText.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QFileInfo>

namespace morvane {

namespace {

void openFolderOf(const QString &filePath)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(filePath).absolutePath()));
}

} // namespace

void FreeDesktopServices::showInGraphicalShell(const QString &path)
{
    const QString filePath = withoutFilePrefix(path);
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        openFolderOf(filePath);
        return;
    }
    const QString service = QStringLiteral("org.freedesktop.FileManager1");
    QDBusMessage message = QDBusMessage::createMethodCall(
        service, QStringLiteral("/org/freedesktop/FileManager1"), service, QStringLiteral("ShowItems"));
    const QString noStartupId;
    message << QStringList{QUrl::fromLocalFile(filePath).toString(QUrl::FullyEncoded)} << noStartupId;
    auto *reply = new QDBusPendingCallWatcher(bus.asyncCall(message), QCoreApplication::instance());
    QObject::connect(reply, &QDBusPendingCallWatcher::finished, reply, [reply, filePath] {
        if (reply->isError())
            openFolderOf(filePath);
        reply->deleteLater();
    });
}

bool FreeDesktopServices::openUrl(const QUrl &url)
{
    return QDesktopServices::openUrl(url);
}

QString FreeDesktopServices::defaultImageEditor() const
{
    return MimeApplications(MimeApplications::Folders::ofThisUser())
        .defaultProgram(QStringLiteral("image/png"));
}

} // namespace morvane
