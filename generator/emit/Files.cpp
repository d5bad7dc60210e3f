#include "generator/emit/Files.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>

namespace korva::schemac::emit {

void Files::add(std::string path, std::string content) {
    m_files.insert_or_assign(std::move(path), std::move(content));
}

bool Files::write(const std::string& directory, std::ostream& errors) const {
    bool good = true;
    for (const auto& [path, content] : m_files) {
        std::string file = directory;
        file += '/';
        file += path;
        good = writeFile(file, content, errors) && good;
    }
    return good;
}

bool writeFile(const std::string& path, std::string_view content, std::ostream& errors) {
    {
        std::ifstream before(path, std::ios::binary);
        if (before.is_open() && std::string{std::istreambuf_iterator<char>(before),
                                            std::istreambuf_iterator<char>()} == content) {
            return true;
        }
    }
    std::error_code failure;
    const auto directory = std::filesystem::path(path).parent_path();
    if (!directory.empty()) std::filesystem::create_directories(directory, failure);
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    file.close();
    if (!file) errors << path << ": error: it cannot be written\n";
    return static_cast<bool>(file);
}

}  // namespace korva::schemac::emit
