#include <KTFileManager2QU/CKTFMAliasTreeModel.h>

#include "ini/NameMapping.h"
#include "models/AliasFolder.h"
#include "models/AliasTreeColumns.h"
#include "models/AliasTreeLog.h"
#include "models/HostImageCache.h"
#include "models/RenameErrorEvents.h"

#include <KTFileManager2QU/CProfile.h>
#include <KTFileManager2QU/KTFMInterfaces.h>
#include <KTFileManager2QU/TreeItem.h>

#include <QDir>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QMimeData>
#include <QSet>
#include <QUrl>

using namespace AliasTree;

namespace {

/** The texts of the header, one for each column. */
constexpr const char* HeaderTexts[] = {QT_TRANSLATE_NOOP("CKTFMAliasTreeModel", "Category"),
                                       QT_TRANSLATE_NOOP("CKTFMAliasTreeModel", "File Path"),
                                       //: Whether the folder may be read and watched for changes.
                                       QT_TRANSLATE_NOOP("CKTFMAliasTreeModel", "System Watch"),
                                       //: The operations that the user may perform on the folder.
                                       QT_TRANSLATE_NOOP("CKTFMAliasTreeModel", "Allowed Ops"),
                                       //: The section of an INI file that gives the items below their names.
                                       QT_TRANSLATE_NOOP("CKTFMAliasTreeModel", "INI Section"),
                                       QT_TRANSLATE_NOOP("CKTFMAliasTreeModel", "Custom Data")};

const RenameErrorEvents RenameErrors;

/** A place in a walk over the tree: the next row to visit below an item. */
struct WalkStep
{
    const TreeItem* parent;
    int row;
};

/**
 * Calls @p visit with each item below @p top and its row, every item before its children. Items that do not
 * reach the path column hide their children. Without recursion: a table may nest deeper than a stack is.
 */
template <typename Visitor> void VisitPathItems(const TreeItem* top, Visitor visit)
{
    QVector<WalkStep> steps{{top, 0}};
    while (!steps.isEmpty()) {
        WalkStep& step = steps.last();
        if (step.parent->columnCount() <= PathColumn || step.row >= step.parent->childCount()) {
            steps.removeLast();
            continue;
        }
        const int row = step.row++;
        TreeItem* item = step.parent->child(row);
        visit(item, row);
        if (item->childCount() > 0)
            steps.append({item, 0});
    }
}

} // namespace

CKTFMAliasTreeModel::CKTFMAliasTreeModel(QObject* parent)
    : TreeModel(parent),
      m_pNameProfile(std::make_unique<KT::CProfile>()),
      m_pHostImages(std::make_unique<HostImageCache>())
{
}

CKTFMAliasTreeModel::~CKTFMAliasTreeModel() = default;

bool CKTFMAliasTreeModel::PopulateAliasTree(const QString& data)
{
    beginResetModel();
    m_headers.clear();
    for (const char* text : HeaderTexts)
        m_headers.append(tr(text));
    const bool done = SetupTree(m_headers, data);
    endResetModel();
    return done;
}

QModelIndex CKTFMAliasTreeModel::AddAliasItem(const QModelIndex& parent, QString label, QString path,
                                              QString section, bool watch, EKTFMOpType ops, QVariant custom)
{
    const QModelIndex category = parent.sibling(parent.row(), LabelColumn);
    const int row = rowCount(category);
    if (!insertRows(row, 1, category))
        return QModelIndex();
    const QModelIndex item = index(row, LabelColumn, category);
    StoreCell(item, LabelColumn, label);
    StoreCell(item, PathColumn, path);
    StoreCell(item, WatchColumn, watch);
    StoreCell(item, OpsColumn, static_cast<int>(ops));
    StoreCell(item, SectionColumn, section);
    StoreCell(item, CustomColumn, custom);
    return item;
}

