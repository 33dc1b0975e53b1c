#pragma once

#include "include/zelcmnctrl_export.h"

#include <QListWidget>

/**
 * The list box of the house: a QListWidget of rows with a picture and a text, and with a gradient behind selected rows.
 *
 * The gradient is the highlight of the palette's active group, made for rows of 92 pixels, and shows in the active
 * window. The class does not set the height of a row, which is that of its picture and its text: give the items a size
 * hint of that height (QListWidgetItem::setSizeHint).
 */
class ZELCMNCTRL_EXPORT CListBoxEx : public QListWidget
{
    Q_OBJECT

public:
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
