#ifndef THUMBNAILVIEW_H
#define THUMBNAILVIEW_H

#include <KTFileManager2QU/CKTFMListView.h>

class CKTFMDelegate;

/**
 * A CKTFMListView that shows thumbnails through a CKTFMDelegate, and fits both to font and palette.
 *
 * The view changes none of QListView's settings by itself, and the delegate paints what it is told: this
 * class has the settings that the two need to go together.
 */
class ThumbnailView : public CKTFMListView
{
    Q_OBJECT

public:
    explicit ThumbnailView(QWidget* parent = nullptr);

    CKTFMDelegate& Thumbnails() const;

    /** Sets what the view says when it has nothing to show. */
    void SetEmptyText(const QString& text);

    /** @return the size of one cell */
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void FitToFont();
    void FitToPalette();

    CKTFMDelegate* m_pDelegate;
    QString m_emptyText;
};

#endif
