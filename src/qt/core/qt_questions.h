// QtQuestions: the port for what waits for a person, with the desktop's own boxes and menus.
#pragma once

#include "platform/questions.h"
#include "qt/core/display.h"
#include "qt/core/open_questions.h"

class QDialog;
class QMenu;

namespace quill {

class QtQuestions : public Questions {
public:
    QtQuestions(const DisplayHolder& display, OpenQuestions& open) : display_(display), open_(open) {}

    int MsgBox(const std::string& text, int flags, const std::string& title) override;
    bool AskInput(InputQuestion& question) override;
    int PopupMenu(const std::vector<MenuLine>& lines, Point place) override;

private:
    QWidget* Owner() const; // the workspace, when it shows
    int Ask(QDialog& dialog);

    const DisplayHolder& display_;
    OpenQuestions& open_;
};

} // namespace quill
