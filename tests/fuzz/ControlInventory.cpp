#include "fuzz/ControlInventory.h"

#include "ButtonEx/ButtonEx.h"
#include "CheckBoxEx/CheckBoxEx.h"
#include "CustomIconButton/CustomIconButton.h"
#include "DropDownEx/DropDownEx.h"
#include "FrameEx/Frame.h"
#include "LabelEx/LabelEx.h"
#include "ListBoxEx/ListBoxEx.h"
#include "MenuEx/MenuEx.h"
#include "MessageBoxEx/MessageBoxEx.h"
#include "ProgressBarEx/ProgressBarDialogEx.h"
#include "ProgressBarEx/ProgressBarEx.h"
#include "ProgressDialogEx/ProgressDialogEx.h"
#include "RadioButtonEx/RadioButtonEx.h"
#include "RainbowProgressDialog/RainbowProgressDialog.h"
#include "SliderEx/DSliderEx.h"
#include "SliderEx/SliderEx.h"
#include "SliderEx/ZoomSlider.h"
#include "TextBoxEx/TextBoxEx.h"
#include "TextBrowserEx/TextBrowserEx.h"
#include "TitleButtonEx/TitleButton.h"

#include <QProgressBar>
#include <QScrollBar>
#include <QSpinBox>
#include <QTabBar>

