#include "MessageBoxEx/TitleBar/TitleBar.h"

#include "CC4Styles/PaintTools.h"
#include "MessageBoxEx/TitleBar/CustomIconButtons.h"
#include "Platform/Platform.h"
#include "UiGraphics.h"
#include "include/accessible_factory.h"
#include "include/qt_globals.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLinearGradient>
#include <QMetaMethod>
#include <QPainter>

namespace {

constexpr int fontPixels = 14;
constexpr int buttonStretch = 5;
constexpr int captionReserve = 3; // widths of a button beside the caption

QFont captionFont()
{
    return UIGGetFont(fontPixels, -1, false);
}

QPen penOf(const char *colorKey)
{
    return QPen(QBrush(UIGGetColor(QLatin1String(colorKey))), 1.0);
}

QAccessibleInterface *accessibleTitleBar(const QString &className, QObject *object)
{
    Q_UNUSED(className)
    auto *bar = qobject_cast<CTitleBar *>(object);
    return bar != nullptr ? new QAccessibleWidget(bar, QAccessible::TitleBar) : nullptr;
}

} // namespace

CTitleBar::CTitleBar(QWidget *parent) : QWidget(parent)
{
    ZEL_LOG_SCOPE;
    zel::installAccessible(accessibleTitleBar, this);
    fillBackground();
    setFont(captionFont());
    makePens();
    loadPixmaps();
    addButtons();
    translateNames();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    if (parent != nullptr)
        connectButtons(parent);
}

CTitleBar::~CTitleBar()
{
    ZEL_LOG_SCOPE;
}

// Over the height of a new child widget, which is 30 pixels: as high as a message box lets its bar be.
void CTitleBar::fillBackground()
{
    QLinearGradient gradient(rect().left(), rect().top(), rect().left(), rect().bottom());
    gradient.setColorAt(0.0, UIGGetColor(QStringLiteral("UIGCLR_TITLEBAR_GRAD1")));
    gradient.setColorAt(1.0, UIGGetColor(QStringLiteral("UIGCLR_TITLEBAR_GRAD2")));
    QPalette gradientPalette;
    gradientPalette.setBrush(QPalette::Window, gradient);
    setPalette(gradientPalette);
    setBackgroundRole(QPalette::Window);
    setAutoFillBackground(true);
}

void CTitleBar::makePens()
{
    m_bottomPen = penOf("UIGCLR_TITLEBAR_PEN");
    m_captionPen = penOf("UIGCLR_MESSAGEBOXEX_HELP");
    m_edgePen1 = penOf("UIGCLR_TOOLBAR_PEN_BORDER_LINE");
    m_edgePen2 = penOf("UIGCLR_VACSCR_RGTLINEPEN");
    m_edgePen3 = penOf("UIGCLR_DARK_GRAY");
}

void CTitleBar::loadPixmaps()
{
    m_maximizePixmap = UIGGetPixmap(QStringLiteral("Maximize.png"), devicePixelRatioF());
    m_closePixmap = UIGGetPixmap(QStringLiteral("Close.png"), devicePixelRatioF());
    m_restorePixmap = UIGGetPixmap(QStringLiteral("restore.png"), devicePixelRatioF());
}

void CTitleBar::addButtons()
{
    m_pMinimize = new CCustomIconButtons(this);
    m_pMinimize->AddIcons(UIGGetPixmap(QStringLiteral("Minimize.png"), devicePixelRatioF()));
    m_pMaximize = new CCustomIconButtons(this);
    m_pMaximize->AddIcons(m_maximizePixmap);
    m_pClose = new CCustomIconButtons(this);
    m_pClose->AddIcons(m_closePixmap);

    m_pLayout = new QHBoxLayout(this);
    // The usual margins above and below would leave 12 of 30 pixels and push the buttons out of the middle.
    const QMargins margins = m_pLayout->contentsMargins();
    m_pLayout->setContentsMargins(margins.left(), 0, margins.right(), 0);
    m_pLayout->addStretch(buttonStretch);
    for (CCustomIconButtons *button : {m_pMinimize, m_pMaximize, m_pClose})
        m_pLayout->addWidget(button);
}

