#include <gtest/gtest.h>

#include <QClipboard>
#include <QComboBox>
#include <QImage>
#include <QMimeData>
#include <QPushButton>
#include <QTableView>

#include <cmath>
#include <vector>

#include "dialogs/DialogFixture.h"
#include "lxcomp/LxDlgPolygon.h"
#include "lxcomp/LxLayer.h"

namespace {

using lxtest::Caption;
using lxtest::Click;
using lxtest::Find;
using Nodes = std::vector<double>;

Nodes ToMicrometres(const double* nanometres, int count) {
  Nodes out;
  for (int i = 0; i < 2 * count; ++i)
    out.push_back(nanometres[i] / 1000.0);
  return out;
}

// A host record whose node array is allocated as a host does it, with new[].
struct HostPolygon {
  explicit HostPolygon(const Nodes& micrometres, int layer = 0,
                       const lx::TK5Layer* layers = nullptr) {
    settings.NodeCount = static_cast<int>(micrometres.size() / 2);
    settings.Nodes = new double[micrometres.size() + 2];
    for (size_t i = 0; i < micrometres.size(); ++i)
      settings.Nodes[i] = micrometres[i] * 1000.0;
    settings.Layer = layer;
    settings.Layers = layers;
  }
  ~HostPolygon() { delete[] settings.Nodes; }
  Nodes Micrometres() const { return ToMicrometres(settings.Nodes, settings.NodeCount); }
  lx::PolygonSettings settings{};
};

Nodes DialogNodes(const lx::TDlgPolygon* dlg) {
  return ToMicrometres(dlg->GetNodes(), dlg->GetNodeCount());
}
QTableView* GridOf(QWidget* dlg) {
  return Find<QTableView>(dlg, "AdvGrid");
}
QString Area(QWidget* dlg) {
  return Caption(dlg, "LabelSurfaceArea");
}

// Clicks a cell of the table (rows from 0 are nodes 1, 2, ...), as a user does.
void ClickCell(QTableView* grid, int row, int col, Qt::KeyboardModifiers mods = Qt::NoModifier) {
  const QModelIndex index = grid->model()->index(row, col);
  grid->scrollTo(index);
  QTest::mouseClick(grid->viewport(), Qt::LeftButton, mods, grid->visualRect(index).center());
}

// Selects rows first to last by clicking their numbers.
void SelectRows(QWidget* dlg, int first, int last) {
  ClickCell(GridOf(dlg), first, 0);
  if (last != first) ClickCell(GridOf(dlg), last, 0, Qt::ShiftModifier);
}

// Opens the cell editor with F2, types the text and, unless told not to, presses Enter.
void TypeCell(QTableView* grid, int row, int col, const QString& text, bool enter = true) {
  ClickCell(grid, row, col);
  QTest::keyClick(grid, Qt::Key_F2);
  QLineEdit* editor = nullptr;  // the open one: closed editors wait for their deletion
  for (QLineEdit* child : grid->viewport()->findChildren<QLineEdit*>())
    if (child->isVisible()) editor = child;
  if (!editor) return ADD_FAILURE() << "no cell editor", void();
  editor->selectAll();
  QTest::keyClicks(editor, text);
  if (enter) QTest::keyClick(editor, Qt::Key_Return);
}

void SetClipboardText(const QString& text) {
  QGuiApplication::clipboard()->setText(text);
}

class PolygonDlg : public lxtest::DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    QGuiApplication::clipboard()->clear();
  }
  void TearDown() override {
    QGuiApplication::clipboard()->clear();
    DialogTest::TearDown();
  }
  bool Run(HostPolygon& host, const std::function<void(lx::TDlgPolygon*)>& act) {
    return Drive<lx::TDlgPolygon>([&] { return lx::DoPolygonDlg(&host.settings); }, act);
  }
};

const Nodes kSquare = {0, 0, 1, 0, 1, 1, 0, 1};

