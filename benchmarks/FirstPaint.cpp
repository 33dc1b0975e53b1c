// A process that shows a form under one style, and says what it took: CPU time from its start to the first painting in
// nanoseconds, and its memory then in KiB. Built with the house style and, for the others, without our libraries.
#include "Clocks.h"
#include "WidgetKinds.h"

#ifdef ZEL_BENCH_HOUSE
#include <CC4Styles/CC4StyleFactory.h>
#endif

#include <QApplication>
#include <QPaintEvent>
#include <QTextStream>

#include <cstdlib>

namespace {

/** Tells when the first painting of the form, with all that is in it, is over, and ends without tidying up. */
class Stopwatch : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            QMetaObject::invokeMethod(this, &Stopwatch::tell, Qt::QueuedConnection);
        return false;
    }

private:
    void tell()
    {
        const double taken = processNanoseconds();
        QTextStream(stdout) << qint64(taken) << ' ' << residentKibibytes() << Qt::endl;
        std::_Exit(0);
    }
};

} // namespace

int main(int argc, char *argv[])
{
#ifdef ZEL_BENCH_HOUSE
    QApplication application(argc, argv);
    CC4StyleFactory::getStyle(CC4StyleFactory::CC4Style);
#else
    if (argc > 1 && QApplication::setStyle(QString::fromLocal8Bit(argv[1])) == nullptr)
        return 1; // Qt would take another one
    QApplication application(argc, argv);
#endif
    const std::unique_ptr<QWidget> form = makeForm();
    form->resize(800, 400);
    Stopwatch stopwatch;
    form->installEventFilter(&stopwatch);
    form->show();
    return QApplication::exec();
}
