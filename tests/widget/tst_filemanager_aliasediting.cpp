#include "tests/support/TestMain.h"
#include "tests/support/TestPlatform.h"
#include "tests/widget/AliasPane.h"

#include <KTFileManager2QU/CKTFMListModel.h>

#include <QDir>
#include <QFileInfo>
#include <QListView>
#include <QLoggingCategory>
#include <QSignalSpy>

namespace {

const QStringList Top{QStringLiteral("Top")};

QStringList TopAnd(const QString& label)
{
    return {Top.first(), label};
}

/** A shown pane whose items may be renamed, on Top with A/a/deep and B/b. */
class EditedPane : public AliasPane
{
public:
    EditedPane()
    {
        m_folder.Folder(QStringLiteral("Top/A/a/deep"));
        m_folder.Folder(QStringLiteral("Top/B/b"));
        Model()->SetRenamable(true);
    }

    bool Start() { return LoadTop(QStringLiteral("Top")) && ShowActive(); }

    /** Shows the window with the focus, which a server without a window manager gives to none by itself. */
    bool ShowActive()
    {
        const bool shown = Show();
        m_window.activateWindow();
        return shown && QTest::qWaitForWindowActive(&m_window);
    }

    /**
     * Double-clicks an item, so that its editor opens, and waits until its folder is listed: while that
     * lasts, some systems let nobody rename it. @return whether the editor is open
     */
    bool Edit(const QStringList& labels)
    {
        DoubleClick(AliasTree(), Item(labels));
        return Editor() && QTest::qWaitFor([this] { return Names().size() == EntryCount(CurrentFolder()); });
    }

    /** Types a name into the open editor and ends it with a key; returns when the editor has gone. */
    bool Type(const QString& name, Qt::Key key)
    {
        Editor()->selectAll();
        QTest::keyClicks(Editor(), name);
        QTest::keyClick(Editor(), key);
        return QTest::qWaitFor([this] { return !Editor(); });
    }

    /** @return how many entries of a folder the list shows; none of no folder */
    static int EntryCount(const QString& folder)
    {
        const QDir::Filters shown = QDir::Files | QDir::AllDirs | QDir::NoDotAndDotDot;
        return folder.isEmpty() ? 0 : QDir(folder).entryList(shown).size();
    }

    QString ListedFolder() const { return m_pPane->GetListModel()->rootPath(); }

    QString CurrentFolder() const { return m_pPane->GetCurSelectedFolder(FM_PART_ALIAS_TREE); }
};

} // namespace

/** Editing names in the alias tree of the pane, and what it does to the branch and its watches. */
class tst_FileManagerAliasEditing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void doubleClickEndsTheWatchesOfTheBranch();
    void doubleClickOnAnOpenItemEndsTheWatchesBelow();
    void itemThatOpensNoEditorIsWatchedAgain();
    void folderThatAnotherItemShowsStaysWatched();
    void keysOfTheTreeOpenNoEditor();

    void returnRenamesTheFolder();
    void returnRenamesAnOpenBranch();
    void childrenOfARenamedFolderMapBelowItsNewName();
    void escapeKeepsTheItem();
    void escapeKeepsAnOpenBranchOpen();
    void losingTheFocusRenames();
    void tabRenamesTheItemAndEditsNoOther();
    void blanksAroundANameAreNotKept();
    void refusedNameIsReportedAndKeepsTheItem_data();
    void refusedNameIsReportedAndKeepsTheItem();
    void closedEditorShowsTheFolderInTheList();
    void closedEditorRemovesWhatVanishedMeanwhile();

    void topLevelItemKeepsItsRow_data();
    void topLevelItemKeepsItsRow();
    void renamedTopLevelItemIsWatchedUnderItsNewName();
    void itemBelowAHeadingKeepsItsRow();
    void childrenThatNoScanFindsAreKept();
    void editorOpenedByTheHostIsLikeAnyOther();
    void folderRemovedDuringTheEditIsGoneAfterIt();
    void renameCommandEditsTheCurrentItem();
    void renameCommandEditsTheLabelWhicheverCellIsCurrent();
    void doubleClickMakesTheAliasTreeThePaneOfCommands();
    void paneMayDieWithAnOpenEditor();
};

