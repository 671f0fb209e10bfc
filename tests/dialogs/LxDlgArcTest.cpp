#include <gtest/gtest.h>

#include <QRadioButton>
#include <QToolButton>

#include "dialogs/DialogFixture.h"
#include "lxcomp/LxDlgArc.h"

namespace {

using lxtest::Click;
using lxtest::Field;
using lxtest::Fields;
using lxtest::Find;
using lxtest::IsShown;
using lxtest::TypeInto;

// Lengths in nanometres.
lx::ArcSettings Record(double cx, double cy, double bx, double by, double ex, double ey,
                       bool constant = false) {
  return {cx, cy, bx, by, ex, ey, false, constant, 16, 2, nullptr};
}
bool Checked(QWidget* dlg, const char* name) {
  return Find<QAbstractButton>(dlg, name)->isChecked();
}

class ArcDlg : public lxtest::DialogTest {
 protected:
  bool Run(lx::ArcSettings& record, const std::function<void(lx::TDlgArc*)>& act) {
    return Drive<lx::TDlgArc>([&] { return lx::DoArcDlg(&record); }, act);
  }
};

// Runs first: the remembered mode starts as nodes mode.
TEST_F(ArcDlg, OpensInTheModeLastLeftWithRadiiAndAnglesComputed) {
  lx::ArcSettings record = Record(0, 0, 1000, 0, 0, 2000);
  Run(record, [](lx::TDlgArc* dlg) {
    EXPECT_EQ(dlg->windowTitle(), "Arc properties...");
    EXPECT_EQ(dlg->GetHelpContext(), 4045);
    EXPECT_TRUE(Checked(dlg, "BtnNodes") && Checked(dlg, "RB_CCW") && Checked(dlg, "RB_VR"));
    EXPECT_TRUE(IsShown(dlg, "EditXB") && IsShown(dlg, "LabelEnd"));
    EXPECT_FALSE(IsShown(dlg, "EditRB") || IsShown(dlg, "LabelAE"));
    EXPECT_EQ(Fields(dlg, {"EditXB", "EditYE", "EditNum"}), "1;2;16");
    Click(dlg, "BtnAngles");
    EXPECT_FALSE(IsShown(dlg, "EditXB") || IsShown(dlg, "LabelBegin"));
    EXPECT_TRUE(IsShown(dlg, "EditRE") && IsShown(dlg, "EditX"));
    EXPECT_EQ(Fields(dlg, {"EditRB", "EditAB", "EditRE", "EditAE"}), "1;0;2;90");
    EXPECT_TRUE(Find<QLineEdit>(dlg, "EditRE")->isEnabled());
    Click(dlg, "RB_CR");
    EXPECT_EQ(Field(dlg, "EditRE"), "1");
    EXPECT_FALSE(Find<QLineEdit>(dlg, "EditRE")->isEnabled());
    Click(dlg, "RB_VR");
    EXPECT_EQ(Field(dlg, "EditRE"), "2");
  });
  record.ConstantRadius = true;
  Run(record, [](lx::TDlgArc* dlg) {
    EXPECT_TRUE(Checked(dlg, "BtnAngles"));
    EXPECT_EQ(Field(dlg, "EditRE"), "1");
    EXPECT_FALSE(Find<QLineEdit>(dlg, "EditRE")->isEnabled());
    Click(dlg, "BtnNodes");
  });
  Run(record, [](lx::TDlgArc* dlg) { EXPECT_TRUE(Checked(dlg, "BtnNodes")); });
}

TEST_F(ArcDlg, OkInRadiiModePlacesTheNodesOnTheRadii) {
  for (const char* endRadius : {"", "3"}) {  // none: a constant radius
    lx::ArcSettings record = Record(0, 0, 5000, 5000, 0, 7000);
    EXPECT_TRUE(Run(record, [&](lx::TDlgArc* dlg) {
      Click(dlg, "BtnAngles");
      Click(dlg, *endRadius ? "RB_VR" : "RB_CR");
      TypeInto(dlg, {{"EditRB", "1"}, {"EditAB", "0"}, {"EditAE", "180"}});
      if (*endRadius) TypeInto(dlg, "EditRE", endRadius);
      Click(dlg, "RB_CW");
      Click(dlg, "OkButton");
      Click(dlg, "BtnNodes");
    }));
    EXPECT_DOUBLE_EQ(record.BeginX, 1000);
    EXPECT_DOUBLE_EQ(record.BeginY, 0);
    EXPECT_DOUBLE_EQ(record.EndX, *endRadius ? -3000 : -1000);
    EXPECT_NEAR(record.EndY, 0, 1e-3);
    EXPECT_TRUE(record.Clockwise);
    EXPECT_EQ(record.ConstantRadius, !*endRadius);
  }
}

TEST_F(ArcDlg, SegmentsAreAtLeastOne) {
  const std::pair<const char*, int> cases[] = {{"0", 1}, {"-5", 1}, {"2.5", 3}, {"64", 64}};
  for (const auto& [typed, segments] : cases) {
    lx::ArcSettings record = Record(1000, 2000, 3000, 2000, 1000, 4000);
    EXPECT_TRUE(Run(record, [&](lx::TDlgArc* dlg) {
      TypeInto(dlg, {{"EditNum", typed}, {"EditX", "1+1"}});
      lxtest::Leave(dlg, "EditX");
      EXPECT_EQ(Field(dlg, "EditX"), "2");
      Click(dlg, "OkButton");
    }));
    EXPECT_EQ(record.Segments, segments) << typed;
    EXPECT_DOUBLE_EQ(record.CentreX, 2000);
    EXPECT_DOUBLE_EQ(record.EndY, 4000);  // nodes mode: the nodes as typed, not moved
  }
}

TEST_F(ArcDlg, UnreadableFieldsKeepTheDialogOpenAndTheRecord) {
  const char* cases[][3] = {{"BtnNodes", "EditYE", "north"},
                            {"BtnNodes", "EditNum", "many"},
                            {"BtnAngles", "EditRE", ""},
                            {"BtnAngles", "EditAE", "inf"}};
  for (const auto& [mode, field, typed] : cases) {
    messages_.clear();
    lx::ArcSettings record = Record(0, 0, 1000, 0, 0, 2000);
    EXPECT_FALSE(Run(record, [&](lx::TDlgArc* dlg) {
      Click(dlg, mode);
      Click(dlg, "RB_VR");
      TypeInto(dlg, field, typed);
      Click(dlg, "OkButton");
      EXPECT_TRUE(dlg->isVisible());
      Click(dlg, "BtnNodes");
      Click(dlg, "CancelButton");
    }));
    EXPECT_EQ(Errors(4045), QStringList{QString("'%1' is not a valid number").arg(typed)});
    EXPECT_DOUBLE_EQ(record.EndY, 2000);
    EXPECT_EQ(record.Segments, 16);
  }
}

}  // namespace
