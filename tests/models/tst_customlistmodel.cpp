#include <KTFileManager2QU/CKTFMCustomListModel.h>
#include <KTFileManager2QU/KTFMInterfaces.h>

#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"

#include <QAbstractItemModelTester>
#include <QDropEvent>
#include <QIdentityProxyModel>
#include <QListView>
#include <QListWidgetItem>
#include <QMimeData>
#include <QUrl>

Q_DECLARE_METATYPE(EKTFMShowStringMode)

namespace {

/** A host that answers what the test puts here and counts what it is asked. */
class Host : public CKTFMListModelInterface
{
public:
    QImage HandleListviewDecorationRole(const QModelIndex& index) override
    {
        ++images;
        lastIndex = index;
        return image;
    }
    QString HandleListviewDisplayRole(const QModelIndex& index) override
    {
        ++names;
        lastIndex = index;
        return name;
    }
    QString HandleListviewToolTipRole(const QModelIndex& index) override
    {
        Q_UNUSED(index)
        ++tips;
        return QStringLiteral("a tip");
    }

    QImage image;
    QString name;
    QModelIndex lastIndex;
    int images = 0;
    int names = 0;
    int tips = 0;
};

/** A host that empties the model in the middle of a question. */
class EmptyingHost : public CKTFMListModelInterface
{
public:
    explicit EmptyingHost(CKTFMCustomListModel& model) : m_model(model) {}

    QImage HandleListviewDecorationRole(const QModelIndex& index) override
    {
        Q_UNUSED(index)
        m_model.ClearAllItems();
        return QImage();
    }
    QString HandleListviewDisplayRole(const QModelIndex& index) override
    {
        Q_UNUSED(index)
        m_model.ClearAllItems();
        return QString();
    }

private:
    CKTFMCustomListModel& m_model;
};

/**
 * The model as a list view uses it: rows have no children. The model itself answers its counts for every
 * parent, which no model tester accepts.
 */
class WithoutChildren : public QIdentityProxyModel
{
    Q_OBJECT

public:
    using QIdentityProxyModel::QIdentityProxyModel;

    int rowCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : QIdentityProxyModel::rowCount(parent);
    }
    int columnCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : QIdentityProxyModel::columnCount(parent);
    }
    QModelIndex index(int row, int column, const QModelIndex& parent) const override
    {
        return hasIndex(row, column, parent) ? QIdentityProxyModel::index(row, column, parent)
                                             : QModelIndex();
    }
};

QStringList FourHeaders()
{
    return {QStringLiteral("Name"), QStringLiteral("Size"), QStringLiteral("Type"), QStringLiteral("Date")};
}

QImage Filled(int width, int height, const QColor& color)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

QColor PixelOf(const QVariant& icon, int side)
{
    return icon.value<QIcon>().pixmap(side, side).toImage().pixelColor(side / 2, side / 2);
}

} // namespace

class tst_CustomListModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modelTesterFindsNothingInWhatAListViewUses();
    void addItemInsertsOneRowAtTheEnd();
    void sameItemMayBeAddedTwice();
    void nullItemIsNotAdded();
    void delItemRemovesTheFirstRowOfTheItemOnly();
    void delItemOfNullOrOfAStrangerDoesNothing();
    void delItemLeavesTheItemAlive();
    void clearAllItemsRemovesAllRowsAtOnce();
    void clearAllItemsOfAnEmptyModelEmitsNothing();
    void modelNeverDeletesItsItems();
    void countsIgnoreTheParent();
    void setHeaderTextListEmitsNothing();
    void indexIsMadeForAnyRowAndColumn();
    void noItemHasAParent();
    void dataBeyondTheListIsInvalid();
    void nameFollowsTheShowStringMode_data();
    void nameFollowsTheShowStringMode();
    void hostIsAskedForNamesInModesOneTwoAndFourOnly_data();
    void hostIsAskedForNamesInModesOneTwoAndFourOnly();
    void emptyHostNameFallsBack();
    void nameIsEmptyInOtherColumns();
    void toolTipIsTheShownNameAndNeverTheHostsTip();
    void nameIsAnsweredWithoutColumns();
    void hostImageComesFirst();
    void ownImageComesSecond();
    void ownIconIsNotTakenForAnImage();
    void defaultImageIsWhite();
    void hugeHostImageIsBounded();
    void decorationOfAnUnchangedImageIsMadeOnce();
    void textIsVerticallyCentred();
    void sizeColumn_data();
    void sizeColumn();
    void sizeOfAMissingFileIsMinusOne();
    void sizeOfAFolderIsEmpty();
    void sizeOfALinkIsThatOfItsTarget();
    void sizeOfADanglingLinkIsMinusOne();
    void sizeFollowsTheDefaultLocale();
    void typeColumnIsThePlatformsDescription();
    void dateColumnIsTheShortDateOfTheSystem();
    void toolTipOfAColumnIsItsText();
    void furtherColumnsWarnAndShowTheItemsOwnText();
    void otherRolesAreTheItemsOwn();
    void setDataReachesTheItemAndEmitsNothing();
    void setDataBeyondTheListReturnsFalse();
    void headerSpacerIsTransparent();
    void headerTexts();
    void headersAreAlignedLeft();
    void otherHeaderRolesAreTheBaseClasss();
    void flagsAllowDraggingItemsAndDroppingAnywhere();
    void indexFindsTheFirstExactText();
    void indexFindsByAnyRole();
    void mimeTypeIsTheUrlList();
    void draggingTwoRowsOfFourColumnsGivesTwoUrls();
    void mimeDataKeepsTheOrderGiven();
    void mimeDataOfNothingIsEmpty();
    void mimeDataLeavesOutItemsWithoutText();
    void droppedFilesAreLeftToTheHost();
    void pathOfAnIndexIsUnderTheEditRole();
    void viewSelectsAndFindsItemsOnceThereIsAColumn();
    void hostMayEmptyTheModelWhileItIsAsked();
    void strangeIndexesAreHarmless();
    void strangePathsAreHarmless();
    void listViewShowsTheNames();
};