void tst_FileManagerAliasEditing::initTestCase()
{
    QLoggingCategory::setFilterRules(QStringLiteral("ktfm.aliastree.debug=false"));
}

void tst_FileManagerAliasEditing::doubleClickEndsTheWatchesOfTheBranch()
{
    EditedPane pane;
    QVERIFY(pane.Start());
    QCOMPARE(pane.Watched(),
             pane.Paths({QStringLiteral("Top"), QStringLiteral("Top/A"), QStringLiteral("Top/B")}));
    QVERIFY(pane.Edit(TopAnd(QStringLiteral("A"))));
    QCOMPARE(pane.Watched(), pane.Paths({QStringLiteral("Top"), QStringLiteral("Top/B")}));
}

void tst_FileManagerAliasEditing::doubleClickOnAnOpenItemEndsTheWatchesBelow()
{
    EditedPane pane;
    QVERIFY(pane.Start());
    pane.AliasTree()->expand(pane.Item(TopAnd(QStringLiteral("A"))));
    QVERIFY(pane.Watched().contains(pane.m_folder.Path(QStringLiteral("Top/A/a"))));
    QVERIFY(pane.Edit(TopAnd(QStringLiteral("A"))));
    QCOMPARE(pane.Watched(), pane.Paths({QStringLiteral("Top"), QStringLiteral("Top/B")}));
    QVERIFY(pane.Type(QString(), Qt::Key_Escape));
    QVERIFY(pane.Edit(Top));
    QCOMPARE(pane.Watched(), QStringList());
}

void tst_FileManagerAliasEditing::itemThatOpensNoEditorIsWatchedAgain()
{
    EditedPane pane;
    pane.Model()->SetRenamable(false);
    QVERIFY(pane.Start());
    QVERIFY(!pane.Edit(TopAnd(QStringLiteral("A"))));
    QTRY_VERIFY(pane.Watched().contains(pane.m_folder.Path(QStringLiteral("Top/A"))));
    // The double click has opened the branch instead.
    QTRY_VERIFY(pane.IsOpen(TopAnd(QStringLiteral("A"))));
    QCOMPARE(pane.Watched(), pane.Paths({QStringLiteral("Top"), QStringLiteral("Top/A"),
                                         QStringLiteral("Top/A/a"), QStringLiteral("Top/B")}));
    pane.m_pPane->OnAliasTreeDblClicked(pane.Item(TopAnd(QStringLiteral("A"))));
    QCOMPARE(pane.Watched(), pane.Paths({QStringLiteral("Top"), QStringLiteral("Top/B")}));
}

void tst_FileManagerAliasEditing::folderThatAnotherItemShowsStaysWatched()
{
    EditedPane pane;
    const QString folder = pane.m_folder.Path(QStringLiteral("Top/A"));
    QVERIFY(pane.m_pPane->PopulateAliasTable(
        AliasLine(QStringLiteral("Top"), pane.m_folder.Path(QStringLiteral("Top"))) +
        AliasLine(QStringLiteral("Same"), folder)));
    QVERIFY(pane.ShowActive());
    pane.AliasTree()->collapse(pane.Item({QStringLiteral("Same")}));
    QVERIFY(pane.Edit(TopAnd(QStringLiteral("A"))));
    QVERIFY(pane.Watched().contains(folder));
}

void tst_FileManagerAliasEditing::keysOfTheTreeOpenNoEditor()
{
    EditedPane pane;
    QVERIFY(pane.Start());
    PaneFixture::Click(pane.AliasTree(), pane.Item(TopAnd(QStringLiteral("A"))));
    for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Space, Qt::Key_Return, Qt::Key_X}) {
        QTest::keyClick(pane.AliasTree(), key);
        QVERIFY(!pane.Editor());
    }
}

