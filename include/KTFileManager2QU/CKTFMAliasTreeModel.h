#ifndef CKTFMALIASTREEMODEL_H
#define CKTFMALIASTREEMODEL_H

#include <KTFileManager2QU/KTFMTypes.h>
#include <KTFileManager2QU/TreeModel.h>

#include <QMap>
#include <QPointer>

#include <memory>

class CKTFMAliasTreeModelInterface;
class HostImageCache;
class QFileSystemWatcher;
class QImage;

namespace KT {
class CProfile;
}

/**
 * A tree of named categories that stand for folders.
 *
 * A host fills it with PopulateAliasTree, and the sub-folders and shortcuts of a category's folder become its
 * children by ScanAliasTreeDirectory. Each item has six columns:
 *
 * | Column | Header        | Holds                                                                   |
 * |--------|---------------|-------------------------------------------------------------------------|
 * | 0      | Category      | the label                                                               |
 * | 1      | File Path     | the folder; empty for a category that only groups others                |
 * | 2      | System Watch  | whether the folder may be scanned and watched                           |
 * | 3      | Allowed Ops   | the operations that the user may perform, EKTFMOpType values            |
 * | 4      | INI Section   | the section of the mapping file that names the item's children          |
 * | 5      | Custom Data   | the host's; for a scanned shortcut the path of the shortcut             |
 *
 * An index of any column of an item stands for the item, except for data, which answers for its column. An
 * item's own cells are read even when the line above it has fewer columns.
 *
 * What is shown as a label depends on the show string mode. Every shown label writes the item's folder to the
 * logging category "ktfm.aliastree", as a debug message; QLoggingCategory rules silence it.
 *
 * No role touches the disk. Renaming a folder is reported by signals: see setData.
 */
class KTFM_EXPORT CKTFMAliasTreeModel : public TreeModel
{
    Q_OBJECT

public:
    /** An empty model in mode FM_SHOW_STRING_BASE_NAME, without tool tips and not renamable. */
    explicit CKTFMAliasTreeModel(QObject* parent = nullptr);
    ~CKTFMAliasTreeModel() override;

    /**
     * Replaces all categories, with a model reset. Linear in the length of the table. The folders that are
     * watched stay watched: see ClearAllPathInFileSystemWatcher.
     *
     * @param data the table's text: an item a line, its depth given by leading spaces, its columns separated
     *        by tabs (see TreeModel::SetupTree). The watch column reads "false" and "0" as no and any other
     *        text as yes, the operations are a decimal number; missing columns count as empty.
     * @return true
     */
    bool PopulateAliasTree(const QString& data);

    /**
     * Adds an item below @p parent, after its other children: inserts a row, then sets the six cells, each
     * with its own dataChanged.
     *
     * @param parent any cell of the item that gets a child
     * @param label,path,section,custom the cells of these columns
     * @param watch whether the folder may be scanned and watched
     * @param ops a sum of EKTFMOpType bits
     * @return the item's index in column 0; an invalid one, and nothing is added, when @p parent is not an
     *         item of this model (categories at the top level come from PopulateAliasTree only)
     */
    QModelIndex AddAliasItem(const QModelIndex& parent, QString label, QString path, QString section,
                             bool watch, EKTFMOpType ops, QVariant custom);

    /**
     * @return the "File Path" cells of all items whose folder is exactly @p path, from the top of the tree to
     *         its end; the same as a recursive QAbstractItemModel::match over that column, whose rules it
     *         keeps: the children of an item with a single column are not looked at. Linear in the items.
     */
    QList<QModelIndex> IndexWithFilePath(const QString& path) const;

    /**
     * Linear in the children.
     * @param path the folder
     * @param parent the item whose direct children are looked at; an invalid index for the top level
     * @param hits how many to answer at most, -1 for all
     * @return the "File Path" cells of the children whose folder is exactly @p path, in the order of rows
     */
    QList<QModelIndex> ChildIndexWithFilePath(const QString& path, const QModelIndex& parent, int hits) const;

    /** @return the stored label, which need not be the shown one; empty for an invalid index */
    QString GetAliasLabel(const QModelIndex& index) const;

    /** @return the folder, as it was stored; empty when the item has none */
    QString GetMappedFolderPath(const QModelIndex& index) const;

    /** @return the section in which the labels of the item's children are looked up */
    QString GetINISection(const QModelIndex& index) const;

    /** @return what the host stored with the item; for a scanned shortcut the path of the shortcut */
    QVariant GetCustomData(const QModelIndex& index) const;

    /** @return whether the item's folder may be scanned and watched */
    bool CanFileSysWatch(const QModelIndex& index) const;

    /**
     * @param index any cell of the item
     * @param op one or several bits
     * @return whether @p op and the item's allowed operations have a bit in common
     */
    bool IsOpAllowed(const QModelIndex& index, EKTFMOpType op) const;

