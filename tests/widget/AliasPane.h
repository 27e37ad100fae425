#ifndef ALIASPANE_H
#define ALIASPANE_H

#include "tests/support/PaneFixture.h"

#include <KTFileManager2QU/CKTFMAliasTreeModel.h>

#include <QFileSystemWatcher>
#include <QLineEdit>
#include <QTreeView>

/** @return a line of an alias table without its indentation */
inline QString AliasLine(const QString& label, const QString& folder, bool watch = true)
{
    return QStringLiteral("%1\t%2\t%3\t32\tsection\n")
        .arg(label, folder, watch ? QStringLiteral("true") : QStringLiteral("false"));
}

/** A pane with an alias tree, over a folder of its own. */
class AliasPane : public PaneFixture
{
public:
    AliasPane() : PaneFixture(FM_MODE_ALIAS_TREE_AND_LIST) {}

    CKTFMAliasTreeModel* Model() const { return m_pPane->GetAliasTreeModel(); }

    /** Loads a table with one item, "Top", for the folder @p relative of the test's folder. */
    bool LoadTop(const QString& relative = QString()) const
    {
        const QString folder = relative.isEmpty() ? m_folder.Path() : m_folder.Path(relative);
        return m_pPane->PopulateAliasTable(AliasLine(QStringLiteral("Top"), folder));
    }

    /** @return the item that is reached by these labels, from the top; invalid when one is not there */
    QModelIndex Item(const QStringList& labels) const
    {
        QModelIndex item;
        for (const QString& label : labels) {
            item = Child(item, label);
            if (!item.isValid())
                break;
        }
        return item;
    }

    /** @return the labels below an item as they stand in the tree */
    QStringList LabelsInOrder(const QModelIndex& parent) const
    {
        QStringList labels;
        for (int row = 0; row < Model()->rowCount(parent); ++row)
            labels.append(Model()->GetAliasLabel(Model()->index(row, 0, parent)));
        return labels;
    }

    /** @return the sorted labels below the item that is reached by @p labels */
    QStringList Labels(const QStringList& labels) const { return Sorted(LabelsInOrder(Item(labels))); }

    bool IsOpen(const QStringList& labels) const { return AliasTree()->isExpanded(Item(labels)); }

    QFileSystemWatcher* Watcher() const { return m_pPane->findChild<QFileSystemWatcher*>(); }

    QStringList Watched() const { return Sorted(Watcher()->directories()); }

    /** @return the sorted absolute paths of folders of the test's folder; "" is the folder itself */
    QStringList Paths(const QStringList& relative) const
    {
        QStringList paths;
        for (const QString& name : relative)
            paths.append(name.isEmpty() ? m_folder.Path() : m_folder.Path(name));
        return Sorted(paths);
    }

    /** @return the editor of the alias tree, null while none is open */
    QLineEdit* Editor() const
    {
        const QList<QLineEdit*> editors = AliasTree()->viewport()->findChildren<QLineEdit*>();
        for (QLineEdit* editor : editors) {
            if (editor->isVisible())
                return editor;
        }
        return nullptr;
    }

    static QStringList Sorted(QStringList texts)
    {
        texts.sort();
        return texts;
    }

private:
    QModelIndex Child(const QModelIndex& parent, const QString& label) const
    {
        const int row = LabelsInOrder(parent).indexOf(label);
        return row < 0 ? QModelIndex() : Model()->index(row, 0, parent);
    }
};

#endif
