#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace zelcutil {

/**
 * The settings of zelcutil03.ini, read once from several files; constant afterwards and so free for all threads.
 *
 * Names of sections and keys are compared without regard to the case of ASCII letters. Values are UTF-8.
 */
class Settings
{
public:
    Settings() = default;

    /** Reads @p files, the most important first. A missing file is normal; a faulty one leaves a warning. */
    explicit Settings(const std::vector<std::filesystem::path> &files);

    /** Adds what a file of this text says, below what is here already; the name is for its warning. */
    void addText(const std::string &text, const std::string &fileName);

    /** Null when no file has the key; an empty text when it is there without a value. */
    const std::string *find(std::string_view section, std::string_view key) const;

    /** As find(), for settings where absent and empty mean the same. */
    std::string value(std::string_view section, std::string_view key) const;

    /** All of a section; the keys in lower case. */
    std::map<std::string, std::string> section(std::string_view name) const;

    /** At most one per file, naming file, line and remedy. */
    const std::vector<std::string> &warnings() const { return m_warnings; }

private:
    void add(const std::filesystem::path &file);

    std::map<std::string, std::string> m_values;
    std::vector<std::string> m_warnings;
};

} // namespace zelcutil
