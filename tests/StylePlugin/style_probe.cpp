// An application of somebody else's: it links Qt alone. With an argument it takes the style of that name by itself.
#include "LookReport.h"

#include <QApplication>
#include <QStyleFactory>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() > 1)
        QApplication::setStyle(QStyleFactory::create(arguments.at(1)));
    QTextStream(stdout) << lookReport();
    return 0;
}
