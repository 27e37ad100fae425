#include "tests/widget/CommandPane.h"

#include "tests/support/TestMain.h"
#include "tests/support/TestPlatform.h"

#include <QFileSystemWatcher>

Q_DECLARE_METATYPE(EKTFMPart)
Q_DECLARE_METATYPE(EKTFMViewMode)

class tst_FileCommandsDelete : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deletesTheListsSelection_data();
    void deletesTheListsSelection();
    void nothingSelectedDeletesNothing_data();
    void nothingSelectedDeletesNothing();
    void linksAreDeletedAsThemselves();
    void linkedFolderIsDeletedAsTheLinkAtOnce();
    void openedFolderIsNotDeletedByItsOldSelection();
    void thousandsOfItemsAreDeleted();
    void aliasFolderIsDeletedAndItsParentShown();
    void aliasWithoutAParentIsDeleted();
    void aliasWithoutAFolderDeletesNothing();
    void linkedAliasFolderIsDeletedAsTheLink();
    void deletedFoldersAreNoLongerWatched();
    void movedFolderLeavesTheAliasTree();
    void folderThatStaysKeepsItsAlias();
};

void tst_FileCommandsDelete::deletesTheListsSelection_data()
{
    QTest::addColumn<EKTFMPart>("part");
    QTest::addColumn<EKTFMViewMode>("mode");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("left");
    for (const EKTFMPart part : {FM_PART_TREE, FM_PART_LIST}) {
        for (const EKTFMViewMode mode : {FM_VIEW_ICON, FM_VIEW_DETAIL}) {
            QTest::addRow("pane %d, view %d, one", part, mode) << part << mode << "b"
                                                               << "a c docs";
            QTest::addRow("pane %d, view %d, many", part, mode) << part << mode << "c docs"
                                                                << "a b";
        }
    }
}

void tst_FileCommandsDelete::deletesTheListsSelection()
{
    CommandPane pane;
    for (const char* name : {"shown/a", "shown/b", "shown/c", "shown/docs/in/d", "shown/docs/.hidden"})
        pane.m_folder.File(QLatin1String(name));
    QVERIFY(pane.Open(4));
    QFETCH(EKTFMPart, part);
    QFETCH(EKTFMViewMode, mode);
    QFETCH(QString, selected);
    QFETCH(QString, left);
    pane.m_pPane->SetViewMode(mode);
    pane.Select(Words(selected));
    pane.m_pPane->SetLastMenuFrom(part);
    QVERIFY(pane.Do(FM_CMD_DELETE));
    QCOMPARE(pane.Names(), Words(left));
    QVERIFY(pane.Lists(Words(left).size()));
}

void tst_FileCommandsDelete::nothingSelectedDeletesNothing_data()
{
    QTest::addColumn<EKTFMPart>("part");
    QTest::addColumn<bool>("selects");
    QTest::newRow("list") << FM_PART_LIST << false;
    QTest::newRow("folder tree") << FM_PART_TREE << false;
    QTest::newRow("alias tree, list selected") << FM_PART_ALIAS_TREE << true;
    QTest::newRow("no pane, list selected") << static_cast<EKTFMPart>(3) << true;
}

void tst_FileCommandsDelete::nothingSelectedDeletesNothing()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"));
    QVERIFY(pane.Open(1));
    QFETCH(EKTFMPart, part);
    QFETCH(bool, selects);
    if (selects)
        pane.Select(Words(QStringLiteral("a")));
    const TestFolder current;
    current.File(QStringLiteral("bystander"));
    QDir::setCurrent(current.Path());
    pane.m_pPane->SetLastMenuFrom(part);
    const bool done = pane.Do(FM_CMD_DELETE);
    QDir::setCurrent(QDir::rootPath());
    QVERIFY(done);
    QCOMPARE(pane.Names(), Words(QStringLiteral("a")));
    QVERIFY(QFileInfo::exists(current.Path(QStringLiteral("bystander"))));
}

void tst_FileCommandsDelete::linksAreDeletedAsThemselves()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("kept/file"), "kept");
    pane.m_folder.Link(pane.m_folder.Path(QStringLiteral("kept")), QStringLiteral("shown/folder"));
    pane.m_folder.Link(pane.m_folder.Path(QStringLiteral("kept/file")), QStringLiteral("shown/file"));
    pane.m_folder.Folder(QStringLiteral("shown/docs"));
    pane.m_folder.Link(pane.m_folder.Path(QStringLiteral("kept")), QStringLiteral("shown/docs/inner"));
    QVERIFY(pane.Open(3));
    QVERIFY(pane.Do(FM_CMD_SELECT_ALL));
    QVERIFY(pane.Do(FM_CMD_DELETE));
    QCOMPARE(pane.Names(), QStringList());
    QCOMPARE(pane.m_folder.Read(QStringLiteral("kept/file")), QByteArray("kept"));
}

