// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/unit_grid.h"

#include "rules/unit_types.h"
#include "support/sample_state.h"

namespace tarnwick {

struct Grid : testing::Test, SampleState {
  Grid() : SampleState("Grid") {}

  /// The rows that a view shows, in their order, with their colours.
  Lines Rows(int view) {
    TickOption(Units.ViewOption, view);
    ViewOption_Click(State, Store);
    Lines rows;
    for (int k = 0; k <= 22 && Units.Buy[k].Visible; ++k)
      rows.push_back(Joined(Units.Buy[k].Tag, static_cast<int>(Units.TypeLabel[k].ForeColor)));
    return rows;
  }
};

TEST_F(Grid, TheViewsShareTheRows) {
  EXPECT_EQ(Rows(0), (Lines{"1|0", "2|0", "4|0", "6|0"}));
  EXPECT_EQ(Rows(1), (Lines{"3|9", "5|9"}));
  EXPECT_EQ(Rows(2), Lines{});
  State.BaseUnits[5].Bought = 1;
  State.BaseUnits[2].Bought = 2;
  State.BaseUnits[1].Bought = -1;
  EXPECT_EQ(Rows(2), (Lines{"2|0", "5|9"}));
  const auto visible = [this](int k) {
    return Joined(Units.specLabel[k].Visible, Units.ImageName[k].Visible, Units.ViewBtn[k].Visible);
  };
  EXPECT_EQ((Lines{visible(1), visible(2), visible(22)}), (Lines{"1|1|1", "0|0|0", "0|0|0"}));
  for (Int16 r = 1; r <= 24; ++r)
    State.BaseUnits[r] = ParseIdentity("HI");
  State.TotUnits = 24;
  EXPECT_EQ(Rows(0).back(), "23|0");  // more than a view can show
}

TEST_F(Grid, ALineShowsItsRowAndMovesNoPoints) {
  State.BaseUnits[1].Bought = 1;
  State.BaseUnits[2].Bought = -2;
  ShowSelectUnits(State, Store);
  const auto line = [&u = Units](int k) {
    return Joined(u.Buy[k].Text, u.TypeLabel[k].Caption, u.ClassLabel[k].Caption,
                  u.TQLabel[k].Caption, u.SizeLabel[k].Caption, u.MissileLabel[k].Caption,
                  u.CostLabel[k].Caption, u.MaxLabel[k].Caption, u.UnitTotalLabel[k].Caption,
                  u.specLabel[k].Caption);
  };
  EXPECT_EQ(line(0), "1|HI|Vet|2.5|4||7|4|7|(+)");
  EXPECT_EQ(line(1), "|SK||3|1|S|5|6|-10|");
  EXPECT_EQ(Joined(Points(), State.Title),
            "100/0|Velmora Tarnwick ver 1.2.1 [ #cards: 1 units: 1 (100%) ]");
  EXPECT_FALSE(State.GridFilling || State.SetupLoading);
}

TEST_F(Grid, PicturesThatFitAreOfferedAndTheFirstIsChosen) {
  // The picture shown, and the one that the row remembers.
  const auto chosen = [this] {
    const UnitRec& unit = State.BaseUnits[1];
    return Joined(Units.ImageName[0].Text(), unit.ChosenImage, unit.ChosenImageIdx);
  };
  EXPECT_EQ(Units.ImageName[0].Entries,
            (std::vector<ListEntry>{{"Old", 1}, {"Older", 3}, {"Oldest", 6}}));
  EXPECT_EQ(Joined(Units.ImageName[2].Entries.size(), State.BaseUnits[4].ChosenImageIdx), "0|0");
  EXPECT_EQ(chosen(), "Old|Old|1");
  Units.ImageName[0].ListIndex = 2;
  ImageName_Click(State, 0);
  Rows(1);
  Rows(0);
  EXPECT_EQ(chosen(), "Oldest|Oldest|6");
  EXPECT_EQ(Joined(PictureOf(State, 1), PictureOf(State, 4)), "6|0");
  State.BaseUnits[1].ChosenImageIdx = 0;
  EXPECT_EQ(PictureOf(State, 1), 1);
  // A choice that does not fit is kept although the list shows another one.
  State.BaseUnits[1].ChosenImageIdx = 2;
  ShowSelectUnits(State, Store);
  EXPECT_EQ(chosen(), "Old|Oldest|2");
  Units.ImageName[0].ListIndex = -1;  // no picture, no choice
  ImageName_Click(State, 0);
  Units.Buy[0].Tag = "";  // a reset has taken the row off the line
  Units.ImageName[0].ListIndex = 1;
  ImageName_Click(State, 0);
  EXPECT_EQ(chosen(), "Older|Oldest|2");
}

TEST_F(Grid, ButtonsShowPictureAndAbilities) {
  const auto view = [this](int line) {
    ViewBtn_Click(State, Store, Host, line);
    return Host.Heard();
  };
  Folder.Write("v1.svg", "");
  EXPECT_EQ(view(0), Lines{});
  EXPECT_EQ(view(2), Lines{});  // no picture fits
  EXPECT_EQ(Host.Pictures, std::vector{Folder / "v1.svg"});
  EXPECT_EQ(view(1), Lines{"File " + (Folder / "s.svg").string() + " not found"});

  int shown = 0;
  Host.OnSpecForm = [&] { shown = State.SpecUnitRow.Value(); };
  const auto abilities = [&](int line) {
    specLabel_Click(State, Store, Host, line);
    return shown;
  };
  EXPECT_EQ(abilities(1), 0);  // it has none
  EXPECT_EQ(abilities(2), 4);
  EXPECT_EQ(SpecialAbilitiesText(State, Store),
            "Special abilities for the unit: LM\r\n\r\n\r\n*BIG=Big");
  Units.Buy[0].Tag = "";
  EXPECT_EQ(abilities(0), 1);
}

}  // namespace tarnwick
