// QtQuestions: the port for what waits for a person, with the desktop's own boxes and menus.
#pragma once

#include "platform/questions.h"
#include "qt/core/asker.h"

namespace quill {

class QtQuestions : public Questions {
public:
    QtQuestions(const DisplayHolder& display, OpenQuestions& open) : asker_(display, open), open_(open) {}

    int MsgBox(const std::string& text, int flags, const std::string& title) override;
    bool AskInput(InputQuestion& question) override;
    int PopupMenu(const std::vector<MenuLine>& lines, Point place) override;

private:
    Asker asker_;
    OpenQuestions& open_;
};

} // namespace quill
