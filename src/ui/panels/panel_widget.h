// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "rules/army_state.h"
#include "ui/parts/bindings.h"
#include "ui/parts/session.h"

class QHBoxLayout;
class QVBoxLayout;

namespace tarnwick {

/// One of the panels `EditFrame`: its caption on top, its contents below.
class PanelWidget : public QWidget {
 public:
  PanelWidget(Panel panel, const QString& caption, Session& session);

  /// Shows the state.
  virtual void Refresh() { bindings_.Refresh(); }

  /// Gives the focus to the first control that takes it.
  void FocusFirst();

 protected:
  QVBoxLayout* Body() { return body_; }
  /// The line of the title, for what belongs to the panel as a whole.
  QHBoxLayout* TitleLine() { return titleLine_; }

  Session& session_;
  WorkingArmy& work_ = session_.Work;
  ArmyState& army_ = work_.Army;
  Battlefield& field_ = work_.Field;
  ArmyHeader& header_ = work_.Header;
  Disk& disk_ = session_.Store;
  Host& user_ = session_.User;
  Bindings bindings_;

 private:
  QVBoxLayout* body_;
  QHBoxLayout* titleLine_;
};

}  // namespace tarnwick
