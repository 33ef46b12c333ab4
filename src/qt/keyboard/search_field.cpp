#include "qt/keyboard/search_field.h"

#include "appearance/paint_jump_to.h"
#include "core/frmMain.h"
#include "core/handlers.h"
#include "core/tr.h"
#include "keyboard/jump_to.h"
#include "keyboard/jump_to_measures.h"
#include "qt/appearance/fonts.h"
#include "qt/core/convert.h"
#include "qt/core/keys.h"
#include "qt/keyboard/field_points.h"

#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <utility>

namespace quill {
namespace {

constexpr int textMargin = 8; // pixels beside the text
constexpr int ringWidth = 2;

} // namespace

SearchField::SearchField(const Attachment& attached, const Fonts& fonts, std::function<void()> used,
                         QWidget* parent)
    : QLineEdit(parent), attached_(attached), fonts_(fonts), used_(std::move(used)) {
    setObjectName(QStringLiteral("cboSearch"));
    setFrame(false);
    setTextMargins(textMargin, 0, textMargin, 0);
    setAccessibleName(Text(Tr(*attached.Main, "Keyboard Launcher")));
    connect(this, &QLineEdit::textChanged, this, [this] { Changed(); });
}

void SearchField::TakeOver() {
    SetLooks();
    const auto& box = attached_.Main->Keys.PicJumpToLink;
    if (revision_ != box.cboSearch.Revision) {
        revision_ = box.cboSearch.Revision;
        TakeText(box.cboSearch);
    }
    Describe();
}

void SearchField::TakeText(const SearchBox& box) {
    const QString text = Text(box.Text);
    taking_ = true;
    if (text != this->text()) setText(text);
    taking_ = false;
    const int from = UnitOfPoint(text, box.SelStart);
    const int to = UnitOfPoint(text, box.SelStart + box.SelLength);
    if (to > from)
        setSelection(from, to - from);
    else
        setCursorPosition(from);
}

void SearchField::SetLooks() {
    const auto shown = ColorsOfJumpTo(*attached_.Main);
    QPalette colors = palette();
    colors.setColor(QPalette::Base, Qt::transparent);
    colors.setColor(QPalette::Text, Ink(shown.Ink));
    colors.setColor(QPalette::Highlight, Ink(shown.Plate));
    colors.setColor(QPalette::HighlightedText, Ink(shown.PlateInk));
    if (colors != palette()) setPalette(colors);
    const QFont& font = fonts_.Get({attached_.Main->Settings.FontName, JumpToTextPoints}).Font;
    if (font != this->font()) setFont(font);
}

// What Enter would do is told of the field, since the keyboard never leaves it.
void SearchField::Describe() {
    const auto& box = attached_.Main->Keys.PicJumpToLink;
    const QString says =
        Text(OnOneLine(box.lblJumpToLink)) + QStringLiteral(". ") + Text(OnOneLine(box.lblJumpToTip));
    if (says != accessibleDescription()) setAccessibleDescription(says);
}

void SearchField::Changed() {
    if (taking_ || !attached_.Alive()) return;
    cboSearch_Change(*attached_.Main, Bytes(text()), PointsBefore(text(), cursorPosition()));
}

// A key may start a program, ask a question or end the whole; none may reach the workspace below.
void SearchField::keyPressEvent(QKeyEvent* event) {
    const QPointer<SearchField> alive(this);
    if (attached_.Alive() && !IsUsed(*event) && alive && attached_.Alive()) QLineEdit::keyPressEvent(event);
    event->accept();
    if (alive && attached_.Alive()) used_();
}

bool SearchField::IsUsed(const QKeyEvent& event) {
    auto& Main = *attached_.Main;
    const KeyEvent key = KeyOf(event, TypingInto::TextField);
    const qsizetype from = hasSelectedText() ? selectionStart() : cursorPosition();
    const int first = PointsBefore(text(), from);
    const int length = PointsBefore(text(), from + selectionLength()) - first;
    if (cboSearch_KeyDown(Main, key, first, length)) return true;
    return !attached_.Alive() || Form_KeyDown(Main, key);
}

// Nothing below the field takes a press that it has no use for.
void SearchField::mousePressEvent(QMouseEvent* event) {
    QLineEdit::mousePressEvent(event);
    event->accept();
}

// Files and addresses are for the workspace, which makes shortcuts of them.
void SearchField::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls()) return event->ignore();
    QLineEdit::dragEnterEvent(event);
}

void SearchField::paintEvent(QPaintEvent* event) {
    if (hasFocus() && attached_.Alive()) {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Ink(ColorsOfJumpTo(*attached_.Main).Soft), ringWidth));
        constexpr qreal half = ringWidth / 2.0, corner = JumpToFieldCorner / TwipsPerPixel - half;
        painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), corner, corner);
    }
    QLineEdit::paintEvent(event);
}

} // namespace quill
