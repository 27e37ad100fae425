#ifndef FAVOURITES_H
#define FAVOURITES_H

#include <KTFileManager2QU/CKTFMCustomListModel.h>
#include <KTFileManager2QU/KTFMInterfaces.h>

#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>

#include <memory>
#include <vector>

class ContentImages;

/**
 * Files and folders from anywhere, in a CKTFMCustomListModel.
 *
 * The model keeps what it is given but owns none of it, and it watches nothing: both are done here. A
 * favourite whose file has vanished stays, and is shown as missing until the file is there again.
 */
class Favourites final : public QObject, private CKTFMListModelInterface
{
    Q_OBJECT

public:
    /** @param images borrowed; they must outlive this object */
    explicit Favourites(ContentImages& images, QObject* parent = nullptr);
    ~Favourites() override;

    CKTFMCustomListModel& Model();

    /** Appends files and folders that are not there yet. */
    void Add(const QStringList& paths);

    /** Removes some rows of the model; what is on disk stays. */
    void Remove(const QModelIndexList& rows);

    /** @return the paths of all, in their order */
    QStringList Paths() const;

    /** @return the path of a row */
    QString PathOf(const QModelIndex& row) const;

    bool IsMissing(const QModelIndex& row) const;

    /** Looks at the disk again. */
    void Refresh();

Q_SIGNALS:
    /** Favourites were added or removed. */
    void Changed();

    /** A view should ask the model again. */
    void Refreshed();

private:
    class Item;

    const Item* ItemAt(const QModelIndex& row) const;
    bool AddOne(const QString& path);
    void WatchFolderOf(const QString& path);
    QImage HandleListviewDecorationRole(const QModelIndex& index) override;
    QString HandleListviewDisplayRole(const QModelIndex& index) override;

    ContentImages& m_images;
    std::vector<std::unique_ptr<Item>> m_items; ///< as the rows of the model
    CKTFMCustomListModel m_model;
    QFileSystemWatcher m_watcher;
};

#endif
