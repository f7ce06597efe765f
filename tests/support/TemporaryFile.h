#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tolvane::test {

// A real file with given content under a name of its own, deleted with this object.
class TemporaryFile {
public:
    explicit TemporaryFile(const std::vector<std::uint8_t>& content, std::string_view ending = "");
    explicit TemporaryFile(std::string_view content, std::string_view ending = "");
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const std::string& Path() const { return path; }

    // Replaces the content in place.
    void Write(const std::vector<std::uint8_t>& content) const;

private:
    std::string path;
};

}  // namespace tolvane::test
