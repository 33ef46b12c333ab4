// TextCache: the texts that were measured or drawn lately, laid out. What is on the screen is laid out once,
// however often it is painted; what has not been seen for a while is forgotten.
#pragma once

#include "qt/appearance/halo.h"
#include "qt/appearance/text_block.h"

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace quill {

struct LaidText {
    TextBlock Block;
    quill::Halo Halo; // made when it is first drawn
};

class TextCache {
public:
    // Stands until the next call. The text is UTF-8.
    LaidText& Get(const FontEntry& font, std::string_view text, const BlockShape& shape);
    void Clear();

private:
    struct Key {
        const FontEntry* Font;
        BlockShape Shape;
        std::string_view Text; // the text of the row itself, or that which is sought
        bool operator==(const Key&) const = default;
    };
    struct Hash {
        std::size_t operator()(const Key& key) const;
    };
    struct Row {
        std::string Text;
        LaidText Laid;
    };
    using Rows = std::unordered_map<Key, std::unique_ptr<Row>, Hash>;

    LaidText& Find(const FontEntry& font, std::string_view text, const BlockShape& shape);
    void Forget(); // the older half, when there are many

    Rows young_, old_;
    std::size_t letters_ = 0; // in the young ones
};

} // namespace quill
