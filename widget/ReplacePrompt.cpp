#include "widget/ReplacePrompt.h"

#include <KTFileManager2QU/CKTFileManager.h>

#include <QMessageBox>
#include <QPointer>

namespace ReplacePrompt {

namespace {

QMessageBox* Question(QWidget* parent, const QString& name)
{
    //: %1 is the name of a file or folder.
    const QString text =
        CKTFileManager::tr("Item '%1' alreay exists ! \nDo you want to replace it ?").arg(name);
    auto* box = new QMessageBox(QMessageBox::NoIcon, CKTFileManager::tr("Replace File"), text,
                                QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, parent,
                                Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    box->setTextFormat(Qt::PlainText); // a name is no markup, whatever it looks like
    return box;
}

} // namespace

Answer Ask(const QWidget* pane, QWidget* parent, const QString& name)
{
    const QPointer<QMessageBox> box = Question(parent, name);
    QObject::connect(pane, &QObject::destroyed, box.data(), &QDialog::reject);
    const int button = box->exec();
    if (!box)
        return Answer::Cancel;
    delete box;
    if (button == QMessageBox::Yes)
        return Answer::Yes;
    return button == QMessageBox::No ? Answer::No : Answer::Cancel;
}

} // namespace ReplacePrompt
