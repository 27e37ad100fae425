#include "models/UnchangedEntries.h"

#include <QFileSystemModel>
#include <QSet>

#include <algorithm>
#include <utility>

namespace {

/** The base's private class that lists folders in a thread of its own. */
constexpr char GathererClass[] = "QFileInfoGatherer";

/** The gatherer's signal of all names of a folder, and the slot here for it. */
constexpr char NamesSignal[] = "newListOfFiles(QString,QStringList)";
constexpr char OwnNamesSlot[] = "TakeNames(QString,QStringList)";

/** The gatherer's signal of a batch of listed entries, and the slots for it here and in the base. */
constexpr char OwnBatchSlot[] = "TakeBatch(QString,QVector<QPair<QString,QFileInfo> >)";
constexpr char BatchSignal[] = "updates(QString,QVector<QPair<QString,QFileInfo> >)";
constexpr char BatchSlot[] = "_q_fileSystemChanged(QString,QVector<QPair<QString,QFileInfo> >)";

/** The name of that slot, and the type of a batch as the base spells it. */
constexpr char BatchSlotName[] = "_q_fileSystemChanged";
constexpr char BatchType[] = "QVector<QPair<QString,QFileInfo> >";

/** @return what the path of everything in a folder begins with */
QString PrefixOf(const QString& folder)
{
    return folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
}

} // namespace

UnchangedEntries::Stamp::Stamp(const QFileInfo& info)
    : size(info.size()),
      modified(info.lastModified()),
      statusChanged(info.metadataChangeTime()),
      permissions(static_cast<int>(info.permissions())),
      isDir(info.isDir()),
      isFile(info.isFile()),
      isHidden(info.isHidden()),
      isLasting(info.exists() && !info.isSymLink())
{
}

bool UnchangedEntries::Stamp::operator==(const Stamp& other) const
{
    return size == other.size && modified == other.modified && statusChanged == other.statusChanged &&
           permissions == other.permissions && isDir == other.isDir && isFile == other.isFile &&
           isHidden == other.isHidden;
}

void UnchangedEntries::Follow(QFileSystemModel& model, std::function<QObject*()> sender)
{
    // With the model itself as the context, its sender would be the model.
    auto* context = new QObject(&model);
    const QFileIconProvider* provider = model.iconProvider();
    const auto find = [&model, context, provider, sender = std::move(sender)] {
        QObject* gatherer = sender();
        if (!gatherer || !gatherer->inherits(GathererClass))
            return;
        QObject::disconnect(&model, nullptr, context, nullptr);
        context->deleteLater();
        const BaseMethods base = FindMethods(model, *gatherer);
        if (base.batches >= 0 && base.names >= 0 && base.slot >= 0)
            new UnchangedEntries(model, *gatherer, base, provider);
    };
    QObject::connect(&model, &QAbstractItemModel::rowsInserted, context, find);
    QObject::connect(&model, &QAbstractItemModel::dataChanged, context, find);
    QObject::connect(&model, &QFileSystemModel::directoryLoaded, context, find);
}

UnchangedEntries::BaseMethods UnchangedEntries::FindMethods(const QFileSystemModel& model,
                                                            const QObject& gatherer)
{
    return {gatherer.metaObject()->indexOfSignal(BatchSignal),
            gatherer.metaObject()->indexOfSignal(NamesSignal), model.metaObject()->indexOfSlot(BatchSlot)};
}

UnchangedEntries::UnchangedEntries(QFileSystemModel& model, QObject& gatherer, BaseMethods base,
                                   const QFileIconProvider* provider)
    : QObject(&gatherer),
      m_pModel(&model),
      m_pReceiver(&model),
      m_pGatherer(&gatherer),
      m_base(base),
      m_pIconProvider(provider)
{
    connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, this, &UnchangedEntries::ForgetRows);
    connect(&model, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex& parent, int first, int last) {
                if (!m_bApplying)
                    ForgetRows(parent, first, last);
            });
    connect(&model, &QAbstractItemModel::modelAboutToBeReset, this, [this] { m_folders.clear(); });
    connect(&model, &QFileSystemModel::fileRenamed, this,
            [this](const QString& folder, const QString& oldName, const QString& newName) {
                ForgetEntry(folder, oldName);
                ForgetEntry(folder, newName);
            });
    // The gatherer may be listing at this moment. Its slots here are connected behind the base's, and the
    // first of them to be called takes over.
    QMetaObject::connect(&gatherer, base.batches, this, staticMetaObject.indexOfSlot(OwnBatchSlot),
                         Qt::DirectConnection);
    QMetaObject::connect(&gatherer, base.names, this, staticMetaObject.indexOfSlot(OwnNamesSlot),
                         Qt::DirectConnection);
}

/**
 * Ends the base's own way of taking batches. Only the gatherer thread sends them, and only it comes here,
 * while it sends something: no batch can slip through or arrive twice.
 * @return whether batches are handed on from here
 */
bool UnchangedEntries::TakeOver()
{
    // By numbers: a name would be looked up through the model, which may be half destroyed.
    if (!m_bTakenOver)
        m_bTakenOver = QMetaObject::disconnect(m_pGatherer, m_base.batches, m_pReceiver, m_base.slot);
    return m_bTakenOver;
}

void UnchangedEntries::TakeBatch(const QString& folder, const Batch& batch)
{
    if (!m_bTakenOver) {
        // The base has been given this one already.
        TakeOver();
        return;
    }
    QVector<Stamp> stamps;
    stamps.reserve(batch.size());
    for (const auto& entry : batch)
        stamps.append(Stamp(entry.second));
    QMetaObject::invokeMethod(
        this,
        [this, folder, batch, stamps] {
            if (m_pModel)
                Apply(folder, batch, stamps);
        },
        Qt::QueuedConnection);
}

