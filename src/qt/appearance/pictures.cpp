#include "qt/appearance/pictures.h"

#include "qt/appearance/decode.h"

#include <algorithm>

namespace quill {
namespace {

constexpr std::size_t sizesKept = 2; // of one file: it may be shown twice, at different sizes

} // namespace

QImage Pictures::Get(const QString& path, QSize size, const Spot& spot) {
    auto& entry = entries_[path];
    if (!entry) entry = std::make_shared<Entry>();
    const auto exact =
        std::ranges::find(entry->Sizes, size, [](const QImage& image) { return image.size(); });
    if (exact != entry->Sizes.end()) return *exact;
    if (entry->Unreadable || size.isEmpty()) return {};
    entry->Waiting.Add(spot);
    if (!entry->Pending) Fetch(path, size);
    return entry->Sizes.empty() ? QImage() : entry->Sizes.back();
}

void Pictures::Forget(const QString& path) {
    entries_.remove(path);
}

void Pictures::Begin() {
    begun_ = true;
    for (const auto& [path, size] : std::exchange(early_, {}))
        if (entries_.contains(path)) Fetch(path, size);
}

void Pictures::Fetch(const QString& path, QSize size) {
    entries_[path]->Pending = true;
    if (!begun_) return early_.emplace_back(path, size), void();
    const auto image = std::make_shared<QImage>();
    worker_.Run([image, path, size] { *image = DecodeStretched(path, size); },
                [this, image, path] { Arrived(path, *image); });
}

void Pictures::Arrived(const QString& path, const QImage& image) {
    const auto found = entries_.constFind(path);
    if (found == entries_.constEnd()) return; // forgotten meanwhile
    auto& entry = **found;
    entry.Pending = false;
    entry.Unreadable = image.isNull();
    if (!image.isNull()) entry.Sizes.push_back(image);
    if (entry.Sizes.size() > sizesKept) entry.Sizes.erase(entry.Sizes.begin());
    entry.Waiting.Repaint();
}

} // namespace quill
