#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <vector>

#include "dialogs/DialogFixture.h"
#include "lxcomp/LxDlgBase.h"
#include "lxcomp/LxLayer.h"

namespace {

using DlgBase = lxtest::DialogTest;

// Layers numbered as given, linked in order; empty names unless named.
struct LayerList {
  explicit LayerList(std::vector<int> numbers) {
    for (int n : numbers)
      layers.emplace_back(n, n, 0, QStringLiteral("L%1").arg(n), -1);
    for (size_t i = 0; i + 1 < layers.size(); ++i)
      layers[i].Next = &layers[i + 1];
  }
  const lx::TK5Layer* Head() const { return layers.empty() ? nullptr : &layers[0]; }
  std::vector<lx::TK5Layer> layers;
};

TEST_F(DlgBase, LeavingAFieldReplacesAnExpressionByItsValue) {
  lx::TLxDlgBase dlg;
  auto* edit = new QLineEdit(dlg.ClientArea());
  edit->setObjectName("Field");
  dlg.UseLxExit({edit});
  dlg.show();
  const std::pair<QString, QString> cases[] = {{"12.5", "12.5"}, {"10/4", "2.5"}, {"1,5", "1,5"},
                                               {"abc", "abc"},   {"2*3.5", "7"},  {"", ""},
                                               {"1/0", "inf"},   {"((((", "(((("}};
  for (const auto& [typed, shown] : cases) {
    lxtest::TypeInto(&dlg, "Field", typed);
    lxtest::Leave(&dlg, "Field");
    EXPECT_EQ(edit->text(), shown) << typed.toStdString();
  }
  dlg.LxExit(nullptr);  // not an edit: nothing happens
  dlg.LxExit(&dlg);
  EXPECT_TRUE(messages_.empty());
}

TEST_F(DlgBase, ReadersReportWithTheDialogsHelpContext) {
  lx::TLxDlgBase dlg;
  dlg.SetHelpContext(4040);
  double value = 42;
  int number = 42;
  EXPECT_TRUE(dlg.GetCoordinate("abc", &value));
  EXPECT_TRUE(dlg.GetDouble("12.5mm", &value));
  EXPECT_TRUE(dlg.GetNumber("", &number));
  EXPECT_TRUE(dlg.GetCoordinate("inf", &value));
  EXPECT_EQ(value, 42);
  EXPECT_EQ(number, 42);
  ASSERT_EQ(messages_.size(), 4u);
  EXPECT_EQ(messages_[0].text, "'abc' is not a valid number");
  EXPECT_EQ(messages_[1].text, "'12.5mm' is not a valid number");
  EXPECT_EQ(messages_[2].text, "'' is not a valid number");
  for (const Message& m : messages_) {
    EXPECT_EQ(m.kind, -1);
    EXPECT_EQ(m.help, 4040);
  }
  EXPECT_FALSE(dlg.GetCoordinate("1,5", &value));
  EXPECT_DOUBLE_EQ(value, 1500.0);
  EXPECT_FALSE(dlg.GetNumber("-2.5", &number));
  EXPECT_EQ(number, -3);
  EXPECT_FALSE(dlg.GetDouble("-INF", &value));
  EXPECT_TRUE(std::isinf(value) && value < 0);
  EXPECT_FALSE(dlg.GetCoordinate("7", nullptr));
}

TEST_F(DlgBase, LayerPickerListsEveryLayerWithItsSwatch) {
  lx::TLxDlgBase dlg;
  QComboBox combo;
  LayerList list({10, 20, 30, 20});
  list.layers[2].LongName.clear();
  struct Case {
    int selected, index;
  };
  for (const Case c : {Case{20, 3}, Case{10, 0}, Case{99, 0}, Case{30, 2}}) {
    EXPECT_EQ(dlg.FillComboBoxExWithLayers(&combo, list.Head(), c.selected), 4);
    EXPECT_EQ(combo.currentIndex(), c.index) << c.selected;
  }
  EXPECT_EQ(combo.itemText(0), "L10");
  EXPECT_EQ(combo.itemText(2), "Layer 30");
  EXPECT_EQ(dlg.GetLyrImages().size(), 4);
  EXPECT_FALSE(combo.itemIcon(1).isNull());
  EXPECT_EQ(combo.iconSize(), QSize(22, 16));
  EXPECT_EQ(dlg.FillComboBoxExWithLayers(&combo, nullptr, 10), 0);
  EXPECT_EQ(combo.count(), 0);
  EXPECT_EQ(dlg.GetLayerIndex(&combo, nullptr), -1);
  EXPECT_EQ(dlg.FillComboBoxExWithLayers(nullptr, list.Head(), 10), 0);
}

TEST_F(DlgBase, LayerIndexIsTheNumberOfTheSelectedLayer) {
  lx::TLxDlgBase dlg;
  QComboBox combo;
  LayerList list({10, 20, 30});
  dlg.FillComboBoxExWithLayers(&combo, list.Head(), 10);
  combo.setCurrentIndex(2);
  EXPECT_EQ(dlg.GetLayerIndex(&combo, list.Head()), 30);
  combo.setCurrentIndex(-1);
  EXPECT_EQ(dlg.GetLayerIndex(&combo, list.Head()), -1);
  combo.addItem("beyond the list");
  combo.setCurrentIndex(3);
  EXPECT_EQ(dlg.GetLayerIndex(&combo, list.Head()), -1);
  EXPECT_EQ(dlg.GetLayerIndex(nullptr, list.Head()), -1);
}

TEST_F(DlgBase, FontPickerLeavesOutDefault) {
  lx::TLxDlgBase dlg;
  QComboBox combo;
  dlg.FillComboBoxWithFonts(&combo, static_cast<const wchar_t*>(nullptr));
  EXPECT_EQ(combo.currentIndex(), -1);
  for (int i = 0; i < combo.count(); ++i)
    EXPECT_NE(combo.itemText(i).toUpper(), "DEFAULT");
  if (combo.count() == 0) return;
  const QString second = combo.itemText(combo.count() - 1);
  dlg.FillComboBoxWithFonts(&combo, second);
  EXPECT_EQ(combo.currentText(), second);
  dlg.FillComboBoxWithFonts(&combo, L"No Such Font 123");
  EXPECT_EQ(combo.currentIndex(), -1);
}

TEST_F(DlgBase, LightTextFlagFollowsTheButtonText) {
  for (const auto& [text, light] :
       {std::pair{QColor(255, 255, 255), true}, std::pair{QColor(0, 0, 0), false},
        std::pair{QColor(128, 127, 127), true}, std::pair{QColor(127, 127, 127), false}}) {
    QPalette palette;
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::Button, QColor(1, 2, 3));
    const QPalette before = QApplication::palette();
    QApplication::setPalette(palette);
    lx::TLxDlgBase dlg;
    QApplication::setPalette(before);
    EXPECT_EQ(dlg.GetLightText(), light) << text.name().toStdString();
    EXPECT_EQ(dlg.GetTextColor(), lx::FromQColor(text));
    EXPECT_EQ(dlg.GetBackgroundColor(), 0x030201);
  }
}

