// A shortcut's record, "[Link]" to "[End Link]", as it stands in a container file and in the settings file. A
// plain value with one table of its tags; it knows neither the tables of the workspace nor what a target is.
#pragma once

#include "persistence/tag_reader.h"
#include "platform/geometry.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace quill {

inline constexpr std::string_view LinkOpen = "[Link]";
inline constexpr std::string_view LinkClose = "[End Link]";

// Texts point into what was read, or into the tables when it is to be written.
struct LinkRecord {
    std::int16_t Size = 0; // points; 0: not given, the workspace's own
    float LinkX = 0, LinkY = 0;
    std::string_view LinkLabel;
    std::int16_t LinkType = 0; // 1 address, 2 file, folder or command; anything else makes nothing
    std::string_view LinkPath; // as stored
    std::string_view LinkParam;
    quill::Color Color = -1; // -1: the parent's
    bool Bold = false, Confirm = false, Command = false;
    std::string_view Icon; // as stored
    std::string_view Tags;
    std::int16_t RunIn = 1;
    bool TagStart = false, PromptParameters = false;
    std::string_view StartIn; // as stored
    bool Admin = false;
    std::uint8_t SpeedLaunch = 0;
    std::string_view Tip;
};

std::span<const TagRow<LinkRecord>> LinkTags();
// The target is a path: neither an address nor a command's text.
bool HoldsPath(const LinkRecord& record);

// Behind "[Link]". False: damage, or nothing to be made of it.
bool ReadLink(TagReader& reader, LinkRecord& record);
void WriteLink(std::string& out, const LinkRecord& record);

} // namespace quill
