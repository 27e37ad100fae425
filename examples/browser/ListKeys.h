#ifndef LISTKEYS_H
#define LISTKEYS_H

#include <QObject>

class CKTFileManager;

/**
 * Enter opens the current item of the file list, as a double click does: the pane itself tells only that the
 * item was activated.
 */
class ListKeys : public QObject
{
    Q_OBJECT

public:
    /** @param pane borrowed; it must outlive this object */
    explicit ListKeys(CKTFileManager& pane, QObject* parent = nullptr);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    CKTFileManager& m_pane;
};

#endif
