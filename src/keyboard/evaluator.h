// Evaluator: arithmetic on a text by repeated splitting. Numbers, four operations, one power a factor,
// parentheses and signs; the method has consequences that are kept as they are. Raises nothing.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quill {

// The last one that was found; they do not add up.
enum EvaluatorError : std::int32_t {
    EvaluatorFine = 0,
    EvaluatorSecondComma = 1, // in one number
    EvaluatorNoNumber = 2,    // where one was needed, or text was left over behind a factor
    EvaluatorBadOperator = 4, // other than "^" between two factors
    EvaluatorParentheses = 8, // that do not balance, or lie too deep
    EvaluatorArithmetic = 16  // division by zero, overflow, a bad power
};

class Evaluator {
public:
    // Blanks go, letters become upper case, "." becomes ",": both are the decimal mark.
    void SetExpression(std::string_view text);
    const std::string& Expression() const { return expression_; }
    double Result(); // evaluates what is stored
    std::int32_t Error() const { return error_; }
    bool Assigned() const { return assigned_; } // the last Result had no error
    double Evaluate(std::string_view text);

    // Every occurrence; unchanged when search is empty or equal to the replacement.
    static std::string ReplaceText(std::string text, std::string_view search, std::string_view replacement);

private:
    std::string expression_;
    bool assigned_ = false;
    double result_ = 0;
    std::int32_t error_ = EvaluatorFine;
};

} // namespace quill
