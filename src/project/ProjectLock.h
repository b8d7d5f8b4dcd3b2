#pragma once

#include <functional>
#include <QDateTime>
#include <QString>

/// Marks a project as open in this program by a small file beside it, ".<file name>.lock", which holds the
/// owner's process id, host and moment. Only one project is held at a time. Main thread only.
class ProjectLock
{
public:
    /// Who holds a project.
    struct Owner
    {
        qint64 pid = 0;
        QString host;
        /// Tells processes with the same id apart; empty when the system cannot.
        QString processMark;
        QDateTime since;
    };

    enum class State {
        /// Nobody holds it, or this program does.
        Free,
        /// A running program of this host holds it.
        Held,
        /// The program that held it has ended without giving it back.
        OwnerGone,
        /// A program of another host holds it, running or not.
        HeldElsewhere,
    };

    /// What the lock knows of the system; the defaults are the real one.
    struct Host
    {
        qint64 pid;
        QString name;
        /// The mark of a running process, empty when there is none of that id.
        std::function<QString(qint64 pid)> processMark;
        std::function<QDateTime()> now;

        static Host system();
    };

    explicit ProjectLock(Host host = Host::system());
    /// Gives a held project back.
    ~ProjectLock();
    ProjectLock(const ProjectLock &) = delete;
    ProjectLock &operator=(const ProjectLock &) = delete;

    static QString lockPath(const QString &projPath);

    /// `owner`, when given, is filled unless the project is free.
    State look(const QString &projPath, Owner *owner = nullptr) const;
    /// Takes the project unless a running program of this host holds it, and gives the former one back. False
    /// also when the lock file cannot be written, as in a read-only folder; nobody else can write there
    /// either.
    bool take(const QString &projPath);
    void release();
    QString heldProject() const
    {
        return m_projPath;
    }

private:
    bool isMine(const Owner &owner) const;

    Host m_host;
    QString m_projPath;
};
