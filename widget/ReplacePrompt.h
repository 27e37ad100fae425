#ifndef REPLACEPROMPT_H
#define REPLACEPROMPT_H

#include <QString>

class QWidget;

/**
 * @file ReplacePrompt.h
 * @brief Asks the user whether a pasted item replaces the one of its name.
 */
namespace ReplacePrompt {

/** What the user said. */
enum class Answer
{
    Yes,
    No,
    Cancel
};

/**
 * Shows the question and waits for the answer in an event loop of its own.
 *
 * @param pane the pane that asks; the question goes with it
 * @param parent the parent of the message box, or null; the question goes with it as well
 * @return Cancel also when the question went away without an answer
 */
Answer Ask(const QWidget* pane, QWidget* parent, const QString& name);

} // namespace ReplacePrompt

#endif