void tst_CustomListModel::modelTesterFindsNothingInWhatAListViewUses()
{
    const TestFolder folder;
    QListWidgetItem first(folder.File(QStringLiteral("a.txt"), "a"));
    QListWidgetItem second(folder.Folder(QStringLiteral("b")));
    QListWidgetItem third(QStringLiteral("no such file"));
    CKTFMCustomListModel model;
    model.SetHeaderTextList(FourHeaders());
    WithoutChildren view;
    view.setSourceModel(&model);
    const QAbstractItemModelTester tester(&view, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.AddItem(&first);
    model.AddItem(&second);
    model.AddItem(&third);
    model.AddItem(&first);
    model.DelItem(&second);
    model.ClearAllItems();
    model.AddItem(&second);
    QCOMPARE(view.rowCount(QModelIndex()), 1);
}

void tst_CustomListModel::addItemInsertsOneRowAtTheEnd()
{
    QListWidgetItem first;
    QListWidgetItem second;
    CKTFMCustomListModel model;
    model.AddItem(&first);
    const QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    model.AddItem(&second);
    QCOMPARE(inserted.count(), 1);
    QVERIFY(!inserted.at(0).at(0).toModelIndex().isValid());
    QCOMPARE(inserted.at(0).at(1).toInt(), 1);
    QCOMPARE(inserted.at(0).at(2).toInt(), 1);
    QCOMPARE(model.rowCount(), 2);
}

void tst_CustomListModel::sameItemMayBeAddedTwice()
{
    QListWidgetItem item(QStringLiteral("/x/name.txt"));
    CKTFMCustomListModel model;
    model.AddItem(&item);
    model.AddItem(&item);
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.data(model.index(1, 0)).toString(), QStringLiteral("name"));
}

void tst_CustomListModel::nullItemIsNotAdded()
{
    CKTFMCustomListModel model;
    model.AddItem(nullptr);
    QCOMPARE(model.rowCount(), 0);
}

void tst_CustomListModel::delItemRemovesTheFirstRowOfTheItemOnly()
{
    QListWidgetItem first(QStringLiteral("/x/first"));
    QListWidgetItem twice(QStringLiteral("/x/twice"));
    CKTFMCustomListModel model;
    model.AddItem(&first);
    model.AddItem(&twice);
    model.AddItem(&first);
    model.AddItem(&twice);
    const QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    model.DelItem(&twice);
    QCOMPARE(removed.count(), 1);
    QCOMPARE(removed.at(0).at(1).toInt(), 1);
    QCOMPARE(removed.at(0).at(2).toInt(), 1);
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(model.data(model.index(2, 0)).toString(), QStringLiteral("twice"));
}

void tst_CustomListModel::delItemOfNullOrOfAStrangerDoesNothing()
{
    QListWidgetItem item;
    QListWidgetItem stranger;
    CKTFMCustomListModel model;
    model.AddItem(&item);
    const QSignalSpy removed(&model, &QAbstractItemModel::rowsAboutToBeRemoved);
    model.DelItem(nullptr);
    model.DelItem(&stranger);
    QCOMPARE(removed.count(), 0);
    QCOMPARE(model.rowCount(), 1);
}

void tst_CustomListModel::delItemLeavesTheItemAlive()
{
    QListWidgetItem item(QStringLiteral("/x/kept"));
    CKTFMCustomListModel model;
    model.AddItem(&item);
    model.DelItem(&item);
    QCOMPARE(item.text(), QStringLiteral("/x/kept"));
}

void tst_CustomListModel::clearAllItemsRemovesAllRowsAtOnce()
{
    QListWidgetItem item;
    CKTFMCustomListModel model;
    for (int i = 0; i < 5; ++i)
        model.AddItem(&item);
    const QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    model.ClearAllItems();
    QCOMPARE(removed.count(), 1);
    QCOMPARE(removed.at(0).at(1).toInt(), 0);
    QCOMPARE(removed.at(0).at(2).toInt(), 4);
    QCOMPARE(model.rowCount(), 0);
}

void tst_CustomListModel::clearAllItemsOfAnEmptyModelEmitsNothing()
{
    CKTFMCustomListModel model;
    const QSignalSpy removed(&model, &QAbstractItemModel::rowsAboutToBeRemoved);
    model.ClearAllItems();
    QCOMPARE(removed.count(), 0);
}

void tst_CustomListModel::modelNeverDeletesItsItems()
{
    QListWidgetItem item(QStringLiteral("/x/kept"));
    {
        CKTFMCustomListModel model;
        model.AddItem(&item);
    }
    QCOMPARE(item.text(), QStringLiteral("/x/kept"));
}

void tst_CustomListModel::countsIgnoreTheParent()
{
    QListWidgetItem item;
    CKTFMCustomListModel model;
    QCOMPARE(model.columnCount(), 0);
    model.SetHeaderTextList(FourHeaders());
    model.AddItem(&item);
    const QModelIndex row = model.index(0, 0);
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(model.columnCount(), 4);
    QCOMPARE(model.rowCount(row), 1);
    QCOMPARE(model.columnCount(row), 4);
}

