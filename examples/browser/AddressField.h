#ifndef ADDRESSFIELD_H
#define ADDRESSFIELD_H

#include <QLineEdit>

class QFileSystemModel;

/** A field to type or paste a path into. It completes the names of folders. */
class AddressField : public QLineEdit
{
    Q_OBJECT

public:
    explicit AddressField(QWidget* parent = nullptr);

    /** Shows a path, selected as a whole, and takes the focus. */
    void Ask(const QString& path);

Q_SIGNALS:
    /** The user pressed Enter. */
    void Entered(const QString& text);

    /** The user pressed Esc or went elsewhere. */
    void GivenUp();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void CompleteFoldersFrom(const QString& path);

    QFileSystemModel* m_pFolders = nullptr; ///< of the completer; null until a completion may be needed
};

#endif
