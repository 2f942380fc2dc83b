// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT

// One purchase in the real window, which is shown on the offscreen platform with an army of the
// shipped catalog and the panel "Units" in front.
//
//   build/release/bench/window_bench --benchmark_repetitions=15
//       --benchmark_report_aggregates_only=true
//
// Aim: PurchaseAndPaint under 4 ms.

#include <chrono>
#include <cstdlib>
#include <functional>
#include <string>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QLabel>

#include "quiet_host.h"
#include "rules/unit_purchase.h"
#include "ui/editor.h"
#include "ui/parts/application_style.h"

namespace tarnwick {
namespace {

class PaintCounter : public QObject {
 public:
  int Paints = 0;

  bool eventFilter(QObject* /*widget*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++Paints;
    return false;
  }
};

/// The window after a new army was chosen, shown and at rest.
class ShownWindow {
 public:
  ShownWindow() {
    if (!form_.Start()) std::abort();
    host_.OnArmySelectionForm = [this] { work_.Army.BaseArmyName = "Carthage in Italy"; };
    editor_.Events.Run([this] {
      NewArmyBtn_Click(work_, editor_.Store, host_);
      ShowPanel(work_.Army, Panel::Units);
    });
    form_.show();
    form_.findChild<QWidget*>("UnitTotalLabel(0)")->installEventFilter(&lineTotal_);
    form_.findChild<QWidget*>("TotalCost")->installEventFilter(&pointsLeft_);
    WorkOffPaints();
    host_.Messages = 0;
  }

  /// Changes the quantity in the first line from 1 to 2 or back. The window shows the state after
  /// it, as after every event; nothing is painted yet.
  void Purchase() {
    quantity_ = 3 - quantity_;
    ArmyState& army = work_.Army;
    army.Units.Buy[0].Text = std::to_string(quantity_);
    editor_.Events.Run(Step("Purchase"),
                       [&] { refused_ |= !BuyUnits(army, editor_.Store, host_, 0); });
  }

  /// Works off all events that are waiting until both places that a purchase changes are painted.
  void WorkOffPaints() {
    QElapsedTimer started;
    started.start();
    do {
      QCoreApplication::processEvents();
    } while ((lineTotal_.Paints == 0 || pointsLeft_.Paints == 0) && !started.hasExpired(1000));
    missedPaints_ += lineTotal_.Paints == 0 || pointsLeft_.Paints == 0 ? 1 : 0;
    lineTotal_.Paints = 0;
    pointsLeft_.Paints = 0;
  }

  /// Every purchase was made, shown and painted.
  bool AllWent() const {
    const auto* total = form_.findChild<QLabel*>("UnitTotalLabel(0)");
    const auto* left = form_.findChild<QLabel*>("TotalCost");
    const int cost = quantity_ * work_.Army.BaseUnits[1].Cost.Value();
    return !refused_ && host_.Messages == 0 && missedPaints_ == 0 && total->isVisible() &&
           total->text() == QString::number(cost) &&
           left->text().startsWith(QString("Points left: %1 of").arg(400 - cost));
  }

 private:
  Editor editor_{SHIPPED_DATA};
  WorkingArmy& work_ = editor_.Work;
  MainForm& form_ = editor_.Form;
  QuietHost host_;
  PaintCounter lineTotal_, pointsLeft_;
  int quantity_ = 1;
  int missedPaints_ = 0;
  bool refused_ = false;
};

/// The purchase and the refresh of the whole window. What they make necessary to paint is painted
/// as well, but not in the time.
void PurchaseOnly(benchmark::State& state, ShownWindow& window) {
  for (auto _ : state) {
    const auto begin = std::chrono::steady_clock::now();
    window.Purchase();
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
    state.SetIterationTime(taken.count());
    window.WorkOffPaints();
  }
  if (!window.AllWent()) state.SkipWithError("a purchase failed");
}

/// The same until the window is laid out and painted again. The time is real time, so that waiting
/// would count.
void PurchaseAndPaint(benchmark::State& state, ShownWindow& window) {
  for (auto _ : state) {
    window.Purchase();
    window.WorkOffPaints();
  }
  if (!window.AllWent()) state.SkipWithError("a purchase failed");
}

}  // namespace
}  // namespace tarnwick

int main(int argc, char* argv[]) {
  using namespace tarnwick;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  ApplyStyle();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  ShownWindow window;
  benchmark::RegisterBenchmark("PurchaseOnly", PurchaseOnly, std::ref(window))
      ->UseManualTime()
      ->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("PurchaseAndPaint", PurchaseAndPaint, std::ref(window))
      ->UseRealTime()
      ->Unit(benchmark::kMillisecond);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
