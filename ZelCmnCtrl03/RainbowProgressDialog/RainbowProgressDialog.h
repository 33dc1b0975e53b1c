#pragma once

#include "include/zelcmnctrl_export.h"

#include <QDialog>
#include <QPainterPath>
#include <QString>

class CRainbowProgressDialogPrivate;

/**
 * The busy dialog for work of open-ended length: up to three rows of text over a CProgressBarEx, in a popup with round
 * corners at the bottom. Row 0 is a bold heading, rows 1 and 2 are plain; long texts wrap.
 *
 * The application sets the rows, shows the dialog through the QDialog interface, changes rows while the work goes on
 * and hides it at the end. Nothing closes it by itself. Being a popup it closes on Escape and on a click outside, and
 * QDialog::rejected() fires then: connect that to cancel the work.
 *
 * Which rows there are is decided when the dialog is shown: a row that is empty then stays hidden until it is shown
 * again, whatever text it gets meanwhile; a row that had a text keeps its room when that is cleared. The height follows
 * the text at every painting; the width is at least 450 pixels. The dialog does not look for a place by itself: move it
 * before it is shown.
 *
 * A row other than 0, 1 and 2 changes nothing and leaves a log record.
 */
class ZELCMNCTRL_EXPORT CRainbowProgressDialog : public QDialog
{
    Q_OBJECT

public:
    /** A modal dialog with three empty rows. */
    explicit CRainbowProgressDialog(QWidget *parent = nullptr);
    ~CRainbowProgressDialog() override;

    /**
     * Sets the text of a row, plain or rich, and tells it to assistive technology. A row that was empty when the dialog
     * was shown stays hidden.
     */
    void setText(const QString &msg, int row);
    /** Takes the text of a row away; the row keeps its room while the dialog is shown. */
    void clear(int row);
    /** The text of a row; empty for a row that does not exist. */
    QString text(int row);
    /** Centred at first. */
    void setTextAlignment(Qt::Alignment alignment, int row);

protected:
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

    void d_zel_func_CRainbowProgressDialog(CRainbowProgressDialogPrivate **out);

private:
    Q_DISABLE_COPY(CRainbowProgressDialog)

    void addRows();
    void addBar();
    void fitHeight();
    QPainterPath getRoundRectPath(const QRect &rect, int radius);

    CRainbowProgressDialogPrivate *d;
};
