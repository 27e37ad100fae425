#include <KTFileManager2QU/KTFileManager2QU.h>
#include <QApplication>

int main(int argc, char* argv[])
{
    const QApplication app(argc, argv);
    CKTFileManager pane(nullptr, QRect(0, 0, 1000, 640), FM_MODE_TREE_AND_LIST, 25, true);
    pane.GetListModel()->setParent(&pane); // the three models are the host's to delete
    pane.GetTreeModel()->setParent(&pane);
    pane.GetAliasTreeModel()->setParent(&pane);
    pane.SetDirectory(QDir::homePath()); // fills the folder tree
    pane.SetDirectory(QDir::homePath()); // every call but the first also fills the file list
    pane.show();
    return QApplication::exec();
}
