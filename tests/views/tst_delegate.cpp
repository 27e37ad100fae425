#include <KTFileManager2QU/CKTFMDelegate.h>

#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"

#include <QFileSystemModel>
#include <QHoverEvent>
#include <QIdentityProxyModel>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>

#include <cmath>
#include <limits>

class tst_Delegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void diesWithItsParent();
    void flagsAreReadBack();

    void sizeIsThumbnailPlusSpacing();
    void sizeFollowsTheSpacing_data();
    void sizeFollowsTheSpacing();
    void sizeDoesNotDependOnTheName();

    void plainItemHasNoHighlight();
    void defaultHighlightsAreGrayAndBlack();
    void hoverHighlightIsAGradient();
    void selectionHighlightIsAGradient();
    void hoverWinsOverSelection();
    void highlightStaysOnePixelInsideTheCell();
    void frameHasThePenColour();
    void radiusRoundsTheCorners();

    void folderStandsFivePixelsLowerThanAFile();
    void outlinedFileStandsFivePixelsLower();
    void outlineLeavesFoldersAlone();
    void backdropOfAFileIsLightGray();
    void backdropOfACustomFileIsDarkerGray();
    void folderIsFoundThroughTheProxy();
    void folderIsFoundWithoutAProxy();
    void modelsOfOtherClassesShowFiles_data();
    void modelsOfOtherClassesShowFiles();
    void deletedModelsShowFiles();
    void customModelTextThatIsAPathMakesAFolder();
    void customModelIsAskedByRowBehindAProxy();
    void customModelThatIsNotThereShowsFiles();

    void thumbnailIsDrawnPlainWhenSelected();
    void nameIsDrawnInItsAreaInGray();
    void nameHasOneColourInEveryState();
    void nameHasTheColourThatTheHostSets();
    void nameAreaFollowsSpacingAndRatio();
    void longNameStaysInItsArea();
    void absurdSettingsArePainted_data();
    void absurdSettingsArePainted();
    void painterIsLeftAsItWas();
    void styleSheetOfTheViewChangesNothing();

    void releaseOutsideTheNameIsConsumed();
    void releaseOnTheNameIsTheBaseClassesToHandle();
    void clickableAreaIsOfAFixedFont();
    void otherEventsAreTheBaseClassesToHandle();
    void clickOnTheThumbnailOfASelectedItemDoesNotRename();
    void clickOnTheNameOfASelectedItemRenames();

    void nameIsStoredWithoutBlanksAroundIt();
    void nameWithAForbiddenCharacterIsRefused_data();
    void nameWithAForbiddenCharacterIsRefused();
    void blankNameIsRefused_data();
    void blankNameIsRefused();
    void refusalWithoutFunctorEndsSilently();
    void functorMayReplaceItself();
    void otherEditorsChangeNothing();

    void editorSitsOnTheBottomOfTheItem();
    void editorGrowsByOnePixelAtEachCall();
    void noEditorIsPlacedWithoutHarm();
};

namespace {

/** The colour of every thumbnail: no other thing in a picture is green. */
const QRgb ThumbnailColor = qRgb(0, 200, 0);
constexpr int ThumbnailSize = 96;

/** A full block: its glyph is one filled rectangle, whose inner pixels have the pen's colour exactly. */
const QChar Block(0x2588);

/** A file-system model whose items all have the same green image. */
class GreenFiles : public QFileSystemModel
{
public:
    GreenFiles()
    {
        QPixmap pixmap(ThumbnailSize, ThumbnailSize);
        pixmap.fill(ThumbnailColor);
        m_icon = QIcon(pixmap);
        setReadOnly(false);
        setFilter(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        return role == Qt::DecorationRole && index.column() == 0 ? m_icon
                                                                 : QFileSystemModel::data(index, role);
    }

    QIcon Icon() const { return m_icon; }

private:
    QIcon m_icon;
};

/** The delegate with the operation that computes its options opened. */
class OpenDelegate : public CKTFMDelegate
{
public:
    using CKTFMDelegate::CKTFMDelegate;
    using CKTFMDelegate::initStyleOption;
};

/** A list view whose options and editing are open. */
class OpenListView : public QListView
{
public:
    using QListView::executeDelayedItemsLayout;
    using QListView::viewOptions;

    bool IsEditing() const { return state() == EditingState; }
};

/** An icon grid over some model, painted by the delegate under test. */
struct IconGrid
{
    IconGrid() : delegate(new OpenDelegate(&view))
    {
        QPalette palette = view.palette();
        palette.setColor(QPalette::Base, Qt::white);
        view.setPalette(palette);
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPixelSize(14);
        view.setFont(font);
        view.setViewMode(QListView::IconMode);
        view.setResizeMode(QListView::Adjust);
        view.setIconSize(QSize(ThumbnailSize, ThumbnailSize));
        view.setEditTriggers(QAbstractItemView::SelectedClicked | QAbstractItemView::EditKeyPressed);
        view.setItemDelegate(delegate);
        view.resize(700, 500);
    }

    QStyleOptionViewItem OptionOf(const QModelIndex& index) const
    {
        QStyleOptionViewItem option = view.viewOptions();
        option.rect = view.visualRect(index);
        option.widget = &view;
        return option;
    }

    QRect ThumbnailOf(const QModelIndex& index) const
    {
        QStyleOptionViewItem option = OptionOf(index);
        delegate->initStyleOption(&option, index);
        return view.style()->subElementRect(QStyle::SE_ItemViewItemDecoration, &option, nullptr);
    }

