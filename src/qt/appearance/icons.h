// Icons: the icons of shortcuts, fetched when they are first seen, and not before the first picture is on the
// screen. The disk is asked off the thread; the theme a few icons a turn of the event loop.
#pragma once

#include "platform/drawing.h"
#include "platform/work.h"
#include "qt/appearance/icon_names.h"
#include "qt/appearance/icon_theme.h"
#include "qt/appearance/waiting_places.h"

#include <QBasicTimer>
#include <QHash>
#include <QObject>

#include <deque>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace quill {

class Icons : public QObject {
public:
    explicit Icons(Worker& worker) : worker_(worker) {}

    // Null while it is not there, or when there is none.
    QImage Get(const IconSource& source, int side, const Spot& spot);
    // Fetched now, for who needs the picture itself; null when there is none.
    QImage Now(const IconSource& source, int side);
    void Forget(const std::string& path);
    void Begin(); // the first picture is on the screen

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    struct Entry {
        IconSource Source;
        int Side = 0;
        QImage Image;
        bool Pending = true;
        WaitingPlaces Waiting;
    };
    using EntryPtr = std::shared_ptr<Entry>;
    struct Answer {
        EntryPtr Of;
        IconAnswer Found;
    };

    void Fetch(const EntryPtr& entry);
    void Settle(const Answer& answer);
    QImage FromTheme(const std::vector<std::string>& names, int side);

    Worker& worker_;
    IconTheme theme_;
    bool begun_ = false;
    std::vector<EntryPtr> early_; // asked for before the first picture
    std::deque<Answer> answers_;  // to be looked up in the theme
    QBasicTimer turn_;
    std::unordered_map<std::string, EntryPtr> entries_;
    QHash<QString, QImage> drawn_; // by names and side: most files share their icon with others
};

} // namespace quill