void tst_CustomListModel::setHeaderTextListEmitsNothing()
{
    qRegisterMetaType<Qt::Orientation>();
    qRegisterMetaType<QList<QPersistentModelIndex>>();
    qRegisterMetaType<QAbstractItemModel::LayoutChangeHint>();
    CKTFMCustomListModel model;
    const QSignalSpy header(&model, &QAbstractItemModel::headerDataChanged);
    const QSignalSpy columns(&model, &QAbstractItemModel::columnsInserted);
    const QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    const QSignalSpy layout(&model, &QAbstractItemModel::layoutChanged);
    model.SetHeaderTextList(FourHeaders());
    QCOMPARE(header.count() + columns.count() + reset.count() + layout.count(), 0);
    QCOMPARE(model.columnCount(), 4);
    model.SetHeaderTextList({QStringLiteral("Only")});
    QCOMPARE(model.columnCount(), 1);
}

void tst_CustomListModel::indexIsMadeForAnyRowAndColumn()
{
    const CKTFMCustomListModel model;
    const QModelIndex far = model.index(7, 9, model.index(3, 3));
    QVERIFY(far.isValid());
    QCOMPARE(far.row(), 7);
    QCOMPARE(far.column(), 9);
    QVERIFY(!model.index(-1, 0).isValid());
}

void tst_CustomListModel::noItemHasAParent()
{
    const CKTFMCustomListModel model;
    QVERIFY(!model.parent(model.index(0, 0)).isValid());
    QVERIFY(!model.parent(QModelIndex()).isValid());
}

void tst_CustomListModel::dataBeyondTheListIsInvalid()
{
    QListWidgetItem item(QStringLiteral("/x/name"));
    CKTFMCustomListModel model;
    QVERIFY(!model.data(model.index(0, 0)).isValid());
    model.AddItem(&item);
    QVERIFY(model.data(model.index(0, 0)).isValid());
    QVERIFY(!model.data(QModelIndex()).isValid());
    QVERIFY(!model.data(model.index(1, 0)).isValid());
    QVERIFY(!model.data(model.index(1, 0), Qt::DecorationRole).isValid());
    QVERIFY(!model.data(model.index(-1, 0)).isValid());
    QVERIFY(!model.data(model.index(0, -1)).isValid());
}

void tst_CustomListModel::nameFollowsTheShowStringMode_data()
{
    QTest::addColumn<EKTFMShowStringMode>("mode");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<bool>("wholePath");
    const QString none;
    QTest::newRow("full name") << FM_SHOW_STRING_FULL_NAME << none << none << false;
    QTest::newRow("base name") << FM_SHOW_STRING_BASE_NAME << "a.tar"
                               << "b.old" << false;
    QTest::newRow("callback") << FM_SHOW_STRING_CALLBACK << "a.tar.gz"
                              << "b.old" << false;
    QTest::newRow("INI") << FM_SHOW_STRING_INI << none << none << false;
    QTest::newRow("custom") << FM_SHOW_STRING_CUSTOM << "a.tar.gz"
                            << "b.old" << true;
    QTest::newRow("beyond") << static_cast<EKTFMShowStringMode>(5) << none << none << false;
    QTest::newRow("negative") << static_cast<EKTFMShowStringMode>(-1) << none << none << false;
}

void tst_CustomListModel::nameFollowsTheShowStringMode()
{
    QFETCH(EKTFMShowStringMode, mode);
    QFETCH(QString, file);
    QFETCH(QString, folder);
    QFETCH(bool, wholePath);
    const TestFolder place;
    const QString prefix = wholePath ? place.Path(QString()) : QString();
    QListWidgetItem fileItem(place.File(QStringLiteral("a.tar.gz")));
    QListWidgetItem folderItem(place.Folder(QStringLiteral("b.old")));
    CKTFMCustomListModel model;
    model.AddItem(&fileItem);
    model.AddItem(&folderItem);
    model.SetShowStringMode(mode);
    QCOMPARE(model.data(model.index(0, 0)).toString(), prefix + file);
    QCOMPARE(model.data(model.index(1, 0)).toString(), prefix + folder);
    QCOMPARE(model.HandleDisplayRole(model.index(1, 0)), prefix + folder);
}

void tst_CustomListModel::hostIsAskedForNamesInModesOneTwoAndFourOnly_data()
{
    QTest::addColumn<EKTFMShowStringMode>("mode");
    QTest::addColumn<int>("questions");
    for (int mode = -1; mode <= 5; ++mode) {
        const bool asks = mode == 1 || mode == 2 || mode == 4;
        QTest::addRow("%d", mode) << static_cast<EKTFMShowStringMode>(mode) << (asks ? 1 : 0);
    }
}

void tst_CustomListModel::hostIsAskedForNamesInModesOneTwoAndFourOnly()
{
    QFETCH(EKTFMShowStringMode, mode);
    QFETCH(int, questions);
    Host host;
    host.name = QStringLiteral("host's name");
    QListWidgetItem item(QStringLiteral("/x/name.txt"));
    CKTFMCustomListModel model;
    model.AddItem(&item);
    model.SetInterface(&host);
    model.SetShowStringMode(mode);
    const QString shown = model.data(model.index(0, 0)).toString();
    QCOMPARE(host.names, questions);
    QCOMPARE(shown, questions ? host.name : QString());
    if (questions)
        QCOMPARE(host.lastIndex, model.index(0, 0));
}

