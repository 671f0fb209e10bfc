#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>

#include "dialogs/DialogFixture.h"
#include "lxcomp/LxDlgRing.h"

namespace {

using lxtest::Click;
using lxtest::Find;
using lxtest::ModalDriver;
using lxtest::TypeInto;

class RingDialog : public lxtest::DialogTest {
 protected:
  lx::TK5Layer layer_{4, 4, 0, "Via"};
};

TEST_F(RingDialog, SegmentsAreRoundedAndNoRangeIsChecked) {
  lx::RingSettings record{0, 0, 9000, 3000, 32, 4, &layer_};
  ModalDriver::WhenModal([](QWidget* dlg) {
    EXPECT_EQ(dlg->windowTitle(), "Ring properties...");
    EXPECT_EQ(Find<QLineEdit>(dlg, "EditW")->text(), "3");
    EXPECT_EQ(Find<QLineEdit>(dlg, "EditNum")->text(), "32");
    TypeInto(dlg, "EditR", "-1");
    TypeInto(dlg, "EditW", "20");
    TypeInto(dlg, "EditNum", "7.6");
    Click(dlg, "OkButton");
  });
  EXPECT_TRUE(lx::DoRingDlg(&record));
  EXPECT_DOUBLE_EQ(record.Radius, -1000.0);
  EXPECT_DOUBLE_EQ(record.Width, 20000.0);
  EXPECT_EQ(record.Segments, 8);
  EXPECT_EQ(record.Layer, 4);
}

TEST_F(RingDialog, BadWidthStopsBeforeAnythingIsStored) {
  lx::RingSettings record{1000, 2000, 9000, 3000, 32, 4, &layer_};
  ModalDriver::WhenModal([](QWidget* dlg) {
    TypeInto(dlg, "EditX", "5");
    TypeInto(dlg, "EditW", "abc");
    TypeInto(dlg, "EditNum", "also bad");
    Click(dlg, "OkButton");
    EXPECT_TRUE(dlg->isVisible());
    QTest::keyClick(dlg, Qt::Key_Escape);
  });
  EXPECT_FALSE(lx::DoRingDlg(&record));
  EXPECT_EQ(Errors(4055), QStringList{"'abc' is not a valid number"});
  EXPECT_DOUBLE_EQ(record.X, 1000.0);
  EXPECT_DOUBLE_EQ(record.Radius, 9000.0);
  EXPECT_EQ(record.Segments, 32);
}

}  // namespace
