#pragma once

#include "include/qt_compat.h"
#include "include/zelcmnctrl_export.h"

#include <QBasicTimer>
#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QPointer>
#include <QPushButton>
#include <QString>

class CButtonExPrivate;
class CMenuEx;

/**
 * The push button of the house: a QPushButton with a named look, an image, a glow under the mouse, a pulse while it is
 * the default button, and a menu that opens when the mouse enters and closes by itself when the mouse has gone.
 *
 * It takes the main style from CC4StyleFactory in its constructor, so the first button installs the house style, and
 * gives its reference back when it is destroyed. It stays usable under any other style.
 *
 * The button decides its own width from its text and image whenever it is resized; its size hint is 83 x 27 pixels.
 * QAbstractButton's auto-repeat and animateClick have no effect on it.
 *
 * setDefault(), setFont(), font() and setMenu() hide operations of the base classes that are not virtual: call them on
 * a CButtonEx.
 */
class ZELCMNCTRL_EXPORT CButtonEx : public QPushButton
{
    Q_OBJECT
    /** The look by its name, such as "BSEX_Active". A text that is no name keeps the look and empties the property. */
    Q_PROPERTY(QString buttonStyle READ getButtonStyle WRITE setButtonStyle DESIGNABLE false)
    /** The same look as an enumerator, for editors that offer a choice. */
    Q_PROPERTY(CButtonStyles look READ buttonStyle WRITE setButtonStyle)
    /** The text colour of the transparent and the glowing look; see setTextColor(). */
    Q_PROPERTY(QColor textColor READ textColor WRITE setTextColor)
    /** Whether a small arrow promises a menu; see setChevron(). */
    Q_PROPERTY(bool chevron READ chevron WRITE setChevron)
    /** The image. Leaves the size, unlike setImage(). */
    Q_PROPERTY(QPixmap pixmap READ pixmap WRITE setPixmap)
    // Over those of the bases, whose setters the ones of this class hide.
    /** The font of the label; see setFont(). */
    Q_PROPERTY(QFont font READ font WRITE setFont)
    /** Whether Return presses the button in its dialog; see setDefault(). */
    Q_PROPERTY(bool default READ isDefault WRITE setDefault)

public:
    /** The looks. The enumerators' words are also their names in the `buttonStyle` property. */
    enum CButtonStyles : int
    {
        BSEX_Normal = 0,      ///< white face, the default
        BSEX_Transparent = 1, ///< the image alone
        BSEX_Glowing = 2,     ///< the image over a glow under the mouse
        BSEX_Active = 4,      ///< green face; never pulses
        BSEX_Tray = 8,        ///< blue face
        BSEX_Tertiary = 16    ///< no face, the base style's label
    };
    Q_ENUM(CButtonStyles)

    /** A button of the look BSEX_Normal, without text and image, under a hand cursor. */
    explicit CButtonEx(QWidget *parent = nullptr);
    ~CButtonEx() override;

    /** Sets the look. Of several bits the lowest decides; none of them is BSEX_Normal. */
    void setButtonStyle(CButtonStyles style);
    /** Sets the look by its exact name; see the property. */
    void setButtonStyle(QString style);
    /** The look in force. */
    const CButtonStyles &buttonStyle() const { return m_buttonStyle; }
    /** The name of the look; empty after a text that is no name. */
    const QString &getButtonStyle() const { return m_sButtonStyle; }
    /** The name of a look, by the rule of setButtonStyle. */
    const QString &StyleToString(CButtonStyles style);

    /** QPushButton::setDefault, with a pulse of two beats every 1400 milliseconds while on; BSEX_Active has none. */
    void setDefault(bool on);
    /** Does nothing; kept for callers of older versions. */
    void makeDefault(bool on);

    /** Sets the image and resizes the button to it. */
    void setImage(const QPixmap &image);
    /** The same from a file path, as it stands. A file that is no image gives no image and a size of 0 x 0. */
    void setImage(const QString &path);
    /** Sets the image and leaves the size. */
    void setPixmap(const QPixmap &image);
    /** The image; null while there is none. */
    const QPixmap &pixmap() const { return m_image; }

    /** Sets the font of the label, with antialiasing preferred. */
    void setFont(const QFont &font);
    /** The font of the label: until setFont() the house font of the language. */
    const QFont &font() const { return m_font; }

    /** The text colour of the transparent and the glowing look; white at first. Shows with the next repaint. */
    void setTextColor(const QColor &color);
    /** The text colour of these two looks, whatever look the button has. */
    const QColor &textColor() const { return m_textColor; }

    /** A small arrow that promises a menu, for the glowing and the transparent look. Shows with the next repaint. */
    void setChevron(bool on);
    /** Whether there is an arrow. False at first; setMenu() turns it on. */
    bool chevron() const { return m_bChevron; }

    /**
     * Gives a glowing or transparent button a menu, and with it a chevron; other looks ignore the call, so set the look
     * first. Null takes the menu away and leaves the chevron.
     *
     * The menu must be a CMenuEx: any other is refused with a log record. It is not owned and may go before the button.
     * A glowing button opens it when the mouse enters, one button height above itself; it closes 1250 milliseconds
     * after the mouse has left both, on a press, or when another button opens its own. Qt's own menu button logic stays
     * out.
     */
    void setMenu(QMenu *menu);

    /** True only while the mouse is on a button whose menu it has opened. */
    bool isMouseOver() const { return m_bMouseOver; }
    /** Strength of the glow: about 0.0 at rest and 1.0 under the mouse, in steps of 0.1 every 20 ms; -0.1 to 1.1. */
    float getGlowAlpha() const { return m_fGlowAlpha; }

    QSize sizeHint() const override;
    /** Always 0 x 0; kept for callers of older versions. */
    QSize buttonSizeHint();

Q_SIGNALS:
    /** Fires with each clicked(), before the slots that an application has connected to that; names the button. */
    void clicked2(CButtonEx *sender);

protected:
    void timerEvent(QTimerEvent *event) override;
    void enterEvent(zel::EnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

    void d_zel_func_CButtonEx(CButtonExPrivate **out);

private Q_SLOTS:
    void buttonClickedPrivate();
    void onButtonPressed();

private:
    Q_DISABLE_COPY(CButtonEx)

    void openMenu();
    void beat();
    void swell(int pixels);
    void stepGlow();
    void watchMenu();
    int widthForContents() const;

    int m_iPulseStep = 0;
    bool m_bChevron = false;
    bool m_bMenuArmed = true;
    bool m_bPressed = false;
    CButtonStyles m_buttonStyle = BSEX_Normal;
    QString m_sButtonStyle;
    QPixmap m_image;
    bool m_bMouseOver = false;
    QFont m_font;
    QColor m_textColor;
    QBasicTimer m_pulseTimer;
    QBasicTimer m_glowTimer;
    float m_fGlowAlpha = 0.0F;
    int m_iGlowDirection = 0;
    CButtonExPrivate *d;

    static QPointer<CMenuEx> s_pOpenMenu;
    static QPointer<CButtonEx> s_pMenuOpener; // the button that watches it
};