void tst_CustomListModel::emptyHostNameFallsBack()
{
    Host host;
    QListWidgetItem item(QStringLiteral("/x/name.txt"));
    CKTFMCustomListModel model;
    model.AddItem(&item);
    model.SetInterface(&host);
    QCOMPARE(model.data(model.index(0, 0)).toString(), QStringLiteral("name"));
    host.name = QLatin1String("");
    model.SetShowStringMode(FM_SHOW_STRING_CALLBACK);
    QCOMPARE(model.data(model.index(0, 0)).toString(), QStringLiteral("name.txt"));
    model.SetShowStringMode(FM_SHOW_STRING_CUSTOM);
    QCOMPARE(model.data(model.index(0, 0)).toString(), QStringLiteral("/x/name.txt"));
    QCOMPARE(host.names, 3);
}

void tst_CustomListModel::nameIsEmptyInOtherColumns()
{
    Host host;
    host.name = QStringLiteral("host's name");
    QListWidgetItem item(QStringLiteral("/x/name.txt"));
    CKTFMCustomListModel model;
    model.AddItem(&item);
    model.SetInterface(&host);
    QCOMPARE(model.HandleDisplayRole(model.index(0, 1)), QString());
    QCOMPARE(model.HandleDisplayRole(QModelIndex()), QString());
    QCOMPARE(model.data(model.index(0, 1)).toString(), QString());
    QCOMPARE(host.names, 0);
}

void tst_CustomListModel::toolTipIsTheShownNameAndNeverTheHostsTip()
{
    Host host;
    QListWidgetItem item(QStringLiteral("/x/name.txt"));
    item.setToolTip(QStringLiteral("own tip"));
    CKTFMCustomListModel model;
    model.AddItem(&item);
    model.SetInterface(&host);
    const QModelIndex index = model.index(0, 0);
    QCOMPARE(model.data(index, Qt::ToolTipRole).toString(), QStringLiteral("name"));
    QCOMPARE(model.HandleToolTipRole(index), QStringLiteral("name"));
    host.name = QStringLiteral("host's name");
    QCOMPARE(model.data(index, Qt::ToolTipRole).toString(), host.name);
    QCOMPARE(model.HandleToolTipRole(index), host.name);
    QCOMPARE(host.tips, 0);
}

void tst_CustomListModel::nameIsAnsweredWithoutColumns()
{
    QListWidgetItem item(QStringLiteral("/x/name.txt"));
    CKTFMCustomListModel model;
    model.AddItem(&item);
    QCOMPARE(model.columnCount(), 0);
    QCOMPARE(model.data(model.index(0, 0)).toString(), QStringLiteral("name"));
}

void tst_CustomListModel::hostImageComesFirst()
{
    Host host;
    host.image = Filled(60, 60, Qt::red);
    QListWidgetItem item(QStringLiteral("/x/name.txt"));
    item.setData(Qt::DecorationRole, Filled(60, 60, Qt::green));
    CKTFMCustomListModel model;
    model.AddItem(&item);
    model.SetInterface(&host);
    QCOMPARE(model.HandleListviewDecorationRole(model.index(0, 0)), host.image);
    const QVariant decoration = model.data(model.index(0, 0), Qt::DecorationRole);
    QCOMPARE(decoration.userType(), static_cast<int>(QMetaType::QIcon));
    QCOMPARE(PixelOf(decoration, 60), QColor(Qt::red));
    QCOMPARE(host.images, 2);
    QCOMPARE(host.lastIndex, model.index(0, 0));
}

void tst_CustomListModel::ownImageComesSecond()
{
    Host host;
    QListWidgetItem item(QStringLiteral("/x/name.txt"));
    item.setData(Qt::DecorationRole, Filled(60, 60, Qt::green));
    CKTFMCustomListModel model;
    model.AddItem(&item);
    model.SetInterface(&host);
    QCOMPARE(PixelOf(model.data(model.index(0, 0), Qt::DecorationRole), 60), QColor(Qt::green));
    item.setData(Qt::DecorationRole, QPixmap::fromImage(Filled(60, 60, Qt::blue)));
    QCOMPARE(PixelOf(model.data(model.index(0, 0), Qt::DecorationRole), 60), QColor(Qt::blue));
    QCOMPARE(host.images, 2);
}

void tst_CustomListModel::ownIconIsNotTakenForAnImage()
{
    QListWidgetItem item(QStringLiteral("/x/name.txt"));
    item.setIcon(QIcon(QPixmap::fromImage(Filled(60, 60, Qt::green))));
    CKTFMCustomListModel model;
    model.AddItem(&item);
    QCOMPARE(PixelOf(model.data(model.index(0, 0), Qt::DecorationRole), 60), QColor(Qt::white));
}

void tst_CustomListModel::defaultImageIsWhite()
{
    QListWidgetItem item(QStringLiteral("/x/name.txt"));
    CKTFMCustomListModel model;
    model.AddItem(&item);
    const QImage image = model.HandleListviewDecorationRole(model.index(0, 0));
    QCOMPARE(image.size(), QSize(125, 125));
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::white));
    QCOMPARE(image.pixelColor(124, 124), QColor(Qt::white));
    const auto icon = model.data(model.index(0, 0), Qt::DecorationRole).value<QIcon>();
    QCOMPARE(icon.availableSizes(), QList<QSize>{QSize(125, 125)});
}

