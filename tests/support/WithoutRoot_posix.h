#ifndef WITHOUTROOT_POSIX_H
#define WITHOUTROOT_POSIX_H

#include <unistd.h>

/**
 * While it lives, a test that runs as root acts as a user without rights, whom permissions stop. The change
 * holds for all threads, and for the real user too, whom "may I read this" is answered for. A test that is
 * run by anyone else is not changed.
 */
class WithoutRoot
{
public:
    WithoutRoot() : m_wasRoot(geteuid() == 0 && setresuid(Nobody, Nobody, 0) == 0) {}
    ~WithoutRoot()
    {
        if (m_wasRoot && setresuid(0, 0, 0) != 0)
            _exit(1);
    }
    WithoutRoot(const WithoutRoot&) = delete;
    WithoutRoot& operator=(const WithoutRoot&) = delete;

private:
    /** The customary number of the user "nobody". */
    static constexpr uid_t Nobody = 65534;

    bool m_wasRoot;
};

#endif
