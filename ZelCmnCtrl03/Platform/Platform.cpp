#include "Platform/Platform.h"

#include <QCursor>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QStyle>
#include <QStyleFactory>
#include <QWidget>
#include <QWindow>

#ifdef Q_OS_WIN
#include <windows.h>

#include <shellapi.h> // builds on windows.h
#else
#include <dlfcn.h>
#endif

namespace Platform {

bool registerPrivateFont(const QString &path)
{
    // The font database ends the process when it is asked before there is an application object.
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) == nullptr)
        return false;
    return QFontDatabase::addApplicationFont(path) != -1;
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

void coverScreen(QWidget *window)
{
    const QScreen *screen = window->isWindow() ? window->screen() : nullptr;
    if (screen == nullptr)
        return;
    const QRect area = screen->availableGeometry();
    window->setGeometry(QRect(area.topLeft(), window->maximumSize().boundedTo(area.size())));
}

} // namespace Platform