TEST_F(PolygonDlg, ShowsTheNodesTheAreaAndItsUnits) {
  HostPolygon host(kSquare);
  EXPECT_FALSE(Run(host, [](lx::TDlgPolygon* dlg) {
    EXPECT_EQ(dlg->windowTitle(), "Polygon properties...");
    EXPECT_EQ(dlg->GetHelpContext(), 4030);
    QAbstractItemModel* model = GridOf(dlg)->model();
    EXPECT_EQ(model->rowCount(), 4);
    EXPECT_EQ(model->headerData(1, Qt::Horizontal).toString(), "X");
    EXPECT_EQ(model->index(2, 0).data().toString() + model->index(2, 1).data().toString(), "31");
    EXPECT_EQ(dlg->AdvGridGetDisplText(2, 4), "1");
    EXPECT_EQ(Caption(dlg, "LabelType"), "counterclockwise");
    auto* units = Find<QComboBox>(dlg, "ComboUnits");
    ASSERT_EQ(units->count(), 4);
    EXPECT_EQ(units->itemText(1), QString::fromUtf8("mm²"));
    QStringList areas;
    for (int unit : {0, 1, 2, 3, 0}) {
      units->setCurrentIndex(unit);
      areas << Area(dlg);
    }
    EXPECT_EQ(areas.join(' '), "1 0.000001 0.00000001 0.000000000001 1");
    Click(dlg, "CancelButton");
  }));
  EXPECT_EQ(host.Micrometres(), kSquare);
}

TEST_F(PolygonDlg, OrientationAndTheLimitsOfTheAreaFigure) {
  Nodes ring2001;
  for (int i = 0; i < 2001; ++i) {
    const double a = 2 * M_PI * i / 2001;
    ring2001.insert(ring2001.end(), {100 * std::cos(a), 100 * std::sin(a)});
  }
  const Nodes ring2000(ring2001.begin(), ring2001.end() - 2);
  // The nodes; the area in µm² and, after a change of unit, in mm²; the orientation.
  const std::tuple<Nodes, const char*, const char*, const char*> cases[] = {
      {{0, 0, 0, 1, 1, 1, 1, 0}, "1", "0.000001", "clockwise"},
      {{0, 0, 2, 0, 2, 2, 0, 2, 0, 0}, "4", "0.000004", "counterclockwise"},  // closed
      {{0, 0, 10, 10, 10, 0, 0, 10, 0, 0}, "--", "--", "self intersecting"},
      {{0, 0, 1, 0, 2, 0}, "--", "--", "self intersecting"},  // collinear
      {{0, 0, 1, 1}, "-", "-", ""},
      {ring2001, "-", "-", ""},
  };
  for (const auto& [nodes, area, areaInMm2, type] : cases) {
    HostPolygon host(nodes);
    Run(host, [&](lx::TDlgPolygon* dlg) {
      EXPECT_EQ(Area(dlg), area) << nodes.size();
      EXPECT_EQ(Caption(dlg, "LabelType"), type) << nodes.size();
      Find<QComboBox>(dlg, "ComboUnits")->setCurrentIndex(1);
      EXPECT_EQ(Area(dlg), areaInMm2) << nodes.size();  // a missing area stays as it is
    });
  }
  HostPolygon big(ring2000);
  Run(big, [](lx::TDlgPolygon* dlg) {
    EXPECT_EQ(Caption(dlg, "LabelType"), "counterclockwise");
    EXPECT_NEAR(dlg->GetArea(), M_PI * 100 * 100, 1.0);
  });
}

TEST_F(PolygonDlg, EditingACellChangesTheNodeAndOkFinishesAnOpenEdit) {
  HostPolygon host(kSquare);
  EXPECT_TRUE(Run(host, [this](lx::TDlgPolygon* dlg) {
    QTableView* grid = GridOf(dlg);
    TypeCell(grid, 1, 1, "2");
    EXPECT_EQ(Area(dlg), "1.5");
    // Enter moves on from x to y, and from y to the next node's x.
    EXPECT_EQ(grid->currentIndex(), grid->model()->index(1, 2));
    TypeCell(grid, 2, 2, "3/2");
    EXPECT_EQ(grid->currentIndex(), grid->model()->index(3, 1));
    QTest::keyClick(grid, Qt::Key_Return);  // not editing: moves on, does not press OK
    EXPECT_EQ(grid->currentIndex(), grid->model()->index(3, 2));
    EXPECT_TRUE(dlg->isVisible());
    EXPECT_EQ(grid->model()->index(2, 2).data().toString(), "1.5");
    TypeCell(grid, 0, 1, "abc");
    EXPECT_EQ(Errors(4030), QStringList{"'abc' is not a valid number"});
    EXPECT_EQ(DialogNodes(dlg), (Nodes{0, 0, 2, 0, 1, 1.5, 0, 1}));
    TypeCell(grid, 3, 2, "9", /*enter=*/false);
    dlg->OkButtonClick();
  }));
  EXPECT_EQ(host.Micrometres(), (Nodes{0, 0, 2, 0, 1, 1.5, 0, 9}));
}

