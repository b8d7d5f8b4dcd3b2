#include "project/ProjectLock.h"

#include "project/ProcessMark.h"

#include <optional>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSysInfo>
#include <QtDebug>

using namespace Qt::StringLiterals;

namespace {

/// More than any lock file has; what is longer is none of ours.
constexpr qint64 maxLockBytes = 4096;

/// Empty when there is no lock file. One that cannot be understood gives an owner without a process.
std::optional<ProjectLock::Owner> readOwner(const QString &lockPath)
{
    QFile file(lockPath);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QJsonObject object = QJsonDocument::fromJson(file.read(maxLockBytes)).object();
    ProjectLock::Owner owner;
    owner.pid = object.value("pid"_L1).toInteger();
    owner.host = object.value("host"_L1).toString();
    owner.processMark = object.value("mark"_L1).toString();
    owner.since = QDateTime::fromString(object.value("since"_L1).toString(), Qt::ISODate);
    return owner;
}

} // namespace

ProjectLock::Host ProjectLock::Host::system()
{
    return {QCoreApplication::applicationPid(), QSysInfo::machineHostName(), morvane::processMark, [] {
                return QDateTime::currentDateTime();
            }};
}

ProjectLock::ProjectLock(Host host) : m_host(std::move(host))
{
}

ProjectLock::~ProjectLock()
{
    release();
}

QString ProjectLock::lockPath(const QString &projPath)
{
    const QFileInfo file(projPath);
    return file.absolutePath() + "/."_L1 + file.fileName() + ".lock"_L1;
}

bool ProjectLock::isMine(const Owner &owner) const
{
    return owner.pid == m_host.pid && owner.host == m_host.name
           && owner.processMark == m_host.processMark(m_host.pid);
}

ProjectLock::State ProjectLock::look(const QString &projPath, Owner *owner) const
{
    const std::optional<Owner> found = readOwner(lockPath(projPath));
    if (!found || isMine(*found))
        return State::Free;
    if (owner != nullptr)
        *owner = *found;
    if (found->pid <= 0)
        return State::OwnerGone;
    if (found->host != m_host.name)
        return State::HeldElsewhere;
    const QString mark = m_host.processMark(found->pid);
    const bool runs = !mark.isEmpty() && mark == found->processMark;
    return runs ? State::Held : State::OwnerGone;
}

bool ProjectLock::take(const QString &projPath)
{
    if (projPath != m_projPath)
        release();
    if (look(projPath) == State::Held)
        return false;
    const QString path = lockPath(projPath);
    QFile::remove(path);
    const QByteArray bytes = QJsonDocument(QJsonObject{
                                               {u"pid"_s, m_host.pid},
                                               {u"host"_s, m_host.name},
                                               {u"mark"_s, m_host.processMark(m_host.pid)},
                                               {u"since"_s, m_host.now().toString(Qt::ISODate)},
                                           })
                                 .toJson(QJsonDocument::Compact);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly) || file.write(bytes) != bytes.size()) {
        qDebug().noquote() << "Cannot write the lock file" << path << file.errorString();
        return false;
    }
    m_projPath = projPath;
    return true;
}

void ProjectLock::release()
{
    if (m_projPath.isEmpty())
        return;
    // Somebody may have opened the project anyway and be its owner now.
    const std::optional<Owner> owner = readOwner(lockPath(m_projPath));
    if (owner && isMine(*owner))
        QFile::remove(lockPath(m_projPath));
    m_projPath.clear();
}
