#include "Log.h"

#include "Utf.h"

#include <spdlog/sinks/rotating_file_sink.h>
#include <spdlog/sinks/stdout_sinks.h>

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <memory>
#include <system_error>

namespace zelcutil {
namespace {

constexpr std::size_t largestFile = std::size_t{5} * 1024 * 1024;
constexpr std::size_t olderFiles = 2; // spdlog counts the files besides the current one: three in all

constexpr const char *linePattern = "%Y-%m-%d %H:%M:%S.%e [%P] %-7l %v";

constexpr std::uint32_t levelBits = 32;

bool breaksLine(char16_t unit)
{
    const bool control = unit < 0x20 || (unit >= 0x7F && unit <= 0x9F);
    return control || unit == 0x2028 || unit == 0x2029; // Unicode's own line and paragraph separator
}

// Why the file cannot be written, empty when it can. Asked before spdlog opens it because spdlog tries five times with
// pauses, and because rotating anything but a regular file (renaming /dev/stdout, say) would do damage.
std::string obstacle(const std::filesystem::path &file)
{
    if (file.empty())
        return "no home folder is known";
    std::error_code error;
    std::filesystem::create_directories(file.parent_path(), error);
    if (error)
        return error.message();
    const std::filesystem::file_status status = std::filesystem::status(file, error);
    if (std::filesystem::is_directory(status))
        return "it is a directory";
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status))
        return "it is not a regular file";
    errno = 0;
    const std::ofstream trial(file, std::ios::app);
    return trial.is_open() ? std::string() : std::generic_category().message(errno);
}

} // namespace

Log::Log(const LogPlan &plan) : m_logger("ZelCUtil03")
{
    const auto console = std::make_shared<spdlog::sinks::stderr_sink_mt>();
    console->set_level(plan.consoleLevel);
    m_logger.sinks().push_back(console);
    m_logger.set_level(spdlog::level::trace); // the sinks decide
    m_logger.set_error_handler([this](const std::string &failure) { giveUpFile(failure); });
    m_logger.set_pattern(linePattern);
    if (plan.fileLevel != spdlog::level::off)
        openFile(plan);
}

void Log::openFile(const LogPlan &plan)
{
    m_fileName = plan.file.u8string();
    std::string reason = obstacle(plan.file);
    if (reason.empty()) {
        try {
            const auto name = plan.file.string<spdlog::filename_t::value_type>();
            m_fileSink = std::make_shared<spdlog::sinks::rotating_file_sink_mt>(name, largestFile, olderFiles);
            m_fileSink->set_level(plan.fileLevel);
            m_fileSink->set_pattern(linePattern);
            m_logger.sinks().push_back(m_fileSink);
            m_logger.flush_on(spdlog::level::trace); // the record before a crash is the one that support needs
            return;
        } catch (const spdlog::spdlog_ex &failure) {
            reason = failure.what();
        }
    }
    const std::string name = m_fileName.empty() ? std::string() : m_fileName + ' ';
    warn("the log " + name + "cannot be written: " + reason +
         "; set ZEL_LOG_FILE, or File in section [Log], to a file in a writable folder");
}

// spdlog's error handler, called inside write(). The sink must not be used again: after a rotation that failed it has
// no open file, and spdlog would write through the null pointer.
void Log::giveUpFile(const std::string &failure)
{
    const bool isOpen = m_fileSink != nullptr && m_fileSink->level() != spdlog::level::off;
    if (!isOpen || failure.find(m_fileName) == std::string::npos)
        return; // standard error failed, and that can be told to nobody
    m_fileSink->set_level(spdlog::level::off);
    m_logger.flush_on(spdlog::level::off);
    m_logger.log(spdlog::level::warn, "ZelCUtil03: the log is given up: " + failure +
                                          "; free the disk or set ZEL_LOG_FILE to another one, then restart");
}

void Log::write(spdlog::level::level_enum level, std::u16string text)
{
    std::replace_if(text.begin(), text.end(), breaksLine, u' ');
    const std::string record = toUtf8(text);
    // The sinks lock for themselves. This lock keeps other threads out of a file sink that is being given up.
    const std::lock_guard<std::mutex> lock(m_writing);
    m_logger.log(level, spdlog::string_view_t(record.data(), record.size()));
}

void Log::warn(const std::string &text)
{
    write(spdlog::level::warn, u"ZelCUtil03: " + toUtf16(text));
}

std::uint32_t Log::wantedLevels() const
{
    spdlog::level::level_enum lowest = spdlog::level::off;
    for (const spdlog::sink_ptr &sink : m_logger.sinks())
        lowest = std::min(lowest, sink->level());
    std::uint32_t wanted = 0;
    for (std::uint32_t level = 0; level < levelBits; ++level)
        wanted |= levelOf(static_cast<int>(level)) >= lowest ? 1U << level : 0U;
    return wanted;
}

spdlog::level::level_enum Log::levelOf(int callersLevel)
{
    switch (callersLevel) {
    case 1:
    case 2: return spdlog::level::trace;
    case 4: return spdlog::level::err;
    case 5: return spdlog::level::warn;
    default: return spdlog::level::debug;
    }
}

} // namespace zelcutil
