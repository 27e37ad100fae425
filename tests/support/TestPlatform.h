#ifndef TESTPLATFORM_H
#define TESTPLATFORM_H

#include <QString>
#include <QtTest>

/**
 * @file TestPlatform.h
 * @brief Where the tests expect another thing of another system. One source a platform answers.
 */
namespace TestPlatform {

/** @return whether any name can be a link; on Windows tests make shell links, which are files named *.lnk */
bool HasSymbolicLinks();

/** @return whether a pipe can have a name among files */
bool HasPipesInFolders();

/** @return whether a name may hold every character but the separator, and end as it likes */
bool AllowsAllNames();

/** @return whether a name that differs from another in letter case alone is another name */
bool TellsLetterCase();

/** @return whether the locale is chosen by the environment, rather than by the user's settings */
bool TakesLocaleFromEnvironment();

/** @return whether a program's own operator new serves the shared libraries that it uses as well */
bool ReplacesOperatorNewEverywhere();

/** @return whether the system's icons come in any size; the desktop of Windows has some sizes alone */
bool HasIconsOfAnySize();

/** @return whether Windows is not Windows itself but Wine */
bool IsWine();

/** @return the name that an entry has once it was made as @p name: without the dots at the end that some
 * disks drop */
QString NameOnDisk(const QString& name);

/** @return @p path as an absolute path of this system: with the current drive where there are drives */
QString Absolute(const QString& path);

} // namespace TestPlatform

/** Each leaves out the running test where it cannot be, and says why. @{ */
#define KTFM_NEEDS_SYMBOLIC_LINKS()                                                                          \
    do {                                                                                                     \
        if (!TestPlatform::HasSymbolicLinks())                                                               \
            QSKIP("it needs links of any name");                                                             \
    } while (false)
#define KTFM_NEEDS_ALL_NAMES()                                                                               \
    do {                                                                                                     \
        if (!TestPlatform::AllowsAllNames())                                                                 \
            QSKIP("the disk cannot hold such a name");                                                       \
    } while (false)
#define KTFM_NEEDS_ICONS_OF_ANY_SIZE()                                                                       \
    do {                                                                                                     \
        if (!TestPlatform::HasIconsOfAnySize())                                                              \
            QSKIP("the desktop's icons come in few sizes");                                                  \
    } while (false)
#define KTFM_SKIP_ON_WINE(reason)                                                                            \
    do {                                                                                                     \
        if (TestPlatform::IsWine())                                                                          \
            QSKIP("Wine: " reason);                                                                          \
    } while (false)
/** @} */

#endif
