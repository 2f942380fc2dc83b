// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "army_sheet/army_file.h"

#include <system_error>
#include <utility>

#include "armyfile/army_browser.h"
#include "armyfile/loading.h"
#include "base/ansi.h"
#include "base/errors.h"
#include "base/text.h"
#include "rules/verification.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

/// The second module's folder in a program folder.
constexpr const char* brakka = "brakka";

/// A user who chooses one army of the list and keeps what is said.
class Reader : public Host {
 public:
  Reader(LoadedArmy& army, std::string name) : army_(army), name_(std::move(name)) {}

  void Message(const std::string& text) override {
    std::string& trouble = army_.Trouble;
    trouble += (trouble.empty() ? "" : "; ") + ReplaceText(CrLf, ". ", text);
  }
  bool Question(const std::string& /*text*/) override { return false; }
  void ShowArmySelectionForm() override {}
  void ShowArmyListForm() override {
    ArmyListForm form;
    form.ArmyList.AddItem(name_);
    form.ArmyList.ListIndex = 0;
    ShowArmyDetail(army_.Work.Army, army_.Store, form);
    static_cast<void>(SelectArmy(army_.Work, army_.Store, *this, form));
  }
  void ShowLeaderMgmtForm() override {}
  void ShowSpecForm() override {}
  void ShowPicture(const fs::path& /*file*/) override {}
  std::string Today() override { return ""; }

 private:
  LoadedArmy& army_;
  std::string name_;
};

/// The army's name in the list of the module, which may lead to another folder; "" when the editor
/// can't name the file.
std::string NameInList(const fs::path& file, const fs::path& moduleFolder) {
  std::error_code error;
  fs::path name = fs::relative(file, moduleFolder, error);
  const std::string ansi = AnsiFromPath(name.replace_extension());
  return fs::equivalent(ArmyPath(moduleFolder, ansi), file, error) ? ansi : "";
}

void Load(LoadedArmy& army, Reader& reader, bool second) {
  Form_Load(army.Work, army.Store);
  TickOption(army.Work.Army.Management.modOption, second ? 1 : 0);
  modOption_Click(army.Work, army.Store);
  army.Whole = LoadBtn_Click(army.Work, army.Store, reader);
  if (!army.Whole) return;
  for (const Shortfall& shortfall : Shortfalls(army.Work.Army))
    reader.Message(shortfall.Message);
}

}  // namespace

LoadedArmy LoadArmyFile(const fs::path& file, const fs::path& folder, const fs::path& scratch) {
  const fs::path own = fs::absolute(file).parent_path();
  fs::path program = folder.empty() ? own : fs::absolute(folder / "").parent_path();
  const bool second = own.filename() == brakka || program.filename() == brakka;
  if (program.filename() == brakka) program = program.parent_path();
  LoadedArmy army{Disk(program), {}, false, ""};
  army.Store.ScratchFolder = scratch;
  const std::string name = NameInList(file, army.Store.ModuleFolder(second));
  Reader reader(army, name);
  if (!FileExists(file)) {
    reader.Message("There is no such file");
  } else if (file.extension() != armyEnding) {
    reader.Message("The name of an army file ends in .army");
  } else if (name.empty()) {
    reader.Message("Its name has letters that the editor does not know");
  } else {
    try {
      Load(army, reader, second);
    } catch (const RuntimeError& error) {
      reader.Message(std::string("Run-time error: ") + error.what());
    }
  }
  return army;
}

}  // namespace tarnwick
