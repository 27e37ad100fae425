#include "models/FileSystemItem.h"
#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"
#include "widget/CopyNaming.h"
#include "widget/DiskEntry.h"
#include "widget/FileCopy.h"
#include "widget/PasteRules.h"
#include "widget/TreeCopy.h"
#include "widget/TreeRemoval.h"

#include <KTFileManager2QU/CKTFMAliasTreeModel.h>
#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CTitleBarView.h>
#include <KTFileManager2QU/KTFMInterfaces.h>

#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QSignalSpy>

namespace {

/** A host whose bar shows one folder and leaves the names of others to the bar. */
class BarHost : public CTitleBarSlotInterface
{
public:
    explicit BarHost(const QString& folder) : m_folder(folder) {}

    QString GetTitleBarDisplayName(const QModelIndex&) override { return QStringLiteral("shown"); }
    QString GetTitleBarPath(const QModelIndex&) override { return m_folder; }
    QModelIndex GetTitleBarIndexFromPath(const QString&) override { return QModelIndex(); }
    void OnTitleBarButtonClicked(const QModelIndex&) override {}
    void OnTitleBarMenuTriggered(const QString&) override {}

private:
    QString m_folder;
};

/** A folder with a shell link to a folder, one to a file and one to nothing, beside what they lead to. */
class LinkedFolder : public TestFolder
{
public:
    LinkedFolder()
    {
        Folder(QStringLiteral("top/Chairs"));
        File(QStringLiteral("elsewhere/content"), "content");
        Link(Path(QStringLiteral("elsewhere")), QStringLiteral("top/Tables.lnk"));
        Link(File(QStringLiteral("file.txt"), "text"), QStringLiteral("top/ToFile.lnk"));
        Folder(QStringLiteral("gone"));
        Link(Path(QStringLiteral("gone")), QStringLiteral("top/ToNothing.lnk"));
        if (!QDir(Path()).rmdir(QStringLiteral("gone")))
            qFatal("the folder stays");
    }

    QString Top() const { return Path(QStringLiteral("top")); }

    bool AreTargetsThere() const
    {
        return Read(QStringLiteral("elsewhere/content")) == "content" &&
               Read(QStringLiteral("file.txt")) == "text";
    }
};

QStringList LabelsBelow(const CKTFMAliasTreeModel& model, const QModelIndex& parent)
{
    QStringList labels;
    for (int row = 0; row < model.rowCount(parent); ++row)
        labels.append(model.GetAliasLabel(model.index(row, 0, parent)));
    labels.sort();
    return labels;
}

} // namespace

/** Real shell links (*.lnk) in the alias tree, the breadcrumb bar and the file commands. */
class tst_ShellLinksWin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aliasScanTakesLinksToFolders();
    void aliasChildOfALinkMapsToItsTarget();
    void breadcrumbMenuLeadsToTheTarget();
    void linkIsRemovedAsItself();
    void folderWithLinksIsRemovedWithoutTheirTargets();
    void linkIsCopiedAsTheFileThatItIs();
    void folderWithLinksIsMovedWithThem();
    void linkIsRenamedItself();
    void nameOfALinkIsFreeUntilThereIsOne();
    void copyOfALinkGetsTheFirstFreeNumber();
};

void tst_ShellLinksWin::aliasScanTakesLinksToFolders()
{
    const LinkedFolder folder;
    CKTFMAliasTreeModel model;
    model.PopulateAliasTree(QStringLiteral("Category\t%1\ttrue\t0\tRoot\t\n").arg(folder.Top()));
    model.ScanAliasTreeDirectory(model.index(0, 0));
    QCOMPARE(
        LabelsBelow(model, model.index(0, 0)),
        (QStringList{QStringLiteral("Chairs"), QStringLiteral("Tables"), QStringLiteral("ToNothing.lnk")}));
}

void tst_ShellLinksWin::aliasChildOfALinkMapsToItsTarget()
{
    const LinkedFolder folder;
    CKTFMAliasTreeModel model;
    model.PopulateAliasTree(QStringLiteral("Category\t%1\ttrue\t0\tRoot\t\n").arg(folder.Top()));
    model.ScanAliasTreeDirectory(model.index(0, 0));
    const QList<QModelIndex> found = model.IndexWithFilePath(folder.Path(QStringLiteral("elsewhere")));
    QCOMPARE(found.size(), 1);
    const QModelIndex item = found.constFirst().sibling(found.constFirst().row(), 0);
    QCOMPARE(model.GetAliasLabel(item), QStringLiteral("Tables"));
    QCOMPARE(model.GetCustomData(item).toString(), folder.Path(QStringLiteral("top/Tables.lnk")));
}

