// Link files, written byte by byte as other systems write them.
#pragma once

#include <cstdint>
#include <string>

namespace quill::test {

inline std::string Bytes(std::uint32_t number, int width) {
    std::string bytes;
    for (int at = 0; at < width; ++at) bytes += static_cast<char>(number >> (8 * at));
    return bytes;
}

// Of a text whose letters are all below U+10000.
inline std::string Utf16(const std::u16string& text) {
    std::string bytes;
    for (const char16_t unit : text) bytes += Bytes(unit, 2);
    return bytes;
}

// An empty field is not written. Texts are in the narrow letters; the wide ones, where they are set, stand
// beside them.
struct LinkFile {
    std::string Local, Share, Suffix; // Windows-1252
    std::u16string LocalWide, ShareWide, SuffixWide;
    std::string Description, Relative, WorkingDirectory, Arguments, Icon;
    std::u16string DescriptionWide, RelativeWide, WorkingDirectoryWide, ArgumentsWide, IconWide;
    bool Wide = false;       // the five texts are
    std::string ItemIds;     // what stands in the list
    std::uint32_t Flags = 0; // more of them

    std::string Text() const {
        const bool location = !Local.empty() || !Share.empty() || !LocalWide.empty() || !ShareWide.empty();
        std::string bytes = Header(FlagsOf(location));
        if (!ItemIds.empty()) bytes += Bytes(static_cast<std::uint32_t>(ItemIds.size()), 2) + ItemIds;
        if (location) bytes += Location();
        bytes += Piece(Description, DescriptionWide) + Piece(Relative, RelativeWide);
        bytes += Piece(WorkingDirectory, WorkingDirectoryWide) + Piece(Arguments, ArgumentsWide);
        return bytes + Piece(Icon, IconWide);
    }

    std::string Location() const {
        const bool wide = !LocalWide.empty() || !ShareWide.empty() || !SuffixWide.empty();
        const std::uint32_t header = wide ? 0x24 : 0x1C;
        std::string rest;
        const auto offset = [&] { return static_cast<std::uint32_t>(header + rest.size()); };
        std::uint32_t local = 0, share = 0, localWide = 0, suffixWide = 0;
        if (HasLocal()) local = offset(), rest += Local + '\0';
        if (HasShare()) share = offset(), rest += Network();
        const std::uint32_t suffix = offset();
        rest += Suffix + '\0';
        if (wide && HasLocal()) localWide = offset(), rest += Utf16(LocalWide) + Bytes(0, 2);
        if (wide) suffixWide = offset(), rest += Utf16(SuffixWide) + Bytes(0, 2);
        std::string bytes = Bytes(offset(), 4) + Bytes(header, 4);
        bytes += Bytes((HasLocal() ? 1U : 0U) | (HasShare() ? 2U : 0U), 4) + Bytes(0, 4);
        bytes += Bytes(local, 4) + Bytes(share, 4) + Bytes(suffix, 4);
        if (wide) bytes += Bytes(localWide, 4) + Bytes(suffixWide, 4);
        return bytes + rest;
    }

private:
    bool HasLocal() const { return !Local.empty() || !LocalWide.empty(); }
    bool HasShare() const { return !Share.empty() || !ShareWide.empty(); }
    std::uint32_t FlagsOf(bool location) const {
        const auto flag = [](bool on, std::uint32_t value) { return on ? value : 0U; };
        const auto has = [](const auto& one, const auto& other) { return !one.empty() || !other.empty(); };
        return Flags | flag(!ItemIds.empty(), 1) | flag(location, 2) |
               flag(has(Description, DescriptionWide), 4) | flag(has(Relative, RelativeWide), 8) |
               flag(has(WorkingDirectory, WorkingDirectoryWide), 16) |
               flag(has(Arguments, ArgumentsWide), 32) | flag(has(Icon, IconWide), 64) | flag(Wide, 128);
    }
    static std::string Header(std::uint32_t flags) {
        std::string bytes = Bytes(76, 4) + Bytes(0x00021401, 4) + Bytes(0, 4) + Bytes(0xC0, 4) +
                            Bytes(0x46000000, 4) + Bytes(flags, 4);
        bytes.resize(76);
        return bytes;
    }
    std::string Piece(const std::string& text, const std::u16string& wide) const {
        if (text.empty() && wide.empty()) return {};
        if (!Wide) return Bytes(static_cast<std::uint32_t>(text.size()), 2) + text;
        const std::u16string letters = wide.empty() ? std::u16string(text.begin(), text.end()) : wide;
        return Bytes(static_cast<std::uint32_t>(letters.size()), 2) + Utf16(letters);
    }
    std::string Network() const {
        const std::uint32_t header = ShareWide.empty() ? 20 : 28;
        const auto name = Share + '\0';
        const auto wide = ShareWide.empty() ? std::string() : Utf16(ShareWide) + Bytes(0, 2);
        std::string bytes = Bytes(static_cast<std::uint32_t>(header + name.size() + wide.size()), 4);
        bytes += Bytes(0, 4) + Bytes(header, 4) + Bytes(0, 4) + Bytes(0, 4);
        if (!wide.empty()) bytes += Bytes(static_cast<std::uint32_t>(header + name.size()), 4) + Bytes(0, 4);
        return bytes + name + wide;
    }
};

} // namespace quill::test
