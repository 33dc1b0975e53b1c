#pragma once

#include "include/qt_compat.h"
#include "include/zelcmnctrl_export.h"

#include <QLineEdit>

/**
 * The single-line text box of the house: a QLineEdit with two frame looks and two text colours, at most 20 pixels high
 * and without a context menu.
 *
 * It takes the main style from CC4StyleFactory in its constructor and gives its reference back when it is destroyed.
 * The style paints the frame and reads from the box whether the pointer is over it and whether it has the focus. Under
 * any other style it is a QLineEdit in the chosen text colour.
 */
class ZELCMNCTRL_EXPORT CTextBoxEx : public QLineEdit
{
    Q_OBJECT
    /** The look. It sets the text colour too, so it comes before that one. */
    Q_PROPERTY(CLineEditStyles lineEditStyle READ lineEditStyle WRITE setLineEditStyle)
    /** The colour of the text in the active window; see setLineEditColor(). */
    Q_PROPERTY(CLineEditColor lineEditColor READ lineEditColor WRITE setLineEditColor)

public:
    /** The looks of frame and background. Any other value gives a box without both. */
    enum CLineEditStyles : int
    {
        LineEditTransparent =
            0,             ///< a half-transparent frame, brighter under the pointer and with the focus; the default
        LineEditNormal = 1 ///< an opaque frame and background, the same in all states; neither when read-only
    };
    Q_ENUM(CLineEditStyles)

    /** The colour of the text while the window is active. */
    enum CLineEditColor : int
    {
        LineEditBlue = 0, ///< UIGCLR_IMPUI_BLUTITLE, the default
        LineEditGray = 1  ///< UIGCLR_IMPUI_GRAYTITLE
    };
    Q_ENUM(CLineEditColor)

    /** An empty text box of the look LineEditTransparent with blue text, in the house font. */
    explicit CTextBoxEx(QWidget *parent = nullptr);
    ~CTextBoxEx() override;

    /** True from the enter event to the leave event, for a disabled box too. */
    const bool &isMouseOver() const { return m_bMouseOver; }
    /** True from the focus-in event to the focus-out event. */
    const bool &isFocussed() const { return m_bFocussed; }
    /** The look that was set last, as it was given. */
    const CLineEditStyles &lineEditStyle() const { return m_lineEditStyle; }
    /** The text colour that was set last, by either of the two setters. */
    const CLineEditColor &lineEditColor() const { return m_lineEditColor; }

    /**
     * Sets the look, and with it the text colour: blue for LineEditTransparent, gray for any other value. For another
     * colour call setLineEditColor() afterwards.
     */
    void setLineEditStyle(CLineEditStyles style);

    /**
     * Sets the text colour of the active window. In an inactive window the text is gray, disabled it is gray with an
     * alpha of 100 of 255, whatever the colour.
     *
     * A value that is no colour leaves the text of the active window as it is. The rest of the palette stays.
     */
    void setLineEditColor(CLineEditColor color);

Q_SIGNALS:
    /** Fires when the box gets the keyboard focus, after QLineEdit has handled that. */
    void focusIn();
    /** Fires when the box loses the keyboard focus, after QLineEdit has handled that, so after editingFinished(). */
    void focusOut();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void enterEvent(zel::EnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    Q_DISABLE_COPY(CTextBoxEx)

    bool m_bMouseOver = false;
    bool m_bFocussed = false;
    CLineEditStyles m_lineEditStyle = LineEditTransparent;
    CLineEditColor m_lineEditColor = LineEditBlue; // the palette has it too, until somebody sets another one
};
