// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <utility>

#include "armyfile/working_army.h"
#include "catalog/disk.h"
#include "ui/form_host.h"
#include "ui/main_form.h"
#include "ui/parts/session.h"

namespace tarnwick {

/// The whole editor on a program folder: its files, the one working army, the way to the user and
/// the main window, with the guide in its folder. `Form.Start()` starts it.
struct Editor {
  explicit Editor(const std::filesystem::path& programFolder)
      : Editor(programFolder, programFolder / "guide") {}
  Editor(std::filesystem::path programFolder, std::filesystem::path guideFolder)
      : Store(std::move(programFolder)), Form(Events, std::move(guideFolder)) {
    User.Serve(Events);
  }

  Disk Store;
  WorkingArmy Work;
  FormHost User;
  Session Events{Work, Store, User};
  MainForm Form;
};

}  // namespace tarnwick