void tst_FileCommandsDelete::linkedFolderIsDeletedAsTheLinkAtOnce()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("kept/file"), "kept");
    QVERIFY(pane.Open(0));
    pane.m_folder.Link(pane.m_folder.Path(QStringLiteral("kept")), QStringLiteral("shown/link"));
    QVERIFY(pane.m_pListModel->index(pane.Path(QStringLiteral("link"))).isValid()); // not gathered yet
    pane.Select(Words(QStringLiteral("link")));
    QVERIFY(pane.Do(FM_CMD_DELETE));
    QCOMPARE(pane.Names(), QStringList());
    QCOMPARE(pane.m_folder.Read(QStringLiteral("kept/file")), QByteArray("kept"));
}

void tst_FileCommandsDelete::openedFolderIsNotDeletedByItsOldSelection()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/docs/a"));
    QVERIFY(pane.Open(1));
    const QRect item = pane.Grid()->visualRect(pane.Index(QStringLiteral("docs")));
    QTest::mouseClick(pane.Grid()->viewport(), Qt::LeftButton, Qt::NoModifier, item.center());
    QTest::mouseDClick(pane.Grid()->viewport(), Qt::LeftButton, Qt::NoModifier, item.center());
    QTRY_COMPARE(pane.m_pListModel->rootPath(), pane.Path(QStringLiteral("docs")));
    QVERIFY(pane.Do(FM_CMD_DELETE));
    QCOMPARE(pane.Names(QStringLiteral("shown/docs")), Words(QStringLiteral("a")));
}

void tst_FileCommandsDelete::thousandsOfItemsAreDeleted()
{
    CommandPane pane;
    const int count = 3000;
    for (int i = 0; i < count; ++i)
        pane.m_folder.File(QStringLiteral("shown/%1").arg(i));
    QVERIFY(pane.Open(count));
    QVERIFY(pane.Do(FM_CMD_SELECT_ALL));
    QVERIFY(pane.Do(FM_CMD_DELETE));
    QCOMPARE(pane.Names(), QStringList());
    QVERIFY(pane.Lists(0));
}

void tst_FileCommandsDelete::aliasFolderIsDeletedAndItsParentShown()
{
    CommandPane pane(FM_MODE_ALIAS_TREE_AND_LIST);
    pane.m_folder.File(QStringLiteral("top/docs/in/a"));
    pane.m_folder.File(QStringLiteral("top/b"));
    const QString top = pane.m_folder.Path(QStringLiteral("top"));
    QVERIFY(pane.m_pPane->PopulateAliasTable(QStringLiteral("Top\t") + top + QStringLiteral("\t1\t32\t\t")));
    const QPersistentModelIndex parent = pane.m_pAliasModel->index(0, 0);
    pane.AliasView()->setCurrentIndex(pane.m_pAliasModel->index(0, 0, parent));
    QCOMPARE(pane.m_pPane->GetCurSelectedFolder(FM_PART_ALIAS_TREE), top + QStringLiteral("/docs"));
    pane.m_pPane->SetLastMenuFrom(FM_PART_ALIAS_TREE);
    QVERIFY(pane.Do(FM_CMD_DELETE));
    QCOMPARE(pane.Names(QStringLiteral("top")), Words(QStringLiteral("b")));
    QCOMPARE(QModelIndex(pane.m_pPane->GetCurSelectedAliasIndex()), QModelIndex(parent));
    QVERIFY(pane.AliasView()->isExpanded(parent));
    QCOMPARE(pane.m_pListModel->rootPath(), top);
    QTRY_COMPARE(pane.m_pAliasModel->rowCount(parent), 0); // the watch on the parent sees to the row
}

void tst_FileCommandsDelete::aliasWithoutAParentIsDeleted()
{
    KTFM_SKIP_ON_WINE("a folder that is removed stays until nobody watches it");
    CommandPane pane(FM_MODE_ALIAS_TREE_AND_LIST);
    pane.m_folder.File(QStringLiteral("top/a"));
    pane.m_pPane->PopulateAliasTable(QStringLiteral("Top\t") + pane.m_folder.Path(QStringLiteral("top")) +
                                     QStringLiteral("/\t1\t32\t\t"));
    pane.AliasView()->setCurrentIndex(pane.m_pAliasModel->index(0, 0));
    pane.m_pPane->SetLastMenuFrom(FM_PART_ALIAS_TREE);
    QVERIFY(pane.Do(FM_CMD_DELETE));
    QCOMPARE(pane.Names(QString()), Words(QStringLiteral("shown")));
    QCOMPARE(pane.m_pAliasModel->rowCount(), 1); // the category itself stays
}

