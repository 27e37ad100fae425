#ifndef CATEGORYICONS_H
#define CATEGORYICONS_H

#include <KTFileManager2QU/KTFMInterfaces.h>

/** Gives the categories of the alias tree the style's folder icon: by itself the tree shows names alone. */
class CategoryIcons final : public CKTFMAliasTreeModelInterface
{
public:
    QImage HandleAliasTreeViewDecorationRole(const QModelIndex& index) override;

private:
    QImage m_folder; ///< kept, so that the model makes an icon of it once
};

#endif
