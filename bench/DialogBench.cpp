// Opening the circle dialog on a 1,000-layer list: every swatch drawn, scaled and put into the
// layer picker, the dialog shown and closed. Beside it, the picker alone and a plain combo box
// of 1,000 text items as the floor that Qt itself sets.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QComboBox>
#include <QTimer>

#include <vector>

#include "lxcomp/LxDialogs.h"
#include "lxcomp/LxDlgCircle.h"

namespace {

std::vector<lx::TK5Layer>& Layers() {
  static std::vector<lx::TK5Layer> layers = [] {
    std::vector<lx::TK5Layer> list;
    list.reserve(1000);
    for (int n = 0; n < 1000; ++n)
      list.emplace_back(n, n, n % 3, QString(), n % 5 == 0 ? -1 : 0x204080 + n, -1,
                        static_cast<char>(n % 8 - 1), static_cast<char>(n % 5), false);
    for (size_t i = 0; i + 1 < list.size(); ++i)
      list[i].Next = &list[i + 1];
    return list;
  }();
  return layers;
}

lx::CircleSettings Record() {
  return {1500, 2500, 5000, 500, &Layers().front()};
}

void BM_OpenAndCloseCircleDialog(benchmark::State& state) {
  auto record = Record();
  for (auto _ : state) {
    lx::TDlgCircle dialog;
    dialog.DlgInit(&record);
    dialog.show();
    QApplication::processEvents();
    dialog.done(lx::mrCancel);
  }
}
BENCHMARK(BM_OpenAndCloseCircleDialog)->Unit(benchmark::kMillisecond);

// The entry point itself: exec, accepted by a zero timer as soon as the dialog is modal.
void BM_DoCircleDlgAccepted(benchmark::State& state) {
  auto record = Record();
  for (auto _ : state) {
    QTimer::singleShot(0, [] {
      if (auto* modal = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
        modal->done(lx::mrOk);
    });
    benchmark::DoNotOptimize(lx::DoCircleDlg(&record));
  }
}
BENCHMARK(BM_DoCircleDlgAccepted)->Unit(benchmark::kMillisecond);

void BM_FillLayerPicker(benchmark::State& state) {
  lx::TDlgCircle dialog;
  QComboBox combo;
  for (auto _ : state)
    benchmark::DoNotOptimize(dialog.FillComboBoxExWithLayers(&combo, &Layers().front(), 500));
}
BENCHMARK(BM_FillLayerPicker)->Unit(benchmark::kMillisecond);

void BM_PlainComboOfTextItems(benchmark::State& state) {
  QStringList names;
  for (const auto& layer : Layers())
    names << layer.LongName;
  QComboBox combo;
  for (auto _ : state) {
    combo.clear();
    combo.addItems(names);
    combo.setCurrentIndex(500);
  }
}
BENCHMARK(BM_PlainComboOfTextItems)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
