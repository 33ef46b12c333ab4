#include "qt/keyboard/launcher_desk.h"

#include "core/frmMain.h"
#include "keyboard/jump_to.h"
#include "qt/core/convert.h"
#include "qt/keyboard/search_field.h"
#include "qt/keyboard/search_list.h"

#include <utility>

namespace quill {

LauncherDesk::LauncherDesk(const Attachment& attached, const Fonts& fonts, std::function<void()> drain)
    : attached_(attached), fonts_(fonts), drain_(std::move(drain)) {}

LauncherDesk::~LauncherDesk() = default;

void LauncherDesk::Follow(const std::function<QWidget*()>& surface) {
    QWidget* box = IsJumpToOpen(*attached_.Main) ? surface() : nullptr;
    if (box == nullptr) return Close();
    Make(*box);
    Open(*box);
}

void LauncherDesk::Raise() {
    if (list_) list_->raise();
}

// A press on the box or the list leaves the keyboard where it is.
void LauncherDesk::Make(QWidget& surface) {
    if (field_) return;
    field_ = new SearchField(attached_, fonts_, drain_, &surface);
    surface.setFocusPolicy(Qt::ClickFocus);
    surface.setFocusProxy(field_);
    list_ = new SearchList(attached_, fonts_, *field_, surface.parentWidget());
}

void LauncherDesk::Open(QWidget& surface) {
    open_ = true;
    const auto& Main = *attached_.Main;
    const QRect pixels = PixelRect(PlaceOfJumpToPart(Main, ElementKind::cboSearch));
    if (field_->geometry() != pixels) field_->setGeometry(pixels);
    field_->TakeOver();
    field_->show();
    if (list_->parentWidget() != surface.parentWidget()) list_->setParent(surface.parentWidget());
    list_->Follow();
    if (std::exchange(fulfilled_, Main.Keys.PicJumpToLink.cboSearch.FocusWish) != fulfilled_)
        field_->setFocus(Qt::OtherFocusReason);
}

// A note that the box has opened has the keyboard by now.
void LauncherDesk::Close() {
    if (!std::exchange(open_, false) || !field_) return;
    QWidget* window = field_->window();
    const QWidget* focused = window->focusWidget();
    const bool had = focused == nullptr || focused == field_;
    field_->hide();
    list_->hide();
    if (had) window->setFocus(Qt::OtherFocusReason);
}

} // namespace quill
