// Opens something that waits for the user, and pulls away under it what it stands on: teardown_probe WHAT END
#include "ButtonEx/ButtonEx.h"
#include "CC4Styles/CC4StyleFactory.h"
#include "DropDownEx/DropDownEx.h"
#include "MenuEx/MenuEx.h"
#include "MessageBoxEx/MessageBoxEx.h"
#include "ProgressBarEx/ProgressBarDialogEx.h"
#include "ProgressDialogEx/ProgressDialogEx.h"
#include "RainbowProgressDialog/RainbowProgressDialog.h"
#include "SliderEx/ZoomSlider.h"
#include "TextBoxEx/TextBoxEx.h"

#include <QApplication>
#include <QImage>
#include <QMap>
#include <QPointer>
#include <QStyleFactory>
#include <QTextStream>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdlib>
#include <functional>

namespace {

QPointer<QApplication> application;
QPointer<QWidget> window;

constexpr QPoint shadowFromCorner(11, 11);

void tell(const char *what)
{
    QTextStream(stdout) << what << '\n';
}

template <typename Control>
Control *addTo(QWidget *parent)
{
    auto *control = new Control(parent);
    parent->layout()->addWidget(control);
    return control;
}

void makeWindow()
{
    window = new QWidget;
    new QVBoxLayout(window);
    addTo<CButtonEx>(window)->setDefault(true); // pulses
    addTo<CTextBoxEx>(window);
    addTo<CZoomSlider>(window);
    addTo<CDropDownEx>(window)->addItems({QStringLiteral("10 x 15"), QStringLiteral("A4")});
    window->show();
    window->activateWindow();
}

void openMessageBox()
{
    CMessageBoxEx::information(window, QStringLiteral("Print"), QStringLiteral("Out of paper"));
}

// As an application may that wants to set up its box; the parent owns it.
void openOwnedMessageBox()
{
    auto *box =
        new CMessageBoxEx(window, QStringLiteral("Print"), QStringLiteral("Out of paper"), QString(), QString());
    box->setAutoClose(60);
    if (box->showDialog() != QDialog::Rejected)
        tell("answered");
}

void openMenu()
{
    auto *menu = new CMenuEx(window);
    menu->addMenuItem(QStringLiteral("Open"))->setParent(menu);
    menu->exec(QPoint(10, 10));
}

void openMenuOfButton()
{
    auto *menu = new CMenuEx(window);
    menu->addMenuItem(QStringLiteral("Open"))->setParent(menu);
    auto *button = window->findChild<CButtonEx *>();
    button->setButtonStyle(CButtonEx::BSEX_Glowing);
    button->setMenu(menu);
    QEnterEvent event(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QCoreApplication::sendEvent(button, &event);
}

void openList()
{
    window->findChild<CDropDownEx *>()->showPopup();
}

template <typename Dialog>
void openDialog()
{
    (new Dialog(window))->exec();
}

void openBar()
{
    (new CProgressBarDialogEx(QStringLiteral("Printing"), window))->showDialog(true);
}

const QMap<QString, std::function<void()>> openers{
    {QStringLiteral("box"), openMessageBox},
    {QStringLiteral("owned-box"), openOwnedMessageBox},
    {QStringLiteral("menu"), openMenu},
    {QStringLiteral("button-menu"), openMenuOfButton},
    {QStringLiteral("list"), openList},
    {QStringLiteral("progress"), openDialog<CProgressDialogEx>},
    {QStringLiteral("rainbow"), openDialog<CRainbowProgressDialog>},
    {QStringLiteral("bar"), openBar},
};

// What waits for the user; null where nothing does.
QWidget *whatIsOpen()
{
    if (QWidget *dialog = QApplication::activeModalWidget())
        return dialog;
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    auto *bar = window.isNull() ? nullptr : window->findChild<CProgressBarDialogEx *>(); // a part of the window
    return bar != nullptr && bar->isVisible() ? bar : nullptr;
}

void tellIfOpen()
{
    tell(whatIsOpen() != nullptr ? "open" : "nothing open");
}

void tellWhatIsLeft()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    const bool isSomeVisible =
        std::any_of(windows.begin(), windows.end(), [](const QWidget *left) { return left->isVisible(); });
    tell(isSomeVisible || whatIsOpen() != nullptr ? "something left" : "nothing left");
}

// Of what is open and all its parts, but for those that have a style of their own.
bool hasStyle(const QStyle *style)
{
    QWidget *open = whatIsOpen();
    if (open == nullptr || open->style() != style)
        return false;
    const QList<QWidget *> parts = open->findChildren<QWidget *>();
    return std::all_of(parts.begin(), parts.end(), [style](const QWidget *part) {
        return part->style() == style || part->testAttribute(Qt::WA_SetStyle);
    });
}

void tellLook(bool isNew)
{
    tell(isNew ? "new look" : "old look");
}

// Once what was changed has been painted.
template <typename Tell>
void quitSoon(Tell tellFirst)
{
    const auto end = [tellFirst] {
        tellFirst();
        QCoreApplication::quit();
    };
    QTimer::singleShot(100, application, end);
}

void tellStyleAndQuit(const QStyle *style)
{
    quitSoon([style] { tellLook(hasStyle(style)); });
}

void replaceStyle()
{
    QStyle *fusion = QStyleFactory::create(QStringLiteral("Fusion"));
    QApplication::setStyle(fusion);
    tellStyleAndQuit(fusion);
}

void replaceStyleByBlue()
{
    tellStyleAndQuit(CC4StyleFactory::getStyle(CC4StyleFactory::BlueScrollStyle));
}

constexpr int largeFont = 20; // points

bool hasNewSheetFontAndDirection()
{
    const QWidget *open = whatIsOpen();
    if (open == nullptr || !open->isRightToLeft() || open->palette().color(open->foregroundRole()) != Qt::red)
        return false;
    // All others have fonts of the house.
    return qobject_cast<const CMessageBoxEx *>(open) == nullptr || open->font().pointSize() == largeFont;
}

void changeAllElse()
{
    application->setStyleSheet(QStringLiteral("* { color: red }"));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), largeFont));
    QApplication::setLayoutDirection(Qt::RightToLeft);
    quitSoon([] { tellLook(hasNewSheetFontAndDirection()); });
}

