#include <KTFileManager2QU/CKTFMCustomListModel.h>
#include <KTFileManager2QU/KTFMInterfaces.h>

#include "models/HostImageCache.h"

#include <QDateTime>
#include <QFileInfo>
#include <QListWidgetItem>
#include <QLocale>
#include <QMimeData>
#include <QUrl>

namespace {

/** What the columns show; they exist once header texts are set. */
enum Column : int
{
    NameColumn = 0,
    SizeColumn = 1,
    TypeColumn = 2,
    DateColumn = 3
};

/** The sides of the default image, in pixels: the largest icon size preset of the file list. */
constexpr int DefaultImageSide = 125;

constexpr qint64 KiB = 1024;
constexpr qint64 MiB = 1024 * KiB;
constexpr qint64 GiB = 1024 * MiB;
constexpr qint64 TiB = 1024 * GiB;

/** The size shown for what is neither a file nor a folder. */
constexpr qint64 UnknownSize = -1;

QImage WhiteImage()
{
    QImage image(DefaultImageSide, DefaultImageSide, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

/** A transparent image that moves the first header label in, to stand over the names beside their images. */
QImage HeaderSpacer()
{
    QImage spacer(16, 1, QImage::Format_Mono);
    spacer.fill(0);
    spacer.setAlphaChannel(spacer.createAlphaMask());
    return spacer;
}

QString InUnits(qint64 size, qint64 unit, int decimals)
{
    return QLocale().toString(static_cast<double>(size) * (1.0 / static_cast<double>(unit)), 'f', decimals);
}

} // namespace

CKTFMCustomListModel::CKTFMCustomListModel(QObject* parent)
    : QAbstractItemModel(parent),
      m_defaultImage(WhiteImage()),
      m_pIcons(std::make_unique<HostImageCache>())
{
}

CKTFMCustomListModel::~CKTFMCustomListModel() = default;

void CKTFMCustomListModel::AddItem(QListWidgetItem* item)
{
    if (!item)
        return;
    const int row = m_items.size();
    beginInsertRows(QModelIndex(), row, row);
    m_items.append(item);
    endInsertRows();
}

void CKTFMCustomListModel::DelItem(QListWidgetItem* item)
{
    const int row = m_items.indexOf(item);
    if (row < 0)
        return;
    beginRemoveRows(QModelIndex(), row, row);
    m_items.removeAt(row);
    endRemoveRows();
}

void CKTFMCustomListModel::ClearAllItems()
{
    if (m_items.isEmpty())
        return;
    beginRemoveRows(QModelIndex(), 0, m_items.size() - 1);
    m_items.clear();
    endRemoveRows();
}

void CKTFMCustomListModel::SetHeaderTextList(QStringList texts)
{
    m_headerTexts = texts;
}

void CKTFMCustomListModel::SetInterface(CKTFMListModelInterface* listInterface)
{
    m_pInterface = listInterface;
}

void CKTFMCustomListModel::SetShowStringMode(EKTFMShowStringMode mode)
{
    m_eShowStringMode = mode;
}

QString CKTFMCustomListModel::HandleDisplayRole(const QModelIndex& index) const
{
    if (index.column() != NameColumn || !ItemAt(index))
        return QString();
    const QString path = GetOriginTextData(index);
    const QString hostName = HostName(index);
    return hostName.isEmpty() ? OwnName(path) : hostName;
}

QString CKTFMCustomListModel::HostName(const QModelIndex& index) const
{
    const bool asksHost = m_eShowStringMode == FM_SHOW_STRING_BASE_NAME ||
                          m_eShowStringMode == FM_SHOW_STRING_CALLBACK ||
                          m_eShowStringMode == FM_SHOW_STRING_CUSTOM;
    return asksHost && m_pInterface ? m_pInterface->HandleListviewDisplayRole(index) : QString();
}

QString CKTFMCustomListModel::OwnName(const QString& path) const
{
    const QFileInfo info(path);
    switch (m_eShowStringMode) {
    case FM_SHOW_STRING_BASE_NAME:
        return info.isDir() ? info.fileName() : info.completeBaseName();
    case FM_SHOW_STRING_CALLBACK:
        return info.fileName();
    case FM_SHOW_STRING_CUSTOM:
        return path;
    default:
        return QString();
    }
}

QString CKTFMCustomListModel::HandleToolTipRole(const QModelIndex& index) const
{
    return HandleDisplayRole(index);
}

QImage CKTFMCustomListModel::HandleListviewDecorationRole(const QModelIndex& index) const
{
    const QImage hostImage = m_pInterface ? m_pInterface->HandleListviewDecorationRole(index) : QImage();
    if (!hostImage.isNull())
        return hostImage;
    const QListWidgetItem* item = ItemAt(index);
    const QImage ownImage = item ? item->data(Qt::DecorationRole).value<QImage>() : QImage();
    return ownImage.isNull() ? m_defaultImage : ownImage;
}

QModelIndex CKTFMCustomListModel::index(int row, int column, const QModelIndex& parent) const
{
    Q_UNUSED(parent)
    return createIndex(row, column);
}

QModelIndex CKTFMCustomListModel::index(QString text, int role) const
{
    for (int row = 0; row < m_items.size(); ++row) {
        const QModelIndex candidate = index(row, NameColumn);
        if (data(candidate, role).toString() == text)
            return candidate;
    }
    return QModelIndex();
}

QModelIndex CKTFMCustomListModel::parent(const QModelIndex& child) const
{
    Q_UNUSED(child)
    return QModelIndex();
}

int CKTFMCustomListModel::rowCount(const QModelIndex& parent) const
{
    Q_UNUSED(parent)
    return m_items.size();
}

int CKTFMCustomListModel::columnCount(const QModelIndex& parent) const
{
    Q_UNUSED(parent)
    return m_headerTexts.size();
}

QVariant CKTFMCustomListModel::data(const QModelIndex& index, int role) const
{
    if (!ItemAt(index))
        return QVariant();
    switch (role) {
    case Qt::DecorationRole:
        return m_pIcons->IconFor(HandleListviewDecorationRole(index));
    case Qt::TextAlignmentRole:
        return static_cast<int>(Qt::AlignVCenter);
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return TextOf(index, role);
    default:
        return ItemAt(index)->data(role);
    }
}

QVariant CKTFMCustomListModel::TextOf(const QModelIndex& index, int role) const
{
    if (m_headerTexts.isEmpty())
        return HandleDisplayRole(index);
    switch (index.column()) {
    case NameColumn:
        return HandleDisplayRole(index);
    case SizeColumn:
        return FileSize(index);
    case TypeColumn:
        return FileType(index);
    case DateColumn:
        return FileDate(index);
    default:
        qWarning("data: invalid display value column %d", index.column());
        return ItemAt(index)->data(role);
    }
}

QString CKTFMCustomListModel::FileSize(const QModelIndex& index) const
{
    const QFileInfo info(GetOriginTextData(index));
    if (info.isDir())
        return QString();
    return FileSize(info.isFile() ? info.size() : UnknownSize);
}

QString CKTFMCustomListModel::FileSize(qint64 size) const
{
    if (size >= TiB)
        return tr("%1 TB").arg(InUnits(size, TiB, 3));
    if (size >= GiB)
        return tr("%1 GB").arg(InUnits(size, GiB, 2));
    if (size >= MiB)
        return tr("%1 MB").arg(InUnits(size, MiB, 1));
    if (size >= KiB)
        return tr("%1 KB").arg(QLocale().toString(size / KiB));
    return tr("%1 bytes").arg(QLocale().toString(size));
}

QString CKTFMCustomListModel::FileType(const QModelIndex& index) const
{
    return m_iconProvider.type(QFileInfo(GetOriginTextData(index)));
}

QString CKTFMCustomListModel::FileDate(const QModelIndex& index) const
{
    const QDateTime modified = QFileInfo(GetOriginTextData(index)).lastModified();
    return QLocale::system().toString(modified, QLocale::ShortFormat);
}

QString CKTFMCustomListModel::GetOriginTextData(const QModelIndex& index) const
{
    const QListWidgetItem* item = ItemAt(index);
    return item ? item->text() : QString();
}

QListWidgetItem* CKTFMCustomListModel::ItemAt(const QModelIndex& index) const
{
    return index.isValid() && index.row() < m_items.size() ? m_items.at(index.row()) : nullptr;
}

bool CKTFMCustomListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    QListWidgetItem* item = ItemAt(index);
    if (!item)
        return false;
    item->setData(role, value);
    return true;
}

QVariant CKTFMCustomListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role == Qt::DecorationRole && section == 0)
        return HeaderSpacer();
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(Qt::AlignLeft);
    if (role == Qt::DisplayRole && orientation == Qt::Horizontal) {
        const bool hasText = section >= 0 && section < m_headerTexts.size();
        return hasText ? QVariant(m_headerTexts.at(section)) : QVariant();
    }
    return QAbstractItemModel::headerData(section, orientation, role);
}

Qt::ItemFlags CKTFMCustomListModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags base = QAbstractItemModel::flags(index);
    if (!index.isValid())
        return base | Qt::ItemIsDropEnabled;
    return base | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled;
}

QStringList CKTFMCustomListModel::mimeTypes() const
{
    return {QStringLiteral("text/uri-list")};
}

QMimeData* CKTFMCustomListModel::mimeData(const QModelIndexList& indexes) const
{
    QList<QUrl> urls;
    for (const QModelIndex& index : indexes) {
        const QString path = index.column() == NameColumn ? GetOriginTextData(index) : QString();
        if (!path.isEmpty())
            urls.append(QUrl::fromLocalFile(path));
    }
    auto* data = new QMimeData;
    data->setUrls(urls);
    return data;
}

bool CKTFMCustomListModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                        const QModelIndex& parent)
{
    Q_UNUSED(data)
    Q_UNUSED(action)
    Q_UNUSED(row)
    Q_UNUSED(column)
    Q_UNUSED(parent)
    // The base would read the list of URLs as items in its own format, and ask for more memory than there is.
    return false;
}
