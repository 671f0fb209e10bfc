#include <gtest/gtest.h>

#include <QLineEdit>

#include "dialogs/DialogFixture.h"
#include "lxcomp/LxDlgBox.h"

namespace {

using lxtest::Click;
using lxtest::Find;
using lxtest::ModalDriver;
using lxtest::TypeInto;

using BoxDialog = lxtest::DialogTest;

TEST_F(BoxDialog, AngleIsAPlainNumber) {
  lx::BoxSettings record{85000, 10000, 16000, 6000, 30, 2, nullptr};
  ModalDriver::WhenModal([](QWidget* dlg) {
    EXPECT_EQ(dlg->windowTitle(), "Box properties...");
    EXPECT_EQ(Find<QLineEdit>(dlg, "EditA")->text(), "30");
    EXPECT_EQ(Find<QLineEdit>(dlg, "EditL")->text(), "16");
    TypeInto(dlg, "EditA", "2*45");
    lxtest::Leave(dlg, "EditA");
    EXPECT_EQ(Find<QLineEdit>(dlg, "EditA")->text(), "90");
    TypeInto(dlg, "EditL", "0.001");
    Click(dlg, "OkButton");
  });
  EXPECT_TRUE(lx::DoBoxDlg(&record));
  EXPECT_DOUBLE_EQ(record.Angle, 90.0);
  EXPECT_DOUBLE_EQ(record.Length, 1.0);
  EXPECT_DOUBLE_EQ(record.Width, 6000.0);
  EXPECT_EQ(record.Layer, 2);  // no layer list: the layer stays
}

TEST_F(BoxDialog, InfiniteAngleIsReadButAnInfiniteLengthIsNot) {
  lx::BoxSettings record{0, 0, 1000, 1000, 0, 1, nullptr};
  ModalDriver::WhenModalSequence({[](QWidget* dlg) {
    TypeInto(dlg, "EditA", "-inf");
    TypeInto(dlg, "EditW", "INF");
    Click(dlg, "OkButton");
    EXPECT_TRUE(dlg->isVisible());
    TypeInto(dlg, "EditW", "2");
    Click(dlg, "OkButton");
  }});
  EXPECT_TRUE(lx::DoBoxDlg(&record));
  EXPECT_EQ(Errors(4015), QStringList{"'INF' is not a valid number"});
  EXPECT_TRUE(std::isinf(record.Angle) && record.Angle < 0);
  EXPECT_DOUBLE_EQ(record.Width, 2000.0);
}

}  // namespace
