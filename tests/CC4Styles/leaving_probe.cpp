// Opens a window, a menu and a tool tip, and leaves the application with all of them open.
#include "ButtonEx/ButtonEx.h"
#include "TextBoxEx/TextBoxEx.h"

#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QSpinBox>
#include <QTimer>
#include <QToolTip>
#include <QVBoxLayout>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *button = new CButtonEx(&window);
    button->setDefault(true); // pulses
    layout->addWidget(button);
    layout->addWidget(new CTextBoxEx(&window));
    layout->addWidget(new QComboBox);
    layout->addWidget(new QSpinBox);
    window.show();
    QMenu menu;
    menu.addAction(QStringLiteral("Entry"));
    menu.popup(window.mapToGlobal(QPoint(5, 5)));
    QToolTip::showText(window.mapToGlobal(QPoint(5, 5)), QStringLiteral("Tip"), &window);
    QTimer::singleShot(300, &application, [&] { QApplication::exit(menu.isVisible() && window.isVisible() ? 0 : 1); });
    return QApplication::exec();
}