void UnchangedEntries::TakeNames(const QString& folder, const QStringList& names)
{
    // The list of drives, with an empty path, may come from the GUI thread.
    if (folder.isEmpty() || !TakeOver())
        return;
    QMetaObject::invokeMethod(
        this,
        [this, folder, names] {
            if (m_pModel)
                KeepOnly(folder, names);
        },
        Qt::QueuedConnection);
}

void UnchangedEntries::HandOn(const QString& path, const Batch& batch)
{
    const bool wasApplying = std::exchange(m_bApplying, true);
    QMetaObject::invokeMethod(m_pModel.data(), BatchSlotName, Qt::DirectConnection, Q_ARG(QString, path),
                              QArgument<Batch>(BatchType, batch));
    m_bApplying = wasApplying;
}

void UnchangedEntries::Apply(const QString& path, const Batch& batch, const QVector<Stamp>& stamps)
{
    Folder* folder = FolderAt(path);
    if (!folder) {
        HandOn(path, batch);
        return;
    }
    const Batch changed = Changed(*folder, batch, stamps);
    if (!changed.isEmpty())
        HandOn(path, changed);
}

/** Remembers the stamps. @return the entries that the model does not know as they are */
UnchangedEntries::Batch UnchangedEntries::Changed(Folder& folder, const Batch& batch,
                                                  const QVector<Stamp>& stamps) const
{
    Batch changed;
    if (folder.stamps.isEmpty())
        folder.stamps.reserve(batch.size());
    for (int i = 0; i < batch.size(); ++i) {
        const auto& stamp = stamps.at(i);
        const auto known = folder.stamps.find(batch.at(i).first);
        if (known != folder.stamps.end() && *known == stamp && stamp.isLasting)
            continue;
        changed.append(batch.at(i));
        if (known != folder.stamps.end())
            *known = stamp;
        else
            folder.stamps.insert(batch.at(i).first, stamp);
    }
    return changed;
}

/** @return what is known of the folder, or null when the base would not take a batch to that folder's node */
UnchangedEntries::Folder* UnchangedEntries::FolderAt(const QString& path)
{
    // The base looks a path up in just this way; where it fails, the base puts the entries elsewhere.
    if (path.isEmpty())
        return nullptr;
    const QModelIndex index = m_pModel->index(path);
    if (!index.isValid() || m_pModel->filePath(index) != path ||
        m_pModel->iconProvider() != m_pIconProvider) {
        m_folders.clear();
        return nullptr;
    }
    Folder& folder = m_folders[path];
    if (std::exchange(folder.node, index.internalPointer()) != index.internalPointer())
        folder.stamps.clear();
    return &folder;
}

/** Forgets what a full list of a folder lacks: the base has dropped it, without a signal if it was hidden. */
void UnchangedEntries::KeepOnly(const QString& path, const QStringList& names)
{
    Folder* folder = FolderAt(path);
    if (!folder)
        return;
    KeepOnly(folder->stamps, names);
    KeepFoldersOf(path, names);
}

void UnchangedEntries::KeepOnly(QHash<QString, Stamp>& stamps, const QStringList& names)
{
    const auto isKnown = [&stamps](const QString& name) { return stamps.contains(name); };
    // Most often all are there still.
    if (std::count_if(names.cbegin(), names.cend(), isKnown) == stamps.size())
        return;
    const QSet<QString> present(names.cbegin(), names.cend());
    for (auto entry = stamps.begin(); entry != stamps.end();) {
        if (present.contains(entry.key()))
            ++entry;
        else
            entry = stamps.erase(entry);
    }
}

/** Forgets the folders below a folder that lead through a name which it lacks. */
void UnchangedEntries::KeepFoldersOf(const QString& path, const QStringList& names)
{
    const QString prefix = PrefixOf(path);
    QSet<QString> gone;
    for (auto folder = m_folders.cbegin(); folder != m_folders.cend(); ++folder) {
        if (folder.key().startsWith(prefix) && folder.key() != path)
            gone.insert(folder.key().mid(prefix.size()).section(QLatin1Char('/'), 0, 0));
    }
    if (gone.isEmpty())
        return;
    for (const QString& name : names)
        gone.remove(name);
    for (const QString& name : std::as_const(gone))
        ForgetFolders(prefix + name);
}

void UnchangedEntries::ForgetRows(const QModelIndex& parent, int first, int last)
{
    if (!parent.isValid()) {
        m_folders.clear();
        return;
    }
    const QString folder = m_pModel->filePath(parent);
    for (int row = first; row <= last && !m_folders.isEmpty(); ++row) {
        const QString path = m_pModel->filePath(m_pModel->index(row, 0, parent));
        ForgetEntry(folder, path.mid(path.lastIndexOf(QLatin1Char('/')) + 1));
    }
}

/** Forgets an entry, and if it is a folder all below it. */
void UnchangedEntries::ForgetEntry(const QString& folder, const QString& name)
{
    const auto known = m_folders.find(folder);
    if (known != m_folders.end())
        known->stamps.remove(name);
    ForgetFolders(PrefixOf(folder) + name);
}

void UnchangedEntries::ForgetFolders(const QString& path)
{
    const QString below = PrefixOf(path);
    for (auto folder = m_folders.begin(); folder != m_folders.end();) {
        if (folder.key() == path || folder.key().startsWith(below))
            folder = m_folders.erase(folder);
        else
            ++folder;
    }
}
