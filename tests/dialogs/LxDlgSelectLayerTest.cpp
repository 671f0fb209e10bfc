#include "lxcomp/LxDlgSelectLayer.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <memory>
#include <vector>

#include "support/ModalDriver.h"

namespace {

using lx::TK5Layer;
using lxtest::Find;
using lxtest::ModalDriver;

// Layers numbered 10, 20, 30; the middle one has no name.
class SelectLayerTest : public ::testing::Test {
 protected:
  void SetUp() override {
    main_.show();
    lx::SetMainForm(&main_);
    for (int number : {10, 20, 30}) {
      layers_.push_back(std::make_unique<TK5Layer>(number, number, 0, "Layer"));
      if (layers_.size() > 1) layers_[layers_.size() - 2]->Next = layers_.back().get();
    }
    layers_[0]->SetLongName("Active");
    layers_[1]->SetLongName("");
  }
  void TearDown() override {
    lx::SetMainForm(nullptr);
    EXPECT_FALSE(ModalDriver::TakeFailure());
  }
  int Choose(int current, std::function<void(QWidget*)> act, const wchar_t* caption = nullptr) {
    ModalDriver::WhenModal(std::move(act));
    return lx::DoSelectLayerDlg(layers_.front().get(), current, caption);
  }
  QWidget main_;
  std::vector<std::unique_ptr<TK5Layer>> layers_;
};

TEST_F(SelectLayerTest, ListsEveryLayerWithTheCurrentOnePreselected) {
  const int chosen = Choose(20, [](QWidget* dlg) {
    EXPECT_EQ(dlg->windowTitle(), "Change layer...");
    auto* combo = Find<QComboBox>(dlg, "LayerCombo");
    ASSERT_EQ(combo->count(), 3);
    EXPECT_EQ(combo->itemText(0), "Active");
    EXPECT_EQ(combo->itemText(1), "Layer 20");
    EXPECT_EQ(combo->currentIndex(), 1);
    EXPECT_FALSE(combo->itemIcon(2).isNull());
    EXPECT_FALSE(Find<QPushButton>(dlg, "HelpButton")->isVisible());
    // OK and Cancel close up to the right edge.
    auto* ok = Find<QPushButton>(dlg, "OkButton");
    auto* cancel = Find<QPushButton>(dlg, "CancelButton");
    EXPECT_LT(ok->geometry().right(), cancel->geometry().left());
    EXPECT_GT(cancel->mapTo(dlg, QPoint(cancel->width(), 0)).x(), dlg->width() - 40);
    lxtest::Click(dlg, "OkButton");
  });
  EXPECT_EQ(chosen, 20);
}

TEST_F(SelectLayerTest, OkReturnsTheNumberOfTheChosenLayer) {
  const int chosen = Choose(10, [](QWidget* dlg) {
    auto* combo = Find<QComboBox>(dlg, "LayerCombo");
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Down);
    QTest::keyClick(combo, Qt::Key_Down);
    lxtest::Click(dlg, "OkButton");
  });
  EXPECT_EQ(chosen, 30);
}

TEST_F(SelectLayerTest, CancelEscapeAndUnknownCurrentLayer) {
  EXPECT_EQ(Choose(30, [](QWidget* dlg) { lxtest::Click(dlg, "CancelButton"); }), -1);
  EXPECT_EQ(Choose(10, [](QWidget* dlg) { QTest::keyClick(dlg, Qt::Key_Escape); }), -1);
  // A number that no layer has preselects the first one.
  EXPECT_EQ(Choose(99, [](QWidget* dlg) { lxtest::Click(dlg, "OkButton"); }), 10);
}

TEST_F(SelectLayerTest, CaptionAndEmptyList) {
  QString title;
  ModalDriver::WhenModal([&](QWidget* dlg) {
    title = dlg->windowTitle();
    EXPECT_EQ(Find<QComboBox>(dlg, "LayerCombo")->count(), 0);
    EXPECT_EQ(Find<QLabel>(dlg, "LabelSelect")->text(), "Select a layer:");
    lxtest::Click(dlg, "OkButton");
  });
  EXPECT_EQ(lx::DoSelectLayerDlg(nullptr, 5, L"Move to layer..."), -1);
  EXPECT_EQ(title, "Move to layer...");
}

}  // namespace
