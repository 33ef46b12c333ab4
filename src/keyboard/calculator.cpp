#include "keyboard/calculator.h"

#include "core/tr.h"
#include "dock/docking.h"
#include "keyboard/evaluator.h"
#include "platform/questions.h"

#include <charconv>
#include <cmath>
#include <cstdlib>

namespace quill {
namespace {

constexpr int SignificantDigits = 15;

struct Decimal {
    std::string Digits; // the first is not 0, and neither is the last
    int Whole = 0;      // how many of them stand before the point; below 0: zeros behind the point
};

// value is finite, above 0.
Decimal DecimalOf(double value) {
    char text[SignificantDigits + 16];
    const auto end =
        std::to_chars(text, text + sizeof text, value, std::chars_format::scientific, SignificantDigits - 1);
    const std::string_view all(text, end.ptr);
    const auto mark = all.find('e');
    Decimal decimal{std::string(all.substr(0, mark)), 0};
    std::erase(decimal.Digits, '.');
    decimal.Digits.erase(decimal.Digits.find_last_not_of('0') + 1);
    decimal.Whole = std::atoi(std::string(all.substr(mark + 1)).c_str()) + 1;
    return decimal;
}

std::string ResultOf(const std::string& expression) {
    return NumberText(Evaluator().Evaluate(expression));
}

// False when it was cancelled, or the program ends.
bool AskNext(frmMain& Main, InputQuestion& question) {
    const DialogPause pause(Main);
    return Main.P.Questions.AskInput(question) && !Main.IsExiting;
}

} // namespace

std::string NumberText(double value) {
    if (!std::isfinite(value) || value == 0) return "0";
    auto decimal = DecimalOf(std::abs(value));
    const int count = static_cast<int>(decimal.Digits.size());
    std::string text = value < 0 ? "-" : "";
    if (decimal.Whole <= 0) {
        text += "0." + std::string(static_cast<std::size_t>(-decimal.Whole), '0') + decimal.Digits;
    } else if (decimal.Whole >= count) {
        text += decimal.Digits + std::string(static_cast<std::size_t>(decimal.Whole - count), '0');
    } else {
        text += decimal.Digits.insert(static_cast<std::size_t>(decimal.Whole), ".");
    }
    return text;
}

void ParseCalculator(frmMain& Main, const std::string& expression) {
    std::string result = ResultOf(expression);
    InputQuestion question;
    question.Title = Tr(Main, "Calculator");
    question.Caption = Tr(Main, "Continue or enter a new expression:");
    for (question.Text = result; AskNext(Main, question); question.Text = result) {
        if (question.Text.empty() || question.Text == result) return;
        result = ResultOf(question.Text);
    }
}

} // namespace quill