TEST_F(PolygonDlg, DeleteInsertAddAndPasteWorkOnTheSelectedRows) {
  // The rows selected (from 0), the button, the clipboard text, the nodes afterwards.
  const std::tuple<int, int, const char*, const char*, Nodes> steps[] = {
      {1, 2, "ButtonDelete", "", kSquare},  // would leave two nodes: nothing happens
      {1, 1, "ButtonDelete", "", {0, 0, 1, 1, 0, 1}},
      {0, 0, "ButtonDelete", "", {0, 0, 1, 1, 0, 1}},
      {1, 1, "ButtonInsert", "", {0, 0, 1, 1, 1, 1, 0, 1}},
      {2, 3, "ButtonInsert", "", {0, 0, 1, 1, 1, 1, 1, 1, 0, 1}},
      {0, 0, "ButtonAdd", "", {0, 0, 1, 1, 1, 1, 1, 1, 0, 1, 0, 1}},
      {1, 3, "ButtonDelete", "", {0, 0, 0, 1, 0, 1}},
      {1, 1, "ButtonPaste", "0 0\n10 0\n10 10", {0, 0, 0, 0, 10, 0, 10, 10, 0, 1, 0, 1}},
      {1, 4, "ButtonPaste", "5;5", {0, 0, 5, 5, 0, 1}},
      {0, 2, "ButtonPaste", "7\t7\r\n8\t8\r\n", {0, 0, 5, 5, 0, 1}},
  };
  HostPolygon host(kSquare);
  EXPECT_TRUE(Run(host, [&](lx::TDlgPolygon* dlg) {
    for (const auto& [first, last, button, clipboard, after] : steps) {
      if (*clipboard) SetClipboardText(clipboard);
      SelectRows(dlg, first, last);
      Click(dlg, button);
      EXPECT_EQ(DialogNodes(dlg), after) << button << " " << first << "-" << last;
      EXPECT_EQ(GridOf(dlg)->model()->rowCount(), dlg->GetNodeCount());
    }
    EXPECT_EQ(Area(dlg), "2.5");
    Click(dlg, "OkButton");
  }));
  EXPECT_EQ(host.Micrometres(), (Nodes{0, 0, 5, 5, 0, 1}));
  EXPECT_TRUE(messages_.empty());
}

