#ifndef LISTSUMMARY_H
#define LISTSUMMARY_H

#include "PaneViews.h"

#include <QObject>
#include <QTimer>

class CKTFMListModel;
class CKTFileManager;

/**
 * How many items the file list shows and how many of them are selected.
 *
 * A folder arrives in many parts, and a selection may change a hundred times while a frame is drawn: what is
 * counted is told once for all that the event loop has at hand.
 */
class ListSummary : public QObject
{
    Q_OBJECT

public:
    /** @param pane borrowed */
    explicit ListSummary(const CKTFileManager& pane, QObject* parent = nullptr);

    /** Counts again soon. */
    void Update();

Q_SIGNALS:
    void Counted(int items);

    /** @param bytes of the files among the selected items; negative when there is none among them */
    void SelectionCounted(int items, qint64 bytes);

private:
    void Count();
    void CountSelection();

    const CKTFMListModel& m_model;
    PaneViews m_views;
    QTimer m_timer;
};

#endif
