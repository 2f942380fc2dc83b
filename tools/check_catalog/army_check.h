// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "check_catalog/catalog_file.h"
#include "check_catalog/unit_check.h"

namespace tarnwick {

/// Checks the base armies of one module.
class ArmyCheck {
 public:
  ArmyCheck(CatalogFile& armies, UnitCheck& units) : armies_(armies), units_(units) {}

  void Check();

 private:
  void CheckArmy(const std::string& name);

  CatalogFile& armies_;
  UnitCheck& units_;
};

}  // namespace tarnwick