void CTitleBar::connectButtons(QWidget *box)
{
    connect(m_pMinimize, &CCustomIconButtons::customClicked, this, &CTitleBar::on_but_minimize_clicked);
    connect(m_pMaximize, &CCustomIconButtons::customClicked, this, &CTitleBar::on_but_maximize_clicked);
    connect(m_pClose, &CCustomIconButtons::customClicked, box, &QWidget::close);
    // By name: the box includes its bar, not the other way round.
    const int slot = box->metaObject()->indexOfSlot("slot_close()");
    if (slot >= 0)
        connect(m_pClose, QMetaMethod::fromSignal(&CCustomIconButtons::customClicked), box,
                box->metaObject()->method(slot));
}

void CTitleBar::translateNames()
{
    m_pMinimize->setAccessibleName(tr("Minimize"));
    m_pMaximize->setAccessibleName(m_bMaximized ? tr("Restore") : tr("Maximize"));
    m_pClose->setAccessibleName(tr("Close"));
}

void CTitleBar::setCaption(const QString &caption)
{
    ZEL_LOG_SCOPE;
    m_sCaption = caption;
    setAccessibleName(caption);
    const int captionWidth = QFontMetrics(captionFont()).boundingRect(caption).width();
    const int needed = captionWidth + captionReserve * m_pMaximize->width();
    if (needed > width())
        setMinimumWidth(needed);
    update();
}

void CTitleBar::setTitleFlags(int flags)
{
    ZEL_LOG_SCOPE;
    ensurePolished();
    const int keptHeight = height();
    m_iTitleFlags = flags;
    m_pMinimize->setVisible((flags & MinimizeButton) != 0);
    m_pMaximize->setVisible((flags & MaximizeButton) != 0);
    m_pClose->setVisible((flags & CloseButton) != 0);
    setFixedHeight(keptHeight);
}

void CTitleBar::setDropShadow(bool shadow)
{
    ZEL_LOG_SCOPE;
    m_bHardEdge = !shadow;
    update();
}

void CTitleBar::changeCursorShape(bool on)
{
    ZEL_LOG_SCOPE;
    m_bResizeCursor = on;
}

void CTitleBar::on_but_minimize_clicked()
{
    ZEL_LOG_SCOPE;
    if (parentWidget() != nullptr)
        parentWidget()->showMinimized();
}

void CTitleBar::on_but_maximize_clicked()
{
    ZEL_LOG_SCOPE;
    if (parentWidget() == nullptr)
        return;
    if (m_bMaximized)
        restoreParent();
    else
        maximizeParent();
    translateNames();
    m_pMaximize->update();
}

void CTitleBar::maximizeParent()
{
    m_normalGeometry = parentWidget()->normalGeometry();
    parentWidget()->showMaximized();
    Platform::coverScreen(parentWidget());
    m_maximizedSize = parentWidget()->size();
    m_bMaximized = true;
    m_pMaximize->AddIcons(m_restorePixmap);
}

void CTitleBar::restoreParent()
{
    m_bMaximized = false;
    m_pMaximize->AddIcons(m_maximizePixmap);
    const bool wasMaximized = parentWidget()->isMaximized() || parentWidget()->size() == m_maximizedSize;
    parentWidget()->showNormal();
    // A window that the window manager leaves to itself has not been maximized by it, and is not restored by it.
    if (wasMaximized)
        parentWidget()->setGeometry(m_normalGeometry);
}

void CTitleBar::enterEvent(zel::EnterEvent *event)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(event)
    if (m_bResizeCursor)
        setCursor(Qt::SizeAllCursor);
}

void CTitleBar::changeEvent(QEvent *event)
{
    ZEL_LOG_SCOPE;
    if (event->type() == QEvent::LanguageChange)
        translateNames();
    QWidget::changeEvent(event);
}

void CTitleBar::paintEvent(QPaintEvent *event)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(event)
    QPainter painter(this);
    PaintTools::fillLine(&painter, rect().bottomLeft(), rect().bottomRight(), m_bottomPen.color());
    if (m_bHardEdge)
        drawHardEdge(&painter);
    painter.setPen(m_captionPen);
    painter.drawText(rect(), Qt::AlignCenter, m_sCaption);
}

void CTitleBar::drawHardEdge(QPainter *painter) const
{
    const QPen *const pens[] = {&m_edgePen3, &m_edgePen3, &m_edgePen3, &m_edgePen2, &m_edgePen1, &m_edgePen1};
    int x = rect().right();
    for (const QPen *pen : pens) {
        PaintTools::fillLine(painter, QPoint(x, rect().bottom()), QPoint(x, rect().top()), pen->color());
        --x;
    }
}
