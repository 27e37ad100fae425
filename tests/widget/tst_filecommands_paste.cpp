#include "tests/widget/CommandPane.h"

#include "tests/support/TestMain.h"
#include "tests/support/TestPlatform.h"

#include <QSignalSpy>

Q_DECLARE_METATYPE(EKTFMPart)
Q_DECLARE_METATYPE(QMessageBox::StandardButton)

namespace {

constexpr auto Yes = QMessageBox::Yes;
constexpr auto No = QMessageBox::No;
constexpr auto Cancel = QMessageBox::Cancel;

QString QuestionFor(const QString& name)
{
    return QStringLiteral("Item '") + name +
           QStringLiteral("' alreay exists ! \nDo you want to replace it ?");
}

/** @return the paths of what a folder holds under these names */
QStringList PathsOf(const TestFolder& folder, const QStringList& names)
{
    QStringList paths;
    for (const QString& name : names)
        paths.append(folder.Path(name));
    return paths;
}

} // namespace

class tst_FileCommandsPaste : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copiesFilesAndFoldersIntoTheList();
    void movesAfterACut();
    void copyEndsTheMoving();
    void moveClearsTheClipboardOnce();
    void urlsOfAnotherProgramAreMovedAfterAFinishedCut();
    void pasteIntoItsOwnFolderNumbersTheCopies();
    void cutIntoItsOwnFolderChangesNothingOnDisk();
    void pasteOfNothingIsDone();
    void destinationMustBeAWritableFolder_data();
    void destinationMustBeAWritableFolder();
    void aliasFolderTakesThePaste();
    void promptAsksExactly();
    void promptShowsNamesAsTheyAre();
    void answersByButton_data();
    void answersByButton();
    void escapeCancels();
    void noMergesFoldersAndSkipsFiles();
    void yesReplacesAFolderWhole();
    void cancelAtTheSecondPromptPastesNothing();
    void cancelKeepsTheCutFlag();
    void itemsOfTheDestinationAreNeverAskedAbout();
    void folderIntoItselfIsRefusedBeforeAnyPrompt_data();
    void folderIntoItselfIsRefusedBeforeAnyPrompt();
    void pathAnywhereInTheDestinationRefusesThePaste();
    void folderOfAnotherLetterCaseStopsThePaste();
    void targetsBehindWhereThePasteStopsStay();
    void filesOfAnotherLetterCaseArePastedUnasked();
    void yesRemovesALinkAsItself();
    void yesRemovesALinkToNothingAsItself();
    void noKeepsALinkToNothing();
    void yesRemovesALinkInsideAFolderAsItself();
    void yesRemovesAPipe();
    void yesRemovesHiddenAndFilteredTargets_data();
    void yesRemovesHiddenAndFilteredTargets();
    void sourceAndTargetOfOneFileStay_data();
    void sourceAndTargetOfOneFileStay();
    void targetThatHoldsTheSourceStays();
    void targetThatHoldsAnotherSourceStays();
    void targetThatALinkedSourceNeedsStays_data();
    void targetThatALinkedSourceNeedsStays();
    void targetOfWhatMovesWithAnotherStays_data();
    void targetOfWhatMovesWithAnotherStays();
    void missingSourceKeepsItsTarget();
    void moveOfALinkTakesTheLinkAway();
    void pipesAreNotPasted();
    void foreignUrlsAreSkipped();
    void pathWithASeparatorAtItsEndIsTheFolder();
    void paneMayVanishWhileItAsks();
    void promptGoesWithItsParent();
    void clipboardMayChangeWhileItAsks();
    void secondPasteEndsTheFirst();
    void destinationMayVanishWhileItAsks();
    void selectionIsClearedAfterwards();
    void thousandsOfFilesArePasted();
};

void tst_FileCommandsPaste::copiesFilesAndFoldersIntoTheList()
{
    CommandPane pane;
    const QString file = pane.m_folder.File(QStringLiteral("out/a.txt"), "a");
    pane.m_folder.File(QStringLiteral("out/docs/in/b.txt"), "b");
    pane.m_folder.File(QStringLiteral("shown/old"));
    QVERIFY(pane.Open(1));
    OfferPaths({file, pane.m_folder.Path(QStringLiteral("out/docs"))});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.Names(), Words(QStringLiteral("a.txt docs old")));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/docs/in/b.txt")), QByteArray("b"));
    QCOMPARE(pane.Names(QStringLiteral("out")), Words(QStringLiteral("a.txt docs")));
    QCOMPARE(ClipboardPaths().size(), 2);
    QVERIFY(pane.Lists(3));
}

void tst_FileCommandsPaste::movesAfterACut()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a.txt"), "a");
    pane.m_folder.File(QStringLiteral("shown/docs/b.txt"), "b");
    pane.m_folder.Folder(QStringLiteral("to"));
    QVERIFY(pane.Open(2));
    pane.Select(Words(QStringLiteral("a.txt docs")));
    QVERIFY(pane.Do(FM_CMD_CUT));
    pane.m_pPane->SetDirectory(pane.m_folder.Path(QStringLiteral("to")));
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.Names(), QStringList());
    QCOMPARE(pane.Names(QStringLiteral("to")), Words(QStringLiteral("a.txt docs")));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("to/docs/b.txt")), QByteArray("b"));
    QVERIFY(!pane.m_pPane->IsPasteable());
}

