#pragma once

#include "include/qt_compat.h"
#include "include/zelcmnctrl_export.h"

#include <QBasicTimer>
#include <QMenu>
#include <QPainterPath>
#include <QPoint>
#include <QStringList>

class CMenuExPrivate;

/**
 * The pop-up menu of the house: a QMenu that unrolls in steps of a tenth of its height, 10 milliseconds apart.
 *
 * It unrolls upward when a widget of the application lies one menu height above it, downward otherwise. Of the menus
 * that went through popup() one is open at a time. The pointer is a hand over enabled entries and, where the style lets
 * those be highlighted, an arrow over disabled ones; this holds for entries of addMenuItem() and of addMenu() with a
 * menu. The release of the right button does nothing.
 *
 * exec(), popup() and both addMenu() hide operations of QMenu that are not virtual: call them on a CMenuEx. Timers that
 * QMenu runs for itself have no effect here: a submenu opens by click or by key.
 */
class ZELCMNCTRL_EXPORT CMenuEx : public QMenu
{
    Q_OBJECT

public:
    /** An empty menu in the house font, with a hand cursor. */
    explicit CMenuEx(QWidget *parent = nullptr);
    /** A menu with a title, in the font, the cursor and the mouse tracking that a QMenu has. */
    explicit CMenuEx(const QString &title, QWidget *parent = nullptr);
    ~CMenuEx() override;

    QSize sizeHint() const override;

    /** QMenu::exec at a point in this menu's own coordinates; gives the chosen action, or null. */
    QAction *exec(const QPoint &pos, QAction *at = nullptr);

    /**
     * Hides the menu that went through popup() last and opens this one with its top left corner at the global point.
     *
     * Opens nothing while the application has no active window, or when this menu is visible already. `at` has no
     * effect.
     */
    void popup(const QPoint &pos, QAction *at = nullptr);

    /** Shows the menu by unrolling it; hides it at once. popup() and exec() come here, too. */
    void setVisible(bool visible) override;

    /** True from the pointer's entering the menu to its leaving. */
    bool cursorOnMenu();

    /** Adds an entry with an optional icon; sets the house font on it and on the menu. The caller owns the action. */
    QAction *addMenuItem(const QString &text, const QIcon *icon = nullptr);

    /** Adds a submenu, which is not owned, and gives its action; null for a null menu. */
    QAction *addMenu(QMenu *menu);

    /**
     * Adds a submenu of the given title, owned by this menu.
     *
     * Use the result as a QMenu and as nothing else: the object is a plain QMenu, whatever the type here says.
     */
    CMenuEx *addMenu(const QString &title);

protected:
    void timerEvent(QTimerEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void enterEvent(zel::EnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

    void d_zel_func_CMenuEx(CMenuExPrivate **out);

private Q_SLOTS:
    void actionHovered();

private:
    friend class tst_MenuEx; // the outlines have no other caller yet

    Q_DISABLE_COPY(CMenuEx)

    enum Direction
    {
        Upward = -1,
        Downward = 1
    };

    void startUnrolling();
    QPainterPath getRoundRectPath();
    QPainterPath getRoundPath();

    // Kept for whoever wants the menu's outline or its entries; nothing here reads them.
    QPainterPath m_path;
    QStringList m_itemTexts;
    QStringList m_submenuTitles;
    QPoint m_execPoint;

    QBasicTimer m_growthTimer;
    int direction = Upward;
    QPoint startPoint; // global; moves up with the top edge of a menu that unrolls upward
    QPoint endPoint;   // global
    CMenuExPrivate *d;

    static CMenuEx *currentPopup;
};
