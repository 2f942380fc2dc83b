// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "base/numbers.h"

#include <limits>
#include <map>

#include "base/table.h"
#include "support/testing.h"

namespace tarnwick {

TEST(Int16, ResultsReachBothEndsAndNoFurther) {
  Int16 top = Int16() + 32766, bottom = Int16(256) * -128;
  EXPECT_TRUE(++top == 32767 && bottom == -32768);
  EXPECT_THROW(Int16(32768), OverflowError);
  EXPECT_THROW(Int16(-32769), OverflowError);
  EXPECT_THROW(-bottom, OverflowError);
  EXPECT_THROW(bottom * bottom, OverflowError);
  EXPECT_THROW(++top, OverflowError);
  EXPECT_THROW(bottom -= 1, OverflowError);
  EXPECT_EQ(top -= 7, 32760);  // a failed assignment left the operand
  EXPECT_EQ(bottom += 8, -32760);
}

TEST(Table, HoldsItsRowsAndNoOthers) {
  Table<int, 1, 3> table;
  for (int i = 1; i <= 3; ++i)
    table[i] = i * 10;
  EXPECT_EQ(table.end() - table.begin(), 3);
  const auto& constant = table;
  EXPECT_EQ(Joined(constant[1], constant[3]), "10|30");
  for (const int outside : {0, 4, -1, 32767, -32768}) {
    EXPECT_THROW(table[outside], SubscriptError) << outside;
    EXPECT_THROW(constant[outside], SubscriptError) << outside;
  }
}

TEST(ControlArray, GrowsByCopiesOfItsFirstElementAndMovesNone) {
  ControlArray<Label> controls, other;
  controls[0].Caption = "5";
  controls.Load();
  EXPECT_EQ(std::exchange(controls[1].Caption, "6"), "5");
  other = controls;
  controls.Load();
  EXPECT_FALSE(other == controls);
  Label& last = controls[2];
  EXPECT_EQ(last.Caption, "5");
  EXPECT_THROW(controls[-1], SubscriptError);
  EXPECT_EQ(ErrorOf([&] { controls[3] = {}; }), "Subscript out of range");
  controls = other;
  EXPECT_TRUE(other == controls && controls[1].Visible);
  EXPECT_FALSE(controls.Has(2) || last.Visible);
  EXPECT_EQ(last.Caption, "");
  controls.Load();
  EXPECT_EQ(&controls[2], &last);
}

TEST(Conversions, LenientTakesTheLeadingNumberAndStrictTheWholeText) {
  const std::map<std::string, double> wholeNumbers = {
      {"12", 12}, {"-12", -12},  {"+3", 3},     {" \t 7.25\t ", 7.25}, {".5", .5},    {"-.5", -.5},
      {"5.", 5},  {"1e3", 1000}, {"1E-2", .01}, {"2.e+1", 20},         {"1e-400", 0}, {"0e400", 0}};
  for (const auto& [text, value] : wholeNumbers) {
    EXPECT_EQ(LenientNumber(text), value) << text;
    EXPECT_EQ(StrictNumber(text), value) << text;
  }
  const std::map<std::string, double> others = {
      {"", 0},    {" \t", 0},    {"\n7", 0}, {"7\r\n", 7}, {".", 0},       {"-", 0},     {"+-3", 0},
      {"- 3", 0}, {"3 men", 3},  {"3 4", 3}, {"3,5", 3},   {"1.5.2", 1.5}, {"men 3", 0}, {"1e", 1},
      {"1e+", 1}, {"1e1.5", 10}, {"e5", 0},  {"0x10", 0},  {"inf", 0},     {"nan", 0}};
  for (const auto& [text, value] : others) {
    EXPECT_EQ(LenientNumber(text), value) << text;
    EXPECT_THROW(StrictNumber(text), TypeMismatchError) << text;
  }
  EXPECT_EQ(StrictNumber(std::string_view("15.5").substr(0, 2)), 15);  // looks at nothing behind
  EXPECT_THROW(LenientNumber(" -1e400x"), OverflowError);
  EXPECT_THROW(StrictNumber("1e400"), OverflowError);
  EXPECT_EQ(LenientInt16("32767.4 points"), 32767);
  EXPECT_THROW(LenientInt16("32768 points"), OverflowError);
  EXPECT_EQ(StrictInt16(" -2.5 "), -2);
  EXPECT_THROW(StrictInt16("-32769"), OverflowError);
}

TEST(Rounding, HalvesGoToTheEvenNeighbour) {
  const std::map<double, int> cases = {{.5, 0},     {1.5, 2},          {2.5, 2},          {-.5, 0},
                                       {-1.5, -2},  {-2.5, -2},        {2.51, 3},         {2.49, 2},
                                       {-2.51, -3}, {32767.49, 32767}, {-32768.5, -32768}};
  for (const auto& [value, rounded] : cases)
    EXPECT_EQ(RoundToInt16(value), rounded) << value;
  for (const double outside : {32767.5, -32768.51, std::numeric_limits<double>::quiet_NaN()})
    EXPECT_THROW(RoundToInt16(outside), OverflowError) << outside;
  EXPECT_EQ(Joined(RoundToCents(.125), RoundToCents(.375)), "0.12|0.38");
  EXPECT_EQ(Joined(Int(2.7), Int(-2.5)), "2|-3");
}

TEST(NumberText, IsTheShortestForm) {
  const struct {
    double Value;
    const char* Text;
  } cases[] = {{2.5, "2.5"},      {3, "3"},          {-2.25, "-2.25"},
               {-0., "0"},        {.1 + .2, "0.3"},  {1 / 3., "0.333333333333333"},
               {.0001, "0.0001"}, {.00001, "1E-05"}, {999999999999999., "999999999999999"},
               {1e15, "1E+15"}};
  for (const auto& [value, text] : cases)
    EXPECT_EQ(NumberText(value), text);
  EXPECT_EQ(NumberText(Int16(-32768)), "-32768");
}

}  // namespace tarnwick
