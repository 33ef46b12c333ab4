#include "qt/dock/tray_menu.h"

#include "core/handlers.h"
#include "qt/core/convert.h"

#include <QAction>

#include <algorithm>

namespace quill {
namespace {

bool IsSame(const std::vector<MenuLine>& one, const std::vector<MenuLine>& other);

bool IsSameLine(const MenuLine& one, const MenuLine& other) {
    return one.Caption == other.Caption && one.Enabled == other.Enabled && one.Checkable == other.Checkable &&
           one.Checked == other.Checked && one.Id == other.Id && IsSame(one.Children, other.Children);
}

bool IsSame(const std::vector<MenuLine>& one, const std::vector<MenuLine>& other) {
    return std::ranges::equal(one, other, IsSameLine);
}

void Fill(QMenu& menu, const std::vector<MenuLine>& lines);

void AddLine(QMenu& menu, const MenuLine& line) {
    if (line.Caption == "-") {
        menu.addSeparator();
        return;
    }
    if (!line.Children.empty()) {
        QMenu* below = menu.addMenu(Text(line.Caption));
        below->setEnabled(line.Enabled);
        return Fill(*below, line.Children);
    }
    QAction* action = menu.addAction(Text(line.Caption));
    action->setEnabled(line.Enabled);
    action->setCheckable(line.Checkable);
    action->setChecked(line.Checked);
    action->setData(line.Id);
}

void Fill(QMenu& menu, const std::vector<MenuLine>& lines) {
    for (const MenuLine& line : lines) AddLine(menu, line);
}

// The sub-menus are children of the menu, which only clears its lines by itself.
void Empty(QMenu& menu) {
    menu.clear();
    for (QMenu* below : menu.findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly))
        below->deleteLater();
}

} // namespace

// A command may ask something and wait for the answer, and the tray that told of it must not wait as well: so
// it runs in a turn of its own.
TrayMenu::TrayMenu(const Attachment& attached) : attached_(attached) {
    connect(this, &QMenu::aboutToShow, this, [this] { Refill(); });
    connect(this, &QMenu::triggered, this, [this](QAction* line) { Choose(line->data().toInt()); });
    Refill();
}

// Unchanged lines stand: some trays close a menu that changes while it opens.
void TrayMenu::Refill() {
    if (!attached_.Alive()) return;
    auto lines = TrayMenu_Lines(*attached_.Main);
    if (IsSame(lines, shown_)) return;
    Empty(*this);
    Fill(*this, lines);
    shown_ = std::move(lines);
}

void TrayMenu::Choose(int id) {
    const auto run = [this, id] {
        if (attached_.Alive() && !attached_.Ending) TrayMenu_Click(*attached_.Main, id);
    };
    QMetaObject::invokeMethod(this, run, Qt::QueuedConnection);
}

} // namespace quill
