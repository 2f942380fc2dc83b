// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/special_abilities.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace tarnwick {
namespace {

class Abilities : public testing::Test {
 protected:
  Abilities() {
    folder_.Write("specials.dat",
                  "[Riders]\nspecial=FAST+MOUNTED\n"
                  "[Lower]\nspecial=mounted\n"
                  "[Gap]\nspecial=FAST++MOUNTED\n"
                  "[Unknown]\nspecial=FAST+RIDDLE+MOUNTED\n"
                  "[Many]\nspecial=A+B+C+D+E+F+G+H+I+MOUNTED+FAST\n"
                  "[SPECIALS]\nFAST=Moves twice\nMOUNTED=Rides\n"
                  "A=1\nB=2\nC=3\nD=4\nE=5\nF=6\nG=7\nH=8\nI=9\n");
  }

  TempFolder folder_;
  ProfileFiles files_;
  SpecialAbilities abilities_{files_, folder_.Path()};
};

TEST_F(Abilities, TenCodesAreLookedAtAndAnEmptyOneEndsTheList) {
  EXPECT_TRUE(abilities_.Has("Riders", "MOUNTED"));
  EXPECT_FALSE(abilities_.Has("Riders", "MOUNT"));
  EXPECT_FALSE(abilities_.Has("Lower", "MOUNTED"));
  EXPECT_FALSE(abilities_.Has("Gap", "MOUNTED"));
  EXPECT_FALSE(abilities_.Has("Gap", ""));
  EXPECT_TRUE(abilities_.Has("Unknown", "MOUNTED"));
  EXPECT_TRUE(abilities_.Has("Many", "MOUNTED"));
  EXPECT_FALSE(abilities_.Has("Many", "FAST"));
  EXPECT_FALSE(abilities_.Has("", "MOUNTED"));
  EXPECT_FALSE(abilities_.Has("None", "MOUNTED"));
}

TEST_F(Abilities, ExplanationsStopAtTheFirstCodeWithoutOne) {
  EXPECT_EQ(abilities_.Explain("Riders"), "\r\n\r\n*FAST=Moves twice\r\n\r\n*MOUNTED=Rides");
  EXPECT_EQ(abilities_.Explain("Unknown"), "\r\n\r\n*FAST=Moves twice");
  EXPECT_EQ(abilities_.Explain("Gap"), "\r\n\r\n*FAST=Moves twice");
  EXPECT_EQ(abilities_.Explain("Lower"), "\r\n\r\n*mounted=Rides");  // keys match in any case
  const std::string many = abilities_.Explain("Many");
  EXPECT_TRUE(many.ends_with("*I=9\r\n\r\n*MOUNTED=Rides")) << many;
  EXPECT_EQ(abilities_.Explain("None"), "");
}

}  // namespace
}  // namespace tarnwick