    /** @return the area of the name with the default spacing, for a font of some height */
    QRect NameAreaOf(const QModelIndex& index, int fontHeight) const
    {
        const QRect thumbnail = ThumbnailOf(index);
        return QRect(QPoint(thumbnail.left() - 15, thumbnail.bottom() + 6),
                     QPoint(thumbnail.right() + 15, thumbnail.bottom() + 6 + 2 * fontHeight));
    }

    QRect NameAreaOf(const QModelIndex& index) const
    {
        return NameAreaOf(index, view.fontMetrics().height());
    }

    QImage Picture()
    {
        view.executeDelayedItemsLayout();
        return view.viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    void Hover(const QModelIndex& index)
    {
        const QPoint center = view.visualRect(index).center();
        QHoverEvent event(QEvent::HoverMove, center, QPoint(-1, -1));
        QCoreApplication::sendEvent(view.viewport(), &event);
    }

    void Select(const QModelIndex& index)
    {
        view.selectionModel()->select(index, QItemSelectionModel::ClearAndSelect);
    }

    OpenListView view;
    OpenDelegate* delegate;
};

/** A grid over a real folder with two folders and some files, sorted downwards so that rows differ from the
 * model's. */
struct FileGrid : IconGrid
{
    FileGrid()
    {
        folder.Folder(QStringLiteral("alpha"));
        folder.File(QStringLiteral("beta"));
        folder.File(QString(3, Block));
        folder.Folder(QStringLiteral("zeta"));
        proxy.setSourceModel(&files);
        proxy.sort(0, Qt::DescendingOrder);
        files.setRootPath(folder.Path());
        delegate->SetFileSystemModel(&files, &proxy, nullptr);
        view.setModel(&proxy);
        view.setRootIndex(proxy.mapFromSource(files.index(folder.Path())));
    }

    /** @return whether the folder's entries have all arrived */
    bool IsListed() const { return proxy.rowCount(view.rootIndex()) == 4; }

    QModelIndex IndexOf(const QString& name) const
    {
        return proxy.mapFromSource(files.index(folder.Path(name)));
    }
    QModelIndex Folder() const { return IndexOf(QStringLiteral("alpha")); }
    QModelIndex File() const { return IndexOf(QStringLiteral("beta")); }
    QModelIndex BlockFile() const { return IndexOf(QString(3, Block)); }

    TestFolder folder;
    GreenFiles files;
    QSortFilterProxyModel proxy;
};

/** A grid over a list of texts, as a host's own collection is. */
struct TextGrid : IconGrid
{
    explicit TextGrid(const QStringList& texts)
    {
        for (const QString& text : texts)
            model.appendRow(new QStandardItem(GreenFiles().Icon(), text));
        view.setModel(&model);
    }

    QStandardItemModel model;
};

bool IsNear(const QColor& actual, const QColor& expected, int tolerance = 4)
{
    const auto near = [tolerance](int a, int b) { return std::abs(a - b) <= tolerance; };
    const bool result = near(actual.red(), expected.red()) && near(actual.green(), expected.green()) &&
                        near(actual.blue(), expected.blue());
    if (!result)
        qInfo() << "colour" << actual << "expected" << expected;
    return result;
}

/** @return the smallest rectangle in @p part that holds all pixels of @p color */
QRect BoundsOf(const QImage& image, QRgb color, const QRect& part)
{
    QRect bounds;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            if (image.valid(x, y) && image.pixel(x, y) == color)
                bounds |= QRect(x, y, 1, 1);
    return bounds;
}

/** @return the smallest rectangle in @p part that holds all pixels that are not white */
QRect InkIn(const QImage& image, const QRect& part)
{
    QRect bounds;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            if (image.valid(x, y) && image.pixel(x, y) != qRgb(255, 255, 255))
                bounds |= QRect(x, y, 1, 1);
    return bounds;
}

QRect DrawnThumbnail(IconGrid* grid, const QModelIndex& index)
{
    return BoundsOf(grid->Picture(), ThumbnailColor, grid->view.visualRect(index));
}

/** @return what the gradient from @p top to @p bottom over @p cell has in pixel row @p y */
QColor GradientAt(const QRect& cell, int y, const QColor& top, const QColor& bottom)
{
    const double part = (y + 0.5 - cell.top()) / cell.height();
    const auto mix = [part](int a, int b) { return qRound(a + (b - a) * part); };
    return QColor(mix(top.red(), bottom.red()), mix(top.green(), bottom.green()),
                  mix(top.blue(), bottom.blue()));
}

/** @return whether the cell's left margin, which holds neither thumbnail nor name, shows the gradient */
bool ShowsGradient(const QImage& picture, const QRect& cell, const QColor& top, const QColor& bottom)
{
    const int x = cell.left() + 5;
    for (const int y : {cell.top() + 3, cell.center().y(), cell.bottom() - 3})
        if (!IsNear(picture.pixelColor(x, y), GradientAt(cell, y, top, bottom)))
            return false;
    return true;
}

} // namespace

void tst_Delegate::diesWithItsParent()
{
    auto* parent = new QObject;
    const QPointer<CKTFMDelegate> delegate = new CKTFMDelegate(parent);
    QCOMPARE(delegate->parent(), parent);
    delete parent;
    QVERIFY(delegate.isNull());
    QVERIFY(!CKTFMDelegate().parent());
}

void tst_Delegate::flagsAreReadBack()
{
    CKTFMDelegate delegate;
    QVERIFY(!delegate.IsDrawOutline());
    QVERIFY(!delegate.IsUseCustomModel());
    delegate.SetDrawOutline(true);
    QVERIFY(delegate.IsDrawOutline());
    QVERIFY(!delegate.IsUseCustomModel());
    delegate.SetUseCustomModel(true);
    delegate.SetDrawOutline(false);
    QVERIFY(delegate.IsUseCustomModel());
    QVERIFY(!delegate.IsDrawOutline());
}

void tst_Delegate::sizeIsThumbnailPlusSpacing()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    QCOMPARE(grid.view.sizeHintForIndex(grid.File()), QSize(146, 146));
    QCOMPARE(grid.view.visualRect(grid.Folder()).size(), QSize(146, 146));
}

void tst_Delegate::sizeFollowsTheSpacing_data()
{
    QTest::addColumn<unsigned>("horizontal");
    QTest::addColumn<unsigned>("vertical");
    QTest::addColumn<QSize>("size");
    QTest::newRow("none") << 0U << 0U << QSize(96, 96);
    QTest::newRow("each way") << 7U << 30U << QSize(103, 126);
    const unsigned most = std::numeric_limits<unsigned>::max();
    QTest::newRow("no more than a widget's size") << most << most << QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

void tst_Delegate::sizeFollowsTheSpacing()
{
    QFETCH(unsigned, horizontal);
    QFETCH(unsigned, vertical);
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    grid.delegate->SetItemSpacing(horizontal, vertical);
    QTEST(grid.delegate->sizeHint(grid.view.viewOptions(), grid.File()), "size");
}

void tst_Delegate::sizeDoesNotDependOnTheName()
{
    const TextGrid grid({QString(), QString(255, QLatin1Char('W'))});
    const QStyleOptionViewItem option = grid.view.viewOptions();
    QCOMPARE(grid.delegate->sizeHint(option, grid.model.index(0, 0)), QSize(146, 146));
    QCOMPARE(grid.delegate->sizeHint(option, grid.model.index(1, 0)), QSize(146, 146));
}

void tst_Delegate::plainItemHasNoHighlight()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    QVERIFY(ShowsGradient(grid.Picture(), grid.view.visualRect(grid.File()), Qt::white, Qt::white));
}

void tst_Delegate::defaultHighlightsAreGrayAndBlack()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    grid.Hover(grid.File());
    grid.Select(grid.Folder());
    const QImage picture = grid.Picture();
    const QColor gray(85, 85, 85);
    QVERIFY(ShowsGradient(picture, grid.view.visualRect(grid.File()), gray, gray));
    QVERIFY(ShowsGradient(picture, grid.view.visualRect(grid.Folder()), Qt::black, Qt::black));
    // A radius of 3 clears the corner's first pixel and fills the one four pixels in.
    const QPoint corner = grid.view.visualRect(grid.Folder()).topLeft();
    QVERIFY(IsNear(picture.pixelColor(corner), Qt::white));
    QVERIFY(picture.pixelColor(corner + QPoint(1, 1)).red() > 40);
    QVERIFY(IsNear(picture.pixelColor(corner + QPoint(4, 4)), Qt::black));
}

