#include <KTFileManager2QU/CKTFMTreeModel.h>

#include <KTFileManager2QU/KTFMInterfaces.h>

#include "ini/NameMapping.h"
#include "models/FileSystemItem.h"
#include "models/HostImageCache.h"
#include "models/LazyIconProvider.h"
#include "models/RenameErrorEvents.h"
#include "models/UnchangedEntries.h"
#include "models/VanishedFolders.h"

#include <QDir>
#include <QFileInfo>

namespace {

const RenameErrorEvents renameErrorEvents;

} // namespace

CKTFMTreeModel::CKTFMTreeModel(QObject* parent)
    : QFileSystemModel(parent),
      m_pImages(std::make_unique<HostImageCache>()),
      m_pIconProvider(std::make_unique<LazyIconProvider>())
{
    setIconProvider(m_pIconProvider.get());
    setFilter(QDir::AllDirs | QDir::NoSymLinks | QDir::NoDotAndDotDot);
    setNameFilterDisables(false);
    VanishedFolders::Follow(*this);
    UnchangedEntries::Follow(*this, [this] { return sender(); });
}

CKTFMTreeModel::~CKTFMTreeModel() = default;

bool CKTFMTreeModel::event(QEvent* event)
{
    const int code = renameErrorEvents.CodeOf(*event);
    if (code < 0)
        return QFileSystemModel::event(event);
    Q_EMIT RenameFileError(code);
    return true;
}

bool CKTFMTreeModel::canFetchMore(const QModelIndex& parent) const
{
    return m_bListsFolders && QFileSystemModel::canFetchMore(parent);
}

void CKTFMTreeModel::fetchMore(const QModelIndex& parent)
{
    if (m_bListsFolders)
        QFileSystemModel::fetchMore(parent);
}

int CKTFMTreeModel::columnCount(const QModelIndex& parent) const
{
    return QFileSystemModel::columnCount(parent);
}

QVariant CKTFMTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return QFileSystemModel::headerData(section, orientation, role);
}

Qt::ItemFlags CKTFMTreeModel::flags(const QModelIndex& index) const
{
    if (index.isValid() && index.model() != this)
        return Qt::NoItemFlags;
    const Qt::ItemFlags flags = QFileSystemModel::flags(index);
    return m_bRenamable ? flags | Qt::ItemIsEditable : flags;
}

QVariant CKTFMTreeModel::data(const QModelIndex& index, int role) const
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
    default:
        break;
    }
    return text.isNull() ? QFileSystemModel::data(index, role) : text;
}

void CKTFMTreeModel::RememberEdited(const QModelIndex& index) const
{
    const QFileInfo info = fileInfo(index);
    m_editPaths.insert(index.row(), info.absoluteFilePath());
    m_editNames.insert(index.row(), info.fileName());
}

bool CKTFMTreeModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    // The base would take an index of another model for its own.
    if (index.isValid() && index.model() != this)
        return false;
    if (!index.isValid() || role != Qt::EditRole)
        return QFileSystemModel::setData(index, value, role);
    const QFileInfo item = fileInfo(index);
    const QString newName = value.toString();
    if (newName == item.fileName())
        return true;
    if (const auto error = FileSystemItem::Rename(item, newName, true)) {
        renameErrorEvents.Post(this, *error);
        return false;
    }
    return true;
}

QString CKTFMTreeModel::HandleDisplayRole(const QModelIndex& index) const
{
    if (index.column() != 0 || index.model() != this)
        return QString();
    switch (m_eShowStringMode) {
    case FM_SHOW_STRING_BASE_NAME:
        return NameWithoutExtension(index);
    case FM_SHOW_STRING_CALLBACK:
        return FileSystemItem::FileName(*this, index);
    case FM_SHOW_STRING_INI:
        return GetFolderNameWithINI(FileSystemItem::FileName(*this, index));
    default:
        return QString();
    }
}

QString CKTFMTreeModel::HandleEditRole(const QModelIndex& index) const
{
    Q_UNUSED(index)
    return QString();
}

QString CKTFMTreeModel::HandleToolTipRole(const QModelIndex& index) const
{
    if (index.column() != 0 || index.model() != this)
        return QString();
    if (m_bFolderTipsMapping)
        return GetFolderTipsWithINI(FileSystemItem::FileName(*this, index));
    return m_eShowStringMode == FM_SHOW_STRING_INI
               ? GetFolderNameWithINI(FileSystemItem::FileName(*this, index))
               : NameWithoutExtension(index);
}

QImage CKTFMTreeModel::HandleDecorationRole(const QModelIndex& index) const
{
    return m_pInterface ? m_pInterface->HandleTreeviewDecorationRole(index) : QImage();
}

QString CKTFMTreeModel::NameWithoutExtension(const QModelIndex& index) const
{
    const QString name = FileSystemItem::FileName(*this, index);
    return isDir(index) ? name : name.left(name.indexOf(QLatin1Char('.')));
}

QString CKTFMTreeModel::GetFolderNameWithINI(const QString& name) const
{
    return NameMapping::TextOrName(m_nameProfile, m_strMappingSection, name);
}

QString CKTFMTreeModel::GetFolderTipsWithINI(QString name) const
{
    return NameMapping::TextOrName(m_tipsProfile, m_strTipsMappingSection, name);
}

void CKTFMTreeModel::SetInterface(CKTFMTreeModelInterface* treeInterface)
{
    m_pInterface = treeInterface;
}

void CKTFMTreeModel::SetShowTips(bool on)
{
    m_bShowTips = on;
}

void CKTFMTreeModel::SetShowStringMode(EKTFMShowStringMode mode)
{
    m_eShowStringMode = mode;
}

void CKTFMTreeModel::SetRenamable(bool on)
{
    m_bRenamable = on;
    setReadOnly(!on);
    if (!on)
        return;
    m_bFolderTipsMapping = false;
    if (m_eShowStringMode == FM_SHOW_STRING_INI)
        m_eShowStringMode = FM_SHOW_STRING_BASE_NAME;
}

void CKTFMTreeModel::SetListsFolders(bool on)
{
    m_bListsFolders = on;
    if (!FileSystemItem::HasRootPath(*this))
        return;
    const QModelIndex root = index(rootPath());
    if (canFetchMore(root))
        fetchMore(root);
}

bool CKTFMTreeModel::SetFolderNameMappingFile(QString path)
{
    if (!NameMapping::SetFile(m_nameProfile, m_strNameMappingFile, path))
        return false;
    m_eShowStringMode = FM_SHOW_STRING_INI;
    return true;
}

bool CKTFMTreeModel::SetFileMappingSection(QString section)
{
    if (section.isNull())
        return false;
    m_strMappingSection = section;
    return true;
}

bool CKTFMTreeModel::SetFolderTipsMappingFile(QString path, QString section)
{
    if (section.isNull() || !NameMapping::SetFile(m_tipsProfile, m_strTipsMappingFile, path))
        return false;
    m_strTipsMappingSection = section;
    m_bRenamable = false;
    m_bFolderTipsMapping = true;
    return true;
}
