#include "DetailColumns.h"

#include <QEvent>
#include <QHeaderView>

#include <array>

namespace {

/** The columns of the table of details. */
enum Column : int
{
    NameColumn,
    SizeColumn,
    TypeColumn,
    DateColumn
};

/** How many letters wide each column is; the name is so wide at least. */
constexpr std::array<int, 4> ColumnLetters = {16, 11, 11, 22};

int WidthOf(const QHeaderView& header, Column column)
{
    return header.fontMetrics().averageCharWidth() * ColumnLetters.at(static_cast<std::size_t>(column));
}

} // namespace

DetailColumns::DetailColumns(QHeaderView* header, QObject* parent) : QObject(parent), m_pHeader(header)
{
    m_pHeader->setStretchLastSection(false);
    for (const Column column : {SizeColumn, TypeColumn, DateColumn})
        m_pHeader->resizeSection(column, WidthOf(*m_pHeader, column));
    m_pHeader->installEventFilter(this);
    FitName();
}

bool DetailColumns::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        FitName();
    return QObject::eventFilter(object, event);
}

void DetailColumns::FitName()
{
    const int others = m_pHeader->length() - m_pHeader->sectionSize(NameColumn);
    const int left = m_pHeader->width() - others;
    m_pHeader->resizeSection(NameColumn, qMax(left, WidthOf(*m_pHeader, NameColumn)));
}
