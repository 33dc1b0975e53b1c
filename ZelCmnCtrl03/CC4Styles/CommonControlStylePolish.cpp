// What a widget gets when the style takes it over.
#include "CC4Styles/CommonControlStyle.h"

#include "ButtonEx/ButtonEx.h"
#include "CC4Styles/ButtonText.h"
#include "TextBoxEx/TextBoxEx.h"
#include "UiGraphics.h"

#include <QComboBox>
#include <QLinearGradient>
#include <QMenu>
#include <QScrollBar>
#include <QSpinBox>

namespace {

bool showsHover(const QWidget *widget)
{
    return qobject_cast<const QPushButton *>(widget) != nullptr || qobject_cast<const QComboBox *>(widget) != nullptr;
}

void polishPushButton(QPushButton *button)
{
    QPalette palette = button->palette();
    if (const auto *houseButton = qobject_cast<const CButtonEx *>(button))
        ButtonText::setColors(palette, houseButton);
    button->setPalette(palette);
}

// See-through behind its text: the field is the painters' business.
void polishTextBox(CTextBoxEx *textBox)
{
    QColor clear = UIGGetColor(QStringLiteral("UIGCLR_WHITE"));
    clear.setAlpha(0);
    QPalette palette = textBox->palette();
    palette.setBrush(QPalette::Base, clear);
    textBox->setPalette(palette);
}

void polishMenu(QMenu *menu)
{
    menu->adjustSize();
    QLinearGradient gradient(0, 0, menu->width(), menu->height());
    gradient.setColorAt(0, UIGGetColor(QStringLiteral("UIGCLR_MENU_GRADIENT_TOP")));
    gradient.setColorAt(1, UIGGetColor(QStringLiteral("UIGCLR_MENU_GRADIENT_END")));
    QPalette palette = menu->palette();
    palette.setBrush(QPalette::Window, gradient);
    menu->setPalette(palette);
}

void polishSpinBox(QSpinBox *spinBox)
{
    QPalette palette = spinBox->palette();
    palette.setBrush(QPalette::Active, QPalette::Text, UIGGetColor(QStringLiteral("UIGCLR_IMPUI_BLUTITLE")));
    palette.setBrush(QPalette::Inactive, QPalette::Text, UIGGetColor(QStringLiteral("UIGCLR_IMPUI_GRAYTITLE")));
    spinBox->setPalette(palette);
    spinBox->setContextMenuPolicy(Qt::NoContextMenu);
    spinBox->setFont(UIGGetFont(12, 50, false));
}

} // namespace

// The base's own polishing is left out on purpose: this look has none of the effects that it prepares.
void CCommonControlStyle::polish(QWidget *widget)
{
    if (showsHover(widget))
        widget->setAttribute(Qt::WA_Hover);
    if (auto *button = qobject_cast<QPushButton *>(widget))
        polishPushButton(button);
    if (auto *textBox = qobject_cast<CTextBoxEx *>(widget))
        polishTextBox(textBox);
    if (auto *menu = qobject_cast<QMenu *>(widget))
        polishMenu(menu);
    if (auto *spinBox = qobject_cast<QSpinBox *>(widget))
        polishSpinBox(spinBox);
    if (qobject_cast<QScrollBar *>(widget) != nullptr)
        widget->setContextMenuPolicy(Qt::NoContextMenu);
}

void CCommonControlStyle::unpolish(QWidget *widget)
{
    if (showsHover(widget))
        widget->setAttribute(Qt::WA_Hover, false);
}
