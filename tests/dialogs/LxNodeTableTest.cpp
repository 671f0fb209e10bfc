#include <gtest/gtest.h>

#include <QSignalSpy>

#include <cmath>
#include <vector>

#include "dialogs/LxNodeTable.h"
#include "dialogs/LxNodeText.h"

namespace {

struct ScanCase {
  const char* text;
  std::vector<double> nodes;  // nanometres, x y pairs read before the scan stopped
  bool failed;
  const char* badNumber;
};

TEST(NodeText, ReadsNodesByTheClipboardRules) {
  const ScanCase cases[] = {
      {"0 0\n10 0\n10 10", {0, 0, 10000, 0, 10000, 10000}, false, ""},
      {"0;0\t5;5", {0, 0, 5000, 5000}, false, ""},
      {" \t;\n1 2", {1000, 2000}, false, ""},
      {"1\t2\r\n3\t4\r\n", {1000, 2000, 3000, 4000}, false, ""},
      {"1\t2\r\n\r\n", {1000, 2000}, false, ""},
      {"1,5 -2.25", {1500, -2250}, false, ""},
      {"2*3 -1", {6000, -1000}, false, ""},
      {"1e3;0", {1e6, 0}, false, ""},
      {"", {}, false, ""},
      {" \n\n", {}, false, ""},
      {"abc def", {}, true, "abc"},
      {"1 2\n12.5mm 3", {1000, 2000}, true, "12.5mm"},
      {"1 2 3", {1000, 2000}, true, ""},
      {"1\n2", {}, true, ""},
      {"1 2\n\r\n3 4", {1000, 2000}, true, "\r"},
      {"inf 0", {}, true, "inf"},
      {"10^400 0", {}, true, "10^400"},
      {"1/0 0", {}, true, "1/0"},
  };
  for (const ScanCase& c : cases) {
    const QString text = QString::fromUtf8(c.text);
    std::vector<double> out(64, -1);
    const lx::TNodeTextScan scan = lx::ScanNodeText(text, 1000, out.data());
    SCOPED_TRACE(c.text);
    EXPECT_EQ(scan.failed, c.failed);
    EXPECT_EQ(scan.badNumber, QString::fromUtf8(c.badNumber));
    ASSERT_EQ(scan.nodes * 2, static_cast<int>(c.nodes.size()));
    for (size_t i = 0; i < c.nodes.size(); ++i)
      EXPECT_DOUBLE_EQ(out[i], c.nodes[i]) << i;
  }
}

TEST(NodeText, StopsAtTheNodeLimitAndReadsOnlyThirtyCharacters) {
  EXPECT_EQ(lx::ScanNodeText(u"1 1 2 2 3 3 x", 2).nodes, 2);
  EXPECT_FALSE(lx::ScanNodeText(u"1 1 2 2 3 3 x", 2).failed);
  double node[2] = {};
  ASSERT_EQ(lx::ScanNodeText(u"1234567890123456789012345678901234 1", 1, node).nodes, 1);
  EXPECT_DOUBLE_EQ(node[0], 123456789012345678901234567890.0 * 1000.0);
}

TEST(NodeText, PrintsOneNodePerLineAsTheTableShowsThem) {
  const double nodes[] = {1500, -2000, 0, 1234567, 7, 8};
  EXPECT_EQ(lx::PrintNodeText(nodes, 0, 2), "1.5\t-2\n0\t1234.567\n");
  EXPECT_EQ(lx::PrintNodeText(nodes, 2, 1), "0.007\t0.008\n");
  EXPECT_EQ(lx::PrintNodeText(nodes, 0, 0), "");
  double back[4] = {};
  ASSERT_EQ(lx::ScanNodeText(lx::PrintNodeText(nodes, 0, 2), 10, back).nodes, 2);
  for (int i = 0; i < 4; ++i)
    EXPECT_DOUBLE_EQ(back[i], nodes[i]);
}

class NodeModel : public ::testing::Test {
 protected:
  std::vector<double> nodes{0, 0, 1500, 0, 1500, 2500, 1234.5678, 0};
  lx::TNodeTableModel model{nodes};
};

TEST_F(NodeModel, ShowsNumbersAndMicronsByGridRow) {
  struct Cell {
    int col, row;
    const char* text;
  };
  const Cell cells[] = {{0, 0, ""},    {1, 0, ""},         {0, 1, "1"}, {0, 4, "4"}, {1, 2, "1.5"},
                        {2, 3, "2.5"}, {1, 4, "1.234568"}, {1, 5, ""},  {3, 1, ""},  {1, -1, ""}};
  for (const Cell& c : cells)
    EXPECT_EQ(model.DisplText(c.col, c.row), QString::fromUtf8(c.text)) << c.col << "," << c.row;
  EXPECT_EQ(model.rowCount(), 4);
  EXPECT_EQ(model.columnCount(), 3);
  EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), "X");
  EXPECT_EQ(model.headerData(2, Qt::Horizontal, Qt::DisplayRole).toString(), "Y");
  EXPECT_EQ(model.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), "");
  EXPECT_FALSE(model.flags(model.index(0, 0)) & Qt::ItemIsEditable);
  EXPECT_TRUE(model.flags(model.index(0, 2)) & Qt::ItemIsEditable);
}

TEST_F(NodeModel, EditsEvaluateExpressionsAndRefuseBadText) {
  struct Edit {
    int col, row;
    const char* typed;
    bool changed;
    double x, y;  // node `row` afterwards
  };
  const Edit edits[] = {
      {1, 2, "7", true, 7000, 0},       {2, 2, "2*3.5", true, 7000, 7000},
      {2, 2, "abc", false, 7000, 7000}, {1, 2, "1,5", true, 1500, 7000},
      {2, 2, "", false, 1500, 7000},    {0, 2, "9", false, 1500, 7000},
      {1, 9, "9", false, 1500, 7000},
  };
  QSignalSpy edited(&model, &lx::TNodeTableModel::NodeEdited);
  int changes = 0;
  for (const Edit& e : edits) {
    model.EditText(e.col, e.row);
    EXPECT_TRUE(model.Editing() || e.row > 4);
    model.EditChange(QString::fromUtf8(e.typed));
    EXPECT_EQ(model.EditDone(), e.changed) << e.typed;
    EXPECT_FALSE(model.Editing());
    EXPECT_DOUBLE_EQ(nodes[2], e.x) << e.typed;
    EXPECT_DOUBLE_EQ(nodes[3], e.y) << e.typed;
    changes += e.changed;
  }
  EXPECT_EQ(edited.count(), changes);
}

TEST_F(NodeModel, AnEditLeftUnchangedKeepsTheExactValue) {
  EXPECT_EQ(model.EditText(1, 4), "1.234568");
  EXPECT_FALSE(model.EditDone());
  EXPECT_DOUBLE_EQ(nodes[6], 1234.5678);
}

}  // namespace
