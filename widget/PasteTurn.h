#ifndef PASTETURN_H
#define PASTETURN_H

#include <QObject>
#include <QPointer>

/** Stands for a paste among the children of its pane, and so dies with the pane. */
class PasteMark : public QObject
{
    Q_OBJECT

public:
    /** Takes the turn from whichever paste of @p pane still waits for an answer. */
    explicit PasteMark(QObject* pane);

    bool IsLatest() const;

private:
    bool m_bIsLatest = true;
};

/**
 * The time that a paste takes. Its questions run the event loop, in which the pane may be destroyed or asked
 * to paste again: the turn is over then.
 */
class PasteTurn
{
public:
    explicit PasteTurn(QObject* pane);
    ~PasteTurn();
    Q_DISABLE_COPY(PasteTurn)

    /** @return whether the pane is still there and no later paste has begun in it */
    bool Goes() const;

private:
    QPointer<PasteMark> m_pMark;
};

#endif