TEST_F(DlgBase, HelpGoesToTheHandlerOrSaysThereIsNone) {
  std::vector<int> topics;
  lx::TLxDlgBase dlg;
  EXPECT_EQ(dlg.HelpButton()->text(), "Help");
  dlg.SetHelpContext(4040);
  dlg.HelpButtonClick();
  EXPECT_EQ(messages_.back().text, "No Help available");
  lx::SetHelpHandler([&](int topic) { topics.push_back(topic); });
  lxtest::Click(&dlg, "HelpButton");
  QTest::keyClick(&dlg, Qt::Key_F1);
  EXPECT_EQ(topics, (std::vector<int>{4040, 4040}));
  dlg.SetHelpContext(0);
  messages_.clear();
  dlg.HelpButtonClick();
  ASSERT_EQ(messages_.size(), 1u);
  EXPECT_EQ(messages_[0].text, "No Help available");
}

TEST_F(DlgBase, FormDestroyDeletesTheOwnedObject) {
  QPointer<QObject> owned = new QObject;
  {
    lx::TLxDlgBase dlg;
    dlg.SetOwnedObject(owned);
  }
  EXPECT_TRUE(owned.isNull());
}

TEST_F(DlgBase, OwnerDrawnTabsShowTheirCaptionsInTheTextColour) {
  QPalette palette;
  palette.setColor(QPalette::ButtonText, QColor(255, 0, 0));
  const QPalette before = QApplication::palette();
  QApplication::setPalette(palette);
  lx::TLxDlgBase dlg;
  QApplication::setPalette(before);
  auto* tabs = new QTabWidget(dlg.ClientArea());
  tabs->addTab(new QWidget, "Move");
  tabs->addTab(new QWidget, "Rotate");
  auto* column = new QVBoxLayout(dlg.ClientArea());
  column->addWidget(tabs);
  dlg.UseOwnerDrawnTabs(tabs);
  dlg.show();
  const QImage shot = tabs->tabBar()->grab().toImage();
  int red = 0;
  for (int y = 0; y < shot.height(); ++y)
    for (int x = 0; x < shot.width(); ++x)
      red += shot.pixelColor(x, y) == QColor(255, 0, 0);
  EXPECT_GT(red, 10);
}

}  // namespace
