#pragma once

#include "include/qt_compat.h"
#include "include/zelcmnctrl_export.h"

#include <QLabel>

/**
 * The label of the house: a QLabel that tells of clicks and of the mouse that comes and goes, and that takes photos
 * dropped on it.
 *
 * It is one link as a whole: presses never reach the text, so links inside of a rich text are not followed and nothing
 * can be selected with the mouse.
 *
 * As soon as something is connected to clicked() or clicked2(), the keyboard reaches it as well: it takes the focus by
 * Tab, unless it has a focus policy already, shows that with a dotted frame, and Space, Return and Enter click it.
 * Assistive tools then hear of a link. Inside of a button it stays a part of that: a text, and no stop of its own.
 */
class ZELCMNCTRL_EXPORT CLabelEx : public QLabel
{
    Q_OBJECT
    /** Whether photos can be dropped here; see setDrag(). */
    Q_PROPERTY(bool drag READ takesDrags WRITE setDrag)

public:
    /** A label without text, which takes no drags. */
    explicit CLabelEx(QWidget *parent = nullptr);
    ~CLabelEx() override;

    /**
     * Makes the label a place to drop photos on, with a hand cursor: it takes drags that carry both the formats
     * "application/x-tnv2dnditemdata" and "text/uri-list", and no others. False at first.
     *
     * False refuses all drags from then on; the cursor, the mouse tracking and acceptDrops() stay as true has made
     * them.
     */
    void setDrag(bool enabled);
    /** What setDrag() was given last; false before. */
    bool takesDrags() const { return m_bDrag; }

    /** True while a click has somebody to hear it, and the label is no part of a button. */
    bool isClickable() const;

Q_SIGNALS:
    /** Fires with each release of the left button that the label gets; after a press that is wherever the mouse went.
     */
    void clicked();
    /** Fires right after clicked(), and names the label. */
    void clicked2(QWidget *sender);
    /** Fires right after slot_Hovered(), and names the label. */
    void signal_Hovered(QWidget *sender);
    /** Fires when the mouse has come in, and each time it is told to have gone. A signal, whatever its name says. */
    void slot_Hovered();
    /** Fires when files are dropped here while setDrag() is on. What was dropped, the source of the drag knows. */
    void signal_droppedOnButton();

public Q_SLOTS:
    /** Emits clicked() and clicked2(), as a click does. Does nothing while the label is disabled. */
    void click();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void enterEvent(zel::EnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void connectNotify(const QMetaMethod &signal) override;

private:
    Q_DISABLE_COPY(CLabelEx)

    void tellClick();
    void tellHover();
    void accept(QDropEvent &event) const;
    void drawRightToLeftText();
    void drawFocusFrame();
    bool isPartOfButton() const;

    bool m_bHovered = false;
    bool m_bDrag = false;
};
