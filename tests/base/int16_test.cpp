// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "base/int16.h"

#include <gtest/gtest.h>

#include "base/table.h"

namespace tarnwick {
namespace {

TEST(Int16, ResultsReachBothEndsAndNoFurther) {
  const Int16 top = 32767;
  const Int16 bottom = -32768;

  EXPECT_EQ(Int16(32766) + 1, top);
  EXPECT_EQ(Int16(-32767) - 1, bottom);
  EXPECT_EQ(Int16(256) * -128, bottom);

  EXPECT_THROW(Int16(32768), OverflowError);
  EXPECT_THROW(Int16(-32769), OverflowError);
  EXPECT_THROW(top + 1, OverflowError);
  EXPECT_THROW(bottom - 1, OverflowError);
  EXPECT_THROW(-bottom, OverflowError);
  EXPECT_THROW(Int16(256) * 128, OverflowError);
  EXPECT_THROW(bottom * bottom, OverflowError);
}

TEST(Table, HoldsItsRowsAndNoOthers) {
  Table<int, 1, 3> table;
  for (int i = 1; i <= 3; ++i)
    table[i] = i * 10;
  const auto& constant = table;
  for (int i = 1; i <= 3; ++i)
    EXPECT_EQ(constant[i], i * 10);
  for (const int outside : {0, 4, -1, 32767, -32768}) {
    EXPECT_THROW(table[outside], SubscriptError) << outside;
    EXPECT_THROW(constant[outside], SubscriptError) << outside;
  }
}

TEST(ControlArray, GrowsByCopiesOfElementZero) {
  ControlArray<int> array;
  array[0] = 5;
  EXPECT_THROW(array[1], SubscriptError);
  array.Load();
  array[1] = 6;
  array.Load();
  EXPECT_EQ(array[2], 5);
  EXPECT_EQ(array[1], 6);
  EXPECT_EQ(array.Count(), 3);
  for (const int missing : {-1, 3}) {
    EXPECT_FALSE(array.Has(missing));
    EXPECT_THROW(array[missing], SubscriptError) << missing;
  }
}

}  // namespace
}  // namespace tarnwick
