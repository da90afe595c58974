#include "document/RecoveryRecord.h"

#include "text/Encoding.h"

#include <charconv>

namespace tintora {

namespace {

constexpr std::string_view Title = "Tintora recovery copy 1";
constexpr std::string_view UnsavedTextName = "unsaved text";
constexpr std::string_view InterruptedWriteName = "interrupted write";

/// One line: line ends and back-slashes are escaped.
std::string Escaped(std::string_view value) {
    std::string line;
    for (const char byte : value) {
        switch (byte) {
            case '\n': line += "\\n"; break;
            case '\r': line += "\\r"; break;
            case '\\': line += "\\\\"; break;
            default: line += byte; break;
        }
    }
    return line;
}

std::string Unescaped(std::string_view line) {
    std::string value;
    for (std::size_t at = 0; at < line.size(); ++at) {
        if (line[at] != '\\' || at + 1 == line.size()) {
            value += line[at];
            continue;
        }
        ++at;
        value += line[at] == 'n' ? '\n' : line[at] == 'r' ? '\r' : line[at];
    }
    return value;
}

/// Takes the lines of a record one after another.
class RecordLines {
  public:
    explicit RecordLines(std::string_view bytes) : rest_(bytes) {}

    [[nodiscard]] std::optional<std::string_view> TakeLine() {
        const std::size_t end = rest_.find('\n');
        if (end == std::string_view::npos)
            return std::nullopt;
        const std::string_view line = rest_.substr(0, end);
        rest_.remove_prefix(end + 1);
        return line;
    }

    /// The value of the next line, which must have this name.
    [[nodiscard]] std::optional<std::string_view> TakeValue(std::string_view name) {
        std::optional<std::string_view> line = TakeLine();
        if (!line || !line->starts_with(name) || !line->substr(name.size()).starts_with(": "))
            return std::nullopt;
        line->remove_prefix(name.size() + 2);
        return line;
    }

    template <typename Number>
    [[nodiscard]] std::optional<Number> TakeNumber(std::string_view name) {
        const std::optional<std::string_view> value = TakeValue(name);
        Number number{};
        if (!value)
            return std::nullopt;
        const auto [end, error] = std::from_chars(value->data(), value->data() + value->size(), number);
        if (error != std::errc{} || end != value->data() + value->size())
            return std::nullopt;
        return number;
    }

    [[nodiscard]] std::string_view Rest() const noexcept { return rest_; }

  private:
    std::string_view rest_;
};

std::string_view NameOf(RecoveryRecord::Kind kind) {
    return kind == RecoveryRecord::Kind::UnsavedText ? UnsavedTextName : InterruptedWriteName;
}

}  // namespace

std::string PrintRecord(const RecoveryRecord& record) {
    std::string bytes;
    const auto add = [&](std::string_view name, std::string_view value) {
        bytes.append(name).append(": ").append(value).append("\n");
    };
    bytes.append(Title).append("\n");
    add("kind", NameOf(record.kind));
    add("path", Escaped(FileNameFromText(record.path)));
    add("caption", Escaped(FileNameFromText(record.caption)));
    add("time", std::to_string(record.time));
    add("known file", std::to_string(record.knownFile));
    add("length", std::to_string(record.bytes.size()));
    return bytes.append("\n").append(record.bytes);
}

std::optional<RecoveryRecord> ParseRecord(std::string_view bytes) {
    RecordLines lines(bytes);
    if (lines.TakeLine() != Title)
        return std::nullopt;
    const auto kind = lines.TakeValue("kind");
    const auto path = lines.TakeValue("path");
    const auto caption = lines.TakeValue("caption");
    const auto time = lines.TakeNumber<std::int64_t>("time");
    const auto knownFile = lines.TakeNumber<std::uint64_t>("known file");
    const auto length = lines.TakeNumber<std::size_t>("length");
    const bool isWhole = kind && path && caption && time && knownFile && length && lines.TakeLine() == "" &&
                         lines.Rest().size() == *length;
    if (!isWhole || (*kind != UnsavedTextName && *kind != InterruptedWriteName))
        return std::nullopt;
    return RecoveryRecord{
        *kind == UnsavedTextName ? RecoveryRecord::Kind::UnsavedText : RecoveryRecord::Kind::InterruptedWrite,
        TextFromFileName(Unescaped(*path)),
        TextFromFileName(Unescaped(*caption)),
        *time,
        *knownFile,
        std::string(lines.Rest())};
}

std::uint64_t Fingerprint(TextView text) noexcept {
    // The offset and the prime of FNV-1a for 64 bits.
    constexpr std::uint64_t Offset = 14695981039346656037U;
    constexpr std::uint64_t Prime = 1099511628211U;
    std::uint64_t fingerprint = Offset;
    for (const char16_t unit : text) {
        fingerprint = (fingerprint ^ (unit & 0xFFU)) * Prime;
        fingerprint = (fingerprint ^ (unit >> 8U)) * Prime;
    }
    return fingerprint == 0 ? 1 : fingerprint;
}

}  // namespace tintora
