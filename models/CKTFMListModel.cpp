#include <KTFileManager2QU/CKTFMListModel.h>

#include <KTFileManager2QU/KTFMInterfaces.h>

#include "ini/NameMapping.h"
#include "models/ChildNodes.h"
#include "models/FileSystemItem.h"
#include "models/HostImageCache.h"
#include "models/LazyIconProvider.h"
#include "models/RenameErrorEvents.h"
#include "models/UnchangedEntries.h"
#include "models/VanishedFolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

/** The height of a row until the widget tells it, in pixels. */
constexpr unsigned int DefaultRowHeight = 30;

/** The width that a row asks for, in pixels; a view's columns and grid decide what it gets. */
constexpr int RowWidth = 20;

/** The number of the base's columns. */
constexpr int ColumnCount = 4;

/** The base's column of file sizes. */
constexpr int SizeColumn = 1;

const RenameErrorEvents renameErrorEvents;

/** A file keeps its extension when renamed; one without an extension gets the dot all the same. */
QString WithExtensionOf(const QFileInfo& item, const QString& newName)
{
    const QString ending = QLatin1Char('.') + item.suffix();
    return newName.endsWith(ending, Qt::CaseInsensitive) ? newName : newName + ending;
}

} // namespace

/** What the base lists; a change of it calls for the base's own sorting. */
struct CKTFMListModel::Listing
{
    QString rootPath;
    QDir::Filters filter;
    QStringList nameFilters;
    bool nameFilterDisables;

    bool operator==(const Listing& other) const
    {
        return rootPath == other.rootPath && filter == other.filter && nameFilters == other.nameFilters &&
               nameFilterDisables == other.nameFilterDisables;
    }
};

CKTFMListModel::CKTFMListModel(QObject* parent)
    : QFileSystemModel(parent),
      m_nRowHeight(DefaultRowHeight),
      m_pImages(std::make_unique<HostImageCache>()),
      m_pIconProvider(std::make_unique<LazyIconProvider>()),
      m_pChildNodes(std::make_unique<ChildNodes>(*this))
{
    setIconProvider(m_pIconProvider.get());
    setFilter(QDir::Files | QDir::AllDirs | QDir::NoDotAndDotDot);
    setNameFilterDisables(false);
    setReadOnly(false);
    VanishedFolders::Follow(*this);
    UnchangedEntries::Follow(*this, [this] { return sender(); });
}

CKTFMListModel::~CKTFMListModel() = default;

bool CKTFMListModel::event(QEvent* event)
{
    const int code = renameErrorEvents.CodeOf(*event);
    if (code < 0)
        return QFileSystemModel::event(event);
    Q_EMIT RenameFileError(code);
    return true;
}

QModelIndex CKTFMListModel::index(int row, int column, const QModelIndex& parent) const
{
    void* node = m_pChildNodes->At(row, parent);
    if (node && column >= 0 && column < ColumnCount)
        return createIndex(row, column, node);
    const QModelIndex child = QFileSystemModel::index(row, column, parent);
    m_pChildNodes->Remember(child, parent);
    return child;
}

int CKTFMListModel::columnCount(const QModelIndex& parent) const
{
    return QFileSystemModel::columnCount(parent);
}

QVariant CKTFMListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return QFileSystemModel::headerData(section, orientation, role);
}

Qt::ItemFlags CKTFMListModel::flags(const QModelIndex& index) const
{
    Q_UNUSED(index)
    const Qt::ItemFlags flags =
        Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    return m_bRenamable ? flags | Qt::ItemIsEditable : flags;
}

Qt::DropActions CKTFMListModel::supportedDropActions() const
{
    return Qt::CopyAction;
}

