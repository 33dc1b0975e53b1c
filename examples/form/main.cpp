#include "ui_PrintDialog.h"

#include <QApplication>
#include <QDialog>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QDialog dialog;
    Ui::PrintDialog form;
    form.setupUi(&dialog);
    return dialog.exec();
}
