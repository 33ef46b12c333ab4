// Pictures: image files shown at a size, decoded off the thread when they are first seen. While a new size is
// being made the old one stands in, stretched.
#pragma once

#include "platform/work.h"
#include "qt/appearance/waiting_places.h"

#include <QHash>
#include <QImage>
#include <QString>

#include <memory>
#include <utility>
#include <vector>

namespace quill {

class Pictures {
public:
    explicit Pictures(Worker& worker) : worker_(worker) {}

    // The best that is there; null while nothing is, or when the file can't be read. The size is device
    // pixels.
    QImage Get(const QString& path, QSize size, const Spot& spot);
    void Forget(const QString& path);
    void Begin(); // the first picture of the workspace is on the screen; nothing is read before

private:
    struct Entry {
        std::vector<QImage> Sizes; // newest last, at most two
        bool Pending = false;
        bool Unreadable = false;
        WaitingPlaces Waiting;
    };
    void Fetch(const QString& path, QSize size);
    void Arrived(const QString& path, const QImage& image);

    Worker& worker_;
    bool begun_ = false;
    std::vector<std::pair<QString, QSize>> early_;
    QHash<QString, std::shared_ptr<Entry>> entries_;
};

} // namespace quill
