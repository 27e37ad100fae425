#include "tests/widget/CommandPane.h"

#include "tests/support/TestMain.h"
#include "tests/support/TestPlatform.h"

#include "widget/NumberedFolder.h"

#include <QFileSystemWatcher>
#include <QLineEdit>
#include <QSignalSpy>

Q_DECLARE_METATYPE(EKTFMPart)
Q_DECLARE_METATYPE(EKTFMViewMode)

namespace {

/** Types a name into the editor that a view has open, and ends it with Return. */
bool TypeName(const QAbstractItemView* view, const QString& name)
{
    auto* editor = view->viewport()->findChild<QLineEdit*>();
    if (!editor)
        return false;
    editor->selectAll();
    QTest::keyClicks(editor, name);
    QTest::keyClick(editor, Qt::Key_Return);
    return true;
}

/** A pane whose items can be renamed. */
class RenamingPane : public CommandPane
{
public:
    explicit RenamingPane(EKTFMMode mode = FM_MODE_TREE_AND_LIST) : CommandPane(mode)
    {
        m_pPane->SetFlagStatus(FM_PART_TREE | FM_PART_LIST | FM_PART_ALIAS_TREE, 1, true);
    }

    QAbstractItemView* ShownList() const
    {
        if (m_pPane->findChild<QStackedWidget*>()->currentIndex() == 0)
            return Grid();
        return Details();
    }
};

bool IsEditing(const QAbstractItemView* view)
{
    return view->viewport()->findChild<QLineEdit*>() != nullptr;
}

} // namespace

class tst_FileCommandsNewFolder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newFolderOpensItsEditorInTheShownView_data();
    void newFolderOpensItsEditorInTheShownView();
    void newFolderTakesTheFirstFreeNumber();
    void newFolderMakesTheListTheLastPane();
    void newFolderWithoutAFolderIsRefused();
    void newFolderThatCannotBeMadeEndsTheLoop();
    void newFolderIsNotEditedWhereNothingIsRenamable();
    void numberedFolderCanBeMadeInTheTree();
    void renameEditsTheCurrentItem_data();
    void renameEditsTheCurrentItem();
    void renameInTheFolderTree();
    void renameOfNoPaneDoesNothing_data();
    void renameOfNoPaneDoesNothing();
    void renameInTheAliasTreeCollapsesAndUnwatches();
    void renameOfAFixedAliasLeavesItWatched();
    void refusedRenameIsReported();
};

void tst_FileCommandsNewFolder::newFolderOpensItsEditorInTheShownView_data()
{
    QTest::addColumn<EKTFMViewMode>("mode");
    QTest::addColumn<EKTFMPart>("part");
    for (const int part : {1, 2, 3, 4}) {
        QTest::addRow("grid, pane %d", part) << FM_VIEW_ICON << static_cast<EKTFMPart>(part);
        QTest::addRow("details, pane %d", part) << FM_VIEW_DETAIL << static_cast<EKTFMPart>(part);
    }
}

void tst_FileCommandsNewFolder::newFolderOpensItsEditorInTheShownView()
{
    RenamingPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"));
    QVERIFY(pane.Open(1));
    QFETCH(EKTFMViewMode, mode);
    QFETCH(EKTFMPart, part);
    pane.m_pPane->SetViewMode(mode);
    pane.Select(Words(QStringLiteral("a")));
    pane.m_pPane->SetLastMenuFrom(part);
    QVERIFY(pane.Do(FM_CMD_NEW_FOLDER));
    QCOMPARE(pane.Names(), QStringList({QStringLiteral("New Folder1"), QStringLiteral("a")}));
    QCOMPARE(pane.m_pPane->GetCurSelectedFileList(true),
             QStringList(pane.Path(QStringLiteral("New Folder1"))));
    QVERIFY(TypeName(pane.ShownList(), QStringLiteral("mine")));
    QTRY_COMPARE(pane.Names(), Words(QStringLiteral("a mine")));
}

void tst_FileCommandsNewFolder::newFolderTakesTheFirstFreeNumber()
{
    KTFM_NEEDS_SYMBOLIC_LINKS();
    CommandPane pane;
    pane.m_folder.Folder(QStringLiteral("shown/New Folder1"));
    pane.m_folder.File(QStringLiteral("shown/New Folder2"));
    pane.m_folder.Link(pane.m_folder.Path(QStringLiteral("gone")), QStringLiteral("shown/New Folder3"));
    pane.m_folder.Folder(QStringLiteral("shown/New Folder5"));
    QVERIFY(pane.Open(3));
    QVERIFY(pane.Do(FM_CMD_NEW_FOLDER));
    QVERIFY(QFileInfo(pane.Path(QStringLiteral("New Folder4"))).isDir());
    QCOMPARE(pane.Names().size(), 5);
}

