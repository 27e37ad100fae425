#ifndef FOLDERNAVIGATOR_H
#define FOLDERNAVIGATOR_H

#include "PaneViews.h"

#include <QObject>
#include <QString>

class CKTFileManager;

/**
 * Takes tree and list of a pane from folder to folder.
 *
 * The tree begins with the user's home folder, or with the top of the disk once a folder beyond it is shown;
 * the folder that the list shows stays in sight in it.
 */
class FolderNavigator : public QObject
{
    Q_OBJECT

public:
    /** @param pane borrowed; it must outlive this object */
    explicit FolderNavigator(CKTFileManager& pane, QObject* parent = nullptr);

    /**
     * Shows an existing folder, a linked one as the folder that it is a link to.
     * @return false for one that the pane does not show, as with hidden folders; nothing changes then
     */
    bool Show(const QString& path);

    /** Has the list read its folder from the disk again. The views keep selection and place. */
    void Reload();

    /** @return whether the list shows a folder only on the way to another, which need not be told of */
    bool IsPassing() const;

private:
    void KeepInSight(const QString& listed);
    void KeepInSightSorted();
    void MakeRoot(const QString& path);

    CKTFileManager& m_pane;
    PaneViews m_views;
    bool m_bTreeUnsorted = false; ///< whether folders have arrived in the tree that it sorts later
    bool m_bPassing = false;
};

#endif
