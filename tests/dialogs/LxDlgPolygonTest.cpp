#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTableView>

#include <cmath>
#include <functional>
#include <vector>

#include "dialogs/DialogFixture.h"
#include "lxcomp/LxDlgPolygon.h"
#include "lxcomp/LxLayer.h"
#include "support/ModalDriver.h"

namespace {

using lxtest::Click;
using lxtest::Find;
using lxtest::ModalDriver;

// A host record whose node array is allocated as a host does it, with new[].
struct HostPolygon {
  explicit HostPolygon(std::vector<double> micrometres, int layer = 0,
                       const lx::TK5Layer* layers = nullptr) {
    settings.NodeCount = static_cast<int>(micrometres.size() / 2);
    settings.Nodes = new double[micrometres.size() + 2];
    for (size_t i = 0; i < micrometres.size(); ++i)
      settings.Nodes[i] = micrometres[i] * 1000.0;
    settings.Layer = layer;
    settings.Layers = layers;
  }
  ~HostPolygon() { delete[] settings.Nodes; }
  std::vector<double> Micrometres() const {
    std::vector<double> out;
    for (int i = 0; i < 2 * settings.NodeCount; ++i)
      out.push_back(settings.Nodes[i] / 1000.0);
    return out;
  }
  lx::PolygonSettings settings{};
};

std::vector<double> DialogNodes(const lx::TDlgPolygon* dlg) {
  std::vector<double> out;
  for (int i = 0; i < 2 * dlg->GetNodeCount(); ++i)
    out.push_back(dlg->GetNodes()[i] / 1000.0);
  return out;
}

QTableView* GridOf(QWidget* dlg) {
  return Find<QTableView>(dlg, "AdvGrid");
}

// Clicks a cell of the table (rows from 0 are nodes 1, 2, ...), as a user does.
void ClickCell(QTableView* grid, int row, int col, Qt::KeyboardModifiers mods = Qt::NoModifier) {
  const QModelIndex index = grid->model()->index(row, col);
  grid->scrollTo(index);
  QTest::mouseClick(grid->viewport(), Qt::LeftButton, mods, grid->visualRect(index).center());
}

// Selects rows first to last by clicking their numbers.
void SelectRows(QTableView* grid, int first, int last) {
  ClickCell(grid, first, 0);
  if (last != first) ClickCell(grid, last, 0, Qt::ShiftModifier);
}

// Opens the cell editor with F2, types the text and, unless told not to, presses Enter.
QLineEdit* TypeCell(QTableView* grid, int row, int col, const QString& text, bool enter = true) {
  ClickCell(grid, row, col);
  QTest::keyClick(grid, Qt::Key_F2);
  QLineEdit* editor = nullptr;  // the open one: closed editors wait for their deletion
  for (QLineEdit* child : grid->viewport()->findChildren<QLineEdit*>())
    if (child->isVisible()) editor = child;
  if (!editor) {
    ADD_FAILURE() << "no cell editor";
    return nullptr;
  }
  editor->selectAll();
  QTest::keyClicks(editor, text);
  if (enter) QTest::keyClick(editor, Qt::Key_Return);
  return editor;
}

QString Text(QWidget* dlg, const char* label) {
  return Find<QLabel>(dlg, label)->text();
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
  // Opens the dialog on the record; `act` works in it and closes it.
  bool Run(HostPolygon& host, const std::function<void(lx::TDlgPolygon*)>& act) {
    ModalDriver::WhenModal([&](QWidget* w) {
      auto* dlg = qobject_cast<lx::TDlgPolygon*>(w);
      if (!dlg) {
        ADD_FAILURE() << "not the polygon dialog";
        return;
      }
      act(dlg);
      if (dlg->isVisible()) dlg->reject();
    });
    const bool result = lx::DoPolygonDlg(&host.settings);
    EXPECT_FALSE(ModalDriver::TakeFailure());
    return result;
  }
};

const std::vector<double> kSquare = {0, 0, 1, 0, 1, 1, 0, 1};

TEST_F(PolygonDlg, ShowsTheNodesTheAreaAndItsUnits) {
  HostPolygon host(kSquare);
  const bool ok = Run(host, [](lx::TDlgPolygon* dlg) {
    EXPECT_EQ(dlg->windowTitle(), "Polygon properties...");
    EXPECT_EQ(dlg->GetHelpContext(), 4030);
    QTableView* grid = GridOf(dlg);
    EXPECT_EQ(grid->model()->rowCount(), 4);
    EXPECT_EQ(grid->model()->headerData(1, Qt::Horizontal).toString(), "X");
    EXPECT_EQ(grid->model()->index(2, 0).data().toString(), "3");
    EXPECT_EQ(grid->model()->index(2, 1).data().toString(), "1");
    EXPECT_EQ(dlg->AdvGridGetDisplText(2, 4), "1");
    EXPECT_EQ(Text(dlg, "LabelSurfaceArea"), "1");
    EXPECT_EQ(Text(dlg, "LabelType"), "counterclockwise");
    auto* units = Find<QComboBox>(dlg, "ComboUnits");
    const char* expected[] = {"1", "0.000001", "0.00000001", "0.000000000001"};
    ASSERT_EQ(units->count(), 4);
    EXPECT_EQ(units->itemText(1), QString::fromUtf8("mm²"));
    for (int unit : {1, 2, 3, 0}) {
      units->setCurrentIndex(unit);
      EXPECT_EQ(Text(dlg, "LabelSurfaceArea"), expected[unit]);
    }
    Click(dlg, "CancelButton");
  });
  EXPECT_FALSE(ok);
  EXPECT_EQ(host.Micrometres(), kSquare);
}

TEST_F(PolygonDlg, OrientationAndTheLimitsOfTheAreaFigure) {
  std::vector<double> ring2000, ring2001;
  for (int i = 0; i < 2001; ++i) {
    const double a = 2 * M_PI * i / 2001;
    ring2001.insert(ring2001.end(), {100 * std::cos(a), 100 * std::sin(a)});
  }
  ring2000.assign(ring2001.begin(), ring2001.end() - 2);
  struct Case {
    const char* name;
    std::vector<double> nodes;
    const char* area;
    const char* type;
  };
  const Case cases[] = {
      {"clockwise square", {0, 0, 0, 1, 1, 1, 1, 0}, "1", "clockwise"},
      {"closed square", {0, 0, 2, 0, 2, 2, 0, 2, 0, 0}, "4", "counterclockwise"},
      {"bow tie", {0, 0, 10, 10, 10, 0, 0, 10, 0, 0}, "--", "self intersecting"},
      {"collinear", {0, 0, 1, 0, 2, 0}, "--", "self intersecting"},
      {"two nodes", {0, 0, 1, 1}, "-", ""},
      {"2001 nodes", ring2001, "-", ""},
  };
  for (const Case& c : cases) {
    HostPolygon host(c.nodes);
    Run(host, [&](lx::TDlgPolygon* dlg) {
      EXPECT_EQ(Text(dlg, "LabelSurfaceArea"), c.area) << c.name;
      EXPECT_EQ(Text(dlg, "LabelType"), c.type) << c.name;
      // A missing or zero area is not rescaled by a change of unit.
      Find<QComboBox>(dlg, "ComboUnits")->setCurrentIndex(1);
      if (QString(c.area).startsWith('-')) {
        EXPECT_EQ(Text(dlg, "LabelSurfaceArea"), c.area);
      }
      Click(dlg, "CancelButton");
    });
  }
  HostPolygon big(ring2000);
  Run(big, [](lx::TDlgPolygon* dlg) {
    EXPECT_EQ(Text(dlg, "LabelType"), "counterclockwise");
    EXPECT_NEAR(dlg->GetArea(), M_PI * 100 * 100, 1.0);
    Click(dlg, "CancelButton");
  });
}

TEST_F(PolygonDlg, EditingACellChangesTheNodeAndTheArea) {
  HostPolygon host(kSquare);
  const bool ok = Run(host, [this](lx::TDlgPolygon* dlg) {
    QTableView* grid = GridOf(dlg);
    TypeCell(grid, 1, 1, "2");
    EXPECT_EQ(Text(dlg, "LabelSurfaceArea"), "1.5");
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
    EXPECT_EQ(DialogNodes(dlg), (std::vector<double>{0, 0, 2, 0, 1, 1.5, 0, 1}));
    Click(dlg, "OkButton");
  });
  EXPECT_TRUE(ok);
  EXPECT_EQ(host.Micrometres(), (std::vector<double>{0, 0, 2, 0, 1, 1.5, 0, 1}));
}

TEST_F(PolygonDlg, OkFinishesAnOpenEdit) {
  HostPolygon host(kSquare);
  EXPECT_TRUE(Run(host, [](lx::TDlgPolygon* dlg) {
    TypeCell(GridOf(dlg), 3, 2, "9", /*enter=*/false);
    dlg->OkButtonClick();
  }));
  EXPECT_EQ(host.Micrometres(), (std::vector<double>{0, 0, 1, 0, 1, 1, 0, 9}));
}

TEST_F(PolygonDlg, DeleteInsertAndAddWorkOnTheSelectedRows) {
  struct Step {
    const char* name;
    int first, last;  // rows selected (from 0)
    const char* button;
    std::vector<double> after;
  };
  const Step steps[] = {
      {"two of four", 1, 2, "ButtonDelete", kSquare},
      {"one of four", 1, 1, "ButtonDelete", {0, 0, 1, 1, 0, 1}},
      {"below three", 0, 0, "ButtonDelete", {0, 0, 1, 1, 0, 1}},
      {"insert", 1, 1, "ButtonInsert", {0, 0, 1, 1, 1, 1, 0, 1}},
      {"insert on a range", 2, 3, "ButtonInsert", {0, 0, 1, 1, 1, 1, 1, 1, 0, 1}},
      {"add", 0, 0, "ButtonAdd", {0, 0, 1, 1, 1, 1, 1, 1, 0, 1, 0, 1}},
      {"three of six", 1, 3, "ButtonDelete", {0, 0, 0, 1, 0, 1}},
  };
  HostPolygon host(kSquare);
  Run(host, [&](lx::TDlgPolygon* dlg) {
    for (const Step& s : steps) {
      SelectRows(GridOf(dlg), s.first, s.last);
      Click(dlg, s.button);
      EXPECT_EQ(DialogNodes(dlg), s.after) << s.name;
      EXPECT_EQ(GridOf(dlg)->model()->rowCount(), dlg->GetNodeCount()) << s.name;
    }
    EXPECT_EQ(Text(dlg, "LabelSurfaceArea"), "--");  // collinear after the last delete
    Click(dlg, "CancelButton");
  });
  EXPECT_EQ(host.Micrometres(), kSquare);
}

TEST_F(PolygonDlg, CopyPutsWholeNodesOnTheClipboard) {
  HostPolygon host({0, 0, 1.5, 0, 1, -2.25, 0, 1});
  Run(host, [](lx::TDlgPolygon* dlg) {
    EXPECT_FALSE(Find<QPushButton>(dlg, "ButtonPaste")->isEnabled());
    QTableView* grid = GridOf(dlg);
    ClickCell(grid, 1, 2);
    ClickCell(grid, 2, 2, Qt::ShiftModifier);
    Click(dlg, "ButtonCopy");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "1.5\t0\n1\t-2.25\n");
    EXPECT_TRUE(grid->selectionModel()->isSelected(grid->model()->index(2, 1)));
    EXPECT_TRUE(Find<QPushButton>(dlg, "ButtonPaste")->isEnabled());
    Click(dlg, "CancelButton");
  });
}

