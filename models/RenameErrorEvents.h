#ifndef RENAMEERROREVENTS_H
#define RENAMEERROREVENTS_H

#include <QEvent>

class QObject;

/** Why a rename was refused; the values are the codes of the models' RenameFileError signal. */
enum class RenameError : int
{
    NameExists = 0,  ///< the new path already exists
    RenameFailed = 1 ///< the new name is invalid, or the file system refused it
};

/**
 * The pair of custom event types by which one model defers its RenameFileError signal.
 *
 * A model never reports a failed rename from inside setData, where the editor is still open: it posts an
 * event to itself and emits the signal when the event loop delivers it. Each model class holds one pair,
 * registered when the library is loaded.
 */
class RenameErrorEvents
{
public:
    /** Registers the two event types. */
    RenameErrorEvents();

    /** Posts @p error to @p model; the event loop owns the event. */
    void Post(QObject* model, RenameError error) const;

    /** @return the code that @p event stands for, or -1 when it is not one of this pair */
    int CodeOf(const QEvent& event) const;

private:
    QEvent::Type m_nameExists;
    QEvent::Type m_renameFailed;
};

#endif
