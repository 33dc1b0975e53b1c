#include "Diary.h"

#include <array>
#include <csignal>
#include <cstdio>
#include <cstring>

#include <execinfo.h>
#include <unistd.h>

#ifdef __SANITIZE_ADDRESS__
// Of the sanitizer's runtime; GCC does not always come with the header.
extern "C" void __sanitizer_set_death_callback(void (*)()); // NOLINT(bugprone-reserved-identifier): its name
#endif

namespace {

constexpr std::size_t entryCount = 50;
constexpr std::size_t entryLength = 120;
constexpr std::size_t mostFrames = 64;
constexpr unsigned longestSilence = 120; // seconds

// Fixed places: whoever tells them may have no memory to ask for.
std::array<std::array<char, entryLength>, entryCount> entries;
std::size_t written = 0;
std::array<char, entryLength> heading;

void say(const char *text)
{
    if (::write(STDERR_FILENO, text, std::strlen(text)) < 0 || ::write(STDERR_FILENO, "\n", 1) < 0)
        return;
}

void endBySignal(int signal)
{
    say(signal == SIGALRM ? "soak: nothing happens any more" : "soak: ended by a signal");
    Diary::tell();
    std::array<void *, mostFrames> frames;
    backtrace_symbols_fd(frames.data(), backtrace(frames.data(), int(frames.size())), STDERR_FILENO);
    std::signal(signal, SIG_DFL);
    std::raise(signal == SIGALRM ? SIGABRT : signal);
}

} // namespace

void Diary::open(unsigned seed)
{
    std::snprintf(heading.data(), heading.size(), "soak: the last operations, with --seed %u:", seed);
    for (const int signal : {SIGABRT, SIGALRM, SIGFPE, SIGTERM})
        std::signal(signal, endBySignal);
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_set_death_callback(Diary::tell); // for signals, too
#else
    std::signal(SIGSEGV, endBySignal);
    std::signal(SIGBUS, endBySignal);
#endif
    alarm(longestSilence);
}

void Diary::write(const QString &entry)
{
    const QByteArray text = entry.toUtf8();
    std::snprintf(entries[written % entryCount].data(), entryLength, "  %zu %s", written, text.constData());
    ++written;
    alarm(longestSilence);
}

void Diary::tell()
{
    say(heading.data());
    for (std::size_t i = written > entryCount ? written - entryCount : 0; i < written; ++i)
        say(entries[i % entryCount].data());
}
