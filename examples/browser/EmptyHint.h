#ifndef EMPTYHINT_H
#define EMPTYHINT_H

#include <QList>
#include <QObject>

class QAbstractItemView;
class QLabel;

/** Says in the middle of the file list why there is nothing in it. */
class EmptyHint : public QObject
{
    Q_OBJECT

public:
    /** Lays a label over each of the views, which own it. */
    explicit EmptyHint(const QList<QAbstractItemView*>& views, QObject* parent = nullptr);

    /** @param text an empty one for nothing to say */
    void Show(const QString& text);

private:
    QList<QLabel*> m_labels;
};

#endif