void tst_Delegate::hoverHighlightIsAGradient()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    grid.delegate->SetItemHoverColor(Qt::red, Qt::blue, Qt::yellow, 0);
    grid.Hover(grid.File());
    QVERIFY(ShowsGradient(grid.Picture(), grid.view.visualRect(grid.File()), Qt::red, Qt::blue));
}

void tst_Delegate::selectionHighlightIsAGradient()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    grid.delegate->SetItemSelectedColor(Qt::cyan, QColor(255, 128, 0), Qt::yellow, 0);
    grid.Select(grid.File());
    QVERIFY(ShowsGradient(grid.Picture(), grid.view.visualRect(grid.File()), Qt::cyan, QColor(255, 128, 0)));
}

void tst_Delegate::hoverWinsOverSelection()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    grid.delegate->SetItemHoverColor(Qt::red, Qt::red, Qt::red, 0);
    grid.delegate->SetItemSelectedColor(Qt::blue, Qt::blue, Qt::blue, 0);
    grid.Select(grid.File());
    QVERIFY(ShowsGradient(grid.Picture(), grid.view.visualRect(grid.File()), Qt::blue, Qt::blue));
    grid.Hover(grid.File());
    QVERIFY(ShowsGradient(grid.Picture(), grid.view.visualRect(grid.File()), Qt::red, Qt::red));
}

void tst_Delegate::highlightStaysOnePixelInsideTheCell()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    grid.delegate->SetItemSelectedColor(Qt::red, Qt::red, Qt::transparent, 0);
    grid.Select(grid.File());
    const QRect cell = grid.view.visualRect(grid.File());
    QCOMPARE(BoundsOf(grid.Picture(), qRgb(255, 0, 0), cell), cell.adjusted(1, 1, -1, -1));
}

void tst_Delegate::frameHasThePenColour()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    grid.delegate->SetItemHoverColor(Qt::white, Qt::white, Qt::blue, 0);
    grid.delegate->SetItemSelectedColor(Qt::white, Qt::white, Qt::red, 0);
    grid.Hover(grid.File());
    grid.Select(grid.Folder());
    const QImage picture = grid.Picture();
    const QRect hovered = grid.view.visualRect(grid.File());
    const QRect selected = grid.view.visualRect(grid.Folder());
    // The antialiased pen lies half on either side of the rectangle's edge.
    const QColor paleBlue(128, 128, 255);
    const QColor paleRed(255, 128, 128);
    for (const int x : {hovered.left(), hovered.left() + 1, hovered.right() - 1, hovered.right()})
        QVERIFY(IsNear(picture.pixelColor(x, hovered.center().y()), paleBlue));
    for (const int y : {selected.top(), selected.top() + 1, selected.bottom() - 1, selected.bottom()})
        QVERIFY(IsNear(picture.pixelColor(selected.left() + 9, y), paleRed));
    QVERIFY(IsNear(picture.pixelColor(hovered.left() + 2, hovered.center().y()), Qt::white));
}

