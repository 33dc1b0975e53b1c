// The buttons of a message box: what the specifiers say, and which widget stands for which.
#include "MessageBoxEx/MessageBoxEx.h"

#include "ButtonEx/ButtonEx.h"
#include "MessageBoxEx/MessageBoxEx_p.h"
#include "UiGraphics.h"
#include "include/qt_globals.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFrame>
#include <QHBoxLayout>
#include <QResizeEvent>

#include <algorithm>

namespace {

struct StandardText
{
    CC4_MESSAGEBOXEX_BUTTONS button;
    QMessageBox::StandardButton standard;
    const char *key; // of the translation: no text for users
};

constexpr StandardText standardTexts[] = {
    {CC4_MESSAGEBOXEX_OK, QMessageBox::Ok, QT_TRANSLATE_NOOP("CMessageBoxEx", "m_tr_OK")},
    {CC4_MESSAGEBOXEX_CANCEL, QMessageBox::Cancel, QT_TRANSLATE_NOOP("CMessageBoxEx", "m_tr_Cancel")},
    {CC4_MESSAGEBOXEX_YES, QMessageBox::Yes, QT_TRANSLATE_NOOP("CMessageBoxEx", "m_tr_Yes")},
    {CC4_MESSAGEBOXEX_NO, QMessageBox::No, QT_TRANSLATE_NOOP("CMessageBoxEx", "m_tr_No")},
    {CC4_MESSAGEBOXEX_ABORT, QMessageBox::Abort, QT_TRANSLATE_NOOP("CMessageBoxEx", "m_tr_Abort")},
    {CC4_MESSAGEBOXEX_RETRY, QMessageBox::Retry, QT_TRANSLATE_NOOP("CMessageBoxEx", "m_tr_Retry")},
    {CC4_MESSAGEBOXEX_IGNORE, QMessageBox::Ignore, QT_TRANSLATE_NOOP("CMessageBoxEx", "m_tr_Ignore")},
    {CC4_MESSAGEBOXEX_YESTOALL, QMessageBox::YesToAll, QT_TRANSLATE_NOOP("CMessageBoxEx", "m_tr_YestoAll")},
    {CC4_MESSAGEBOXEX_NOTOALL, QMessageBox::NoToAll, QT_TRANSLATE_NOOP("CMessageBoxEx", "m_tr_NotoAll")},
};

constexpr int buttonCount = 3;
constexpr int noIndex = -1;
constexpr int defaultFlag = QMessageBox::Default;
constexpr int escapeFlag = QMessageBox::Escape;
constexpr int edgePenWidth = 2;
constexpr int widthForThreeButtons = 440;
constexpr int widthForFewerButtons = 390;

QPen edgePen(const QString &colorKey)
{
    return QPen(UIGGetColor(colorKey), edgePenWidth);
}

// A CButtonEx takes its width from its text when it is resized, and while hidden that waits until it is shown. The box
// sizes itself before, and a long label must not be cut.
void settleWidth(CButtonEx *button)
{
    QResizeEvent event(button->size(), button->size());
    QCoreApplication::sendEvent(button, &event);
}

} // namespace

void CMessageBoxEx::setButtonTexts()
{
    ZEL_LOG_SCOPE;
    m_buttonTexts.fill(QString());
    for (const StandardText &text : standardTexts)
        m_buttonTexts[text.button] = tr(text.key);
}

void CMessageBoxEx::initialize(int button0, int button1, int button2)
{
    ZEL_LOG_SCOPE;
    m_minWidth3 = widthForThreeButtons;
    m_minWidth2 = widthForFewerButtons;
    m_minWidth1 = widthForFewerButtons;
    m_buttons = {button0, button1, button2};
    if ((button2 != 0 && button1 == 0) || (button1 != 0 && button0 == 0)) {
        qWarning("QMessageBox: Inconsistent button parameters");
        m_buttons.fill(0);
    }
    readSpecifiers();
    if (m_numButtons == 0)
        fallBackToOk();
    for (int index = 0; index < buttonCount; ++index)
        bindButton(index);
    m_borderPen = edgePen(QStringLiteral("UIGCLR_TOOLBAR_PEN_BORDER_LINE"));
    m_rightPen = edgePen(QStringLiteral("UIGCLR_VACSCR_RGTLINEPEN"));
    m_leftPen = edgePen(QStringLiteral("UIGCLR_VACSCR_LFTLINEPEN"));
}

void CMessageBoxEx::readSpecifiers()
{
    m_defaultButton = noIndex;
    m_escapeButton = noIndex;
    m_numButtons = 0;
    for (int index = 0; index < buttonCount; ++index) {
        const int given = m_buttons[index];
        if ((given & defaultFlag) != 0)
            m_defaultButton = index;
        if ((given & escapeFlag) != 0)
            m_escapeButton = index;
        m_popupButtons[index] = (given & popupButton) != 0 ? index : noIndex;
        m_buttons[index] = given & ~(defaultFlag | escapeFlag);
        m_buttons[index] = checkedSpecifier(index);
        m_numButtons += m_buttons[index] != 0 ? 1 : 0;
    }
    if (m_defaultButton == noIndex && m_escapeButton == noIndex)
        m_defaultButton = 0;
}