void tst_ShellLinksWin::breadcrumbMenuLeadsToTheTarget()
{
    const LinkedFolder folder;
    BarHost host(folder.Top());
    QFileSystemModel model;
    QWidget window;
    CTitleBarView bar(&window, &host);
    bar.UpdateCrumBar(model.index(folder.Top()), true);
    CTitleBarButton* button = bar.GetToolButton(0);
    button->CreateMenu();
    QMap<QString, QString> paths;
    for (std::size_t i = 0; i < button->ActionSize(); ++i)
        paths.insert(button->GetAction(i)->text(), button->GetAction(i)->m_strPath);
    const QMap<QString, QString> expected = {
        {QStringLiteral("Chairs"), folder.Path(QStringLiteral("top/Chairs"))},
        {QStringLiteral("Tables"), folder.Path(QStringLiteral("elsewhere"))}};
    QCOMPARE(paths, expected);
}

void tst_ShellLinksWin::linkIsRemovedAsItself()
{
    const LinkedFolder folder;
    for (const char* name : {"top/Tables.lnk", "top/ToFile.lnk", "top/ToNothing.lnk"}) {
        const QString path = folder.Path(QString::fromLatin1(name));
        QVERIFY(DiskEntry::IsLink(QFileInfo(path)));
        QVERIFY(DiskEntry::Remove(path));
        QVERIFY(!FileSystemItem::IsTaken(path));
    }
    QCOMPARE(QDir(folder.Top()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
             QStringList{QStringLiteral("Chairs")});
    QVERIFY(folder.AreTargetsThere());
}

void tst_ShellLinksWin::folderWithLinksIsRemovedWithoutTheirTargets()
{
    const LinkedFolder folder;
    QVERIFY(TreeRemoval::Remove(folder.Top(), [](const QString&) {}));
    QVERIFY(!QFileInfo::exists(folder.Top()));
    QVERIFY(folder.AreTargetsThere());
}

void tst_ShellLinksWin::linkIsCopiedAsTheFileThatItIs()
{
    const LinkedFolder folder;
    for (const char* name : {"Tables.lnk", "ToFile.lnk"}) {
        const QString source = folder.Path(QLatin1String("top/") + QLatin1String(name));
        const QString target = folder.Path(QLatin1String("copy of ") + QLatin1String(name));
        QVERIFY(FileCopy::Copy(source, target));
        QCOMPARE(QFileInfo(target).symLinkTarget(), QFileInfo(source).symLinkTarget());
    }
    QVERIFY(folder.AreTargetsThere());
}

void tst_ShellLinksWin::folderWithLinksIsMovedWithThem()
{
    const LinkedFolder folder;
    QVERIFY(DiskEntry::Remove(folder.Path(QStringLiteral("top/ToNothing.lnk"))));
    const QString target = folder.Path(QStringLiteral("moved"));
    TreeCopy move(TreeCopy::Kind::Move, [](const QString&) {});
    QVERIFY(move.Run(folder.Top(), target));
    QVERIFY(!QFileInfo::exists(folder.Top()));
    QVERIFY(QFileInfo(target + QStringLiteral("/Chairs")).isDir());
    QCOMPARE(QFileInfo(target + QStringLiteral("/Tables.lnk")).symLinkTarget(),
             folder.Path(QStringLiteral("elsewhere")));
    QVERIFY(folder.AreTargetsThere());
}

void tst_ShellLinksWin::linkIsRenamedItself()
{
    const LinkedFolder folder;
    CKTFMListModel model;
    QSignalSpy loaded(&model, &QFileSystemModel::directoryLoaded);
    model.setRootPath(folder.Top());
    QVERIFY(loaded.wait());
    QVERIFY(model.setData(model.index(folder.Path(QStringLiteral("top/Tables.lnk"))),
                          QStringLiteral("Desks.lnk")));
    QCOMPARE(QFileInfo(folder.Path(QStringLiteral("top/Desks.lnk"))).symLinkTarget(),
             folder.Path(QStringLiteral("elsewhere")));
    QVERIFY(!FileSystemItem::IsTaken(folder.Path(QStringLiteral("top/Tables.lnk"))));
    QVERIFY(folder.AreTargetsThere());
}

void tst_ShellLinksWin::nameOfALinkIsFreeUntilThereIsOne()
{
    const LinkedFolder folder;
    for (const char* name : {"Tables.lnk", "ToFile.lnk", "ToNothing.lnk"}) {
        const QString path = folder.Path(QLatin1String("top/") + QLatin1String(name));
        QVERIFY(FileSystemItem::IsTaken(path));
        QVERIFY(!FileSystemItem::IsTaken(folder.Path(QLatin1String("elsewhere/") + QLatin1String(name))));
        QVERIFY(
            PasteRules::IsConflict(folder.Path(QLatin1String("from/") + QLatin1String(name)), folder.Top()));
        QVERIFY(!PasteRules::IsConflict(path, folder.Path(QStringLiteral("elsewhere"))));
    }
}

void tst_ShellLinksWin::copyOfALinkGetsTheFirstFreeNumber()
{
    const LinkedFolder folder;
    folder.File(QStringLiteral("top/Tables-Copy(1).lnk"));
    const QFileInfo link(folder.Path(QStringLiteral("top/Tables.lnk")));
    QCOMPARE(CopyNaming::FreeName(link), QStringLiteral("Tables-Copy(2).lnk"));
}

KTFM_TEST_MAIN(tst_ShellLinksWin)
#include "tst_shelllinks_win.moc"
