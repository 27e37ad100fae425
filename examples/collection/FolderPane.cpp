#include "FolderPane.h"

#include "KindCards.h"

#include <KTFileManager2QU/CKTFMTreeModel.h>

#include <QSignalBlocker>

namespace {

/** The side of a folder's image, in pixels. */
constexpr int IconSide = 24;

} // namespace

FolderPane::FolderPane(const KindCards& cards, QWidget* parent)
    : CKTFMSimpleTreeView(parent),
      m_cards(cards),
      m_pModel(std::make_unique<CKTFMTreeModel>())
{
    m_pModel->SetInterface(this);
    setModel(m_pModel.get());
    setHeaderHidden(true);
    for (int column = 1; column < m_pModel->columnCount(); ++column)
        hideColumn(column);
    setUniformRowHeights(true);
    setIconSize(QSize(IconSide, IconSide));
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAccessibleName(tr("Folders"));
    // The selection, not the current item: a tree makes its first folder current when it gets the focus.
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &FolderPane::TellChoice);
}

FolderPane::~FolderPane()
{
    // The view goes after the model that this object owns.
    setModel(nullptr);
}

void FolderPane::SetCollection(const QString& path)
{
    setRootIndex(m_pModel->setRootPath(path));
}

void FolderPane::Select(const QString& path)
{
    const QModelIndex index = m_pModel->index(path);
    if (index == currentIndex() && selectionModel()->isSelected(index))
        return;
    const QSignalBlocker silence(this);
    if (Shows(index))
        setCurrentIndex(index);
    else
        clearSelection();
}

bool FolderPane::Shows(const QModelIndex& folder) const
{
    QModelIndex above = folder.parent();
    while (above.isValid() && above != rootIndex())
        above = above.parent();
    return above.isValid();
}

void FolderPane::TellChoice()
{
    const QModelIndexList chosen = selectionModel()->selectedRows();
    if (!chosen.isEmpty())
        Q_EMIT Chosen(m_pModel->filePath(chosen.constFirst()));
}

QImage FolderPane::HandleTreeviewDecorationRole(const QModelIndex& index)
{
    Q_UNUSED(index)
    return m_cards.Folder();
}