void tst_CustomListModel::hugeHostImageIsBounded()
{
    Host host;
    host.image = QImage(20000, 10000, QImage::Format_Mono);
    host.image.fill(1);
    QListWidgetItem item(QStringLiteral("/x/name.txt"));
    CKTFMCustomListModel model;
    model.AddItem(&item);
    model.SetInterface(&host);
    const auto icon = model.data(model.index(0, 0), Qt::DecorationRole).value<QIcon>();
    QVERIFY(!icon.isNull());
    QVERIFY(icon.availableSizes().constFirst().width() < 20000);
}

void tst_CustomListModel::decorationOfAnUnchangedImageIsMadeOnce()
{
    Host host;
    host.image = Filled(60, 60, Qt::red);
    QListWidgetItem item(QStringLiteral("/x/name.txt"));
    CKTFMCustomListModel model;
    model.AddItem(&item);
    model.SetInterface(&host);
    const auto first = model.data(model.index(0, 0), Qt::DecorationRole).value<QIcon>();
    const auto again = model.data(model.index(0, 0), Qt::DecorationRole).value<QIcon>();
    QCOMPARE(again.cacheKey(), first.cacheKey());
}

void tst_CustomListModel::textIsVerticallyCentred()
{
    QListWidgetItem item(QStringLiteral("/x/name.txt"));
    CKTFMCustomListModel model;
    model.AddItem(&item);
    QCOMPARE(model.data(model.index(0, 0), Qt::TextAlignmentRole).toInt(),
             static_cast<int>(Qt::AlignVCenter));
    QCOMPARE(model.data(model.index(0, 3), Qt::TextAlignmentRole).toInt(),
             static_cast<int>(Qt::AlignVCenter));
}

void tst_CustomListModel::sizeColumn_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<QString>("text");
    constexpr qint64 one = 1;
    QTest::newRow("0") << qint64(0) << "0 bytes";
    QTest::newRow("1") << qint64(1) << "1 bytes";
    QTest::newRow("1023") << qint64(1023) << "1,023 bytes";
    QTest::newRow("1024") << qint64(1024) << "1 KB";
    QTest::newRow("1536 is cut off") << qint64(1536) << "1 KB";
    QTest::newRow("2^20 - 1") << (one << 20) - 1 << "1,023 KB";
    QTest::newRow("2^20") << (one << 20) << "1.0 MB";
    QTest::newRow("1.5 MB") << 3 * (one << 19) << "1.5 MB";
    QTest::newRow("2^30 - 1") << (one << 30) - 1 << "1,024.0 MB";
    QTest::newRow("2^30") << (one << 30) << "1.00 GB";
    QTest::newRow("2^40 - 1") << (one << 40) - 1 << "1,024.00 GB";
    QTest::newRow("2^40") << (one << 40) << "1.000 TB";
    QTest::newRow("2.5 TB") << 5 * (one << 39) << "2.500 TB";
}

void tst_CustomListModel::sizeColumn()
{
    QFETCH(qint64, size);
    QFETCH(QString, text);
    const TestFolder folder;
    QFile file(folder.File(QStringLiteral("sparse")));
    QVERIFY2(file.resize(size), "the temporary folder's file system refuses a sparse file of this size");
    QListWidgetItem item(file.fileName());
    CKTFMCustomListModel model;
    model.SetHeaderTextList(FourHeaders());
    model.AddItem(&item);
    QCOMPARE(model.data(model.index(0, 1)).toString(), text);
}

void tst_CustomListModel::sizeOfAMissingFileIsMinusOne()
{
    const TestFolder folder;
    QListWidgetItem item(folder.Path(QStringLiteral("missing")));
    CKTFMCustomListModel model;
    model.SetHeaderTextList(FourHeaders());
    model.AddItem(&item);
    QCOMPARE(model.data(model.index(0, 1)).toString(), QStringLiteral("-1 bytes"));
}

void tst_CustomListModel::sizeOfAFolderIsEmpty()
{
    const TestFolder folder;
    QListWidgetItem item(folder.Path());
    CKTFMCustomListModel model;
    model.SetHeaderTextList(FourHeaders());
    model.AddItem(&item);
    QCOMPARE(model.data(model.index(0, 1)).toString(), QString());
}

void tst_CustomListModel::sizeOfALinkIsThatOfItsTarget()
{
    const TestFolder folder;
    const QString target = folder.File(QStringLiteral("target"), QByteArray(2048, 'x'));
    QListWidgetItem item(folder.Link(target, QStringLiteral("link.lnk")));
    CKTFMCustomListModel model;
    model.SetHeaderTextList(FourHeaders());
    model.AddItem(&item);
    QCOMPARE(model.data(model.index(0, 1)).toString(), QStringLiteral("2 KB"));
}

void tst_CustomListModel::sizeOfADanglingLinkIsMinusOne()
{
    const TestFolder folder;
    QListWidgetItem item(folder.Link(folder.Path(QStringLiteral("nowhere")), QStringLiteral("link.lnk")));
    CKTFMCustomListModel model;
    model.SetHeaderTextList(FourHeaders());
    model.AddItem(&item);
    QCOMPARE(model.data(model.index(0, 1)).toString(), QStringLiteral("-1 bytes"));
}

