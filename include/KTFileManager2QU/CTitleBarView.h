#ifndef CTITLEBARVIEW_H
#define CTITLEBARVIEW_H

#include <KTFileManager2QU/KTFMExport.h>
#include <KTFileManager2QU/KTFMTypes.h>

#include <QAction>
#include <QDir>
#include <QIcon>
#include <QList>
#include <QModelIndex>
#include <QPointer>
#include <QString>
#include <QToolButton>
#include <QWidget>

#include <cstddef>
#include <vector>

class CTitleBarSlotInterface;
class CTitleBarView;
class QHBoxLayout;
class QMenu;
class QPaintEvent;

/** An entry of a breadcrumb button's drop-down menu. */
class KTFM_EXPORT CAction : public QAction
{
    Q_OBJECT

public:
    /** An entry without text and path. */
    explicit CAction(QObject* parent = nullptr);
    ~CAction() override;

    QString m_strPath; ///< the folder that the entry stands for
};

/**
 * One folder of a breadcrumb bar: a button with a drop-down menu of the folder's sub-folders.
 *
 * CTitleBarView makes its buttons itself; hosts reach them through CTitleBarView::GetToolButton. A button
 * with another parent than a bar has no one to ask: it has no text, no folder and an empty menu.
 */
class KTFM_EXPORT CTitleBarButton : public QToolButton
{
    Q_OBJECT

    /**
     * How opaque the button is painted: from 0 (invisible) to 255 (the default). Any number is kept as it
     * was set; one beyond the range is painted as its nearest end.
     */
    Q_PROPERTY(int Opacity READ Opacity WRITE setOpacity) // clazy:exclude=qproperty-without-notify

public:
    /**
     * Asks the bar's interface for the text, the tool tip and the folder of @p index.
     * @param parent the bar (a CTitleBarView)
     * @param index the folder, of whatever model the host uses
     */
    CTitleBarButton(QWidget* parent, QModelIndex& index);
    ~CTitleBarButton() override;

    /**
     * Fills the menu and the array of actions anew with the sub-folders that the folder has now, hidden ones
     * left out; runs each time the menu is about to show. Lists the folder once and asks the host for the
     * name of each entry. A shell link to a folder (on POSIX: a symbolic link named *.lnk) stands for its
     * target and is shown without the suffix.
     *
     * Every action made earlier leaves the array; those of the menu are deleted. A folder that cannot be
     * listed gives an empty menu.
     * @return code KT::ResultDone
     */
    KT::Result CreateMenu();

    /**
     * Appends an entry without a path to the menu and to the array of actions. Choosing it tells the host
     * nothing by itself. It stays until the next CreateMenu.
     */
    void SetMenuQActions(QString& text);

    /**
     * Appends @p action to the array of actions, not to the menu. The array does not own it.
     * @return code KT::ResultDone
     */
    KT::Result PushAction(CAction* action);

    /** @return the length of the array of actions */
    std::size_t ActionSize() const;

    /** @return the action at @p i, which must be below ActionSize(): it is not checked */
    CAction* GetAction(std::size_t i) const;

    /** @return the pointer to the menu, which the button owns; also while the button shows no menu */
    QMenu*& GetMenuPtr();

    /** @return the index that the button was made for; not kept up to date when the model changes */
    QModelIndex GetModelIndex() const;

    /** @return the folder that the host named when the button was made */
    QDir GetCurrentDir() const;

    /** @return the path of that folder */
    QString GetCurrentPath() const;

    /** @return the opacity as it was set */
    int Opacity() const;

    /** Sets the opacity, from 0 to 255, and has the button painted anew. */
    void setOpacity(int opacity);

protected:
    /** Paints the style's tool button with the button's opacity. */
    void paintEvent(QPaintEvent* event) override;

private:
    friend class CTitleBarView;
    class HostCall;

    CTitleBarSlotInterface* HostInterface() const;
    bool IsCallingHost() const;
    void AddFolderAction(const QString& path, const QString& text);
    void OnClicked();
    void OnFolderActionTriggered(const QString& path);