namespace {

constexpr int standardButtons[] = {QMessageBox::Ok,       QMessageBox::Cancel,   QMessageBox::Yes,
                                   QMessageBox::No,       QMessageBox::Abort,    QMessageBox::Retry,
                                   QMessageBox::Ignore,   QMessageBox::YesToAll, QMessageBox::NoToAll,
                                   QMessageBox::NoButton, QMessageBox::Help,     -1};

int buttonSpecifier(FuzzBytes &bytes)
{
    const int button = bytes.of(standardButtons);
    const int flags = bytes.byte();
    int specifier = button;
    if ((flags & 1) != 0)
        specifier |= QMessageBox::Default;
    if ((flags & 2) != 0)
        specifier |= QMessageBox::Escape;
    if ((flags & 4) != 0)
        specifier |= CMessageBoxEx::popupButton;
    return specifier;
}

CMenuEx *menuWith(FuzzBytes &bytes, QWidget *parent)
{
    auto *menu = new CMenuEx(parent);
    for (const QString &text : bytes.texts())
        menu->addMenuItem(text)->setParent(menu); // it belongs to the caller
    return menu;
}

void callButton(CButtonEx &button, FuzzBytes &bytes)
{
    switch (bytes.below(7)) {
    case 0: button.setButtonStyle(static_cast<CButtonEx::CButtonStyles>(bytes.number())); return;
    case 1: button.setMenu(menuWith(bytes, &button)); return;
    case 2: button.setMenu(nullptr); return;
    case 3: button.setImage(bytes.pixmap()); return;
    case 4: button.setImage(bytes.text()); return;
    case 5: button.setDefault(bytes.flag()); return;
    default: button.setButtonStyle(CButtonEx::BSEX_Glowing); return;
    }
}

template <typename Button>
void callLabelled(Button &button, FuzzBytes &bytes)
{
    switch (bytes.below(5)) {
    case 0: button.setFixedHeight(bytes.length()); return;
    case 1: button.setFixedLabelWidth(bytes.flag() ? bytes.length() : -bytes.byte()); return;
    case 2: button.setLabelPalette(bytes.palette()); return;
    case 3: button.setLabelFont(bytes.font()); return;
    default: button.labelClicked(bytes.flag() ? &button : nullptr); return;
    }
}

template <typename Button>
Button *newLabelled(QWidget *parent, FuzzBytes &bytes)
{
    const QString text = bytes.text();
    return bytes.flag() ? new Button(text, parent) : new Button(text, parent, bytes.length());
}

void callDropDown(CDropDownEx &box, FuzzBytes &bytes)
{
    QStringList items = bytes.texts();
    switch (bytes.below(9)) {
    case 0: box.addItems(items); return;
    case 1: {
        QStringList more = bytes.texts();
        box.addMoreItems(items, more);
        return;
    }
    case 2: box.setEnabled(bytes.flag()); return;
    case 3: box.insertItem(bytes.number(), bytes.icon(), bytes.text()); return;
    case 4: box.removeItem(bytes.number()); return;
    case 5: box.showPopup(); return;
    case 6: box.hidePopup(); return;
    case 7: box.onIndexChanged(bytes.number()); return;
    default: box.setItemText(bytes.below(8), bytes.text()); return;
    }
}

void callListBox(CListBoxEx &list, FuzzBytes &bytes)
{
    switch (bytes.below(6)) {
    case 0: list.addRow(bytes.text(), bytes.text()); return;
    case 1: list.addItems(bytes.texts()); return;
    case 2: list.insertItem(bytes.number(), new QListWidgetItem(bytes.icon(), bytes.text())); return;
    case 3: delete list.takeItem(bytes.below(8)); return;
    case 4: list.setCurrentRow(bytes.number()); return;
    default: list.setSelectionMode(static_cast<QAbstractItemView::SelectionMode>(bytes.below(5))); return;
    }
}

void callLabel(CLabelEx &label, FuzzBytes &bytes)
{
    switch (bytes.below(5)) {
    case 0: label.setPixmap(bytes.pixmap()); return;
    case 1: label.setBuddy(bytes.flag() ? &label : label.parentWidget()); return;
    case 2: QObject::connect(&label, &CLabelEx::clicked, &label, &QWidget::hide); return;
    case 3: label.setTextInteractionFlags(Qt::TextInteractionFlags(bytes.below(32))); return;
    default: label.setText(bytes.text()); return;
    }
}

void callSlider(CSliderEx &slider, FuzzBytes &bytes)
{
    switch (bytes.below(5)) {
    case 0: slider.setKnobImage(bytes.text()); return;
    case 1: slider.setHandleRect(QRect(bytes.pointIn(slider.size()), bytes.size())); return;
    case 2: slider.setTickPosition(static_cast<QSlider::TickPosition>(bytes.below(4))); return;
    case 3: slider.setTickInterval(bytes.number()); return;
    default: {
        const int minimum = bytes.number();
        slider.setRange(minimum, bytes.number());
    }
    }
}

void callRangeSlider(CDSliderEx &slider, FuzzBytes &bytes)
{
    const int handle = bytes.below(4) - 1;
    slider.setSliderPosition(handle, bytes.number());
}

void callZoomSlider(CZoomSlider &slider, FuzzBytes &bytes)
{
    switch (bytes.below(6)) {
    case 0: slider.Initialize(); return;
    case 1: slider.setKnobImage(bytes.text()); return;
    case 2: slider.setSmallerButtonImage(bytes.pixmap()); return;
    case 3: slider.setLargerButtonImage(bytes.text()); return;
    case 4: slider.setZoomed(bytes.number()); return;
    default: {
        const auto position = static_cast<QSlider::TickPosition>(bytes.below(4));
        slider.setTicks(position, bytes.number());
    }
    }
}

void callTitleButton(CTitleButton &button, FuzzBytes &bytes)
{
    static QPixmap icon(12, 12);
    static QPixmap null;
    button.AddIcons(bytes.flag() ? (bytes.flag() ? &icon : &null) : nullptr);
}

void callMenu(CMenuEx &menu, FuzzBytes &bytes)
{
    const QIcon icon = bytes.icon();
    switch (bytes.below(9)) {
    case 0: menu.addMenuItem(bytes.text(), &icon)->setParent(&menu); return;
    case 1: menu.addMenu(menuWith(bytes, &menu)); return;
    case 2: menu.addMenu(bytes.text()); return;
    case 3: menu.popup(bytes.pointIn(QSize(800, 600))); return;
    case 4: menu.exec(bytes.pointIn(QSize(800, 600))); return;
    case 5: menu.addSeparator(); return;
    case 6: menu.setActiveAction(menu.actions().value(bytes.below(6))); return;
    case 7: menu.clear(); return;
    default: menu.cursorOnMenu(); return;
    }
}

void callMessageBox(CMessageBoxEx &box, FuzzBytes &bytes)
{
    switch (bytes.below(13)) {
    case 0: box.showDialog(); return;
    case 1: box.setButtonText(bytes.number(), bytes.text()); return;
    case 2: box.setButtonEnabled(buttonSpecifier(bytes), bytes.flag()); return;
    case 3: box.setDialogFlags(bytes.number()); return;
    case 4: box.setModal(bytes.flag()); return;
    case 5: box.setNoButton(bytes.flag()); return;
    case 6: box.setCheckBoxState(bytes.flag()); return;
    case 7: box.setResizeable(bytes.flag()); return;
    case 8: box.setAutoClose(bytes.number()); return;
    case 9: box.changeCursorShape(bytes.flag()); return;
    case 10: box.updateTitle(bytes.text()); return;
    case 11: box.updateDescription(bytes.text()); return;
    default: box.show(); return;
    }
}

QWidget *newMessageBox(QWidget *parent, FuzzBytes &bytes)
{
    const int kind = bytes.below(4);
    const QString title = bytes.text();
    const QString help = bytes.text();
    const int first = buttonSpecifier(bytes);
    const int second = buttonSpecifier(bytes);
    const int third = buttonSpecifier(bytes);
    const bool noShadow = bytes.flag();
    if (kind == 0) // the box gives its content back: it hangs on the window, like any application's
        return new CMessageBoxEx(parent, title, new QLabel(bytes.text(), parent), first, second, third, noShadow);
    if (kind == 1)
        return new CMessageBoxEx(parent, title, help, nullptr, first, second, third, noShadow);
    const QString subTitle = bytes.text();
    const QString description = bytes.text();
    if (kind == 2)
        return new CMessageBoxEx(parent, title, subTitle, description, help, first, second, third, noShadow);
    return new CMessageBoxEx(parent, title, subTitle, description, help, true, bytes.text(), first, second, third,
                             noShadow);
}

void callProgressPanel(CProgressBarDialogEx &panel, FuzzBytes &bytes)
{
    switch (bytes.below(4)) {
    case 0: panel.setLabel(bytes.text()); return;
    case 1: panel.setAutoClose(bytes.number()); return;
    case 2: panel.showDialog(bytes.flag()); return;
    default: panel.closeDialog(); return;
    }
}

void callProgressDialog(CProgressDialogEx &dialog, FuzzBytes &bytes)
{
    const int number = bytes.number();
    switch (bytes.below(6)) {
    case 0: dialog.setMinimum(number); return;
    case 1: dialog.setMaximum(number); return;
    case 2: dialog.setRange(number, bytes.number()); return;
    case 3: dialog.setValue(number); return;
    case 4: dialog.reset(); return;
    default: dialog.setText(bytes.text()); return;
    }
}

void callRainbowDialog(CRainbowProgressDialog &dialog, FuzzBytes &bytes)
{
    const int row = bytes.number();
    switch (bytes.below(4)) {
    case 0: dialog.setText(bytes.text(), row); return;
    case 1: dialog.clear(row); return;
    case 2: dialog.text(row); return;
    default: dialog.setTextAlignment(Qt::Alignment(bytes.byte()), row); return;
    }
}

template <typename Control>
void callNothing(Control &, FuzzBytes &)
{}

// The bar of tabs, and a range that has no end at its top: what only the style shows.
void callTabBar(QTabBar &bar, FuzzBytes &bytes)
{
    switch (bytes.below(4)) {
    case 0: bar.addTab(bytes.icon(), bytes.text()); return;
    case 1: bar.setShape(static_cast<QTabBar::Shape>(bytes.below(8))); return;
    case 2: bar.removeTab(bytes.below(4)); return;
    default: bar.setTabEnabled(bytes.below(4), bytes.flag()); return;
    }
}

template <typename Control>
QWidget *newControl(QWidget *parent, FuzzBytes &)
{
    return new Control(parent);
}

template <typename Control>
ControlKind kind(void (*call)(Control &, FuzzBytes &),
                 std::function<QWidget *(QWidget *, FuzzBytes &)> make = newControl<Control>)
{
    return {Control::staticMetaObject.className(), make,
            [call](QWidget *control, FuzzBytes &bytes) {
                call(static_cast<Control &>(*control), bytes);
            }};
}

} // namespace

