// frmInput: the one-line input of the whole program, with a second way to go on and a check box where they
// are asked for.
#pragma once

#include "platform/questions.h"
#include "qt/core/form.h"

class QCheckBox;
class QLineEdit;

namespace quill {

class frmInput : public Form {
public:
    frmInput(InputQuestion& question, QWidget* parent);

protected:
    void WriteBack() override;

private:
    InputQuestion& question_;
    QLineEdit* text_;
    QCheckBox* check_ = nullptr;
    bool other_ = false; // the second way was taken
};

} // namespace quill
