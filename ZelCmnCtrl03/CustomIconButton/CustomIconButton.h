#pragma once

#include "include/qt_compat.h"
#include "include/zelcmnctrl_export.h"

#include <QPixmap>
#include <QString>
#include <QWidget>

class QPainter;

/**
 * The small icon button of the house: one pixmap in 22 x 22 pixels, with no text and no frame of the style. Under the
 * pointer it stands out by a bevel of two colours, pressed it is sunken, and disabled its icon is grey.
 *
 * It takes presses of every mouse button and reports clicks of the left one. After a click it lies flat, also with the
 * pointer still on it; the bevel returns when the pointer comes in again. A disabled button stands out under the
 * pointer too.
 *
 * Tab reaches it, which shows by the raised bevel, and Space clicks it at the key's release. Assistive technology finds
 * a push button whose name is the accessible name or, for want of one, the tool tip: give it one of the two.
 *
 * Give it a tool tip with setToolTipText(). A text that was set with QWidget::setToolTip() is replaced by that one, or
 * by none, as soon as the pointer enters.
 */
class ZELCMNCTRL_EXPORT CCustomIconButton : public QWidget
{
    Q_OBJECT
    /** The tool tip, and the accessible name of a button that has none of its own. Empty at first. */
    Q_PROPERTY(QString toolTipText READ toolTipText WRITE setToolTipText)
    /** The icon; see AddIcons(). */
    Q_PROPERTY(QPixmap icon READ icon WRITE AddIcons)

public:
    /** A button without icon and tool tip, of a fixed size. */
    explicit CCustomIconButton(QWidget *parent = nullptr);
    ~CCustomIconButton() override;

    /**
     * Sets the icon, of which the button keeps a copy; a null pixmap takes it away. Shows with the next repaint: call
     * update() to see it at once.
     *
     * An icon less than 16 pixels wide is drawn at (5, 5) and never greyed, any other at (1, 4), both in their own
     * size. 11 x 11 and 19 x 13 are the sizes that lie in the middle of the bevel.
     */
    void AddIcons(QPixmap pixmap);
    /** The icon as it was given; null while there is none. */
    const QPixmap &icon() const { return m_icon; }

    /** Draws the icon as it is now, grey on a disabled button, with a painter in the button's coordinates. */
    void DrawIcons(QPainter *painter);

    /** The text that was set last; what QWidget::toolTip() gives follows when the pointer enters. */
    const QString &toolTipText() const { return m_sToolTip; }
    /** Sets the tool tip that the pointer finds from now on; an empty text gives none. */
    void setToolTipText(const QString &text);

Q_SIGNALS:
    /**
     * Fires when the left mouse button is released with the pointer inside the button, its outermost pixels excepted,
     * when Space is released, and when assistive technology presses the button. The button may be deleted in a slot.
     */
    void customClicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void enterEvent(zel::EnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(CCustomIconButton)

    QPixmap greyout(QPixmap &pixmap);
    const QPixmap &greyIcon();
    void sink();
    void release(bool isClick);
    void dropPress();
    bool showsKeyboardFocus() const;

    QPixmap m_icon;
    int m_iState = 0;   // of IconButtonPainting::State
    int m_iPressed = 0; // 1 from a press to the next release
    QString m_sToolTip;
    bool m_bKeyDown = false;
    QPixmap m_greyIcon; // null until it is needed
};
