#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include <KTFileManager2QU/KTFMInterfaces.h>

#include <QMainWindow>

class CKTFileManager;

/** A window around one pane. It is the pane's host: the pane tells it what the user does. */
class MainWindow : public QMainWindow, private CKTFMInterface
{
    Q_OBJECT

public:
    explicit MainWindow(const QString& folder);
    ~MainWindow() override;

Q_SIGNALS:
    /** The user double-clicked a file. */
    void FileOpened(const QString& path);

private:
    void ShowFolder(const QString& folder);
    void ShowError(int pane, int action, int error);

    void OnLButtonDblClickListItem(QString absolutePath, bool isFolder) override;
    void OnListViewRootPathChanged(const QString& newPath) override;
    void OnShowPopupMenu(EKTFMMode pane, bool onItem) override;

    CKTFileManager* m_pPane;
};

#endif