TEST_F(PolygonDlg, PasteInsertsBeforeOneRowAndReplacesSeveral) {
  struct Step {
    const char* clipboard;
    int first, last;
    std::vector<double> after;
  };
  const Step steps[] = {
      {"0 0\n10 0\n10 10", 1, 1, {0, 0, 0, 0, 10, 0, 10, 10, 1, 0, 1, 1, 0, 1}},
      {"5;5", 1, 4, {0, 0, 5, 5, 1, 1, 0, 1}},
      {"7\t7\r\n8\t8\r\n", 0, 3, {7, 7, 8, 8}},  // would leave two nodes: nothing happens
  };
  HostPolygon host(kSquare);
  Run(host, [&](lx::TDlgPolygon* dlg) {
    for (const Step& s : steps) {
      SetClipboardText(s.clipboard);
      EXPECT_TRUE(Find<QPushButton>(dlg, "ButtonPaste")->isEnabled());
      SelectRows(GridOf(dlg), s.first, s.last);
      Click(dlg, "ButtonPaste");
      const std::vector<double> unchanged = {0, 0, 5, 5, 1, 1, 0, 1};
      EXPECT_EQ(DialogNodes(dlg), s.after.size() >= 6 ? s.after : unchanged) << s.clipboard;
    }
    EXPECT_EQ(Text(dlg, "LabelSurfaceArea"), "0.5");
    Click(dlg, "OkButton");
  });
  EXPECT_EQ(host.Micrometres(), (std::vector<double>{0, 0, 5, 5, 1, 1, 0, 1}));
  EXPECT_TRUE(messages_.empty());
}