    QMenu* m_pMenu;
    std::vector<CAction*> m_actions;
    QDir m_dir;
    QModelIndex m_index;
    int m_nOpacity;
    QPointer<CTitleBarView> m_pView;
    int m_nHostCalls = 0; ///< calls of the host under way
};

/**
 * A breadcrumb bar: one button for the current folder and one for each of its ancestors, the root first,
 * each with a drop-down menu of the sub-folders of its folder.
 *
 * The bar is independent of CKTFileManager. It asks its interface for everything about folders and tells it
 * what the user chose; it changes nothing by itself. A host typically answers OnTitleBarButtonClicked and
 * OnTitleBarMenuTriggered by moving its view and then calling UpdateCrumBar. From these two the host may do
 * anything, deleting the bar included; from the questions (name, path, index) it must not delete the bar.
 *
 * Without an interface the bar still builds its buttons: they have no text and no folder.
 */
class KTFM_EXPORT CTitleBarView : public QWidget
{
    Q_OBJECT

public:
    /**
     * A bar without buttons. It takes the limits of its size and its size policy from @p parent, which may
     * be null.
     * @param parent owns the bar, as usual with Qt
     * @param slotInterface the host, not owned; it must outlive the bar. May be null.
     */
    CTitleBarView(QWidget* parent, CTitleBarSlotInterface* slotInterface);

    /** Its buttons die with it, but for one that is just telling the host something: that one a little later.
     */
    ~CTitleBarView() override;

    /**
     * Makes the layout (no margins, no spacing) and copies the parent's size limits and size policy. The
     * constructor has called it; another call starts with a new layout and keeps the buttons.
     * @return code KT::ResultDone
     */
    KT::Result IniCrumBarWidget();

    /**
     * Shows @p index and its ancestors; an invalid index empties the bar. The buttons shown until now are
     * deleted by the event loop: pointers to them must not be used any more.
     *
     * Only the current folder is looked up on disk, as far as its first sub-folder: without one, its button
     * has no menu.
     * @param index the current folder, of whatever model the host uses
     * @param force whether to rebuild the bar although it shows @p index already; needed after the model
     *        has changed, since neither the bar nor its buttons follow that
     * @return code KT::ResultDone, or KT::ResultNothingToDo when the bar shows @p index already or is just
     *         being rebuilt (a question to the host leads back here)
     */
    KT::Result UpdateCrumBar(const QModelIndex& index, bool force);

    /**
     * Takes all buttons out of the bar and has the event loop delete them. GetToolButtonSize() still counts
     * them until the next UpdateCrumBar, and GetToolButton() answers null for those deleted.
     * @return code KT::ResultDone
     */
    KT::Result ClearHBoxLayout();

    /**
     * @return the button at @p i, which must be from 0 (the current folder) to GetToolButtonSize() - 1 (the
     *         top-most ancestor): it is not checked. Null when the button was deleted.
     */
    CTitleBarButton* GetToolButton(int i);

    /** @return the number of buttons */
    int GetToolButtonSize();

    /** @return the host that the bar was made for; may be null */
    CTitleBarSlotInterface* GetTitleBarInterface() const;

    /** Sets the icon of the top-most button; shown from the next rebuild on, if SetRootItemUseIcon is set. */
    void SetRootIcon(QIcon icon);

    /** Whether the top-most button shows the root icon instead of its text, from the next rebuild on. */
    void SetRootItemUseIcon(bool use);

    /** @return whether the top-most button shows the root icon */
    bool IsRootItemUseIcon() const;

private:
    void CreateButtons();
    void AddButton(QModelIndex& index);
    void ShowRootIcon();
    void DropMenuWithoutFolders();
    void InsertButtons();

    QPointer<QWidget> m_pReferenceWidget;
    QHBoxLayout* m_pLayout = nullptr;
    QList<QPointer<CTitleBarButton>> m_buttons;
    CTitleBarSlotInterface* m_pSlotInterface;
    bool m_bRootItemUseIcon = false;
    QIcon m_rootIcon;
    QModelIndex m_shownIndex;
    bool m_bBuilding = false;
};

#endif
