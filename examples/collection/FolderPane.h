#ifndef FOLDERPANE_H
#define FOLDERPANE_H

#include <KTFileManager2QU/CKTFMSimpleTreeView.h>
#include <KTFileManager2QU/KTFMInterfaces.h>

#include <memory>

class CKTFMTreeModel;
class KindCards;

/** The folders of the collection: a CKTFMSimpleTreeView over a CKTFMTreeModel. */
class FolderPane final : public CKTFMSimpleTreeView, private CKTFMTreeModelInterface
{
    Q_OBJECT

public:
    /** @param cards borrowed; they must outlive this widget */
    explicit FolderPane(const KindCards& cards, QWidget* parent = nullptr);
    ~FolderPane() override;

    /** Shows the folders below @p path. */
    void SetCollection(const QString& path);

    /** Makes a folder of the collection the selected one; the collection itself and others select none. */
    void Select(const QString& path);

Q_SIGNALS:
    /** The user has chosen a folder. */
    void Chosen(const QString& path);

private:
    bool Shows(const QModelIndex& folder) const;
    void TellChoice();
    QImage HandleTreeviewDecorationRole(const QModelIndex& index) override;

    const KindCards& m_cards;
    std::unique_ptr<CKTFMTreeModel> m_pModel;
};

#endif
