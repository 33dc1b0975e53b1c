#pragma once

#include "include/zelcmnctrl_export.h"

#include <QComboBox>
#include <QStringList>

#include <memory>

class CDropDownScrollBarStyle;

/**
 * The drop-down of the house: a QComboBox that is not editable, with a list in two stages.
 *
 * The application gives a few main items and many further ones with addMoreItems(). The list then opens with the main
 * items and a last entry, the translated "More..." of this class. Choosing that entry opens the list again with all
 * items. The next time the list is short again, with the current item on top where it is none of the main ones. Without
 * addMoreItems() it is a QComboBox.
 *
 * When "More..." is chosen, currentIndexChanged() and currentTextChanged() fire for it as for any item, and
 * moreSelected() is true then. At that time the item chosen last is current again; the current item also changes
 * without a signal where the list changes its stage, since the items have other indexes then. activated() follows with
 * the current item, as after every choice. So go by texts rather than by indexes, and where moreSelected() is true wait
 * for the next choice.
 *
 * The list is made anew at each stage: data that the application has set for single items does not stay. An item of the
 * application whose text is that of "More..." acts as this entry.
 *
 * It takes no style of its own, but the scroll bar of its list has one, CDropDownScrollBarStyle. A view that the
 * application sets itself has a scroll bar of the ordinary kind. Styles with lists like menus, such as Fusion, show
 * none. The tool tip of the box is its current text.
 */
class ZELCMNCTRL_EXPORT CDropDownEx : public QComboBox
{
    Q_OBJECT
    /** Whether items have their text as their tool tip; see enableToolTipsForDropDownElements(). */
    Q_PROPERTY(
        bool toolTipsForDropDownElements READ hasToolTipsForDropDownElements WRITE enableToolTipsForDropDownElements)

public:
    /** An empty drop-down in the house font and text colours. */
    explicit CDropDownEx(QWidget *parent = nullptr);
    ~CDropDownEx() override;

    /** Appends items, as QComboBox does. After addMoreItems() they stay only until the list is opened. */
    void addItems(const QStringList &items);

    /**
     * Appends the main items and turns the list in two stages on. Of `moreItems` those become the further items that
     * are neither empty nor among `items` (compared exactly); they are not in the list until "More..." is chosen.
     * "More..." itself comes when the list is opened.
     *
     * Both lists take the place of those of an earlier call. What is in the drop-down stays until the list is opened:
     * call clear() before, if it shall go at once. An item that is current and in neither list stays on top.
     *
     * Neither list is changed.
     */
    void addMoreItems(QStringList &items, QStringList &moreItems);

    /** True from a choice of "More..." until another item becomes current. */
    bool moreSelected() const { return m_bMoreSelected; }

    /**
     * Whether items have their text as their tool tip, for lists that are narrower than their texts. Off at first.
     * Items that are in the list already keep what they have until the list is filled the next time.
     */
    void enableToolTipsForDropDownElements(bool enable);
    /** Whether items that are added from now on have their text as their tool tip. */
    bool hasToolTipsForDropDownElements() const { return m_bToolTipsForItems; }

    /** QWidget's; also makes the current text the tool tip of the box. */
    void setEnabled(bool enabled);

    /** QComboBox's, 20 pixels high. */
    QSize sizeHint() const override;

    /** Opens the list, short if it has two stages. Nothing happens while it is open. */
    void showPopup() override;

Q_SIGNALS:
    /**
     * Fires at every press of a mouse button on the box, after QComboBox has handled it, so with the list open after a
     * press of the left button. The right button does nothing else.
     */
    void customClicked();

public Q_SLOTS:
    /**
     * Connected to currentIndexChanged(): remembers the item, or opens the list of all items if the one at `index` is
     * "More...". Does nothing without addMoreItems(). An index that no item has counts as an item without text.
     */
    void onIndexChanged(int index);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    Q_DISABLE_COPY(CDropDownEx)

    void append(const QStringList &items);
    void setToolTipForItems();
    void prepareList();
    void showShortList();
    void showLongList();
    void fill(const QStringList &furtherItems);
    void allowScrollBar();
    void limitListWidth(int width);
    int widthOfItems() const;

    QStringList m_furtherItems;
    QStringList m_mainItems;
    bool m_bHasMore = false;
    bool m_bMoreSelected = false;
    QString m_lastText; // of the item chosen last, other than "More..."
    bool m_bToolTipsForItems = false;
    std::unique_ptr<CDropDownScrollBarStyle> m_pScrollBarStyle;
};