void tst_CustomListModel::sizeFollowsTheDefaultLocale()
{
    const TestFolder folder;
    QListWidgetItem item(folder.File(QStringLiteral("file"), QByteArray(3 << 19, 'x')));
    CKTFMCustomListModel model;
    model.SetHeaderTextList(FourHeaders());
    model.AddItem(&item);
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const QString text = model.data(model.index(0, 1)).toString();
    QLocale::setDefault(before);
    QCOMPARE(text, QStringLiteral("1,5 MB"));
}

void tst_CustomListModel::typeColumnIsThePlatformsDescription()
{
    const TestFolder folder;
    QListWidgetItem file(folder.File(QStringLiteral("a.txt")));
    QListWidgetItem place(folder.Path());
    CKTFMCustomListModel model;
    model.SetHeaderTextList(FourHeaders());
    model.AddItem(&file);
    model.AddItem(&place);
    const QFileIconProvider provider;
    const QString fileType = provider.type(QFileInfo(file.text()));
    const QString folderType = provider.type(QFileInfo(place.text()));
    QVERIFY(fileType != folderType);
    QCOMPARE(model.data(model.index(0, 2)).toString(), fileType);
    QCOMPARE(model.data(model.index(1, 2)).toString(), folderType);
}

void tst_CustomListModel::dateColumnIsTheShortDateOfTheSystem()
{
    const TestFolder folder;
    const QDateTime modified(QDate(2021, 3, 4), QTime(5, 6, 7));
    QListWidgetItem file(folder.File(QStringLiteral("a.txt"), "a", modified));
    QListWidgetItem missing(folder.Path(QStringLiteral("missing")));
    CKTFMCustomListModel model;
    model.SetHeaderTextList(FourHeaders());
    model.AddItem(&file);
    model.AddItem(&missing);
    QCOMPARE(model.data(model.index(0, 3)).toString(),
             QLocale::system().toString(modified, QLocale::ShortFormat));
    QVERIFY(!model.data(model.index(0, 3)).toString().isEmpty());
    QCOMPARE(model.data(model.index(1, 3)).toString(), QString());
}

void tst_CustomListModel::toolTipOfAColumnIsItsText()
{
    const TestFolder folder;
    QListWidgetItem item(folder.File(QStringLiteral("a.txt"), "abc"));
    CKTFMCustomListModel model;
    model.SetHeaderTextList(FourHeaders());
    model.AddItem(&item);
    for (int column = 0; column < 4; ++column) {
        const QModelIndex index = model.index(0, column);
        QVERIFY(!model.data(index).toString().isEmpty());
        QCOMPARE(model.data(index, Qt::ToolTipRole), model.data(index));
    }
}

void tst_CustomListModel::furtherColumnsWarnAndShowTheItemsOwnText()
{
    QListWidgetItem item(QStringLiteral("/x/name.txt"));
    item.setToolTip(QStringLiteral("own tip"));
    CKTFMCustomListModel model;
    model.SetHeaderTextList(FourHeaders() << QStringLiteral("Fifth"));
    model.AddItem(&item);
    QTest::ignoreMessage(QtWarningMsg, "data: invalid display value column 4");
    QCOMPARE(model.data(model.index(0, 4)).toString(), QStringLiteral("/x/name.txt"));
    QTest::ignoreMessage(QtWarningMsg, "data: invalid display value column 4");
    QCOMPARE(model.data(model.index(0, 4), Qt::ToolTipRole).toString(), QStringLiteral("own tip"));
}

void tst_CustomListModel::otherRolesAreTheItemsOwn()
{
    QListWidgetItem item(QStringLiteral("/x/name.txt"));
    item.setData(Qt::UserRole, 17);
    CKTFMCustomListModel model;
    model.AddItem(&item);
    QCOMPARE(model.data(model.index(0, 0), Qt::UserRole).toInt(), 17);
    QCOMPARE(model.data(model.index(0, 2), Qt::EditRole).toString(), QStringLiteral("/x/name.txt"));
    QVERIFY(!model.data(model.index(0, 0), Qt::FontRole).isValid());
}

void tst_CustomListModel::setDataReachesTheItemAndEmitsNothing()
{
    QListWidgetItem item(QStringLiteral("/x/name.txt"));
    CKTFMCustomListModel model;
    model.AddItem(&item);
    const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    QVERIFY(model.setData(model.index(0, 0), QStringLiteral("/y/other.txt")));
    QVERIFY(model.setData(model.index(0, 3), 5, Qt::UserRole));
    QCOMPARE(item.text(), QStringLiteral("/y/other.txt"));
    QCOMPARE(item.data(Qt::UserRole).toInt(), 5);
    QCOMPARE(model.data(model.index(0, 0)).toString(), QStringLiteral("other"));
    QCOMPARE(changed.count(), 0);
}

void tst_CustomListModel::setDataBeyondTheListReturnsFalse()
{
    QListWidgetItem item(QStringLiteral("/x/name.txt"));
    CKTFMCustomListModel model;
    model.AddItem(&item);
    QVERIFY(!model.setData(QModelIndex(), QStringLiteral("other")));
    QVERIFY(!model.setData(model.index(1, 0), QStringLiteral("other")));
    QVERIFY(!model.setData(model.index(-1, 0), QStringLiteral("other")));
    QCOMPARE(item.text(), QStringLiteral("/x/name.txt"));
}

void tst_CustomListModel::headerSpacerIsTransparent()
{
    const CKTFMCustomListModel model;
    const QVariant spacer = model.headerData(0, Qt::Horizontal, Qt::DecorationRole);
    QCOMPARE(spacer.userType(), static_cast<int>(QMetaType::QImage));
    const auto image = spacer.value<QImage>();
    QCOMPARE(image.size(), QSize(16, 1));
    for (int x = 0; x < image.width(); ++x)
        QCOMPARE(qAlpha(image.pixel(x, 0)), 0);
    QVERIFY(!model.headerData(1, Qt::Horizontal, Qt::DecorationRole).isValid());
}