void tst_FileCommandsPaste::copyEndsTheMoving()
{
    CommandPane pane;
    const QString file = pane.m_folder.File(QStringLiteral("out/a"));
    pane.m_folder.File(QStringLiteral("shown/b"));
    QVERIFY(pane.Open(1));
    QVERIFY(pane.Do(FM_CMD_CUT));
    pane.Select(Words(QStringLiteral("b")));
    QVERIFY(pane.Do(FM_CMD_COPY));
    OfferPaths({file});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QVERIFY(QFileInfo::exists(file));
    QCOMPARE(pane.Names(), Words(QStringLiteral("a b")));
}

void tst_FileCommandsPaste::moveClearsTheClipboardOnce()
{
    KTFM_SKIP_ON_WINE("the clipboard tells late of its changes");
    CommandPane pane;
    QVERIFY(pane.Open(0));
    QVERIFY(pane.Do(FM_CMD_CUT));
    OfferPaths({pane.m_folder.File(QStringLiteral("out/a"))});
    QSignalSpy changes(QApplication::clipboard(), &QClipboard::dataChanged);
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(changes.size(), 1);
    QVERIFY(!pane.m_pPane->IsPasteable());
}

void tst_FileCommandsPaste::urlsOfAnotherProgramAreMovedAfterAFinishedCut()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"));
    QVERIFY(pane.Open(1));
    pane.Select(Words(QStringLiteral("a")));
    QVERIFY(pane.Do(FM_CMD_CUT));
    QVERIFY(pane.Do(FM_CMD_PASTE));
    const QString later = pane.m_folder.File(QStringLiteral("out/later"), "later");
    OfferPaths({later});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QVERIFY(!QFileInfo::exists(later));
    QCOMPARE(pane.Names(), Words(QStringLiteral("a later")));
}

void tst_FileCommandsPaste::pasteIntoItsOwnFolderNumbersTheCopies()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/name.ext"), "text");
    pane.m_folder.File(QStringLiteral("shown/Docs/in"), "in");
    pane.m_folder.File(QStringLiteral("shown/README"));
    QVERIFY(pane.Open(3));
    pane.Select(Words(QStringLiteral("name.ext Docs README")));
    QVERIFY(pane.Do(FM_CMD_COPY));
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QStringList expected = Words(QStringLiteral("Docs Docs-Copy(1) Docs-Copy(2) README name-Copy(1).ext "
                                                "name-Copy(2).ext name.ext"));
    expected += TestPlatform::NameOnDisk(QStringLiteral("README-Copy(1)."));
    expected += TestPlatform::NameOnDisk(QStringLiteral("README-Copy(2)."));
    QStringList names = pane.Names();
    names.sort();
    expected.sort();
    QCOMPARE(names, expected);
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/name-Copy(2).ext")), QByteArray("text"));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/Docs-Copy(1)/in")), QByteArray("in"));
}

void tst_FileCommandsPaste::cutIntoItsOwnFolderChangesNothingOnDisk()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"), "a");
    pane.m_folder.File(QStringLiteral("shown/docs/b"), "b");
    QVERIFY(pane.Open(2));
    pane.Select(Words(QStringLiteral("a docs")));
    QVERIFY(pane.Do(FM_CMD_CUT));
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.Names(), Words(QStringLiteral("a docs")));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/docs/b")), QByteArray("b"));
    QVERIFY(!pane.m_pPane->IsPasteable());
}

void tst_FileCommandsPaste::pasteOfNothingIsDone()
{
    CommandPane pane;
    QVERIFY(pane.Open(0));
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QApplication::clipboard()->setText(pane.m_folder.File(QStringLiteral("out/a")));
    QVERIFY(pane.Do(FM_CMD_PASTE)); // text is never read as paths
    QCOMPARE(pane.Names(), QStringList());
}

void tst_FileCommandsPaste::destinationMustBeAWritableFolder_data()
{
    QTest::addColumn<EKTFMPart>("part");
    QTest::addColumn<bool>("opens");
    QTest::newRow("folder tree") << FM_PART_TREE << true;
    QTest::newRow("no pane") << static_cast<EKTFMPart>(3) << true;
    QTest::newRow("alias tree without a current item") << FM_PART_ALIAS_TREE << true;
    QTest::newRow("list without a folder") << FM_PART_LIST << false;
}

void tst_FileCommandsPaste::destinationMustBeAWritableFolder()
{
    CommandPane pane;
    QFETCH(EKTFMPart, part);
    QFETCH(bool, opens);
    if (opens)
        QVERIFY(pane.Open(0));
    const QString current = QDir::currentPath();
    QDir::setCurrent(pane.m_folder.Path());
    OfferPaths({pane.m_folder.File(QStringLiteral("out/a"))});
    pane.m_pPane->SetLastMenuFrom(part);
    const bool pasted = pane.Do(FM_CMD_PASTE);
    QDir::setCurrent(current);
    QVERIFY(!pasted);
    QCOMPARE(pane.Names(QString()), Words(QStringLiteral("out shown")));
    QCOMPARE(pane.Names(), QStringList());
}

