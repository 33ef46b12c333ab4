// The layout, all numbers with the lower byte first: a header of 76 bytes; if flagged, a list of item ids
// with its length in front, which is passed over; if flagged, the block that locates the target, whose
// offsets count from its own start; and up to five texts with their lengths in front. What follows them is
// not needed. Every length and offset is held against what is there before anything is read.
#include "shortcuts/shell_link.h"

#include "shortcuts/foreign_text.h"

#include <array>
#include <cstdint>

namespace quill {
namespace {

constexpr std::size_t headerSize = 76;
constexpr std::string_view classId("\x01\x14\x02\x00\x00\x00\x00\x00\xC0\x00\x00\x00\x00\x00\x00\x46", 16);
constexpr std::size_t flagsAt = 20;

enum LinkFlag : std::uint32_t {
    HasItemIds = 0x1,
    HasLocation = 0x2,
    HasDescription = 0x4,
    HasRelativePath = 0x8,
    HasWorkingDirectory = 0x10,
    HasArguments = 0x20,
    HasIcon = 0x40,
    TextsAreUtf16 = 0x80,
    IgnoresLocation = 0x100
};

enum LocationFlag : std::uint32_t { IsLocal = 0x1, IsNetwork = 0x2 };

// A piece of the file. A read beyond its end gives nothing, and says so for good.
class Block {
public:
    explicit Block(std::string_view bytes) : bytes_(bytes) {}

    bool Whole() const { return whole_; }
    std::uint32_t Number(std::size_t at, std::size_t width) {
        std::uint32_t number = 0;
        for (const char byte : Piece(at, width))
            number = number >> 8 | static_cast<std::uint32_t>(static_cast<unsigned char>(byte)) << 24;
        return width == 4 ? number : number >> 16;
    }
    std::uint32_t Long(std::size_t at) { return Number(at, 4); }
    std::uint32_t Short(std::size_t at) { return Number(at, 2); }
    std::string_view Piece(std::size_t at, std::size_t length) {
        if (at <= bytes_.size() && length <= bytes_.size() - at) return bytes_.substr(at, length);
        whole_ = false;
        return {};
    }
    // Up to the byte or the pair of bytes that is 0.
    std::string Narrow(std::size_t at) {
        const auto rest = From(at);
        const auto end = rest.find('\0');
        if (end == rest.npos) whole_ = false;
        return whole_ ? FromWindows1252(rest.substr(0, end)) : std::string();
    }
    std::string Wide(std::size_t at) {
        const auto rest = From(at);
        for (std::size_t end = 0; end + 1 < rest.size(); end += 2)
            if (rest[end] == '\0' && rest[end + 1] == '\0')
                return FromUtf16(rest.substr(0, end), ByteOrder::LowFirst);
        whole_ = false;
        return {};
    }

private:
    std::string_view From(std::size_t at) {
        if (at < bytes_.size()) return bytes_.substr(at);
        whole_ = false;
        return {};
    }

    std::string_view bytes_;
    bool whole_ = true;
};

// A text of the block with a second, better form of it where the block is long enough to hold one.
std::string Text(Block& block, std::size_t narrowAt, std::size_t wideAt, bool hasWide) {
    const std::size_t wide = hasWide ? block.Long(wideAt) : 0;
    if (wide != 0) return block.Wide(wide);
    const std::size_t narrow = block.Long(narrowAt);
    return narrow == 0 ? std::string() : block.Narrow(narrow);
}

std::string Joined(std::string folder, const std::string& rest) {
    if (rest.empty()) return folder;
    if (!folder.empty() && folder.back() != '\\') folder += '\\';
    return folder + rest;
}

// "\\server\share".
bool ReadShare(Block& location, std::string& share) {
    constexpr std::size_t longerHeader = 0x14;
    const std::size_t at = location.Long(20);
    if (at == 0) return false;
    Block block(location.Piece(at, location.Long(at)));
    const bool hasWide = block.Long(8) > longerHeader;
    share = Text(block, 8, 20, hasWide);
    return location.Whole() && block.Whole();
}

bool ReadLocation(std::string_view bytes, ShellLink& link) {
    constexpr std::size_t longerHeader = 0x24;
    Block block(bytes);
    const bool hasWide = block.Long(4) >= longerHeader;
    const std::uint32_t flags = block.Long(8);
    const std::string rest = Text(block, 24, 32, hasWide);
    if (flags & IsLocal) link.LocalPath = Text(block, 16, 28, hasWide) + rest;
    if (!(flags & IsNetwork)) return block.Whole();
    std::string share;
    if (!ReadShare(block, share)) return false;
    link.NetworkPath = Joined(share, rest);
    return block.Whole();
}

// A text stops where a 0 stands in it: no path and no name goes on behind one.
std::string Decoded(std::string_view bytes, bool wide) {
    std::string text = wide ? FromUtf16(bytes, ByteOrder::LowFirst) : FromWindows1252(bytes);
    return text.substr(0, text.find('\0'));
}

bool ReadTexts(Block& file, std::size_t at, std::uint32_t flags, ShellLink& link) {
    struct Row {
        std::uint32_t Flag;
        std::string ShellLink::*Field;
    };
    static constexpr std::array rows{
        Row{HasDescription, &ShellLink::Description}, Row{HasRelativePath, &ShellLink::RelativePath},
        Row{HasWorkingDirectory, &ShellLink::WorkingDirectory}, Row{HasArguments, &ShellLink::Arguments}};
    const bool wide = (flags & TextsAreUtf16) != 0;
    for (const Row& row : rows) {
        if (!(flags & row.Flag)) continue;
        const std::size_t length = file.Short(at) * (wide ? 2U : 1U);
        link.*row.Field = Decoded(file.Piece(at + 2, length), wide);
        at += 2 + length;
    }
    if (flags & HasIcon) file.Piece(at, 2 + file.Short(at) * (wide ? 2U : 1U));
    return file.Whole();
}

} // namespace

std::optional<ShellLink> ReadShellLink(std::string_view bytes) {
    Block file(bytes);
    if (file.Long(0) != headerSize || file.Piece(4, classId.size()) != classId) return std::nullopt;
    if (file.Piece(0, headerSize).empty()) return std::nullopt;
    const std::uint32_t flags = file.Long(flagsAt);
    std::size_t at = headerSize;
    if (flags & HasItemIds) at += 2 + file.Short(at);
    ShellLink link;
    if (flags & HasLocation) {
        const std::size_t length = file.Long(at);
        const auto location = file.Piece(at, length);
        if (!(flags & IgnoresLocation) && !ReadLocation(location, link)) return std::nullopt;
        at += length;
    }
    if (!ReadTexts(file, at, flags, link)) return std::nullopt;
    return link;
}

} // namespace quill