void tst_FileManagerAliasEditing::returnRenamesTheFolder()
{
    EditedPane pane;
    QVERIFY(pane.Start());
    QVERIFY(pane.Edit(TopAnd(QStringLiteral("A"))));
    QVERIFY(pane.Type(QStringLiteral("Z"), Qt::Key_Return));
    QVERIFY(QFileInfo::exists(pane.m_folder.Path(QStringLiteral("Top/Z/a"))));
    QVERIFY(!QFileInfo::exists(pane.m_folder.Path(QStringLiteral("Top/A"))));
    QCOMPARE(pane.Labels(Top), QStringList({QStringLiteral("B"), QStringLiteral("Z")}));
    QCOMPARE(pane.Labels(TopAnd(QStringLiteral("Z"))), QStringList(QStringLiteral("a")));
    QCOMPARE(pane.m_pPane->GetCurSelectedAliasIndex(), pane.Item(TopAnd(QStringLiteral("Z"))));
    QVERIFY(!pane.IsOpen(TopAnd(QStringLiteral("Z"))));
    QTRY_COMPARE(pane.Watched(),
                 pane.Paths({QStringLiteral("Top"), QStringLiteral("Top/B"), QStringLiteral("Top/Z")}));
    // The watch is a working one.
    pane.m_folder.Folder(QStringLiteral("Top/Z/new"));
    QTRY_COMPARE(pane.Labels(TopAnd(QStringLiteral("Z"))),
                 QStringList({QStringLiteral("a"), QStringLiteral("new")}));
}

void tst_FileManagerAliasEditing::returnRenamesAnOpenBranch()
{
    EditedPane pane;
    QVERIFY(pane.Start());
    pane.AliasTree()->expand(pane.Item(TopAnd(QStringLiteral("A"))));
    QVERIFY(pane.Edit(TopAnd(QStringLiteral("A"))));
    QVERIFY(pane.Type(QStringLiteral("Z"), Qt::Key_Return));
    QVERIFY(pane.IsOpen(TopAnd(QStringLiteral("Z"))));
    QCOMPARE(pane.Labels({Top.first(), QStringLiteral("Z"), QStringLiteral("a")}),
             QStringList(QStringLiteral("deep")));
    QTRY_COMPARE(pane.Watched(), pane.Paths({QStringLiteral("Top"), QStringLiteral("Top/B"),
                                             QStringLiteral("Top/Z"), QStringLiteral("Top/Z/a")}));
}

void tst_FileManagerAliasEditing::childrenOfARenamedFolderMapBelowItsNewName()
{
    EditedPane pane;
    QVERIFY(pane.Start());
    QVERIFY(pane.Edit(TopAnd(QStringLiteral("A"))));
    QVERIFY(pane.Type(QStringLiteral("Z"), Qt::Key_Return));
    const QModelIndex child = pane.Item({Top.first(), QStringLiteral("Z"), QStringLiteral("a")});
    QVERIFY(child.isValid());
    QCOMPARE(pane.Model()->GetMappedFolderPath(child), pane.m_folder.Path(QStringLiteral("Top/Z/a")));
    QCOMPARE(pane.Model()->GetINISection(child), QStringLiteral("section\\Z\\a"));
}

void tst_FileManagerAliasEditing::escapeKeepsTheItem()
{
    EditedPane pane;
    QVERIFY(pane.Start());
    const QStringList watched = pane.Watched();
    QVERIFY(pane.Edit(TopAnd(QStringLiteral("A"))));
    QVERIFY(pane.Type(QStringLiteral("Z"), Qt::Key_Escape));
    QCOMPARE(pane.Labels(Top), QStringList({QStringLiteral("A"), QStringLiteral("B")}));
    QCOMPARE(pane.Labels(TopAnd(QStringLiteral("A"))), QStringList(QStringLiteral("a")));
    QCOMPARE(pane.m_pPane->GetCurSelectedAliasIndex(), pane.Item(TopAnd(QStringLiteral("A"))));
    QCOMPARE(pane.Watched(), watched);
    QVERIFY(QFileInfo::exists(pane.m_folder.Path(QStringLiteral("Top/A"))));
}

