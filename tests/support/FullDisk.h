#pragma once

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#include <csignal>

/// A disk that is full: no file of this process may grow past that size while this lives.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes) : m_formerHandler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_former);
        const rlimit limit{bytes, m_former.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_former);
        std::signal(SIGXFSZ, m_formerHandler);
    }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    void (*m_formerHandler)(int);
    rlimit m_former{};
};
#endif
