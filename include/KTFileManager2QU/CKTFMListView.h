#ifndef CKTFMLISTVIEW_H
#define CKTFMLISTVIEW_H

#include <KTFileManager2QU/KTFMExport.h>

#include <QListView>

class CKTFMContextMenuHandleInterface;

/**
 * A list view for a host's own screens: right clicks reach a handler of the host, and items are dragged
 * as copies, with an image of them as they are painted.
 *
 * It changes no setting of its base: dragging, for one, is switched on by setDragEnabled.
 */
class KTFM_EXPORT CKTFMListView : public QListView
{
    Q_OBJECT

public:
    /** A view without model and handler. @param parent owns it; null for a window of its own */
    explicit CKTFMListView(QWidget* parent = nullptr);
    ~CKTFMListView() override;

    /**
     * Sets who is told of context menu requests. @p handler is not owned and must stay valid as long as it is
     * set; null (the default) tells nobody.
     */
    void SetContextMenuHandleInterface(CKTFMContextMenuHandleInterface* handler);

protected:
    /** Tells the handler, then leaves the event to the parent widget, handler or not. */
    void contextMenuEvent(QContextMenuEvent* event) override;

    /**
     * Drags the selected items, whatever their number, and returns when they are dropped. The drop target is
     * offered to copy them and nothing else, even if @p supportedActions allow more. The cursor holds the
     * image at its top-left corner. Nothing is removed from the model or deselected afterwards.
     */
    void startDrag(Qt::DropActions supportedActions) override;

private:
    QPixmap renderToPixmap(const QModelIndexList& indexes, QRect* rect) const;

    CKTFMContextMenuHandleInterface* m_pContextMenuHandler = nullptr;
};

#endif
