// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

#include <stdlib.h>

namespace velto {

/// A new folder that goes, with all in it, when this object does.
class TemporaryFolder {
public:
    TemporaryFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "velto-XXXXXX").string();
        if (!::mkdtemp(name.data()))
            throw std::runtime_error("no temporary folder");
        m_path = name;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder()
    {
        std::error_code error;
        std::filesystem::remove_all(m_path, error);
    }

    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

} // namespace velto
