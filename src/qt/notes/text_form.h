// TextForm: a text of several lines, as it is put into a note.
#pragma once

#include "platform/dialogs.h"
#include "qt/core/form.h"

class QPlainTextEdit;

namespace quill {

class TextForm : public Form {
public:
    TextForm(TextQuestion& question, QWidget* parent);

protected:
    void WriteBack() override;

private:
    TextQuestion& question_;
    QPlainTextEdit* text_;
};

} // namespace quill
