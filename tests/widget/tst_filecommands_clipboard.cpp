#include "tests/widget/CommandPane.h"

#include "tests/support/TestMain.h"

#include <QSignalSpy>

Q_DECLARE_METATYPE(EKTFMPart)
Q_DECLARE_METATYPE(EKTFMViewMode)

class tst_FileCommandsClipboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unknownCommandsDoNothing();
    void copyPutsUrlsAndText();
    void copyOfOneItemHasNoLineFeed();
    void copyWithNothingSelectedLeavesTheClipboard_data();
    void copyWithNothingSelectedLeavesTheClipboard();
    void copyOfAWholeRowInTheDetailsCountsOnce();
    void copyOfCellsInTheDetailsCounts();
    void copyOfALinkedFolderNamesTheLink();
    void copyOfAnAliasPutsItsFolder();
    void cutPutsUrlsAndClearsTheSelections();
    void cutLeavesTheSelectionClipboardAlone();
    void cutWithNothingSelectedClearsTheClipboard_data();
    void cutWithNothingSelectedClearsTheClipboard();
    void selectionCountsAsEmptyBeforeAFolderIsSet();
    void pasteableWhenTheClipboardHasUrls();
    void thousandsOfItemsAreCopied();
    void selectAllSelectsEveryItemWhicheverPane_data();
    void selectAllSelectsEveryItemWhicheverPane();
};

void tst_FileCommandsClipboard::unknownCommandsDoNothing()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"));
    QVERIFY(pane.Open(1));
    pane.Select(Words(QStringLiteral("a")));
    QApplication::clipboard()->setText(QStringLiteral("kept"));
    for (const int command : {-1, 7, 1000})
        QVERIFY(!pane.Do(static_cast<EKTFMCommand>(command)));
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("kept"));
    QCOMPARE(pane.Names(), Words(QStringLiteral("a")));
}

void tst_FileCommandsClipboard::copyPutsUrlsAndText()
{
    CommandPane pane;
    for (const char* name : {"shown/a.txt", "shown/b.txt", "shown/c.txt"})
        pane.m_folder.File(QLatin1String(name));
    QVERIFY(pane.Open(3));
    pane.Select(Words(QStringLiteral("c.txt a.txt")));
    QVERIFY(pane.Do(FM_CMD_COPY));
    const QStringList paths = {pane.Path(QStringLiteral("c.txt")), pane.Path(QStringLiteral("a.txt"))};
    QCOMPARE(ClipboardPaths(), paths);
    if (QApplication::clipboard()->supportsSelection()) {
        QCOMPARE(QApplication::clipboard()->text(QClipboard::Selection),
                 paths.at(0) + QLatin1Char('\n') + paths.at(1));
    }
    QCOMPARE(pane.Grid()->selectionModel()->selectedIndexes().size(), 2);
}

void tst_FileCommandsClipboard::copyOfOneItemHasNoLineFeed()
{
    if (!QApplication::clipboard()->supportsSelection())
        QSKIP("this platform has no selection clipboard");
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a.txt"));
    QVERIFY(pane.Open(1));
    pane.Select(Words(QStringLiteral("a.txt")));
    QVERIFY(pane.Do(FM_CMD_COPY));
    QCOMPARE(QApplication::clipboard()->text(QClipboard::Selection), pane.Path(QStringLiteral("a.txt")));
}

void tst_FileCommandsClipboard::copyWithNothingSelectedLeavesTheClipboard_data()
{
    QTest::addColumn<EKTFMPart>("part");
    QTest::addColumn<bool>("selects");
    QTest::newRow("list, nothing selected") << FM_PART_LIST << false;
    QTest::newRow("alias tree, nothing selected") << FM_PART_ALIAS_TREE << false;
    QTest::newRow("folder tree, list selected") << FM_PART_TREE << true;
    QTest::newRow("no pane, list selected") << static_cast<EKTFMPart>(3) << true;
}

void tst_FileCommandsClipboard::copyWithNothingSelectedLeavesTheClipboard()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"));
    QVERIFY(pane.Open(1));
    QFETCH(EKTFMPart, part);
    QFETCH(bool, selects);
    if (selects)
        pane.Select(Words(QStringLiteral("a")));
    pane.m_pPane->SetLastMenuFrom(part);
    QApplication::clipboard()->setText(QStringLiteral("kept"));
    QSignalSpy changes(QApplication::clipboard(), &QClipboard::dataChanged);
    QVERIFY(!pane.Do(FM_CMD_COPY));
    QCOMPARE(changes.size(), 0);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("kept"));
}

