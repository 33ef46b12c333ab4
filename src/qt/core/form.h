// Form: the one base of every dialog. A form edits a plain value: it is filled from the value, and writes
// back only when it is accepted, so that Cancel is free. It has its buttons at the foot, one of them the
// default one, and lies above the workspace. Texts are plain.
#pragma once

#include <QDialog>

class QDialogButtonBox;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace quill {

class Form : public QDialog {
public:
    explicit Form(const QString& title, QWidget* parent);

protected:
    QVBoxLayout& Rows() { return *rows_; }
    QLabel* AddPrompt(const QString& text); // a text as it stands; "&" is a letter in it
    void AddRow(QWidget* row);
    QPushButton* AddButton(const QString& caption); // beside OK and Cancel, with its mnemonic
    // Letters that the buttons at the foot have for themselves.
    QString TakenMnemonics() const;

    // Writes the value; called when the form is accepted.
    virtual void WriteBack() = 0;
    // What is wrong with the value that was written, empty for nothing; the form stays open and tells it.
    virtual QString Refusal() { return {}; }
    void accept() override;

private:
    void Tell(const QString& refusal);

    QVBoxLayout* rows_;
    QDialogButtonBox* buttons_;
    QLabel* refusal_; // above the buttons, hidden until something is wrong
};

} // namespace quill
