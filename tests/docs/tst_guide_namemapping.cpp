#include "docs/listings/name-mapping/Names.h"
#include "tests/support/TestMain.h"
#include "tests/widget/AliasPane.h"

#include <KTFileManager2QU/CKTFMListModel.h>

namespace {

QString Listing(const QString& name)
{
    return QStringLiteral(KTFM_LISTINGS "/name-mapping/") + name;
}

} // namespace

class tst_GuideNameMapping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAreShown_data();
    void namesAreShown();
    void foldersOfTheTreeAreMappedToo();
    void tipsAreShown();
    void sectionAloneMayBeChanged();
    void categoriesAreMappedByTheirParentsSection();
};

void tst_GuideNameMapping::namesAreShown_data()
{
    QTest::addColumn<QString>("onDisk");
    QTest::addColumn<QString>("shown");
    QTest::newRow("mapped") << QStringLiteral("Chair.fbx") << QStringLiteral("Office chair");
    QTest::newRow("folder") << QStringLiteral("Props") << QStringLiteral("Small things");
    QTest::newRow("quotes keep blanks") << QStringLiteral("Lamp.fbx") << QStringLiteral("  Lamp  ");
    QTest::newRow("quotes keep nothing") << QStringLiteral("Empty.fbx") << QString();
    QTest::newRow("not found") << QStringLiteral("Desk.fbx") << QStringLiteral("Desk");
}

void tst_GuideNameMapping::namesAreShown()
{
    QFETCH(QString, onDisk);
    QFETCH(QString, shown);
    PaneFixture p;
    if (onDisk.contains(QLatin1Char('.')))
        p.m_folder.File(onDisk);
    else
        p.m_folder.Folder(onDisk);
    QVERIFY(p.ShowFolder(1));
    MapNames(p.m_pPane, Listing(QStringLiteral("furniture.ini")));
    QCOMPARE(p.ListIndex(onDisk).data().toString(), shown);
}

void tst_GuideNameMapping::foldersOfTheTreeAreMappedToo()
{
    PaneFixture p;
    p.m_folder.Folder(QStringLiteral("Props"));
    QVERIFY(p.ShowFolder(1));
    MapNames(p.m_pPane, Listing(QStringLiteral("furniture.ini")));
    QTRY_COMPARE(p.TreeIndex(QStringLiteral("Props")).data().toString(), QStringLiteral("Small things"));
}

void tst_GuideNameMapping::tipsAreShown()
{
    PaneFixture p;
    p.m_folder.File(QStringLiteral("Chair.fbx"));
    p.m_folder.File(QStringLiteral("Desk.fbx"));
    QVERIFY(p.ShowFolder(2));
    MapNames(p.m_pPane, Listing(QStringLiteral("furniture.ini")));
    QCOMPARE(p.ListIndex(QStringLiteral("Chair.fbx")).data(Qt::ToolTipRole).toString(),
             QStringLiteral("Swivels; 5 castors"));
    QCOMPARE(p.ListIndex(QStringLiteral("Desk.fbx")).data(Qt::ToolTipRole).toString(),
             QStringLiteral("Desk.fbx"));
}

void tst_GuideNameMapping::sectionAloneMayBeChanged()
{
    PaneFixture p;
    p.m_folder.File(QStringLiteral("Chair.fbx"));
    QVERIFY(p.ShowFolder(1));
    MapNames(p.m_pPane, Listing(QStringLiteral("furniture.ini")));
    MapNamesBySection(p.m_pPane, QStringLiteral("Furniture Tips"));
    QCOMPARE(p.ListIndex(QStringLiteral("Chair.fbx")).data().toString(),
             QStringLiteral("Swivels; 5 castors"));
}

void tst_GuideNameMapping::categoriesAreMappedByTheirParentsSection()
{
    const AliasPane p;
    p.m_folder.Folder(QStringLiteral("Kitchen/Shelf"));
    p.m_pPane->SetFilenameMappingINIFile(FM_PART_ALIAS_TREE, Listing(QStringLiteral("rooms.ini")), QString());
    QVERIFY(
        p.m_pPane->PopulateAliasTable(QStringLiteral("Home\t%1\ttrue\t32\tRooms\n").arg(p.m_folder.Path())));
    const QModelIndex home = p.Item({QStringLiteral("Home")});
    const QModelIndex kitchen = p.Item({QStringLiteral("Home"), QStringLiteral("Kitchen")});
    p.AliasTree()->expand(kitchen);
    const QModelIndex shelf =
        p.Item({QStringLiteral("Home"), QStringLiteral("Kitchen"), QStringLiteral("Shelf")});
    QCOMPARE(home.data().toString(), QStringLiteral("My things"));
    QCOMPARE(kitchen.data().toString(), QStringLiteral("The kitchen"));
    QCOMPARE(shelf.data().toString(), QStringLiteral("Spices"));
}

KTFM_TEST_MAIN(tst_GuideNameMapping)
#include "tst_guide_namemapping.moc"
