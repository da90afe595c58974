#pragma once

#include "text/Encoding.h"
#include "text/Text.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tintora {

/// A fresh folder for the files of one test, which goes with them when the test ends.
class TemporaryFolder {
  public:
    TemporaryFolder() : path_((std::filesystem::temp_directory_path() / "tintora-tests-XXXXXX").string()) {
        if (::mkdtemp(path_.data()) == nullptr)
            throw std::runtime_error("no folder for the test's files");
    }

    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    /// The folder itself, without a separator at its end.
    [[nodiscard]] Text Path() const { return TextFromFileName(path_); }

    /// The path of a file of the folder, whether it exists or not. The name is bytes, and may lead into subfolders.
    [[nodiscard]] std::string FilePath(std::string_view name) const { return path_ + "/" + std::string(name); }

    /// Writes a file, making the subfolders that it needs; the result is its path as the program takes it.
    [[nodiscard]] Text Write(std::string_view name, std::string_view bytes) const {
        const std::string path = FilePath(name);
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        std::ofstream file(path, std::ios::binary);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        if (!file.flush())
            throw std::runtime_error("can't write " + path);
        return TextFromFileName(path);
    }

  private:
    std::string path_;
};

}  // namespace tintora