TEST_F(PolygonDlg, CopyAndPasteFollowTheClipboardAndBadTextChangesNothing) {
  const Nodes nodes = {0, 0, 1.5, 0, 1, -2.25, 0, 1};
  HostPolygon host(nodes);
  Run(host, [&](lx::TDlgPolygon* dlg) {
    auto* paste = Find<QPushButton>(dlg, "ButtonPaste");
    EXPECT_FALSE(paste->isEnabled());
    QTableView* grid = GridOf(dlg);
    ClickCell(grid, 1, 2);
    ClickCell(grid, 2, 2, Qt::ShiftModifier);
    Click(dlg, "ButtonCopy");  // whole nodes
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "1.5\t0\n1\t-2.25\n");
    EXPECT_TRUE(grid->selectionModel()->isSelected(grid->model()->index(2, 1)));
    EXPECT_TRUE(paste->isEnabled());
    auto* picture = new QMimeData;
    picture->setImageData(QImage(4, 4, QImage::Format_RGB32));
    QGuiApplication::clipboard()->setMimeData(picture);
    EXPECT_FALSE(paste->isEnabled());
    // The button follows the first node of the text; pasting what does not read changes nothing.
    const std::tuple<const char*, bool, QStringList> cases[] = {
        {"hello", false, {"'hello' is not a valid number", "Invalid clipboard data"}},
        {"3;4 x", true, {"'x' is not a valid number", "Invalid clipboard data"}},
        {"1 2\n3 4x", true, {"'4x' is not a valid number", "Invalid clipboard data"}},
        {"1 2 3", true, {"'' is not a valid number", "Invalid clipboard data"}},
        {" ;\n", false, {"Invalid clipboard data"}},
        {"", false, {}},  // no text at all
    };
    for (const auto& [text, enabled, messages] : cases) {
      messages_.clear();
      *text ? SetClipboardText(text) : QGuiApplication::clipboard()->clear();
      EXPECT_EQ(paste->isEnabled(), enabled) << text;
      SelectRows(dlg, 1, 1);
      dlg->ButtonPasteClick();
      EXPECT_EQ(Errors(4030), messages) << text;
      EXPECT_EQ(DialogNodes(dlg), nodes) << text;
    }
  });
}

TEST_F(PolygonDlg, HugeClipboardTextsAreReadInOnePass) {
  const int nodes = 1'000'000;
  const QString valid = QStringLiteral("12.5\t-3.25\n").repeated(nodes);
  HostPolygon host(kSquare);
  EXPECT_TRUE(Run(host, [&](lx::TDlgPolygon* dlg) {
    auto* paste = Find<QPushButton>(dlg, "ButtonPaste");
    SetClipboardText(QString(10'000'000, u'x'));
    EXPECT_FALSE(paste->isEnabled());
    SetClipboardText(valid + "oops");
    EXPECT_TRUE(paste->isEnabled());
    SelectRows(dlg, 0, 0);
    dlg->ButtonPasteClick();
    EXPECT_EQ(messages_.size(), 2u);
    EXPECT_EQ(dlg->GetNodeCount(), 4);
    SetClipboardText(valid);
    dlg->ButtonPasteClick();
    EXPECT_EQ(dlg->GetNodeCount(), nodes + 4);
    EXPECT_EQ(DialogNodes(dlg)[2 * nodes - 1], -3.25);
    EXPECT_EQ(Area(dlg), "-");
    Click(dlg, "OkButton");
  }));
  EXPECT_EQ(host.settings.NodeCount, nodes + 4);
  EXPECT_EQ(host.settings.Nodes[2 * nodes + 2], 1000.0);
}

TEST_F(PolygonDlg, OkReplacesTheHostArrayOnlyWhenTheNodesGrew) {
  lx::TK5Layer layers[3] = {lx::TK5Layer(10), lx::TK5Layer(20), lx::TK5Layer(30)};
  layers[0].Next = &layers[1];
  layers[1].Next = &layers[2];
  HostPolygon host(kSquare, 20, layers);
  const double* before = host.settings.Nodes;
  // Delete a node, then add two; the layer changes, then stays when none is chosen.
  const std::tuple<const char*, int, int, bool, Nodes> runs[] = {
      {"ButtonDelete", 1, 2, false, {0, 0, 1, 0, 0, 1}},
      {"ButtonAdd", 2, -1, true, {0, 0, 1, 0, 0, 1, 0, 1, 0, 1}},
  };
  for (const auto& [button, shownLayer, pick, moved, after] : runs) {
    EXPECT_TRUE(Run(host, [&](lx::TDlgPolygon* dlg) {
      EXPECT_EQ(Find<QComboBox>(dlg, "LayerCombo")->currentIndex(), shownLayer);
      SelectRows(dlg, 2, 2);
      Click(dlg, button);
      if (moved) Click(dlg, button);
      Find<QComboBox>(dlg, "LayerCombo")->setCurrentIndex(pick);
      Click(dlg, "OkButton");
    }));
    EXPECT_EQ(host.settings.Nodes != before, moved);
    EXPECT_EQ(host.Micrometres(), after);
    EXPECT_EQ(host.settings.Layer, 30);
  }
}

}  // namespace
