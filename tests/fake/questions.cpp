#include "fake/questions.h"

#include <algorithm>

namespace quill::fake {

namespace {

int CancelOf(int flags) {
    return (flags & BoxYesNo) != 0 ? AnswerNo : AnswerCancel;
}

std::string WithoutMnemonic(std::string caption) {
    std::erase(caption, '&');
    return caption;
}

void Describe(const std::vector<MenuLine>& lines, const std::string& indent, std::string& text) {
    for (const auto& line : lines) {
        text += indent;
        if (line.Checkable) text += line.Checked ? "(x) " : "( ) ";
        if (!line.Enabled) text += "(-) ";
        text += line.Caption;
        if (!line.Key.empty()) text += " [" + line.Key + "]";
        text += "\n";
        Describe(line.Children, indent + "  ", text);
    }
}

const MenuLine* FindLine(const std::vector<MenuLine>& lines, const std::string& caption) {
    for (const auto& line : lines) {
        if (line.Caption == caption || WithoutMnemonic(line.Caption) == caption) return &line;
        if (const auto* child = FindLine(line.Children, caption)) return child;
    }
    return nullptr;
}

template <class Line> auto TakeFirst(Line& line) {
    auto first = std::move(line.front());
    line.pop_front();
    return first;
}

} // namespace

int FakeQuestions::MsgBox(const std::string& text, int flags, const std::string& title) {
    Boxes.push_back({text, flags, title});
    const std::size_t at = Boxes.size() - 1;
    if (OnBox) OnBox(Box(Boxes[at]));
    return Boxes[at].Answer = AnswerFor(Boxes[at]);
}

int FakeQuestions::AnswerFor(const Box& box) {
    if (Ending) return CancelOf(box.Flags);
    for (const auto& [part, answer] : rules_)
        if (box.Text.find(part) != std::string::npos) return answer;
    if (!answers_.empty()) return TakeFirst(answers_);
    Surprise("box: " + box.Text);
    return CancelOf(box.Flags);
}

bool FakeQuestions::AskInput(InputQuestion& question) {
    Inputs.push_back(question);
    if (OnInput) OnInput(question);
    if (Ending) return false;
    if (inputs_.empty()) {
        Surprise("input: " + question.Caption);
        return false;
    }
    const Typed typed = TakeFirst(inputs_);
    if (!typed.Text) return false;
    question.Text = *typed.Text;
    question.Other = typed.Other;
    question.Checked = typed.Checked.value_or(question.Checked);
    return true;
}

int FakeQuestions::PopupMenu(const std::vector<MenuLine>& lines, Point place) {
    Describe(lines, "", Menus.emplace_back());
    MenuPlaces.push_back(place);
    if (OnMenu) OnMenu(lines);
    if (Ending) return -1;
    if (choices_.empty()) {
        Surprise("menu: " + Menus.back());
        return -1;
    }
    const auto choice = TakeFirst(choices_);
    if (!choice) return -1;
    const auto* line = FindLine(lines, *choice);
    if (line != nullptr && line->Enabled) return line->Id;
    Surprise("menu without a line that can be chosen: " + *choice + "\n" + Menus.back());
    return -1;
}

void FakeQuestions::Surprise(const std::string& text) {
    ++Unexpected;
    UnexpectedTexts.push_back(text);
}

} // namespace quill::fake