int CMessageBoxEx::checkedSpecifier(int index) const
{
    const int specifier = m_buttons[index];
    if (specifier == 0)
        return index == 0 ? QMessageBox::Ok : 0;
    if (specifier < 0 || specifier > QMessageBox::LastButton) {
        qWarning("QMessageBox: Invalid button specifier");
        return 0;
    }
    if (index > 0 && m_buttons[index - 1] == 0) {
        qWarning("QMessageBox: Inconsistent button parameters; button %d defined but not button %d", index + 1, index);
        return 0;
    }
    return specifier;
}

// The first specifier was no button: whatever else went wrong, the user can end the box.
void CMessageBoxEx::fallBackToOk()
{
    m_buttons = {QMessageBox::Ok, 0, 0};
    m_popupButtons.fill(noIndex);
    m_numButtons = 1;
    m_defaultButton = 0;
    m_escapeButton = noIndex;
}

void CMessageBoxEx::bindButton(int index)
{
    if (index >= m_numButtons) {
        m_pButtons[index] = nullptr;
        return;
    }
    CButtonEx *button = getButton(index);
    m_pButtons[index] = button;
    qDebug() << "Value of m_pButtons[" << index << "] is" << button;
    qDebug() << "Value of m_buttons[" << index << "] is" << m_buttons[index];
    button->setText(m_buttonTexts[convertStdButton2Enum(static_cast<QMessageBox::StandardButton>(m_buttons[index]))]);
    settleWidth(button);
    if (index == m_defaultButton) {
        button->setButtonStyle(CButtonEx::BSEX_Active);
        button->setDefault(true);
        button->setFocus();
    }
    button->setAutoDefault(true);
    button->setFocusPolicy(Qt::StrongFocus);
    connect(button, &QAbstractButton::clicked, this, &CMessageBoxEx::buttonClicked);
}

// The row is right-aligned: what the count leaves over goes from its left.
CButtonEx *CMessageBoxEx::getButton(int index)
{
    ZEL_LOG_SCOPE;
    const std::array<CButtonEx *, buttonCount> all{m_pLeftButton, m_pMiddleButton, m_pRightButton};
    d->m_pButton = nullptr;
    if (m_numButtons == 0)
        return d->m_pButton;
    const int leftOver = buttonCount - m_numButtons;
    for (int i = 0; i < leftOver; ++i) {
        m_pButtonRow->removeWidget(all[i]);
        all[i]->setVisible(false);
    }
    if (index < m_numButtons)
        d->m_pButton = all[leftOver + index];
    return d->m_pButton;
}

CButtonEx *CMessageBoxEx::buttonWithSpecifier(int specifier) const
{
    const auto end = m_buttons.begin() + m_numButtons;
    const auto found = std::find(m_buttons.begin(), end, specifier);
    return found != end ? m_pButtons[found - m_buttons.begin()] : nullptr;
}

void CMessageBoxEx::setButtonText(int button, const QString &text)
{
    ZEL_LOG_SCOPE;
    CButtonEx *widget = buttonWithSpecifier(button);
    if (widget == nullptr)
        return;
    widget->setText(text);
    settleWidth(widget);
}

void CMessageBoxEx::setButtonEnabled(int button, bool enabled)
{
    ZEL_LOG_SCOPE;
    if (CButtonEx *widget = buttonWithSpecifier(button))
        widget->setEnabled(enabled);
}

void CMessageBoxEx::setNoButton(bool noButton)
{
    ZEL_LOG_SCOPE;
    m_bNoButton = noButton;
    m_pButtonFrame->setVisible(!noButton);
    for (int index = 0; index < buttonCount; ++index) {
        CButtonEx *button = getButton(index);
        if (button == nullptr)
            continue;
        disconnect(button, &QAbstractButton::clicked, this, &CMessageBoxEx::buttonClicked);
        if (!noButton)
            connect(button, &QAbstractButton::clicked, this, &CMessageBoxEx::buttonClicked);
    }
    applySize();
}

CC4_MESSAGEBOXEX_BUTTONS CMessageBoxEx::convertStdButton2Enum(QMessageBox::StandardButton button) const
{
    const auto *found = std::find_if(std::begin(standardTexts), std::end(standardTexts),
                                     [button](const StandardText &text) { return text.standard == button; });
    const CC4_MESSAGEBOXEX_BUTTONS converted = found != std::end(standardTexts) ? found->button : CC4_MESSAGEBOXEX_NONE;
    qDebug("convertStdButton2Enum returns %d", converted);
    return converted;
}

QMessageBox::StandardButton CMessageBoxEx::convertEnum2StdButton(CC4_MESSAGEBOXEX_BUTTONS button) const
{
    const auto *found = std::find_if(std::begin(standardTexts), std::end(standardTexts),
                                     [button](const StandardText &text) { return text.button == button; });
    const auto converted = found != std::end(standardTexts) ? found->standard : QMessageBox::NoButton;
    qDebug("convertEnum2StdButton returns %d", converted);
    return converted;
}
