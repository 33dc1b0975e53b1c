#include "DropDownEx/DropDownEx.h"

#include "CC4Styles/DropDownScrollBarStyle.h"
#include "UiGraphics.h"
#include "include/qt_globals.h"

#include <QAbstractItemView>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>

#include <algorithm>
#include <iterator>

namespace {

// Pixels.
constexpr int fontPixels = 14;
constexpr int hintedHeight = 20;
constexpr int screenMargin = 10; // to the right of the list

} // namespace

CDropDownEx::CDropDownEx(QWidget *parent)
    : QComboBox(parent), m_pScrollBarStyle(std::make_unique<CDropDownScrollBarStyle>())
{
    ZEL_LOG_SCOPE;
    setFont(UIGGetFont(fontPixels, -1, false));
    QPalette colors = palette();
    colors.setColor(QPalette::Active, QPalette::Text, UIGGetColor(QStringLiteral("UIGCLR_IMPUI_BLUTITLE")));
    colors.setColor(QPalette::Inactive, QPalette::Text, UIGGetColor(QStringLiteral("UIGCLR_IMPUI_GRAYTITLE")));
    setPalette(colors);
    if (QScrollBar *bar = view()->verticalScrollBar())
        bar->setStyle(m_pScrollBarStyle.get());
    setMouseTracking(true);
    setEditable(false);
    connect(this, qOverload<int>(&QComboBox::currentIndexChanged), this, &CDropDownEx::onIndexChanged);
}

CDropDownEx::~CDropDownEx()
{
    ZEL_LOG_SCOPE;
    // The list is destroyed after the style.
    if (QScrollBar *bar = view()->verticalScrollBar())
        bar->setStyle(nullptr);
}

void CDropDownEx::addItems(const QStringList &items)
{
    ZEL_LOG_SCOPE;
    append(items);
}

void CDropDownEx::addMoreItems(QStringList &items, QStringList &moreItems)
{
    ZEL_LOG_SCOPE;
    m_bHasMore = true;
    m_mainItems = items;
    m_furtherItems.clear();
    std::copy_if(moreItems.cbegin(), moreItems.cend(), std::back_inserter(m_furtherItems),
                 [this](const QString &item) { return !item.isEmpty() && !m_mainItems.contains(item); });
    append(m_mainItems);
}

void CDropDownEx::enableToolTipsForDropDownElements(bool enable)
{
    ZEL_LOG_SCOPE;
    m_bToolTipsForItems = enable;
}

void CDropDownEx::setEnabled(bool enabled)
{
    ZEL_LOG_SCOPE;
    setToolTip(currentText());
    QWidget::setEnabled(enabled);
}

QSize CDropDownEx::sizeHint() const
{
    ZEL_LOG_SCOPE;
    return QSize(QComboBox::sizeHint().width(), hintedHeight);
}

void CDropDownEx::onIndexChanged(int index)
{
    ZEL_LOG_SCOPE;
    if (!m_bHasMore)
        return;
    m_bMoreSelected = itemText(index) == tr("More...");
    if (m_bMoreSelected)
        showLongList();
    else
        m_lastText = itemText(index);
}

// Keys and assistive technology open the list without a press.
void CDropDownEx::showPopup()
{
    ZEL_LOG_SCOPE;
    if (view()->isVisible())
        return;
    prepareList();
    QComboBox::showPopup();
}

void CDropDownEx::mousePressEvent(QMouseEvent *event)
{
    ZEL_LOG_SCOPE;
    if (event->button() == Qt::RightButton) {
        event->ignore();
    } else {
        prepareList(); // here too: the middle button opens no list, and yet brings the short one
        QComboBox::mousePressEvent(event);
    }
    Q_EMIT customClicked();
}

void CDropDownEx::mouseMoveEvent(QMouseEvent *)
{
    ZEL_LOG_SCOPE;
    setToolTip(currentText());
}

void CDropDownEx::setToolTipForItems()
{
    for (int i = 0; i < count(); ++i)
        setItemData(i, itemText(i), Qt::ToolTipRole);
}

void CDropDownEx::append(const QStringList &items)
{
    QComboBox::addItems(items);
    if (m_bToolTipsForItems)
        setToolTipForItems();
}

void CDropDownEx::prepareList()
{
    if (m_bHasMore)
        showShortList();
    allowScrollBar();
    limitListWidth(sizeHint().width());
}

void CDropDownEx::showShortList()
{
    const QSignalBlocker silent(this);
    // The item may have become current before the list had two stages, or without a signal.
    if (currentText() != tr("More..."))
        m_lastText = currentText();
    fill(QStringList());
    addItem(tr("More..."));
    setCurrentIndex(findText(m_lastText, Qt::MatchCaseSensitive));
}

void CDropDownEx::showLongList()
{
    const QSignalBlocker silent(this);
    setUpdatesEnabled(false);
    QStringList furtherItems = m_furtherItems;
    const int doubled = static_cast<int>(furtherItems.lastIndexOf(m_lastText)); // the one on top
    if (doubled >= 0)
        furtherItems.removeAt(doubled);
    fill(furtherItems);
    setCurrentIndex(std::max(0, findText(m_lastText, Qt::MatchCaseSensitive)));
    setUpdatesEnabled(true);
    // The box is not made for these texts.
    limitListWidth(std::max(sizeHint().width(), widthOfItems()));
    QComboBox::showPopup();
}

// The main items, below the current item if that is none of them, and above the further ones.
void CDropDownEx::fill(const QStringList &furtherItems)
{
    QStringList items = m_mainItems + furtherItems;
    if (!m_lastText.isEmpty() && !m_mainItems.contains(m_lastText))
        items.prepend(m_lastText);
    clear();
    append(items);
}

// Qt takes the bar away where the list is made under a style with lists like menus; the style may be another one now.
void CDropDownEx::allowScrollBar()
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    if (style()->styleHint(QStyle::SH_ComboBox_Popup, &option, this) == 0)
        view()->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void CDropDownEx::limitListWidth(int width)
{
    const QWidget *area = parentWidget() != nullptr ? parentWidget() : this;
    const int right = area->screen()->availableGeometry().right() - screenMargin;
    const int room = right - mapToGlobal(QPoint(0, 0)).x();
    view()->setMinimumWidth(std::max(0, std::min(room, width)));
}

int CDropDownEx::widthOfItems() const
{
    const QScrollBar *bar = view()->verticalScrollBar();
    const int barWidth = bar != nullptr && count() > maxVisibleItems() ? bar->sizeHint().width() : 0;
    return view()->sizeHintForColumn(modelColumn()) + barWidth;
}