void tst_Delegate::radiusRoundsTheCorners()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    grid.delegate->SetItemHoverColor(Qt::red, Qt::red, Qt::red, 20);
    grid.delegate->SetItemSelectedColor(Qt::red, Qt::red, Qt::red, 0);
    grid.Hover(grid.File());
    grid.Select(grid.Folder());
    const QImage picture = grid.Picture();
    const QRect rounded = grid.view.visualRect(grid.File());
    const QRect square = grid.view.visualRect(grid.Folder());
    // A circle of radius 20 leaves 20 - 20 / sqrt(2), about 5.9 pixels, of the corner's diagonal free.
    QVERIFY(IsNear(picture.pixelColor(rounded.topLeft() + QPoint(4, 4)), Qt::white));
    QVERIFY(IsNear(picture.pixelColor(rounded.bottomRight() - QPoint(4, 4)), Qt::white));
    QVERIFY(IsNear(picture.pixelColor(rounded.topLeft() + QPoint(8, 8)), Qt::red));
    QVERIFY(IsNear(picture.pixelColor(rounded.topLeft() + QPoint(23, 1)), Qt::red));
    QVERIFY(IsNear(picture.pixelColor(square.topLeft() + QPoint(1, 1)), Qt::red));
}

void tst_Delegate::folderStandsFivePixelsLowerThanAFile()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    QCOMPARE(DrawnThumbnail(&grid, grid.File()), grid.ThumbnailOf(grid.File()));
    QCOMPARE(DrawnThumbnail(&grid, grid.Folder()), grid.ThumbnailOf(grid.Folder()).translated(0, 5));
}

void tst_Delegate::outlinedFileStandsFivePixelsLower()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    grid.delegate->SetDrawOutline(true);
    QCOMPARE(DrawnThumbnail(&grid, grid.File()), grid.ThumbnailOf(grid.File()).translated(0, 5));
}

void tst_Delegate::outlineLeavesFoldersAlone()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    const QRect cell = grid.view.visualRect(grid.Folder());
    const QImage without = grid.Picture().copy(cell);
    grid.delegate->SetDrawOutline(true);
    QCOMPARE(grid.Picture().copy(cell), without);
}

/** Makes the thumbnails half as large as their places, so that the ground behind them shows. */
static void ShrinkThumbnails(QStandardItemModel* model)
{
    QPixmap pixmap(ThumbnailSize, ThumbnailSize);
    pixmap.fill(Qt::transparent);
    QPainter(&pixmap).fillRect(0, 0, ThumbnailSize / 2, ThumbnailSize, QColor(ThumbnailColor));
    for (int row = 0; row < model->rowCount(); ++row)
        model->item(row)->setIcon(QIcon(pixmap));
}

/** @return whether the backdrop fills the thumbnail's place, five pixels lower, in @p gray */
static bool HasBackdrop(TextGrid* grid, const QColor& gray)
{
    ShrinkThumbnails(&grid->model);
    grid->delegate->SetDrawOutline(true);
    const QModelIndex index = grid->model.index(0, 0);
    const QRect place = grid->ThumbnailOf(index).translated(0, 5);
    const QRect right = place.adjusted(ThumbnailSize / 2, 0, 0, 0);
    const QImage picture = grid->Picture();
    // The antialiased frame of one pixel reaches half into the pixels around.
    const QColor edge = QColor((gray.red() + 255) / 2, (gray.green() + 255) / 2, (gray.blue() + 255) / 2);
    return BoundsOf(picture, gray.rgb(), grid->view.visualRect(index)) == right &&
           IsNear(picture.pixelColor(place.right() + 1, place.center().y()), edge) &&
           IsNear(picture.pixelColor(place.left() - 1, place.center().y()), edge) &&
           IsNear(picture.pixelColor(place.center().x(), place.top() - 1), edge);
}

void tst_Delegate::backdropOfAFileIsLightGray()
{
    TextGrid grid({QStringLiteral("file")});
    QVERIFY(HasBackdrop(&grid, QColor(199, 199, 199)));
}

void tst_Delegate::backdropOfACustomFileIsDarkerGray()
{
    TextGrid grid({QStringLiteral("file")});
    grid.delegate->SetFileSystemModel(nullptr, nullptr, &grid.model);
    grid.delegate->SetUseCustomModel(true);
    QVERIFY(HasBackdrop(&grid, QColor(150, 150, 150)));
}

/** @return whether the item stands where folders do */
static bool IsPaintedAsFolder(IconGrid* grid, const QModelIndex& index)
{
    const QRect place = grid->ThumbnailOf(index);
    const QRect drawn = DrawnThumbnail(grid, index);
    return drawn == place.translated(0, 5) ? true
                                           : (drawn == place ? false : (qFatal("no thumbnail"), false));
}

void tst_Delegate::folderIsFoundThroughTheProxy()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    QVERIFY(grid.Folder().row() != grid.files.index(grid.folder.Path(QStringLiteral("alpha"))).row());
    for (const QString& name : {QStringLiteral("alpha"), QStringLiteral("beta"), QStringLiteral("zeta")})
        QCOMPARE(IsPaintedAsFolder(&grid, grid.IndexOf(name)), QFileInfo(grid.folder.Path(name)).isDir());
}