void tst_FileCommandsPaste::aliasFolderTakesThePaste()
{
    CommandPane pane(FM_MODE_ALIAS_TREE_AND_LIST);
    const QString to = pane.m_folder.Folder(QStringLiteral("to"));
    pane.m_pPane->PopulateAliasTable(QStringLiteral("To\t") + to + QStringLiteral("/\t1\t32\t\t"));
    pane.AliasView()->setCurrentIndex(pane.m_pAliasModel->index(0, 0));
    pane.m_pPane->SetLastMenuFrom(FM_PART_ALIAS_TREE);
    pane.m_folder.File(QStringLiteral("to/a"), "a");
    OfferPaths({pane.m_folder.File(QStringLiteral("out/b"), "b"), to + QStringLiteral("/a")});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.Names(QStringLiteral("to")),
             (QStringList{QStringLiteral("a"), TestPlatform::NameOnDisk(QStringLiteral("a-Copy(1).")),
                          QStringLiteral("b")}));
}

void tst_FileCommandsPaste::promptAsksExactly()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a.txt"));
    QVERIFY(pane.Open(1));
    QWidget parent;
    pane.m_pPane->SetParentForMsgBox(&parent);
    OfferPaths({pane.m_folder.File(QStringLiteral("out/a.txt"))});
    PromptAnswers answers({No});
    answers.m_onPrompt = [&parent](QMessageBox& box) {
        QCOMPARE(box.windowTitle(), QStringLiteral("Replace File"));
        QCOMPARE(box.icon(), QMessageBox::NoIcon);
        QCOMPARE(box.standardButtons(), Yes | No | Cancel);
        QCOMPARE(box.parentWidget(), &parent);
        QCOMPARE(box.windowFlags() & (Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint),
                 Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
        QVERIFY(box.isModal());
    };
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(answers.m_texts, QStringList(QuestionFor(QStringLiteral("a.txt"))));
}

void tst_FileCommandsPaste::promptShowsNamesAsTheyAre()
{
    KTFM_NEEDS_ALL_NAMES();
    CommandPane pane;
    const QString name = QStringLiteral("<b>%1 %2");
    pane.m_folder.File(QStringLiteral("shown/") + name);
    QVERIFY(pane.Open(1));
    OfferPaths({pane.m_folder.File(QStringLiteral("out/") + name)});
    PromptAnswers answers({No});
    answers.m_onPrompt = [](QMessageBox& box) { QCOMPARE(box.textFormat(), Qt::PlainText); };
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(answers.m_texts, QStringList(QuestionFor(name)));
}

void tst_FileCommandsPaste::answersByButton_data()
{
    QTest::addColumn<bool>("cuts");
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<bool>("sourceStays");
    QTest::newRow("copy, yes") << false << Yes << true << QByteArray("new") << true;
    QTest::newRow("copy, no") << false << No << true << QByteArray("old") << true;
    QTest::newRow("copy, cancel") << false << Cancel << false << QByteArray("old") << true;
    QTest::newRow("cut, yes") << true << Yes << true << QByteArray("new") << false;
    QTest::newRow("cut, no") << true << No << true << QByteArray("old") << true;
    QTest::newRow("cut, cancel") << true << Cancel << false << QByteArray("old") << true;
}

void tst_FileCommandsPaste::answersByButton()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"), "old");
    const QString source = pane.m_folder.File(QStringLiteral("out/a"), "new");
    QVERIFY(pane.Open(1));
    QFETCH(bool, cuts);
    QFETCH(QMessageBox::StandardButton, answer);
    if (cuts)
        QVERIFY(pane.Do(FM_CMD_CUT));
    OfferPaths({source});
    const PromptAnswers answers({answer});
    QTEST(pane.Do(FM_CMD_PASTE), "result");
    QTEST(pane.m_folder.Read(QStringLiteral("shown/a")), "target");
    QTEST(QFileInfo::exists(source), "sourceStays");
    QCOMPARE(answers.m_texts.size(), 1);
}

void tst_FileCommandsPaste::escapeCancels()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"), "old");
    QVERIFY(pane.Open(1));
    OfferPaths({pane.m_folder.File(QStringLiteral("out/a")), pane.m_folder.File(QStringLiteral("out/b"))});
    PromptAnswers answers({No});
    answers.m_onPrompt = [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); };
    QVERIFY(!pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.Names(), Words(QStringLiteral("a")));
}

void tst_FileCommandsPaste::noMergesFoldersAndSkipsFiles()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/docs/both"), "old");
    pane.m_folder.File(QStringLiteral("shown/docs/in/kept"), "old");
    pane.m_folder.File(QStringLiteral("out/docs/both"), "new");
    pane.m_folder.File(QStringLiteral("out/docs/in/fresh"), "new");
    QVERIFY(pane.Open(1));
    QVERIFY(pane.Do(FM_CMD_CUT));
    OfferPaths({pane.m_folder.Path(QStringLiteral("out/docs"))});
    const PromptAnswers answers({No});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.Names(QStringLiteral("shown/docs/in")), Words(QStringLiteral("fresh kept")));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/docs/both")), QByteArray("old"));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("out/docs/both")), QByteArray("new"));
    QCOMPARE(pane.Names(QStringLiteral("out/docs")), Words(QStringLiteral("both")));
}

void tst_FileCommandsPaste::yesReplacesAFolderWhole()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/docs/in/old"));
    pane.m_folder.File(QStringLiteral("shown/docs/.hidden"));
    pane.m_folder.File(QStringLiteral("out/docs/new"));
    QVERIFY(pane.Open(1));
    OfferPaths({pane.m_folder.Path(QStringLiteral("out/docs"))});
    const PromptAnswers answers({Yes});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.Names(QStringLiteral("shown/docs")), Words(QStringLiteral("new")));
}