void tst_FileManagerAliasEditing::escapeKeepsAnOpenBranchOpen()
{
    EditedPane pane;
    QVERIFY(pane.Start());
    pane.AliasTree()->expand(pane.Item(TopAnd(QStringLiteral("A"))));
    const QStringList watched = pane.Watched();
    QVERIFY(pane.Edit(TopAnd(QStringLiteral("A"))));
    QVERIFY(pane.Type(QString(), Qt::Key_Escape));
    QVERIFY(pane.IsOpen(TopAnd(QStringLiteral("A"))));
    QCOMPARE(pane.Labels({Top.first(), QStringLiteral("A"), QStringLiteral("a")}),
             QStringList(QStringLiteral("deep")));
    QCOMPARE(pane.Watched(), watched);
}

void tst_FileManagerAliasEditing::losingTheFocusRenames()
{
    KTFM_SKIP_ON_WINE("a folder that is being listed cannot be renamed");
    EditedPane pane;
    QVERIFY(pane.Start());
    QVERIFY(pane.Edit(TopAnd(QStringLiteral("A"))));
    pane.Editor()->setText(QStringLiteral("Z"));
    pane.Editor()->setModified(true);
    pane.Grid()->setFocus();
    QTRY_VERIFY(!pane.Editor());
    QCOMPARE(pane.Labels(Top), QStringList({QStringLiteral("B"), QStringLiteral("Z")}));
    QTRY_COMPARE(pane.Watched(),
                 pane.Paths({QStringLiteral("Top"), QStringLiteral("Top/B"), QStringLiteral("Top/Z")}));
}

void tst_FileManagerAliasEditing::tabRenamesTheItemAndEditsNoOther()
{
    EditedPane pane;
    QVERIFY(pane.Start());
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        const QStringList labels = pane.LabelsInOrder(pane.Item(Top));
        const QString& label = labels.first();
        const QString newLabel = label + QStringLiteral("2");
        QVERIFY(pane.Edit(TopAnd(label)));
        QVERIFY(pane.Type(newLabel, key));
        QVERIFY(!pane.Item(TopAnd(label)).isValid());
        const QModelIndex item = pane.Item(TopAnd(newLabel));
        QCOMPARE(pane.m_pPane->GetCurSelectedAliasIndex(), item);
        QCOMPARE(pane.Model()->GetMappedFolderPath(pane.Model()->index(0, 0, item)),
                 pane.m_folder.Path(QStringLiteral("Top/%1/%2").arg(newLabel, label.toLower())));
        QTRY_VERIFY(!pane.Watched().contains(pane.m_folder.Path(QStringLiteral("Top/") + label)));
        QVERIFY(pane.Watched().contains(pane.m_folder.Path(QStringLiteral("Top/") + newLabel)));
    }
}

void tst_FileManagerAliasEditing::blanksAroundANameAreNotKept()
{
    EditedPane pane;
    QVERIFY(pane.Start());
    QVERIFY(pane.Edit(TopAnd(QStringLiteral("A"))));
    QVERIFY(pane.Type(QStringLiteral("  Z "), Qt::Key_Return));
    QCOMPARE(pane.Labels(Top), QStringList({QStringLiteral("B"), QStringLiteral("Z")}));
    QCOMPARE(pane.CurrentFolder(), pane.m_folder.Path(QStringLiteral("Top/Z")));
}

void tst_FileManagerAliasEditing::refusedNameIsReportedAndKeepsTheItem_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("code");
    QTest::newRow("taken") << QStringLiteral("B") << 0;
    QTest::newRow("forbidden character") << QStringLiteral("a*") << 1;
    QTest::newRow("separator") << QStringLiteral("B/x") << 1;
}

void tst_FileManagerAliasEditing::refusedNameIsReportedAndKeepsTheItem()
{
    QFETCH(QString, name);
    QFETCH(int, code);
    EditedPane pane;
    QVERIFY(pane.Start());
    const QStringList watched = pane.Watched();
    const QSignalSpy errors(pane.m_pPane, &CKTFileManager::OnError);
    QVERIFY(pane.Edit(TopAnd(QStringLiteral("A"))));
    QVERIFY(pane.Type(name, Qt::Key_Return));
    QTRY_COMPARE(errors.size(), 1);
    QCOMPARE(errors.first(), QVariantList({3, 0, code}));
    QCOMPARE(pane.Labels(Top), QStringList({QStringLiteral("A"), QStringLiteral("B")}));
    QCOMPARE(pane.CurrentFolder(), pane.m_folder.Path(QStringLiteral("Top/A")));
    QCOMPARE(pane.Watched(), watched);
}

