#include "Platform/Platform.h"

#include "include/qt_compat.h"

#include <QCursor>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QStyle>
#include <QStyleFactory>
#include <QWidget>
#include <QWindow>

#include <algorithm>

#ifdef Q_OS_WIN
#include <windows.h>

#include <shellapi.h> // builds on windows.h
#else
#include <dlfcn.h>
#include <sys/stat.h>
#endif

namespace Platform {

namespace {

/** Moves a window by the mouse events that the application gets; belongs to it, and goes when the button goes up. */
class PointerFollower : public QObject
{
public:
    PointerFollower(QWidget *window, const QPoint &pointer)
        : QObject(window), m_window(window), m_pointerToCorner(window->pos() - pointer)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::MouseMove && event->type() != QEvent::MouseButtonRelease)
            return QObject::eventFilter(watched, event);
        const auto *mouse = static_cast<const QMouseEvent *>(event);
        if ((mouse->buttons() & Qt::LeftButton) == 0) {
            qApp->removeEventFilter(this);
            deleteLater();
            return false;
        }
        m_window->move(zel::globalPosition(mouse) + m_pointerToCorner);
        return true;
    }

private:
    QWidget *const m_window;
    const QPoint m_pointerToCorner;
};

QList<QScreen *> screensIn(const QRect &area)
{
    QList<QScreen *> screens;
    for (QScreen *screen : QGuiApplication::screens())
        if (screen->geometry().intersects(area))
            screens.append(screen);
    return screens;
}

// `area` counts as the screens do that lie beside each other.
QPixmap pictureOfScreen(QScreen *screen, const QRect &area)
{
    const QRect part = area.translated(-screen->geometry().topLeft());
    return screen->grabWindow(0, part.x(), part.y(), part.width(), part.height());
}

} // namespace

bool registerPrivateFont(const QString &path)
{
    // The font database ends the process when it is asked before there is an application object.
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) == nullptr)
        return false;
    // Only a file: reading a pipe would wait for its writer.
    return QFileInfo(path).isFile() && QFontDatabase::addApplicationFont(path) != -1;
}

QString displayName(const QString &path)
{
#ifdef Q_OS_WIN
    SHFILEINFOW info;
    const auto *name = reinterpret_cast<const wchar_t *>(path.utf16());
    if (SHGetFileInfoW(name, 0, &info, sizeof(info), SHGFI_DISPLAYNAME) == 0)
        return QString();
    return QString::fromWCharArray(info.szDisplayName);
#else
    const QFileInfo file(path);
    return file.exists() ? file.fileName() : QString();
#endif
}

FileStamp fileStamp(const QString &path)
{
#ifdef Q_OS_WIN
    const QFileInfo file(path);
    return file.exists() ? FileStamp{file.lastModified().toMSecsSinceEpoch() * 1000000, file.size(), file.isFile()}
                         : FileStamp();
#else
    struct stat status;
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return FileStamp();
    const timespec &written = status.st_mtim;
    return {qint64(written.tv_sec) * 1000000000 + written.tv_nsec, qint64(status.st_size), S_ISREG(status.st_mode)};
#endif
}

QString fileOfAddress(const void *address)
{
#ifdef Q_OS_WIN
    constexpr DWORD flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    HMODULE library = nullptr;
    wchar_t path[MAX_PATH];
    if (GetModuleHandleExW(flags, static_cast<LPCWSTR>(address), &library) == 0)
        return QString();
    return QString::fromWCharArray(path, static_cast<int>(GetModuleFileNameW(library, path, MAX_PATH)));
#else
    Dl_info info;
    if (dladdr(address, &info) == 0 || info.dli_fname == nullptr)
        return QString();
    return QFileInfo(QFile::decodeName(info.dli_fname)).canonicalFilePath();
#endif
}

std::unique_ptr<QStyle> createNativeStyle()
{
    std::unique_ptr<QStyle> native(QStyleFactory::create(QStringLiteral("windowsvista")));
    if (!native)
        native.reset(QStyleFactory::create(QStringLiteral("Fusion"))); // built into every Qt
    return native;
}

QPixmap pictureOfDesktop(const QRect &area)
{
    const QList<QScreen *> screens = screensIn(area);
    if (screens.isEmpty())
        return QPixmap();
    if (screens.size() == 1 && screens.first()->geometry().contains(area))
        return pictureOfScreen(screens.first(), area); // most often; the picture is large, and a copy takes its time
    qreal ratio = 1.0;
    for (const QScreen *screen : screens)
        ratio = std::max(ratio, screen->devicePixelRatio());
    QPixmap picture(area.size() * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    bool isEmpty = true;
    for (QScreen *screen : screens) {
        const QRect part = screen->geometry() & area;
        const QPixmap seen = pictureOfScreen(screen, part);
        isEmpty = isEmpty && seen.isNull();
        painter.drawPixmap(part.translated(-area.topLeft()), seen);
    }
    painter.end();
    return isEmpty ? QPixmap() : picture;
}

bool startWindowDrag(const QWidget *widget)
{
    QWindow *handle = widget->window()->windowHandle();
    if (handle == nullptr || !handle->startSystemMove())
        return false;
    // On X11 the window manager keeps the release to itself, and Qt would go on sending every move to the widget that
    // was pressed.
    const QPointF pointer = QCursor::pos();
    const QPointF local = handle->mapFromGlobal(pointer.toPoint());
    QCoreApplication::postEvent(handle, new QMouseEvent(QEvent::MouseButtonRelease, local, pointer, Qt::LeftButton,
                                                        Qt::NoButton, Qt::NoModifier));
    return true;
}

void followPointer(QWidget *window, const QPoint &pointer)
{
    new PointerFollower(window, pointer);
}

void coverScreen(QWidget *window)
{
    const QScreen *screen = window->isWindow() ? window->screen() : nullptr;
    if (screen == nullptr)
        return;
    const QRect area = screen->availableGeometry();
    window->setGeometry(QRect(area.topLeft(), window->maximumSize().boundedTo(area.size())));
}

QRect taskBarRect(const QScreen &screen)
{
    const QRect whole = screen.geometry();
    const int top = screen.availableGeometry().bottom() + 1;
    return QRect(whole.left(), top, whole.width(), whole.bottom() + 1 - top);
}

bool taskBarHidesItself()
{
#ifdef Q_OS_WIN
    APPBARDATA data{};
    data.cbSize = sizeof(data);
    return (SHAppBarMessage(ABM_GETSTATE, &data) & ABS_AUTOHIDE) != 0;
#else
    return false;
#endif
}

} // namespace Platform
