#include "support/TemporaryFile.h"

#include <stdlib.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace tolvane::test {

namespace {

std::string UniquePath(std::string_view ending) {
    std::string path = (std::filesystem::temp_directory_path() / "tolvane-XXXXXX").string();
    path += ending;
    const int descriptor = mkstemps(path.data(), static_cast<int>(ending.size()));
    if (descriptor < 0)
        throw std::runtime_error("no temporary file at " + path);
    close(descriptor);
    return path;
}

std::vector<std::uint8_t> BytesOf(std::string_view text) {
    return {text.begin(), text.end()};
}

}  // namespace

TemporaryFile::TemporaryFile(const std::vector<std::uint8_t>& content, std::string_view ending)
    : path(UniquePath(ending)) {
    Write(content);
}

TemporaryFile::TemporaryFile(std::string_view content, std::string_view ending)
    : TemporaryFile(BytesOf(content), ending) {}

TemporaryFile::~TemporaryFile() {
    std::remove(path.c_str());
}

void TemporaryFile::Write(const std::vector<std::uint8_t>& content) const {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(content.data()), static_cast<std::streamsize>(content.size()));
}

}  // namespace tolvane::test
