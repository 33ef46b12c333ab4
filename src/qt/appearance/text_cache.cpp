#include "qt/appearance/text_cache.h"

#include "qt/core/convert.h"

#include <functional>
#include <utility>

namespace quill {
namespace {

// What fills a large screen with small labels, and a few long notes.
constexpr std::size_t mostRows = 1200, mostLetters = 60'000;

std::size_t Mixed(std::size_t seed, std::size_t more) {
    return seed * 31 + more;
}

bool IsNatural(const BlockShape& shape) {
    return !shape.Wrap && !shape.Elide && shape.Align == Qt::AlignLeft;
}

} // namespace

std::size_t TextCache::Hash::operator()(const Key& key) const {
    const auto& shape = key.Shape;
    std::size_t mixed = std::hash<std::string_view>()(key.Text);
    mixed = Mixed(mixed, std::hash<const void*>()(key.Font));
    return Mixed(mixed, std::hash<double>()(shape.Width));
}

// Most texts are one line from the left, and fit: these are the same whatever box they stand in.
LaidText& TextCache::Get(const FontEntry& font, std::string_view text, const BlockShape& shape) {
    if (shape.Wrap || shape.Align != Qt::AlignLeft) return Find(font, text, shape);
    auto& natural = Find(font, text, {});
    return IsNatural(shape) || natural.Block.AlsoFits(shape) ? natural : Find(font, text, shape);
}

void TextCache::Clear() {
    young_.clear();
    old_.clear();
    letters_ = 0;
}

LaidText& TextCache::Find(const FontEntry& font, std::string_view text, const BlockShape& shape) {
    const Key sought{&font, shape, text};
    if (const auto found = young_.find(sought); found != young_.end()) return found->second->Laid;
    Forget();
    auto row = old_.extract(sought);
    letters_ += text.size();
    if (row) return young_.insert(std::move(row)).position->second->Laid;
    auto fresh = std::make_unique<Row>(Row{std::string(text), {{font, Text(text), shape}, {}}});
    const Key key{&font, shape, fresh->Text};
    return young_.emplace(key, std::move(fresh)).first->second->Laid;
}

void TextCache::Forget() {
    if (young_.size() < mostRows && letters_ < mostLetters) return;
    old_ = std::exchange(young_, {});
    letters_ = 0;
}

} // namespace quill