void tst_FileCommandsPaste::cancelAtTheSecondPromptPastesNothing()
{
    CommandPane pane;
    QStringList sources;
    for (const QString& name : {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}) {
        pane.m_folder.File(QStringLiteral("shown/") + name, "old");
        sources.append(pane.m_folder.File(QStringLiteral("out/") + name, "new"));
    }
    sources.append(pane.m_folder.File(QStringLiteral("out/free"), "new"));
    QVERIFY(pane.Open(3));
    OfferPaths(sources);
    const PromptAnswers answers({Yes, Cancel});
    QVERIFY(!pane.Do(FM_CMD_PASTE));
    QCOMPARE(answers.m_texts,
             QStringList({QuestionFor(QStringLiteral("a")), QuestionFor(QStringLiteral("b"))}));
    QCOMPARE(pane.Names(), Words(QStringLiteral("a b c")));
    for (const char* name : {"shown/a", "shown/b", "shown/c"})
        QCOMPARE(pane.m_folder.Read(QLatin1String(name)), QByteArray("old"));
}

void tst_FileCommandsPaste::cancelKeepsTheCutFlag()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"));
    const QString source = pane.m_folder.File(QStringLiteral("out/a"));
    QVERIFY(pane.Open(1));
    QVERIFY(pane.Do(FM_CMD_CUT));
    OfferPaths({source});
    {
        const PromptAnswers answers({Cancel});
        QVERIFY(!pane.Do(FM_CMD_PASTE));
    }
    QVERIFY(pane.m_pPane->IsPasteable());
    const PromptAnswers answers({Yes});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QVERIFY(!QFileInfo::exists(source));
}

void tst_FileCommandsPaste::itemsOfTheDestinationAreNeverAskedAbout()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a.txt"));
    QVERIFY(pane.Open(1));
    OfferPaths({pane.Path(QStringLiteral("a.txt"))});
    const PromptAnswers answers({});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(answers.m_texts, QStringList());
    QCOMPARE(pane.Names(), Words(QStringLiteral("a-Copy(1).txt a.txt")));
}

void tst_FileCommandsPaste::folderIntoItselfIsRefusedBeforeAnyPrompt_data()
{
    QTest::addColumn<QString>("source");
    QTest::newRow("the folder itself") << "shown";
    QTest::newRow("the folder above") << "";
    if (TestPlatform::HasSymbolicLinks())
        QTest::newRow("by a link") << "link";
    QTest::newRow("the root") << "/";
}

void tst_FileCommandsPaste::folderIntoItselfIsRefusedBeforeAnyPrompt()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"), "old");
    pane.m_folder.Link(pane.Path(), QStringLiteral("link"));
    QVERIFY(pane.Open(1));
    QFETCH(QString, source);
    const QString path = source == QLatin1String("/") ? QDir::rootPath() : pane.m_folder.Path(source);
    OfferPaths(
        {pane.m_folder.File(QStringLiteral("out/a")), pane.m_folder.File(QStringLiteral("out/b")), path});
    const PromptAnswers answers({});
    QVERIFY(!pane.Do(FM_CMD_PASTE));
    QCOMPARE(answers.m_texts, QStringList());
    QCOMPARE(pane.Names(), Words(QStringLiteral("a")));
}

void tst_FileCommandsPaste::pathAnywhereInTheDestinationRefusesThePaste()
{
    CommandPane pane;
    // "…/show" is no folder above "…/shown", and "…/SHOW" is not even a part of its path: both count.
    for (const QString& name : {QStringLiteral("show"), QStringLiteral("SHOW")}) {
        QVERIFY(pane.Open(0));
        OfferPaths({pane.m_folder.Folder(name)});
        QVERIFY(!pane.Do(FM_CMD_PASTE));
        QCOMPARE(pane.Names(), QStringList());
    }
    OfferPaths({pane.m_folder.File(QStringLiteral("sho"))}); // a file does not count
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.Names(), Words(QStringLiteral("sho")));
}

void tst_FileCommandsPaste::folderOfAnotherLetterCaseStopsThePaste()
{
    if (!TestPlatform::TellsLetterCase())
        QSKIP("another letter case makes no other name");
    CommandPane pane;
    const QString later = pane.m_folder.File(QStringLiteral("out/later"));
    pane.m_folder.File(QStringLiteral("SHOWN/docs/a"));
    const QString first = pane.m_folder.File(QStringLiteral("out/first"));
    QVERIFY(pane.Open(0));
    QVERIFY(pane.Do(FM_CMD_CUT));
    OfferPaths({first, pane.m_folder.Path(QStringLiteral("SHOWN/docs")), later});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.Names(), Words(QStringLiteral("first")));
    QVERIFY(pane.m_pPane->IsPasteable()); // the cut state is kept
}

void tst_FileCommandsPaste::targetsBehindWhereThePasteStopsStay()
{
    if (!TestPlatform::TellsLetterCase())
        QSKIP("another letter case makes no other name");
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/first"), "old");
    pane.m_folder.File(QStringLiteral("shown/later"), "old");
    const QString first = pane.m_folder.File(QStringLiteral("out/first"), "new");
    const QString later = pane.m_folder.File(QStringLiteral("out/later"), "new");
    QVERIFY(pane.Open(2));
    OfferPaths({first, pane.m_folder.Folder(QStringLiteral("SHOWN/docs")), later});
    const PromptAnswers answers({Yes, Yes});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/first")), QByteArray("new"));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/later")), QByteArray("old"));
}

