#ifndef STATUSLINE_H
#define STATUSLINE_H

#include <QObject>
#include <QTimer>

class DiskSpace;
class QLabel;
class QProgressBar;
class QStatusBar;

/** What the status bar tells: the number of items, the selection, thumbnails under way, and free space. */
class StatusLine : public QObject
{
    Q_OBJECT

public:
    /** Puts its labels into @p bar, which owns them. */
    explicit StatusLine(QStatusBar* bar);

    void SetCount(int items);

    /** @param bytes of the files among the selected items; negative when there is none among them */
    void SetSelection(int items, qint64 bytes);

    /** Looks up the room on the disk of @p folder and shows it when it is known. */
    void SetFolder(const QString& folder);

    /** Shows how far a run of work has come, once it has gone on for a moment; @p done = @p total ends it. */
    void SetProgress(int done, int total);

private:
    QLabel* AddLabel(QStatusBar* bar, const QString& name);
    void ShowFreeSpace(qint64 bytes);

    QLabel* m_pCount;
    QLabel* m_pSelection;
    QProgressBar* m_pProgress;
    QLabel* m_pFreeSpace;
    DiskSpace* m_pDiskSpace;
    QTimer m_patience;
};

#endif
