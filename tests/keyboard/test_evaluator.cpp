#include "keyboard/evaluator.h"

#include <gtest/gtest.h>

#include <string>

namespace quill {
namespace {

std::string Repeated(const std::string& part, int times) {
    std::string text;
    for (int at = 0; at < times; ++at) text += part;
    return text;
}

std::string Nested(int depth, const std::string& inside) {
    return std::string(static_cast<std::size_t>(depth), '(') + inside +
           std::string(static_cast<std::size_t>(depth), ')');
}

struct Row {
    const char* Sentence;
    const char* Expression;
    double Value;
    int Error;
};

void ExpectRow(const Row& row) {
    Evaluator evaluator;
    EXPECT_DOUBLE_EQ(evaluator.Evaluate(row.Expression), row.Value) << row.Sentence << ": " << row.Expression;
    EXPECT_EQ(evaluator.Error(), row.Error) << row.Sentence << ": " << row.Expression;
    EXPECT_EQ(evaluator.Assigned(), row.Error == 0) << row.Sentence;
}

const Row right[] = {
    {"point and comma are both the decimal mark", "1.5+1,5", 3, 0},
    {"products bind tighter than sums, and blanks do not count", "2 + 3 * 4", 14, 0},
    {"parentheses bind tightest", "(2+3)*4", 20, 0},
    {"a number may begin with its decimal mark", ".5*2", 1, 0},
    {"operators of one level work from left to right", "10/4/5", 0.5, 0},
    {"a sign is applied after the power", "-2^2", -4, 0},
    {"a power binds tighter than a product", "2*3^2", 18, 0},
    {"a parenthesis brings in a negative exponent", "2^(0-1)", 0.5, 0},
    {"a sign splits the sum before the power sees it", "2^-1", 0, 0},
    {"a parenthesis brings in a negative factor", "3*(-2)", -6, 0},
    {"a sign stands before a parenthesis", "-(2+3)", -5, 0},
    {"an unknown character in front is dropped", "X2", 2, 0},
    {"an unknown character of another alphabet is one character", "€2", 2, 0},
    {"a power sign in front is dropped like any unknown character", "^2", 2, 0},
    {"a product of nothing and a number is nothing", "*2", 0, 0},
    {"a decimal mark alone is zero", ",", 0, 0},
    {"a plus behind a power splits the sum", "2^+3", 4, 0},
    {"a power of nothing is the zeroth", "2^", 1, 0},
    {"a plus in front changes nothing", "+7", 7, 0},
    {"subtraction works from left to right", "10-4-3", 3, 0},
    {"a root is a broken power", "9^(1/2)", 3, 0},
    {"parentheses nest", "((1+2)*(3+4))", 21, 0},
    {"a power of a power takes parentheses", "(2^3)^2", 64, 0},
    {"a number ends in its decimal mark", "5.", 5, 0},
    {"zero to the power of zero is one", "0^0", 1, 0},
};

TEST(EvaluatorOf, WhatIsRightHasItsValueAndNoError) {
    for (const auto& row : right) ExpectRow(row);
}

const Row wrong[] = {
    {"only one power stands in a factor", "2^3^2", 8, 2},
    {"a sign behind a product leaves the product without a number", "3*-2", 0, 2},
    {"two signs leave a sum without a number", "5--3", 5, 2},
    {"nothing is divided by zero", "8/0", 0, 16},
    {"an open parenthesis is left over", "(1+2", 0, 2},
    {"a parenthesis that was never opened ends everything", "1+2)", 0, 8},
    {"a second decimal mark stands between two numbers", "1,2,3", 1.2, 4},
    {"a letter behind a number is a bad operator", "2X", 2, 4},
    {"a parenthesis behind a number does not multiply", "2(3)", 2, 2},
    {"nothing at all is no number", "", 0, 2},
    {"blanks alone are no number", "   ", 0, 2},
    {"an exponent begins with a digit or a parenthesis", "2^.5", 1, 2},
    {"an open parenthesis before one number is a bad operator", "(2", 0, 4},
    {"a root of what is below zero is no number", "(0-8)^(1/3)", 0, 16},
    {"a division by nothing is one by zero", "2/", 0, 16},
    {"an empty parenthesis holds no number", "()", 0, 2},
    {"an exponent in an open parenthesis is left over", "2^(3", 1, 2},
    {"zero has no power below zero", "0^(0-1)", 0, 16},
    {"what was summed before a fault stays", "1+8/0+5", 1, 16},
    {"an exponent sign is a bad operator", "1E5", 1, 4},
    {"a second decimal mark alone ends the number", ",,", 0, 4},
    {"a fault counts more than what is left over behind it", "0^(0-1)5", 0, 16},
    {"a power beyond all numbers is a fault", "10^400", 0, 16},
    {"a product beyond all numbers is a fault", "10^300*10^300", 0, 16},
    {"a sum beyond all numbers is a fault", "17*10^307+17*10^307", 0, 16},
    {"a bad operator of another alphabet is one character", "2×3", 2, 4},
    {"a percent sign is a bad operator", "50%", 50, 4},
    {"nothing divides nothing", "0/0", 0, 16},
};

TEST(EvaluatorOf, WhatIsWrongHasTheLastErrorAndWhatWasComputed) {
    for (const auto& row : wrong) ExpectRow(row);
}

TEST(EvaluatorOf, TheExpressionIsKeptAsItIsComputed) {
    Evaluator evaluator;
    evaluator.SetExpression(" 1.5 + x . é ");
    EXPECT_EQ(evaluator.Expression(), "1,5+X,é");
}

TEST(EvaluatorOf, NothingIsAssignedBeforeAResultWasRead) {
    Evaluator evaluator;
    evaluator.SetExpression("1");
    EXPECT_FALSE(evaluator.Assigned());
    EXPECT_EQ(evaluator.Result(), 1);
    EXPECT_TRUE(evaluator.Assigned());
}

TEST(EvaluatorOf, AnErrorIsForgottenByTheNextResult) {
    Evaluator evaluator;
    evaluator.Evaluate("8/0");
    EXPECT_EQ(evaluator.Error(), EvaluatorArithmetic);
    EXPECT_EQ(evaluator.Evaluate("8/2"), 4);
    EXPECT_EQ(evaluator.Error(), EvaluatorFine);
    EXPECT_TRUE(evaluator.Assigned());
}

TEST(EvaluatorOf, TheSameTextGivesTheSameResultAgain) {
    Evaluator evaluator;
    evaluator.SetExpression("(1+2");
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(evaluator.Result(), 0);
        EXPECT_EQ(evaluator.Error(), EvaluatorNoNumber);
    }
}

TEST(EvaluatorOf, ParenthesesMayNestAsDeepAsAnybodyTypes) {
    Evaluator evaluator;
    EXPECT_EQ(evaluator.Evaluate(Nested(200, "7")), 7);
    EXPECT_EQ(evaluator.Error(), EvaluatorFine);
}

TEST(EvaluatorOf, ParenthesesThatLieTooDeepDoNotBalance) {
    Evaluator evaluator;
    for (const int depth : {201, 1000, 50'000}) {
        EXPECT_EQ(evaluator.Evaluate(Nested(depth, "7")), 0) << depth;
        EXPECT_EQ(evaluator.Error(), EvaluatorParentheses) << depth;
    }
}

TEST(EvaluatorOf, ADeepExponentEndsToo) {
    Evaluator evaluator;
    const std::string text = Repeated("1^(", 50'000) + "1" + Repeated(")", 50'000);
    evaluator.Evaluate(text);
    EXPECT_EQ(evaluator.Error(), EvaluatorParentheses);
}

TEST(EvaluatorOf, LongTextsEnd) {
    Evaluator evaluator;
    EXPECT_EQ(evaluator.Evaluate(Repeated("1+", 50'000) + "1"), 50'001);
    EXPECT_EQ(evaluator.Evaluate(Repeated("1*", 50'000) + "1"), 1);
    EXPECT_EQ(evaluator.Evaluate(Repeated("(1)+", 25'000) + "1"), 25'001);
    EXPECT_EQ(evaluator.Evaluate(Repeated(" ", 100'000) + "5"), 5);
    for (const char* part : {"(", ")", "+", "-", "*", "/", "^", ",", ".", "X", "()", "2^(", "1,1"}) {
        evaluator.Evaluate(Repeated(part, 100'000));
        EXPECT_NE(evaluator.Error(), EvaluatorFine) << part;
    }
}

TEST(EvaluatorOf, ANumberOfManyDigitsIsRoundedOrAFault) {
    Evaluator evaluator;
    EXPECT_DOUBLE_EQ(evaluator.Evaluate("0." + Repeated("3", 10'000)), 1.0 / 3);
    EXPECT_EQ(evaluator.Evaluate("0." + Repeated("0", 10'000) + "1"), 0);
    EXPECT_EQ(evaluator.Error(), EvaluatorFine);
    EXPECT_EQ(evaluator.Evaluate(Repeated("0", 10'000) + "7"), 7);
    EXPECT_EQ(evaluator.Evaluate(Repeated("9", 10'000)), 0);
    EXPECT_EQ(evaluator.Error(), EvaluatorArithmetic);
    EXPECT_EQ(evaluator.Evaluate(".5^" + Repeated("9", 10'000)), 0);
    EXPECT_EQ(evaluator.Error(), EvaluatorArithmetic);
}

TEST(EvaluatorOf, BytesThatAreNoTextEndToo) {
    Evaluator evaluator;
    EXPECT_EQ(evaluator.Evaluate(std::string("1\0002", 3)), 1);
    EXPECT_EQ(evaluator.Error(), EvaluatorBadOperator);
    EXPECT_EQ(evaluator.Evaluate("\xFF"), 0);
    EXPECT_EQ(evaluator.Evaluate("\xE2\x82"), 0);
    EXPECT_EQ(evaluator.Error(), EvaluatorNoNumber);
}

struct ReplaceRow {
    const char* Sentence;
    const char* Text;
    const char* Search;
    const char* Replacement;
    const char* Result;
};

const ReplaceRow replacements[] = {
    {"every occurrence goes", "1.5+2.5", ".", ",", "1,5+2,5"},
    {"nothing is searched for", "abc", "", "x", "abc"},
    {"what is searched for stays", "abc", "b", "b", "abc"},
    {"nothing takes its place", " a b ", " ", "", "ab"},
    {"it does not occur", "abc", "x", "y", "abc"},
    {"what closes up is looked at again", "aabbc", "ab", "", "c"},
    {"what holds the searched text is put in once", "a-a", "a", "aa", "aa-aa"},
    {"it is the whole text", "abc", "abc", "", ""},
};

TEST(EvaluatorOf, TextIsReplacedWhereverItOccurs) {
    for (const auto& row : replacements)
        EXPECT_EQ(Evaluator::ReplaceText(row.Text, row.Search, row.Replacement), row.Result) << row.Sentence;
}

} // namespace
} // namespace quill
