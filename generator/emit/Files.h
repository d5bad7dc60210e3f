/// The files of one run, collected before any is written.
#pragma once

#include <iosfwd>
#include <map>
#include <string>
#include <string_view>

namespace korva::schemac::emit {

class Files {
public:
    /// Adds a file; the path is relative to the output directory.
    void add(std::string path, std::string content);

    /// By path, in the order of its bytes.
    const std::map<std::string, std::string>& all() const { return m_files; }

    /// Writes those whose content differs from what stands below `directory`. Returns whether all
    /// are in place; tells each failure to `errors`.
    bool write(const std::string& directory, std::ostream& errors) const;

private:
    std::map<std::string, std::string> m_files;
};

/// Writes one file unless it has this content already.
bool writeFile(const std::string& path, std::string_view content, std::ostream& errors);

}  // namespace korva::schemac::emit
