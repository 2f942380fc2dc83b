// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/unit_grid.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "rules/unit_types.h"
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
    sample_.Folder.Write("specials.dat",
                         "[Wyvern]\nspecial=MOUNTED\n[Ogre]\nspecial=BIG\n"
                         "[SPECIALS]\nBIG=Big\n");
    Rows(0);
  }

  /// The rows that a view shows, in their order, with their colours.
  std::string Rows(int view) {
    TickOption(grid_.ViewOption, view);
    ViewOption_Click(state_, sample_.Store);
    std::string rows;
    for (int k = 0; k <= 22 && grid_.Buy[k].Visible; ++k)
      rows += grid_.Buy[k].Tag + "." +
              (grid_.TypeLabel[k].ForeColor == Colour::LightBlue ? "9" : "0") + " ";
    return rows;
  }

  SampleState sample_{army, images};
  ArmyState& state_ = sample_.State;
  UnitsPanel& grid_ = state_.Units;
};

TEST_F(Grid, TheViewsShareTheRows) {
  EXPECT_EQ(Rows(0), "1.0 2.0 4.0 6.0 ");
  EXPECT_EQ(Rows(1), "3.9 5.9 ");
  EXPECT_EQ(Rows(2), "");
  state_.BaseUnits[5].Bought = 1;
  state_.BaseUnits[2].Bought = 2;
  state_.BaseUnits[1].Bought = -1;
  EXPECT_EQ(Rows(2), "2.0 5.9 ");
  EXPECT_TRUE(grid_.ImageName[1].Visible && grid_.ViewBtn[1].Visible && grid_.TQLabel[1].Visible);
  EXPECT_FALSE(grid_.ImageName[2].Visible || grid_.ViewBtn[2].Visible || grid_.TQLabel[2].Visible);

  std::string many = "tot_units=24\n";
  for (int i = 1; i <= 24; ++i)
    many += RowKey("unit", i) + "=HI,,3,1,,5,9,\n";
  EXPECT_EQ(SampleState(many).State.Units.Buy[22].Tag, "23");  // more than a view can show
}

TEST_F(Grid, ALineShowsItsRowAndMovesNoPoints) {
  state_.BaseUnits[1].Bought = 3;
  state_.BaseUnits[2].Bought = -2;
  ShowSelectUnits(state_, sample_.Store);
  const auto line = [this](int k) {
    std::string text = grid_.Buy[k].Text;
    for (const auto* column : {&grid_.TypeLabel, &grid_.ClassLabel, &grid_.TQLabel,
                               &grid_.SizeLabel, &grid_.MissileLabel, &grid_.CostLabel,
                               &grid_.MaxLabel, &grid_.UnitTotalLabel, &grid_.specLabel}) {
      text += "|" + (*column)[k].Caption;
    }
    return text;
  };
  EXPECT_EQ(line(0), "3|HI|Vet|2.5|4||7|4|21|(+)");
  EXPECT_EQ(line(1), "|SK||3|1|S|5|6|-10|");
  EXPECT_EQ(Points(state_), "100/0");
  EXPECT_EQ(state_.Title, "Velmora Tarnwick ver 1.2.1 [ #cards: 3 units: 3 (100%) ]");
  EXPECT_FALSE(state_.GridFilling);
}

TEST_F(Grid, PicturesThatFitAreOfferedAndTheFirstIsChosen) {
  const auto chosen = [this] {
    const UnitRec& unit = state_.BaseUnits[1];
    return grid_.ImageName[0].Text() + "|" + unit.ChosenImage + NumberText(unit.ChosenImageIdx);
  };
  EXPECT_EQ(grid_.ImageName[0].Entries,
            (std::vector<ListEntry>{{"Old", 1}, {"Older", 3}, {"Oldest", 6}}));
  EXPECT_EQ(grid_.ImageName[2].Entries.size(), 0U);
  EXPECT_EQ(grid_.ImageName[3].Entries, (std::vector<ListEntry>{{"Javelin", 5}}));
  EXPECT_EQ(chosen(), "Old|Old1");
  EXPECT_EQ(state_.BaseUnits[4].ChosenImageIdx, 0);
  grid_.ImageName[0].ListIndex = 2;
  ImageName_Click(state_, 0);
  Rows(1);
  Rows(0);
  EXPECT_EQ(chosen(), "Oldest|Oldest6");
  // A choice that does not fit is kept although the list shows another one.
  state_.BaseUnits[1].ChosenImageIdx = 2;
  ShowSelectUnits(state_, sample_.Store);
  EXPECT_EQ(chosen(), "Old|Oldest2");
  grid_.Buy[0].Tag = "";  // a reset has taken the row off the line
  grid_.ImageName[0].ListIndex = 1;
  ImageName_Click(state_, 0);
  EXPECT_EQ(chosen(), "Older|Oldest2");
}

TEST_F(Grid, ButtonsShowPictureAndAbilities) {
  const auto view = [this](int line) {
    ViewBtn_Click(state_, sample_.Store, sample_.Host, line);
    Lines seen = sample_.Host.Heard();
    for (const auto& picture : std::exchange(sample_.Host.Pictures, {}))
      seen.push_back(picture.string());
    return seen;
  };
  const std::string folder = sample_.Folder.Path().string() + "/";
  EXPECT_EQ(view(2), Lines{});  // no picture fits
  sample_.Folder.Write("brakka/v1.svg", "");
  EXPECT_EQ(view(0), Lines{"File " + folder + "v1.svg not found"});
  state_.BrakkaMode = true;
  EXPECT_EQ(view(0), Lines{folder + "brakka/v1.svg"});
  EXPECT_EQ(view(1), Lines{"File " + folder + "brakka/s.svg not found"});
  sample_.Folder.Write("v1.svg", "");
  EXPECT_EQ(view(0), Lines{folder + "v1.svg"});

  int shown = 0;
  sample_.Host.OnSpecForm = [&] { shown = state_.SpecUnitRow.Value(); };
  specLabel_Click(state_, sample_.Store, sample_.Host, 1);
  EXPECT_EQ(shown, 0);
  specLabel_Click(state_, sample_.Store, sample_.Host, 2);
  EXPECT_EQ(shown, 4);
  EXPECT_EQ(SpecialAbilitiesText(state_, sample_.Store),
            "Special abilities for the unit: LM\r\n\r\n\r\n*BIG=Big");
  grid_.Buy[0].Tag = "";
  specLabel_Click(state_, sample_.Store, sample_.Host, 0);
  EXPECT_EQ(shown, 1);
}

}  // namespace
}  // namespace tarnwick
