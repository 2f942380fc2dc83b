// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/form_host.h"

#include <QApplication>
#include <QDate>

#include "ui/dialogs/army_list_dialog.h"
#include "ui/dialogs/army_selection_dialog.h"
#include "ui/dialogs/leader_dialog.h"
#include "ui/dialogs/special_dialog.h"
#include "ui/parts/message_box.h"
#include "ui/parts/qt_text.h"
#include "ui/parts/session.h"

namespace tarnwick {
namespace {

template <typename Form>
void ShowModal(Session& session) {
  Form(session, QApplication::activeWindow()).exec();
  session.Rethrow();
}

}  // namespace

void FormHost::Message(const std::string& text) {
  ShowBox(QMessageBox::Information, text);
}

void FormHost::ErrorMessage(const std::string& text) {
  ShowBox(QMessageBox::Critical, text);
}

bool FormHost::Question(const std::string& text) {
  constexpr auto buttons = QMessageBox::Ok | QMessageBox::Cancel;
  return ShowBox(QMessageBox::Question, text, buttons) == QMessageBox::Ok;
}

void FormHost::ShowArmySelectionForm() {
  ShowModal<ArmySelectionDialog>(*session_);
}

void FormHost::ShowArmyListForm() {
  ShowModal<ArmyListDialog>(*session_);
}

void FormHost::ShowLeaderMgmtForm() {
  ShowModal<LeaderDialog>(*session_);
}

void FormHost::ShowSpecForm() {
  ShowModal<SpecialDialog>(*session_);
}

void FormHost::ShowPicture(const std::filesystem::path& file) {
  if (!picture_) picture_.emplace();
  picture_->ShowPicture(file);
}

std::string FormHost::Today() {
  return FromQt(QDate::currentDate().toString(Qt::ISODate));
}

}  // namespace tarnwick