void tst_FileCommandsNewFolder::newFolderMakesTheListTheLastPane()
{
    CommandPane pane;
    QVERIFY(pane.Open(0));
    pane.m_pPane->SetLastMenuFrom(FM_PART_TREE);
    QVERIFY(pane.Do(FM_CMD_NEW_FOLDER));
    QVERIFY(pane.Do(FM_CMD_COPY)); // which the folder tree would refuse
    QCOMPARE(ClipboardPaths(), QStringList(pane.Path(QStringLiteral("New Folder1"))));
}

void tst_FileCommandsNewFolder::newFolderWithoutAFolderIsRefused()
{
    CommandPane pane;
    const TestFolder current;
    QDir::setCurrent(current.Path());
    const bool made = pane.Do(FM_CMD_NEW_FOLDER);
    QDir::setCurrent(QDir::rootPath());
    QVERIFY(!made);
    QVERIFY(QDir(current.Path()).isEmpty());
}

void tst_FileCommandsNewFolder::newFolderThatCannotBeMadeEndsTheLoop()
{
    KTFM_SKIP_ON_WINE("a folder that is removed stays until nobody watches it");
    RenamingPane pane;
    QVERIFY(pane.Open(0));
    QVERIFY(QDir(pane.Path()).removeRecursively());
    QVERIFY(!pane.Do(FM_CMD_NEW_FOLDER));
    QVERIFY(!IsEditing(pane.Grid()));
    QVERIFY(!QFileInfo::exists(pane.Path()));
}

void tst_FileCommandsNewFolder::newFolderIsNotEditedWhereNothingIsRenamable()
{
    CommandPane pane;
    QVERIFY(pane.Open(0));
    QVERIFY(pane.Do(FM_CMD_NEW_FOLDER));
    QVERIFY(!IsEditing(pane.Grid()));
    QCOMPARE(pane.Names(), QStringList(QStringLiteral("New Folder1")));
}

void tst_FileCommandsNewFolder::numberedFolderCanBeMadeInTheTree()
{
    CommandPane pane;
    pane.m_folder.Folder(QStringLiteral("shown/Neu1"));
    QVERIFY(pane.Open(1));
    const QModelIndex parent = pane.m_pTreeModel->index(pane.Path());
    const QModelIndex made = NumberedFolder::Make(*pane.m_pTreeModel, parent, QStringLiteral("Neu"));
    QCOMPARE(pane.m_pTreeModel->filePath(made), pane.Path(QStringLiteral("Neu2")));
    QVERIFY(!NumberedFolder::Make(*pane.m_pTreeModel, QModelIndex(), QStringLiteral("Neu")).isValid());
    const QString tooLong(300, QLatin1Char('x'));
    QVERIFY(!NumberedFolder::Make(*pane.m_pTreeModel, parent, tooLong).isValid());
}

void tst_FileCommandsNewFolder::renameEditsTheCurrentItem_data()
{
    QTest::addColumn<EKTFMViewMode>("mode");
    QTest::newRow("grid") << FM_VIEW_ICON;
    QTest::newRow("details") << FM_VIEW_DETAIL;
}

void tst_FileCommandsNewFolder::renameEditsTheCurrentItem()
{
    RenamingPane pane;
    pane.m_folder.File(QStringLiteral("shown/a.txt"), "text");
    pane.m_folder.File(QStringLiteral("shown/b.txt"));
    QVERIFY(pane.Open(2));
    QFETCH(EKTFMViewMode, mode);
    pane.m_pPane->SetViewMode(mode);
    pane.ShownList()->setCurrentIndex(pane.Index(QStringLiteral("a.txt")));
    QVERIFY(pane.Do(FM_CMD_RENAME));
    QVERIFY(TypeName(pane.ShownList(), QStringLiteral("c")));
    QTRY_COMPARE(pane.Names(), Words(QStringLiteral("b.txt c.txt")));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/c.txt")), QByteArray("text"));
}

void tst_FileCommandsNewFolder::renameInTheFolderTree()
{
    RenamingPane pane;
    pane.m_folder.Folder(QStringLiteral("shown/docs"));
    QVERIFY(pane.Open(1));
    QTRY_COMPARE(pane.m_pTreeModel->rowCount(pane.m_pTreeModel->index(pane.Path())), 1);
    pane.TreeView()->setCurrentIndex(pane.m_pTreeModel->index(pane.Path(QStringLiteral("docs"))));
    pane.m_pPane->SetLastMenuFrom(FM_PART_TREE);
    QVERIFY(pane.Do(FM_CMD_RENAME));
    QVERIFY(TypeName(pane.TreeView(), QStringLiteral("papers")));
    QTRY_COMPARE(pane.Names(), Words(QStringLiteral("papers")));
}