    /**
     * Brings the children of an item in step with its folder.
     *
     * Adds a child for each sub-folder that has none yet and for each shortcut (a link whose name ends in
     * ".lnk") to a folder, which is shown without the ".lnk" and maps to the shortcut's target. A shortcut
     * whose target is gone is kept as an item under its full name. Hidden entries and other links are left
     * out. The children are watched and may be renamed. Then every child that names nothing in the folder any
     * more, by its folder or by its label, is removed and no longer watched; children that a table gave are
     * no exception.
     *
     * Does nothing when the item may not be watched, has no folder, or the folder is gone or cannot be read.
     * Linear in the folder's entries and the item's children.
     */
    void ScanAliasTreeDirectory(const QModelIndex& parent);

    /** Sets the watcher that the three operations below work on; it stays the caller's and may be deleted. */
    void SetFileSystemWatcher(QFileSystemWatcher* watcher);

    /** Watches an item's folder, when the item may be watched, the folder exists and is not watched yet. */
    void AddPathToFileSystemWatcher(const QModelIndex& index);

    /**
     * Stops watching the folders of an item and of all its descendants, except those of items that may not
     * be watched. A folder that another item maps to as well is no longer watched either.
     */
    void RemovePathFromFileSystemWatcher(const QModelIndex& index);

    /** Stops watching everything that the watcher watches. */
    void ClearAllPathInFileSystemWatcher();

    /** Lets items be edited, those whose operations include FM_OP_RENAME. Off at first. */
    void SetRenamable(bool renamable);

    /** Shows an item's label as its tool tip. Off at first. */
    void SetShowTips(bool show);

    /** Sets how labels are shown; FM_SHOW_STRING_BASE_NAME at first. Views are not told: the host updates
     * them. */
    void SetShowStringMode(EKTFMShowStringMode mode);

    /** Sets the host's callbacks, null for none. They stay the host's and must outlive their use here. */
    void SetInterface(CKTFMAliasTreeModelInterface* callbacks);

    /**
     * Sets the file with the labels to show and switches to FM_SHOW_STRING_INI. The file is read when it is
     * another one than before; a file that cannot be read is not reported, its labels are just not found.
     * @return false, and nothing is changed, when @p path is null
     */
    bool SetFileMappingIni(QString path);

    /** Does nothing: each item brings the section of its children along. @return false */
    bool SetFileMappingSection(QString section);

    /**
     * Adds a label to show, in FM_SHOW_STRING_INI, where the mapping file has none.
     * @param from the stored label, exactly
     * @param to what is shown for it; the first text for a label stays
     */
    void AddTranslateMap(QString from, QString to);

    /**
     * For Qt::DisplayRole in column 0 the shown label, for Qt::ToolTipRole the same when tool tips are on,
     * for Qt::DecorationRole the host's image as an icon; else as TreeModel::data.
     */
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /**
     * Renames an item's folder on disk, for Qt::EditRole and whichever column.
     *
     * The blanks around the new name are dropped. An item whose label is not its folder's own name cannot be
     * renamed: false, and nothing is reported. An empty name and the old one change nothing: true. A failure
     * is reported by RenameFileError after control has returned to the event loop. A success stores the text
     * as it was given as the label, blanks included, and the new path as the folder, and emits RenameSuccess.
     * The folders of the item's descendants keep their old paths.
     */
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    /**
     * The header's text: for a column of the six above in the language that the application has now, for a
     * text that setHeaderData has stored that text. A change of language emits nothing.
     */
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /** @return selectable and enabled, and editable while renaming is on and the item allows it */
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /** @return "text/uri-list" */
    QStringList mimeTypes() const override;

    /** @return the items' folders as URLs, each item's once, in the order of @p indexes; the caller owns it
     */
    QMimeData* mimeData(const QModelIndexList& indexes) const override;

    /** Emits RenameFileError when a failed rename is due to be reported. */
    bool event(QEvent* event) override;

Q_SIGNALS:
    /** A rename failed. @param code 0 the name is taken, 1 the name is invalid or the disk refused it */
    void RenameFileError(int code);

    /** A folder was renamed. @param path its new path, with native separators */
    void RenameSuccess(QString path);

private:
    virtual QImage HandleDecorationRole(const QModelIndex& index) const;
    virtual QString HandleDisplayRole(const QModelIndex& index) const;

    QString GetFolderNameWithINI(QString name, QString section) const;
    QString HostLabel(const QModelIndex& index) const;

    QVariant CellOf(const QModelIndex& index, int column) const;
    void StoreCell(const QModelIndex& index, int column, const QVariant& value);

    void AddScannedChildren(const QPersistentModelIndex& parent, const QStringList& names);
    void RemoveVanishedChildren(const QPersistentModelIndex& parent, const QStringList& names);
    void StopWatching(const QVector<TreeItem*>& branches);
    bool RenameFolder(const QModelIndex& index, const QVariant& value);

    bool m_bShowTips = false;
    bool m_bRenamable = false;
    EKTFMShowStringMode m_eShowStringMode = FM_SHOW_STRING_BASE_NAME;
    QString m_strMappingFile;
    QMap<QString, QString> m_mapTranslate;
    std::unique_ptr<KT::CProfile> m_pNameProfile;
    CKTFMAliasTreeModelInterface* m_pInterface = nullptr;
    QPointer<QFileSystemWatcher> m_pWatcher;
    std::unique_ptr<HostImageCache> m_pHostImages;
    QStringList m_headers; ///< the texts of the six columns in the language in which the tree was filled
};

#endif
