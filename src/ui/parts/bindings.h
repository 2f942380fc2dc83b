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
  void Add(QLabel* widget, const Label& control);
  void Add(QLineEdit* widget, TextBox& control);
  void Add(QPlainTextEdit* widget, TextBox& control);
  void Add(QCheckBox* widget, CheckBox& control);
  void Add(QComboBox* widget, ListBox& control);
  void Add(QListWidget* widget, ListBox& control);
  void Add(QAbstractButton* widget, const Label& control);
  /// A control of which only its visibility matters.
  void AddVisible(QWidget* widget, const bool& visible);
  /// An option group; the buttons' ids are the indices.
  template <int Last>
  void Add(QButtonGroup* group, Table<OptionButton, 0, Last>& options) {
    AddOptions(group, &options[0], Last + 1);
  }
  /// Anything else that is to be shown.
  void Add(std::function<void()> show) { show_.push_back(std::move(show)); }

  /// Shows all controls, setting a widget only where it differs.
  void Refresh() const;

 private:
  void AddOptions(QButtonGroup* group, OptionButton* options, int count);

  std::vector<std::function<void()>> show_;
};

}  // namespace tarnwick
