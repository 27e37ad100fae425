#include "AddressField.h"

#include <QCompleter>
#include <QDir>
#include <QFileSystemModel>
#include <QFocusEvent>
#include <QKeyEvent>

AddressField::AddressField(QWidget* parent) : QLineEdit(parent)
{
    setAccessibleName(tr("Address"));
    setPlaceholderText(tr("Type or paste the path of a folder"));
    setClearButtonEnabled(true);
    connect(this, &QLineEdit::returnPressed, this, [this] { Q_EMIT Entered(text()); });
}

void AddressField::Ask(const QString& path)
{
    CompleteFoldersFrom(path);
    setText(QDir::toNativeSeparators(path));
    setFocus(Qt::ShortcutFocusReason);
    selectAll();
}

void AddressField::CompleteFoldersFrom(const QString& path)
{
    // Made when it is first needed: its model reads folders in a thread of its own.
    if (!m_pFolders) {
        auto* folderCompleter = new QCompleter(this);
        m_pFolders = new QFileSystemModel(folderCompleter);
        m_pFolders->setFilter(QDir::AllDirs | QDir::Drives | QDir::NoDotAndDotDot);
        folderCompleter->setModel(m_pFolders);
        setCompleter(folderCompleter);
    }
    m_pFolders->setRootPath(path);
}

void AddressField::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT GivenUp();
    else
        QLineEdit::keyPressEvent(event);
}

void AddressField::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    // The list of completions, a menu and another window are no other place in this one.
    const auto reason = event->reason();
    if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
        Q_EMIT GivenUp();
}
