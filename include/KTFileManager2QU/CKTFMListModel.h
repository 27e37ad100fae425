#ifndef CKTFMLISTMODEL_H
#define CKTFMLISTMODEL_H

#include <KTFileManager2QU/CProfile.h>
#include <KTFileManager2QU/KTFMExport.h>
#include <KTFileManager2QU/KTFMTypes.h>

#include <QFileSystemModel>
#include <QHash>
#include <QImage>
#include <QStringList>

#include <memory>

class CKTFMListModelInterface;
class ChildNodes;
class HostImageCache;
class LazyIconProvider;

/**
 * The files and folders of the file list.
 *
 * A QFileSystemModel that shows names as EKTFMShowStringMode says, asks the host for texts and images, maps
 * names and tips through INI files, and renames files and folders in place. Loading, watching and the four
 * columns (name, size, type, date modified) are the base's.
 *
 * No role touches the disk: all are answered from what the base has gathered. The icon of a file is looked up
 * with the platform when it is first painted.
 *
 * Renaming: `setData` with Qt::EditRole renames on disk. A refused rename returns false and emits
 * RenameFileError later, from the event loop, when the editor has closed.
 *
 * Setters that change what is shown emit nothing: the host has its views painted anew.
 *
 * The model owns its profiles and icon provider and borrows the host's interface. A CKTFileManager that
 * creates one never deletes it.
 */
class KTFM_EXPORT CKTFMListModel : public QFileSystemModel
{
    Q_OBJECT

public:
    /** Lists files and folders, hides what a name filter excludes, and is writable in the base's terms. */
    explicit CKTFMListModel(QObject* parent = nullptr);
    ~CKTFMListModel() override;

    using QFileSystemModel::index;

    /** @return what the base answers, faster for rows that were asked for before */
    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;

    /** Emits RenameFileError when a refused rename is due to be reported. */
    bool event(QEvent* event) override;

    /** @return the base's: name, size, type, date modified */
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

    /**
     * Text, tip, edited text and image come from the operations HandleDisplayRole to HandleDecorationRole;
     * where these answer null, and for other roles, the base answers. The size hint is the row height.
     */
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /**
     * Renames the item's file or folder when @p role is Qt::EditRole; other roles are the base's.
     *
     * The value is trimmed. A file keeps its extension: unless the new name ends in it, in any letter case,
     * "." and the extension are appended, also for a file without one ("notes" becomes "notes.").
     *
     * @return true when renamed, with RenameSuccess emitted, and for the present name, which does nothing;
     *         false for a blank name, silently, and for a refused rename, with RenameFileError to follow
     */
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    /** @return the base's */
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /** @return selectable, draggable, enabled and childless for every index, editable while renamable */
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /** @return Qt::CopyAction alone */
    Qt::DropActions supportedDropActions() const override;

    /** Sorts as the base does, unless SetSortedByProxy leaves that to a proxy. */
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    /** @return the shown name of the show-string mode; null for other columns and where the base's text
     * stands */
    virtual QString HandleDisplayRole(const QModelIndex& index) const;

    /**
     * @return the text that a rename starts with, null where the base's stands. In FM_SHOW_STRING_FULL_NAME
     * it is empty, and in FM_SHOW_STRING_INI it comes from the tips file: both are deliberate.
     */
    virtual QString HandleEditRole(const QModelIndex& index) const;

    /** @return the tip: the host's, else the tips file's, else a name; null for columns other than 0 */
    virtual QString HandleToolTipRole(const QModelIndex& index) const;

    /** @return the host's image; null without a host */
    virtual QImage HandleDecorationRole(const QModelIndex& index) const;

    /** Sets the host's callbacks; they are borrowed, and null switches them off. */
    void SetInterface(CKTFMListModelInterface* listInterface);

    /** Whether the model answers the tool-tip role at all; false at first. */
    void SetShowTips(bool on);

