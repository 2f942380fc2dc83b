// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "army_sheet/army_file.h"

#include <exception>
#include <stdexcept>
#include <string>

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

/// The army's name while it is loaded; its own may have letters that the editor does not know.
constexpr const char* loadedName = "army";

/// A user who chooses the one army of the list and keeps what is said.
class Reader : public Host {
 public:
  Reader(LoadedArmy& army, const Disk& disk) : army_(army), disk_(disk) {}

  void Message(const std::string& text) override {
    std::string& trouble = army_.Trouble;
    trouble += (trouble.empty() ? "" : "; ") + ReplaceText(CrLf, ". ", text);
  }
  bool Question(const std::string& /*text*/) override { return false; }
  void ShowArmySelectionForm() override {}
  void ShowArmyListForm() override {
    ArmyListForm form;
    form.ArmyList.AddItem(loadedName);
    form.ArmyList.ListIndex = 0;
    ShowArmyDetail(army_.Work.Army, disk_, form);
    static_cast<void>(SelectArmy(army_.Work, disk_, *this, form));
  }
  void ShowLeaderMgmtForm() override {}
  void ShowSpecForm() override {}
  void ShowPicture(const fs::path& /*file*/) override {}
  std::string Today() override { return ""; }

 private:
  LoadedArmy& army_;
  const Disk& disk_;
};

/// A program folder of links to the other's files, but for armies and setups.
void Mirror(const fs::path& program, const fs::path& desk) {
  fs::create_directories(desk / brakka);
  for (const char* module : {"", brakka}) {
    if (!fs::is_directory(program / module)) continue;
    for (const auto& entry : fs::directory_iterator(program / module)) {
      const fs::path name = entry.path().filename();
      if (name == brakka || name == "working.setup" || name.extension() == armyEnding) continue;
      fs::create_symlink(fs::absolute(entry.path()), desk / module / name);
    }
  }
}

/// Loads the army of the folder `desk`.
void Load(LoadedArmy& army, const fs::path& desk, bool second, const std::string& shownName) {
  Disk disk(desk);
  Reader reader(army, disk);
  Form_Load(army.Work, disk);
  TickOption(army.Work.Army.Management.modOption, second ? 1 : 0);
  modOption_Click(army.Work, disk);
  army.Whole = LoadBtn_Click(army.Work, disk, reader);
  army.Work.Army.Management.ArmyFileName.Text = shownName;
  if (!army.Whole) return;
  for (const Shortfall& shortfall : Shortfalls(army.Work.Army))
    reader.Message(shortfall.Message);
}

/// The folder without "." and "..", whether it ends in "/" or not.
fs::path Plain(const fs::path& folder) {
  return (fs::absolute(folder) / "").lexically_normal().parent_path();
}

void LoadFrom(LoadedArmy& army, const fs::path& file, const fs::path& folder,
              const fs::path& scratch) {
  if (!fs::exists(file)) throw std::runtime_error("There is no such file");
  if (!FileExists(file)) throw std::runtime_error("It is no plain file");
  if (file.extension() != armyEnding) {
    throw std::runtime_error("The name of an army file ends in .army");
  }
  const fs::path own = Plain(fs::absolute(file).parent_path());
  fs::path program = folder.empty() ? own : Plain(folder);
  const bool second = own.filename() == brakka || program.filename() == brakka;
  if (program.filename() == brakka) program = program.parent_path();
  fs::remove_all(scratch / "desk");
  const fs::path desk = scratch / "desk";
  Mirror(program, desk);
  army.Store = Disk(program);
  army.Store.ScratchFolder = desk;
  const fs::path loaded = ArmyPath(desk / (second ? brakka : ""), loadedName);
  fs::copy_file(file, loaded);
  // The second module keeps an army's setups in the folder above.
  const fs::path above = own.parent_path() / file.filename();
  if (own.filename() == brakka && FileExists(above)) {
    fs::copy_file(above, ArmyPath(desk, loadedName));
  }
  Load(army, desk, second, AnsiFromPath(file.stem()));
}

}  // namespace

LoadedArmy LoadArmyFile(const fs::path& file, const fs::path& folder, const fs::path& scratch) {
  LoadedArmy army{Disk(folder), {}, false, ""};
  try {
    LoadFrom(army, file, folder, scratch);
  } catch (const RuntimeError& error) {
    army.Trouble = std::string("Run-time error: ") + error.what();
  } catch (const std::exception& error) {
    army.Trouble = error.what();
  }
  if (!army.Trouble.empty()) {
    const fs::path desk = scratch / "desk";
    for (const fs::path& module : {desk / brakka, desk}) {
      const std::string loaded = AnsiFromPath(ArmyPath(module, loadedName));
      army.Trouble = ReplaceText(loaded, AnsiFromPath(file), army.Trouble);
    }
  }
  return army;
}

}  // namespace tarnwick
