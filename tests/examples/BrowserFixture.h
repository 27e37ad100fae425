#ifndef BROWSERFIXTURE_H
#define BROWSERFIXTURE_H

#include "examples/browser/BrowserWindow.h"
#include "examples/browser/Options.h"
#include "examples/browser/PaneViews.h"

#include "tests/support/TestFolder.h"

#include <memory>

class CKTFileManager;

/** The browser's window on a folder of its own, which is the user's home as well. */
class BrowserFixture
{
public:
    explicit BrowserFixture(const Options& options = Options());
    ~BrowserFixture();

    BrowserFixture(const BrowserFixture&) = delete;
    BrowserFixture& operator=(const BrowserFixture&) = delete;

    /** Shows the window on the folder, and waits until it is active and lists @p count items. */
    bool Show(int count);

    /** @return whether the list shows @p path with @p count items */
    bool Lists(const QString& path, int count) const;

    /** @return the text of a label of the status bar, by its object name */
    QString Status(const char* label) const;

    /** Presses a key where the focus is, as a user does. */
    static void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /** Types text where the focus is. */
    static void Type(const QString& text);

    /** @return the full names of the selected items */
    QStringList Selected() const;

    CKTFileManager* Pane() const;

    TestFolder m_folder;
    std::unique_ptr<BrowserWindow> m_pWindow;
    PaneViews m_views;

private:
    QByteArray m_home;
};

#endif