void tst_FileCommandsClipboard::copyOfAWholeRowInTheDetailsCountsOnce()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"));
    pane.m_folder.File(QStringLiteral("shown/b"));
    QVERIFY(pane.Open(2));
    pane.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    pane.Details()->selectionModel()->select(pane.Index(QStringLiteral("b")),
                                             QItemSelectionModel::Select | QItemSelectionModel::Rows);
    QVERIFY(pane.Do(FM_CMD_COPY));
    QCOMPARE(ClipboardPaths(), QStringList(pane.Path(QStringLiteral("b"))));
}

void tst_FileCommandsClipboard::copyOfCellsInTheDetailsCounts()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"));
    QVERIFY(pane.Open(1));
    pane.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    const QModelIndex index = pane.Index(QStringLiteral("a"));
    for (const int column : {1, 3})
        pane.Details()->selectionModel()->select(index.sibling(index.row(), column),
                                                 QItemSelectionModel::Select);
    QVERIFY(pane.Do(FM_CMD_COPY));
    QCOMPARE(ClipboardPaths(), QStringList(pane.Path(QStringLiteral("a"))));
}

void tst_FileCommandsClipboard::copyOfALinkedFolderNamesTheLink()
{
    CommandPane pane;
    pane.m_folder.Folder(QStringLiteral("out"));
    pane.m_folder.Link(pane.m_folder.Path(QStringLiteral("out")), QStringLiteral("shown/link"));
    QVERIFY(pane.Open(1));
    pane.Select(Words(QStringLiteral("link")));
    for (const EKTFMCommand command : {FM_CMD_COPY, FM_CMD_CUT}) {
        pane.Grid()->selectAll();
        QVERIFY(pane.Do(command));
        QCOMPARE(ClipboardPaths(), QStringList(pane.Path(QStringLiteral("link"))));
    }
}

void tst_FileCommandsClipboard::copyOfAnAliasPutsItsFolder()
{
    CommandPane pane(FM_MODE_ALIAS_TREE_AND_LIST);
    pane.m_pAliasModel->PopulateAliasTree(QStringLiteral("Shown\t") + pane.Path() +
                                          QStringLiteral("\t1\t32\t\t"));
    const QModelIndex item = pane.m_pAliasModel->index(0, 0);
    pane.AliasView()->selectionModel()->select(item, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    pane.m_pPane->SetLastMenuFrom(FM_PART_ALIAS_TREE);
    QVERIFY(pane.Do(FM_CMD_COPY));
    QCOMPARE(ClipboardPaths(), QStringList(pane.Path()));
    if (QApplication::clipboard()->supportsSelection())
        QCOMPARE(QApplication::clipboard()->text(QClipboard::Selection), pane.Path());
}

void tst_FileCommandsClipboard::cutPutsUrlsAndClearsTheSelections()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"));
    pane.m_folder.File(QStringLiteral("shown/b"));
    QVERIFY(pane.Open(2));
    pane.m_pAliasModel->PopulateAliasTree(QStringLiteral("Shown\t") + pane.Path() +
                                          QStringLiteral("\t1\t32\t\t"));
    pane.AliasView()->setCurrentIndex(pane.m_pAliasModel->index(0, 0));
    pane.Select(Words(QStringLiteral("b a")));
    pane.m_pPane->SetLastMenuFrom(FM_PART_LIST);
    QVERIFY(pane.Do(FM_CMD_CUT));
    QCOMPARE(ClipboardPaths(), QStringList({pane.Path(QStringLiteral("b")), pane.Path(QStringLiteral("a"))}));
    QVERIFY(!pane.Grid()->selectionModel()->hasSelection());
    QVERIFY(!pane.AliasView()->selectionModel()->hasSelection());
    QVERIFY(!pane.m_pPane->GetCurSelectedAliasIndex().isValid());
    QCOMPARE(pane.Names(), Words(QStringLiteral("a b")));
}

void tst_FileCommandsClipboard::cutLeavesTheSelectionClipboardAlone()
{
    if (!QApplication::clipboard()->supportsSelection())
        QSKIP("this platform has no selection clipboard");
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"));
    QVERIFY(pane.Open(1));
    QApplication::clipboard()->setText(QStringLiteral("kept"), QClipboard::Selection);
    pane.Select(Words(QStringLiteral("a")));
    QVERIFY(pane.Do(FM_CMD_CUT));
    QCOMPARE(QApplication::clipboard()->text(QClipboard::Selection), QStringLiteral("kept"));
}

