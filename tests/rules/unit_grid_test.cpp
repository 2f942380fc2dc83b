// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/unit_grid.h"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "support/sample_state.h"

namespace tarnwick {
namespace {

constexpr const char* army =
    "points=100\ntot_units=6\n"
    "unit1=HI,Vet,2.5,4,,7,4,Line\nunit2=SK,,3,1,S,5,6,\nunit3=EL,,5,4,,28,2,\n"
    "unit4=LM,,5,4,,28,2,Ogre\nunit5=LM,,5,4,,30,2,Wyvern\nunit6=HI,,3,4,J,9,3,\n";
constexpr const char* images =
    "[IMAGES]\ntotal=6\nimage1=v1.svg,HI,Vet,,Old\nimage2=h.svg,HI,,,Plain\n"
    "image3=v2.svg,HI,Vet,,Older\nimage4=s.svg,SK,,S,Sling\nimage5=hj.svg,HI,,J,Javelin\n"
    "image6=v3.svg,HI,Vet,,Oldest\n";

class Grid : public testing::Test {
 protected:
  Grid() {
    sample_.Folder.Write("specials.dat", "[Wyvern]\nspecial=MOUNTED\n[Ogre]\nspecial=BIG\n");
    View(0);
  }

  void View(int option) {
    TickOption(grid_.ViewOption, option);
    ViewOption_Click(state_);
  }

  /// The rows that the visible lines show, in their order.
  std::string Rows() const {
    std::string rows;
    for (int k = 0; k <= 22; ++k) {
      if (grid_.Buy[k].Visible) rows += grid_.Buy[k].Tag + " ";
    }
    return rows;
  }

