#include <KTFileManager2QU/CKTFMDelegate.h>

#include "models/FileNameRules.h"
#include "views/NameLayouts.h"

#include <QAbstractProxyModel>
#include <QApplication>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace {

/** The colour of every name, whatever the item's state, until the host sets another one. */
constexpr QRgb DefaultNameColor = qRgb(112, 110, 110);

/** The backdrop of a file of the file-system model. */
constexpr QRgb ListedFileBackdrop = qRgb(199, 199, 199);

/** The backdrop of a file of the custom model, darker: its thumbnails stand on a lighter ground. */
constexpr QRgb CustomFileBackdrop = qRgb(150, 150, 150);

/** How far the highlight stays inside the cell, so that neighbours do not touch. */
constexpr int HighlightInset = 1;

/** How far folders and files with a backdrop are moved down, in pixels. */
constexpr int ThumbnailShift = 5;

/** The distance from the bottom row of the thumbnail to the top row of its name. */
constexpr int NameGap = 6;

/** What the name leaves free of the spacing on each side. */
constexpr double NameMargin = 10.0;

/** The font height that the clickable area of a name is computed with. */
constexpr int ClickFontHeight = 14;

const QStyle* StyleOf(const QStyleOptionViewItem& item)
{
    return item.widget ? item.widget->style() : QApplication::style();
}

QRect ThumbnailRect(const QStyleOptionViewItem& item)
{
    return StyleOf(item)->subElementRect(QStyle::SE_ItemViewItemDecoration, &item, nullptr);
}

/** @return @p value without its fraction, bounded to what a widget's coordinate may be; 0 for no number */
int Truncated(double value)
{
    constexpr double limit = QWIDGETSIZE_MAX;
    return value == value ? static_cast<int>(qBound(-limit, value, limit)) : 0; // NaN differs from itself
}

int WithSpacing(int length, quint32 spacing)
{
    return Truncated(static_cast<double>(length) + spacing);
}

void DrawHighlight(QPainter* painter, const QRect& cell, const QColor& top, const QColor& bottom,
                   const QColor& pen, int radius)
{
    const int middle = cell.left() + cell.width() / 2;
    QLinearGradient gradient(middle, cell.top(), middle, cell.top() + cell.height());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    painter->setPen(pen);
    painter->setBrush(gradient);
    painter->drawRoundedRect(cell.adjusted(HighlightInset, HighlightInset, -HighlightInset, -HighlightInset),
                             radius, radius);
}

bool IsAcceptable(const QString& name)
{
    return !FileNameRules::HasForbiddenCharacter(name) && !name.trimmed().isEmpty();
}

} // namespace

CKTFMDelegate::CKTFMDelegate(QObject* parent)
    : m_hoverColor1(85, 85, 85),
      m_hoverColor2(85, 85, 85),
      m_hoverColor3(85, 85, 85),
      m_nHoverRadius(3),
      m_selectedColor1(0, 0, 0),
      m_selectedColor2(0, 0, 0),
      m_selectedColor3(0, 0, 0),
      m_nSelectedRadius(3),
      m_pNameLayouts(std::make_unique<NameLayouts>()),
      m_nameColor(DefaultNameColor)
{
    setParent(parent);
}

CKTFMDelegate::~CKTFMDelegate() = default;

void CKTFMDelegate::SetFileSystemModel(QAbstractItemModel* fileSystemModel, QAbstractItemModel* proxyModel,
                                       QAbstractItemModel* customModel)
{
    m_pFileSystemModel = fileSystemModel;
    m_pProxyModel = proxyModel;
    m_pCustomModel = customModel;
}

void CKTFMDelegate::SetItemHoverColor(QColor top, QColor bottom, QColor pen, int radius)
{
    m_hoverColor1 = top;
    m_hoverColor2 = bottom;
    m_hoverColor3 = pen;
    m_nHoverRadius = radius;
}

void CKTFMDelegate::SetItemSelectedColor(QColor top, QColor bottom, QColor pen, int radius)
{
    m_selectedColor1 = top;
    m_selectedColor2 = bottom;
    m_selectedColor3 = pen;
    m_nSelectedRadius = radius;
}

void CKTFMDelegate::SetItemSpacing(unsigned horizontal, unsigned vertical)
{
    m_nHorizontalSpacing = horizontal;
    m_nVerticalSpacing = vertical;
}

void CKTFMDelegate::SetHeightRatioOfTextArea(float ratio)
{
    m_fHeightRatio = ratio;
}

void CKTFMDelegate::SetDrawOutline(bool draw)
{
    m_bDrawOutline = draw;
}

bool CKTFMDelegate::IsDrawOutline() const
{
    return m_bDrawOutline;
}

void CKTFMDelegate::SetNameColor(QColor color)
{
    m_nameColor = color;
}

void CKTFMDelegate::SetUseCustomModel(bool use)
{
    m_bUseCustomModel = use;
}

bool CKTFMDelegate::IsUseCustomModel() const
{
    return m_bUseCustomModel;
}

