#include "Platform.h"

#include "Text.h"

#include <algorithm>
#include <cerrno>
#include <clocale>
#include <cstdlib>

#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include "Utf.h"
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace zelcutil::platform {
namespace {

// The base folder convention tells programs to ignore relative paths: they would follow the working folder.
[[maybe_unused]] std::filesystem::path absoluteOr(const std::string &text, const std::filesystem::path &otherwise)
{
    const std::filesystem::path path = std::filesystem::u8path(text);
    return path.is_absolute() ? path : otherwise;
}

std::filesystem::path homeDirectory()
{
#if defined(_WIN32)
    return std::filesystem::u8path(environmentValue("USERPROFILE"));
#else
    return absoluteOr(environmentValue("HOME"), {});
#endif
}

#if !defined(_WIN32)
std::filesystem::path belowHome(const char *relative)
{
    const std::filesystem::path home = homeDirectory();
    return home.empty() ? home : home / relative;
}
#endif

} // namespace

std::string expandHome(const std::string &text)
{
    const std::filesystem::path home = homeDirectory();
    if (!startsWith(text, "~/") || home.empty())
        return text;
    return (home / std::filesystem::u8path(text.substr(2))).u8string();
}

#if defined(_WIN32)

std::string environmentValue(const char *name)
{
    const std::wstring wideName(name, name + std::char_traits<char>::length(name));
    const wchar_t *value = _wgetenv(wideName.c_str());
    return value != nullptr ? toUtf8(reinterpret_cast<const char16_t *>(value)) : std::string();
}

std::filesystem::path userSettingsDirectory()
{
    return std::filesystem::u8path(environmentValue("APPDATA"));
}

std::vector<std::filesystem::path> systemSettingsDirectories()
{
    return {std::filesystem::u8path(environmentValue("PROGRAMDATA"))};
}

std::filesystem::path userStateDirectory()
{
    return std::filesystem::u8path(environmentValue("LOCALAPPDATA"));
}

std::filesystem::path libraryDirectory()
{
    HMODULE module = nullptr;
    const DWORD flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    if (!GetModuleHandleExW(flags, reinterpret_cast<LPCWSTR>(&libraryDirectory), &module))
        return {};
    std::wstring name(32768, L'\0'); // the longest path that Windows can form
    name.resize(GetModuleFileNameW(module, name.data(), static_cast<DWORD>(name.size())));
    return std::filesystem::path(name).parent_path();
}

std::string messageLocale()
{
    wchar_t name[LOCALE_NAME_MAX_LENGTH] = {};
    GetUserDefaultLocaleName(name, LOCALE_NAME_MAX_LENGTH);
    return toUtf8(reinterpret_cast<const char16_t *>(name));
}

ErrorCodeKeeper::ErrorCodeKeeper() noexcept : errorNumber(errno), systemError(GetLastError()) {}

ErrorCodeKeeper::~ErrorCodeKeeper()
{
    errno = errorNumber;
    SetLastError(systemError);
}

WriteSignalBlocker::WriteSignalBlocker() noexcept = default;
WriteSignalBlocker::~WriteSignalBlocker() = default;

#else

std::string environmentValue(const char *name)
{
    const char *value = std::getenv(name);
    return value != nullptr ? value : std::string();
}

std::filesystem::path userSettingsDirectory()
{
    return absoluteOr(environmentValue("XDG_CONFIG_HOME"), belowHome(".config"));
}

std::vector<std::filesystem::path> systemSettingsDirectories()
{
    std::string list = environmentValue("XDG_CONFIG_DIRS");
    if (list.empty())
        list = "/etc/xdg";
    std::vector<std::filesystem::path> directories;
    for (std::size_t begin = 0; begin <= list.size();) {
        const std::size_t end = std::min(list.find(':', begin), list.size());
        const std::filesystem::path directory = absoluteOr(list.substr(begin, end - begin), {});
        if (!directory.empty())
            directories.push_back(directory);
        begin = end + 1;
    }
    return directories;
}

std::filesystem::path userStateDirectory()
{
    return absoluteOr(environmentValue("XDG_STATE_HOME"), belowHome(".local/state"));
}

std::filesystem::path libraryDirectory()
{
    Dl_info info = {};
    if (dladdr(reinterpret_cast<const void *>(&libraryDirectory), &info) == 0 || info.dli_fname == nullptr)
        return {};
    std::error_code error; // the loader reports a library opened by a relative path relatively
    return std::filesystem::absolute(info.dli_fname, error).parent_path();
}

std::string messageLocale()
{
    // Only asked, never set: setlocale writes state of the whole process, which is the application's alone.
    const char *current = std::setlocale(LC_MESSAGES, nullptr);
    std::string name = current != nullptr ? current : "C";
    if (name != "C" && name != "POSIX")
        return name;
    // "C" may only mean that the program has not called setlocale yet; the environment says what it would get.
    for (const char *variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        std::string value = environmentValue(variable);
        if (!value.empty())
            return value;
    }
    return {};
}

ErrorCodeKeeper::ErrorCodeKeeper() noexcept : errorNumber(errno) {}

ErrorCodeKeeper::~ErrorCodeKeeper()
{
    errno = errorNumber;
}

namespace {
constexpr int writeSignals[] = {SIGPIPE, SIGXFSZ};
} // namespace

WriteSignalBlocker::WriteSignalBlocker() noexcept : m_savedMask(), m_pendingBefore()
{
    sigset_t blocked;
    sigemptyset(&blocked);
    for (const int signal : writeSignals)
        sigaddset(&blocked, signal);
    pthread_sigmask(SIG_BLOCK, &blocked, &m_savedMask);
    sigpending(&m_pendingBefore);
}

WriteSignalBlocker::~WriteSignalBlocker()
{
    sigset_t pending;
    sigpending(&pending);
    for (const int signal : writeSignals) {
        if (sigismember(&pending, signal) != 1 || sigismember(&m_pendingBefore, signal) == 1)
            continue;
        sigset_t own;
        sigemptyset(&own);
        sigaddset(&own, signal);
        const timespec atOnce = {};
        sigtimedwait(&own, nullptr, &atOnce);
    }
    pthread_sigmask(SIG_SETMASK, &m_savedMask, nullptr);
}

#endif

} // namespace zelcutil::platform
