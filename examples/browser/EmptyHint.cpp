#include "EmptyHint.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QVBoxLayout>

EmptyHint::EmptyHint(const QList<QAbstractItemView*>& views, QObject* parent) : QObject(parent)
{
    for (QAbstractItemView* view : views) {
        auto* label = new QLabel(view->viewport());
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
        label->setEnabled(false); // in the palette's faded colour
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        auto* layout = new QVBoxLayout(view->viewport());
        layout->addWidget(label);
        m_labels.append(label);
    }
}

void EmptyHint::Show(const QString& text)
{
    for (QLabel* label : qAsConst(m_labels)) {
        label->setText(text);
        label->setVisible(!text.isEmpty());
    }
}
