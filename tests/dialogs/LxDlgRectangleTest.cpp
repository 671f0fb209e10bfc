#include <gtest/gtest.h>

#include <QComboBox>

#include <cmath>
#include <vector>

#include "dialogs/DialogFixture.h"
#include "lxcomp/LxDlgRectangle.h"
#include "lxcomp/LxLayer.h"
#include "lxcomp/LxOrigin.h"

namespace {

using lxtest::Click;
using lxtest::Field;
using lxtest::Fields;
using lxtest::Find;
using lxtest::TypeInto;
using Corners = std::vector<double>;

// Lengths in micrometres, as typed; the record holds nanometres.
lx::RectangleSettings Record(int kind, double x1, double y1, double x2, double y2, double angle = 0,
                             int layer = 4) {
  return {kind, x1 * 1000, y1 * 1000, x2 * 1000, y2 * 1000, angle, layer, nullptr};
}
// The record's corners in micrometres, to the nanometre (-0 reads as 0).
Corners CornersOf(const lx::RectangleSettings& r) {
  const auto um = [](double nm) { return std::round(nm) / 1000 + 0.0; };
  return {um(r.X1), um(r.Y1), um(r.X2), um(r.Y2)};
}

// The first two rows and the two size fields.
QString ShownFields(QWidget* dlg) {
  return lxtest::Fields(dlg, {"EditXmin", "EditYmin", "EditXmax", "EditYmax", "EditW", "EditH"});
}
QString Captions(QWidget* dlg) {
  return lxtest::Captions(dlg, {"Label1", "Label2", "Label6", "Label7"});
}

// Moves the origin selector with its keys, as a user does: Home is the centre.
void ChooseOrigin(QWidget* dlg, const std::vector<Qt::Key>& keys) {
  auto* origin = Find<lx::TLxOrigin>(dlg, "RefSelect");
  QTest::keyClick(origin, Qt::Key_Home);
  for (Qt::Key key : keys)
    QTest::keyClick(origin, key);
}

class RectangleDlg : public lxtest::DialogTest {
 protected:
  bool Run(lx::RectangleSettings& record, const std::function<void(lx::TDlgRectangle*)>& act) {
    return Drive<lx::TDlgRectangle>([&] { return lx::DoRectangleDlg(&record); }, act);
  }
};

// Runs first: the remembered mode and origin start as corners and centre.
TEST_F(RectangleDlg, AFirstOpeningShowsTheCornersTheNextTheLastModeAndOrigin) {
  lx::RectangleSettings record = Record(0, 10, 20, 0, 0);
  EXPECT_FALSE(Run(record, [](lx::TDlgRectangle* dlg) {
    EXPECT_EQ(dlg->windowTitle(), "Rectangle properties...");
    EXPECT_EQ(dlg->GetHelpContext(), 4010);
    EXPECT_TRUE(lxtest::Checked(dlg, "ButtonCorners"));
    EXPECT_EQ(ShownFields(dlg), "0;0;10;20;10;20");
    EXPECT_TRUE(Captions(dlg).startsWith("(x1,y1):") && Captions(dlg).endsWith(" Height:"));
    EXPECT_FALSE(lxtest::IsShown(dlg, "EditAngle") || lxtest::IsShown(dlg, "RefSelect"));
    EXPECT_FALSE(Find<QLineEdit>(dlg, "EditW")->isEnabled());
    Click(dlg, "ButtonWH");
    EXPECT_EQ(Find<lx::TLxOrigin>(dlg, "RefSelect")->GetSelectedButton(), 5);
    EXPECT_EQ(Fields(dlg, {"EditXmin", "EditYmin"}), "5;10");
    EXPECT_EQ(Captions(dlg), "(x,y): Width: Height: Angle:");
    EXPECT_FALSE(lxtest::IsShown(dlg, "EditXmax"));
    EXPECT_TRUE(lxtest::IsShown(dlg, "EditAngle"));
    EXPECT_FALSE(Find<QLineEdit>(dlg, "EditAngle")->isEnabled());
    EXPECT_TRUE(Find<QLineEdit>(dlg, "EditW")->isEnabled());
    ChooseOrigin(dlg, {Qt::Key_Up, Qt::Key_Left});
    EXPECT_EQ(Fields(dlg, {"EditXmin", "EditYmin"}), "0;20");
    Click(dlg, "CancelButton");
  }));
  EXPECT_EQ(CornersOf(record), (Corners{10, 20, 0, 0}));
  // The mode and origin of the last opening come back.
  record = Record(0, 0, 0, 10, 20);
  EXPECT_TRUE(Run(record, [](lx::TDlgRectangle* dlg) {
    EXPECT_TRUE(lxtest::Checked(dlg, "ButtonWH"));
    EXPECT_EQ(Find<lx::TLxOrigin>(dlg, "RefSelect")->GetSelectedButton(), 1);
    EXPECT_EQ(Fields(dlg, {"EditXmin", "EditYmin"}), "0;20");
    TypeInto(dlg, "EditW", "30");  // the reference point stays; the size grows away from it
    TypeInto(dlg, "EditH", "5");
    Click(dlg, "OkButton");
  }));
  EXPECT_EQ(record.Kind, 0);
  EXPECT_EQ(CornersOf(record), (Corners{0, 15, 30, 20}));
  EXPECT_DOUBLE_EQ(record.Angle, 0);
}

TEST_F(RectangleDlg, WidthHeightOkForEveryOrigin) {
  // Reference point (100, 200), width 10, height 4: the corners for origins 1 to 9.
  const std::pair<std::vector<Qt::Key>, Corners> cases[] = {
      {{Qt::Key_Up, Qt::Key_Left}, {100, 196, 110, 200}},
      {{Qt::Key_Up}, {95, 196, 105, 200}},
      {{Qt::Key_Up, Qt::Key_Right}, {90, 196, 100, 200}},
      {{Qt::Key_Left}, {100, 198, 110, 202}},
      {{}, {95, 198, 105, 202}},
      {{Qt::Key_Right}, {90, 198, 100, 202}},
      {{Qt::Key_Down, Qt::Key_Left}, {100, 200, 110, 204}},
      {{Qt::Key_Down}, {95, 200, 105, 204}},
      {{Qt::Key_Down, Qt::Key_Right}, {90, 200, 100, 204}},
  };
  for (const auto& [keys, corners] : cases) {
    lx::RectangleSettings record = Record(0, 0, 0, 10, 4);
    EXPECT_TRUE(Run(record, [&](lx::TDlgRectangle* dlg) {
      Click(dlg, "ButtonWH");
      ChooseOrigin(dlg, keys);
      TypeInto(dlg, {{"EditXmin", "100"}, {"EditYmin", "200"}});
      Click(dlg, "OkButton");
    }));
    EXPECT_EQ(CornersOf(record), corners);
  }
}

TEST_F(RectangleDlg, BoxModeTurnsTheReferencePointAndCrossesWidthAndHeight) {
  lx::RectangleSettings record = Record(1, 0, 0, 10, 20, 90);
  EXPECT_TRUE(Run(record, [](lx::TDlgRectangle* dlg) {
    EXPECT_TRUE(lxtest::Checked(dlg, "ButtonBox"));
    EXPECT_EQ(Field(dlg, "EditAngle"), "90");
    EXPECT_TRUE(Find<QLineEdit>(dlg, "EditAngle")->isEnabled());
    ChooseOrigin(dlg, {Qt::Key_Down, Qt::Key_Left});
    EXPECT_EQ(Fields(dlg, {"EditXmin", "EditYmin"}), "10;-5");
    Click(dlg, "OkButton");
  }));
  EXPECT_EQ(record.Kind, 1);
  EXPECT_EQ(CornersOf(record), (Corners{0, 0, 20, 10}));  // height, then width
  EXPECT_DOUBLE_EQ(record.Angle, 90);
}

TEST_F(RectangleDlg, TheAngleIsKeptBetweenMinus180And180) {
  const std::pair<const char*, double> cases[] = {{"370", 10},    {"-190", 170}, {"180", 180},
                                                  {"-180", -180}, {"720", 0},    {"541", -179},
                                                  {"45", 45},     {"x", 45}};
  lx::RectangleSettings record = Record(1, 0, 0, 10, 20, 0);
  Run(record, [&](lx::TDlgRectangle* dlg) {
    for (const auto& [typed, angle] : cases) {
      TypeInto(dlg, "EditAngle", typed);
      EXPECT_DOUBLE_EQ(dlg->GetAngle(), angle) << typed;
      EXPECT_EQ(Field(dlg, "EditAngle"), typed);
    }
  });
}

TEST_F(RectangleDlg, CornerEditsKeepTheSizeAndSwitchingModesKeepsTheCentre) {
  lx::RectangleSettings record = Record(0, 0, 0, 10, 20);
  EXPECT_TRUE(Run(record, [](lx::TDlgRectangle* dlg) {
    Click(dlg, "ButtonCorners");
    TypeInto(dlg, {{"EditXmax", "-30"}, {"EditYmin", "2*4"}});
    lxtest::Leave(dlg, "EditYmin");
    EXPECT_EQ(Fields(dlg, {"EditW", "EditH"}), "30;12");
    for (const char* mode :
         {"ButtonCorners", "ButtonWH", "ButtonCorners", "ButtonBox", "ButtonWH"}) {
      Click(dlg, mode);
      EXPECT_EQ(QPointF(dlg->GetCentreX(), dlg->GetCentreY()), QPointF(-15000, 14000)) << mode;
    }
    Click(dlg, "ButtonCorners");
    EXPECT_EQ(ShownFields(dlg), "-30;8;0;20;30;12");
    Click(dlg, "OkButton");
  }));
  EXPECT_EQ(CornersOf(record), (Corners{-30, 8, 0, 20}));  // as typed, not sorted
}

TEST_F(RectangleDlg, UnreadableFieldsKeepTheDialogOpenAndTheRecord) {
  const char* cases[][3] = {
      {"ButtonCorners", "EditYmax", "abc"},
      {"ButtonWH", "EditH", "12.5mm"},
      {"ButtonBox", "EditAngle", "1/"},
      {"ButtonBox", "EditAngle", "inf"},
  };
  for (const auto& [mode, field, typed] : cases) {
    messages_.clear();
    lx::RectangleSettings record = Record(0, 1, 2, 3, 4);
    EXPECT_FALSE(Run(record, [&](lx::TDlgRectangle* dlg) {
      Click(dlg, mode);
      TypeInto(dlg, field, typed);
      Click(dlg, "OkButton");
      EXPECT_TRUE(dlg->isVisible());
    }));
    EXPECT_EQ(Errors(4010), QStringList{QString("'%1' is not a valid number").arg(typed)});
    EXPECT_EQ(CornersOf(record), (Corners{1, 2, 3, 4}));
  }
}

TEST_F(RectangleDlg, TheLayerIsWrittenOnlyWhenOneIsSelected) {
  lx::TK5Layer layers[2] = {lx::TK5Layer(7), lx::TK5Layer(9)};
  layers[0].Next = &layers[1];
  for (int pick : {1, -1}) {
    lx::RectangleSettings record = Record(0, 0, 0, 1, 1, 0, 7);
    record.Layers = layers;
    EXPECT_TRUE(Run(record, [&](lx::TDlgRectangle* dlg) {
      EXPECT_EQ(Find<QComboBox>(dlg, "LayerCombo")->currentIndex(), 0);
      Find<QComboBox>(dlg, "LayerCombo")->setCurrentIndex(pick);
      Click(dlg, "OkButton");
    }));
    EXPECT_EQ(record.Layer, pick == 1 ? 9 : 7);
  }
}

TEST_F(RectangleDlg, AReleaseOutsideTheSelectorLeavesTheCentreAsReferencePoint) {
  lx::RectangleSettings record = Record(0, 0, 0, 10, 4);
  EXPECT_TRUE(Run(record, [](lx::TDlgRectangle* dlg) {
    Click(dlg, "ButtonWH");
    ChooseOrigin(dlg, {Qt::Key_Up, Qt::Key_Left});
    auto* origin = Find<lx::TLxOrigin>(dlg, "RefSelect");
    QTest::mousePress(origin, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QTest::mouseMove(origin, QPoint(-20, 5));
    QTest::mouseRelease(origin, Qt::LeftButton, Qt::NoModifier, QPoint(-20, 5));
    EXPECT_EQ(Fields(dlg, {"EditXmin", "EditYmin"}), "5;2");
    TypeInto(dlg, {{"EditXmin", "100"}, {"EditYmin", "200"}});
    Click(dlg, "OkButton");
  }));
  EXPECT_EQ(CornersOf(record), (Corners{95, 198, 105, 202}));
}

}  // namespace
