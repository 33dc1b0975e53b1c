#include <ZelCmnCtrl03/CButtonEx>

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    CButtonEx button;
    button.setText(QStringLiteral("Print"));
    QObject::connect(&button, &CButtonEx::clicked2, &application, &QApplication::quit);
    button.show();
    return QApplication::exec();
}
