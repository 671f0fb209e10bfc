// The layer settings dialog on a large layer list: its OK handler walks the whole list for
// duplicate index/datatype pairs, names and short names, and regenerates every default short
// name. Measured: the OK handler alone, and opening (construct, DlgInit, show, OK, destroy).
// The peer is a plain loop that does the same comparisons on the list without a dialog.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLineEdit>

#include <memory>
#include <vector>

#include "lxcomp/LxDlgLayerSettings.h"

namespace {

constexpr int kLayers = 5000;

// A host's list: layer i has index i, datatype i % 3, its own name, default short names unless
// `customShortNames`. The edited layer is in the middle.
struct LayerList {
  explicit LayerList(bool customShortNames) {
    for (int i = 0; i < kLayers; ++i) {
      layers.push_back(std::make_unique<lx::TK5Layer>(
          i, i, i % 3, QStringLiteral("Layer %1").arg(i), 0x336699, -1, 2, 1));
      if (customShortNames) layers.back()->SetShortName(QStringLiteral("S%1").arg(i));
      if (i > 0) layers[i - 1]->Next = layers[i].get();
    }
    settings = {false, layers[kLayers / 2].get(), layers.front().get()};
  }
  std::vector<std::unique_ptr<lx::TK5Layer>> layers;
  lx::LayerSettings settings{};
};

void BM_LayerSettingsOk(benchmark::State& state) {
  LayerList list(state.range(0) != 0);
  lx::TDlgLayerSettings dialog(nullptr);
  dialog.DlgInit(&list.settings);
  for (auto _ : state) {
    dialog.OkButtonClick();
    benchmark::DoNotOptimize(list.settings.Layer->ShortName);
  }
  state.SetLabel(state.range(0) ? "custom short names" : "default short names");
}
BENCHMARK(BM_LayerSettingsOk)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void BM_LayerSettingsOpen(benchmark::State& state) {
  LayerList list(state.range(0) != 0);
  for (auto _ : state) {
    auto dialog = std::make_unique<lx::TDlgLayerSettings>(nullptr);
    dialog->DlgInit(&list.settings);
    dialog->show();
    QApplication::processEvents();
    dialog->OkButtonClick();
    dialog.reset();
  }
  state.SetLabel(state.range(0) ? "custom short names" : "default short names");
}
BENCHMARK(BM_LayerSettingsOpen)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// The same walks as the OK handler, written straight on the list.
void BM_PlainListChecks(benchmark::State& state) {
  LayerList list(true);
  const lx::TK5Layer* edited = list.settings.Layer;
  const QString name = edited->LongName, shortName = edited->ShortName;
  for (auto _ : state) {
    int clashes = 0;
    for (const lx::TK5Layer* l = list.settings.Layers; l; l = l->Next) {
      if (l == edited) continue;
      clashes += (l->Index == edited->Index && l->Datatype == edited->Datatype);
      clashes += l->LongName == name;
      clashes += l->ShortName == shortName;
    }
    benchmark::DoNotOptimize(clashes);
  }
}
BENCHMARK(BM_PlainListChecks)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
