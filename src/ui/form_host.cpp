// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/form_host.h"

#include <QApplication>
#include <QDate>
#include <QMessageBox>

#include "ui/dialogs/army_list_dialog.h"
#include "ui/dialogs/army_selection_dialog.h"
#include "ui/dialogs/leader_dialog.h"
#include "ui/dialogs/special_dialog.h"
#include "ui/parts/qt_text.h"
#include "ui/parts/session.h"

namespace tarnwick {
namespace {

int ShowBox(QMessageBox::Icon icon, const std::string& text, QMessageBox::StandardButtons buttons) {
  QMessageBox box(icon, "Velmora Tarnwick", ToQt(text), buttons, QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(QMessageBox::Ok);
  return box.exec();
}

template <typename Form>
void ShowModal(Session& session) {
  Form(session, QApplication::activeWindow()).exec();
  session.Rethrow();
}

}  // namespace

void FormHost::Message(const std::string& text) {
  ShowBox(QMessageBox::Information, text, QMessageBox::Ok);
}

void FormHost::ErrorMessage(const std::string& text) {
  ShowBox(QMessageBox::Critical, text, QMessageBox::Ok);
}

bool FormHost::Question(const std::string& text) {
  return ShowBox(QMessageBox::Question, text, QMessageBox::Ok | QMessageBox::Cancel) ==
         QMessageBox::Ok;
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
