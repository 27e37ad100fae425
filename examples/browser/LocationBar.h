#ifndef LOCATIONBAR_H
#define LOCATIONBAR_H

#include <QModelIndex>
#include <QWidget>

#include <functional>
#include <memory>

class AddressField;
class CKTFMTreeModel;
class CTitleBarView;
class FolderTrail;
class QScrollArea;
class QStackedLayout;

/**
 * Where the window is: the breadcrumb bar, or, when the user wants to type a path, an address field in its
 * place.
 *
 * The bar stands in an area that scrolls: it is as wide as its buttons, and a deep folder or a long name must
 * not widen the window. The end of the trail, which is the current folder, stays in sight.
 */
class LocationBar : public QWidget
{
    Q_OBJECT

public:
    /** @param model of the folders; borrowed, it must outlive this bar */
    LocationBar(CKTFMTreeModel& model, QWidget* parent);

    /** The breadcrumb bar dies before the callbacks that it was given. */
    ~LocationBar() override;

    /** Shows the way to a folder; the breadcrumbs come back if the address field is open. */
    void ShowFolder(const QString& path);

    /** Opens the address field. */
    void AskForAddress();

Q_SIGNALS:
    /** The user chose a folder in the breadcrumb bar. */
    void FolderChosen(const QString& path);

    /** The user entered this text. The field stays open until ShowFolder or until the user gives up. */
    void AddressEntered(const QString& text);

    /** The user gave up entering an address. */
    void AddressGivenUp();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QWidget* CreateTrailRow();
    void CreateTrail(QWidget* row);
    void ShowTrail();

    CKTFMTreeModel& m_model;
    std::unique_ptr<FolderTrail> m_pTrail;
    QStackedLayout* m_pPages;
    CTitleBarView* m_pTrailBar = nullptr;
    QScrollArea* m_pTrailArea = nullptr;
    AddressField* m_pField;
    QString m_path;
};

#endif
