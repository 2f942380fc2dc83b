// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/int16.h"

namespace tarnwick {

// Two conversions of texts, never mixed. Both know sign, digits, "." as the decimal point and an
// exponent, whatever the locale says.

/// The lenient conversion: the number that the text begins with, after blanks and tabs; 0 when it
/// begins with none. A number too large for a double throws OverflowError.
double LenientNumber(std::string_view text);

/// LenientNumber, rounded to 16 bits. Throws OverflowError.
Int16 LenientInt16(std::string_view text);

/// The strict conversion: the whole text is one number, with blanks and tabs around it allowed.
/// Throws TypeMismatchError, or OverflowError for a number too large for a double.
double StrictNumber(std::string_view text);

/// StrictNumber of a text that is a number that a double can hold; nothing for any other.
std::optional<double> NumberIn(std::string_view text);

/// StrictNumber, rounded to 16 bits. Throws TypeMismatchError or OverflowError.
Int16 StrictInt16(std::string_view text);

/// Nearest whole number, halves to the even neighbour. Throws OverflowError.
Int16 RoundToInt16(double value);

/// `value` cut down to the next lower whole number (2.7 gives 2, −2.5 gives −3).
double Int(double value);

/// `value` rounded to two decimal places, halves to the even neighbour.
double RoundToCents(double value);

/// Plain decimal digits.
std::string NumberText(Int16 value);

/// The shortest decimal text, of 15 significant digits at most: "2.5", "3", "0.1", "1E+15".
std::string NumberText(double value);

}  // namespace tarnwick