void tst_FileManagerAliasEditing::closedEditorShowsTheFolderInTheList()
{
    KTFM_SKIP_ON_WINE("a folder that is being listed cannot be renamed");
    EditedPane pane;
    QVERIFY(pane.Start());
    QVERIFY(pane.Edit(TopAnd(QStringLiteral("A"))));
    pane.Open(pane.m_folder.Path(QStringLiteral("Top/B")));
    QVERIFY(!pane.Editor()); // the list took the focus
    QCOMPARE(pane.ListedFolder(), pane.m_folder.Path(QStringLiteral("Top/B")));
    QVERIFY(pane.Edit(TopAnd(QStringLiteral("A"))));
    QVERIFY(pane.Type(QStringLiteral("Z"), Qt::Key_Return));
    QCOMPARE(pane.ListedFolder(), pane.m_folder.Path(QStringLiteral("Top/Z")));
    QTRY_COMPARE(pane.Names(), QStringList(QStringLiteral("a")));
}

void tst_FileManagerAliasEditing::closedEditorRemovesWhatVanishedMeanwhile()
{
    EditedPane pane;
    for (const char* name : {"Top/A/c", "Top/A/d", "Top/A/e"})
        pane.m_folder.Folder(QLatin1String(name));
    QVERIFY(pane.Start());
    QVERIFY(pane.Edit(TopAnd(QStringLiteral("A"))));
    for (const char* name : {"Top/A/c", "Top/A/d", "Top/A/e"})
        QVERIFY(QDir().rmdir(pane.m_folder.Path(QLatin1String(name))));
    pane.m_folder.Folder(QStringLiteral("Top/A/new"));
    QVERIFY(pane.Type(QString(), Qt::Key_Escape));
    QCOMPARE(pane.Labels(TopAnd(QStringLiteral("A"))),
             QStringList({QStringLiteral("a"), QStringLiteral("new")}));
}

void tst_FileManagerAliasEditing::topLevelItemKeepsItsRow_data()
{
    QTest::addColumn<bool>("open");
    QTest::addColumn<int>("key");
    QTest::newRow("open, given up") << true << int(Qt::Key_Escape);
    QTest::newRow("open, unchanged") << true << int(Qt::Key_Return);
    QTest::newRow("closed, given up") << false << int(Qt::Key_Escape);
    QTest::newRow("closed, unchanged") << false << int(Qt::Key_Return);
}

