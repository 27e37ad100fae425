#include "models/AliasFolder.h"
#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"

#include <KTFileManager2QU/CKTFMAliasTreeModel.h>

#include <QLoggingCategory>

#include <sys/stat.h>
#include <unistd.h>

namespace {

/** An ordinary user, whom permissions hold. */
constexpr uid_t Nobody = 65534;

/** Makes the process an ordinary user while it lives, when it is the superuser. */
class OrdinaryUser
{
public:
    OrdinaryUser() : m_changed(geteuid() == 0 && setresuid(Nobody, Nobody, 0) == 0) {}

    ~OrdinaryUser()
    {
        if (m_changed && setresuid(0, 0, 0) != 0)
            qFatal("cannot become the superuser again");
    }

    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    bool m_changed;
};

void SetMode(const QString& path, mode_t mode)
{
    if (chmod(QFile::encodeName(path).constData(), mode) != 0)
        qFatal("cannot set the mode of %s", qPrintable(path));
}

void PopulateFor(CKTFMAliasTreeModel& model, const QString& folder)
{
    model.PopulateAliasTree(QStringLiteral("Top\t%1\ttrue\t32\tsection\tdata\n").arg(folder));
}

QStringList ScannedLabels(CKTFMAliasTreeModel& model)
{
    const QModelIndex top = model.index(0, 0);
    model.ScanAliasTreeDirectory(top);
    QStringList labels;
    for (int row = 0; row < model.rowCount(top); ++row)
        labels.append(model.GetAliasLabel(model.index(row, 0, top)));
    labels.sort();
    return labels;
}

} // namespace

/** Folders with contents that only POSIX systems have. */
class tst_AliasFolderPosix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shortcutsInCirclesAreKeptUnderTheirFullName();
    void shortcutToTheFolderItselfIsOneChild();
    void shortcutToAShortcutLeadsToItsNextTarget();
    void pipesNamedLikeShortcutsAreSkipped();
    void namesThatAreNotUtf8AreHarmless();
    void backslashInANameIsPartOfIt();
    void folderThatCannotBeReadChangesNothing();
    void renameInAFolderWithoutPermissionIsRefused();
};

void tst_AliasFolderPosix::initTestCase()
{
    QLoggingCategory::setFilterRules(QStringLiteral("ktfm.aliastree.debug=false"));
}

void tst_AliasFolderPosix::shortcutsInCirclesAreKeptUnderTheirFullName()
{
    const TestFolder folder;
    folder.Link(folder.Path(QStringLiteral("b.lnk")), QStringLiteral("a.lnk"));
    folder.Link(folder.Path(QStringLiteral("a.lnk")), QStringLiteral("b.lnk"));
    folder.Link(folder.Path(QStringLiteral("self")), QStringLiteral("self"));
    CKTFMAliasTreeModel model;
    PopulateFor(model, folder.Path());
    const QStringList both{QStringLiteral("a.lnk"), QStringLiteral("b.lnk")};
    QCOMPARE(ScannedLabels(model), both);
    QCOMPARE(ScannedLabels(model), both);
}

void tst_AliasFolderPosix::shortcutToTheFolderItselfIsOneChild()
{
    const TestFolder folder;
    folder.Link(folder.Path(), QStringLiteral("circle.lnk"));
    CKTFMAliasTreeModel model;
    PopulateFor(model, folder.Path());
    QCOMPARE(ScannedLabels(model), QStringList{QStringLiteral("circle")});
    const QModelIndex circle = model.index(0, 0, model.index(0, 0));
    QCOMPARE(model.GetMappedFolderPath(circle), folder.Path());
    model.ScanAliasTreeDirectory(circle);
    QCOMPARE(model.rowCount(circle), 1);
}

void tst_AliasFolderPosix::shortcutToAShortcutLeadsToItsNextTarget()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("top"));
    const QString inner = folder.Link(folder.Folder(QStringLiteral("target")), QStringLiteral("inner"));
    folder.Link(inner, QStringLiteral("top/outer.lnk"));
    CKTFMAliasTreeModel model;
    PopulateFor(model, folder.Path(QStringLiteral("top")));
    QCOMPARE(ScannedLabels(model), QStringList{QStringLiteral("outer")});
    QCOMPARE(model.GetMappedFolderPath(model.index(0, 0, model.index(0, 0))), inner);
}

