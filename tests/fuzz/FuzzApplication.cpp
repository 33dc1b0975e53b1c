#include "fuzz/FuzzApplication.h"

#include "CC4Styles/CC4StyleFactory.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QPixmapCache>
#include <QPointer>
#include <QThread>
#include <QTimer>
#include <QWidget>

#include <cstdio>

namespace {

constexpr int loopPatience = 5; // milliseconds that a nested loop may run

QStyle *houseStyle = nullptr;
QPalette housePalette;
QFont applicationFont;

void saysNothing(QtMsgType, const QMessageLogContext &, const QString &) {}

// One of each per turn: who is told may have destroyed others.
void endPopup()
{
    const QPointer<QWidget> popup(QApplication::activePopupWidget());
    if (!popup.isNull())
        popup->close();
    if (!popup.isNull())
        popup->hide();
}

// Not the active modal window: a dialog that was made modeless runs a loop as well.
void endDialog()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        auto *dialog = qobject_cast<QDialog *>(window);
        if (dialog == nullptr || dialog->isHidden())
            continue;
        dialog->done(0);
        return;
    }
}

QWidget *windowOfNobody()
{
    for (QWidget *window : QApplication::topLevelWidgets())
        if (window->parentWidget() == nullptr)
            return window;
    return nullptr;
}

// Qt filters the application's events while a drag goes on; this key ends it.
void endDrag()
{
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(qApp, &escape);
}

// Every loop that runs above the input's own calls, as soon as it turns: of a menu, a dialog, a drag.
void endNestedLoop()
{
    if (QThread::currentThread()->loopLevel() == 0)
        return;
    endDrag();
    endPopup();
    endDialog();
}

void setEnvironment(const QString &graphicsDir)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_ACCESSIBILITY", "0");
    qputenv("NO_AT_BRIDGE", "1");
    qputenv("ZEL_LANGUAGE", "en");
    qputenv("ZEL_LOG", "off");
    if (!graphicsDir.isEmpty())
        qputenv("ZEL_GRAPHICS_DIR", graphicsDir.toUtf8());
}

void restoreStyle()
{
    if (!qApp->styleSheet().isEmpty())
        qApp->setStyleSheet(QString());
    if (QApplication::style() == houseStyle)
        return;
    CC4StyleFactory::releaseStyle(CC4StyleFactory::CC4Style);
    houseStyle = CC4StyleFactory::getStyle(CC4StyleFactory::CC4Style);
}

} // namespace

void FuzzApplication::start(const QString &graphicsDir)
{
    setEnvironment(graphicsDir);
    qInstallMessageHandler(saysNothing);
    static int argc = 1;
    static char name[] = "fuzz";
    static char *argv[] = {name, nullptr};
    // Never destroyed: the fuzzer ends by exit(), when what Qt keeps in its own statics has gone.
    static const auto *const application = new QApplication(argc, argv);
    Q_UNUSED(application)
    QApplication::setQuitOnLastWindowClosed(false);
    houseStyle = CC4StyleFactory::getStyle(CC4StyleFactory::CC4Style); // kept, so that no control has to make it
    applicationFont = QApplication::font();
    housePalette = QApplication::palette();

    auto *watch = new QTimer(qApp);
    QObject::connect(watch, &QTimer::timeout, qApp, endNestedLoop);
    watch->start(loopPatience);
}

void FuzzApplication::tell(const char *what, const char *to)
{
    static const bool isWanted = qEnvironmentVariableIsSet("ZEL_FUZZ_TELL");
    if (isWanted)
        std::fprintf(stderr, "  %s %s\n", what, to);
}

void FuzzApplication::restore()
{
    while (QWidget *window = windowOfNobody())
        delete window;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QPixmapCache::clear();
    restoreStyle();
    QApplication::setLayoutDirection(Qt::LeftToRight);
    if (QApplication::font() != applicationFont)
        QApplication::setFont(applicationFont);
    if (QApplication::palette() != housePalette)
        QApplication::setPalette(housePalette);
    while (QApplication::overrideCursor() != nullptr)
        QApplication::restoreOverrideCursor();
}