void tst_FileManagerAliasEditing::topLevelItemKeepsItsRow()
{
    QFETCH(bool, open);
    QFETCH(int, key);
    EditedPane pane;
    QVERIFY(pane.Start());
    pane.AliasTree()->setExpanded(pane.Item(Top), open);
    const QStringList watched = pane.Watched();
    const QPersistentModelIndex item = pane.Item(Top);
    QVERIFY(pane.Edit(Top));
    pane.m_folder.Folder(QStringLiteral("Top/C/c"));
    QVERIFY(pane.Type(Top.first(), static_cast<Qt::Key>(key)));
    QVERIFY(item.isValid());
    QCOMPARE(pane.IsOpen(Top), open);
    QCOMPARE(pane.Labels(Top), QStringList({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")}));
    QCOMPARE(pane.Labels(TopAnd(QStringLiteral("C"))),
             open ? QStringList(QStringLiteral("c")) : QStringList());
    const QStringList added = open ? pane.Paths({QStringLiteral("Top/C")}) : QStringList();
    QCOMPARE(pane.Watched(), AliasPane::Sorted(watched + added));
    pane.m_folder.Folder(QStringLiteral("Top/D"));
    QTRY_VERIFY(pane.Item(TopAnd(QStringLiteral("D"))).isValid());
}

void tst_FileManagerAliasEditing::renamedTopLevelItemIsWatchedUnderItsNewName()
{
    KTFM_SKIP_ON_WINE("a folder that was watched and renamed tells of no more changes");
    EditedPane pane;
    QVERIFY(pane.Start());
    QVERIFY(pane.Edit(Top));
    QVERIFY(pane.Type(QStringLiteral("Other"), Qt::Key_Return));
    QCOMPARE(pane.LabelsInOrder(QModelIndex()), QStringList(QStringLiteral("Other")));
    QTRY_COMPARE(pane.Watched(),
                 pane.Paths({QStringLiteral("Other"), QStringLiteral("Other/A"), QStringLiteral("Other/B")}));
    pane.m_folder.Folder(QStringLiteral("Other/C"));
    QTRY_VERIFY(pane.Item({QStringLiteral("Other"), QStringLiteral("C")}).isValid());
}

void tst_FileManagerAliasEditing::itemBelowAHeadingKeepsItsRow()
{
    EditedPane pane;
    const QString table = QStringLiteral("Heading\n ") +
                          AliasLine(QStringLiteral("Top"), pane.m_folder.Path(QStringLiteral("Top")));
    QVERIFY(pane.m_pPane->PopulateAliasTable(table));
    QVERIFY(pane.ShowActive());
    const QStringList watched = pane.Watched();
    const QStringList item{QStringLiteral("Heading"), QStringLiteral("Top")};
    QVERIFY(pane.Edit(item));
    QVERIFY(pane.Type(QStringLiteral("x"), Qt::Key_Escape));
    QCOMPARE(pane.Labels(item), QStringList({QStringLiteral("A"), QStringLiteral("B")}));
    QCOMPARE(pane.Watched(), watched);
    QVERIFY(pane.Edit(item));
    QVERIFY(pane.Type(QStringLiteral("New"), Qt::Key_Return));
    QCOMPARE(pane.Labels({QStringLiteral("Heading")}), QStringList(QStringLiteral("New")));
    QTRY_COMPARE(pane.Watched(), pane.Paths({QStringLiteral("New")}));
}

void tst_FileManagerAliasEditing::childrenThatNoScanFindsAreKept()
{
    EditedPane pane;
    const QString folder = pane.m_folder.Path(QStringLiteral("Top"));
    QVERIFY(pane.m_pPane->PopulateAliasTable(AliasLine(QStringLiteral("Top"), folder, false) +
                                             QStringLiteral(" Own\n  Deeper\n")));
    QVERIFY(pane.ShowActive());
    QVERIFY(pane.Edit(Top));
    QVERIFY(pane.Type(QString(), Qt::Key_Escape));
    QCOMPARE(pane.Labels(TopAnd(QStringLiteral("Own"))), QStringList(QStringLiteral("Deeper")));
    QCOMPARE(pane.Watched(), QStringList());
}

void tst_FileManagerAliasEditing::editorOpenedByTheHostIsLikeAnyOther()
{
    EditedPane pane;
    QVERIFY(pane.Start());
    const QModelIndex item = pane.Item(TopAnd(QStringLiteral("A")));
    pane.AliasTree()->expand(item);
    pane.AliasTree()->setCurrentIndex(pane.Item(Top));
    pane.AliasTree()->edit(item);
    QVERIFY(pane.Editor());
    QCOMPARE(pane.m_pPane->GetCurSelectedAliasIndex(), item);
    QCOMPARE(pane.Watched(), pane.Paths({QStringLiteral("Top"), QStringLiteral("Top/B")}));
    QVERIFY(pane.Type(QStringLiteral("Z"), Qt::Key_Return));
    QTRY_COMPARE(pane.Watched(), pane.Paths({QStringLiteral("Top"), QStringLiteral("Top/B"),
                                             QStringLiteral("Top/Z"), QStringLiteral("Top/Z/a")}));
}

void tst_FileManagerAliasEditing::folderRemovedDuringTheEditIsGoneAfterIt()
{
    KTFM_SKIP_ON_WINE("a folder that is removed stays until nobody watches it");
    EditedPane pane;
    QVERIFY(pane.Start());
    QVERIFY(pane.Edit(TopAnd(QStringLiteral("A"))));
    QVERIFY(QDir(pane.m_folder.Path(QStringLiteral("Top/A"))).removeRecursively());
    QVERIFY(pane.Type(QStringLiteral("Z"), Qt::Key_Return));
    QTRY_COMPARE(pane.Labels(Top), QStringList(QStringLiteral("B")));
    QTRY_COMPARE(pane.Watched(), pane.Paths({QStringLiteral("Top"), QStringLiteral("Top/B")}));
}

void tst_FileManagerAliasEditing::renameCommandEditsTheCurrentItem()
{
    KTFM_SKIP_ON_WINE("a folder that is being listed cannot be renamed");
    EditedPane pane;
    QVERIFY(pane.Start());
    PaneFixture::Click(pane.AliasTree(), pane.Item(TopAnd(QStringLiteral("A"))));
    QVERIFY(pane.m_pPane->DoCommand(FM_CMD_RENAME));
    QVERIFY(pane.Editor());
    QCOMPARE(pane.Watched(), pane.Paths({QStringLiteral("Top"), QStringLiteral("Top/B")}));
    QVERIFY(pane.Type(QStringLiteral("Z"), Qt::Key_Return));
    QCOMPARE(pane.Labels(Top), QStringList({QStringLiteral("B"), QStringLiteral("Z")}));
    QTRY_COMPARE(pane.Watched(),
                 pane.Paths({QStringLiteral("Top"), QStringLiteral("Top/B"), QStringLiteral("Top/Z")}));
}

void tst_FileManagerAliasEditing::renameCommandEditsTheLabelWhicheverCellIsCurrent()
{
    KTFM_SKIP_ON_WINE("a folder that is being listed cannot be renamed");
    EditedPane pane;
    QVERIFY(pane.Start());
    const QPersistentModelIndex item = pane.Item(TopAnd(QStringLiteral("A")));
    pane.AliasTree()->expand(item);
    const QList<QModelIndex> found =
        pane.Model()->IndexWithFilePath(pane.m_folder.Path(QStringLiteral("Top/A")));
    QVERIFY(pane.m_pPane->SetCurrentAliasTreeSelection(found.value(0)));
    pane.m_pPane->SetLastMenuFrom(FM_PART_ALIAS_TREE);
    QVERIFY(pane.m_pPane->DoCommand(FM_CMD_RENAME));
    QVERIFY(!pane.AliasTree()->isExpanded(item));
    QVERIFY(pane.Editor());
    QCOMPARE(pane.Editor()->text(), QStringLiteral("A"));
    QVERIFY(pane.Type(QStringLiteral("Z"), Qt::Key_Return));
    QCOMPARE(pane.Labels(Top), QStringList({QStringLiteral("B"), QStringLiteral("Z")}));
}

void tst_FileManagerAliasEditing::doubleClickMakesTheAliasTreeThePaneOfCommands()
{
    EditedPane pane;
    QVERIFY(pane.Start());
    const QModelIndex item = pane.Item(TopAnd(QStringLiteral("A")));
    QVERIFY(pane.m_pPane->SetCurrentAliasTreeSelection(item));
    pane.m_pPane->SetLastMenuFrom(FM_PART_TREE);
    pane.m_pPane->OnAliasTreeDblClicked(item);
    QVERIFY(pane.m_pPane->DoCommand(FM_CMD_RENAME));
    QVERIFY(pane.Editor());
}

void tst_FileManagerAliasEditing::paneMayDieWithAnOpenEditor()
{
    EditedPane pane;
    QVERIFY(pane.Start());
    QVERIFY(pane.Edit(TopAnd(QStringLiteral("A"))));
    pane.Editor()->setText(QStringLiteral("Z"));
    CKTFMAliasTreeModel* model = pane.Model();
    pane.DeletePane();
    QCOMPARE(model->rowCount(model->index(0, 0)), 2);
    QVERIFY(QFileInfo::exists(pane.m_folder.Path(QStringLiteral("Top/A/a"))));
}

KTFM_TEST_MAIN(tst_FileManagerAliasEditing)
#include "tst_filemanager_aliasediting.moc"
