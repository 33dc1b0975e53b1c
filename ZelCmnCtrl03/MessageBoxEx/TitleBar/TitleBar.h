#pragma once

#include "include/qt_compat.h"

#include <QPen>
#include <QPixmap>
#include <QRect>
#include <QSize>
#include <QString>
#include <QWidget>

class CCustomIconButtons;
class QHBoxLayout;

/**
 * The title bar of the frameless message box: a gradient with a line below, the caption in the middle, and up to three
 * buttons at the end of the bar, which minimize, maximize and close the parent.
 *
 * The parent is the window that the bar works for. The close button calls its close() and then, where it has such a
 * slot, its slot_close(). Presses on the bar itself travel on to the parent, which moves the window.
 *
 * The bar remembers whether it has maximized the parent, and does not watch it: where the parent leaves that state by
 * itself, the next click on the button does nothing but bring the bar back in step.
 */
class CTitleBar : public QWidget
{
    Q_OBJECT

public:
    /** Which buttons the bar shows, as bits of setTitleFlags(). */
    enum TitleFlag : int
    {
        MinimizeButton = 1,
        MaximizeButton = 2,
        CloseButton = 4
    };

    explicit CTitleBar(QWidget *parent);
    ~CTitleBar() override;

    /**
     * Sets the caption, and a minimum width of the bar that fits it and three buttons where the bar is not as wide. A
     * shorter caption later does not take that back.
     */
    void setCaption(const QString &caption);

    /** Shows the buttons of the TitleFlag bits and hides the others. Fixes the bar at the height that it has now. */
    void setTitleFlags(int flags);

    /** False paints a hard edge of six lines at the right, for a box without a soft shadow. None at first. */
    void setDropShadow(bool shadow);

    /** From now on the pointer that enters the bar becomes a move cursor, or is left as it is. Off at first. */
    void changeCursorShape(bool on);

public Q_SLOTS:
    void on_but_minimize_clicked();
    void on_but_maximize_clicked();

protected:
    void enterEvent(zel::EnterEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(CTitleBar)

    void fillBackground();
    void makePens();
    void loadPixmaps();
    void addButtons();
    void connectButtons(QWidget *box);
    void translateNames();
    void maximizeParent();
    void restoreParent();
    void drawHardEdge(QPainter *painter) const;

    CCustomIconButtons *m_pMinimize = nullptr; // the three belong to the bar
    CCustomIconButtons *m_pMaximize = nullptr;
    CCustomIconButtons *m_pClose = nullptr;
    QPixmap m_maximizePixmap;
    QPixmap m_closePixmap;
    QPixmap m_restorePixmap;
    bool m_bMaximized = false;
    QString m_sCaption;
    int m_iTitleFlags = 0;
    QHBoxLayout *m_pLayout = nullptr;
    QPen m_bottomPen;
    QPen m_captionPen;
    QPen m_edgePen1;
    QPen m_edgePen2;
    QPen m_edgePen3;
    bool m_bHardEdge = false;
    bool m_bResizeCursor = false;
    QRect m_normalGeometry; // of the parent, while it is maximized
    QSize m_maximizedSize;
};
