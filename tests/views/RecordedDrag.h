#ifndef RECORDEDDRAG_H
#define RECORDEDDRAG_H

#include <QAbstractItemView>
#include <QDrag>
#include <QMimeData>
#include <QPainter>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QUrl>
#include <QWindow>
#include <QtTest>

#include <memory>

/**
 * @file RecordedDrag.h
 * What the tests of the views that drag have in common: real drags, looked at while they are going on.
 */

/** A view whose drags are open to the test. */
template <typename View> class Open : public View
{
public:
    template <typename... Arguments> explicit Open(Arguments... arguments) : View(arguments...) {}

    using View::startDrag;
    using View::viewOptions;
};

/** In this format Qt's own models pass every cell with its data. */
inline QString ItemsFormat()
{
    return QStringLiteral("application/x-qabstractitemmodeldatalist");
}

/** What a drag was like while it was going on. */
struct Drag
{
    int count = 0;
    QObject* source = nullptr;
    QList<QUrl> urls;
    QStringList formats;
    QByteArray items; ///< in the format of Qt's own models
    QPixmap pixmap;
    QPoint hotSpot;
    Qt::DropActions supported;
    Qt::DropAction defaultAction = Qt::IgnoreAction;
};

inline void Record(const QObject* view, Drag* record)
{
    const auto drags = view->findChildren<QDrag*>(QString(), Qt::FindDirectChildrenOnly);
    record->count = static_cast<int>(drags.size());
    if (drags.isEmpty())
        return;
    const QDrag* drag = drags.first();
    record->source = drag->source();
    record->urls = drag->mimeData()->urls();
    record->formats = drag->mimeData()->formats();
    record->items = drag->mimeData()->data(ItemsFormat());
    record->pixmap = drag->pixmap();
    record->hotSpot = drag->hotSpot();
    record->supported = drag->supportedActions();
    record->defaultAction = drag->defaultAction();
}

/**
 * Starts a drag and ends it with the Escape key where the platform runs it until the mouse is released; the
 * offscreen platform ends it at once, and Qt deletes it when control returns to the event loop.
 */
template <typename View> Drag Dragged(View* view, Qt::DropActions supported = Qt::CopyAction)
{
    Drag record;
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, view, [view, &record] {
        Record(view, &record);
        QTest::keyClick(view->window()->windowHandle(), Qt::Key_Escape);
    });
    timer.start(0);
    view->startDrag(supported);
    if (record.count == 0)
        Record(view, &record);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return record;
}

/** @return a table whose items are named by their row */
inline std::unique_ptr<QStandardItemModel> Table(int rows, int columns)
{
    auto model = std::make_unique<QStandardItemModel>(rows, columns);
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            model->setItem(row, column, new QStandardItem(QString::number(row)));
    return model;
}

/** Fills each item's place: (0, 0, 100 + row) when it is selected, red otherwise. */
class FillingDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const bool isSelected = option.state & QStyle::State_Selected;
        painter->fillRect(option.rect, isSelected ? QColor(0, 0, 100 + index.row()) : QColor(Qt::red));
        if (painter->device()->devType() == QInternal::Pixmap)
            painted.append(index);
    }

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override { return QSize(60, 20); }

    /** What was painted into an image, rather than on the screen. */
    mutable QVector<QModelIndex> painted;
};

template <typename View> void Show(View* view, QAbstractItemModel* model)
{
    view->setModel(model);
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view->resize(400, 300);
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view));
}

#endif
