#include "qt/notes/note_desk.h"

#include "core/frmMain.h"
#include "core/handlers.h"
#include "core/surfaces.h"
#include "notes/notes.h"
#include "qt/core/convert.h"
#include "qt/notes/note_box.h"

#include <optional>

namespace quill {
namespace {

// Pixels. The painted note shows around the box with its round corners, and the text stays where it was.
constexpr int inset = 3;

std::optional<Rect> PlaceOfNote(const frmMain& Main, int index) {
    const SurfaceId surface{SurfaceKind::Container, index};
    if (!IsLive(Main.Containers, index) || !SurfaceVisible(Main, surface)) return {};
    std::optional<Rect> place;
    Elements(Main, surface, [&](const ElementInfo& element) {
        if (element.Id.Kind == ElementKind::ContainerNote) place = element.Place;
        return !place;
    });
    return place;
}

} // namespace

void NoteDesk::Open(QWidget& surface, int index, QPoint caretAt) {
    Make(surface, index);
    if (!box_) return;
    box_->setTextCursor(box_->cursorForPosition(box_->viewport()->mapFrom(&surface, caretAt)));
    box_->setFocus(Qt::MouseFocusReason);
}

void NoteDesk::Raise() {
    if (box_) box_->raise();
}

void NoteDesk::Leave() {
    if (box_) box_->window()->setFocus(Qt::OtherFocusReason);
    Close();
}

void NoteDesk::Follow(const std::function<QWidget*(int)>& surfaceOf) {
    if (box_ && !PlaceBox()) Leave();
    for (const auto& row : Live(attached_.Main->Containers)) {
        auto& fulfilled = wishes_[row.Index];
        const auto wish = attached_.Main->ConView(row.Index).ContainerNote.FocusWish;
        if (wish == fulfilled) continue;
        QWidget* surface = surfaceOf(row.Index);
        if (surface == nullptr) continue; // an effect hides it until it stands
        fulfilled = wish;
        Make(*surface, row.Index);
        if (!box_) continue;
        box_->moveCursor(QTextCursor::End);
        box_->setFocus(Qt::OtherFocusReason);
    }
}

void NoteDesk::Make(QWidget& surface, int index) {
    if (box_ && box_->Index() == index) return;
    Close();
    box_ = new NoteBox(
        index, attached_, fonts_, [this] { Close(); }, &surface);
    if (!PlaceBox()) return Close();
    box_->show();
    box_->ScrollTo(TopOfNote(*attached_.Main, index));
}

// The box may be in the middle of an event of its own.
void NoteDesk::Close() {
    if (!box_) return;
    NoteBox* box = box_;
    box_ = nullptr;
    const auto [paragraph, above] = box->Top();
    if (attached_.Alive()) ContainerNote_Scroll(*attached_.Main, box->Index(), paragraph, above);
    box->hide();
    box->deleteLater();
}

// False when there is no such note any more.
bool NoteDesk::PlaceBox() {
    const auto place = PlaceOfNote(*attached_.Main, box_->Index());
    if (!place) return false;
    const QRect pixels = PixelRect(*place).adjusted(inset, inset, -inset, -inset);
    if (box_->geometry() != pixels) box_->setGeometry(pixels);
    box_->TakeOver(attached_.Main->ConView(box_->Index()).ContainerNote);
    return true;
}

} // namespace quill