    /** Sets how names are shown; FM_SHOW_STRING_BASE_NAME at first. Values above 3 act like 0. */
    void SetShowStringMode(EKTFMShowStringMode mode);

    /** Whether items can be renamed, here and in the base; false at first. */
    void SetRenamable(bool on);

    /** Sets the height that every row asks for, in pixels; 30 at first. */
    void SetRowHeight(unsigned int height);

    /** Stores a search text for the host's use; the model does not filter by it. */
    void SetSearchFilter(const QString& text);

    /** Replaces the list of cut items. How a cut item looks is left to the views. */
    void AddCutItems(QStringList paths);

    /** Empties the list of cut items and deletes the file "qtfm.temp" of the temporary folder, if there is
     * one. */
    void ClearCutItems();

    /**
     * Sets the INI file that names are mapped through and shows names by it (FM_SHOW_STRING_INI). The file is
     * read only when the path differs from the present one.
     * @param path the file
     * @return false for a null path, which changes nothing; a file that cannot be read gives true, and every
     *         name stays as it is
     */
    bool SetFileNameMappingFile(QString path);

    /** Sets the section of the names file. @return false for a null section, which changes nothing */
    bool SetFileMappingSection(QString section);

    /**
     * Sets the INI file and section that tips come from, switches them on, and stops offering renaming in the
     * flags (the base stays as writable as it was).
     * @param path the file; read only when it differs from the present one
     * @param section the section of the tips
     * @return false when either text is null, which changes nothing
     */
    bool SetFileTipsMappingFile(QString path, QString section);

    /** Whether tips come from the tips file. */
    void SetFileTipsMapping(bool on);

    /** Whether a file whose name the names file does not know is shown with its extension; false at first. */
    void SetUnfoundINIShowExtName(bool on);

    /**
     * Tells the model that a proxy sorts its rows, so that it need not: the base sorts all rows again, by its
     * own rule, whenever some arrive. Rows then stand in the order of their arrival, and sort() does nothing
     * unless the folder or its filters have changed. False at first.
     */
    void SetSortedByProxy(bool on);

Q_SIGNALS:
    /** A rename was refused: 0 the new name exists, 1 it is invalid or the file system refused it. */
    void RenameFileError(int code);

    /** An item was renamed. @param path its new path, with "/" separators */
    void RenameSuccess(QString path);

private:
    struct Listing;

    virtual QString GetFileTipsWithINI(QString name) const;
    QString GetFileNameWithINI(const QString& name) const;
    QString CutUnfoundExtension(const QModelIndex& index, const QString& name, const QString& mapped) const;
    QString MappedName(const QModelIndex& index) const;
    QString NameWithoutExtension(const QModelIndex& index) const;
    void RememberEdited(const QModelIndex& index) const;

    bool m_bShowTips = false;
    bool m_bFileTipsMapping = false;
    bool m_bUnfoundINIShowExtName = false;
    QString m_strNameMappingFile;
    QString m_strMappingSection;
    EKTFMShowStringMode m_eShowStringMode = FM_SHOW_STRING_BASE_NAME;
    QString m_strTipsMappingFile;
    QString m_strTipsMappingSection;
    bool m_bRenamable = false;
    CKTFMListModelInterface* m_pInterface = nullptr;
    mutable QHash<int, QString> m_editPaths;
    mutable QHash<int, QString> m_editNames;
    QStringList m_cutItems;
    unsigned int m_nRowHeight;
    KT::CProfile m_nameProfile;
    KT::CProfile m_tipsProfile;
    QString m_strSearchFilter;
    bool m_bSortedByProxy = false;
    std::unique_ptr<Listing> m_pSortedListing; ///< what was listed when the base last sorted
    std::unique_ptr<HostImageCache> m_pImages;
    std::unique_ptr<LazyIconProvider> m_pIconProvider;
    std::unique_ptr<ChildNodes> m_pChildNodes;
};

#endif