QList<QModelIndex> CKTFMAliasTreeModel::IndexWithFilePath(const QString& path) const
{
    QList<QModelIndex> found;
    const TreeItem* root = ParentItemOf(QModelIndex());
    if (!root)
        return found;
    const QString wanted = Normalised(path);
    VisitPathItems(root, [&](TreeItem* item, int row) {
        if (FolderOf(item) == wanted)
            found.append(createIndex(row, PathColumn, item));
    });
    return found;
}

QList<QModelIndex> CKTFMAliasTreeModel::ChildIndexWithFilePath(const QString& path, const QModelIndex& parent,
                                                               int hits) const
{
    QList<QModelIndex> found;
    const TreeItem* parentItem = ParentItemOf(parent);
    if (!parentItem || parentItem->columnCount() <= PathColumn)
        return found;
    const QString wanted = Normalised(path);
    for (int row = 0; row < parentItem->childCount() && (hits == -1 || found.size() < hits); ++row) {
        TreeItem* child = parentItem->child(row);
        if (FolderOf(child) == wanted)
            found.append(createIndex(row, PathColumn, child));
    }
    return found;
}

QString CKTFMAliasTreeModel::GetAliasLabel(const QModelIndex& index) const
{
    return CellOf(index, LabelColumn).toString();
}

QString CKTFMAliasTreeModel::GetMappedFolderPath(const QModelIndex& index) const
{
    return CellOf(index, PathColumn).toString();
}

QString CKTFMAliasTreeModel::GetINISection(const QModelIndex& index) const
{
    return CellOf(index, SectionColumn).toString();
}

QVariant CKTFMAliasTreeModel::GetCustomData(const QModelIndex& index) const
{
    return CellOf(index, CustomColumn);
}

bool CKTFMAliasTreeModel::CanFileSysWatch(const QModelIndex& index) const
{
    return CellOf(index, WatchColumn).toBool();
}

bool CKTFMAliasTreeModel::IsOpAllowed(const QModelIndex& index, EKTFMOpType op) const
{
    return (CellOf(index, OpsColumn).toInt() & static_cast<int>(op)) != 0;
}

void CKTFMAliasTreeModel::SetRenamable(bool renamable)
{
    m_bRenamable = renamable;
}

void CKTFMAliasTreeModel::SetShowTips(bool show)
{
    m_bShowTips = show;
}

void CKTFMAliasTreeModel::SetShowStringMode(EKTFMShowStringMode mode)
{
    m_eShowStringMode = mode;
}

void CKTFMAliasTreeModel::SetInterface(CKTFMAliasTreeModelInterface* callbacks)
{
    m_pInterface = callbacks;
}

bool CKTFMAliasTreeModel::SetFileMappingIni(QString path)
{
    if (!NameMapping::SetFile(*m_pNameProfile, m_strMappingFile, path))
        return false;
    m_eShowStringMode = FM_SHOW_STRING_INI;
    return true;
}

bool CKTFMAliasTreeModel::SetFileMappingSection(QString section)
{
    Q_UNUSED(section)
    return false;
}

void CKTFMAliasTreeModel::AddTranslateMap(QString from, QString to)
{
    if (!m_mapTranslate.contains(from))
        m_mapTranslate.insert(from, to);
}

QVariant CKTFMAliasTreeModel::data(const QModelIndex& index, int role) const
{
    if (!ItemOf(index))
        return QVariant();
    if (role == Qt::DecorationRole) {
        const QImage image = HandleDecorationRole(index);
        if (!image.isNull())
            return m_pHostImages->IconFor(image);
    } else if (role == Qt::DisplayRole) {
        const QString text = HandleDisplayRole(index);
        if (!text.isNull())
            return text;
    } else if (role == Qt::ToolTipRole && m_bShowTips && index.column() == LabelColumn) {
        return data(index, Qt::DisplayRole);
    }
    return TreeModel::data(index, role);
}

QImage CKTFMAliasTreeModel::HandleDecorationRole(const QModelIndex& index) const
{
    return m_pInterface ? m_pInterface->HandleAliasTreeViewDecorationRole(index) : QImage();
}

