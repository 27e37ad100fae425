#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"
#include "tests/support/TestPlatform.h"

#include <KTFileManager2QU/CProfile.h>

#include <cstdlib>
#include <limits>
#include <new>

using KT::CProfile;
using KT::ResultDone;
using KT::ResultFailed;
using KT::ResultFileMissing;

namespace {

constexpr int Unlimited = std::numeric_limits<int>::max();

/** How many more allocations succeed. */
int allocationsLeft = Unlimited;

void* Allocate(std::size_t size)
{
    if (allocationsLeft == 0)
        return nullptr;
    if (allocationsLeft != Unlimited)
        --allocationsLeft;
    return std::malloc(size > 0 ? size : 1);
}

} // namespace

void* operator new(std::size_t size)
{
    if (void* memory = Allocate(size))
        return memory;
    throw std::bad_alloc();
}

void* operator new[](std::size_t size)
{
    return operator new(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return Allocate(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return Allocate(size);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}

// Read by the leak checker, which prescribes the name, when there is one: the parser loses the bytes and the
// text of a file when there is no memory for an entry of it, and nobody but the parser could free them.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
extern "C" Q_DECL_EXPORT const char* __lsan_default_suppressions();
// NOLINTNEXTLINE(bugprone-reserved-identifier)
const char* __lsan_default_suppressions()
{
    return "leak:CSimpleIniTempl\n";
}

class tst_ProfileOutOfMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { allocationsLeft = Unlimited; }
    void loadFailsWithoutException();
    void lookupFailsWithoutExceptionAndKeepsValue();
    void wildcardFailsWithoutException();
};

void tst_ProfileOutOfMemory::loadFailsWithoutException()
{
    TestFolder folder;
    const std::wstring path = folder.File(QStringLiteral("names.ini"), "[A]\na=1\n[B]\nb=2\n").toStdWString();
    int failures = 0;
    qint32 code = ResultFailed;
    for (int allocations = 0; code != ResultDone && allocations < 1000; ++allocations) {
        CProfile profile;
        std::wstring argument = path;
        std::wstring value = L"before";
        allocationsLeft = allocations;
        code = profile.Load(std::move(argument), true).code;
        allocationsLeft = Unlimited;
        QVERIFY(code == ResultDone || code == ResultFailed || code == ResultFileMissing);
        QCOMPARE(profile.GetValue(value, L"B", L"b").code, code == ResultDone ? ResultDone : ResultFailed);
        failures += code == ResultFailed ? 1 : 0;
    }
    QCOMPARE(code, ResultDone);
    // At least the parser, the bytes, the text, two sections and two keys need memory.
    QVERIFY(failures >= 7);
}

void tst_ProfileOutOfMemory::lookupFailsWithoutExceptionAndKeepsValue()
{
    if (!TestPlatform::ReplacesOperatorNewEverywhere())
        QSKIP("the standard library's strings take their memory by an operator new of its own");
    TestFolder folder;
    CProfile profile;
    const QString path = folder.File(QStringLiteral("names.ini"), "k=" + QByteArray(1000, 'v') + "\n");
    QCOMPARE(profile.Load(path.toStdWString(), true).code, ResultDone);
    std::wstring value = L"before";
    allocationsLeft = 0;
    const qint32 code = profile.GetValue(value, L"", L"k").code;
    allocationsLeft = Unlimited;
    QCOMPARE(code, ResultFailed);
    QVERIFY(value == L"before");
}

void tst_ProfileOutOfMemory::wildcardFailsWithoutException()
{
    if (!TestPlatform::ReplacesOperatorNewEverywhere())
        QSKIP("the system looks for the name itself, with memory of its own");
    TestFolder folder;
    folder.File(QString(100, QLatin1Char('n')));
    std::wstring pattern = folder.Path(QString(99, QLatin1Char('n')) + QLatin1Char('*')).toStdWString();
    std::wstring copy = pattern;
    const CProfile profile;
    allocationsLeft = 0;
    const bool exists = profile.FileExists(std::move(copy));
    allocationsLeft = Unlimited;
    QVERIFY(!exists);
    QVERIFY(profile.FileExists(std::move(pattern)));
}

KTFM_TEST_MAIN(tst_ProfileOutOfMemory)
#include "tst_profile_outofmemory.moc"