void tst_Delegate::folderIsFoundWithoutAProxy()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    grid.delegate->SetFileSystemModel(&grid.files, nullptr, nullptr);
    grid.view.setModel(&grid.files);
    grid.view.setRootIndex(grid.files.index(grid.folder.Path()));
    QVERIFY(IsPaintedAsFolder(&grid, grid.files.index(grid.folder.Path(QStringLiteral("alpha")))));
    QVERIFY(!IsPaintedAsFolder(&grid, grid.files.index(grid.folder.Path(QStringLiteral("beta")))));
}

void tst_Delegate::modelsOfOtherClassesShowFiles_data()
{
    QTest::addColumn<bool>("withFiles");
    QTest::addColumn<bool>("withProxy");
    QTest::newRow("none") << false << false;
    QTest::newRow("no proxy") << true << false;
    QTest::newRow("no files") << false << true;
}

void tst_Delegate::modelsOfOtherClassesShowFiles()
{
    QFETCH(bool, withFiles);
    QFETCH(bool, withProxy);
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    QAbstractItemModel* files = withFiles ? &grid.files : nullptr;
    QAbstractItemModel* proxy = withProxy ? &grid.proxy : nullptr;
    grid.delegate->SetFileSystemModel(files, proxy, nullptr);
    QVERIFY(!IsPaintedAsFolder(&grid, grid.Folder()));
    QStandardItemModel other;
    grid.delegate->SetFileSystemModel(withFiles ? files : &other, withProxy ? proxy : &other, nullptr);
    QVERIFY(!IsPaintedAsFolder(&grid, grid.Folder()));
}

void tst_Delegate::deletedModelsShowFiles()
{
    TextGrid grid({QStringLiteral("file")});
    auto* files = new QFileSystemModel;
    auto* proxy = new QSortFilterProxyModel;
    auto* custom = new QStandardItemModel;
    grid.delegate->SetFileSystemModel(files, proxy, custom);
    delete files;
    delete proxy;
    delete custom;
    QVERIFY(!IsPaintedAsFolder(&grid, grid.model.index(0, 0)));
    grid.delegate->SetUseCustomModel(true);
    QVERIFY(!IsPaintedAsFolder(&grid, grid.model.index(0, 0)));
}

void tst_Delegate::customModelTextThatIsAPathMakesAFolder()
{
    const TestFolder folder;
    const QString file = folder.File(QStringLiteral("file"));
    TextGrid grid(
        {folder.Path(), file, folder.Path(QStringLiteral("missing")), QStringLiteral("name"), QString()});
    grid.delegate->SetFileSystemModel(nullptr, nullptr, &grid.model);
    QVERIFY(!IsPaintedAsFolder(&grid, grid.model.index(0, 0)));
    grid.delegate->SetUseCustomModel(true);
    QVERIFY(IsPaintedAsFolder(&grid, grid.model.index(0, 0)));
    for (int row = 1; row < grid.model.rowCount(); ++row)
        QVERIFY(!IsPaintedAsFolder(&grid, grid.model.index(row, 0)));
}

void tst_Delegate::customModelIsAskedByRowBehindAProxy()
{
    const TestFolder folder;
    TextGrid grid({folder.Path(), QStringLiteral("name")});
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&grid.model);
    proxy.sort(0, Qt::DescendingOrder);
    grid.view.setModel(&proxy);
    grid.delegate->SetFileSystemModel(nullptr, &proxy, &grid.model);
    grid.delegate->SetUseCustomModel(true);
    QCOMPARE(proxy.index(1, 0).data().toString(), folder.Path());
    QVERIFY(IsPaintedAsFolder(&grid, proxy.index(0, 0)));
    QVERIFY(!IsPaintedAsFolder(&grid, proxy.index(1, 0)));
}

void tst_Delegate::customModelThatIsNotThereShowsFiles()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    grid.delegate->SetUseCustomModel(true);
    QVERIFY(!IsPaintedAsFolder(&grid, grid.Folder()));
}

void tst_Delegate::thumbnailIsDrawnPlainWhenSelected()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    grid.view.setCurrentIndex(grid.File());
    grid.Hover(grid.File());
    // A style tints the icon of a selected item and marks the current one; neither is to be seen.
    QCOMPARE(DrawnThumbnail(&grid, grid.File()), grid.ThumbnailOf(grid.File()));
    const QImage picture = grid.Picture();
    const QRect place = grid.ThumbnailOf(grid.File());
    QCOMPARE(picture.pixel(place.center()), ThumbnailColor);
}

void tst_Delegate::nameIsDrawnInItsAreaInGray()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    const QModelIndex index = grid.BlockFile();
    const QRect area = grid.NameAreaOf(index);
    QCOMPARE(area.width(), 126);
    const QImage picture = grid.Picture();
    const QRect cell = grid.view.visualRect(index);
    const QRect below(QPoint(cell.left(), area.top() - 5), cell.bottomRight());
    const QRect name = BoundsOf(picture, qRgb(112, 110, 110), below);
    QVERIFY(!name.isEmpty());
    QVERIFY(area.contains(InkIn(picture, below)));
    QVERIFY(qAbs(name.center().x() - area.center().x()) <= 1);
    QVERIFY(qAbs(name.center().y() - area.center().y()) <= 2);
}

void tst_Delegate::nameHasOneColourInEveryState()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    grid.delegate->SetItemHoverColor(Qt::white, Qt::white, Qt::white, 0);
    grid.delegate->SetItemSelectedColor(Qt::white, Qt::white, Qt::white, 0);
    const QModelIndex index = grid.BlockFile();
    const QRect area = grid.NameAreaOf(index);
    const QImage plain = grid.Picture().copy(area);
    grid.Select(index);
    QCOMPARE(grid.Picture().copy(area), plain);
    grid.Hover(index);
    QCOMPARE(grid.Picture().copy(area), plain);
    grid.view.setEnabled(false);
    QCOMPARE(grid.Picture().copy(area), plain);
}