void tst_FileCommandsPaste::filesOfAnotherLetterCaseArePastedUnasked()
{
    if (!TestPlatform::TellsLetterCase())
        QSKIP("another letter case makes no other name");
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"), "old");
    QVERIFY(pane.Open(1));
    OfferPaths({pane.m_folder.File(QStringLiteral("SHOWN/a"), "new"),
                pane.m_folder.File(QStringLiteral("SHOWN/b"), "new")});
    const PromptAnswers answers({});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/a")), QByteArray("old"));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/b")), QByteArray("new"));
}

void tst_FileCommandsPaste::yesRemovesALinkAsItself()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("kept/file"), "kept");
    pane.m_folder.Link(pane.m_folder.Path(QStringLiteral("kept")), QStringLiteral("shown/docs"));
    pane.m_folder.Link(pane.m_folder.Path(QStringLiteral("kept/file")), QStringLiteral("shown/a"));
    pane.m_folder.File(QStringLiteral("out/docs/new"), "new");
    QVERIFY(pane.Open(2));
    OfferPaths(
        {pane.m_folder.Path(QStringLiteral("out/docs")), pane.m_folder.File(QStringLiteral("out/a"), "new")});
    const PromptAnswers answers({Yes, Yes});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QVERIFY(!QFileInfo(pane.Path(QStringLiteral("docs"))).isSymLink());
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/docs/new")), QByteArray("new"));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/a")), QByteArray("new"));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("kept/file")), QByteArray("kept"));
    QCOMPARE(pane.Names(QStringLiteral("kept")), Words(QStringLiteral("file")));
}

void tst_FileCommandsPaste::yesRemovesALinkToNothingAsItself()
{
    CommandPane pane;
    pane.m_folder.Link(pane.m_folder.Path(QStringLiteral("gone")), QStringLiteral("shown/a"));
    QVERIFY(pane.Open(0));
    OfferPaths({pane.m_folder.File(QStringLiteral("out/a"), "new")});
    const PromptAnswers answers({Yes});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/a")), QByteArray("new"));
    QVERIFY(!QFileInfo::exists(pane.m_folder.Path(QStringLiteral("gone"))));
}

void tst_FileCommandsPaste::noKeepsALinkToNothing()
{
    KTFM_NEEDS_SYMBOLIC_LINKS();
    CommandPane pane;
    pane.m_folder.Link(pane.m_folder.Path(QStringLiteral("gone")), QStringLiteral("shown/a"));
    QVERIFY(pane.Open(0));
    OfferPaths({pane.m_folder.File(QStringLiteral("out/a"), "new")});
    const PromptAnswers answers({No});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QVERIFY(QFileInfo(pane.Path(QStringLiteral("a"))).isSymLink());
    QVERIFY(!QFileInfo::exists(pane.m_folder.Path(QStringLiteral("gone"))));
}

void tst_FileCommandsPaste::yesRemovesALinkInsideAFolderAsItself()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("kept/file"), "kept");
    pane.m_folder.Folder(QStringLiteral("shown/docs"));
    pane.m_folder.Link(pane.m_folder.Path(QStringLiteral("kept")), QStringLiteral("shown/docs/link"));
    pane.m_folder.File(QStringLiteral("out/docs/new"));
    QVERIFY(pane.Open(1));
    OfferPaths({pane.m_folder.Path(QStringLiteral("out/docs"))});
    const PromptAnswers answers({Yes});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.Names(QStringLiteral("shown/docs")), Words(QStringLiteral("new")));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("kept/file")), QByteArray("kept"));
}

void tst_FileCommandsPaste::yesRemovesAPipe()
{
    if (!TestPlatform::HasPipesInFolders())
        QSKIP("no folder holds a pipe");
    CommandPane pane;
    const QString pipe = pane.Path(QStringLiteral("a"));
    QCOMPARE(std::system(qPrintable(QStringLiteral("mkfifo '%1'").arg(pipe))), 0);
    pane.m_folder.File(QStringLiteral("shown/b"));
    QVERIFY(pane.Open(1));
    OfferPaths({pane.m_folder.File(QStringLiteral("out/a"), "new")});
    const PromptAnswers answers({Yes});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QVERIFY(QFileInfo(pipe).isFile());
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/a")), QByteArray("new"));
}

void tst_FileCommandsPaste::yesRemovesHiddenAndFilteredTargets_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isFolder");
    QTest::newRow("hidden file") << ".a" << false;
    QTest::newRow("hidden folder") << ".docs" << true;
    QTest::newRow("file that a name filter hides") << "a.txt" << false;
}

void tst_FileCommandsPaste::yesRemovesHiddenAndFilteredTargets()
{
    CommandPane pane;
    QFETCH(QString, name);
    QFETCH(bool, isFolder);
    const QString end = isFolder ? QStringLiteral("/in") : QString();
    pane.m_folder.File(QStringLiteral("shown/") + name + end, "old");
    pane.m_folder.File(QStringLiteral("shown/b.png"), "b");
    pane.m_folder.File(QStringLiteral("out/") + name + end, "new");
    pane.m_pPane->SetFilter({QStringLiteral("*.png")});
    QVERIFY(pane.Open(1));
    const TestFolder current;
    current.File(QStringLiteral("bystander"));
    QDir::setCurrent(current.Path());
    OfferPaths({pane.m_folder.Path(QStringLiteral("out/") + name)});
    const PromptAnswers answers({Yes});
    const bool pasted = pane.Do(FM_CMD_PASTE);
    QDir::setCurrent(QDir::rootPath());
    QVERIFY(pasted);
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/") + name + end), QByteArray("new"));
    QVERIFY(QFileInfo::exists(current.Path(QStringLiteral("bystander"))));
    QVERIFY(QFileInfo::exists(pane.Path(QStringLiteral("b.png"))));
}

