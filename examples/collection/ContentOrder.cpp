#include "ContentOrder.h"

#include <QFileInfo>

ContentOrder::ContentOrder()
{
    m_numbers.setNumericMode(true);
    m_numbers.setCaseSensitivity(Qt::CaseInsensitive);
}

void ContentOrder::SetKind(Kind kind)
{
    m_kind = kind;
}

bool ContentOrder::CustomLessThan(const QFileInfo& left, const QFileInfo& right, bool& handled)
{
    const int order = Compare(left, right);
    // What is equal here is left to the built-in rule.
    handled = order != 0;
    return order < 0;
}

int ContentOrder::Compare(const QFileInfo& left, const QFileInfo& right) const
{
    const int suffixes = m_kind == Suffixes ? left.suffix().compare(right.suffix(), Qt::CaseInsensitive) : 0;
    return suffixes != 0 ? suffixes : m_numbers.compare(left.fileName(), right.fileName());
}
