// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string_view>

namespace tarnwick {

/// What a file that is replaced has to outlast: the end of the program, or that of the machine too.
/// A lasting file is on the disk when it takes its place, which takes some milliseconds.
enum class Durability { Scratch, Lasting };

/// Gives `target` new contents, or makes it, in one step: a file beside it is written whole and
/// takes its place. Links and permissions stay. Whenever the output fails or the program dies, the
/// target stays as it was; what a program that died left in the folder goes with the next lasting
/// file. Throws FileError when the folder is missing, or the target may not or can't be written.
void ReplaceFile(const std::filesystem::path& target, std::string_view bytes,
                 Durability durability);

}  // namespace tarnwick