void tst_AliasFolderPosix::pipesNamedLikeShortcutsAreSkipped()
{
    const TestFolder folder;
    QCOMPARE(mkfifo(QFile::encodeName(folder.Path(QStringLiteral("pipe.lnk"))).constData(), 0600), 0);
    CKTFMAliasTreeModel model;
    PopulateFor(model, folder.Path());
    QCOMPARE(ScannedLabels(model), QStringList());
}

void tst_AliasFolderPosix::namesThatAreNotUtf8AreHarmless()
{
    const TestFolder folder;
    const QByteArray raw = QFile::encodeName(folder.Path()) + "/caf\xe9";
    QCOMPARE(mkdir(raw.constData(), 0700), 0);
    folder.Folder(QStringLiteral("fine"));
    CKTFMAliasTreeModel model;
    PopulateFor(model, folder.Path());
    const QStringList labels = ScannedLabels(model);
    QVERIFY(labels.contains(QStringLiteral("fine")));
    QVERIFY(labels.size() <= 2);
    QCOMPARE(ScannedLabels(model), labels);
    QCOMPARE(rmdir(raw.constData()), 0);
    QCOMPARE(ScannedLabels(model), QStringList{QStringLiteral("fine")});
}

void tst_AliasFolderPosix::backslashInANameIsPartOfIt()
{
    const TestFolder folder;
    const QString path = folder.Folder(QStringLiteral("a\\b"));
    CKTFMAliasTreeModel model;
    PopulateFor(model, folder.Path());
    QCOMPARE(ScannedLabels(model), QStringList{QStringLiteral("a\\b")});
    const QModelIndex child = model.index(0, 0, model.index(0, 0));
    QCOMPARE(model.GetMappedFolderPath(child), path);
    QCOMPARE(ScannedLabels(model), QStringList{QStringLiteral("a\\b")});
    QVERIFY(model.setData(child, QStringLiteral("plain")));
    QCOMPARE(model.GetMappedFolderPath(child), folder.Path(QStringLiteral("plain")));
}

void tst_AliasFolderPosix::folderThatCannotBeReadChangesNothing()
{
    const TestFolder folder;
    SetMode(folder.Path(), 0755);
    const QString locked = folder.Folder(QStringLiteral("locked"));
    folder.Folder(QStringLiteral("locked/sub"));
    CKTFMAliasTreeModel model;
    PopulateFor(model, locked);
    QCOMPARE(ScannedLabels(model), QStringList{QStringLiteral("sub")});
    SetMode(locked, 0);
    {
        const OrdinaryUser user;
        QVERIFY(!AliasFolder::CanBeListed(locked));
        QCOMPARE(ScannedLabels(model), QStringList{QStringLiteral("sub")});
    }
    SetMode(locked, 0700);
}

void tst_AliasFolderPosix::renameInAFolderWithoutPermissionIsRefused()
{
    const TestFolder folder;
    SetMode(folder.Path(), 0755);
    folder.Folder(QStringLiteral("top/sub"));
    SetMode(folder.Path(QStringLiteral("top")), 0555);
    CKTFMAliasTreeModel model;
    PopulateFor(model, folder.Path(QStringLiteral("top")));
    QCOMPARE(ScannedLabels(model), QStringList{QStringLiteral("sub")});
    QSignalSpy failed(&model, &CKTFMAliasTreeModel::RenameFileError);
    {
        const OrdinaryUser user;
        QVERIFY(!model.setData(model.index(0, 0, model.index(0, 0)), QStringLiteral("other")));
    }
    SetMode(folder.Path(QStringLiteral("top")), 0755);
    QTRY_COMPARE(failed, (QList<QVariantList>{{1}}));
    QVERIFY(QFileInfo(folder.Path(QStringLiteral("top/sub"))).isDir());
}

KTFM_TEST_MAIN(tst_AliasFolderPosix)
#include "tst_aliasfolder_posix.moc"
