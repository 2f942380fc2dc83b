// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <QMarginsF>

#include "sheet/field_sheet.h"

class QPageLayout;
class QPagedPaintDevice;
class QString;

namespace tarnwick {

/// Of the kinds of terrain, as the window shows them.
TerrainPictures ReadTerrainPictures();

/// All printers reach as far, in millimetres.
inline constexpr QMarginsF sheetMargins(12, 12, 12, 12);

/// Puts a page of sheets on paper, as many sheets of paper as it takes. Nothing but what is inside
/// `html` is read. From page `first` to `last`, from 1; 0 is the first or last there is. False when
/// the device can't be begun.
bool PrintSheets(const std::string& html, QPagedPaintDevice& device, int first = 0, int last = 0);

/// The same as the bytes of a PDF file.
std::string SheetPdf(const std::string& html, const QString& title, const QPageLayout& paper);

}  // namespace tarnwick
