#ifndef CKTTREEVIEW_H
#define CKTTREEVIEW_H

#include <QTreeView>

class CKTFileManager;

/**
 * The detail view of the file list inside a CKTFileManager, which makes its settings.
 *
 * Items are dragged with an image of their first column as it is painted: as copies, unless the owning pane
 * is in custom view mode.
 */
class CKTTreeView : public QTreeView
{
    Q_OBJECT

public:
    CKTTreeView(QWidget* parent, CKTFileManager* owner);
    ~CKTTreeView() override;

    void selectAll() override;

protected:
    /**
     * Drags the selected rows; the drop target may copy them and nothing else, or choose from
     * @p supportedActions in custom view mode.
     */
    void startDrag(Qt::DropActions supportedActions) override;

private:
    QPixmap renderToPixmap(const QModelIndexList& indexes, QRect* rect) const;

    CKTFileManager* m_pOwner;
};

#endif
