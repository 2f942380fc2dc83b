// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "base/int16.h"

namespace tarnwick {

/// The line break inside messages: a line feed, then a carriage return, in this order.
inline constexpr std::string_view NL = "\n\r";

/// The line break inside texts and at the end of a line of a file.
inline constexpr std::string_view CrLf = "\r\n";

/// Field `n` (from 1) of a list text. An empty separator means ",". Fields are not trimmed; a
/// field beyond the last one, or before the first, is "".
std::string GetField(std::string_view text, Int16 n, std::string_view separator = ",");

/// `text` with every `find` replaced, from left to right, case and all. An empty `find` leaves
/// the text as it is.
[[nodiscard]] std::string ReplaceText(std::string_view find, std::string_view replacement,
                                      std::string_view text);

/// `text` without the spaces at both ends.
[[nodiscard]] std::string_view Trim(std::string_view text);

}  // namespace tarnwick