  SampleState sample_{army, images};
  ArmyState& state_ = sample_.State;
  UnitsPanel& grid_ = state_.Units;
};

TEST_F(Grid, TheViewsShareTheRows) {
  EXPECT_EQ(Rows(), "1 2 4 6 ");
  for (int k = 0; k < 4; ++k)
    EXPECT_EQ(grid_.TypeLabel[k].ForeColor, 0) << k;
  View(1);
  EXPECT_EQ(Rows(), "3 5 ");
  EXPECT_EQ(grid_.TypeLabel[1].ForeColor, 9);
  View(2);
  EXPECT_EQ(Rows(), "");
  state_.BaseUnits[5].Bought = 1;
  state_.BaseUnits[2].Bought = 2;
  state_.BaseUnits[1].Bought = -1;
  View(2);
  EXPECT_EQ(Rows(), "2 5 ");
  EXPECT_EQ(grid_.TypeLabel[0].ForeColor, 0);
  EXPECT_EQ(grid_.TypeLabel[1].ForeColor, 9);
}

TEST_F(Grid, ALineShowsItsRowAndMovesNoPoints) {
  state_.BaseUnits[1].Bought = 3;
  state_.BaseUnits[2].Bought = -2;
  ShowSelectUnits(state_);
  EXPECT_EQ(
      (Lines{grid_.TypeLabel[0].Caption, grid_.ClassLabel[0].Caption, grid_.TQLabel[0].Caption,
             grid_.SizeLabel[0].Caption, grid_.MissileLabel[0].Caption, grid_.CostLabel[0].Caption,
             grid_.MaxLabel[0].Caption, grid_.UnitTotalLabel[0].Caption, grid_.Buy[0].Text,
             grid_.specLabel[0].Caption}),
      (Lines{"HI", "Vet", "2.5", "4", "", "7", "4", "21", "3", "(+)"}));
  EXPECT_EQ((Lines{grid_.MissileLabel[1].Caption, grid_.Buy[1].Text,
                   grid_.UnitTotalLabel[1].Caption, grid_.specLabel[1].Caption}),
            (Lines{"S", "", "-10", ""}));
  EXPECT_EQ(Points(state_), "100/0");
  EXPECT_EQ(state_.Title, "Velmora Tarnwick ver 1.2.1 [ #cards: 3 units: 3 (100%) ]");
  EXPECT_FALSE(state_.GridFilling);
  View(2);
  EXPECT_TRUE(grid_.ImageName[0].Visible && grid_.ViewBtn[0].Visible && grid_.TQLabel[0].Visible);
  EXPECT_FALSE(grid_.ImageName[1].Visible || grid_.ViewBtn[1].Visible || grid_.TQLabel[1].Visible);
}

TEST(GridSize, TheFirst23RowsOfAViewAreShown) {
  std::string text = "tot_units=24\n";
  for (int i = 1; i <= 24; ++i) {
    text += RowKey("unit", i) + "=HI,,3,1,,5,9,\n";
  }
  const SampleState sample(text);
  EXPECT_EQ(sample.State.Units.Buy[22].Tag, "23");
  EXPECT_TRUE(sample.State.Units.Buy[22].Visible);
}

TEST_F(Grid, PicturesThatFitAreOfferedAndTheFirstIsChosen) {
  EXPECT_EQ(grid_.ImageName[0].Entries,
            (std::vector<ListEntry>{{"Old", 1}, {"Older", 3}, {"Oldest", 6}}));
  EXPECT_EQ(grid_.ImageName[0].Text(), "Old");
  EXPECT_EQ(grid_.ImageName[1].Entries, (std::vector<ListEntry>{{"Sling", 4}}));
  EXPECT_EQ(grid_.ImageName[2].Entries.size(), 0U);
  EXPECT_EQ(grid_.ImageName[3].Entries, (std::vector<ListEntry>{{"Javelin", 5}}));
  EXPECT_EQ(state_.BaseUnits[1].ChosenImage, "Old");
  EXPECT_EQ(state_.BaseUnits[1].ChosenImageIdx, 1);
  EXPECT_EQ(state_.BaseUnits[4].ChosenImageIdx, 0);

  grid_.ImageName[0].ListIndex = 2;
  ImageName_Click(state_, 0);
  EXPECT_EQ(state_.BaseUnits[1].ChosenImage, "Oldest");
  View(1);
  View(0);
  EXPECT_EQ(grid_.ImageName[0].Text(), "Oldest");
  EXPECT_EQ(state_.BaseUnits[1].ChosenImageIdx, 6);

  // A choice that does not fit is kept although the list shows another one.
  state_.BaseUnits[1].ChosenImageIdx = 2;
  ShowSelectUnits(state_);
  EXPECT_EQ(grid_.ImageName[0].Text(), "Old");
  EXPECT_EQ(state_.BaseUnits[1].ChosenImage, "Oldest");
  EXPECT_EQ(state_.BaseUnits[1].ChosenImageIdx, 2);

  grid_.Buy[0].Tag = "";  // a reset has taken the row off the line
  grid_.ImageName[0].ListIndex = 1;
  ImageName_Click(state_, 0);
  EXPECT_EQ(state_.BaseUnits[1].ChosenImage, "Oldest");
}

TEST_F(Grid, ViewBtnShowsTheChosenPicture) {
  const auto seen = [this] { return std::exchange(sample_.Host.Pictures, {}); };
  using Paths = std::vector<std::filesystem::path>;
  ViewBtn_Click(state_, sample_.Host, 2);  // nothing to show
  EXPECT_EQ(sample_.Host.Heard(), Lines{});
  ViewBtn_Click(state_, sample_.Host, 0);
  EXPECT_EQ(sample_.Host.Heard(),
            Lines{"File " + (sample_.Folder / "v1.svg").string() + " not found"});
  sample_.Folder.Write("brakka/v1.svg", "");
  ViewBtn_Click(state_, sample_.Host, 0);
  EXPECT_EQ(sample_.Host.Heard().size(), 1U);
  EXPECT_EQ(seen(), Paths{});

  state_.BrakkaMode = true;
  ViewBtn_Click(state_, sample_.Host, 0);
  EXPECT_EQ(seen(), Paths{sample_.Folder / "brakka/v1.svg"});
  sample_.Folder.Write("v1.svg", "");
  ViewBtn_Click(state_, sample_.Host, 0);
  EXPECT_EQ(seen(), Paths{sample_.Folder / "v1.svg"});
  EXPECT_EQ(sample_.Host.Heard(), Lines{});
  ViewBtn_Click(state_, sample_.Host, 1);
  EXPECT_EQ(sample_.Host.Heard(),
            Lines{"File " + (sample_.Folder / "brakka/s.svg").string() + " not found"});
}

TEST_F(Grid, SpecLabelOpensTheAbilitiesOfItsRow) {
  int shown = 0;
  sample_.Host.OnSpecForm = [&] { shown = state_.SpecUnitRow.Value(); };
  specLabel_Click(state_, sample_.Host, 1);
  EXPECT_EQ(shown, 0);
  specLabel_Click(state_, sample_.Host, 2);
  EXPECT_EQ(shown, 4);
  grid_.Buy[0].Tag = "";
  specLabel_Click(state_, sample_.Host, 0);
  EXPECT_EQ(shown, 1);
}

}  // namespace
}  // namespace tarnwick
