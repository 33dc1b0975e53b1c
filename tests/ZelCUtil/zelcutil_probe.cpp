// Uses the library as a program does and prints what it got as key=value lines. Each argument is one step, see main.

#include "ZelCUtil03/CLogger.h"
#include "ZelCUtil03/ZelCUtil.h"

#include <cerrno>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

#include <unistd.h>

namespace {

void logAt(int level, const std::u16string &message)
{
    CLogger::LogMessage(level, message.c_str(), u"probe", u".\\Probe", 7);
}

// Logs before main and, as the library's own statics are older, after their turn to be destroyed.
struct EarlyAndLate
{
    EarlyAndLate() { speak(u"before main"); }
    ~EarlyAndLate() { speak(u"during exit"); }
    static void speak(const char16_t *message)
    {
        if (std::getenv("PROBE_STATICS") != nullptr)
            logAt(5, message);
    }
} earlyAndLate;

// Other characters than printable ASCII as \uXXXX, so that the output does not depend on any encoding.
void print(const std::string &name, const char16_t *value)
{
    std::printf("%s=", name.c_str());
    for (; value != nullptr && *value != 0; ++value)
        if (*value >= 0x20 && *value < 0x7F)
            std::putchar(static_cast<char>(*value));
        else
            std::printf("\\u%04X", static_cast<unsigned>(*value));
    std::puts(value != nullptr ? "" : "(null)");
}

void printPath(const std::string &name, const std::string &key)
{
    const char16_t *value = nullptr;
    RetrievePath(std::u16string(key.begin(), key.end()).c_str(), &value, 0);
    print(name, value);
}

void printWanted()
{
    std::printf("wanted=");
    for (int level = 1; level <= 6; ++level)
        std::printf("%s", CLogger::isLevelWanted(level) ? std::to_string(level).c_str() : "");
    std::puts("");
}

void logEachLevel()
{
    for (int level = 1; level <= 6; ++level) {
        const std::string number = std::to_string(level);
        logAt(level, u"level " + std::u16string(number.begin(), number.end()));
    }
}

void passNulls()
{
    CLogger::LogMessage(4, nullptr, nullptr, nullptr, 0);
    RetrievePath(u"CommonGraphicsDir", nullptr, 0);
    const char16_t *value = nullptr;
    RetrievePath(nullptr, &value, 0);
    print("nullkey", value);
}

void logFromThreads()
{
    std::vector<std::thread> threads;
    for (char16_t name = u'a'; name < u'f'; ++name) {
        threads.emplace_back([name] {
            for (int count = 0; count < 200; ++count)
                logAt(5, std::u16string(100, name));
        });
    }
    for (std::thread &thread : threads)
        thread.join();
}

void logMegabytes(int count)
{
    const std::u16string message(64 * 1024 - 100, u'x');
    for (int record = 0; record < count * 16; ++record)
        logAt(6, message);
}

void printErrorNumber()
{
    errno = 4711;
    logAt(5, u"keep errno");
    GetLanguage();
    const char16_t *value = nullptr;
    RetrievePath(u"CommonGraphicsDir", &value, 0);
    std::printf("errno=%d\n", errno);
}

// A pipe whose reader has gone.
void deafenStandardError()
{
    int ends[2];
    if (pipe(ends) == 0 && dup2(ends[1], STDERR_FILENO) != -1) {
        close(ends[0]);
        close(ends[1]);
    }
}

void take(const std::string &step, const std::string &operand)
{
    if (step == "language")
        print(step, GetLanguage());
    else if (step == "graphicsdir")
        printPath(step, "CommonGraphicsDir");
    else if (step == "path")
        printPath(operand, operand);
    else if (step == "locale")
        std::setlocale(LC_ALL, operand.c_str());
    else if (step == "wanted")
        printWanted();
    else if (step == "log")
        logEachLevel();
    else if (step == "controls")
        logAt(4, u"one\ntwo\r\tthree\u0085four\u2028five \u3042 \xD800 end");
    else if (step == "nulls")
        passNulls();
    else if (step == "threads")
        logFromThreads();
    else if (step == "megabytes")
        logMegabytes(std::stoi(operand));
    else if (step == "errno")
        printErrorNumber();
    else if (step == "deafen")
        deafenStandardError();
    else if (step == "crash")
        std::_Exit(0); // nothing is flushed, as in a crash
    else
        std::printf("unknown=%s\n", step.c_str());
}

} // namespace

// Steps are "name" or "name:operand".
int main(int count, char **arguments)
{
    for (const std::string &step : std::vector<std::string>(arguments + 1, arguments + count)) {
        const std::size_t colon = step.find(':');
        take(step.substr(0, colon), colon == std::string::npos ? std::string() : step.substr(colon + 1));
    }
    return 0;
}
