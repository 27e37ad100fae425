#include "AliasTree.h"

#include <KTFileManager2QU/KTFileManager2QU.h>

bool ShowAliases(CKTFileManager& pane, const QString& table, const QString& folder)
{
    if (!pane.PopulateAliasTable(table))
        return false; // a file that cannot be read: the tree is as it was
    const CKTFMAliasTreeModel* model = pane.GetAliasTreeModel();
    for (int row = 0; row < model->rowCount(); ++row) {
        if (pane.SetCurrentAliasTreeSelection(folder, model->index(row, 0), false, false))
            return true;
    }
    return false;
}

QString CurrentCollection(const CKTFileManager& pane)
{
    return pane.GetAliasTreeModel()->GetCustomData(pane.GetCurSelectedAliasIndex()).toString();
}
