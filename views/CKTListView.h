#ifndef CKTLISTVIEW_H
#define CKTLISTVIEW_H

#include <QListView>

class CKTFileManager;

/**
 * The icon grid of the file list inside a CKTFileManager, which makes its settings.
 *
 * Items are dragged as copies, with an image of them as they are painted.
 */
class CKTListView : public QListView
{
    Q_OBJECT

public:
    CKTListView(QWidget* parent, CKTFileManager* owner);
    ~CKTListView() override;

protected:
    /** What is to be painted again when these items were or are selected. */
    QRegion visualRegionForSelection(const QItemSelection& selection) const override;

    /** Drags the selected items; the drop target may copy them and nothing else. */
    void startDrag(Qt::DropActions supportedActions) override;

private:
    QPixmap renderToPixmap(const QModelIndexList& indexes, QRect* rect) const;

    [[maybe_unused]] CKTFileManager* m_pOwner; ///< the pane that this view belongs to
};

#endif
