#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QToolButton>

#include <functional>
#include <vector>

#include "dialogs/DialogFixture.h"
#include "lxcomp/LxDlgArc.h"
#include "support/ModalDriver.h"

namespace {

using lxtest::Click;
using lxtest::Find;
using lxtest::ModalDriver;
using lxtest::TypeInto;

// Lengths in nanometres.
lx::ArcSettings Record(double cx, double cy, double bx, double by, double ex, double ey,
                       bool constant = false, int segments = 16) {
  return {cx, cy, bx, by, ex, ey, false, constant, segments, 2, nullptr};
}

QString Field(QWidget* dlg, const char* name) {
  return Find<QLineEdit>(dlg, name)->text();
}
bool Visible(QWidget* dlg, const char* name) {
  return Find<QWidget>(dlg, name)->isVisible();
}

class ArcDlg : public lxtest::DialogTest {
 protected:
  bool Run(lx::ArcSettings& record, const std::function<void(lx::TDlgArc*)>& act) {
    ModalDriver::WhenModal([&](QWidget* w) {
      auto* dlg = qobject_cast<lx::TDlgArc*>(w);
      if (!dlg) return ADD_FAILURE() << "not the arc dialog", void();
      act(dlg);
      if (dlg->isVisible()) dlg->reject();
    });
    const bool result = lx::DoArcDlg(&record);
    EXPECT_FALSE(ModalDriver::TakeFailure());
    return result;
  }
};

// Runs first: the remembered mode starts as nodes mode.
TEST_F(ArcDlg, OpensInNodesModeWithRadiiAndAnglesComputed) {
  lx::ArcSettings record = Record(0, 0, 1000, 0, 0, 2000);
  Run(record, [](lx::TDlgArc* dlg) {
    EXPECT_EQ(dlg->windowTitle(), "Arc properties...");
    EXPECT_EQ(dlg->GetHelpContext(), 4045);
    EXPECT_TRUE(Find<QToolButton>(dlg, "BtnNodes")->isChecked());
    EXPECT_TRUE(Visible(dlg, "EditXB") && Visible(dlg, "LabelEnd"));
    EXPECT_FALSE(Visible(dlg, "EditRB") || Visible(dlg, "LabelAE"));
    EXPECT_EQ(Field(dlg, "EditXB"), "1");
    EXPECT_EQ(Field(dlg, "EditYE"), "2");
    EXPECT_TRUE(Find<QRadioButton>(dlg, "RB_CCW")->isChecked());
    EXPECT_TRUE(Find<QRadioButton>(dlg, "RB_VR")->isChecked());
    EXPECT_EQ(Field(dlg, "EditNum"), "16");
    Click(dlg, "BtnAngles");
    EXPECT_FALSE(Visible(dlg, "EditXB") || Visible(dlg, "LabelBegin"));
    EXPECT_TRUE(Visible(dlg, "EditRE") && Visible(dlg, "EditX"));
    EXPECT_EQ(Field(dlg, "EditRB"), "1");
    EXPECT_EQ(Field(dlg, "EditAB"), "0");
    EXPECT_EQ(Field(dlg, "EditRE"), "2");
    EXPECT_EQ(Field(dlg, "EditAE"), "90");
    EXPECT_TRUE(Find<QLineEdit>(dlg, "EditRE")->isEnabled());
    Click(dlg, "RB_CR");
    EXPECT_EQ(Field(dlg, "EditRE"), "1");
    EXPECT_FALSE(Find<QLineEdit>(dlg, "EditRE")->isEnabled());
    Click(dlg, "RB_VR");
    EXPECT_EQ(Field(dlg, "EditRE"), "2");
    Click(dlg, "CancelButton");
  });
}

TEST_F(ArcDlg, TheModeOfOneOpeningIsTheModeOfTheNext) {
  lx::ArcSettings record = Record(0, 0, 1000, 0, 0, 2000, true);
  Run(record, [](lx::TDlgArc* dlg) {
    EXPECT_TRUE(Find<QToolButton>(dlg, "BtnAngles")->isChecked());
    EXPECT_EQ(Field(dlg, "EditRE"), "1");
    EXPECT_FALSE(Find<QLineEdit>(dlg, "EditRE")->isEnabled());
    Click(dlg, "BtnNodes");
    Click(dlg, "CancelButton");
  });
  Run(record, [](lx::TDlgArc* dlg) {
    EXPECT_TRUE(Find<QToolButton>(dlg, "BtnNodes")->isChecked());
    Click(dlg, "CancelButton");
  });
}

TEST_F(ArcDlg, OkInRadiiModePlacesTheNodesOnTheRadii) {
  struct Case {
    const char* radius;  // "Constant" or "Variable"
    const char* endRadius;
    double ex, ey;
  };
  const Case cases[] = {{"RB_CR", nullptr, -1000, 0}, {"RB_VR", "3", -3000, 0}};
  for (const Case& c : cases) {
    lx::ArcSettings record = Record(0, 0, 5000, 5000, 0, 7000);
    EXPECT_TRUE(Run(record, [&](lx::TDlgArc* dlg) {
      Click(dlg, "BtnAngles");
      Click(dlg, c.radius);
      TypeInto(dlg, "EditRB", "1");
      TypeInto(dlg, "EditAB", "0");
      TypeInto(dlg, "EditAE", "180");
      if (c.endRadius) TypeInto(dlg, "EditRE", c.endRadius);
      Click(dlg, "RB_CW");
      Click(dlg, "OkButton");
      Click(dlg, "BtnNodes");
    }));
    EXPECT_DOUBLE_EQ(record.BeginX, 1000);
    EXPECT_DOUBLE_EQ(record.BeginY, 0);
    EXPECT_DOUBLE_EQ(record.EndX, c.ex);
    EXPECT_NEAR(record.EndY, c.ey, 1e-3);
    EXPECT_TRUE(record.Clockwise);
    EXPECT_EQ(record.ConstantRadius, c.endRadius == nullptr);
  }
}

TEST_F(ArcDlg, SegmentsAreAtLeastOne) {
  const std::pair<const char*, int> cases[] = {{"0", 1}, {"-5", 1}, {"2.5", 3}, {"64", 64}};
  for (const auto& [typed, segments] : cases) {
    lx::ArcSettings record = Record(1000, 2000, 3000, 2000, 1000, 4000);
    EXPECT_TRUE(Run(record, [&](lx::TDlgArc* dlg) {
      TypeInto(dlg, "EditNum", typed);
      TypeInto(dlg, "EditX", "1+1");
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
  struct Case {
    const char* mode;
    const char* field;
    const char* typed;
    const char* message;
  };
  const Case cases[] = {
      {"BtnNodes", "EditYE", "north", "'north' is not a valid number"},
      {"BtnNodes", "EditNum", "many", "'many' is not a valid number"},
      {"BtnAngles", "EditRE", "", "'' is not a valid number"},
      {"BtnAngles", "EditAE", "inf", "'inf' is not a valid number"},
  };
  for (const Case& c : cases) {
    messages_.clear();
    lx::ArcSettings record = Record(0, 0, 1000, 0, 0, 2000);
    const bool ok = Run(record, [&](lx::TDlgArc* dlg) {
      Click(dlg, c.mode);
      Click(dlg, "RB_VR");
      TypeInto(dlg, c.field, c.typed);
      Click(dlg, "OkButton");
      EXPECT_TRUE(dlg->isVisible());
      Click(dlg, "BtnNodes");
      Click(dlg, "CancelButton");
    });
    EXPECT_FALSE(ok);
    EXPECT_EQ(Errors(4045), QStringList{c.message}) << c.typed;
    EXPECT_DOUBLE_EQ(record.EndY, 2000);
    EXPECT_EQ(record.Segments, 16);
  }
}

}  // namespace
