#ifndef CHILDNODES_H
#define CHILDNODES_H

#include <QHash>
#include <QModelIndex>

#include <vector>

class QFileSystemModel;

/**
 * The nodes that a file-system model has shown as the children of its folders, by row.
 *
 * The base looks every child up by its name, in a hash of all names, each time that an index is made of its
 * row; sorting and painting ask for nothing more often. This remembers the answers until rows move. It
 * watches the model's own signals, which it must be the first to receive: it is made in its constructor.
 */
class ChildNodes
{
public:
    explicit ChildNodes(const QFileSystemModel& model);

    /** @return the node of a child, or null when it is not known */
    void* At(int row, const QModelIndex& folder) const;

    /** Remembers what the base answered for a child. */
    void Remember(const QModelIndex& child, const QModelIndex& folder);

private:
    void ForgetFrom(int row, const QModelIndex& folder);

    QHash<const void*, std::vector<void*>> m_nodes; ///< by the node of their folder
    bool m_bRowsMove = false; ///< between the announcement of a new layout and its completion
};

#endif