void CKTFMListModel::sort(int column, Qt::SortOrder order)
{
    // The base also drops and shows rows in this operation when what it lists has changed.
    const Listing listing = {rootPath(), filter(), nameFilters(), nameFilterDisables()};
    if (m_bSortedByProxy && m_pSortedListing && *m_pSortedListing == listing)
        return;
    m_pSortedListing = std::make_unique<Listing>(listing);
    // Where the root folder's node is missing, the base would insert it in the middle of its change of
    // layout, and a proxy loses what was made to point at the new rows. It is made here, before that.
    index(rootPath());
    QFileSystemModel::sort(column, order);
}

QVariant CKTFMListModel::data(const QModelIndex& index, int role) const
{
    if (index.model() != this)
        return QFileSystemModel::data(index, role);
    QString text;
    switch (role) {
    case Qt::DisplayRole:
        text = HandleDisplayRole(index);
        break;
    case Qt::EditRole:
        text = HandleEditRole(index);
        if (text.isNull())
            RememberEdited(index);
        break;
    case Qt::ToolTipRole:
        if (m_bShowTips)
            text = HandleToolTipRole(index);
        break;
    case Qt::DecorationRole: {
        const QImage image = HandleDecorationRole(index);
        if (!image.isNull())
            return m_pImages->IconFor(image);
        break;
    }
    case Qt::TextAlignmentRole:
        return index.column() == SizeColumn ? int(Qt::AlignRight | Qt::AlignVCenter) : int(Qt::AlignVCenter);
    case Qt::SizeHintRole:
        return QSize(RowWidth, static_cast<int>(m_nRowHeight));
    default:
        break;
    }
    return text.isNull() ? QFileSystemModel::data(index, role) : text;
}

void CKTFMListModel::RememberEdited(const QModelIndex& index) const
{
    const QFileInfo info = fileInfo(index);
    m_editPaths.insert(index.row(), info.absoluteFilePath());
    m_editNames.insert(index.row(), info.fileName());
}

bool CKTFMListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    // The base would take an index of another model for its own.
    if (index.isValid() && index.model() != this)
        return false;
    if (!index.isValid() || role != Qt::EditRole)
        return QFileSystemModel::setData(index, value, role);
    const QFileInfo item = fileInfo(index);
    QString newName = value.toString().trimmed();
    if (newName.isEmpty())
        return false;
    if (!item.isDir())
        newName = WithExtensionOf(item, newName);
    if (newName == item.fileName())
        return true;
    if (const auto error = FileSystemItem::Rename(item, newName, false)) {
        renameErrorEvents.Post(this, *error);
        return false;
    }
    Q_EMIT RenameSuccess(item.absolutePath() + QLatin1Char('/') + newName);
    return true;
}

QString CKTFMListModel::HandleDisplayRole(const QModelIndex& index) const
{
    if (index.column() != 0 || index.model() != this)
        return QString();
    if (m_eShowStringMode == FM_SHOW_STRING_INI)
        return MappedName(index);
    if (m_eShowStringMode != FM_SHOW_STRING_BASE_NAME && m_eShowStringMode != FM_SHOW_STRING_CALLBACK)
        return QString();
    const QString text = m_pInterface ? m_pInterface->HandleListviewDisplayRole(index) : QString();
    if (!text.isEmpty())
        return text;
    return m_eShowStringMode == FM_SHOW_STRING_BASE_NAME ? NameWithoutExtension(index)
                                                         : FileSystemItem::FileName(*this, index);
}

QString CKTFMListModel::HandleEditRole(const QModelIndex& index) const
{
    if (index.model() != this)
        return QString();
    switch (m_eShowStringMode) {
    case FM_SHOW_STRING_FULL_NAME:
        return QLatin1String("");
    case FM_SHOW_STRING_BASE_NAME:
        return NameWithoutExtension(index);
    case FM_SHOW_STRING_CALLBACK:
        return FileSystemItem::FileName(*this, index);
    case FM_SHOW_STRING_INI: {
        const QString name = FileSystemItem::FileName(*this, index);
        return CutUnfoundExtension(index, name, GetFileTipsWithINI(name));
    }
    default:
        return QString();
    }
}

