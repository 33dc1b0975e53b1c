#include "Settings.h"

#include "Text.h"

#include <ini.h>

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <sstream>
#include <system_error>

namespace zelcutil {
namespace {

// The parser's own limit of a line is a global of a library that the application may use too, so it stays as it is
// (200 bytes as shipped: some 60 Japanese characters, too few for a path). Instead each line is fed to the parser cut
// to fit, and the value of a line that was cut is taken from here.
struct IniSource
{
    std::string_view rest;
    std::string_view line;
    bool isCut = false;
    std::map<std::string, std::string> values;
};

std::string valueName(std::string_view section, std::string_view key)
{
    return asciiLower(section) + '=' + asciiLower(key);
}

std::string_view takeLine(std::string_view &rest)
{
    const std::size_t end = rest.find('\n');
    const std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    return line;
}

// The parser's ini_reader. Lines lose their indentation because the parser would take an indented "Key = Value" for
// the continuation of the value above it.
char *readLine(char *buffer, int size, void *stream)
{
    IniSource &source = *static_cast<IniSource *>(stream);
    if (source.rest.empty() || size < 2)
        return nullptr;
    source.line = trimmed(takeLine(source.rest));
    const std::size_t length = source.line.copy(buffer, static_cast<std::size_t>(size) - 1);
    source.isCut = length < source.line.size();
    buffer[length] = '\0';
    return buffer;
}

// Value of a whole "Key = Value ; comment" line by the parser's rules.
std::string_view valueOfLine(std::string_view line)
{
    std::string_view value = line.substr(std::min(line.find_first_of("=:"), line.size() - 1) + 1);
    for (std::size_t at = 1; at < value.size(); ++at)
        if (value[at] == ';' && (value[at - 1] == ' ' || value[at - 1] == '\t'))
            value = value.substr(0, at);
    return trimmed(value);
}

// The parser's ini_handler; 0 marks the line as faulty. It is called from C code, which no exception may cross.
int takeValue(void *user, const char *section, const char *name, const char *value) noexcept
{
    IniSource &source = *static_cast<IniSource *>(user);
    if (*section == '\0' || *name == '\0' || value == nullptr)
        return 0;
    try {
        source.values[valueName(section, name)] = source.isCut ? std::string(valueOfLine(source.line)) : value;
        return 1;
    } catch (...) {
        return 0;
    }
}

std::string unreadable(const std::string &fileName, const std::string &reason)
{
    return fileName + ": cannot be read (" + reason + "); make it a readable text file, or remove it";
}

} // namespace

Settings::Settings(const std::vector<std::filesystem::path> &files)
{
    for (const std::filesystem::path &file : files)
        add(file);
}

const std::string *Settings::find(std::string_view section, std::string_view key) const
{
    const auto found = m_values.find(valueName(section, key));
    return found != m_values.end() ? &found->second : nullptr;
}

std::string Settings::value(std::string_view section, std::string_view key) const
{
    const std::string *found = find(section, key);
    return found != nullptr ? *found : std::string();
}

std::map<std::string, std::string> Settings::section(std::string_view name) const
{
    const std::string beginning = valueName(name, {});
    std::map<std::string, std::string> values;
    for (auto at = m_values.lower_bound(beginning); at != m_values.end() && startsWith(at->first, beginning); ++at)
        values.emplace(at->first.substr(beginning.size()), at->second);
    return values;
}

void Settings::add(const std::filesystem::path &file)
{
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(file, error);
    if (status.type() == std::filesystem::file_type::not_found)
        return;
    if (!std::filesystem::is_regular_file(status)) { // opening a pipe would wait for its writer
        m_warnings.push_back(unreadable(file.u8string(), error ? error.message() : "it is not a file"));
        return;
    }
    errno = 0;
    const std::ifstream stream(file, std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf();
    if (!stream.is_open() || text.bad())
        m_warnings.push_back(unreadable(file.u8string(), std::generic_category().message(errno)));
    addText(text.str(), file.u8string());
}

void Settings::addText(const std::string &text, const std::string &fileName)
{
    IniSource source;
    source.rest = text;
    const int faultyLine = ini_parse_stream(readLine, &source, takeValue, &source);
    m_values.merge(source.values); // keeps what a more important file has said
    if (faultyLine > 0) {
        m_warnings.push_back(fileName + ':' + std::to_string(faultyLine) +
                             ": not understood; write Key = Value, or start a comment with ;"
                             " (keys stand below [Installation] or [Log])");
    }
}

} // namespace zelcutil
