// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/form_host.h"

#include <QApplication>
#include <QDate>
#include <QGridLayout>
#include <QMessageBox>
#include <QScreen>
#include <QShowEvent>
#include <QStyle>

#include "ui/dialogs/army_list_dialog.h"
#include "ui/dialogs/army_selection_dialog.h"
#include "ui/dialogs/leader_dialog.h"
#include "ui/dialogs/special_dialog.h"
#include "ui/parts/qt_text.h"
#include "ui/parts/session.h"
#include "ui/parts/widgets.h"

namespace tarnwick {
namespace {

/// A message box that leaves the row of its window in sight where the focus is: that is what it
/// speaks of, as a rule.
class MessageBox : public QMessageBox {
 public:
  MessageBox(Icon icon, const std::string& text, StandardButtons buttons, QWidget* window)
      : QMessageBox(icon, "Velmora Tarnwick", ToQt(text), buttons, window) {
    setTextFormat(Qt::PlainText);
    setDefaultButton(Ok);
    if (auto* grid = qobject_cast<QGridLayout*>(layout())) {  // a width that shows the whole title
      grid->addItem(new QSpacerItem(TextWidth(this, 36), 0), grid->rowCount(), 0, 1, -1);
    }
  }

 protected:
  void showEvent(QShowEvent* event) override {
    QMessageBox::showEvent(event);
    if (const QWidget* focus = parentWidget() != nullptr ? parentWidget()->focusWidget() : nullptr)
      LeaveInSight({focus->mapToGlobal(QPoint()), focus->size()});
  }

 private:
  /// Moves below the control, or above it; where neither fits into the screen, it stays.
  void LeaveInSight(const QRect& control) {
    constexpr int gap = 12;
    const QRect screenArea = parentWidget()->screen()->availableGeometry();
    const int height = frameGeometry().height() + style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const int below = control.bottom() + gap;
    const int above = control.top() - gap - height;
    if (y() > control.bottom() || y() + height < control.top()) return;
    if (below + height <= screenArea.bottom()) {
      move(x(), below);
    } else if (above >= screenArea.top()) {
      move(x(), above);
    }
  }
};

int ShowBox(QMessageBox::Icon icon, const std::string& text, QMessageBox::StandardButtons buttons) {
  return MessageBox(icon, text, buttons, QApplication::activeWindow()).exec();
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
