#ifndef FOLDERTRAIL_H
#define FOLDERTRAIL_H

#include <KTFileManager2QU/KTFMInterfaces.h>

#include <functional>

class CKTFMTreeModel;

/** Tells the breadcrumb bar of the folders of a tree model, and a function of the folder that the user chose.
 */
class FolderTrail final : public CTitleBarSlotInterface
{
public:
    /** @param model borrowed; it must outlive this object. @param open called with the path of a folder */
    FolderTrail(CKTFMTreeModel& model, std::function<void(const QString&)> open);

    void OnTitleBarButtonClicked(const QModelIndex& index) override;
    void OnTitleBarMenuTriggered(const QString& path) override;
    QString GetTitleBarDisplayName(const QModelIndex& index) override;
    QString GetTitleBarPath(const QModelIndex& index) override;
    QModelIndex GetTitleBarIndexFromPath(const QString& path) override;

private:
    CKTFMTreeModel& m_model;
    std::function<void(const QString&)> m_open;
};

#endif