void tst_FileCommandsClipboard::cutWithNothingSelectedClearsTheClipboard_data()
{
    QTest::addColumn<EKTFMPart>("part");
    QTest::addColumn<bool>("selects");
    QTest::newRow("list") << FM_PART_LIST << false;
    QTest::newRow("alias tree") << FM_PART_ALIAS_TREE << false;
    QTest::newRow("folder tree, list selected") << FM_PART_TREE << true;
    QTest::newRow("no pane, list selected") << static_cast<EKTFMPart>(0) << true;
}

void tst_FileCommandsClipboard::cutWithNothingSelectedClearsTheClipboard()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"));
    const QString later = pane.m_folder.File(QStringLiteral("out/later"));
    QVERIFY(pane.Open(1));
    QFETCH(EKTFMPart, part);
    QFETCH(bool, selects);
    if (selects)
        pane.Select(Words(QStringLiteral("a")));
    OfferPaths({pane.Path(QStringLiteral("a"))});
    pane.m_pPane->SetLastMenuFrom(part);
    QVERIFY(pane.Do(FM_CMD_CUT));
    QCOMPARE(ClipboardPaths(), QStringList());
    QVERIFY(!pane.Grid()->selectionModel()->hasSelection());
    // It sets the cut flag all the same: the next paste moves.
    OfferPaths({later});
    pane.m_pPane->SetLastMenuFrom(FM_PART_LIST);
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.Names(), Words(QStringLiteral("a later")));
    QVERIFY(!QFileInfo::exists(later));
}

void tst_FileCommandsClipboard::selectionCountsAsEmptyBeforeAFolderIsSet()
{
    CommandPane pane;
    QTRY_VERIFY(pane.Grid()->model()->rowCount() > 0); // the root itself is all there is
    QVERIFY(pane.Do(FM_CMD_SELECT_ALL));
    pane.Grid()->selectionModel()->select(pane.Grid()->model()->index(0, 0), QItemSelectionModel::Select);
    QVERIFY(!pane.Do(FM_CMD_COPY));
    QVERIFY(pane.Do(FM_CMD_CUT));
    QCOMPARE(ClipboardPaths(), QStringList());
}

void tst_FileCommandsClipboard::pasteableWhenTheClipboardHasUrls()
{
    CommandPane pane;
    QVERIFY(!pane.m_pPane->IsPasteable());
    QApplication::clipboard()->setText(QStringLiteral("/text"));
    QVERIFY(!pane.m_pPane->IsPasteable());
    OfferPaths({QStringLiteral("/somewhere")});
    QVERIFY(pane.m_pPane->IsPasteable());
    QApplication::clipboard()->clear();
    QVERIFY(!pane.m_pPane->IsPasteable());
}

void tst_FileCommandsClipboard::thousandsOfItemsAreCopied()
{
    CommandPane pane;
    const int count = 3000;
    for (int i = 0; i < count; ++i)
        pane.m_folder.File(QStringLiteral("shown/%1").arg(i));
    QVERIFY(pane.Open(count));
    QVERIFY(pane.Do(FM_CMD_SELECT_ALL));
    QVERIFY(pane.Do(FM_CMD_COPY));
    QStringList paths = ClipboardPaths();
    QCOMPARE(paths.size(), count);
    QCOMPARE(paths.removeDuplicates(), 0);
}

void tst_FileCommandsClipboard::selectAllSelectsEveryItemWhicheverPane_data()
{
    QTest::addColumn<EKTFMPart>("part");
    QTest::addColumn<EKTFMViewMode>("mode");
    for (const int part : {1, 2, 3, 4}) {
        QTest::addRow("pane %d, grid", part) << static_cast<EKTFMPart>(part) << FM_VIEW_ICON;
        QTest::addRow("pane %d, details", part) << static_cast<EKTFMPart>(part) << FM_VIEW_DETAIL;
    }
}

void tst_FileCommandsClipboard::selectAllSelectsEveryItemWhicheverPane()
{
    CommandPane pane;
    for (const char* name : {"shown/a", "shown/b", "shown/c/d"})
        pane.m_folder.File(QLatin1String(name));
    QVERIFY(pane.Open(3));
    QFETCH(EKTFMPart, part);
    QFETCH(EKTFMViewMode, mode);
    pane.m_pPane->SetViewMode(mode);
    pane.m_pPane->SetLastMenuFrom(part);
    QVERIFY(pane.Do(FM_CMD_SELECT_ALL));
    QStringList paths = pane.m_pPane->GetCurSelectedFileList(true);
    paths.sort();
    QCOMPARE(paths, QStringList({pane.Path(QStringLiteral("a")), pane.Path(QStringLiteral("b")),
                                 pane.Path(QStringLiteral("c"))}));
}

KTFM_TEST_MAIN(tst_FileCommandsClipboard)
#include "tst_filecommands_clipboard.moc"
