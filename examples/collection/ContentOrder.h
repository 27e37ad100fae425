#ifndef CONTENTORDER_H
#define CONTENTORDER_H

#include <KTFileManager2QU/KTFMInterfaces.h>

#include <QCollator>

/**
 * The orders of names that this application adds to those of CKTFMSortFilterProxyModel.
 *
 * Both look at the name alone: it is part of the path, while any other fact about a QFileInfo would be looked
 * up on disk for every file of the folder.
 */
class ContentOrder final : public CCustomSortInterface
{
public:
    /** What names are compared by. */
    enum Kind
    {
        Numbers, ///< the whole name, its numbers by their value: "lamp 9" before "lamp 10"
        Suffixes ///< the suffix; what is without one, as folders are, comes first
    };

    ContentOrder();

    /** Sets what names are compared by; it shows with the proxy's next sorting. */
    void SetKind(Kind kind);

    bool CustomLessThan(const QFileInfo& left, const QFileInfo& right, bool& handled) override;

private:
    int Compare(const QFileInfo& left, const QFileInfo& right) const;

    Kind m_kind = Numbers;
    QCollator m_numbers;
};

#endif