void tst_Delegate::nameHasTheColourThatTheHostSets()
{
    TextGrid grid({QString(3, Block)});
    const QModelIndex index = grid.model.index(0, 0);
    const QColor color(20, 40, 160);
    grid.view.setGridSize(QSize(300, 300));
    grid.delegate->SetNameColor(color);
    const QRect area = grid.NameAreaOf(index);
    QVERIFY(!BoundsOf(grid.Picture(), color.rgb(), area).isEmpty());
    QVERIFY(BoundsOf(grid.Picture(), qRgb(112, 110, 110), area).isEmpty());
}

void tst_Delegate::nameAreaFollowsSpacingAndRatio()
{
    TextGrid grid({QString(200, Block)});
    const QModelIndex index = grid.model.index(0, 0);
    grid.view.setGridSize(QSize(300, 300));
    const QRect thumbnail = grid.ThumbnailOf(index);
    const int height = grid.view.fontMetrics().height();
    grid.delegate->SetItemSpacing(101, 50);
    grid.delegate->SetHeightRatioOfTextArea(0.5F);
    const QRect below(QPoint(0, thumbnail.bottom() + 1), QPoint(300, 300));
    // Half of 101 less 10 is 40.5 pixels more on each side, cut to whole ones.
    const QRect area(QPoint(static_cast<int>(thumbnail.left() - 40.5), thumbnail.bottom() + 6),
                     QPoint(static_cast<int>(thumbnail.right() + 40.5), thumbnail.bottom() + 6 + height / 2));
    const QRect ink = InkIn(grid.Picture(), below);
    // A glyph may reach a pixel beyond its own width.
    QVERIFY(area.adjusted(-1, 0, 1, 0).contains(ink));
    QCOMPARE(ink.height(), area.height());
    QVERIFY(ink.width() > area.width() - 20);
    grid.delegate->SetHeightRatioOfTextArea(6.0F);
    const int center = thumbnail.bottom() + 6 + 3 * height;
    QVERIFY(qAbs(InkIn(grid.Picture(), below).center().y() - center) <= 2);
}

void tst_Delegate::longNameStaysInItsArea()
{
    TextGrid grid(
        {QString(255, QLatin1Char('W')), QStringLiteral("many short words ").repeated(15), QString()});
    const QImage picture = grid.Picture();
    for (int row = 0; row < 3; ++row) {
        const QModelIndex index = grid.model.index(row, 0);
        const QRect cell = grid.view.visualRect(index);
        const QRect area = grid.NameAreaOf(index);
        const QRect ink = InkIn(picture, QRect(QPoint(cell.left(), area.top() - 5), cell.bottomRight()));
        QVERIFY(ink.isEmpty() || area.contains(ink));
        QCOMPARE(ink.isEmpty(), row == 2);
    }
}

void tst_Delegate::absurdSettingsArePainted_data()
{
    QTest::addColumn<unsigned>("spacing");
    QTest::addColumn<float>("ratio");
    QTest::addColumn<int>("radius");
    const unsigned most = std::numeric_limits<unsigned>::max();
    QTest::newRow("largest spacing") << most << 2.0F << 3;
    QTest::newRow("no spacing") << 0U << 2.0F << 3;
    QTest::newRow("ratio without end") << 50U << std::numeric_limits<float>::infinity() << 3;
    QTest::newRow("ratio that is no number") << 50U << std::numeric_limits<float>::quiet_NaN() << 3;
    QTest::newRow("negative ratio") << 50U << -1e30F << 3;
    QTest::newRow("negative radius") << 50U << 2.0F << -7;
    QTest::newRow("largest radius") << 50U << 2.0F << std::numeric_limits<int>::max();
}

void tst_Delegate::absurdSettingsArePainted()
{
    QFETCH(unsigned, spacing);
    QFETCH(float, ratio);
    QFETCH(int, radius);
    TextGrid grid({QStringLiteral("a name of several words")});
    const QModelIndex index = grid.model.index(0, 0);
    grid.view.setGridSize(QSize(146, 146));
    grid.delegate->SetItemSpacing(spacing, spacing);
    grid.delegate->SetHeightRatioOfTextArea(ratio);
    grid.delegate->SetItemSelectedColor(Qt::red, QColor(), Qt::blue, radius);
    grid.Select(index);
    QCOMPARE(grid.Picture().pixel(grid.ThumbnailOf(index).center()), ThumbnailColor);
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(1, 1), Qt::LeftButton, Qt::NoButton, {});
    grid.delegate->editorEvent(&release, &grid.model, grid.OptionOf(index), index);
}

void tst_Delegate::painterIsLeftAsItWas()
{
    TextGrid grid({QStringLiteral("name")});
    QImage image(200, 200, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setPen(Qt::magenta);
    painter.setBrush(Qt::NoBrush);
    grid.delegate->SetDrawOutline(true);
    grid.delegate->paint(&painter, grid.OptionOf(grid.model.index(0, 0)), grid.model.index(0, 0));
    QCOMPARE(painter.pen(), QPen(Qt::magenta));
    QCOMPARE(painter.brush(), QBrush(Qt::NoBrush));
    QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
}

void tst_Delegate::styleSheetOfTheViewChangesNothing()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    const QRect folder = DrawnThumbnail(&grid, grid.Folder());
    grid.view.setObjectName(QStringLiteral("pListView"));
    grid.view.setStyleSheet(QStringLiteral("QListView#pListView{ background-color: rgb(1, 2, 3); }"));
    QCOMPARE(DrawnThumbnail(&grid, grid.Folder()), folder);
    QCOMPARE(DrawnThumbnail(&grid, grid.File()), grid.ThumbnailOf(grid.File()));
    const QRect cell = grid.view.visualRect(grid.File());
    QVERIFY(ShowsGradient(grid.Picture(), cell, QColor(1, 2, 3), QColor(1, 2, 3)));
}

