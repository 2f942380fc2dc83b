// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <span>
#include <string_view>

#include <QList>
#include <QString>
#include <QWidget>

#include "monkey/journal.h"
#include "monkey/texts.h"
#include "window_driver.h"

class QListWidget;
class QMessageBox;

namespace tarnwick {

/// The panels, windows and dialogs by their names, and what all message boxes go by.
inline constexpr const char* messageBox = "message box";
inline constexpr std::array<std::string_view, 17> places = {
    "EditFrame(0)",      "EditFrame(1)", "EditFrame(2)",   "EditFrame(3)", "EditFrame(4)",
    "EditFrame(5)",      "EditFrame(6)", "MainForm",       "GuideForm",    "PictureForm",
    "ArmySelectionForm", "ArmyListForm", "LeaderMgmtForm", "specForm",     "SheetForm",
    "SaveSheetForm",     messageBox};

/// The hands of a monkey on the main window and on all that it opens. The journal tells what they
/// do, and which panels, dialogs and controls there were and were used.
class Hands {
 public:
  Hands(QWidget& form, Journal& journal, unsigned seed);

  /// Loads an army, or makes a new one: without, there is little to do.
  void Begin();
  /// Does one random thing, and goes on in the dialogs that it opens until they are closed.
  void Step();

  /// The message of the error that ended the editor, "" while it lives.
  const QString& End() const { return end_; }
  /// The warnings that the window showed before what was done last.
  const QString& Warnings() const { return warnings_; }

 private:
  struct Kind {
    int Weight;
    void (Hands::*Do)(QWidget& window);
  };
  struct Use {
    const char* Class;
    void (Hands::*Do)(QWidget& control);
  };
  static const std::array<Kind, 8> kinds;
  static const std::array<Kind, 3> kindsInDialogs;
  static const std::array<Use, 6> uses;

  void DoOneOf(std::span<const Kind> some, QWidget& window);
  static bool IsControl(const QWidget& widget);
  QList<QWidget*> Controls(const QWidget& window);
  /// Reads the warnings.
  void Look();
  /// Before it is done: it may be the last of the process.
  void Note(const QString& what);
  void Note(const char* what, const QWidget& control, const QString& more = "");

  void UseControl(QWidget& window);
  void UseOtherWindow(QWidget& form);
  void Press(const QString& key);
  void PressKey(QWidget& window);
  void TypeOn(QWidget& window);
  void ChangePanel(QWidget& form);
  void DragPiece(QWidget& form);
  void OpenMenu(QWidget& window);
  void Resize(QWidget& window);

  void Click(QWidget& button);
  void Choose(QWidget& dropDown);
  void UseList(QWidget& list);
  void Fill(QWidget& box);
  void Read(QWidget& text);

  void See(QWidget& window);
  void Answer(QMessageBox& box);
  void WorkOff(QWidget& dialog);
  /// The one dialog that reaches every folder of the machine, so it gets a harmless name.
  void NameSheet(QWidget& dialog);
  void ChooseArmy(QListWidget& list);
  void WatchMenus();
  void UseMenu();

  QWidget& form_;
  Journal& journal_;
  Dice dice_;
  WindowDriver driver_;
  QObject timers_;
  bool inMenu_ = false;
  QString end_, warnings_;
};

}  // namespace tarnwick
