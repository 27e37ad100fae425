#ifndef VIEWACTIONS_H
#define VIEWACTIONS_H

#include "PaneViews.h"

#include <KTFileManager2QU/KTFMTypes.h>

#include <QObject>

class QAction;
class QActionGroup;

/** How the file list is shown, as actions: as icons or as a table of details, and how large. */
class ViewActions : public QObject
{
    Q_OBJECT

public:
    /** @param pane borrowed; it must outlive this object */
    explicit ViewActions(CKTFileManager& pane, QObject* parent = nullptr);

    /** Shows the list in one of the ways that there are actions for. */
    void Show(EKTFMViewMode mode, EKTFMIconSize size);

    EKTFMViewMode Mode() const;
    EKTFMIconSize Size() const;

    QList<QAction*> Modes() const;
    QList<QAction*> Sizes() const;

    QAction* const m_pLarger;
    QAction* const m_pSmaller;

Q_SIGNALS:
    /** The view or the size of its images is another one. */
    void Changed();

private:
    QAction* AddMode(const QString& text, const char* symbol, const QString& shortcut, EKTFMViewMode mode);
    void AddSizes();
    void Step(int steps);
    void ShowGrid();
    void UpdateActions();

    CKTFileManager& m_pane;
    PaneViews m_views;
    QActionGroup* m_pModes;
    QActionGroup* m_pSizes;
    EKTFMViewMode m_eMode = FM_VIEW_ICON;
    EKTFMIconSize m_eSize = FM_ICON_MEDIUM;
};

#endif