QString CKTFMAliasTreeModel::HandleDisplayRole(const QModelIndex& index) const
{
    if (index.column() != LabelColumn)
        return QString();
    qCDebug(aliasTreeLog).noquote() << GetMappedFolderPath(index);
    switch (m_eShowStringMode) {
    case FM_SHOW_STRING_BASE_NAME:
    case FM_SHOW_STRING_CALLBACK:
        return HostLabel(index);
    case FM_SHOW_STRING_INI:
        return GetFolderNameWithINI(GetAliasLabel(index), GetINISection(parent(index)));
    default:
        return QString();
    }
}

QString CKTFMAliasTreeModel::HostLabel(const QModelIndex& index) const
{
    const QString text = m_pInterface ? m_pInterface->HandleAliasTreeViewDisplayRole(index) : QString();
    return text.isEmpty() ? GetAliasLabel(index) : text;
}

QString CKTFMAliasTreeModel::GetFolderNameWithINI(QString name, QString section) const
{
    QString text;
    if (NameMapping::Find(*m_pNameProfile, section, name, text))
        return text;
    return m_mapTranslate.value(name, name);
}

bool CKTFMAliasTreeModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole)
        return TreeModel::setData(index, value, role);
    return ItemOf(index) && RenameFolder(index, value);
}

bool CKTFMAliasTreeModel::RenameFolder(const QModelIndex& index, const QVariant& value)
{
    const QFileInfo folder(QDir::cleanPath(GetMappedFolderPath(index)));
    if (folder.fileName() != GetAliasLabel(index))
        return false;
    const QString newName = value.toString().trimmed();
    if (newName.isEmpty() || newName == folder.fileName())
        return true;
    const QString newPath = AliasFolder::RenamedPath(folder, newName);
    if (const auto error = AliasFolder::Rename(folder, newName)) {
        RenameErrors.Post(this, *error);
        return false;
    }
    const QString storedPath = QDir::toNativeSeparators(newPath);
    StoreCell(index, LabelColumn, value);
    StoreCell(index, PathColumn, storedPath);
    Q_EMIT RenameSuccess(storedPath);
    return true;
}

QVariant CKTFMAliasTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const QVariant stored = TreeModel::headerData(section, orientation, role);
    const int column = m_headers.indexOf(stored.toString());
    return column < 0 ? stored : tr(HeaderTexts[column]);
}

Qt::ItemFlags CKTFMAliasTreeModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = TreeModel::flags(index);
    if (m_bRenamable && IsOpAllowed(index, FM_OP_RENAME))
        flags |= Qt::ItemIsEditable;
    return flags;
}

QStringList CKTFMAliasTreeModel::mimeTypes() const
{
    return {QStringLiteral("text/uri-list")};
}

QMimeData* CKTFMAliasTreeModel::mimeData(const QModelIndexList& indexes) const
{
    QSet<const TreeItem*> seen;
    QList<QUrl> urls;
    for (const QModelIndex& index : indexes) {
        const TreeItem* item = ItemOf(index);
        if (!item || seen.contains(item))
            continue;
        seen.insert(item);
        const QString folder = FolderOf(item);
        if (!folder.isEmpty())
            urls.append(QUrl::fromLocalFile(QFileInfo(folder).absoluteFilePath()));
    }
    auto* mime = new QMimeData;
    mime->setUrls(urls);
    return mime;
}

bool CKTFMAliasTreeModel::event(QEvent* event)
{
    const int code = RenameErrors.CodeOf(*event);
    if (code < 0)
        return TreeModel::event(event);
    Q_EMIT RenameFileError(code);
    return true;
}

QVariant CKTFMAliasTreeModel::CellOf(const QModelIndex& index, int column) const
{
    const TreeItem* item = ItemOf(index);
    return item ? item->data(column) : QVariant();
}

void CKTFMAliasTreeModel::StoreCell(const QModelIndex& index, int column, const QVariant& value)
{
    const QModelIndex cell = index.sibling(index.row(), column);
    if (cell.isValid())
        TreeModel::setData(cell, value, Qt::EditRole);
    else if (TreeItem* item = ItemOf(index))
        item->setData(column, value);
}
