// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// A text of the state as HTML shows it, in UTF-8: nothing in it is markup, a line break is one.
std::string HtmlText(std::string_view ansi);

/// "<tag>contents</tag>"; `tag` may have attributes.
std::string Element(std::string_view tag, std::string_view contents);

/// A picture of `side` CSS pixels, as wide as high, that is inside the page. `type` is that of the
/// bytes, such as "png".
std::string PictureElement(std::string_view type, std::string_view bytes, int side);

/// Parts of a page beside each other, two in a row; "" without any. Each row is a table of its own,
/// so that none is torn in print.
std::string TwoInARow(const std::vector<std::string>& parts);

}  // namespace tarnwick
