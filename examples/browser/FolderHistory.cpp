#include "FolderHistory.h"

namespace {

/** How many folders are kept: more than anyone goes back through. */
constexpr int KeptFolders = 200;

} // namespace

void FolderHistory::Visit(const QString& path)
{
    if (path == m_paths.value(m_nPresent))
        return;
    m_paths = m_paths.mid(0, m_nPresent + 1);
    m_paths.append(path);
    if (m_paths.size() > KeptFolders)
        m_paths.removeFirst();
    m_nPresent = m_paths.size() - 1;
}

bool FolderHistory::CanGoBack() const
{
    return m_nPresent > 0;
}

bool FolderHistory::CanGoForward() const
{
    return m_nPresent + 1 < m_paths.size();
}

QString FolderHistory::GoBack()
{
    return m_paths.at(--m_nPresent);
}

QString FolderHistory::GoForward()
{
    return m_paths.at(++m_nPresent);
}
