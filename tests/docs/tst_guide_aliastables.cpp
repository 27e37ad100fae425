#include "docs/listings/alias-tables/AliasTree.h"
#include "tests/support/TestMain.h"
#include "tests/widget/AliasPane.h"

namespace {

/** The table of the guide, its folders moved from /srv into the test's folder. */
QString TableIn(const TestFolder& folder)
{
    QFile file(QStringLiteral(KTFM_LISTINGS "/alias-tables/catalogue.txt"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("the table of the guide cannot be read");
    return QString::fromUtf8(file.readAll()).replace(QLatin1String("/srv"), folder.Path());
}

/** A pane with the table of the guide and the folders that it names. */
class CataloguePane : public AliasPane
{
public:
    CataloguePane()
    {
        m_folder.Folder(QStringLiteral("catalogue/chairs/old"));
        m_folder.Folder(QStringLiteral("catalogue/lamps/old"));
        m_folder.Folder(QStringLiteral("archive/2019"));
    }

    bool Load() const
    {
        return ShowAliases(*m_pPane, TableIn(m_folder), m_folder.Path(QStringLiteral("catalogue/chairs")));
    }
};

} // namespace

class tst_GuideAliasTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tableGivesTheCategoriesOfTheGuide();
    void columnsHoldWhatTheGuideSays();
    void watchedCategoriesFollowTheDisk();
    void searchStartsAtTheItemThatItIsGiven();
    void tableMayStandInAFile();
    void emptyColumnsCannotStandBetweenOthers();
};

void tst_GuideAliasTables::tableGivesTheCategoriesOfTheGuide()
{
    const CataloguePane p;
    QVERIFY(p.Load());
    QCOMPARE(p.LabelsInOrder(QModelIndex()),
             QStringList({QStringLiteral("Catalogue"), QStringLiteral("Archive")}));
    QCOMPARE(p.LabelsInOrder(p.Item({QStringLiteral("Catalogue")})),
             QStringList({QStringLiteral("Chairs"), QStringLiteral("Lamps")}));
    QCOMPARE(p.Labels({QStringLiteral("Archive")}), QStringList(QStringLiteral("2019")));
}

void tst_GuideAliasTables::columnsHoldWhatTheGuideSays()
{
    const CataloguePane p;
    QVERIFY(p.Load());
    const QModelIndex chairs = p.Item({QStringLiteral("Catalogue"), QStringLiteral("Chairs")});
    QCOMPARE(p.m_pPane->GetCurSelectedAliasIndex(), chairs);
    QCOMPARE(p.Model()->GetMappedFolderPath(chairs), p.m_folder.Path(QStringLiteral("catalogue/chairs")));
    QCOMPARE(p.Model()->CanFileSysWatch(chairs), true);
    QCOMPARE(p.Model()->IsOpAllowed(chairs, FM_OP_RENAME), true);
    QCOMPARE(p.Model()->GetINISection(chairs), QStringLiteral("Chairs"));
    QCOMPARE(CurrentCollection(*p.m_pPane), QStringLiteral("collection-1"));

    const QModelIndex lamps = p.Item({QStringLiteral("Catalogue"), QStringLiteral("Lamps")});
    QCOMPARE(p.Model()->CanFileSysWatch(lamps), false);
    QCOMPARE(p.Model()->IsOpAllowed(lamps, FM_OP_RENAME), false);
    QCOMPARE(p.Model()->GetINISection(lamps), QString());
    QVERIFY(p.Model()->GetMappedFolderPath(p.Item({QStringLiteral("Catalogue")})).isEmpty());
}

void tst_GuideAliasTables::watchedCategoriesFollowTheDisk()
{
    const CataloguePane p;
    QVERIFY(p.Load());
    QCOMPARE(p.Labels({QStringLiteral("Catalogue"), QStringLiteral("Lamps")}), QStringList());
    p.m_folder.Folder(QStringLiteral("archive/2020"));
    QTRY_COMPARE(p.Labels({QStringLiteral("Archive")}),
                 QStringList({QStringLiteral("2019"), QStringLiteral("2020")}));
    const QModelIndex found = p.Item({QStringLiteral("Archive"), QStringLiteral("2020")});
    QCOMPARE(p.Model()->GetINISection(found), QStringLiteral("\\2020"));
    QCOMPARE(p.Model()->IsOpAllowed(found, FM_OP_RENAME), true);
}

void tst_GuideAliasTables::searchStartsAtTheItemThatItIsGiven()
{
    const CataloguePane p;
    QVERIFY(p.Load());
    const QString archive = p.m_folder.Path(QStringLiteral("archive"));
    QVERIFY(!p.m_pPane->SetCurrentAliasTreeSelection(archive, QModelIndex(), false, false));
    QVERIFY(ShowAliases(*p.m_pPane, TableIn(p.m_folder), archive));
}

void tst_GuideAliasTables::tableMayStandInAFile()
{
    const CataloguePane p;
    QVERIFY(p.Load());
    QVERIFY(p.m_pPane->PopulateAliasTable(QStringLiteral(KTFM_LISTINGS "/alias-tables/catalogue.txt")));
    QCOMPARE(p.LabelsInOrder(QModelIndex()).size(), 2);
}

void tst_GuideAliasTables::emptyColumnsCannotStandBetweenOthers()
{
    const CataloguePane p;
    QVERIFY(p.m_pPane->PopulateAliasTable(QStringLiteral("Group\t\ttrue\n")));
    QCOMPARE(p.Model()->GetMappedFolderPath(p.Model()->index(0, 0)), QStringLiteral("true"));
}

KTFM_TEST_MAIN(tst_GuideAliasTables)
#include "tst_guide_aliastables.moc"
