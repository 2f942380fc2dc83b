// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <vector>

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>

#include "base/controls.h"
#include "base/table.h"

namespace tarnwick {

/// Ties widgets to the controls of the state: what the user enters goes into the control at once,
/// and Refresh shows the controls again. The controls must outlive the widgets.
class Bindings {
 public:
  /// Ties a widget, or the group of buttons that are options, to its control and gives it back.
  template <typename Widget, typename Control>
  Widget* Add(Widget* widget, Control& control) {
    Tie(widget, control);
    return widget;
  }
  /// A control of which only its visibility matters.
  void AddVisible(QWidget* widget, const bool& visible);
  /// Anything else that is to be shown.
  void Add(std::function<void()> show) { show_.push_back(std::move(show)); }

  /// Shows all controls, setting a widget only where it differs.
  void Refresh() const;

 private:
  void Tie(QLabel* widget, const Label& control);
  void Tie(QLineEdit* widget, TextBox& control);
  void Tie(QPlainTextEdit* widget, TextBox& control);
  void Tie(QCheckBox* widget, CheckBox& control);
  void Tie(QComboBox* widget, ListBox& control);
  void Tie(QListWidget* widget, ListBox& control);
  void Tie(QAbstractButton* widget, const Label& control);
  /// The buttons' ids are the indices.
  template <int Last>
  void Tie(QButtonGroup* group, Table<OptionButton, 0, Last>& options) {
    TieOptions(group, &options[0], Last + 1);
  }
  void TieOptions(QButtonGroup* group, OptionButton* options, int count);

  std::vector<std::function<void()>> show_;
};

}  // namespace tarnwick
