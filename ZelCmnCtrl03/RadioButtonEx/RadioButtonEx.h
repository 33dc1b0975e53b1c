#pragma once

#include "include/qt_compat.h"
#include "include/zelcmnctrl_export.h"

#include <QRadioButton>
#include <QString>

#include <memory>

class SeparateLabel;

/**
 * The radio button of the house: a QRadioButton that can have a separate label. Tab stops at each one of a group.
 *
 * With a separate label the text wraps, which a QRadioButton's own cannot: the button has no text of its own then, and
 * a label of a fixed width sits inside of it. A click on that label toggles the button as setChecked() does: toggled()
 * fires, clicked() and pressed() do not; in an exclusive group a click on the label of the checked button changes
 * nothing. Assistive tools hear the label's text as the button's name.
 *
 * The label is made as high as its text needs at that width, once; see setFixedLabelWidth(). A single word that is
 * wider is cut off. setText() would write beside the label. Without a separate label everything that concerns it does
 * nothing.
 */
class ZELCMNCTRL_EXPORT CRadioButtonEx : public QRadioButton
{
    Q_OBJECT

public:
    /** With the text that QRadioButton has, and no separate label. */
    explicit CRadioButtonEx(QWidget *parent = nullptr);
    /** With a text of the button itself, on one line, and no separate label. */
    explicit CRadioButtonEx(const QString &text, QWidget *parent = nullptr);
    /**
     * With a separate label of `width` pixels; the button is 40 pixels wider. Both have fixed sizes.
     *
     * A negative width counts as 0.
     */
    CRadioButtonEx(const QString &text, QWidget *parent, int width);
    ~CRadioButtonEx() override;

    /** QWidget::setFixedHeight, for button and label. Hides that name, which is not virtual. */
    void setFixedHeight(int height);
    /**
     * Gives the label a new width, and label and button the height that the text needs there, and 8 pixels more. The
     * button is 40 pixels wider. Call it after the text or the font has changed, too.
     */
    void setFixedLabelWidth(int width);
    /**
     * Takes over two brushes of a palette, for label and button: that of QPalette::WindowText for text and button text,
     * that of QPalette::Window for ground and button.
     */
    void setLabelPalette(const QPalette &palette);
    /** Sets the label's font and leaves all sizes; see setFixedLabelWidth(). */
    void setLabelFont(const QFont &font);

public Q_SLOTS:
    /** What a click on the label does; the sender is not looked at. */
    void labelClicked(QWidget *sender);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void enterEvent(zel::EnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    Q_DISABLE_COPY(CRadioButtonEx)

    std::unique_ptr<SeparateLabel> m_pSeparateLabel; // null without one
};
