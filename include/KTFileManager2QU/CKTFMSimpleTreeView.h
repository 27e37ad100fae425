#ifndef CKTFMSIMPLETREEVIEW_H
#define CKTFMSIMPLETREEVIEW_H

#include <KTFileManager2QU/KTFMExport.h>

#include <QTreeView>

class CKTFMContextMenuHandleInterface;

/**
 * A tree view for a host's own screens whose right clicks reach a handler of the host.
 *
 * Everything else, dragging included, is as in its base; CKTFMTreeView also has a drag of its own.
 */
class KTFM_EXPORT CKTFMSimpleTreeView : public QTreeView
{
    Q_OBJECT

public:
    /** A view without model and handler. @param parent owns it; null for a window of its own */
    explicit CKTFMSimpleTreeView(QWidget* parent = nullptr);
    ~CKTFMSimpleTreeView() override;

    /**
     * Sets who is told of context menu requests. @p handler is not owned and must stay valid as long as it is
     * set; null (the default) tells nobody.
     */
    void SetContextMenuHandleInterface(CKTFMContextMenuHandleInterface* handler);

protected:
    /** Tells the handler, then leaves the event to the parent widget, handler or not. */
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    CKTFMContextMenuHandleInterface* m_pContextMenuHandler = nullptr;
};

#endif
