#ifndef DETAILCOLUMNS_H
#define DETAILCOLUMNS_H

#include <QObject>

class QHeaderView;

/**
 * Shares the width of the table of details out: the name takes what the other columns leave, but never less
 * than it needs to be told by. In a window that is too narrow for all of them the table scrolls.
 */
class DetailColumns : public QObject
{
    Q_OBJECT

public:
    /** @param header of the table, borrowed */
    explicit DetailColumns(QHeaderView* header, QObject* parent = nullptr);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void FitName();

    QHeaderView* m_pHeader;
};

#endif