QString CKTFMListModel::HandleToolTipRole(const QModelIndex& index) const
{
    if (index.column() != 0 || index.model() != this)
        return QString();
    const QString text = m_pInterface ? m_pInterface->HandleListviewToolTipRole(index) : QString();
    if (!text.isNull())
        return text;
    const QString name = FileSystemItem::FileName(*this, index);
    if (m_bFileTipsMapping)
        return GetFileTipsWithINI(name);
    return m_eShowStringMode == FM_SHOW_STRING_INI ? MappedName(index) : NameMapping::WithoutExtension(name);
}

QImage CKTFMListModel::HandleDecorationRole(const QModelIndex& index) const
{
    return m_pInterface ? m_pInterface->HandleListviewDecorationRole(index) : QImage();
}

QString CKTFMListModel::NameWithoutExtension(const QModelIndex& index) const
{
    const QString name = FileSystemItem::FileName(*this, index);
    return isDir(index) ? name : NameMapping::WithoutExtension(name);
}

QString CKTFMListModel::MappedName(const QModelIndex& index) const
{
    const QString name = FileSystemItem::FileName(*this, index);
    return CutUnfoundExtension(index, name, GetFileNameWithINI(name));
}

QString CKTFMListModel::CutUnfoundExtension(const QModelIndex& index, const QString& name,
                                            const QString& mapped) const
{
    if (m_bUnfoundINIShowExtName || mapped != name || isDir(index))
        return mapped;
    return NameMapping::WithoutExtension(mapped);
}

QString CKTFMListModel::GetFileNameWithINI(const QString& name) const
{
    return NameMapping::TextOrName(m_nameProfile, m_strMappingSection, name);
}

QString CKTFMListModel::GetFileTipsWithINI(QString name) const
{
    return NameMapping::TextOrName(m_tipsProfile, m_strTipsMappingSection, name);
}

void CKTFMListModel::SetInterface(CKTFMListModelInterface* listInterface)
{
    m_pInterface = listInterface;
}

void CKTFMListModel::SetShowTips(bool on)
{
    m_bShowTips = on;
}

void CKTFMListModel::SetShowStringMode(EKTFMShowStringMode mode)
{
    m_eShowStringMode = mode;
}

void CKTFMListModel::SetRenamable(bool on)
{
    m_bRenamable = on;
    setReadOnly(!on);
}

void CKTFMListModel::SetRowHeight(unsigned int height)
{
    m_nRowHeight = height;
}

void CKTFMListModel::SetSearchFilter(const QString& text)
{
    m_strSearchFilter = text;
}

void CKTFMListModel::AddCutItems(QStringList paths)
{
    m_cutItems = paths;
}

void CKTFMListModel::ClearCutItems()
{
    m_cutItems.clear();
    QFile::remove(QDir::tempPath() + QStringLiteral("/qtfm.temp"));
}

bool CKTFMListModel::SetFileNameMappingFile(QString path)
{
    if (!NameMapping::SetFile(m_nameProfile, m_strNameMappingFile, path))
        return false;
    m_eShowStringMode = FM_SHOW_STRING_INI;
    return true;
}

bool CKTFMListModel::SetFileMappingSection(QString section)
{
    if (section.isNull())
        return false;
    m_strMappingSection = section;
    return true;
}

bool CKTFMListModel::SetFileTipsMappingFile(QString path, QString section)
{
    if (section.isNull() || !NameMapping::SetFile(m_tipsProfile, m_strTipsMappingFile, path))
        return false;
    m_strTipsMappingSection = section;
    m_bRenamable = false;
    m_bFileTipsMapping = true;
    return true;
}

void CKTFMListModel::SetFileTipsMapping(bool on)
{
    m_bFileTipsMapping = on;
}

void CKTFMListModel::SetUnfoundINIShowExtName(bool on)
{
    m_bUnfoundINIShowExtName = on;
}

void CKTFMListModel::SetSortedByProxy(bool on)
{
    m_bSortedByProxy = on;
}
