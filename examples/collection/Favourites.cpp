#include "Favourites.h"

#include "ContentImages.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QListWidgetItem>
#include <QSet>

#include <algorithm>

/** A favourite and what the last look at the disk told of it. */
class Favourites::Item final : public QListWidgetItem
{
public:
    explicit Item(const QString& path) : QListWidgetItem(path) { Look(); }

    void Look()
    {
        const QFileInfo info(text());
        m_bExists = info.exists();
        m_bFolder = info.isDir();
        m_modified = info.lastModified();
        m_name = m_bFolder ? info.fileName() : info.completeBaseName();
    }

    bool m_bExists = false;
    bool m_bFolder = false;
    QDateTime m_modified;
    QString m_name;
};

Favourites::Favourites(ContentImages& images, QObject* parent) : QObject(parent), m_images(images)
{
    m_model.SetInterface(this);
    // A model without header texts has no columns, and a view without columns selects nothing.
    m_model.SetHeaderTextList({tr("Name")});
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &Favourites::Refresh);
    connect(&m_images, &ContentImages::Ready, this, &Favourites::Refreshed);
}

bool Favourites::AddOne(const QString& path)
{
    if (path.isEmpty() || Paths().contains(path))
        return false;
    m_items.push_back(std::make_unique<Item>(path));
    m_model.AddItem(m_items.back().get());
    WatchFolderOf(path);
    return true;
}

Favourites::~Favourites() = default;

CKTFMCustomListModel& Favourites::Model()
{
    return m_model;
}

void Favourites::Add(const QStringList& paths)
{
    bool hasAdded = false;
    for (const QString& path : paths) {
        if (!path.isEmpty())
            hasAdded = AddOne(QDir::cleanPath(QFileInfo(path).absoluteFilePath())) || hasAdded;
    }
    if (hasAdded)
        Q_EMIT Changed();
}

void Favourites::Remove(const QModelIndexList& rows)
{
    QSet<const Item*> leaving;
    for (const QModelIndex& row : rows)
        leaving.insert(ItemAt(row));
    const auto first = std::stable_partition(m_items.begin(), m_items.end(), [&leaving](const auto& item) {
        return !leaving.contains(item.get());
    });
    if (first == m_items.end())
        return;
    std::for_each(first, m_items.end(), [this](const auto& item) { m_model.DelItem(item.get()); });
    m_items.erase(first, m_items.end());
    Q_EMIT Changed();
}

QStringList Favourites::Paths() const
{
    QStringList paths;
    for (const auto& item : m_items)
        paths.append(item->text());
    return paths;
}

QString Favourites::PathOf(const QModelIndex& row) const
{
    const Item* item = ItemAt(row);
    return item ? item->text() : QString();
}

bool Favourites::IsMissing(const QModelIndex& row) const
{
    const Item* item = ItemAt(row);
    return item && !item->m_bExists;
}

void Favourites::Refresh()
{
    for (const auto& item : m_items) {
        item->Look();
        WatchFolderOf(item->text());
    }
    Q_EMIT Refreshed();
}

void Favourites::WatchFolderOf(const QString& path)
{
    const QString folder = QFileInfo(path).path();
    if (QFileInfo::exists(folder) && !m_watcher.directories().contains(folder))
        m_watcher.addPath(folder);
}

const Favourites::Item* Favourites::ItemAt(const QModelIndex& row) const
{
    const auto number = static_cast<std::size_t>(row.row());
    return row.isValid() && number < m_items.size() ? m_items[number].get() : nullptr;
}

QImage Favourites::HandleListviewDecorationRole(const QModelIndex& index)
{
    const Item* item = ItemAt(index);
    if (!item || !item->m_bExists)
        return m_images.Cards().Missing();
    return item->m_bFolder ? m_images.Cards().Folder() : m_images.OfFile(item->text(), item->m_modified);
}

QString Favourites::HandleListviewDisplayRole(const QModelIndex& index)
{
    const Item* item = ItemAt(index);
    if (!item)
        return QString();
    return item->m_bExists ? item->m_name : tr("%1 (missing)").arg(item->m_name);
}
