#pragma once

#include "include/zelcmnctrl_export.h"

#include <QDialog>
#include <QPainterPath>
#include <QPointer>
#include <QString>

class QGridLayout;
class QLabel;
class QProgressBar;

/**
 * The progress dialog with a value: one line of text over a QProgressBar, in a popup of 375 x 95 pixels with round
 * corners at the bottom.
 *
 * The application sets range and text, shows the dialog through the QDialog interface and drives it with setValue() and
 * setText(); it hides it when the work is done. Nothing closes it by itself. Being a popup it closes on Escape and on a
 * click outside, and QDialog::rejected() fires then: connect that to cancel the work.
 *
 * The bar looks as the style in force draws a QProgressBar. The text does not wrap; what is wider than the dialog is
 * cut off at both ends.
 */
class ZELCMNCTRL_EXPORT CProgressDialogEx : public QDialog
{
    Q_OBJECT

public:
    /** A modal dialog without text, with the range 0 to 100 and the value 100. */
    explicit CProgressDialogEx(QWidget *parent = nullptr);
    ~CProgressDialogEx() override;

    // Range and value are those of the QProgressBar. Where somebody has destroyed that, the setters do nothing.
    /** The value at which the bar is empty; -1 without a bar. */
    int minimum() const;
    /** The value at which the bar is full; -1 without a bar. */
    int maximum() const;
    /** The value that was set last: -1 without a bar, less than minimum() after a reset(). */
    int value() const;
    /** Sets the lower end of the range; see setRange(). A maximum that is less follows it. */
    void setMinimum(int minimum);
    /** Sets the upper end of the range; see setRange(). A minimum that is greater follows it. */
    void setMaximum(int maximum);
    /**
     * Sets both ends. A maximum less than `minimum` counts as that. 0 and 0 is a busy bar without a value. A value that
     * is outside of the new range is taken away, as reset() does.
     */
    void setRange(int minimum, int maximum);
    /** A value outside of the range is ignored. */
    void setValue(int value);
    /** Takes the value away: the bar shows no progress until the next setValue(). */
    void reset();

    /** The text over the bar, plain or rich; empty if somebody has destroyed its label. */
    QString text();
    /** Sets the text, and tells it to assistive technology. No effect if somebody has destroyed its label. */
    void setText(const QString &text);

private:
    Q_DISABLE_COPY(CProgressDialogEx)

    void makeLabel();
    void makeBar();
    QPainterPath getRoundRectPath(const QRect &rect, int radius);

    QGridLayout *m_pOuterGrid;
    QGridLayout *m_pInnerGrid;
    // Guarded: an application can find them by their names and destroy them.
    QPointer<QLabel> m_lblMessage;
    QPointer<QProgressBar> m_ProgressBar;
};
