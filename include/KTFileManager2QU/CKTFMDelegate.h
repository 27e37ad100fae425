#ifndef CKTFMDELEGATE_H
#define CKTFMDELEGATE_H

#include <KTFileManager2QU/KTFMExport.h>

#include <QColor>
#include <QPointer>
#include <QStyledItemDelegate>

#include <functional>
#include <memory>

class NameLayouts;
class QAbstractItemModel;

/**
 * Paints the thumbnails of a file list and edits their names.
 *
 * An item is its decoration with its name centred below on at most two lines; a name that does not fit is
 * shortened in the middle. The name follows the image as large as it is drawn: images of one shape put the
 * names of a row in line. A hovered or selected item has a rounded, gradient-filled highlight behind the
 * whole cell (hover wins), and a file may have a grey backdrop behind its thumbnail. The name lies inside the
 * spacing that sizeHint adds to the thumbnail: a list view in icon mode whose cells are larger than its icon
 * size leaves it room.
 *
 * The delegate is set on any item view. It tells folders from files by asking the models that
 * SetFileSystemModel names; an item of any other model is painted as a file.
 *
 * Setters store their values only: the caller repaints the view. Painting an item looks up what its model has
 * gathered and touches no disk, unless the custom model is on.
 */
class KTFM_EXPORT CKTFMDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /** A delegate without models. @param parent owns it; null for none */
    explicit CKTFMDelegate(QObject* parent = nullptr);
    ~CKTFMDelegate() override;

    /**
     * Names the models behind the view. None is owned; each may be null and may be deleted at any time.
     *
     * @param fileSystemModel the source of the list, a QFileSystemModel; with any other class no item counts
     *        as a folder
     * @param proxyModel the model that the view shows, a QAbstractProxyModel over the first; null when the
     * view shows the first itself
     * @param customModel the list that is asked instead while IsUseCustomModel()
     */
    void SetFileSystemModel(QAbstractItemModel* fileSystemModel, QAbstractItemModel* proxyModel,
                            QAbstractItemModel* customModel);

    /**
     * Sets the highlight of the item under the mouse; (85, 85, 85) and radius 3 at first.
     * @param top,bottom the ends of the gradient
     * @param pen the frame, one pixel wide
     * @param radius of the corners, in pixels
     */
    void SetItemHoverColor(QColor top, QColor bottom, QColor pen, int radius);

    /** Sets the highlight of selected items, as SetItemHoverColor; black and radius 3 at first. */
    void SetItemSelectedColor(QColor top, QColor bottom, QColor pen, int radius);

    /**
     * Sets what sizeHint adds to the thumbnail, in pixels; 50 x 50 at first. The horizontal spacing also
     * widens the area of the name beyond the thumbnail, by half of it less 10 on each side.
     * @param horizontal,vertical what is added to width and height, on both sides together
     */
    void SetItemSpacing(unsigned horizontal, unsigned vertical);

    /** Sets the height of the area of the name, in lines of the font; 2 at first. */
    void SetHeightRatioOfTextArea(float ratio);

    /** Sets whether files have a grey backdrop behind their thumbnail; off at first. */
    void SetDrawOutline(bool draw);

    /** @return whether files have the backdrop */
    bool IsDrawOutline() const;

    /** Sets the colour of every name, whatever the item's state; the grey (112, 110, 110) at first. */
    void SetNameColor(QColor color);

    /**
     * Sets whether the custom model tells folders from files; off at first. Its display text for the item's
     * row is then taken for a path, and the disk is asked for it at each paint. A text that is a bare name is
     * resolved against the current folder of the process, so that such items are normally painted as files.
     */
    void SetUseCustomModel(bool use);

    /** @return whether the custom model is asked */
    bool IsUseCustomModel() const;

    /** Sets what is called, with the text as it was typed, when a new name is refused; an empty one: nothing.
     */
    void SetRenameFunctor(const std::function<void(QString)>& functor);

    /** Paints highlight, backdrop, decoration and name, in this order. */
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

    /** @return the size of the thumbnail plus the spacing; the text and its font have no influence */
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    /**
     * Lets a click start renaming only on the name: the release of a mouse button elsewhere in the item is
     * consumed (and left unaccepted). The area of the name is computed for a font 14 pixels high, whatever
     * the view's font is.
     */
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

    /**
     * Passes the name in @p editor, without the blanks around it, on to the model. A name that is blank or
     * holds one of the characters \ / : * ? " < > | is refused: the model is left alone and the rename
     * functor called. Nothing happens when the editor is not a QLineEdit.
     */
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

    /**
     * Puts the editor on the bottom of the item, over its name and as wide as the item. The editor becomes
     * one pixel taller at each call.
     */
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

private:
    QStyleOptionViewItem Prepared(const QStyleOptionViewItem& option, const QModelIndex& index) const;
    bool IsFolder(const QModelIndex& index) const;
    bool IsListedFolder(const QModelIndex& index) const;
    bool IsCustomFolder(const QModelIndex& index) const;
    QRect NameArea(const QRect& thumbnail, int fontHeight) const;
    void PaintHighlight(QPainter* painter, const QRect& cell, QStyle::State state) const;
    void PaintBackdrop(QPainter* painter, const QRect& thumbnail) const;

    QPointer<QAbstractItemModel> m_pFileSystemModel;
    QPointer<QAbstractItemModel> m_pProxyModel;
    QPointer<QAbstractItemModel> m_pCustomModel;
    QColor m_hoverColor1;
    QColor m_hoverColor2;
    QColor m_hoverColor3;
    qint32 m_nHoverRadius;
    QColor m_selectedColor1;
    QColor m_selectedColor2;
    QColor m_selectedColor3;
    qint32 m_nSelectedRadius;
    quint32 m_nHorizontalSpacing = 50;
    quint32 m_nVerticalSpacing = 50;
    float m_fHeightRatio = 2.0F;
    bool m_bUseCustomModel = false;
    bool m_bDrawOutline = false;
    std::function<void(QString)> m_renameFunctor;
    std::unique_ptr<NameLayouts> m_pNameLayouts;
    QColor m_nameColor;
};

#endif
