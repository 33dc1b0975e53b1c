// The separate label of check boxes and radio buttons. Internal.
#pragma once

#include <QPointer>

#include "LabelEx/LabelEx.h"

class QAbstractButton;
class QFont;
class QHBoxLayout;
class QPalette;

/**
 * A word-wrapping label inside of a button that has no text of its own, on a layout in the button. To assistive tools
 * it is the button's name.
 *
 * The button owns label and layout; what is gone already is passed over.
 */
class SeparateLabel
{
public:
    /** The button becomes 40 pixels wider than the label: the room of its indicator. Heights are set later. */
    SeparateLabel(QAbstractButton *button, const QString &text, int width);

    CLabelEx *label() const { return m_pLabel; }

    /** What the text needs at the label's width, as the label itself counts it. */
    int heightForWidth() const;
    /** What the text alone needs there, in the label's font. */
    int textHeight() const;

    /** Puts the label on the layout, and behind it a spacer that keeps the height. */
    void addToLayout(int spacerHeight);
    void setFixedHeight(int height);
    /** Of the label, and 40 pixels more of the button. Widths that no widget can have count as the nearest possible. */
    void setFixedWidth(int width);
    /** Text and ground of the palette, for label and button. */
    void setPalette(const QPalette &palette);
    void setFont(const QFont &font);

    /** Deletes the label, which then tells the button nothing more, and the layout with the spacer. */
    void remove();

private:
    QAbstractButton *m_pButton;
    QPointer<CLabelEx> m_pLabel;
    QPointer<QHBoxLayout> m_pLayout;
};