void deleteWindow()
{
    QApplication::setQuitOnLastWindowClosed(false); // before all that went along has been told of
    delete window;
    quitSoon(tellWhatIsLeft);
}

// Of a message box: the corner behind its shadow, and the shadow.
void tellShadow()
{
    const QImage box = whatIsOpen()->grab().toImage();
    const QPoint corner = box.rect().bottomRight();
    for (const QPoint &point : {corner, corner - shadowFromCorner})
        QTextStream(stdout) << box.pixelColor(point).name(QColor::HexArgb) << '\n';
    QCoreApplication::quit();
}

const QMap<QString, std::function<void()>> ends{
    {QStringLiteral("quits"), &QCoreApplication::quit},
    {QStringLiteral("exits"),
     [] {
         std::exit(0);
     }},
    {QStringLiteral("style"), replaceStyle},
    {QStringLiteral("blue-style"), replaceStyleByBlue},
    {QStringLiteral("look"), changeAllElse},
    {QStringLiteral("window"), deleteWindow},
    {QStringLiteral("shadow"), tellShadow},
};

} // namespace

int main(int argc, char *argv[])
{
    application = new QApplication(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const auto open = openers.value(arguments.value(1));
    const auto end = ends.value(arguments.value(2));
    if (!open || !end)
        return EXIT_FAILURE;
    makeWindow();
    QTimer::singleShot(50, application, open);
    QTimer::singleShot(200, application, [&] {
        tellIfOpen();
        end();
    });
    const int status = QApplication::exec();
    // Takes the windows off the screen. The window and what is open in it stay as objects and are left alone: no widget
    // of Qt may be destroyed without an application.
    delete application;
    tell("ended");
    return status;
}
