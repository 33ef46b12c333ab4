#include "qt/core/form.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quill {
namespace {

constexpr int widestPrompt = 480; // pixels; longer prompts are broken

} // namespace

Form::Form(const QString& title, QWidget* parent) : QDialog(parent), rows_(new QVBoxLayout) {
    setWindowTitle(title);
    auto* whole = new QVBoxLayout(this);
    buttons_ = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    whole->addLayout(rows_);
    whole->addStretch();
    whole->addWidget(buttons_);
    connect(buttons_, &QDialogButtonBox::accepted, this, [this] { accept(); });
    connect(buttons_, &QDialogButtonBox::rejected, this, [this] { reject(); });
    buttons_->button(QDialogButtonBox::Ok)->setDefault(true);
}

QLabel* Form::AddPrompt(const QString& text) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    if (label->sizeHint().width() > widestPrompt) {
        label->setWordWrap(true);
        label->setMinimumWidth(widestPrompt);
    }
    AddRow(label);
    return label;
}

// Each row goes behind the ones before it in the order of Tab, and before the buttons.
void Form::AddRow(QWidget* row) {
    rows_->addWidget(row);
    if (row->focusPolicy() & Qt::TabFocus) setTabOrder(row, buttons_);
}

QPushButton* Form::AddButton(const QString& caption) {
    return buttons_->addButton(caption, QDialogButtonBox::ActionRole);
}

void Form::accept() {
    WriteBack();
    QDialog::accept();
}

} // namespace quill