void tst_CustomListModel::headerTexts()
{
    CKTFMCustomListModel model;
    QVERIFY(!model.headerData(0, Qt::Horizontal).isValid());
    model.SetHeaderTextList(FourHeaders());
    QCOMPARE(model.headerData(0, Qt::Horizontal).toString(), QStringLiteral("Name"));
    QCOMPARE(model.headerData(3, Qt::Horizontal).toString(), QStringLiteral("Date"));
    QVERIFY(!model.headerData(4, Qt::Horizontal).isValid());
    QVERIFY(!model.headerData(-1, Qt::Horizontal).isValid());
}

void tst_CustomListModel::headersAreAlignedLeft()
{
    const CKTFMCustomListModel model;
    const int left = static_cast<int>(Qt::AlignLeft);
    QCOMPARE(model.headerData(0, Qt::Horizontal, Qt::TextAlignmentRole).toInt(), left);
    QCOMPARE(model.headerData(9, Qt::Vertical, Qt::TextAlignmentRole).toInt(), left);
}

void tst_CustomListModel::otherHeaderRolesAreTheBaseClasss()
{
    CKTFMCustomListModel model;
    model.SetHeaderTextList(FourHeaders());
    QCOMPARE(model.headerData(2, Qt::Vertical).toInt(), 3);
    QVERIFY(!model.headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());
}

void tst_CustomListModel::flagsAllowDraggingItemsAndDroppingAnywhere()
{
    QListWidgetItem item;
    CKTFMCustomListModel model;
    model.AddItem(&item);
    QCOMPARE(model.flags(model.index(0, 0)),
             Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled);
    QCOMPARE(model.flags(QModelIndex()), Qt::ItemFlags(Qt::ItemIsDropEnabled));
}

void tst_CustomListModel::indexFindsTheFirstExactText()
{
    QListWidgetItem upper(QStringLiteral("/x/Name.txt"));
    QListWidgetItem first(QStringLiteral("/x/name.txt"));
    QListWidgetItem second(QStringLiteral("/y/name.txt"));
    CKTFMCustomListModel model;
    model.AddItem(&upper);
    model.AddItem(&first);
    model.AddItem(&second);
    const QModelIndex found = model.index(QStringLiteral("name"), Qt::DisplayRole);
    QCOMPARE(found, model.index(1, 0));
    QVERIFY(!model.index(QStringLiteral("nam"), Qt::DisplayRole).isValid());
    QVERIFY(!model.index(QStringLiteral("NAME"), Qt::DisplayRole).isValid());
}

void tst_CustomListModel::indexFindsByAnyRole()
{
    QListWidgetItem item(QStringLiteral("/x/name.txt"));
    item.setData(Qt::UserRole, 42);
    CKTFMCustomListModel model;
    model.AddItem(&item);
    QCOMPARE(model.index(QStringLiteral("/x/name.txt"), Qt::EditRole), model.index(0, 0));
    QCOMPARE(model.index(QStringLiteral("42"), Qt::UserRole), model.index(0, 0));
}

void tst_CustomListModel::mimeTypeIsTheUrlList()
{
    const CKTFMCustomListModel model;
    QCOMPARE(model.mimeTypes(), QStringList{QStringLiteral("text/uri-list")});
}

void tst_CustomListModel::draggingTwoRowsOfFourColumnsGivesTwoUrls()
{
    QListWidgetItem first(QStringLiteral("/x/one & two%20#.txt"));
    QListWidgetItem second(QStringLiteral("/x/three"));
    CKTFMCustomListModel model;
    model.SetHeaderTextList(FourHeaders());
    model.AddItem(&first);
    model.AddItem(&second);
    QModelIndexList indexes;
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 4; ++column)
            indexes << model.index(row, column);
    }
    const QScopedPointer<QMimeData> mime(model.mimeData(indexes));
    QCOMPARE(mime->formats(), model.mimeTypes());
    QCOMPARE(mime->urls().size(), 2);
    QCOMPARE(mime->urls().at(0).toLocalFile(), first.text());
    QCOMPARE(mime->urls().at(1).toLocalFile(), second.text());
}

void tst_CustomListModel::mimeDataKeepsTheOrderGiven()
{
    QListWidgetItem first(QStringLiteral("/x/1"));
    QListWidgetItem second(QStringLiteral("/x/2"));
    CKTFMCustomListModel model;
    model.AddItem(&first);
    model.AddItem(&second);
    const QScopedPointer<QMimeData> mime(model.mimeData({model.index(1, 0), model.index(0, 0)}));
    QCOMPARE(mime->urls(),
             (QList<QUrl>{QUrl::fromLocalFile(second.text()), QUrl::fromLocalFile(first.text())}));
}

void tst_CustomListModel::mimeDataOfNothingIsEmpty()
{
    const CKTFMCustomListModel model;
    const QScopedPointer<QMimeData> mime(model.mimeData({}));
    QVERIFY(mime);
    QVERIFY(mime->urls().isEmpty());
}