void tst_FileCommandsPaste::sourceAndTargetOfOneFileStay_data()
{
    QTest::addColumn<bool>("cuts");
    QTest::addColumn<QString>("source");
    for (const bool cuts : {false, true}) {
        const char* kind = cuts ? "cut" : "copy";
        QTest::addRow("%s, folder by a linked parent", kind) << cuts << "other/docs";
        QTest::addRow("%s, file by a linked parent", kind) << cuts << "other/a";
        QTest::addRow("%s, empty folder by a linked parent", kind) << cuts << "other/empty";
        QTest::addRow("%s, hard link", kind) << cuts << "out/hard";
        QTest::addRow("%s, source of a linked target", kind) << cuts << "out/link";
        QTest::addRow("%s, linked source", kind) << cuts << "out/docs";
    }
}

void tst_FileCommandsPaste::sourceAndTargetOfOneFileStay()
{
    KTFM_NEEDS_SYMBOLIC_LINKS();
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"), "a");
    pane.m_folder.File(QStringLiteral("shown/docs/b"), "b");
    pane.m_folder.Folder(QStringLiteral("shown/empty"));
    pane.m_folder.File(QStringLiteral("shown/hard"), "hard");
    pane.m_folder.Link(pane.Path(), QStringLiteral("other"));
    pane.m_folder.File(QStringLiteral("out/link/c"), "c");
    pane.m_folder.Link(pane.m_folder.Path(QStringLiteral("out/link")), QStringLiteral("shown/link"));
    pane.m_folder.Link(pane.Path(QStringLiteral("docs")), QStringLiteral("out/docs"));
    const QString hard = pane.m_folder.Path(QStringLiteral("out/hard"));
    QCOMPARE(
        std::system(qPrintable(QStringLiteral("ln '%1' '%2'").arg(pane.Path(QStringLiteral("hard")), hard))),
        0);
    QVERIFY(pane.Open(5));
    QFETCH(bool, cuts);
    QFETCH(QString, source);
    if (cuts)
        QVERIFY(pane.Do(FM_CMD_CUT));
    OfferPaths({pane.m_folder.Path(source)});
    const PromptAnswers answers({Yes});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.Names(), Words(QStringLiteral("a docs empty hard link")));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/a")), QByteArray("a"));
    QCOMPARE(pane.Names(QStringLiteral("shown/docs")), Words(QStringLiteral("b")));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/docs/b")), QByteArray("b"));
    QCOMPARE(pane.Names(QStringLiteral("out")), Words(QStringLiteral("docs hard link")));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("out/link/c")), QByteArray("c"));
}

void tst_FileCommandsPaste::targetThatHoldsTheSourceStays()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/x/x/a"), "a");
    pane.m_folder.File(QStringLiteral("shown/x/b"), "b");
    QVERIFY(pane.Open(1));
    OfferPaths({pane.Path(QStringLiteral("x/x"))});
    const PromptAnswers answers({Yes});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.Names(QStringLiteral("shown/x")), Words(QStringLiteral("b x")));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/x/x/a")), QByteArray("a"));
}

void tst_FileCommandsPaste::targetThatHoldsAnotherSourceStays()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/x/inner"), "inner");
    pane.m_folder.File(QStringLiteral("out/x/a"), "a");
    QVERIFY(pane.Open(1));
    OfferPaths({pane.m_folder.Path(QStringLiteral("out/x")), pane.Path(QStringLiteral("x/inner"))});
    const PromptAnswers answers({Yes});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/x/inner")), QByteArray("inner"));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/inner")), QByteArray("inner"));
}

void tst_FileCommandsPaste::targetThatALinkedSourceNeedsStays_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("sources");
    QTest::newRow("the source is a link in it") << "elsewhere/x"
                                                << "shown/x/x";
    QTest::newRow("the source is a link to a folder in it") << "elsewhere/x/a"
                                                            << "shown/x/x";
    QTest::newRow("the source leads through a link in it") << "elsewhere/x"
                                                           << "out/x";
    QTest::newRow("a link in it is on the way to the source") << "elsewhere/x/x"
                                                              << "shown/x/x/x";
    QTest::newRow("another source is a link in it") << "elsewhere/x"
                                                    << "new/x shown/x/x";
    QTest::newRow("another source is a link to nothing in it") << "nowhere"
                                                               << "new/x shown/x/x";
}

void tst_FileCommandsPaste::targetThatALinkedSourceNeedsStays()
{
    KTFM_NEEDS_SYMBOLIC_LINKS();
    CommandPane pane;
    QFETCH(QString, content);
    QFETCH(QString, sources);
    pane.m_folder.File(content, "content");
    pane.m_folder.File(QStringLiteral("new/x"), "new");
    pane.m_folder.File(QStringLiteral("shown/x/kept"), "kept");
    pane.m_folder.Folder(QStringLiteral("out"));
    pane.m_folder.Link(pane.m_folder.Path(QStringLiteral("elsewhere/x")), QStringLiteral("shown/x/x"));
    pane.m_folder.Link(pane.Path(QStringLiteral("x/x")), QStringLiteral("out/x"));
    QVERIFY(pane.Open(1));
    const QStringList names = Words(sources);
    QList<QMessageBox::StandardButton> yesToAll;
    for (int i = 0; i < names.size(); ++i)
        yesToAll.append(Yes);
    OfferPaths(PathsOf(pane.m_folder, names));
    const PromptAnswers answers(yesToAll);
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/x/kept")), QByteArray("kept"));
    QVERIFY(QFileInfo(pane.Path(QStringLiteral("x/x"))).isSymLink());
}

