// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "base/int16.h"

namespace tarnwick {

// What the window's controls hold. Many rules read it, so it belongs to the state; the window
// mirrors it and writes into it what the user enters.

/// The colours of the classic 16-colour palette that are in use, by their numbers there.
enum class Colour { Black = 0, LightBlue = 9 };

struct Label {
  std::string Caption;
  std::string Tag;
  bool Visible = true;
  Colour ForeColor = Colour::Black;
  bool operator==(const Label&) const = default;
};

struct TextBox {
  std::string Text;
  std::string Tag;
  bool Visible = true;
  bool operator==(const TextBox&) const = default;
};

struct Button {
  std::string Caption;
  bool Visible = true;
  bool operator==(const Button&) const = default;
};

struct Frame {
  std::string Caption;
  bool Visible = true;
  bool operator==(const Frame&) const = default;
};

struct OptionButton {
  std::string Caption;
  bool Value = false;
  bool Visible = true;
  bool operator==(const OptionButton&) const = default;
};

/// A box that shows a picture, and the area pictures are dropped on.
struct PictureBox {
  std::string Tag = "0";
  int Picture = 0;  ///< which picture it shows
  bool operator==(const PictureBox&) const = default;
};

struct CheckBox {
  bool Value = false;
  bool operator==(const CheckBox&) const = default;
};

struct ListEntry {
  std::string Text;
  Int16 ItemData;
  bool operator==(const ListEntry&) const = default;
};

/// A list box or a drop-down list.
struct ListBox {
  std::vector<ListEntry> Entries;
  int ListIndex = -1;  ///< the selected entry, from 0; −1 is none
  bool Visible = true;

  bool HasSelection() const {
    return ListIndex >= 0 && ListIndex < static_cast<int>(Entries.size());
  }
  const ListEntry& Selected() const { return Entries.at(static_cast<std::size_t>(ListIndex)); }
  /// The selected entry's text, "" without a selection.
  std::string Text() const { return HasSelection() ? Selected().Text : ""; }

  void Clear() {
    Entries.clear();
    ListIndex = -1;
  }
  /// Selects the entry of that text, if there is one.
  void Select(const std::string& text) {
    const auto found = std::find_if(Entries.begin(), Entries.end(),
                                    [&text](const ListEntry& entry) { return entry.Text == text; });
    if (found != Entries.end()) ListIndex = static_cast<int>(found - Entries.begin());
  }
  void AddItem(const std::string& text, Int16 itemData = 0) { Entries.push_back({text, itemData}); }
  bool operator==(const ListBox&) const = default;
};

}  // namespace tarnwick
