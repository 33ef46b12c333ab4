// Asker: shows a dialog above whatever waits for a person already, the workspace or another dialog, and gives
// the keyboard back to that afterwards.
#pragma once

#include "qt/core/display.h"
#include "qt/core/open_questions.h"

class QDialog;
class QWidget;

namespace quill {

class Asker {
public:
    Asker(const DisplayHolder& display, OpenQuestions& open) : display_(display), open_(open) {}

    bool IsEnding() const { return open_.IsEnding(); } // nothing is to be asked any more
    // The dialog that is open, else the workspace when it shows, else null.
    QWidget* Owner() const;
    // QDialog's answer; Rejected also when the program is told to end.
    int Ask(QDialog& dialog);

private:
    const DisplayHolder& display_;
    OpenQuestions& open_;
};

} // namespace quill
