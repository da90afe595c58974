#pragma once

#include <string>
#include <string_view>

namespace tintora {

/// A file that is open to be overwritten where it lies. Every failure is a `std::system_error`.
class InPlaceFile {
  public:
    enum class Opening {
        Existing,
        /// Makes the file if it doesn't exist. It goes again if its first text can't be written.
        Creating,
    };

    InPlaceFile(std::string path, Opening opening);
    InPlaceFile(const InPlaceFile&) = delete;
    InPlaceFile& operator=(const InPlaceFile&) = delete;
    ~InPlaceFile();

    /// Makes `bytes` the whole content, on the disk itself. Where that fails, the content is `old`, which the file must
    /// have held before, unless the disk refuses that too.
    void Overwrite(std::string_view bytes, std::string_view old);

    /// Whether an `Overwrite` failed and has left what may be neither the new content nor the old one.
    [[nodiscard]] bool IsDamaged() const noexcept { return isDamaged_; }

  private:
    void Reserve(std::size_t size);
    void Write(std::string_view bytes);
    void CutTo(std::size_t size);
    void GoBackTo(std::string_view old) noexcept;

    std::string path_;
    int descriptor_ = -1;
    bool isNew_ = false;
    bool isDamaged_ = false;
    /// How many bytes at the start of the file are new.
    std::size_t written_ = 0;
};

}  // namespace tintora
