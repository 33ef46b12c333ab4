#include "qt/appearance/icons.h"

#include "qt/core/convert.h"
#include "qt/system/memory.h"

#include <QElapsedTimer>
#include <QPixmapCache>
#include <QTimerEvent>

namespace quill {
namespace {

constexpr int turnBudget = 4; // milliseconds of a turn

std::string KeyOf(const IconSource& source, int side) {
    std::string key = std::to_string(side);
    key += source.IsImage ? '!' : '|';
    key += source.ThemeName;
    key += '|';
    return key += source.File;
}

} // namespace

QImage Icons::Get(const IconSource& source, int side, const Spot& spot) {
    if (side <= 0 || (source.File.empty() && source.ThemeName.empty())) return {};
    auto& entry = entries_[KeyOf(source, side)];
    if (!entry) {
        entry = std::make_shared<Entry>();
        entry->Source = source;
        entry->Side = side;
        if (begun_)
            Fetch(entry);
        else
            early_.push_back(entry);
    }
    if (entry->Pending) entry->Waiting.Add(spot);
    return entry->Image;
}

QImage Icons::Now(const IconSource& source, int side) {
    if (side <= 0) return {};
    const IconAnswer answer = FindIcon(source, side);
    return answer.Image.isNull() ? FromTheme(answer.Names, side) : answer.Image;
}

void Icons::Forget(const std::string& path) {
    for (auto at = entries_.begin(); at != entries_.end();)
        at = at->second->Source.File == path ? entries_.erase(at) : std::next(at);
}

void Icons::Begin() {
    if (begun_) return;
    begun_ = true;
    for (const auto& entry : early_) Fetch(entry);
    early_.clear();
}

void Icons::Fetch(const EntryPtr& entry) {
    const auto found = std::make_shared<IconAnswer>();
    worker_.Run([found, source = entry->Source, side = entry->Side] { *found = FindIcon(source, side); },
                [this, found, entry] {
                    answers_.push_back({entry, *found});
                    if (!turn_.isActive()) turn_.start(0, this);
                });
}

void Icons::timerEvent(QTimerEvent* event) {
    if (event->timerId() != turn_.timerId()) return;
    QElapsedTimer spent;
    spent.start();
    while (!answers_.empty() && spent.elapsed() < turnBudget) {
        Settle(answers_.front());
        answers_.pop_front();
    }
    if (!answers_.empty()) return;
    turn_.stop();
    QPixmapCache::clear(); // the theme's own copies of what is kept here
    worker_.Run(&GiveMemoryBack, [] {});
}

void Icons::Settle(const Answer& answer) {
    auto& entry = *answer.Of;
    entry.Pending = false;
    entry.Image = answer.Found.Image;
    if (entry.Image.isNull()) entry.Image = FromTheme(answer.Found.Names, entry.Side);
    entry.Waiting.Repaint();
}

QImage Icons::FromTheme(const std::vector<std::string>& names, int side) {
    if (names.empty()) return {};
    QString key = QString::number(side);
    for (const auto& name : names) key += QLatin1Char('|') + Text(name);
    const auto found = drawn_.constFind(key);
    if (found != drawn_.constEnd()) return *found;
    return *drawn_.insert(key, theme_.Draw(names, side));
}

} // namespace quill
