// The node table of the polygon dialog on a polygon of 1,000,000 nodes: opening the dialog
// until it is shown, scrolling to its last row, deleting a selection of 1,000 rows and pasting
// 10,000 nodes over it, the memory the dialog needs beside the node array, and reading a 10 MB
// clipboard text. Beside them, the peer that copies every cell into a QStandardItemModel.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QItemSelectionModel>
#include <QStandardItemModel>
#include <QTableView>
#include <QTimer>

#include <malloc.h>

#include <vector>

#include "dialogs/LxNodeTable.h"
#include "dialogs/LxNodeText.h"
#include "lxcomp/LxDlgPolygon.h"
#include "lxcomp/LxMisc.h"

namespace {

constexpr int kNodes = 1'000'000;

// A host's polygon: a million nodes on a ring, allocated with new[] as a host does.
struct HostPolygon {
  explicit HostPolygon(int count) {
    settings.NodeCount = count;
    settings.Nodes = new double[2 * std::size_t(count) + 2];
    for (int i = 0; i < count; ++i) {
      settings.Nodes[2 * i] = 1e6 * std::cos(2 * M_PI * i / count);
      settings.Nodes[2 * i + 1] = 1e6 * std::sin(2 * M_PI * i / count);
    }
    settings.Layer = 0;
    settings.Layers = nullptr;
  }
  ~HostPolygon() { delete[] settings.Nodes; }
  lx::PolygonSettings settings{};
};

HostPolygon& Million() {
  static HostPolygon polygon(kNodes);
  return polygon;
}

// The entry point, timed from the call until the modal dialog has painted itself.
void BM_DoPolygonDlgUntilShown(benchmark::State& state) {
  HostPolygon& host = Million();
  for (auto _ : state) {
    QElapsedTimer clock;
    double seconds = 0;
    QTimer::singleShot(0, [&] {
      if (auto* modal = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        modal->repaint();
        seconds = clock.nsecsElapsed() * 1e-9;
        modal->done(lx::mrCancel);
      }
    });
    clock.start();
    lx::DoPolygonDlg(&host.settings);
    state.SetIterationTime(seconds);
  }
}
BENCHMARK(BM_DoPolygonDlgUntilShown)->UseManualTime()->Unit(benchmark::kMillisecond);

// An open dialog on the million nodes, for the steps below.
struct OpenDialog {
  OpenDialog() {
    dialog.DlgInit(&Million().settings);
    dialog.show();
    QApplication::processEvents();
  }
  void SelectRows(int first, int last) {
    QTableView* grid = dialog.Grid();
    grid->selectionModel()->select(
        QItemSelection(grid->model()->index(first, 1), grid->model()->index(last, 2)),
        QItemSelectionModel::ClearAndSelect);
  }
  lx::TNodeTableModel* Model() { return static_cast<lx::TNodeTableModel*>(dialog.Grid()->model()); }
  lx::TDlgPolygon dialog;
};

void BM_ScrollToLastRow(benchmark::State& state) {
  OpenDialog open;
  QTableView* grid = open.dialog.Grid();
  for (auto _ : state) {
    grid->scrollToBottom();
    grid->viewport()->repaint();
    state.PauseTiming();
    grid->scrollToTop();
    grid->viewport()->repaint();
    state.ResumeTiming();
  }
}
BENCHMARK(BM_ScrollToLastRow)->Unit(benchmark::kMillisecond);

void BM_Delete1000Rows(benchmark::State& state) {
  OpenDialog open;
  std::vector<double> removed(2000);
  for (auto _ : state) {
    open.SelectRows(500'000, 500'999);
    std::copy_n(open.dialog.GetNodes() + 1'000'000, 2000, removed.begin());
    open.dialog.ButtonDeleteClick();
    open.dialog.Grid()->viewport()->repaint();
    state.PauseTiming();
    open.Model()->Splice(500'000, 0, 1000,
                         [&](double* place) { std::copy(removed.begin(), removed.end(), place); });
    state.ResumeTiming();
  }
  state.counters["nodes"] = open.dialog.GetNodeCount();
}
BENCHMARK(BM_Delete1000Rows)->Unit(benchmark::kMillisecond);

QString NodeText(int count) {
  std::vector<double> nodes(2 * std::size_t(count));
  for (int i = 0; i < 2 * count; ++i)
    nodes[i] = 1234567.0 + 17 * i;
  return lx::PrintNodeText(nodes.data(), 0, count);
}

void BM_Paste10000NodesOver1000Rows(benchmark::State& state) {
  OpenDialog open;
  QGuiApplication::clipboard()->setText(NodeText(10'000));
  for (auto _ : state) {
    open.SelectRows(500'000, 500'999);
    open.dialog.ButtonPasteClick();
    open.dialog.Grid()->viewport()->repaint();
    state.PauseTiming();
    open.Model()->Splice(500'000, 10'000, 1000);  // back to a million nodes
    state.ResumeTiming();
  }
  state.counters["nodes"] = open.dialog.GetNodeCount();
}
BENCHMARK(BM_Paste10000NodesOver1000Rows)->Unit(benchmark::kMillisecond);

// Heap bytes that the open, shown dialog holds, over the bytes of the host's node array.
void BM_DialogMemoryOverNodeArray(benchmark::State& state) {
  const double arrayBytes = 2.0 * sizeof(double) * kNodes;
  Million();
  double ratio = 0;
  for (auto _ : state) {
    malloc_trim(0);
    const std::size_t before = mallinfo2().uordblks;
    {
      OpenDialog open;
      open.dialog.Grid()->scrollToBottom();
      QApplication::processEvents();
      ratio = (double(mallinfo2().uordblks) - double(before)) / arrayBytes;
    }
  }
  state.counters["bytes_per_array_byte"] = ratio;
}
BENCHMARK(BM_DialogMemoryOverNodeArray)->Iterations(3)->Unit(benchmark::kMillisecond);

// Clipboard texts of 10 MB: a valid one read to the end, and one of no number at all.
void BM_ScanNodeText10MB(benchmark::State& state) {
  const QString text = state.range(0) ? NodeText(10'000'000 / 18) : QString(10'000'000, u'x');
  for (auto _ : state)
    benchmark::DoNotOptimize(lx::ScanNodeText(text, INT_MAX));
  state.counters["MB"] = text.size() / 1e6;
}
BENCHMARK(BM_ScanNodeText10MB)->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);

// Peer: the same table built the usual way, every cell copied into an item.
void BM_PeerStandardItemModel(benchmark::State& state) {
  const int count = static_cast<int>(state.range(0));
  const double* nodes = Million().settings.Nodes;
  double ratio = 0;
  for (auto _ : state) {
    malloc_trim(0);
    const std::size_t before = mallinfo2().uordblks;
    QStandardItemModel model(count, 3);
    for (int i = 0; i < count; ++i) {
      QString text;
      model.setItem(i, 0, new QStandardItem(QString::number(i + 1)));
      lx::PrintMicrons(nodes[2 * i], &text);
      model.setItem(i, 1, new QStandardItem(text));
      lx::PrintMicrons(nodes[2 * i + 1], &text);
      model.setItem(i, 2, new QStandardItem(text));
    }
    QTableView view;
    view.setModel(&model);
    view.show();
    QApplication::processEvents();
    ratio = (double(mallinfo2().uordblks) - double(before)) / (16.0 * count);
  }
  state.counters["bytes_per_array_byte"] = ratio;
}
BENCHMARK(BM_PeerStandardItemModel)->Arg(100'000)->Iterations(2)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
