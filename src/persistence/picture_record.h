// A picture's record, "[Picture]" to "[End Picture]", and the older form of it, which has no closing line and
// a fixed order. A plain value; it does not know whether the file is there.
#pragma once

#include "persistence/tag_reader.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace quill {

inline constexpr std::string_view PictureOpen = "[Picture]";
inline constexpr std::string_view PictureClose = "[End Picture]";

struct PictureRecord {
    float PicX = 0, PicY = 0, PicW = 0, PicH = 0; // the frame, twips
    std::string_view PicPath;                     // as stored
    std::string_view Comment;
    std::int32_t SlideShow = -1; // -1: none
};

std::span<const TagRow<PictureRecord>> PictureTags();

// Behind "[Picture]". False: damage, or broken off.
bool ReadPicture(TagReader& reader, PictureRecord& record);
bool ReadOldPicture(TagReader& reader, PictureRecord& record);
void WritePicture(std::string& out, const PictureRecord& record);

} // namespace quill
