#include <ZelCmnCtrl03/CButtonEx>
#include <ZelCmnCtrl03/CMessageBoxEx>
#include <ZelCmnCtrl03/InterfaceLocale>

#include <QApplication>
#include <QTranslator>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);

    // The texts of the library, such as "OK": those of the user's language, or English.
    QTranslator texts;
    const QString directory = QCoreApplication::applicationDirPath() + "/../share/zelcmnctrl03/translations";
    if (!texts.load(zel::interfaceLocale(), "zelcmnctrl03", "_", directory) &&
        !texts.load("zelcmnctrl03_en", directory))
        qWarning("No texts in %s", qPrintable(directory));
    QCoreApplication::installTranslator(&texts);

    CButtonEx button;
    button.setText("Print");
    QObject::connect(&button, &CButtonEx::clicked2, &application, [](CButtonEx *sender) {
        const int answer = CMessageBoxEx::information(sender, "Print", "Print 12 photos?", "They go to the shop.", "",
                                                      QMessageBox::Ok, QMessageBox::Cancel);
        if (answer == QMessageBox::Ok)
            QApplication::quit();
    });
    button.show();
    return QApplication::exec();
}