void tst_FileCommandsNewFolder::renameOfNoPaneDoesNothing_data()
{
    QTest::addColumn<EKTFMPart>("part");
    QTest::addColumn<bool>("hasCurrent");
    QTest::newRow("no pane") << static_cast<EKTFMPart>(3) << true;
    QTest::newRow("alias tree without a current item") << FM_PART_ALIAS_TREE << true;
    QTest::newRow("list without a current item") << FM_PART_LIST << false;
}

void tst_FileCommandsNewFolder::renameOfNoPaneDoesNothing()
{
    RenamingPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"));
    QVERIFY(pane.Open(1));
    QFETCH(EKTFMPart, part);
    QFETCH(bool, hasCurrent);
    if (hasCurrent)
        pane.Grid()->setCurrentIndex(pane.Index(QStringLiteral("a")));
    else // A view that gets the focus makes its first item current, if it has one by then.
        pane.Grid()->selectionModel()->clearCurrentIndex();
    pane.m_pPane->SetLastMenuFrom(part);
    QVERIFY(pane.Do(FM_CMD_RENAME));
    for (const QAbstractItemView* view : {static_cast<QAbstractItemView*>(pane.Grid()), pane.ShownList(),
                                          static_cast<QAbstractItemView*>(pane.AliasView())})
        QVERIFY(!IsEditing(view));
}

void tst_FileCommandsNewFolder::renameInTheAliasTreeCollapsesAndUnwatches()
{
    RenamingPane pane(FM_MODE_ALIAS_TREE_AND_LIST);
    pane.m_folder.Folder(QStringLiteral("top/docs/in"));
    const QString top = pane.m_folder.Path(QStringLiteral("top"));
    pane.m_pPane->PopulateAliasTable(QStringLiteral("Top\t") + top + QStringLiteral("\t1\t32\t\t"));
    const QModelIndex parent = pane.m_pAliasModel->index(0, 0);
    const QPersistentModelIndex docs = pane.m_pAliasModel->index(0, 0, parent);
    pane.AliasView()->expand(docs);
    pane.AliasView()->setCurrentIndex(docs);
    const auto* watcher = pane.m_pPane->findChild<QFileSystemWatcher*>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(watcher->directories().contains(top + QStringLiteral("/docs")));
    pane.m_pPane->SetLastMenuFrom(FM_PART_ALIAS_TREE);
    QVERIFY(pane.Do(FM_CMD_RENAME));
    QVERIFY(!pane.AliasView()->isExpanded(docs));
    QVERIFY(!watcher->directories().contains(top + QStringLiteral("/docs")));
    QVERIFY(TypeName(pane.AliasView(), QStringLiteral("papers")));
    QTRY_COMPARE(pane.Names(QStringLiteral("top")), Words(QStringLiteral("papers")));
}

void tst_FileCommandsNewFolder::renameOfAFixedAliasLeavesItWatched()
{
    CommandPane pane(FM_MODE_ALIAS_TREE_AND_LIST);
    pane.m_folder.Folder(QStringLiteral("top/docs"));
    const QString top = pane.m_folder.Path(QStringLiteral("top"));
    pane.m_pPane->PopulateAliasTable(QStringLiteral("Top\t") + top + QStringLiteral("\t1\t0\t\t"));
    pane.AliasView()->setCurrentIndex(pane.m_pAliasModel->index(0, 0));
    pane.m_pPane->SetLastMenuFrom(FM_PART_ALIAS_TREE);
    QVERIFY(pane.Do(FM_CMD_RENAME));
    const auto* watcher = pane.m_pPane->findChild<QFileSystemWatcher*>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(watcher->directories().contains(top));
    QVERIFY(pane.AliasView()->isExpanded(pane.m_pAliasModel->index(0, 0)));
}

void tst_FileCommandsNewFolder::refusedRenameIsReported()
{
    RenamingPane pane;
    pane.m_folder.File(QStringLiteral("shown/a.txt"));
    pane.m_folder.File(QStringLiteral("shown/b.txt"));
    QVERIFY(pane.Open(2));
    QSignalSpy errors(pane.m_pPane, &CKTFileManager::OnError);
    pane.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    pane.ShownList()->setCurrentIndex(pane.Index(QStringLiteral("a.txt")));
    QVERIFY(pane.Do(FM_CMD_RENAME));
    QVERIFY(TypeName(pane.ShownList(), QStringLiteral("b")));
    QTRY_COMPARE(errors.size(), 1);
    QCOMPARE(errors.first(), QVariantList({2, 0, 0}));
}

KTFM_TEST_MAIN(tst_FileCommandsNewFolder)
#include "tst_filecommands_newfolder.moc"