TEST_F(PolygonDlg, InvalidClipboardTextChangesNothing) {
  struct Case {
    const char* text;
    QStringList messages;
  };
  const Case cases[] = {
      {"abc", {"'abc' is not a valid number", "Invalid clipboard data"}},
      {"1 2\n3 4x", {"'4x' is not a valid number", "Invalid clipboard data"}},
      {"1 2 3", {"'' is not a valid number", "Invalid clipboard data"}},
      {" ;\n", {"Invalid clipboard data"}},
  };
  HostPolygon host(kSquare);
  Run(host, [&](lx::TDlgPolygon* dlg) {
    for (const Case& c : cases) {
      messages_.clear();
      SetClipboardText(c.text);
      SelectRows(GridOf(dlg), 1, 1);
      dlg->ButtonPasteClick();
      EXPECT_EQ(Errors(4030), c.messages) << c.text;
      EXPECT_EQ(DialogNodes(dlg), kSquare) << c.text;
    }
    Click(dlg, "CancelButton");
  });
}

TEST_F(PolygonDlg, ThePasteButtonFollowsTheClipboard) {
  SetClipboardText("1 2");
  HostPolygon host(kSquare);
  Run(host, [](lx::TDlgPolygon* dlg) {
    auto* paste = Find<QPushButton>(dlg, "ButtonPaste");
    EXPECT_TRUE(paste->isEnabled());
    SetClipboardText("hello");
    EXPECT_FALSE(paste->isEnabled());
    SetClipboardText("3;4 x");
    EXPECT_TRUE(paste->isEnabled());  // the first node reads
    auto* picture = new QMimeData;
    picture->setImageData(QImage(4, 4, QImage::Format_RGB32));
    QGuiApplication::clipboard()->setMimeData(picture);
    EXPECT_FALSE(paste->isEnabled());
    SetClipboardText("1 2");
    QGuiApplication::clipboard()->clear();
    EXPECT_FALSE(paste->isEnabled());
    dlg->ButtonPasteClick();  // no text: nothing at all
    EXPECT_EQ(dlg->GetNodeCount(), 4);
    Click(dlg, "CancelButton");
  });
  EXPECT_TRUE(messages_.empty());
}

