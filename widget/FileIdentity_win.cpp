#include "widget/FileIdentity.h"

#include "models/ExtendedPath_win.h"

#include <windows.h>

namespace {

/** A handle that is open while this lives. */
class OpenHandle
{
public:
    explicit OpenHandle(HANDLE handle) : m_handle(handle) {}
    ~OpenHandle()
    {
        if (IsOpen())
            CloseHandle(m_handle);
    }
    Q_DISABLE_COPY(OpenHandle)

    bool IsOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return m_handle; }

private:
    HANDLE m_handle;
};

/** Opens a file or folder to ask about it alone: no access to its content, nobody is kept out. */
HANDLE OpenToAsk(const QString& path)
{
    return CreateFileW(ExtendedPath(path).c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                       nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
}

} // namespace

std::optional<FileIdentity> FileIdentity::Of(const QString& path)
{
    const OpenHandle handle(OpenToAsk(path));
    BY_HANDLE_FILE_INFORMATION info = {};
    if (!handle.IsOpen() || !GetFileInformationByHandle(handle.Get(), &info))
        return std::nullopt;
    const quint64 file = (static_cast<quint64>(info.nFileIndexHigh) << 32) | info.nFileIndexLow;
    return FileIdentity{info.dwVolumeSerialNumber, file};
}
