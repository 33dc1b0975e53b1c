#pragma once

#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

/** All that differs between operating systems. Texts are UTF-8; an empty result means: there is none. */
namespace zelcutil::platform {

std::string environmentValue(const char *name);

/** Replaces a leading "~/" by the home folder; without one the text stays as it is. */
std::string expandHome(const std::string &text);

std::filesystem::path userSettingsDirectory();

/** The most important first. */
std::vector<std::filesystem::path> systemSettingsDirectories();

/** Where a program keeps logs of its own. */
std::filesystem::path userStateDirectory();

/** The folder that this library was loaded from. */
std::filesystem::path libraryDirectory();

/** Name of the locale that messages are shown in. */
std::string messageLocale();

/** Puts the calling thread's error code back at the end of the scope. */
class ErrorCodeKeeper
{
public:
    ErrorCodeKeeper() noexcept;
    ~ErrorCodeKeeper();
    ErrorCodeKeeper(const ErrorCodeKeeper &) = delete;
    ErrorCodeKeeper &operator=(const ErrorCodeKeeper &) = delete;

private:
    int errorNumber;
#if defined(_WIN32)
    unsigned long systemError;
#endif
};

/**
 * Keeps a write from ending the process by a signal, as one to a closed pipe or beyond a size limit would: in its scope
 * such a write just fails. Other signals, and those that were on their way before, stay as they are.
 */
class WriteSignalBlocker
{
public:
    WriteSignalBlocker() noexcept;
    ~WriteSignalBlocker();
    WriteSignalBlocker(const WriteSignalBlocker &) = delete;
    WriteSignalBlocker &operator=(const WriteSignalBlocker &) = delete;

#if !defined(_WIN32)
private:
    sigset_t m_savedMask;
    sigset_t m_pendingBefore;
#endif
};

} // namespace zelcutil::platform
