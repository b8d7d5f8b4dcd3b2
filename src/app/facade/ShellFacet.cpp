#include "app/facade/ShellFacet.h"

#include "app/AppControllers.h"
#include "app/AppInfo.h"

#include <QCloseEvent>

ShellFacet::ShellFacet(std::unique_ptr<AppControllers> controllers) : ProjectFacet(std::move(controllers))
{
    connect(&this->controllers().robot, &RobotSupervisor::dialogIsOver, this,
            [this] { setQmlDialogUrl(QString()); });
}

QString ShellFacet::qmlDialogUrl() const
{
    return m_qmlDialogUrl;
}

void ShellFacet::setQmlDialogUrl(const QString &fileName)
{
    if (m_qmlDialogUrl == fileName)
        return;
    m_qmlDialogUrl = fileName;
    emit qmlDialogUrlChanged();
}

bool ShellFacet::qmlDialogVisible() const
{
    return m_qmlDialogVisible;
}

void ShellFacet::setQmlDialogVisible(bool visible)
{
    if (m_qmlDialogVisible == visible)
        return;
    m_qmlDialogVisible = visible;
    emit qmlDialogVisibleChanged();
}

bool ShellFacet::closing() const
{
    return controllers().quitSequence->closing();
}

int ShellFacet::closeAttempts() const
{
    return controllers().quitSequence->closeAttempts();
}

QVariantMap ShellFacet::appInfo() const
{
    return appinfo::about();
}

QVariantList ShellFacet::docs() const
{
    return controllers().docs.docs();
}

void ShellFacet::quit(bool force)
{
    if (force) {
        // A save that fails only now must not bring back the question that has been answered.
        controllers().lifecycle.finishSaves();
        controllers().lifecycle.setAllowQuietExit(true);
    }
    QCloseEvent event;
    closeEvent(&event);
}

void ShellFacet::quit()
{
    quit(false);
}

void ShellFacet::quitApplication(bool force)
{
    quit(force);
}

void ShellFacet::quitApplication()
{
    quit(false);
}

void ShellFacet::setTitle()
{
    QString title = appinfo::windowTitle(currentCapturingDeviceType(), idealThreads(), projPath());
    title.replace(QStringLiteral("[*]"),
                  controllers().lifecycle.allowQuietExit() ? QString() : QStringLiteral("*"));
    setTitle(title);
}

void ShellFacet::loadDocs()
{
    controllers().docs.loadDocs();
}
