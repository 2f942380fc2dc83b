// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
// Loads the input as an army file, on a small catalog, and looks whether its texts can make markup
// of the sheet, or bring a picture into it that lies outside the program folder.

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <regex>
#include <string>

#include "base/errors.h"
#include "loaded_input.h"
#include "sheet/army_sheet.h"

namespace {

using namespace tarnwick;

/// The pictures inside and outside are told apart by the start of their bytes.
std::filesystem::path MakeFolders() {
  auto folder = MakeProgramFolder("sheet_fuzz");
  WriteFile(folder / "a.svg", "<in/>");
  WriteFile(folder.parent_path() / "b.svg", "<out/>");
  WriteFile(folder / "specials.dat",
            "[Old]\r\nspecial=WALL+STEADY\r\n[SPECIALS]\r\nWALL=A <wall> & more.\r\n");
  WriteFile(folder / "more.dat",
            "[IMAGES]\r\ntotal=2\r\nimage1=../b.svg,SK,,A,<i>\r\nimage2=a.svg,SK,,A,Slinger\r\n");
  return folder;
}

std::optional<LoadedInput> Load(const std::filesystem::path& folder, std::string_view bytes) {
  try {
    return std::optional<LoadedInput>(std::in_place, folder, bytes);
  } catch (const RuntimeError&) {
    return std::nullopt;  // the window names it and ends the program
  }
}

/// What is left when all that a sheet is made of is taken out has nothing of its own.
bool IsSound(const std::string& html) {
  static const std::regex ours(
      R"(</?(h1|h2|p|i|b|ul|li|table|thead|tbody|tr|th|td|br)( [a-z]+='[a-z0-9%]*')*>|)"
      R"(<img alt='' width='\d+' height='\d+' src='data:image/svg\+xml;base64,[A-Za-z0-9+/=]*'>|)"
      "&(amp|lt|gt|quot|nbsp);");
  const std::string rest = std::regex_replace(html, ours, "");
  constexpr const char* fromOutside =
      "<img alt='' width='22' height='22' src='data:image/svg+xml;base64,PG91dC";
  return rest.find_first_of("<>&\"") == std::string::npos &&
         html.find(fromOutside) == std::string::npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto folder = MakeFolders();
  const auto army = Load(folder, {reinterpret_cast<const char*>(data), size});
  if (army && !IsSound(ArmySheet(army->Work, army->Store, {}))) std::abort();
  return 0;
}
