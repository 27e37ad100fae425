#ifndef CKTFMCUSTOMLISTMODEL_H
#define CKTFMCUSTOMLISTMODEL_H

#include <KTFileManager2QU/KTFMExport.h>
#include <KTFileManager2QU/KTFMTypes.h>

#include <QAbstractItemModel>
#include <QFileIconProvider>
#include <QImage>
#include <QList>
#include <QStringList>

#include <memory>

class CKTFMListModelInterface;
class HostImageCache;
class QListWidgetItem;

/**
 * A flat list of files from anywhere on disk, which the host puts together item by item.
 *
 * An item is a QListWidgetItem (in no list widget) whose text is the path of a file or folder. Column 0
 * shows its name; once header texts are set there are as many columns as texts, and columns 1 to 3 show size,
 * type and date. Items can be dragged out as a list of URLs. The model shows what is on disk at the moment it
 * is asked: each name, size, type and date costs one look at the disk, and nothing is watched.
 *
 * The path of an index is under Qt::EditRole. A callback that is given an index of this model finds the rest
 * by its row, since rows stand in the order of AddItem, or by a role of the host's own that the item holds.
 *
 * Whatever parent is asked about, rowCount and columnCount answer for the whole list, while no item has a
 * parent. Show the model in a list view, or in a tree view whose items cannot be expanded.
 *
 * The model emits no dataChanged: after it has changed an item, or a setting here, the host updates its view.
 */
class KTFM_EXPORT CKTFMCustomListModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    /** An empty list without columns: see SetHeaderTextList. @param parent owns the model; null for none */
    explicit CKTFMCustomListModel(QObject* parent = nullptr);
    ~CKTFMCustomListModel() override;

    using QObject::parent;

    /**
     * Appends a row. The host keeps the item and must leave it alive while it is in the model. An item may
     * be added more than once; null is ignored.
     */
    void AddItem(QListWidgetItem* item);

    /** Removes the first row of @p item, which is not deleted. Null or an item not in the list is ignored. */
    void DelItem(QListWidgetItem* item);

    /** Removes all rows. The items are not deleted. */
    void ClearAllItems();

    /**
     * Sets the horizontal header labels; their number is the number of columns. Emits nothing, so set them
     * before a view shows the model. Set at least one, for a list view too: a view of a model without columns
     * paints the names, but "select all" and typing a name find nothing in it.
     */
    void SetHeaderTextList(QStringList texts);

    /**
     * Sets who is asked for names and images first; may be null. Not owned, and must outlive the model. Its
     * tool tips are not asked for: a tip is the shown name here. A host that answers every name itself keeps
     * painting off the disk.
     */
    void SetInterface(CKTFMListModelInterface* listInterface);

    /**
     * Sets how names are formed. FM_SHOW_STRING_BASE_NAME (the default), FM_SHOW_STRING_CALLBACK and
     * FM_SHOW_STRING_CUSTOM ask the interface first; every other mode shows empty names.
     */
    void SetShowStringMode(EKTFMShowStringMode mode);

    /** @return the shown name of an index in column 0, an empty text for any other */
    QString HandleDisplayRole(const QModelIndex& index) const;

    /** @return the shown name, as HandleDisplayRole */
    QString HandleToolTipRole(const QModelIndex& index) const;

    /**
     * @return the interface's image, else the image or pixmap that the item holds under Qt::DecorationRole
     *         (an icon is not taken for one), else a white image of 125 x 125 pixels
     */
    QImage HandleListviewDecorationRole(const QModelIndex& index) const;

    /**
     * @param row,column the cell
     * @param parent makes no difference
     * @return an index for any row and column that is not negative; neither is checked against the list
     */
    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;

    /**
     * Looks a row up by what data() answers in column 0, exactly. Linear in the number of rows.
     * @param text what is looked for
     * @param role the role that is asked, such as Qt::DisplayRole
     * @return the index of the first such row in column 0, an invalid one if there is none
     */
    QModelIndex index(QString text, int role) const;

    /** @return an invalid index: no item has a parent */
    QModelIndex parent(const QModelIndex& child) const override;

    /** @return the number of items, whatever @p parent is */
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;

    /** @return the number of header texts, whatever @p parent is */
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

    /**
     * The text under Qt::DisplayRole is also the one under Qt::ToolTipRole, in every column. The decoration
     * is the same in every column. Roles that the model does not form itself are the item's own.
     *
     * Text of a column beyond 3 is the item's own; it is asked for by mistake and logged as a warning.
     */
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /**
     * Sets the item's own data, which data() answers only for roles that the model does not form itself.
     * @return false for an index beyond the list, else true
     */
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    /** @return the header's text, aligned to the left; section 0 has a spacer as its decoration */
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /** @return the base's flags, with drag and drop enabled; for an invalid index drop alone */
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /** @return "text/uri-list" */
    QStringList mimeTypes() const override;

    /**
     * @return the files of those @p indexes that are in column 0, as a list of URLs in the order given; the
     *         caller owns it. An item without text stands for no file and is left out.
     */
    QMimeData* mimeData(const QModelIndexList& indexes) const override;

    /**
     * Takes nothing. The flags let a view offer the list as a target; what a drop means is for the host to
     * say, in a view that handles its drop events or in a class derived from this one.
     * @return false
     */
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

private:
    QString FileSize(const QModelIndex& index) const;
    QString FileSize(qint64 size) const;
    QString FileType(const QModelIndex& index) const;
    QString FileDate(const QModelIndex& index) const;
    QString GetOriginTextData(const QModelIndex& index) const;
    QListWidgetItem* ItemAt(const QModelIndex& index) const;
    QString HostName(const QModelIndex& index) const;
    QString OwnName(const QString& path) const;
    QVariant TextOf(const QModelIndex& index, int role) const;

    QList<QListWidgetItem*> m_items;
    CKTFMListModelInterface* m_pInterface = nullptr;
    EKTFMShowStringMode m_eShowStringMode = FM_SHOW_STRING_BASE_NAME;
    QImage m_defaultImage;
    QStringList m_headerTexts;
    QFileIconProvider m_iconProvider;
    std::unique_ptr<HostImageCache> m_pIcons;
};

#endif
