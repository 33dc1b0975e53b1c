#pragma once

#include "include/zelcmnctrl_export.h"

#include <QListWidget>

/**
 * The list box of the house: a QListWidget of rows with a picture and a text, and with a gradient behind selected rows.
 *
 * The gradient is the highlight of the palette's active group, in which it repeats for each row of 92 pixels. Qt uses
 * this group where the list has the focus in the active window; elsewhere selected rows have the ordinary highlight.
 * The list's delegate shades each selected row from its top to its bottom, whatever its height and wherever the list
 * has been scrolled; with a delegate of the application the palette's brush shows as it is.
 *
 * The class does not set the height of a row. Under the house style a picture of 90 pixels, the style's icon size,
 * gives 92; where pictures are smaller or missing, give the items a size hint (QListWidgetItem::setSizeHint()).
 */
class ZELCMNCTRL_EXPORT CListBoxEx : public QListWidget
{
    Q_OBJECT

public:
    /** An empty list in the house font, with the delegate that shades selected rows. */
    explicit CListBoxEx(QWidget *parent = nullptr);
    ~CListBoxEx() override;

    /**
     * Appends a row: the picture from the file, and the text to the right of it, in the middle of the row's height. The
     * picture is never enlarged; one that is larger than iconSize() is made smaller. A file that is no picture gives a
     * row with its text alone.
     *
     * The new item belongs to the list. It also takes part in QListWidget's sorting, where that is on.
     */
    void addRow(QString imagePath, QString text);

private:
    Q_DISABLE_COPY(CListBoxEx)
};