void tst_FileCommandsPaste::targetOfWhatMovesWithAnotherStays_data()
{
    QTest::addColumn<QString>("sources");
    QTest::addColumn<bool>("isCut");
    QTest::addColumn<QByteArray>("target");
    const QByteArray old("old");
    const QByteArray content("new");
    QTest::newRow("in a folder that goes before it") << "out/docs out/docs/in/a" << true << old;
    if (TestPlatform::HasSymbolicLinks()) {
        QTest::newRow("link to a file that goes before it") << "out/docs/in/a out/b" << true << old;
        QTest::newRow("link into a folder that goes before it") << "out/docs out/b" << true << old;
    }
    QTest::newRow("in a folder that goes after it") << "out/docs/in/a out/docs" << true << content;
    QTest::newRow("in a folder that is copied") << "out/docs out/docs/in/a" << false << content;
    QTest::newRow("named twice") << "out/docs/in/a out/docs/in/a" << true << content;
}

void tst_FileCommandsPaste::targetOfWhatMovesWithAnotherStays()
{
    CommandPane pane;
    QFETCH(QString, sources);
    QFETCH(bool, isCut);
    const QString content = pane.m_folder.File(QStringLiteral("out/docs/in/a"), "new");
    const QString target = sources.endsWith(QLatin1Char('b')) ? QStringLiteral("b") : QStringLiteral("a");
    if (target == QLatin1String("b"))
        pane.m_folder.Link(content, QStringLiteral("out/b"));
    pane.m_folder.File(QStringLiteral("shown/") + target, "old");
    QVERIFY(pane.Open(1));
    QVERIFY(!isCut || pane.Do(FM_CMD_CUT));
    const QStringList names = Words(sources);
    QList<QMessageBox::StandardButton> yesToAll;
    for (const QString& source : names) {
        if (source.endsWith(target))
            yesToAll.append(Yes);
    }
    OfferPaths(PathsOf(pane.m_folder, names));
    const PromptAnswers answers(yesToAll);
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QTEST(pane.m_folder.Read(QStringLiteral("shown/") + target), "target");
}

void tst_FileCommandsPaste::missingSourceKeepsItsTarget()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"), "old");
    pane.m_folder.File(QStringLiteral("shown/b"), "old");
    const QString vanishing = pane.m_folder.File(QStringLiteral("out/b"));
    QVERIFY(pane.Open(2));
    OfferPaths({pane.m_folder.Path(QStringLiteral("out/a")), vanishing});
    PromptAnswers answers({Yes, Yes});
    answers.m_onPrompt = [&vanishing](QMessageBox&) { QFile::remove(vanishing); };
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/a")), QByteArray("old"));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/b")), QByteArray("old"));
}

void tst_FileCommandsPaste::moveOfALinkTakesTheLinkAway()
{
    KTFM_NEEDS_SYMBOLIC_LINKS();
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("kept/file"), "kept");
    pane.m_folder.Link(pane.m_folder.Path(QStringLiteral("kept")), QStringLiteral("shown/link"));
    pane.m_folder.Folder(QStringLiteral("to"));
    QVERIFY(pane.Open(1));
    pane.Select(Words(QStringLiteral("link")));
    QVERIFY(pane.Do(FM_CMD_CUT));
    pane.m_pPane->SetDirectory(pane.m_folder.Path(QStringLiteral("to")));
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.Names(), QStringList());
    QCOMPARE(pane.m_folder.Read(QStringLiteral("to/link/file")), QByteArray("kept"));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("kept/file")), QByteArray("kept"));
}

void tst_FileCommandsPaste::pipesAreNotPasted()
{
    if (!TestPlatform::HasPipesInFolders())
        QSKIP("no folder holds a pipe");
    CommandPane pane;
    pane.m_folder.Folder(QStringLiteral("out"));
    pane.m_folder.File(QStringLiteral("shown/pipe"), "old");
    const QString pipe = pane.m_folder.Path(QStringLiteral("out/pipe"));
    QCOMPARE(std::system(qPrintable(QStringLiteral("mkfifo '%1'").arg(pipe))), 0);
    QVERIFY(pane.Open(1));
    QVERIFY(pane.Do(FM_CMD_CUT));
    OfferPaths({pipe});
    const PromptAnswers answers({Yes});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/pipe")), QByteArray("old"));
    QCOMPARE(pane.Names(QStringLiteral("out")), Words(QStringLiteral("pipe")));
}

void tst_FileCommandsPaste::foreignUrlsAreSkipped()
{
    CommandPane pane;
    QVERIFY(pane.Open(0));
    const QString current = QDir::currentPath();
    QDir::setCurrent(pane.m_folder.Path());
    pane.m_folder.File(QStringLiteral("relative"));
    auto* mime = new QMimeData;
    mime->setUrls({QUrl(QStringLiteral("http://example.org/a")), QUrl(), QUrl(QStringLiteral("file:")),
                   QUrl(QStringLiteral("file:relative")), QUrl(QStringLiteral("file:.")),
                   QUrl::fromLocalFile(pane.m_folder.File(QStringLiteral("out/b")))});
    QApplication::clipboard()->setMimeData(mime);
    const bool pasted = pane.Do(FM_CMD_PASTE);
    QDir::setCurrent(current);
    QVERIFY(pasted);
    QCOMPARE(pane.Names(), Words(QStringLiteral("b")));
}

