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
/// `html` is read. False when the device can't be begun.
bool PrintSheets(const std::string& html, QPagedPaintDevice& device);

/// The same as the bytes of a PDF file.
std::string SheetPdf(const std::string& html, const QString& title, const QPageLayout& paper);

}  // namespace tarnwick
