#include "qt/core/form.h"

#include <QAccessible>
#include <QAccessibleEvent>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quill {
namespace {

constexpr int widestPrompt = 480; // pixels; longer prompts are broken

} // namespace

Form::Form(const QString& title, QWidget* parent)
    : QDialog(parent), rows_(new QVBoxLayout), refusal_(new QLabel) {
    setWindowTitle(title);
    auto* whole = new QVBoxLayout(this);
    buttons_ = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    whole->addLayout(rows_);
    whole->addStretch();
    whole->addWidget(refusal_);
    whole->addWidget(buttons_);
    refusal_->setTextFormat(Qt::PlainText);
    refusal_->setWordWrap(true);
    refusal_->hide();
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

QString Form::TakenMnemonics() const {
    QString taken;
    for (const auto* button : buttons_->buttons()) {
        const QString caption = button->text();
        const qsizetype at = caption.indexOf(QLatin1Char('&'));
        if (at >= 0 && at + 1 < caption.size()) taken += caption[at + 1];
    }
    return taken;
}

void Form::accept() {
    WriteBack();
    const QString refusal = Refusal();
    if (!refusal.isEmpty()) return Tell(refusal);
    QDialog::accept();
}

void Form::Tell(const QString& refusal) {
    refusal_->setText(refusal);
    refusal_->show();
    QAccessibleEvent alert(refusal_, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

} // namespace quill
