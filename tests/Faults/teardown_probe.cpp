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
#include <QMap>
#include <QPointer>
#include <QStyleFactory>
#include <QTextStream>
#include <QTimer>
#include <QVBoxLayout>

#include <cstdlib>
#include <functional>

namespace {

QPointer<QApplication> application;
QPointer<QWidget> window;

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
    box->showDialog();
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

bool isSomethingOpen()
{
    const auto *bar = window->findChild<CProgressBarDialogEx *>(); // a part of the window
    return QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr ||
           (bar != nullptr && bar->isVisible());
}

void quitSoon()
{
    QTimer::singleShot(100, application, &QCoreApplication::quit);
}

void replaceStyle()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    quitSoon();
}

void replaceStyleByBlue()
{
    CC4StyleFactory::getStyle(CC4StyleFactory::BlueScrollStyle);
    quitSoon();
}

void changeAllElse()
{
    application->setStyleSheet(QStringLiteral("* { color: red }"));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 20));
    QApplication::setLayoutDirection(Qt::RightToLeft);
    quitSoon();
}

void deleteWindow()
{
    delete window;
    quitSoon();
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
        QTextStream(stdout) << (isSomethingOpen() ? "open" : "nothing open") << '\n';
        end();
    });
    const int status = QApplication::exec();
    // With the window and all that is open in it: no widget of Qt may be destroyed without an application.
    delete application;
    QTextStream(stdout) << "ended\n";
    return status;
}
