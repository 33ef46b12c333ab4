#include "qt/notes/text_form.h"

#include "qt/core/convert.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QShortcut>

namespace quill {
namespace {

constexpr QSize smallest{420, 220}; // pixels

} // namespace

TextForm::TextForm(TextQuestion& question, QWidget* parent)
    : Form(Text(question.Title), parent), question_(question), text_(new QPlainTextEdit) {
    setObjectName(QStringLiteral("frmText"));
    if (!question.Caption.empty()) AddPrompt(Text(question.Caption))->setBuddy(text_);
    text_->setPlainText(Text(question.Text));
    text_->setTabChangesFocus(true);
    text_->setAccessibleName(Text(question.Caption.empty() ? question.Title : question.Caption));
    text_->setMinimumSize(smallest);
    text_->moveCursor(QTextCursor::End);
    AddRow(text_);
    // Enter is a line end in the text.
    for (const int enter : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* accepted = new QShortcut(QKeySequence(Qt::CTRL | enter), this);
        connect(accepted, &QShortcut::activated, this, [this] { accept(); });
    }
    text_->setFocus();
}

void TextForm::WriteBack() {
    question_.Text = Bytes(text_->toPlainText());
}

} // namespace quill
