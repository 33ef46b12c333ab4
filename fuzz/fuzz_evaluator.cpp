// Any bytes as an expression: it ends, its value is a number that can be shown without an exponent, what is
// shown is a number again, and the same text has the same result every time.
#include "fuzz_workspace.h"

#include "keyboard/calculator.h"
#include "keyboard/evaluator.h"

#include <cmath>

using namespace quill;

namespace {

void CheckResult(const Evaluator& evaluator, double value) {
    fuzz::Require(std::isfinite(value));
    const int error = evaluator.Error();
    fuzz::Require(error == 0 || error == 1 || error == 2 || error == 4 || error == 8 || error == 16);
    fuzz::Require(evaluator.Assigned() == (error == 0));
}

// The calculator goes on with what it shows. The last digit may round beyond the largest number.
void CheckShown(double value) {
    const std::string shown = NumberText(value);
    fuzz::Require(!shown.empty() && shown.find_first_not_of("-.0123456789") == std::string::npos);
    Evaluator again;
    const double back = again.Evaluate(shown);
    fuzz::Require(again.Error() == EvaluatorFine || std::abs(value) > 1e308);
    if (again.Error() == EvaluatorFine)
        fuzz::Require(std::abs(back - value) <= std::abs(value) * 1e-14 || std::abs(value) < 1e-300);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text{reinterpret_cast<const char*>(data), size};
    Evaluator evaluator;
    const double value = evaluator.Evaluate(text);
    CheckResult(evaluator, value);
    const std::int32_t error = evaluator.Error();
    fuzz::Require(evaluator.Result() == value && evaluator.Error() == error);
    // The stored text is settled.
    const std::string stored = evaluator.Expression();
    fuzz::Require(evaluator.Evaluate(stored) == value && evaluator.Expression() == stored);
    CheckShown(value);
    return 0;
}