void tst_FileCommandsDelete::aliasWithoutAFolderDeletesNothing()
{
    CommandPane pane(FM_MODE_ALIAS_TREE_AND_LIST);
    pane.m_pPane->PopulateAliasTable(QStringLiteral("Category\t\t0\t0\t\t\n Inner\t\t0\t0\t\t"));
    const QModelIndex category = pane.m_pAliasModel->index(0, 0);
    const TestFolder current;
    current.File(QStringLiteral("bystander"));
    QDir::setCurrent(current.Path());
    pane.AliasView()->setCurrentIndex(pane.m_pAliasModel->index(0, 0, category));
    pane.m_pPane->SetLastMenuFrom(FM_PART_ALIAS_TREE);
    const bool done = pane.Do(FM_CMD_DELETE);
    QDir::setCurrent(QDir::rootPath());
    QVERIFY(done);
    QVERIFY(QFileInfo::exists(current.Path(QStringLiteral("bystander"))));
    QCOMPARE(pane.m_pPane->GetCurSelectedAliasIndex(), category);
}

void tst_FileCommandsDelete::linkedAliasFolderIsDeletedAsTheLink()
{
    CommandPane pane(FM_MODE_ALIAS_TREE_AND_LIST);
    pane.m_folder.File(QStringLiteral("kept/file"), "kept");
    const QString link =
        pane.m_folder.Link(pane.m_folder.Path(QStringLiteral("kept")), QStringLiteral("link"));
    pane.m_pPane->PopulateAliasTable(QStringLiteral("Link\t") + link + QStringLiteral("/\t0\t0\t\t"));
    pane.AliasView()->setCurrentIndex(pane.m_pAliasModel->index(0, 0));
    pane.m_pPane->SetLastMenuFrom(FM_PART_ALIAS_TREE);
    QVERIFY(pane.Do(FM_CMD_DELETE));
    QVERIFY(!QFileInfo(link).isSymLink());
    QCOMPARE(pane.m_folder.Read(QStringLiteral("kept/file")), QByteArray("kept"));
}

void tst_FileCommandsDelete::deletedFoldersAreNoLongerWatched()
{
    CommandPane pane;
    pane.m_folder.Folder(QStringLiteral("shown/docs/in"));
    QVERIFY(pane.m_pPane->PopulateAliasTable(QStringLiteral("Shown\t") + pane.Path() +
                                             QStringLiteral("\t1\t32\t\t")));
    const auto* watcher = pane.m_pPane->findChild<QFileSystemWatcher*>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(watcher->directories().contains(pane.Path(QStringLiteral("docs"))));
    QVERIFY(pane.Open(1));
    pane.Select(Words(QStringLiteral("docs")));
    pane.m_pPane->SetLastMenuFrom(FM_PART_LIST);
    QVERIFY(pane.Do(FM_CMD_DELETE));
    QVERIFY(!watcher->directories().contains(pane.Path(QStringLiteral("docs"))));
    QVERIFY(watcher->directories().contains(pane.Path()));
}

void tst_FileCommandsDelete::movedFolderLeavesTheAliasTree()
{
    KTFM_SKIP_ON_WINE("a folder that is removed stays until nobody watches it");
    CommandPane pane;
    pane.m_folder.Folder(QStringLiteral("out/docs/in"));
    pane.m_folder.Folder(QStringLiteral("out/rest"));
    const QString out = pane.m_folder.Path(QStringLiteral("out"));
    QVERIFY(pane.m_pPane->PopulateAliasTable(QStringLiteral("Out\t") + out + QStringLiteral("\t1\t32\t\t")));
    const QPersistentModelIndex parent = pane.m_pAliasModel->index(0, 0);
    QCOMPARE(pane.m_pAliasModel->rowCount(parent), 2);
    QVERIFY(pane.Open(0));
    pane.m_pPane->SetLastMenuFrom(FM_PART_LIST);
    QVERIFY(pane.Do(FM_CMD_CUT));
    OfferPaths({out + QStringLiteral("/docs")});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.m_pAliasModel->rowCount(parent), 1);
    QCOMPARE(pane.m_pAliasModel->GetAliasLabel(pane.m_pAliasModel->index(0, 0, parent)),
             QStringLiteral("rest"));
    QCOMPARE(pane.Names(QStringLiteral("out")), Words(QStringLiteral("rest")));
}

void tst_FileCommandsDelete::folderThatStaysKeepsItsAlias()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("out/docs/a"), "new");
    pane.m_folder.File(QStringLiteral("shown/docs/a"), "old");
    const QString out = pane.m_folder.Path(QStringLiteral("out"));
    QVERIFY(pane.m_pPane->PopulateAliasTable(QStringLiteral("Out\t") + out + QStringLiteral("\t1\t32\t\t")));
    const QPersistentModelIndex parent = pane.m_pAliasModel->index(0, 0);
    QVERIFY(pane.Open(1));
    pane.m_pPane->SetLastMenuFrom(FM_PART_LIST);
    QVERIFY(pane.Do(FM_CMD_CUT));
    OfferPaths({out + QStringLiteral("/docs")});
    const PromptAnswers answers({QMessageBox::No});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.m_pAliasModel->rowCount(parent), 1);
    QCOMPARE(pane.Names(QStringLiteral("out/docs")), Words(QStringLiteral("a")));
}

KTFM_TEST_MAIN(tst_FileCommandsDelete)
#include "tst_filecommands_delete.moc"
