#include "widget/PasteTurn.h"

PasteMark::PasteMark(QObject* pane) : QObject(pane)
{
    const QList<PasteMark*> marks = pane->findChildren<PasteMark*>(QString(), Qt::FindDirectChildrenOnly);
    for (PasteMark* mark : marks)
        mark->m_bIsLatest = mark == this;
}

bool PasteMark::IsLatest() const
{
    return m_bIsLatest;
}

PasteTurn::PasteTurn(QObject* pane) : m_pMark(new PasteMark(pane)) {}

PasteTurn::~PasteTurn()
{
    delete m_pMark;
}

bool PasteTurn::Goes() const
{
    return m_pMark && m_pMark->IsLatest();
}
