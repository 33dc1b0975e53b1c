#include "TextBoxEx/TextBoxEx.h"

#include "CC4Styles/CC4StyleFactory.h"
#include "UiGraphics.h"
#include "include/qt_globals.h"

#include <QFocusEvent>
#include <QPointer>

namespace {

constexpr int fontPixels = 13;
constexpr int greatestHeight = 20;
constexpr int disabledAlpha = 100;

} // namespace

CTextBoxEx::CTextBoxEx(QWidget *parent) : QLineEdit(parent)
{
    ZEL_LOG_SCOPE;
    setMouseTracking(true);
    setReadOnly(false);
    setFont(UIGGetFont(fontPixels, -1, false));
    if (QStyle *houseStyle = CC4StyleFactory::getStyle(CC4StyleFactory::CC4Style))
        setStyle(houseStyle);
    else
        ZEL_LOG(zel::LogDetail, zel::CommonControls, QStringLiteral("CTextBoxEx::Style is NULL"));
    setLineEditColor(LineEditBlue);
    setContextMenuPolicy(Qt::NoContextMenu);
    setMaximumHeight(greatestHeight);
}

CTextBoxEx::~CTextBoxEx()
{
    ZEL_LOG_SCOPE;
    CC4StyleFactory::releaseStyle(CC4StyleFactory::CC4Style);
}

void CTextBoxEx::setLineEditStyle(CLineEditStyles style)
{
    ZEL_LOG_SCOPE;
    m_lineEditStyle = style;
    setLineEditColor(style == LineEditTransparent ? LineEditBlue : LineEditGray);
    update();
}

void CTextBoxEx::setLineEditColor(CLineEditColor color)
{
    ZEL_LOG_SCOPE;
    m_lineEditColor = color;
    const QColor gray = UIGGetColor(QStringLiteral("UIGCLR_IMPUI_GRAYTITLE"));
    QColor faded = gray;
    faded.setAlpha(disabledAlpha);

    QPalette colors = palette();
    if (color == LineEditBlue)
        colors.setColor(QPalette::Active, QPalette::Text, UIGGetColor(QStringLiteral("UIGCLR_IMPUI_BLUTITLE")));
    else if (color == LineEditGray)
        colors.setColor(QPalette::Active, QPalette::Text, gray);
    colors.setColor(QPalette::Inactive, QPalette::Text, gray);
    colors.setColor(QPalette::Disabled, QPalette::Text, faded);
    setPalette(colors);
    update();
}

void CTextBoxEx::enterEvent(zel::EnterEvent *event)
{
    ZEL_LOG_SCOPE;
    m_bMouseOver = true;
    update();
    QWidget::enterEvent(event);
}

void CTextBoxEx::leaveEvent(QEvent *event)
{
    ZEL_LOG_SCOPE;
    m_bMouseOver = false;
    update();
    QWidget::leaveEvent(event);
}

void CTextBoxEx::focusInEvent(QFocusEvent *event)
{
    ZEL_LOG_SCOPE;
    m_bFocussed = true;
    update();
    QLineEdit::focusInEvent(event);
    Q_EMIT focusIn();
}

void CTextBoxEx::focusOutEvent(QFocusEvent *event)
{
    ZEL_LOG_SCOPE;
    m_bFocussed = false;
    update();
    const QPointer<CTextBoxEx> self(this); // who is told that editing is finished may destroy the text box
    QLineEdit::focusOutEvent(event);
    if (!self.isNull())
        Q_EMIT focusOut();
}