void tst_CustomListModel::mimeDataLeavesOutItemsWithoutText()
{
    QListWidgetItem empty;
    QListWidgetItem item(QStringLiteral("/x/1"));
    CKTFMCustomListModel model;
    model.AddItem(&empty);
    model.AddItem(&item);
    const QScopedPointer<QMimeData> mime(
        model.mimeData({model.index(0, 0), model.index(1, 0), model.index(2, 0), QModelIndex()}));
    QCOMPARE(mime->urls(), QList<QUrl>{QUrl::fromLocalFile(item.text())});
}

void tst_CustomListModel::droppedFilesAreLeftToTheHost()
{
    QListWidgetItem item(QStringLiteral("/x/1"));
    CKTFMCustomListModel model;
    model.AddItem(&item);
    QListView view;
    view.setViewMode(QListView::IconMode); // takes drops unless told otherwise
    view.setModel(&model);
    view.resize(300, 200);
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(QStringLiteral("/x/2")), QUrl::fromLocalFile(QStringLiteral("/x/3"))});
    QDropEvent drop(QPointF(150, 150), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view.viewport(), &drop);
    QCOMPARE(model.rowCount(), 1);
    QVERIFY(!model.dropMimeData(&files, Qt::CopyAction, 0, 0, model.index(0, 0)));
    QCOMPARE(model.rowCount(), 1);
}

void tst_CustomListModel::pathOfAnIndexIsUnderTheEditRole()
{
    QListWidgetItem item(QStringLiteral("/x/name.txt"));
    CKTFMCustomListModel model;
    model.AddItem(&item);
    QCOMPARE(model.index(0, 0).data(Qt::EditRole).toString(), item.text());
}

void tst_CustomListModel::viewSelectsAndFindsItemsOnceThereIsAColumn()
{
    QListWidgetItem first(QStringLiteral("/x/one"));
    QListWidgetItem second(QStringLiteral("/x/two"));
    CKTFMCustomListModel model;
    model.SetHeaderTextList({QStringLiteral("Name")});
    model.AddItem(&first);
    model.AddItem(&second);
    QListView view;
    view.setSelectionMode(QAbstractItemView::ExtendedSelection);
    view.setModel(&model);
    view.keyboardSearch(QStringLiteral("tw"));
    QCOMPARE(view.currentIndex(), model.index(1, 0));
    view.selectAll();
    QCOMPARE(view.selectionModel()->selectedRows().size(), 2);
}

void tst_CustomListModel::hostMayEmptyTheModelWhileItIsAsked()
{
    QListWidgetItem item(QStringLiteral("/x/name.txt"));
    CKTFMCustomListModel model;
    EmptyingHost host(model);
    model.SetInterface(&host);
    model.AddItem(&item);
    QCOMPARE(model.data(model.index(0, 0)).toString(), QStringLiteral("name"));
    QCOMPARE(model.rowCount(), 0);
    model.AddItem(&item);
    QVERIFY(!model.data(model.index(0, 0), Qt::DecorationRole).value<QIcon>().isNull());
    QCOMPARE(model.rowCount(), 0);
}

void tst_CustomListModel::strangeIndexesAreHarmless()
{
    QListWidgetItem item(QStringLiteral("/x/name.txt"));
    CKTFMCustomListModel model;
    CKTFMCustomListModel other;
    for (int i = 0; i < 3; ++i)
        other.AddItem(&item);
    model.AddItem(&item);
    const QModelIndex strange = other.index(2, 0);
    QVERIFY(!model.data(strange).isValid());
    QVERIFY(!model.setData(strange, 1, Qt::UserRole));
    QCOMPARE(model.HandleDisplayRole(strange), QString());
    QCOMPARE(model.HandleToolTipRole(strange), QString());
    QCOMPARE(model.HandleListviewDecorationRole(strange).size(), QSize(125, 125));
    QVERIFY(!model.parent(strange).isValid());
    QVERIFY(!model.flags(strange).testFlag(Qt::ItemIsEnabled));
    const QScopedPointer<QMimeData> mime(model.mimeData({strange}));
    QVERIFY(mime->urls().isEmpty());
}

void tst_CustomListModel::strangePathsAreHarmless()
{
    CKTFMCustomListModel model;
    model.SetHeaderTextList(FourHeaders());
    QList<QListWidgetItem*> items;
    const QStringList paths{QString(),
                            QStringLiteral("/"),
                            QStringLiteral("//"),
                            QStringLiteral(".."),
                            QStringLiteral("%1%2"),
                            QString(100000, QLatin1Char('x')),
                            QStringLiteral("a\nb\tc")};
    for (const QString& path : paths) {
        items << new QListWidgetItem(path);
        model.AddItem(items.last());
    }
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < 4; ++column)
            QCOMPARE(model.data(model.index(row, column)).userType(), static_cast<int>(QMetaType::QString));
    }
    QCOMPARE(model.data(model.index(4, 0)).toString(), QStringLiteral("%1%2"));
    QCOMPARE(model.data(model.index(0, 1)).toString(), QStringLiteral("-1 bytes"));
    qDeleteAll(items);
}

void tst_CustomListModel::listViewShowsTheNames()
{
    QListWidgetItem item(QStringLiteral("/x/name.txt"));
    CKTFMCustomListModel model;
    model.SetHeaderTextList(FourHeaders());
    QListView view;
    view.setModel(&model);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    model.AddItem(&item);
    QTRY_VERIFY(!view.visualRect(model.index(0, 0)).isEmpty());
    QCOMPARE(view.indexAt(view.visualRect(model.index(0, 0)).center()), model.index(0, 0));
}

KTFM_TEST_MAIN(tst_CustomListModel)
#include "tst_customlistmodel.moc"
