#ifndef UNCHANGEDENTRIES_H
#define UNCHANGEDENTRIES_H

#include <QDateTime>
#include <QFileInfo>
#include <QHash>
#include <QObject>
#include <QPair>
#include <QPointer>
#include <QVector>

#include <functional>

class QFileIconProvider;
class QFileSystemModel;
class QModelIndex;

/**
 * Keeps from a file-system model the entries of a folder that are as the model was last told.
 *
 * When one entry of a folder changes, the base lists the whole folder again in its gatherer thread and then
 * compares every entry with its node in the GUI thread, which stands still meanwhile. Here the gatherer's
 * batches are taken in between. In the gatherer thread each entry gets a stamp, all that can differ without
 * another name. In the GUI thread, in the batch's place among the model's events, the entries whose stamp is
 * that of the last time are left out and the base is given the rest.
 *
 * The stamps belong to the GUI thread, which alone reads and writes them, and an entry's is forgotten
 * whenever its node is dropped or replaced. What is not certain is handed on: a link is never left out (what
 * it leads to may change), nor is anything while the model uses another icon provider than at first (the base
 * also compares the descriptions that it gives).
 *
 * The base has no means for this; its gatherer and slot are reached by name, and where a name is missing all
 * stays as the base does it.
 *
 * The object belongs to the gatherer, which ends its thread before it deletes what belongs to it. The thread
 * may be at work until after the model's own parts are destroyed, so that all it touches is this object: it
 * sends batches to this object's event queue, which is the model's as both live in one thread, and not to the
 * model.
 */
class UnchangedEntries : public QObject
{
    Q_OBJECT

public:
    using Batch = QVector<QPair<QString, QFileInfo>>;

    /**
     * Sets to work as soon as @p model hears of its gatherer, which is while the first folder is listed. The
     * icon provider that the model has now must always describe the same file in the same way.
     * @param sender answers the model's own sender(), which only the model may ask
     */
    static void Follow(QFileSystemModel& model, std::function<QObject*()> sender);

private Q_SLOTS:
    // These run in the gatherer's thread, while it waits.
    void TakeBatch(const QString& folder, const QVector<QPair<QString, QFileInfo>>& batch);
    void TakeNames(const QString& folder, const QStringList& names);

private:
    /** All of an entry that can differ while its name stays. */
    struct Stamp
    {
        explicit Stamp(const QFileInfo& info);
        bool operator==(const Stamp& other) const;

        qint64 size;
        QDateTime modified;
        QDateTime statusChanged;
        int permissions;
        bool isDir;
        bool isFile;
        bool isHidden;
        bool isLasting; ///< whether the stamp tells all; a link's does not
    };

    /** What the model was told of a folder. */
    struct Folder
    {
        const void* node = nullptr; ///< the model's, by which a folder that was made anew is known
        QHash<QString, Stamp> stamps;
    };

    /** The numbers of the gatherer's signals and of the base's slot for batches. */
    struct BaseMethods
    {
        int batches;
        int names;
        int slot;
    };

    UnchangedEntries(QFileSystemModel& model, QObject& gatherer, BaseMethods base,
                     const QFileIconProvider* provider);

    static BaseMethods FindMethods(const QFileSystemModel& model, const QObject& gatherer);
    bool TakeOver();
    void HandOn(const QString& path, const Batch& batch);
    void Apply(const QString& path, const Batch& batch, const QVector<Stamp>& stamps);
    Batch Changed(Folder& folder, const Batch& batch, const QVector<Stamp>& stamps) const;
    Folder* FolderAt(const QString& path);
    void KeepOnly(const QString& path, const QStringList& names);
    static void KeepOnly(QHash<QString, Stamp>& stamps, const QStringList& names);
    void KeepFoldersOf(const QString& path, const QStringList& names);
    void ForgetRows(const QModelIndex& parent, int first, int last);
    void ForgetEntry(const QString& folder, const QString& name);
    void ForgetFolders(const QString& path);

    QPointer<QFileSystemModel> m_pModel; ///< the GUI thread's
    QObject* m_pReceiver;                ///< the model's address, never looked behind
    QObject* m_pGatherer;
    BaseMethods m_base;
    const QFileIconProvider* m_pIconProvider;
    bool m_bTakenOver = false; ///< the gatherer thread's
    bool m_bApplying = false;
    QHash<QString, Folder> m_folders;
};

#endif
