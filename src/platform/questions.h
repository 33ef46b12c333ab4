// Questions: what waits for a person. Every call here runs a loop of its own and returns with the answer; the
// caller tests again afterwards that the program is not exiting and that its rows live. When the program is
// told to end, every open question returns as cancelled, innermost first. Texts are plain, never markup.
#pragma once

#include "platform/geometry.h"

#include <string>
#include <vector>

namespace quill {

// The box's numbers: buttons 0 OK, 4 Yes/No; icons 16 critical, 32 question, 48 warning, 64 information;
// 4096 over everything. Answers: 1 OK, 2 Cancel, 6 Yes, 7 No. Closed in any other way: 2, or 7 with Yes and
// No.
enum BoxFlags {
    BoxOk = 0,
    BoxYesNo = 4,
    BoxCritical = 16,
    BoxQuestion = 32,
    BoxWarning = 48,
    BoxInformation = 64,
    BoxSystemModal = 4096
};
enum BoxAnswer { AnswerOk = 1, AnswerCancel = 2, AnswerYes = 6, AnswerNo = 7 };

// One line of a popup menu as it is to be shown.
struct MenuLine {
    std::string Caption; // with "&" before the mnemonic; "-" alone is a separator
    std::string Key;     // shown at the right, empty for none
    bool Enabled = true;
    bool Checked = false;
    bool Checkable = false;
    int Id = -1; // given back when it is chosen
    std::vector<MenuLine> Children;
};

// A one-line input as a value: filled by the logic, edited by the form, handed back.
struct InputQuestion {
    std::string Title;
    std::string Caption; // the prompt
    std::string Text;    // what stands in the box; the answer afterwards
    bool Password = false;
    std::string OtherCaption; // a second way to go on, beside OK and Cancel; empty: there is none
    bool Other = false;       // afterwards: that way was taken
    std::string CheckCaption; // a check box below the text; empty: there is none
    bool Checked = false;     // the box; the answer afterwards
};

class Questions {
public:
    virtual ~Questions() = default;

    virtual int MsgBox(const std::string& text, int flags, const std::string& title) = 0;
    // False when it was cancelled; the question is untouched then. True for OK and for the other way.
    virtual bool AskInput(InputQuestion& question) = 0;
    // The Id of the chosen line, -1 for none. The place is twips on the virtual desktop.
    virtual int PopupMenu(const std::vector<MenuLine>& lines, Point place) = 0;
};

} // namespace quill