// The corpus names a control by its place here: new ones come last.
const QVector<ControlKind> &controlInventory()
{
    static const QVector<ControlKind> kinds = {
        kind<CButtonEx>(callButton),
        kind<CCheckBoxEx>(callLabelled<CCheckBoxEx>, newLabelled<CCheckBoxEx>),
        kind<CRadioButtonEx>(callLabelled<CRadioButtonEx>, newLabelled<CRadioButtonEx>),
        kind<CTextBoxEx>(callNothing<CTextBoxEx>),
        kind<CDropDownEx>(callDropDown),
        kind<CListBoxEx>(callListBox),
        kind<CLabelEx>(callLabel),
        kind<CTextBrowserEx>(callNothing<CTextBrowserEx>),
        kind<CFrame>(callNothing<CFrame>),
        kind<CSliderEx>(callSlider),
        kind<CDSliderEx>(callRangeSlider),
        kind<CZoomSlider>(callZoomSlider),
        kind<CProgressBarEx>(callNothing<CProgressBarEx>),
        kind<CCustomIconButton>(callNothing<CCustomIconButton>),
        kind<CTitleButton>(callTitleButton),
        kind<CMenuEx>(callMenu, [](QWidget *parent, FuzzBytes &bytes) -> QWidget * { return menuWith(bytes, parent); }),
        kind<CMessageBoxEx>(callMessageBox, newMessageBox),
        kind<CProgressBarDialogEx>(callProgressPanel,
                                   [](QWidget *parent, FuzzBytes &bytes) -> QWidget * {
                                       return new CProgressBarDialogEx(bytes.text(), parent);
                                   }),
        kind<CProgressDialogEx>(callProgressDialog),
        kind<CRainbowProgressDialog>(callRainbowDialog),
        // Qt's own, in the house style.
        kind<QTabBar>(callTabBar),
        kind<QSpinBox>(callNothing<QSpinBox>),
        kind<QScrollBar>(callNothing<QScrollBar>),
        kind<QProgressBar>(callNothing<QProgressBar>),
    };
    return kinds;
}
