#include "RadioButtonEx/RadioButtonEx.h"

#include "LabelEx/SeparateLabel.h"
#include "include/qt_globals.h"

namespace {
constexpr int extraHeight = 8; // the indicator is higher than a line of a small font
} // namespace

CRadioButtonEx::CRadioButtonEx(QWidget *parent) : QRadioButton(parent)
{
    ZEL_LOG_SCOPE;
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
}

CRadioButtonEx::CRadioButtonEx(const QString &text, QWidget *parent) : QRadioButton(text, parent)
{
    ZEL_LOG_SCOPE;
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
}

CRadioButtonEx::CRadioButtonEx(const QString &text, QWidget *parent, int width) : QRadioButton(parent)
{
    ZEL_LOG_SCOPE;
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    m_pSeparateLabel = std::make_unique<SeparateLabel>(this, text, width);
    const int height = m_pSeparateLabel->heightForWidth();
    m_pSeparateLabel->addToLayout(qMax(QRadioButton::sizeHint().height(), height));
    connect(m_pSeparateLabel->label(), &CLabelEx::clicked2, this, &CRadioButtonEx::labelClicked);
    setFixedHeight(height);
}

CRadioButtonEx::~CRadioButtonEx()
{
    ZEL_LOG_SCOPE;
    if (m_pSeparateLabel != nullptr)
        m_pSeparateLabel->remove();
}

void CRadioButtonEx::setFixedHeight(int height)
{
    ZEL_LOG_SCOPE;
    if (m_pSeparateLabel != nullptr)
        m_pSeparateLabel->setFixedHeight(height);
    QWidget::setFixedHeight(height);
}

void CRadioButtonEx::setFixedLabelWidth(int width)
{
    ZEL_LOG_SCOPE;
    if (m_pSeparateLabel == nullptr || m_pSeparateLabel->label() == nullptr)
        return;
    m_pSeparateLabel->setFixedWidth(width);
    setFixedHeight(m_pSeparateLabel->textHeight() + extraHeight);
}

void CRadioButtonEx::setLabelPalette(const QPalette &palette)
{
    ZEL_LOG_SCOPE;
    if (m_pSeparateLabel != nullptr)
        m_pSeparateLabel->setPalette(palette);
}

void CRadioButtonEx::setLabelFont(const QFont &font)
{
    ZEL_LOG_SCOPE;
    if (m_pSeparateLabel != nullptr)
        m_pSeparateLabel->setFont(font);
}

void CRadioButtonEx::labelClicked(QWidget *)
{
    ZEL_LOG_SCOPE;
    if (m_pSeparateLabel != nullptr)
        setChecked(!isChecked());
}

// Without the base's handling, which would take the other buttons of an exclusive group out of the tab order.
void CRadioButtonEx::focusInEvent(QFocusEvent *)
{
    ZEL_LOG_SCOPE;
    update();
}

void CRadioButtonEx::focusOutEvent(QFocusEvent *)
{
    ZEL_LOG_SCOPE;
    update();
}

void CRadioButtonEx::enterEvent(zel::EnterEvent *)
{
    ZEL_LOG_SCOPE;
    update();
}

void CRadioButtonEx::leaveEvent(QEvent *)
{
    ZEL_LOG_SCOPE;
    update();
}
