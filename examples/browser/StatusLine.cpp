#include "StatusLine.h"

#include "DiskSpace.h"

#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QStatusBar>

namespace {

/** The width of the progress bar, in pixels. */
constexpr int ProgressWidth = 140;

/** How long work goes on before it is worth a progress bar, in ms. */
constexpr int Patience = 300;

/** The space on both sides of a label, in pixels. */
constexpr int LabelMargin = 6;

QProgressBar* CreateProgress()
{
    auto* progress = new QProgressBar;
    progress->setObjectName(QStringLiteral("progress"));
    progress->setAccessibleName(StatusLine::tr("Thumbnails"));
    progress->setFixedWidth(ProgressWidth);
    progress->setFormat(StatusLine::tr("Thumbnails %p%"));
    progress->hide();
    return progress;
}

} // namespace

StatusLine::StatusLine(QStatusBar* bar)
    : QObject(bar),
      m_pCount(AddLabel(bar, QStringLiteral("count"))),
      m_pSelection(AddLabel(bar, QStringLiteral("selection"))),
      m_pProgress(CreateProgress()),
      m_pFreeSpace(new QLabel),
      m_pDiskSpace(new DiskSpace(this))
{
    m_pFreeSpace->setObjectName(QStringLiteral("free"));
    m_pFreeSpace->setContentsMargins(LabelMargin, 0, LabelMargin, 0);
    bar->addPermanentWidget(m_pProgress);
    bar->addPermanentWidget(m_pFreeSpace);
    m_patience.setSingleShot(true);
    m_patience.setInterval(Patience);
    connect(&m_patience, &QTimer::timeout, m_pProgress, &QWidget::show);
    connect(m_pDiskSpace, &DiskSpace::Known, this, &StatusLine::ShowFreeSpace);
}

QLabel* StatusLine::AddLabel(QStatusBar* bar, const QString& name)
{
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setContentsMargins(LabelMargin, 0, LabelMargin, 0);
    bar->addWidget(label);
    return label;
}

void StatusLine::SetCount(int items)
{
    m_pCount->setText(items == 1 ? tr("1 item") : tr("%Ln items", nullptr, items));
}

void StatusLine::SetSelection(int items, qint64 bytes)
{
    if (items == 0)
        m_pSelection->clear();
    else if (bytes < 0)
        m_pSelection->setText(tr("%Ln selected", nullptr, items));
    else
        m_pSelection->setText(tr("%Ln selected, %1", nullptr, items).arg(QLocale().formattedDataSize(bytes)));
}

void StatusLine::SetFolder(const QString& folder)
{
    m_pFreeSpace->clear();
    m_pDiskSpace->Ask(folder);
}

void StatusLine::ShowFreeSpace(qint64 bytes)
{
    if (bytes >= 0)
        m_pFreeSpace->setText(tr("%1 free").arg(QLocale().formattedDataSize(bytes)));
}

void StatusLine::SetProgress(int done, int total)
{
    if (done >= total) {
        m_patience.stop();
        m_pProgress->hide();
        return;
    }
    m_pProgress->setRange(0, total);
    m_pProgress->setValue(done);
    if (!m_patience.isActive() && m_pProgress->isHidden())
        m_patience.start();
}
