// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "armyfile/working_army.h"
#include "catalog/disk.h"

class QWidget;

namespace tarnwick {

/// Shows the army's sheet as it comes out of the printer, to be printed or saved as a file. Returns
/// when the user has closed it.
void ShowSheet(const WorkingArmy& work, const Disk& disk, QWidget* parent);

}  // namespace tarnwick
