// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "base/host.h"
#include "ui/dialogs/picture_form.h"

namespace tarnwick {

class Session;

/// The host that speaks through modal boxes and dialogs.
class FormHost : public Host {
 public:
  /// The dialogs work on `session`. Must be called before any of them is shown.
  void Serve(Session& session) { session_ = &session; }

  void Message(const std::string& text) override;
  void ErrorMessage(const std::string& text) override;
  bool Question(const std::string& text) override;
  void ShowArmySelectionForm() override;
  void ShowArmyListForm() override;
  void ShowLeaderMgmtForm() override;
  void ShowSpecForm() override;
  void ShowPicture(const std::filesystem::path& file) override;
  std::string Today() override;

 private:
  Session* session_ = nullptr;
  std::optional<PictureForm> picture_;  ///< once one was shown
};

}  // namespace tarnwick
