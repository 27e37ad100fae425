#include <KTFileManager2QU/CTitleBarView.h>
#include <KTFileManager2QU/KTFMInterfaces.h>

#include "views/SubFolders.h"

#include <QFileInfo>
#include <QMenu>
#include <QStyleOptionToolButton>
#include <QStylePainter>
#include <QVector>

namespace {

/** The opacity of a button painted as the style paints it. */
constexpr int FullyOpaque = 255;

/** The length of ".lnk", the suffix of a shell link. */
constexpr int LinkSuffixLength = 4;

struct MenuEntry
{
    QString path;
    QString text;
};

/** A name as a label: an "&" in it is shown and makes no keyboard shortcut. */
QString LabelFor(const QString& name)
{
    return QString(name).replace(QLatin1Char('&'), QLatin1String("&&"));
}

/** @return whether @p info is a shell link; a real folder may be named *.lnk too */
bool IsShellLink(const QFileInfo& info)
{
    return info.suffix().compare(QLatin1String("lnk"), Qt::CaseInsensitive) == 0 && info.isSymLink();
}

/** @return the entry for a name that the listing gave; its path is empty if it is a link that has vanished */
MenuEntry EntryFor(const QString& path, const QString& name)
{
    const QFileInfo info(path);
    if (!IsShellLink(info))
        return {path, name};
    return {info.exists() ? info.symLinkTarget() : QString(), name.chopped(LinkSuffixLength)};
}

QString HostNameOf(CTitleBarSlotInterface* host, const MenuEntry& entry)
{
    const QModelIndex index = host ? host->GetTitleBarIndexFromPath(entry.path) : QModelIndex();
    return index.isValid() ? host->GetTitleBarDisplayName(index) : entry.text;
}

/** Touches nothing but its arguments: the host may rebuild the bar while it is asked for names. */
QVector<MenuEntry> EntriesOf(const QDir& folder, CTitleBarSlotInterface* host)
{
    const QStringList names = SubFolders::NamesIn(folder.path());
    QVector<MenuEntry> entries;
    entries.reserve(names.size());
    for (const QString& name : names) {
        MenuEntry entry = EntryFor(folder.filePath(name), name);
        if (entry.path.isEmpty())
            continue;
        entry.text = HostNameOf(host, entry);
        entries.append(entry);
    }
    return entries;
}

} // namespace

/** Marks a button as calling the host, while it lives. The button itself may die during the call. */
class CTitleBarButton::HostCall
{
public:
    explicit HostCall(CTitleBarButton* button) : m_button(button) { ++button->m_nHostCalls; }
    ~HostCall()
    {
        if (m_button)
            --m_button->m_nHostCalls;
    }

    HostCall(const HostCall&) = delete;
    HostCall& operator=(const HostCall&) = delete;

    bool ButtonIsGone() const { return m_button.isNull(); }

private:
    QPointer<CTitleBarButton> m_button;
};

CTitleBarButton::CTitleBarButton(QWidget* parent, QModelIndex& index)
    : QToolButton(parent),
      m_pMenu(nullptr),
      m_index(index),
      m_nOpacity(FullyOpaque),
      m_pView(qobject_cast<CTitleBarView*>(parent))
{
    CTitleBarSlotInterface* host = HostInterface();
    const QString name = host ? host->GetTitleBarDisplayName(m_index) : QString();
    setText(LabelFor(name));
    setToolTip(name);
    // A screen reader says it as it is, and also for the root button that shows an icon instead.
    setAccessibleName(name);
    m_dir.setPath(host ? host->GetTitleBarPath(m_index) : QString());
    m_pMenu = new QMenu(this);
    setPopupMode(QToolButton::MenuButtonPopup);
    setMenu(m_pMenu);
}

CTitleBarButton::~CTitleBarButton() = default;

CTitleBarSlotInterface* CTitleBarButton::HostInterface() const
{
    return m_pView ? m_pView->GetTitleBarInterface() : nullptr;
}

bool CTitleBarButton::IsCallingHost() const
{
    return m_nHostCalls > 0;
}

KT::Result CTitleBarButton::CreateMenu()
{
    const HostCall call(this);
    const QVector<MenuEntry> entries = EntriesOf(QDir(m_dir), HostInterface());
    if (call.ButtonIsGone())
        return {KT::ResultDone};
    m_actions.clear();
    m_pMenu->clear();
    m_actions.reserve(static_cast<std::size_t>(entries.size()));
    for (const MenuEntry& entry : entries)
        AddFolderAction(entry.path, entry.text);
    return {KT::ResultDone};
}

void CTitleBarButton::AddFolderAction(const QString& path, const QString& text)
{
    auto* action = new CAction(m_pMenu);
    action->m_strPath = path;
    action->setText(LabelFor(text));
    action->setToolTip(text);
    m_pMenu->addAction(action);
    m_actions.push_back(action);
    connect(action, &QAction::triggered, this, [this, path] { OnFolderActionTriggered(path); });
}

void CTitleBarButton::OnClicked()
{
    const HostCall call(this);
    if (CTitleBarSlotInterface* host = HostInterface())
        host->OnTitleBarButtonClicked(GetModelIndex());
}

void CTitleBarButton::OnFolderActionTriggered(const QString& path)
{
    const HostCall call(this);
    if (CTitleBarSlotInterface* host = HostInterface())
        host->OnTitleBarMenuTriggered(path);
}

void CTitleBarButton::SetMenuQActions(QString& text)
{
    auto* action = new CAction(m_pMenu);
    action->setText(text);
    m_pMenu->addAction(action);
    m_actions.push_back(action);
}

KT::Result CTitleBarButton::PushAction(CAction* action)
{
    m_actions.push_back(action);
    return {KT::ResultDone};
}

std::size_t CTitleBarButton::ActionSize() const
{
    return m_actions.size();
}

CAction* CTitleBarButton::GetAction(std::size_t i) const
{
    return m_actions[i];
}

QMenu*& CTitleBarButton::GetMenuPtr()
{
    return m_pMenu;
}

QModelIndex CTitleBarButton::GetModelIndex() const
{
    return m_index;
}

QDir CTitleBarButton::GetCurrentDir() const
{
    return m_dir;
}

QString CTitleBarButton::GetCurrentPath() const
{
    return m_dir.path();
}

int CTitleBarButton::Opacity() const
{
    return m_nOpacity;
}

void CTitleBarButton::setOpacity(int opacity)
{
    m_nOpacity = opacity;
    update();
}

void CTitleBarButton::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QStyleOptionToolButton option;
    initStyleOption(&option);
    QStylePainter painter(this);
    painter.setOpacity(qreal(qBound(0, m_nOpacity, FullyOpaque)) / FullyOpaque);
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
}
