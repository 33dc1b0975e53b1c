#include "CheckBoxEx/CheckBoxEx.h"

#include "LabelEx/SeparateLabel.h"
#include "include/qt_globals.h"

CCheckBoxEx::CCheckBoxEx(QWidget *parent) : QCheckBox(parent)
{
    ZEL_LOG_SCOPE;
    setMouseTracking(true);
}

CCheckBoxEx::CCheckBoxEx(const QString &text, QWidget *parent) : QCheckBox(text, parent)
{
    ZEL_LOG_SCOPE;
    setMouseTracking(true);
}

CCheckBoxEx::CCheckBoxEx(const QString &text, QWidget *parent, int width) : QCheckBox(parent)
{
    ZEL_LOG_SCOPE;
    setMouseTracking(true);
    m_pSeparateLabel = std::make_unique<SeparateLabel>(this, text, width);
    const int height = m_pSeparateLabel->heightForWidth();
    m_pSeparateLabel->addToLayout(height);
    connect(m_pSeparateLabel->label(), &CLabelEx::clicked2, this, &CCheckBoxEx::labelClicked);
    setFixedHeight(height);
}

CCheckBoxEx::~CCheckBoxEx()
{
    ZEL_LOG_SCOPE;
    if (m_pSeparateLabel == nullptr)
        return;
    try {
        m_pSeparateLabel->remove();
    } catch (...) {
        zel::logError(QStringLiteral("Failed to clean resources in ~CCheckBoxEx"));
    }
}

void CCheckBoxEx::setFixedHeight(int height)
{
    ZEL_LOG_SCOPE;
    if (m_pSeparateLabel != nullptr)
        m_pSeparateLabel->setFixedHeight(height);
    QWidget::setFixedHeight(height);
}

void CCheckBoxEx::setFixedLabelWidth(int width)
{
    ZEL_LOG_SCOPE;
    if (m_pSeparateLabel == nullptr || m_pSeparateLabel->label() == nullptr)
        return;
    m_pSeparateLabel->setFixedWidth(width);
    setFixedHeight(m_pSeparateLabel->textHeight());
}

void CCheckBoxEx::setLabelPalette(const QPalette &palette)
{
    ZEL_LOG_SCOPE;
    if (m_pSeparateLabel != nullptr)
        m_pSeparateLabel->setPalette(palette);
}

void CCheckBoxEx::setLabelFont(const QFont &font)
{
    ZEL_LOG_SCOPE;
    if (m_pSeparateLabel != nullptr)
        m_pSeparateLabel->setFont(font);
}

void CCheckBoxEx::labelClicked(QWidget *)
{
    ZEL_LOG_SCOPE;
    if (m_pSeparateLabel != nullptr)
        setChecked(!isChecked());
}

void CCheckBoxEx::enterEvent(zel::EnterEvent *)
{
    ZEL_LOG_SCOPE;
    update();
}

void CCheckBoxEx::leaveEvent(QEvent *)
{
    ZEL_LOG_SCOPE;
    update();
}