void tst_FileCommandsPaste::pathWithASeparatorAtItsEndIsTheFolder()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("out/docs/a"));
    pane.m_folder.File(QStringLiteral("out/more/b/c"));
    QVERIFY(pane.Open(0));
    OfferPaths({pane.m_folder.Path(QStringLiteral("out/docs/")),
                pane.m_folder.Path(QStringLiteral("out/more/b/.."))});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.Names(), Words(QStringLiteral("docs more")));
    QCOMPARE(pane.Names(QStringLiteral("shown/docs")), Words(QStringLiteral("a")));
}

void tst_FileCommandsPaste::paneMayVanishWhileItAsks()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"), "old");
    QVERIFY(pane.Open(1));
    OfferPaths(
        {pane.m_folder.File(QStringLiteral("out/a"), "new"), pane.m_folder.File(QStringLiteral("out/b"))});
    PromptAnswers answers({Yes});
    answers.m_onPrompt = [&pane](QMessageBox&) { delete pane.m_pPane; };
    QVERIFY(!pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.Names(), Words(QStringLiteral("a")));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/a")), QByteArray("old"));
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_FileCommandsPaste::promptGoesWithItsParent()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"), "old");
    QVERIFY(pane.Open(1));
    auto parent = std::make_unique<QWidget>();
    pane.m_pPane->SetParentForMsgBox(parent.get());
    OfferPaths({pane.m_folder.File(QStringLiteral("out/a"), "new")});
    PromptAnswers answers({Yes});
    answers.m_onPrompt = [&parent](QMessageBox&) { parent.reset(); };
    QVERIFY(!pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/a")), QByteArray("old"));
}

void tst_FileCommandsPaste::clipboardMayChangeWhileItAsks()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"), "old");
    QVERIFY(pane.Open(1));
    OfferPaths(
        {pane.m_folder.File(QStringLiteral("out/a"), "new"), pane.m_folder.File(QStringLiteral("out/b"))});
    PromptAnswers answers({Yes});
    answers.m_onPrompt = [](QMessageBox&) { QApplication::clipboard()->setText(QStringLiteral("else")); };
    QVERIFY(!pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.Names(), Words(QStringLiteral("a")));
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/a")), QByteArray("old"));
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("else"));
}

void tst_FileCommandsPaste::secondPasteEndsTheFirst()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"), "old");
    QVERIFY(pane.Open(1));
    OfferPaths({pane.m_folder.File(QStringLiteral("out/a"), "new"),
                pane.m_folder.File(QStringLiteral("out/b"), "b")});
    PromptAnswers answers({Yes});
    bool second = false;
    answers.m_onPrompt = [&](QMessageBox&) {
        const PromptAnswers inner({No});
        second = pane.Do(FM_CMD_PASTE);
        QFile::remove(pane.Path(QStringLiteral("b")));
    };
    QVERIFY(!pane.Do(FM_CMD_PASTE));
    QVERIFY(second);
    QCOMPARE(pane.m_folder.Read(QStringLiteral("shown/a")), QByteArray("old"));
    QCOMPARE(pane.Names(), Words(QStringLiteral("a")));
}

void tst_FileCommandsPaste::destinationMayVanishWhileItAsks()
{
    KTFM_SKIP_ON_WINE("a folder that is removed stays until nobody watches it");
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"));
    QVERIFY(pane.Open(1));
    const QString source = pane.m_folder.File(QStringLiteral("out/a"), "new");
    QVERIFY(pane.Do(FM_CMD_CUT));
    OfferPaths({source});
    PromptAnswers answers({Yes});
    answers.m_onPrompt = [&pane](QMessageBox&) { QDir(pane.Path()).removeRecursively(); };
    QVERIFY(!pane.Do(FM_CMD_PASTE));
    QVERIFY(!QFileInfo::exists(pane.Path()));
    QVERIFY(QFileInfo::exists(source));
}

void tst_FileCommandsPaste::selectionIsClearedAfterwards()
{
    CommandPane pane;
    pane.m_folder.File(QStringLiteral("shown/a"));
    QVERIFY(pane.Open(1));
    pane.Select(Words(QStringLiteral("a")));
    OfferPaths({pane.m_folder.File(QStringLiteral("out/b"))});
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QVERIFY(!pane.Grid()->selectionModel()->hasSelection());
}

void tst_FileCommandsPaste::thousandsOfFilesArePasted()
{
    CommandPane pane;
    QStringList sources;
    const int count = 2000;
    for (int i = 0; i < count; ++i)
        sources.append(pane.m_folder.File(QStringLiteral("out/%1").arg(i), "x"));
    QVERIFY(pane.Open(0));
    QVERIFY(pane.Do(FM_CMD_CUT));
    OfferPaths(sources);
    QVERIFY(pane.Do(FM_CMD_PASTE));
    QCOMPARE(pane.Names().size(), count);
    QCOMPARE(pane.Names(QStringLiteral("out")), QStringList());
    QVERIFY(pane.Lists(count));
}

KTFM_TEST_MAIN(tst_FileCommandsPaste)
#include "tst_filecommands_paste.moc"