/** Sends the delegate a mouse event at @p pos. @return what the delegate answers */
static bool Send(IconGrid* grid, QMouseEvent* event, const QModelIndex& index)
{
    auto* model = const_cast<QAbstractItemModel*>(index.model());
    return grid->delegate->editorEvent(event, model, grid->OptionOf(index), index);
}

static QMouseEvent ReleaseAt(const QPoint& pos)
{
    return QMouseEvent(QEvent::MouseButtonRelease, pos, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
}

void tst_Delegate::releaseOutsideTheNameIsConsumed()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    const QRect cell = grid.view.visualRect(grid.File());
    const QRect area = grid.NameAreaOf(grid.File(), 14);
    for (const QPoint& pos : {cell.topLeft(), cell.bottomRight(), grid.ThumbnailOf(grid.File()).center(),
                              area.topLeft() - QPoint(1, 0), area.topLeft() - QPoint(0, 1),
                              area.bottomRight() + QPoint(1, 0), area.bottomRight() + QPoint(0, 1)}) {
        QMouseEvent release = ReleaseAt(pos);
        QVERIFY(Send(&grid, &release, grid.File()));
        QVERIFY(!release.isAccepted());
    }
}

void tst_Delegate::releaseOnTheNameIsTheBaseClassesToHandle()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    const QRect area = grid.NameAreaOf(grid.File(), 14);
    for (const QPoint& pos : {area.center(), area.topLeft(), area.bottomRight()}) {
        QMouseEvent release = ReleaseAt(pos);
        QVERIFY(!Send(&grid, &release, grid.File()));
        QVERIFY(release.isAccepted());
    }
}

void tst_Delegate::clickableAreaIsOfAFixedFont()
{
    TextGrid grid({QStringLiteral("name")});
    const QModelIndex index = grid.model.index(0, 0);
    QFont large = grid.view.font();
    large.setPixelSize(40);
    grid.view.setFont(large);
    const QPoint last(grid.ThumbnailOf(index).center().x(), grid.NameAreaOf(index, 14).bottom());
    QMouseEvent inside = ReleaseAt(last);
    QVERIFY(!Send(&grid, &inside, index));
    QMouseEvent outside = ReleaseAt(last + QPoint(0, 1));
    QVERIFY(Send(&grid, &outside, index));
    grid.delegate->SetHeightRatioOfTextArea(2.5F);
    QMouseEvent lower = ReleaseAt(last + QPoint(0, 7));
    QVERIFY(!Send(&grid, &lower, index));
}

void tst_Delegate::otherEventsAreTheBaseClassesToHandle()
{
    TextGrid grid({QStringLiteral("name")});
    const QModelIndex index = grid.model.index(0, 0);
    grid.model.item(0)->setCheckable(true);
    for (const QEvent::Type type :
         {QEvent::MouseButtonPress, QEvent::MouseButtonDblClick, QEvent::MouseMove}) {
        QMouseEvent event(type, QPointF(-1, -1), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QVERIFY(!Send(&grid, &event, index));
    }
    QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QVERIFY(grid.delegate->editorEvent(&space, &grid.model, grid.OptionOf(index), index));
    QCOMPARE(grid.model.item(0)->checkState(), Qt::Checked);
}

/** How long a view waits after the click that may start renaming, in ms. */
constexpr int EditDelay = 20;

/** Clicks a selected item at @p pos and waits until any editor that the click may open is open. */
static void ClickSelected(FileGrid* grid, const QModelIndex& index, const QPoint& pos)
{
    QApplication::setDoubleClickInterval(EditDelay);
    grid->view.setCurrentIndex(index);
    const QPoint windowPos = grid->view.viewport()->mapTo(&grid->view, pos);
    QTest::mouseClick(grid->view.windowHandle(), Qt::LeftButton, Qt::NoModifier, windowPos);
    // A timer started after the view's own and longer than it ends later.
    QTimer later;
    later.setSingleShot(true);
    QSignalSpy spy(&later, &QTimer::timeout);
    later.start(10 * EditDelay);
    QVERIFY(spy.wait());
}

void tst_Delegate::clickOnTheThumbnailOfASelectedItemDoesNotRename()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    grid.view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&grid.view));
    ClickSelected(&grid, grid.File(), grid.ThumbnailOf(grid.File()).center());
    QVERIFY(!grid.view.IsEditing());
    QVERIFY(!grid.view.viewport()->findChild<QLineEdit*>());
    QVERIFY(grid.view.selectionModel()->isSelected(grid.File()));
}

void tst_Delegate::clickOnTheNameOfASelectedItemRenames()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    grid.view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&grid.view));
    ClickSelected(&grid, grid.File(), grid.NameAreaOf(grid.File(), 14).center());
    QVERIFY(grid.view.IsEditing());
    auto* editor = grid.view.viewport()->findChild<QLineEdit*>();
    QVERIFY(editor);
    QCOMPARE(editor->text(), QStringLiteral("beta"));
    editor->selectAll();
    QTest::keyClicks(editor, QStringLiteral("gamma"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(QFile::exists(grid.folder.Path(QStringLiteral("gamma"))));
    QVERIFY(!QFile::exists(grid.folder.Path(QStringLiteral("beta"))));
}

void tst_Delegate::nameIsStoredWithoutBlanksAroundIt()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    QLineEdit editor(QStringLiteral("  report  "));
    bool refused = false;
    grid.delegate->SetRenameFunctor([&refused](const QString&) { refused = true; });
    grid.delegate->setModelData(&editor, &grid.proxy, grid.File());
    QTRY_VERIFY(QFile::exists(grid.folder.Path(QStringLiteral("report"))));
    QCOMPARE(editor.text(), QStringLiteral("report"));
    QVERIFY(!refused);
}

