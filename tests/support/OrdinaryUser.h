#pragma once

#include <QFile>

#ifdef Q_OS_UNIX
#include <unistd.h>

/// While it lives, a test that runs as the system's administrator may do no more than anybody: permissions
/// bind it as they bind a user. A temporary folder is opened to all for reading.
class OrdinaryUser
{
public:
    explicit OrdinaryUser(const QString &folder) : m_wasRoot(::getuid() == 0)
    {
        if (!m_wasRoot)
            return;
        QFile::setPermissions(folder, QFile::permissions(folder) | QFile::ReadGroup | QFile::ExeGroup
                                          | QFile::ReadOther | QFile::ExeOther);
        constexpr uid_t nobody = 65534;
        if (::setresuid(nobody, nobody, 0) != 0)
            qFatal("root cannot become an ordinary user");
    }
    ~OrdinaryUser()
    {
        if (m_wasRoot && ::setresuid(0, 0, 0) != 0)
            qFatal("root cannot come back");
    }
    Q_DISABLE_COPY_MOVE(OrdinaryUser)

private:
    bool m_wasRoot;
};
#endif
