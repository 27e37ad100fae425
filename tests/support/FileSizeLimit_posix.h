#ifndef FILESIZELIMIT_POSIX_H
#define FILESIZELIMIT_POSIX_H

#include <QtGlobal>

#include <csignal>
#include <sys/resource.h>

/**
 * While it lives, this process cannot write files larger than a limit: a write beyond it fails as on a full
 * disk.
 */
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes) : m_oldHandler(std::signal(SIGXFSZ, SIG_IGN))
    {
        if (getrlimit(RLIMIT_FSIZE, &m_oldLimit) != 0)
            qFatal("the limit on files cannot be read");
        Set(bytes);
    }
    ~FileSizeLimit()
    {
        Set(m_oldLimit.rlim_cur);
        std::signal(SIGXFSZ, m_oldHandler);
    }
    Q_DISABLE_COPY(FileSizeLimit)

private:
    void Set(rlim_t bytes) const
    {
        const rlimit limit = {bytes, m_oldLimit.rlim_max};
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
            qFatal("the limit on files cannot be set");
    }

    void (*m_oldHandler)(int);
    rlimit m_oldLimit = {};
};

#endif
