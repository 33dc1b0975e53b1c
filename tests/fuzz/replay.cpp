// Stands in for libFuzzer where a build is without it: hands each file of the given folders to the fuzz target, once.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#if defined(__unix__)
#include <sys/resource.h>
#endif

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace {

std::vector<std::filesystem::path> filesOf(const std::filesystem::path &place)
{
    if (!std::filesystem::is_directory(place))
        return {place};
    std::vector<std::filesystem::path> files;
    for (const auto &entry : std::filesystem::directory_iterator(place))
        files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

constexpr long memoryLimit = 1024; // megabytes; libFuzzer has the like

long peakMemory()
{
#if defined(__unix__)
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
#else
    return 0;
#endif
}

void replay(const std::filesystem::path &file)
{
    std::printf("%s\n", file.filename().string().c_str());
    std::fflush(stdout); // the name of the input that ends the process must not stay in the buffer
    std::ifstream stream(file, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(stream), {}};
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.data()), bytes.size());
}

} // namespace

int main(int argc, char *argv[])
{
    LLVMFuzzerInitialize(&argc, &argv);
    std::size_t count = 0;
    for (int i = 1; i < argc; ++i) {
        for (const std::filesystem::path &file : filesOf(argv[i])) {
            replay(file);
            ++count;
        }
    }
    const long peak = peakMemory();
    std::printf("%zu inputs, %ld MB\n", count, peak);
    return count > 0 && peak < memoryLimit ? 0 : 1;
}
