// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "base/numbers.h"

#include <limits>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "base/errors.h"

namespace tarnwick {
namespace {

/// The strict conversion; nothing for a type mismatch.
std::optional<double> Strict(std::string_view text) {
  try {
    return StrictNumber(text);
  } catch (const TypeMismatchError&) {
    return std::nullopt;
  }
}

TEST(Conversions, LenientTakesTheLeadingNumberAndStrictTheWholeText) {
  constexpr std::nullopt_t mismatch = std::nullopt;
  const struct {
    std::string Text;
    double Lenient;
    std::optional<double> Strict;
  } cases[] = {
      {"", 0, mismatch},
      {" \t", 0, mismatch},
      {"12", 12, 12},
      {"-12", -12, -12},
      {"+3", 3, 3},
      {" \t 7.25\t ", 7.25, 7.25},
      {"\n7", 0, mismatch},
      {"7\r\n", 7, mismatch},
      {".5", .5, .5},
      {"-.5", -.5, -.5},
      {"5.", 5, 5},
      {".", 0, mismatch},
      {"-", 0, mismatch},
      {"+-3", 0, mismatch},
      {"- 3", 0, mismatch},
      {"3 units", 3, mismatch},
      {"3 4", 3, mismatch},
      {"3,5", 3, mismatch},
      {"1.5.2", 1.5, mismatch},
      {"units 3", 0, mismatch},
      {"1e3", 1000, 1000},
      {"1E-2", .01, .01},
      {"2.e+1", 20, 20},
      {"1e", 1, mismatch},
      {"1e+", 1, mismatch},
      {"1e1.5", 10, mismatch},
      {"e5", 0, mismatch},
      {"0x10", 0, mismatch},
      {"inf", 0, mismatch},
      {"nan", 0, mismatch},
      {"1e-400", 0, 0},
      {"0e400", 0, 0},
      {"0." + std::string(400, '0') + "1", 0, 0},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(LenientNumber(c.Text), c.Lenient) << c.Text;
    EXPECT_EQ(Strict(c.Text), c.Strict) << c.Text;
  }
}

TEST(Conversions, NumbersTooLargeAreOverflow) {
  for (const char* text : {"1e400", "-1e400", " 1e400x"}) {
    EXPECT_THROW(LenientNumber(text), OverflowError) << text;
  }
  EXPECT_THROW(StrictNumber("1e400"), OverflowError);
  EXPECT_EQ(LenientInt16("32767.4 points"), 32767);
  EXPECT_THROW(LenientInt16("32768 points"), OverflowError);
  EXPECT_EQ(StrictInt16(" -2.5 "), -2);
  EXPECT_THROW(StrictInt16("-32769"), OverflowError);
  EXPECT_THROW(StrictInt16("32769 points"), TypeMismatchError);
}

TEST(Rounding, HalvesGoToTheEvenNeighbour) {
  const struct {
    double Value;
    int Rounded;
  } cases[] = {{.5, 0},       {1.5, 2},   {2.5, 2},   {-.5, 0},     {-1.5, -2}, {-2.5, -2},
               {2.51, 3},     {2.49, 2},  {-2.51, -3}, {32767.49, 32767}, {-32768.5, -32768}};
  for (const auto& c : cases) EXPECT_EQ(RoundToInt16(c.Value), c.Rounded) << c.Value;
  for (const double outside : {32767.5, -32768.51, 1e300, std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_THROW(RoundToInt16(outside), OverflowError) << outside;
  }
  EXPECT_EQ(RoundToCents(.125), .12);
  EXPECT_EQ(RoundToCents(.375), .38);
  EXPECT_EQ(RoundToCents(34 / 14.), 2.43);
}

TEST(Rounding, IntCutsDown) {
  EXPECT_EQ(Int(2.7), 2);
  EXPECT_EQ(Int(-2.5), -3);
  EXPECT_EQ(Int(-2), -2);
}

TEST(NumberText, IsTheShortestForm) {
  const struct {
    double Value;
    const char* Text;
  } cases[] = {{2.5, "2.5"},
               {3, "3"},
               {-2.25, "-2.25"},
               {-0., "0"},
               {100, "100"},
               {.1 + .2, "0.3"},
               {1 / 3., "0.333333333333333"},
               {.0001, "0.0001"},
               {.00001, "1E-05"},
               {999999999999999., "999999999999999"},
               {1e15, "1E+15"},
               {123456789012345678., "1.23456789012346E+17"}};
  for (const auto& c : cases) EXPECT_EQ(NumberText(c.Value), c.Text);
  EXPECT_EQ(NumberText(Int16(-32768)), "-32768");
}

}  // namespace
}  // namespace tarnwick
