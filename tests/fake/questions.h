// The fake computer's person: answers what was put in line before, in order. A question that nobody prepared
// is written down, counted in Unexpected and answered as cancelled; a fixture expects that count to be 0.
#pragma once

#include "platform/questions.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quill::fake {

struct Box {
    std::string Text;
    int Flags = 0;
    std::string Title;
    int Answer = 0; // what was answered
};

class FakeQuestions : public Questions {
public:
    int MsgBox(const std::string& text, int flags, const std::string& title) override;
    bool AskInput(InputQuestion& question) override;
    int PopupMenu(const std::vector<MenuLine>& lines, Point place) override;

    void Answer(int answer) { answers_.push_back(answer); } // AnswerYes ...
    // For every box whose text holds the part, ahead of the line of answers.
    void AnswerTo(const std::string& part, int answer) { rules_.emplace_back(part, answer); }
    void Type(const std::string& text) { inputs_.push_back({text, false, {}}); } // OK with this text
    void TypeAndTick(const std::string& text, bool checked) { inputs_.push_back({text, false, checked}); }
    void TypeOther(const std::string& text) {
        inputs_.push_back({text, true, {}});
    } // the second way to go on
    void CancelInput() { inputs_.push_back({}); }
    void ChooseMenu(const std::string& caption) { choices_.emplace_back(caption); } // with or without its "&"
    void DismissMenu() { choices_.emplace_back(std::nullopt); }

    // Run while the question is open, before it is answered: the world may change meanwhile.
    std::function<void(const Box&)> OnBox;
    std::function<void(InputQuestion&)> OnInput;
    std::function<void(const std::vector<MenuLine>&)> OnMenu;

    // The program is told to end: what is open and what still comes is cancelled.
    bool Ending = false;

    std::vector<Box> Boxes;
    std::vector<InputQuestion> Inputs; // as they were asked
    std::vector<std::string> Menus;    // one text a menu, a line each: "&Save [Ctrl+S]", "(x) ", "(-) " ahead
    std::vector<Point> MenuPlaces;
    int Unexpected = 0;
    std::vector<std::string> UnexpectedTexts;

    bool AllAnswered() const { return answers_.empty() && inputs_.empty() && choices_.empty(); }
    std::string LastBox() const { return Boxes.empty() ? "(none)" : Boxes.back().Text; }

private:
    struct Typed {
        std::optional<std::string> Text; // none: cancelled
        bool Other = false;
        std::optional<bool> Checked; // none: the box is left as it stands
    };
    int AnswerFor(const Box& box);
    void Surprise(const std::string& text);

    std::deque<int> answers_;
    std::vector<std::pair<std::string, int>> rules_;
    std::deque<Typed> inputs_;
    std::deque<std::optional<std::string>> choices_;
};

} // namespace quill::fake