/** Offers @p text as the new name of the only item. @return the texts that the functor was called with */
static QStringList RefusalsOf(TextGrid* grid, const QString& text)
{
    QStringList refused;
    grid->delegate->SetRenameFunctor([&refused](const QString& name) { refused.append(name); });
    QLineEdit editor;
    editor.setText(text);
    grid->delegate->setModelData(&editor, &grid->model, grid->model.index(0, 0));
    return refused;
}

void tst_Delegate::nameWithAForbiddenCharacterIsRefused_data()
{
    QTest::addColumn<QString>("name");
    const QString forbidden = QStringLiteral("\\/:*?|\"<>");
    for (const QChar c : forbidden) {
        QTest::addRow("only %c", c.toLatin1()) << QString(c);
        QTest::addRow("%c within blanks", c.toLatin1()) << QStringLiteral("  a%1b  ").arg(c);
        QTest::addRow("%c behind the last dot", c.toLatin1()) << QStringLiteral("a.b%1").arg(c);
    }
}

void tst_Delegate::nameWithAForbiddenCharacterIsRefused()
{
    QFETCH(QString, name);
    TextGrid grid({QStringLiteral("old")});
    QCOMPARE(RefusalsOf(&grid, name), QStringList{name});
    QCOMPARE(grid.model.item(0)->text(), QStringLiteral("old"));
}

void tst_Delegate::blankNameIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("blanks") << QStringLiteral("   ");
    QTest::newRow("tab") << QStringLiteral("\t");
}

void tst_Delegate::blankNameIsRefused()
{
    QFETCH(QString, name);
    TextGrid grid({QStringLiteral("old")});
    QCOMPARE(RefusalsOf(&grid, name), QStringList{name});
    QCOMPARE(grid.model.item(0)->text(), QStringLiteral("old"));
    QCOMPARE(RefusalsOf(&grid, QStringLiteral("new")), QStringList());
    QCOMPARE(grid.model.item(0)->text(), QStringLiteral("new"));
}

void tst_Delegate::refusalWithoutFunctorEndsSilently()
{
    TextGrid grid({QStringLiteral("old")});
    QSignalSpy changed(&grid.model, &QAbstractItemModel::dataChanged);
    QLineEdit editor(QStringLiteral("a/b"));
    grid.delegate->setModelData(&editor, &grid.model, grid.model.index(0, 0));
    grid.delegate->SetRenameFunctor(nullptr);
    grid.delegate->setModelData(&editor, &grid.model, grid.model.index(0, 0));
    QCOMPARE(editor.text(), QStringLiteral("a/b"));
    QVERIFY(changed.isEmpty());
}

void tst_Delegate::functorMayReplaceItself()
{
    TextGrid grid({QStringLiteral("old")});
    QStringList refused;
    grid.delegate->SetRenameFunctor([&](const QString& name) {
        grid.delegate->SetRenameFunctor(nullptr);
        refused.append(name);
    });
    QLineEdit editor(QStringLiteral("a/b"));
    grid.delegate->setModelData(&editor, &grid.model, grid.model.index(0, 0));
    grid.delegate->setModelData(&editor, &grid.model, grid.model.index(0, 0));
    QCOMPARE(refused, QStringList{QStringLiteral("a/b")});
}

void tst_Delegate::otherEditorsChangeNothing()
{
    TextGrid grid({QStringLiteral("old")});
    QSignalSpy changed(&grid.model, &QAbstractItemModel::dataChanged);
    bool refused = false;
    grid.delegate->SetRenameFunctor([&refused](const QString&) { refused = true; });
    QWidget editor;
    grid.delegate->setModelData(&editor, &grid.model, grid.model.index(0, 0));
    grid.delegate->setModelData(nullptr, &grid.model, grid.model.index(0, 0));
    QVERIFY(changed.isEmpty());
    QVERIFY(!refused);
}

void tst_Delegate::editorSitsOnTheBottomOfTheItem()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    QWidget editor;
    editor.resize(10, 20);
    const QStyleOptionViewItem option = grid.OptionOf(grid.File());
    grid.delegate->updateEditorGeometry(&editor, option, grid.File());
    QRect expected = option.rect;
    expected.setTop(option.rect.bottom() - 20);
    QCOMPARE(editor.geometry(), expected);
}

void tst_Delegate::editorGrowsByOnePixelAtEachCall()
{
    FileGrid grid;
    QTRY_VERIFY(grid.IsListed());
    QWidget editor;
    editor.resize(10, 20);
    for (int height = 21; height < 24; ++height) {
        grid.delegate->updateEditorGeometry(&editor, grid.OptionOf(grid.File()), grid.File());
        QCOMPARE(editor.height(), height);
        QCOMPARE(editor.geometry().bottom(), grid.OptionOf(grid.File()).rect.bottom());
    }
}

void tst_Delegate::noEditorIsPlacedWithoutHarm()
{
    TextGrid grid({QStringLiteral("name")});
    grid.delegate->updateEditorGeometry(nullptr, grid.OptionOf(grid.model.index(0, 0)),
                                        grid.model.index(0, 0));
    QVERIFY(!grid.view.viewport()->findChild<QLineEdit*>());
}

KTFM_TEST_MAIN(tst_Delegate)
#include "tst_delegate.moc"
