#include "fake/desk.h"
#include "keyboard/calculator.h"
#include "keyboard/evaluator.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quill {
namespace {

using fake::Desk;

struct NumberRow {
    double Value;
    std::string Text;
};

const double nothing = 0;
const NumberRow numbers[] = {
    {0, "0"},
    {-nothing, "0"},
    {4, "4"},
    {-4, "-4"},
    {0.5, "0.5"},
    {-0.125, "-0.125"},
    {100, "100"},
    {1234567.25, "1234567.25"},
    {1.0 / 3, "0.333333333333333"},
    {2.0 / 3, "0.666666666666667"},
    {0.1 + 0.2, "0.3"},
    {999999999999999, "999999999999999"},
    {9999999999999998, "10000000000000000"},
    {123456789012345678.0, "123456789012346000"},
    {0.999999999999999999, "1"},
    {1e21, "1000000000000000000000"},
    {1e-7, "0.0000001"},
    {-1.5e-10, "-0.00000000015"},
    {1e300, "1" + std::string(300, '0')},
    {5e-324, "0." + std::string(323, '0') + "494065645841247"},
    {std::numeric_limits<double>::infinity(), "0"},
    {-std::numeric_limits<double>::infinity(), "0"},
    {std::nan(""), "0"},
};

TEST(NumberTextOf, ValuesAreWrittenOutWithFifteenDigits) {
    for (const auto& row : numbers) EXPECT_EQ(NumberText(row.Value), row.Text) << row.Value;
}

TEST(NumberTextOf, WhatIsShownCanBeGoneOnWith) {
    for (const double value : {0.1, 1e15, 123456.789, 1e-12, 1e300, -5.25})
        EXPECT_DOUBLE_EQ(Evaluator().Evaluate(NumberText(value)), value);
}

struct Calculator : testing::Test {
    Desk desk;
    void SetUp() override { desk.StartWorkspace(); }
    void TearDown() override {
        EXPECT_EQ(desk.Person().Unexpected, 0);
        EXPECT_TRUE(desk.Person().AllAnswered());
    }

    std::string Shown() const {
        std::string texts;
        for (const auto& question : desk.Computer.Questions.Inputs) texts += question.Text + ";";
        return texts;
    }
};

TEST_F(Calculator, TheFirstValueStandsInTheBox) {
    desk.Person().CancelInput();
    ParseCalculator(*desk.Main, " 2+2");
    ASSERT_EQ(desk.Person().Inputs.size(), 1U);
    EXPECT_EQ(desk.Person().Inputs[0].Title, "Calculator");
    EXPECT_EQ(desk.Person().Inputs[0].Caption, "Continue or enter a new expression:");
    EXPECT_EQ(desk.Person().Inputs[0].Text, "4");
}

TEST_F(Calculator, OneGoesOnBehindTheValue) {
    desk.Person().Type("4*5");
    desk.Person().Type("20/8");
    desk.Person().CancelInput();
    ParseCalculator(*desk.Main, "2+2");
    EXPECT_EQ(Shown(), "4;20;2.5;");
}

TEST_F(Calculator, ItEndsWhereTheValueIsLeftAsItStands) {
    desk.Person().Type("5+5");
    desk.Person().Type("10");
    ParseCalculator(*desk.Main, "1");
    EXPECT_EQ(Shown(), "1;10;");
}

TEST_F(Calculator, ItEndsWhereTheBoxIsEmptied) {
    desk.Person().Type("");
    ParseCalculator(*desk.Main, "7");
    EXPECT_EQ(Shown(), "7;");
}

TEST_F(Calculator, AnotherTextOfTheSameValueGoesOn) {
    desk.Person().Type("2*2");
    desk.Person().CancelInput();
    ParseCalculator(*desk.Main, "4");
    EXPECT_EQ(Shown(), "4;4;");
}

TEST_F(Calculator, ABadExpressionShowsNothingOrAPart) {
    desk.Person().Type("2X");
    desk.Person().Type("8/0");
    desk.Person().Type("cancel");
    desk.Person().CancelInput();
    ParseCalculator(*desk.Main, "");
    EXPECT_EQ(Shown(), "0;2;0;0;");
}

TEST_F(Calculator, TheWorkspaceStaysWhereItIsMeanwhile) {
    int pauses = 0;
    desk.Person().OnInput = [&](InputQuestion&) { pauses = desk.Main->Dock.DialogPauses; };
    desk.Person().CancelInput();
    ParseCalculator(*desk.Main, "1");
    EXPECT_EQ(pauses, 1);
    EXPECT_EQ(desk.Main->Dock.DialogPauses, 0);
}

TEST_F(Calculator, NothingIsAskedAgainWhenTheProgramEnds) {
    desk.Person().OnInput = [&](InputQuestion&) { desk.Main->IsExiting = true; };
    desk.Person().Type("1+1");
    ParseCalculator(*desk.Main, "1");
    EXPECT_EQ(Shown(), "1;");
    desk.Main->IsExiting = false;
}

} // namespace
} // namespace quill