void CKTFMDelegate::SetRenameFunctor(const std::function<void(QString)>& functor)
{
    m_renameFunctor = functor;
}

void CKTFMDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const
{
    QStyleOptionViewItem item = Prepared(option, index);
    // The style draws the thumbnail alone; its own highlight and text are ours to draw.
    const QStyle::State state = std::exchange(item.state, QStyle::State_Enabled);
    const QString name = std::exchange(item.text, QString());
    const QRect thumbnail = ThumbnailRect(item);

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    PaintHighlight(painter, item.rect, state);
    // A file without a backdrop is not moved and so stands higher than a folder.
    if (IsFolder(index)) {
        item.rect.setTop(item.rect.top() + ThumbnailShift);
    } else if (m_bDrawOutline) {
        item.rect.translate(0, ThumbnailShift);
        PaintBackdrop(painter, thumbnail.translated(0, ThumbnailShift));
    }
    StyleOf(item)->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
    painter->setPen(m_nameColor);
    m_pNameLayouts->Draw(painter, NameArea(thumbnail, painter->fontMetrics().height()), name);
    painter->restore();
}

QSize CKTFMDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QSize thumbnail = ThumbnailRect(Prepared(option, index)).size();
    return QSize(WithSpacing(thumbnail.width(), m_nHorizontalSpacing),
                 WithSpacing(thumbnail.height(), m_nVerticalSpacing));
}

bool CKTFMDelegate::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                                const QModelIndex& index)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        const QRect thumbnail = ThumbnailRect(Prepared(option, index));
        if (!NameArea(thumbnail, ClickFontHeight).contains(static_cast<QMouseEvent*>(event)->pos())) {
            event->ignore();
            return true;
        }
    }
    return QStyledItemDelegate::editorEvent(event, model, option, index);
}

void CKTFMDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    auto* lineEdit = qobject_cast<QLineEdit*>(editor);
    if (!lineEdit)
        return;
    const QString name = lineEdit->text();
    if (IsAcceptable(name)) {
        lineEdit->setText(name.trimmed());
        QStyledItemDelegate::setModelData(editor, model, index);
    } else if (const auto functor = m_renameFunctor) { // a copy: the call may set another one
        functor(name);
    }
}

void CKTFMDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                         const QModelIndex& index) const
{
    if (!editor)
        return;
    QRect rect = Prepared(option, index).rect;
    rect.setTop(rect.bottom() - editor->height());
    editor->setGeometry(rect);
}

QStyleOptionViewItem CKTFMDelegate::Prepared(const QStyleOptionViewItem& option,
                                             const QModelIndex& index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    return item;
}

bool CKTFMDelegate::IsFolder(const QModelIndex& index) const
{
    return m_bUseCustomModel ? IsCustomFolder(index) : IsListedFolder(index);
}

bool CKTFMDelegate::IsListedFolder(const QModelIndex& index) const
{
    const auto* files = qobject_cast<const QFileSystemModel*>(m_pFileSystemModel.data());
    const auto* proxy = qobject_cast<const QAbstractProxyModel*>(m_pProxyModel.data());
    const QModelIndex source = proxy && index.model() == proxy ? proxy->mapToSource(index) : index;
    return files && source.model() == files && files->isDir(source);
}

bool CKTFMDelegate::IsCustomFolder(const QModelIndex& index) const
{
    if (!m_pCustomModel)
        return false;
    // Row and column count, not the model: the view may show the custom list through a proxy.
    const QModelIndex item =
        index.model() == m_pCustomModel ? index : m_pCustomModel->index(index.row(), index.column());
    return QFileInfo(m_pCustomModel->data(item, Qt::DisplayRole).toString()).isDir();
}

QRect CKTFMDelegate::NameArea(const QRect& thumbnail, int fontHeight) const
{
    const double widening = m_nHorizontalSpacing * 0.5 - NameMargin;
    const int top = thumbnail.bottom() + NameGap;
    const float bottom = static_cast<float>(top) + static_cast<float>(fontHeight) * m_fHeightRatio;
    return QRect(QPoint(Truncated(thumbnail.left() - widening), top),
                 QPoint(Truncated(thumbnail.right() + widening), Truncated(bottom)));
}

void CKTFMDelegate::PaintHighlight(QPainter* painter, const QRect& cell, QStyle::State state) const
{
    painter->save();
    if (state & QStyle::State_MouseOver)
        DrawHighlight(painter, cell, m_hoverColor1, m_hoverColor2, m_hoverColor3, m_nHoverRadius);
    else if (state & QStyle::State_Selected)
        DrawHighlight(painter, cell, m_selectedColor1, m_selectedColor2, m_selectedColor3, m_nSelectedRadius);
    painter->restore();
}

void CKTFMDelegate::PaintBackdrop(QPainter* painter, const QRect& thumbnail) const
{
    const QColor gray(m_bUseCustomModel ? CustomFileBackdrop : ListedFileBackdrop);
    painter->setPen(gray);
    painter->setBrush(gray);
    painter->drawRect(thumbnail);
}
