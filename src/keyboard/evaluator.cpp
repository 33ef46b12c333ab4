#include "keyboard/evaluator.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>
#include <vector>

namespace quill {
namespace {

constexpr int DeepestParenthesis = 200; // what a person types is less, and every processor's stack holds more

bool IsDigit(char letter) {
    return letter >= '0' && letter <= '9';
}

// Bytes of the character in front: a letter of another alphabet is one character, not several.
std::size_t FirstCharacter(std::string_view text) {
    const auto continues = [&](std::size_t at) {
        return (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
    };
    std::size_t length = 1;
    if (static_cast<unsigned char>(text[0]) < 0xC0) return length;
    while (length < 4 && length < text.size() && continues(length)) ++length;
    return length;
}

struct FactorValue {
    double Value = 0;
    char Operator = '+'; // what stands in front of it
};

// One evaluation of a text. Every routine takes what it has read off the front of the text that it is given.
class Evaluation {
public:
    std::int32_t Error = EvaluatorFine;

    double Sum(std::string_view text);

private:
    std::vector<std::string_view> Split(std::string_view text, char one, char other);
    double Product(std::string_view text);
    FactorValue Factor(std::string_view text);
    double Operand(std::string_view& text);
    double RightOperand(std::string_view& text);
    double Raised(double value, std::string_view& text);
    double Parenthesis(std::string_view& text);
    double Number(std::string_view& text);
    std::string Digits(std::string_view text);
    double Checked(double value);

    int depth_ = 0;
};

// The value, or 0 where the arithmetic has failed.
double Evaluation::Checked(double value) {
    if (std::isfinite(value)) return value;
    Error = EvaluatorArithmetic;
    return 0;
}

// Each chunk but the first begins with its operator. An operator in front of a text splits nothing, which is
// what lets a chunk begin with one and a sum with a sign. The last chunk is there even if it is empty.
std::vector<std::string_view> Evaluation::Split(std::string_view text, char one, char other) {
    std::vector<std::string_view> chunks;
    int depth = 0;
    std::size_t begin = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char letter = text[at];
        if (letter == '(') ++depth;
        if (letter == ')' && --depth < 0) {
            Error = EvaluatorParentheses;
            break;
        }
        if (depth != 0 || at == begin || (letter != one && letter != other)) continue;
        chunks.push_back(text.substr(begin, at - begin));
        begin = at;
    }
    chunks.push_back(text.substr(begin));
    return chunks;
}

double Evaluation::Sum(std::string_view text) {
    if (depth_ > DeepestParenthesis) {
        Error = EvaluatorParentheses;
        return 0;
    }
    double total = 0;
    for (const auto chunk : Split(text, '+', '-')) total = Checked(total + Product(chunk));
    return total;
}

double Evaluation::Product(std::string_view text) {
    if (Error != EvaluatorFine) return 0;
    double value = 0;
    for (const auto chunk : Split(text, '*', '/')) {
        const auto factor = Factor(chunk);
        if (factor.Operator == '+') value += factor.Value;
        if (factor.Operator == '*') value *= factor.Value;
        if (factor.Operator == '/') value /= factor.Value;
        if (!std::isfinite(value)) return Checked(value);
    }
    return value;
}

FactorValue Evaluation::Factor(std::string_view text) {
    FactorValue factor;
    if (Error != EvaluatorFine) return factor;
    const char first = text.empty() ? '\0' : text.front();
    if (first == '+' || first == '*' || first == '/') factor.Operator = first;
    if (first == '-' || first == '+' || first == '*' || first == '/') text.remove_prefix(1);
    double value = Operand(text);
    if (std::isfinite(value) && !text.empty()) value = Raised(value, text);
    factor.Value = Checked(first == '-' ? -value : value);
    return factor;
}

double Evaluation::Operand(std::string_view& text) {
    return text.starts_with('(') ? Parenthesis(text) : Number(text);
}

// A sign or a decimal mark in front of it is none: it stays as text that is left over.
double Evaluation::RightOperand(std::string_view& text) {
    const bool begins = !text.empty() && (text.front() == '(' || IsDigit(text.front()));
    return begins ? Operand(text) : 0;
}

// What follows the first operand of a factor: only a power may, and only one. Not finite: the arithmetic has
// failed, and nothing else counts.
double Evaluation::Raised(double value, std::string_view& text) {
    const bool isPower = text.front() == '^';
    text.remove_prefix(FirstCharacter(text));
    const double right = RightOperand(text);
    if (!std::isfinite(right)) return right;
    if (isPower) {
        value = std::pow(value, right);
        if (!std::isfinite(value)) return value;
    } else {
        Error = EvaluatorBadOperator;
    }
    if (!text.empty()) Error = EvaluatorNoNumber;
    return value;
}

// One that is not closed does not shorten the text and counts as empty.
double Evaluation::Parenthesis(std::string_view& text) {
    int depth = 0;
    std::size_t end = 0;
    for (; end < text.size(); ++end) {
        if (text[end] == '(') ++depth;
        if (text[end] == ')' && --depth == 0) break;
    }
    std::string_view inside;
    if (end < text.size()) {
        inside = text.substr(1, end - 1);
        text.remove_prefix(end + 1);
    } else {
        Error = EvaluatorParentheses;
    }
    ++depth_;
    const double value = Sum(inside);
    --depth_;
    return value;
}

// The number in front, with "." as its decimal mark.
std::string Evaluation::Digits(std::string_view text) {
    std::string digits;
    bool hasMark = false;
    for (const char letter : text) {
        if (letter == ',' && hasMark) {
            Error = EvaluatorSecondComma;
            break;
        }
        if (letter != ',' && !IsDigit(letter)) break;
        hasMark = hasMark || letter == ',';
        digits += letter == ',' ? '.' : letter;
    }
    return digits;
}

// What is too small for a number is 0, what is too large is not finite.
double ValueOfDigits(const std::string& digits) {
    double value = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (read.ec != std::errc::result_out_of_range) return value;
    const auto whole = std::string_view(digits).substr(0, digits.find('.'));
    return whole.find_first_not_of('0') == std::string_view::npos ? 0 : HUGE_VAL;
}

// An unknown character in front is dropped.
double Evaluation::Number(std::string_view& text) {
    const bool beginsWithMark = text.starts_with(',');
    bool negative = false;
    if (!text.empty() && !beginsWithMark && !IsDigit(text.front())) {
        negative = text.front() == '-';
        text.remove_prefix(FirstCharacter(text));
    }
    const std::string digits = Digits(text);
    if (digits.empty()) Error = EvaluatorNoNumber;
    text.remove_prefix(digits.size());
    const double value = ValueOfDigits(beginsWithMark ? "0" + digits : digits);
    return negative ? -value : value;
}

} // namespace

// Letters stand for nothing here, so that only those are raised that need no table.
void Evaluator::SetExpression(std::string_view text) {
    expression_ = text;
    std::erase(expression_, ' ');
    std::ranges::transform(expression_, expression_.begin(), [](char letter) {
        return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    });
    expression_ = ReplaceText(std::move(expression_), ".", ",");
}

double Evaluator::Result() {
    Evaluation evaluation;
    result_ = evaluation.Sum(expression_);
    error_ = evaluation.Error;
    assigned_ = error_ == EvaluatorFine;
    return result_;
}

double Evaluator::Evaluate(std::string_view text) {
    SetExpression(text);
    return Result();
}

// What a replacement completes with the text around it is replaced too, unless the text grows by it: that
// might never end.
std::string Evaluator::ReplaceText(std::string text, std::string_view search, std::string_view replacement) {
    if (search.empty() || search == replacement) return text;
    const bool grows = replacement.size() > search.size();
    std::size_t at = 0;
    while ((at = text.find(search, at)) != std::string::npos) {
        text.replace(at, search.size(), replacement);
        at = grows ? at + replacement.size() : at - std::min(at, search.size() - 1);
    }
    return text;
}

} // namespace quill
