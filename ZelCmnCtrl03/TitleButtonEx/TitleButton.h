#pragma once

#include "include/qt_compat.h"
#include "include/zelcmnctrl_export.h"

#include <QPixmap>
#include <QWidget>

class QPainter;

/**
 * The small button for title bars that an application makes itself: one pixmap in 17 x 17 pixels, with a bevel of two
 * colours that is raised under the pointer and sunken while pressed.
 *
 * Like the buttons of other title bars it never takes the focus, so offer its action by key as well. Its icon is not
 * greyed when it is disabled. It has no text: give it an accessible name, or a tool tip, which assistive technology
 * takes for the name.
 */
class ZELCMNCTRL_EXPORT CTitleButton : public QWidget
{
    Q_OBJECT
    /** The icon. Set as a property it is copied, and the button keeps the copy; AddIcons() keeps none. */
    Q_PROPERTY(QPixmap icon READ icon WRITE keepIcon)

public:
    /** A button without icon, of a fixed size. */
    explicit CTitleButton(QWidget *parent = nullptr);
    ~CTitleButton() override;

    /**
     * Sets the icon, which is drawn in its own size at (3, 3): 10 x 10 is the size that lies in the middle of the
     * bevel. Shows with the next repaint.
     *
     * The pixmap stays the caller's: the button reads it whenever it paints, so it has to live as long as the button
     * or until another one is set. Null gives no icon.
     */
    void AddIcons(QPixmap *pixmap);
    /** A copy of the icon; null while there is none. */
    QPixmap icon() const;

    /** Draws the icon with a painter in the button's coordinates. */
    void DrawIcons(QPainter *painter);

Q_SIGNALS:
    /**
     * Fires with each release of the left mouse button that the button gets, after a press wherever the pointer went,
     * and when assistive technology presses the button. The button may be deleted in a slot.
     */
    void customClicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void enterEvent(zel::EnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(CTitleButton)

    void keepIcon(const QPixmap &icon);

    QPixmap *m_pIcon = nullptr; // the caller's, or the one below
    QPixmap m_keptIcon;
    int m_iState = 0; // of IconButtonPainting::State
};
