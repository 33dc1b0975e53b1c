// An application that uses the library in the way that its first argument names: "look" asks for a control and bitmaps,
// "idle" for nothing, "none" has no application object, "core" one without a GUI. With "call" behind it, it prints what
// the call says.
#include "ButtonEx/ButtonEx.h"
#include "UiGraphics.h"
#include "include/SupportReport.h"

#include <QApplication>
#include <QTextStream>

namespace {

void print(bool wanted)
{
    if (wanted)
        QTextStream(stdout) << zel::supportReport();
}

void useLook()
{
    CButtonEx button;
    button.grab();
    for (const char *name : {"None.png", "None.png", "Broken.png"})
        UIGGetPixmap(QLatin1String(name));
}

} // namespace

int main(int argc, char *argv[])
{
    const QByteArray way(argc > 1 ? argv[1] : "");
    const bool isCalled = argc > 2;
    if (way == "none") {
        print(isCalled);
        return 0;
    }
    if (way == "core") {
        const QCoreApplication application(argc, argv);
        print(isCalled);
        return 0;
    }
    const QApplication application(argc, argv);
    if (way == "look")
        useLook();
    print(isCalled);
    return 0;
}
