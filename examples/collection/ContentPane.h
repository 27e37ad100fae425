#ifndef CONTENTPANE_H
#define CONTENTPANE_H

#include "ContentOrder.h"

#include <KTFileManager2QU/KTFMInterfaces.h>

#include <QStringList>
#include <QWidget>

#include <memory>

class CKTFMListModel;
class CKTFMSortFilterProxyModel;
class CKTFMTreeView;
class ContentImages;
class QAbstractItemView;
class QComboBox;
class QLineEdit;
class QStackedWidget;
class ThumbnailView;

/**
 * The content of one folder, with a search field and a choice of orders.
 *
 * A CKTFMListModel lists the folder, a CKTFMSortFilterProxyModel sorts and searches it, and two views share
 * the proxy and its selection: thumbnails (CKTFMListView) and a table (CKTFMTreeView).
 */
class ContentPane final : public QWidget, private CKTFMListModelInterface
{
    Q_OBJECT

public:
    /** @param images borrowed; they must outlive this widget */
    explicit ContentPane(ContentImages& images, QWidget* parent = nullptr);
    ~ContentPane() override;

    void ShowFolder(const QString& path);

    /** @return the path of the folder that is shown, empty before the first */
    QString Folder() const;

    /** @return the paths of the selected items, in the order in which they are shown */
    QStringList SelectedPaths() const;

    /** Shows the table, or the thumbnails again. */
    void ShowTable(bool on);

    void SetContextMenuHandleInterface(CKTFMContextMenuHandleInterface* handler);

    /** Puts the cursor into the search field. */
    void StartSearch();

    const CKTFMListModel& Model() const;

Q_SIGNALS:
    /** A file or folder was double-clicked, or Enter was pressed on it. */
    void Activated(const QString& path, bool isFolder);

    void SelectionChanged();

    /** Another number of items is shown. */
    void Counted(int shown, int all);

    /** The folder that was shown is no longer there. */
    void Vanished(const QString& path);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void CreateModels();
    void CreateThumbnails();
    void CreateTable();
    void CreateControls();
    void ConnectModels();
    void ConnectView(QAbstractItemView& view);
    QAbstractItemView* ShownView() const;
    void Search(const QString& text);
    void Sort();
    void SayWhyEmpty();
    void NoteListed(const QString& path);
    void Count();
    void TellIfVanished();
    void Activate(const QModelIndex& index);
    QImage HandleListviewDecorationRole(const QModelIndex& index) override;

    ContentImages& m_images;
    ContentOrder m_order;
    std::unique_ptr<CKTFMListModel> m_pModel;
    std::unique_ptr<CKTFMSortFilterProxyModel> m_pProxy;
    ThumbnailView* m_pThumbnails = nullptr;
    CKTFMTreeView* m_pTable = nullptr;
    QStackedWidget* m_pViews = nullptr;
    QLineEdit* m_pSearchField = nullptr;
    QComboBox* m_pOrderChoice = nullptr;
    QString m_folder;
    bool m_bListed = false; ///< whether all of the folder is known
};

#endif