TEST_F(PolygonDlg, HugeClipboardTextsAreReadInOnePass) {
  const int nodes = 1'000'000;
  QString valid;
  valid.reserve(nodes * 11);
  for (int i = 0; i < nodes; ++i)
    valid += QStringLiteral("12.5\t-3.25\n");
  HostPolygon host(kSquare);
  Run(host, [&](lx::TDlgPolygon* dlg) {
    auto* paste = Find<QPushButton>(dlg, "ButtonPaste");
    SetClipboardText(QString(10'000'000, u'x'));
    EXPECT_FALSE(paste->isEnabled());
    SetClipboardText(valid + "oops");
    EXPECT_TRUE(paste->isEnabled());
    SelectRows(GridOf(dlg), 0, 0);
    messages_.clear();
    dlg->ButtonPasteClick();
    ASSERT_EQ(messages_.size(), 2u);
    EXPECT_EQ(dlg->GetNodeCount(), 4);
    SetClipboardText(valid);
    dlg->ButtonPasteClick();
    EXPECT_EQ(dlg->GetNodeCount(), nodes + 4);
    EXPECT_EQ(DialogNodes(dlg)[2 * nodes - 1], -3.25);
    EXPECT_EQ(Text(dlg, "LabelSurfaceArea"), "-");
    Click(dlg, "OkButton");
  });
  EXPECT_EQ(host.settings.NodeCount, nodes + 4);
  EXPECT_EQ(host.settings.Nodes[2 * nodes + 2], 1000.0);
}

TEST_F(PolygonDlg, OkReplacesTheHostArrayOnlyWhenTheNodesGrew) {
  lx::TK5Layer layers[3] = {lx::TK5Layer(10), lx::TK5Layer(20), lx::TK5Layer(30)};
  layers[0].Next = &layers[1];
  layers[1].Next = &layers[2];
  HostPolygon host(kSquare, 20, layers);
  const double* before = host.settings.Nodes;
  EXPECT_TRUE(Run(host, [](lx::TDlgPolygon* dlg) {
    EXPECT_EQ(Find<QComboBox>(dlg, "LayerCombo")->currentIndex(), 1);
    SelectRows(GridOf(dlg), 3, 3);
    Click(dlg, "ButtonDelete");
    Find<QComboBox>(dlg, "LayerCombo")->setCurrentIndex(2);
    Click(dlg, "OkButton");
  }));
  EXPECT_EQ(host.settings.Nodes, before);
  EXPECT_EQ(host.Micrometres(), (std::vector<double>{0, 0, 1, 0, 1, 1}));
  EXPECT_EQ(host.settings.Layer, 30);
  EXPECT_TRUE(Run(host, [](lx::TDlgPolygon* dlg) {
    Click(dlg, "ButtonAdd");
    Click(dlg, "ButtonAdd");
    Find<QComboBox>(dlg, "LayerCombo")->setCurrentIndex(-1);
    Click(dlg, "OkButton");
  }));
  EXPECT_NE(host.settings.Nodes, before);
  EXPECT_EQ(host.Micrometres(), (std::vector<double>{0, 0, 1, 0, 1, 1, 1, 1, 1, 1}));
  EXPECT_EQ(host.settings.Layer, 30);
}

}  // namespace
