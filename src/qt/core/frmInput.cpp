#include "qt/core/frmInput.h"

#include "qt/core/convert.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

namespace quill {
namespace {

constexpr int textWidth = 320; // pixels

} // namespace

frmInput::frmInput(InputQuestion& question, QWidget* parent)
    : Form(Text(question.Title), parent), question_(question), text_(new QLineEdit(Text(question.Text))) {
    setObjectName(QStringLiteral("frmInput"));
    AddPrompt(Text(question.Caption));
    text_->setAccessibleName(Text(question.Caption));
    text_->setMinimumWidth(textWidth);
    if (question.Password) text_->setEchoMode(QLineEdit::Password);
    text_->selectAll();
    AddRow(text_);
    if (!question.CheckCaption.empty()) {
        check_ = new QCheckBox(Text(question.CheckCaption));
        check_->setChecked(question.Checked);
        AddRow(check_);
    }
    if (!question.OtherCaption.empty()) {
        connect(AddButton(Text(question.OtherCaption)), &QPushButton::clicked, this, [this] {
            other_ = true;
            accept();
        });
    }
    text_->setFocus();
}

void frmInput::WriteBack() {
    question_.Text = Bytes(text_->text());
    question_.Other = other_;
    if (check_ != nullptr) question_.Checked = check_->isChecked();
}

} // namespace quill
