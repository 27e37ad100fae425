#ifndef CKTFMTREEMODEL_H
#define CKTFMTREEMODEL_H

#include <KTFileManager2QU/CProfile.h>
#include <KTFileManager2QU/KTFMExport.h>
#include <KTFileManager2QU/KTFMTypes.h>

#include <QFileSystemModel>
#include <QHash>
#include <QImage>

#include <memory>

class CKTFMTreeModelInterface;
class HostImageCache;
class LazyIconProvider;

/**
 * The folders of the folder tree.
 *
 * A QFileSystemModel of folders without links, whose names and tips may be mapped through INI files, whose
 * images the host may supply, and which renames folders in place. Renaming and names from INI files exclude
 * each other: switching renaming on switches the mapping off.
 *
 * Like CKTFMListModel, no role touches the disk, setters emit nothing, a refused rename is reported by
 * RenameFileError from the event loop, and a CKTFileManager that creates a model never deletes it.
 */
class KTFM_EXPORT CKTFMTreeModel : public QFileSystemModel
{
    Q_OBJECT

public:
    /** Lists folders without links; as read-only as the base is. */
    explicit CKTFMTreeModel(QObject* parent = nullptr);
    ~CKTFMTreeModel() override;

    /** Emits RenameFileError when a refused rename is due to be reported. */
    bool event(QEvent* event) override;

    /** @return the base's answer, false while the model lists no folders */
    bool canFetchMore(const QModelIndex& parent) const override;

    /** Lists a folder in the background, unless the model lists none. */
    void fetchMore(const QModelIndex& parent) override;

    /** @return the base's */
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

    /**
     * Text, tip and image come from the operations HandleDisplayRole to HandleDecorationRole; where these
     * answer null, and for other roles, the base answers.
     */
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /**
     * Renames the item's folder when @p role is Qt::EditRole; other roles are the base's. The value is taken
     * as it is, blanks around it included.
     *
     * @return true when renamed (RenameSuccess is not emitted here, unlike in the list) and for the present
     *         name, which does nothing; false for a refused rename, with RenameFileError to follow
     */
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    /** @return the base's */
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /** @return the base's flags, and editable while renamable */
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /** @return the shown name of the show-string mode; null for other columns and where the base's text
     * stands */
    virtual QString HandleDisplayRole(const QModelIndex& index) const;

    /** @return a null text: a rename starts with the base's text, the folder's name */
    virtual QString HandleEditRole(const QModelIndex& index) const;

    /** @return the tip: the tips file's, else the shown name; null for columns other than 0 */
    virtual QString HandleToolTipRole(const QModelIndex& index) const;

    /** @return the host's image; null without a host */
    virtual QImage HandleDecorationRole(const QModelIndex& index) const;

    /** Sets the host's callbacks; they are borrowed, and null switches them off. */
    void SetInterface(CKTFMTreeModelInterface* treeInterface);

    /** Whether the model answers the tool-tip role at all; false at first. */
    void SetShowTips(bool on);

    /** Sets how names are shown; FM_SHOW_STRING_BASE_NAME at first. Values above 3 act like 0. */
    void SetShowStringMode(EKTFMShowStringMode mode);

    /**
     * Whether folders can be renamed, here and in the base; false at first. Switching it on ends the mapping
     * of names (FM_SHOW_STRING_INI becomes FM_SHOW_STRING_BASE_NAME) and of tips; switching it off restores
     * neither.
     */
    void SetRenamable(bool on);

    /**
     * Sets the INI file that names are mapped through and shows names by it (FM_SHOW_STRING_INI). The file is
     * read only when the path differs from the present one.
     * @param path the file
     * @return false for a null path, which changes nothing; a file that cannot be read gives true, and every
     *         name stays as it is
     */
    bool SetFolderNameMappingFile(QString path);

    /** Sets the section of the names file. @return false for a null section, which changes nothing */
    bool SetFileMappingSection(QString section);

    /**
     * Sets the INI file and section that tips come from, switches them on, and stops offering renaming in the
     * flags (the base stays as writable as it was).
     * @param path the file; read only when it differs from the present one
     * @param section the section of the tips
     * @return false when either text is null, which changes nothing
     */
    bool SetFolderTipsMappingFile(QString path, QString section);

    /**
     * Whether the model lists folders; true at first. One that does not still answers for the paths that it
     * is asked for, which is all that a pane without a folder tree needs of it: a large folder is then read
     * once, for the file list. Switched on again, it lists its root folder.
     */
    void SetListsFolders(bool on);

Q_SIGNALS:
    /** A rename was refused: 0 the new name exists, 1 it is invalid or the file system refused it. */
    void RenameFileError(int code);

    /** An item was renamed. The tree never emits it; it is there for symmetry with the list. */
    void RenameSuccess(QString path);

private:
    virtual QString GetFolderTipsWithINI(QString name) const;
    QString GetFolderNameWithINI(const QString& name) const;
    QString NameWithoutExtension(const QModelIndex& index) const;
    void RememberEdited(const QModelIndex& index) const;

    bool m_bShowTips = false;
    bool m_bFolderTipsMapping = false;
    QString m_strNameMappingFile;
    QString m_strMappingSection;
    EKTFMShowStringMode m_eShowStringMode = FM_SHOW_STRING_BASE_NAME;
    QString m_strTipsMappingFile;
    QString m_strTipsMappingSection;
    bool m_bRenamable = false;
    CKTFMTreeModelInterface* m_pInterface = nullptr;
    mutable QHash<int, QString> m_editPaths;
    mutable QHash<int, QString> m_editNames;
    KT::CProfile m_nameProfile;
    KT::CProfile m_tipsProfile;
    bool m_bListsFolders = true;
    std::unique_ptr<HostImageCache> m_pImages;
    std::unique_ptr<LazyIconProvider> m_pIconProvider;
};

#endif
