#include "qt/notes/note_box.h"

#include "core/frmMain.h"
#include "core/handlers.h"
#include "qt/appearance/fonts.h"
#include "qt/core/convert.h"
#include "qt/core/keys.h"

#include <QDragEnterEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextOption>

#include <cmath>
#include <utility>

namespace quill {
namespace {

constexpr int margin = 2; // pixels between the box and its text

} // namespace

NoteBox::NoteBox(int index, const Attachment& attached, const Fonts& fonts, std::function<void()> left,
                 QWidget* parent)
    : QPlainTextEdit(parent), index_(index), attached_(attached), fonts_(fonts), left_(std::move(left)) {
    setObjectName(QStringLiteral("ContainerNote"));
    if (Alive()) setAccessibleName(Text(attached.Main->ConView(index).ContainerLabel.Caption));
    setFrameShape(QFrame::NoFrame);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    document()->setDocumentMargin(margin);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QPlainTextEdit::textChanged, this, [this] { Changed(); });
}

void NoteBox::TakeOver(const NoteView& note) {
    SetColors(note);
    if (revision_ == note.Revision) return;
    revision_ = note.Revision;
    taking_ = true;
    setPlainText(Text(note.Text));
    taking_ = false;
}

// Files and addresses are for the container behind the box, which makes shortcuts of them.
void NoteBox::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls()) return event->ignore();
    QPlainTextEdit::dragEnterEvent(event);
}

bool NoteBox::Alive() const {
    return attached_.Alive() && IsLive(attached_.Main->Containers, index_);
}

void NoteBox::SetColors(const NoteView& note) {
    QPalette colors = palette();
    colors.setColor(QPalette::Base, Ink(note.BackColor));
    colors.setColor(QPalette::Text, Ink(note.ForeColor));
    if (colors != palette()) setPalette(colors);
    const QFont font = fonts_.Get({attached_.Main->Settings.FontName, note.FontSize}).Font;
    if (document()->defaultFont() != font) document()->setDefaultFont(font);
}

void NoteBox::Changed() {
    if (!taking_ && Alive()) ContainerNote_Change(*attached_.Main, index_, Bytes(toPlainText()));
}

NoteTop NoteBox::Top() const {
    const QTextBlock block = firstVisibleBlock();
    const int lines = verticalScrollBar()->value() - block.firstLineNumber();
    const double above = lines * QFontMetricsF(document()->defaultFont()).lineSpacing();
    return {block.blockNumber(), static_cast<float>(above * TwipsPerPixel)};
}

void NoteBox::ScrollTo(const NoteTop& top) {
    const double line = QFontMetricsF(document()->defaultFont()).lineSpacing() * TwipsPerPixel;
    const QTextBlock block = document()->findBlockByNumber(top.Paragraph);
    verticalScrollBar()->setValue(block.firstLineNumber() + static_cast<int>(std::lround(top.Above / line)));
}

// A press that the box has no use for is still its own: passed on, it would open the container's menu in
// place of the one to cut, copy and paste.
void NoteBox::mousePressEvent(QMouseEvent* event) {
    QPlainTextEdit::mousePressEvent(event);
    event->accept();
}

void NoteBox::keyPressEvent(QKeyEvent* event) {
    if (!Alive()) return;
    const KeyEvent key = KeyOf(*event, TypingInto::TextField);
    ContainerNote_KeyDown(*attached_.Main, index_, key);
    if (key.Code == KeyEscape) return window()->setFocus(Qt::OtherFocusReason);
    if (Alive() && Form_KeyDown(*attached_.Main, key)) return;
    QPlainTextEdit::keyPressEvent(event);
}

void NoteBox::focusInEvent(QFocusEvent* event) {
    QPlainTextEdit::focusInEvent(event);
    if (Alive() && event->reason() != Qt::PopupFocusReason) ContainerNote_GotFocus(*attached_.Main, index_);
}

// A menu of the box's own is no leaving; another window is one, but the box stays for the return.
void NoteBox::focusOutEvent(QFocusEvent* event) {
    QPlainTextEdit::focusOutEvent(event);
    if (event->reason() == Qt::PopupFocusReason) return;
    if (Alive()) ContainerNote_LostFocus(*attached_.Main, index_);
    if (event->reason() != Qt::ActiveWindowFocusReason) left_();
}

} // namespace quill
