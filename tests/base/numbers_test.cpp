// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "base/numbers.h"

#include <limits>
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "base/errors.h"

namespace tarnwick {
namespace {

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
}

TEST(Conversions, NumbersTooSmallAreZero) {
  EXPECT_EQ(LenientNumber("1e-400"), 0);
}

TEST(Conversions, NumbersTooLargeAreOverflow) {
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
  for (const double outside :
       {32767.5, -32768.51, 1e300, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_THROW(RoundToInt16(outside), OverflowError) << outside;
  }
  EXPECT_EQ(RoundToCents(.125), .12);
  EXPECT_EQ(RoundToCents(.375), .38);
  EXPECT_EQ(Int(2.7), 2);
  EXPECT_EQ(Int(-2.5), -3);
}

TEST(NumberText, IsTheShortestForm) {
  const std::map<double, std::string> cases = {{2.5, "2.5"},
                                               {3, "3"},
                                               {-2.25, "-2.25"},
                                               {-0., "0"},
                                               {100, "100"},
                                               {.1 + .2, "0.3"},
                                               {1 / 3., "0.333333333333333"},
                                               {.0001, "0.0001"},
                                               {.00001, "1E-05"},
                                               {999999999999999., "999999999999999"},
                                               {1e15, "1E+15"}};
  for (const auto& [value, text] : cases)
    EXPECT_EQ(NumberText(value), text);
  EXPECT_EQ(NumberText(Int16(-32768)), "-32768");
}

}  // namespace
}  // namespace tarnwick
