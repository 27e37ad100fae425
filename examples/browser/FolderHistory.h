#ifndef FOLDERHISTORY_H
#define FOLDERHISTORY_H

#include <QStringList>

/** The folders that were shown one after the other, and the place among them. */
class FolderHistory
{
public:
    /** Puts a folder behind the present one and forgets those that were ahead; the present one changes
     * nothing. */
    void Visit(const QString& path);

    bool CanGoBack() const;
    bool CanGoForward() const;

    /** Goes back by one folder, which must be possible. @return the folder */
    QString GoBack();

    /** Goes forward by one folder, which must be possible. @return the folder */
    QString GoForward();

private:
    QStringList m_paths;
    int m_nPresent = -1;
};

#endif
