#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include <functional>
#include <vector>

#include "dialogs/DialogFixture.h"
#include "lxcomp/LxDlgRectangle.h"
#include "lxcomp/LxLayer.h"
#include "lxcomp/LxOrigin.h"
#include "support/ModalDriver.h"

namespace {

using lxtest::Click;
using lxtest::Find;
using lxtest::ModalDriver;
using lxtest::TypeInto;

// Lengths in micrometres, as typed; the record holds nanometres.
lx::RectangleSettings Record(int kind, double x1, double y1, double x2, double y2, double angle = 0,
                             int layer = 4) {
  return {kind, x1 * 1000, y1 * 1000, x2 * 1000, y2 * 1000, angle, layer, nullptr};
}

QString Field(QWidget* dlg, const char* name) {
  return Find<QLineEdit>(dlg, name)->text();
}

// The four shown values of the first two rows and the two size fields.
std::vector<QString> Shown(QWidget* dlg) {
  return {Field(dlg, "EditXmin"), Field(dlg, "EditYmin"), Field(dlg, "EditXmax"),
          Field(dlg, "EditYmax"), Field(dlg, "EditW"),    Field(dlg, "EditH")};
}

// Moves the origin selector with its keys, as a user does: Home is the centre.
void ChooseOrigin(QWidget* dlg, std::initializer_list<Qt::Key> keys) {
  auto* origin = Find<lx::TLxOrigin>(dlg, "RefSelect");
  QTest::keyClick(origin, Qt::Key_Home);
  for (Qt::Key key : keys)
    QTest::keyClick(origin, key);
}

class RectangleDlg : public lxtest::DialogTest {
 protected:
  bool Run(lx::RectangleSettings& record, const std::function<void(lx::TDlgRectangle*)>& act) {
    ModalDriver::WhenModal([&](QWidget* w) {
      auto* dlg = qobject_cast<lx::TDlgRectangle*>(w);
      if (!dlg) return ADD_FAILURE() << "not the rectangle dialog", void();
      act(dlg);
      if (dlg->isVisible()) dlg->reject();
    });
    const bool result = lx::DoRectangleDlg(&record);
    EXPECT_FALSE(ModalDriver::TakeFailure());
    return result;
  }
};

// Runs first: the remembered mode and origin start as corners and centre.
TEST_F(RectangleDlg, AFirstOpeningShowsTheCornersThenTheReferencePoint) {
  lx::RectangleSettings record = Record(0, 10, 20, 0, 0);
  const lx::RectangleSettings before = record;
  const bool ok = Run(record, [](lx::TDlgRectangle* dlg) {
    EXPECT_EQ(dlg->windowTitle(), "Rectangle properties...");
    EXPECT_EQ(dlg->GetHelpContext(), 4010);
    EXPECT_TRUE(Find<QToolButton>(dlg, "ButtonCorners")->isChecked());
    EXPECT_EQ(Shown(dlg), (std::vector<QString>{"0", "0", "10", "20", "10", "20"}));
    EXPECT_EQ(Find<QLabel>(dlg, "Label1")->text(), "(x1,y1):");
    EXPECT_EQ(Find<QLabel>(dlg, "Label7")->text(), "Height:");
    EXPECT_FALSE(Find<QLineEdit>(dlg, "EditAngle")->isVisible());
    EXPECT_FALSE(Find<QWidget>(dlg, "RefSelect")->isVisible());
    EXPECT_FALSE(Find<QLineEdit>(dlg, "EditW")->isEnabled());
    Click(dlg, "ButtonWH");
    EXPECT_EQ(Find<lx::TLxOrigin>(dlg, "RefSelect")->GetSelectedButton(), 5);
    EXPECT_EQ(Field(dlg, "EditXmin"), "5");
    EXPECT_EQ(Field(dlg, "EditYmin"), "10");
    const char* captions[] = {"(x,y):", "Width:", "Height:", "Angle:"};
    const char* labels[] = {"Label1", "Label2", "Label6", "Label7"};
    for (int i = 0; i < 4; ++i)
      EXPECT_EQ(Find<QLabel>(dlg, labels[i])->text(), captions[i]);
    EXPECT_FALSE(Find<QLineEdit>(dlg, "EditXmax")->isVisible());
    EXPECT_TRUE(Find<QLineEdit>(dlg, "EditAngle")->isVisible());
    EXPECT_FALSE(Find<QLineEdit>(dlg, "EditAngle")->isEnabled());
    EXPECT_TRUE(Find<QLineEdit>(dlg, "EditW")->isEnabled());
    ChooseOrigin(dlg, {Qt::Key_Up, Qt::Key_Left});
    EXPECT_EQ(Field(dlg, "EditXmin"), "0");
    EXPECT_EQ(Field(dlg, "EditYmin"), "20");
    Click(dlg, "CancelButton");
  });
  EXPECT_FALSE(ok);
  EXPECT_EQ(record.X1, before.X1);
  EXPECT_EQ(record.Y2, before.Y2);
}

TEST_F(RectangleDlg, TheModeAndOriginOfTheLastOpeningComeBack) {
  lx::RectangleSettings record = Record(0, 0, 0, 10, 20);
  EXPECT_TRUE(Run(record, [](lx::TDlgRectangle* dlg) {
    EXPECT_TRUE(Find<QToolButton>(dlg, "ButtonWH")->isChecked());
    EXPECT_EQ(Find<lx::TLxOrigin>(dlg, "RefSelect")->GetSelectedButton(), 1);
    EXPECT_EQ(Field(dlg, "EditXmin"), "0");
    EXPECT_EQ(Field(dlg, "EditYmin"), "20");
    // The reference point stays; the size grows away from it.
    TypeInto(dlg, "EditW", "30");
    TypeInto(dlg, "EditH", "5");
    Click(dlg, "OkButton");
  }));
  EXPECT_EQ(record.Kind, 0);
  EXPECT_DOUBLE_EQ(record.X1, 0);
  EXPECT_DOUBLE_EQ(record.Y1, 15000);
  EXPECT_DOUBLE_EQ(record.X2, 30000);
  EXPECT_DOUBLE_EQ(record.Y2, 20000);
  EXPECT_DOUBLE_EQ(record.Angle, 0);
}

TEST_F(RectangleDlg, WidthHeightOkForEveryOrigin) {
  // Reference point (100, 200), width 10, height 4: the corners for origins 1 to 9.
  struct Case {
    std::initializer_list<Qt::Key> keys;
    double x1, y1, x2, y2;
  };
  const Case cases[] = {
      {{Qt::Key_Up, Qt::Key_Left}, 100, 196, 110, 200},
      {{Qt::Key_Up}, 95, 196, 105, 200},
      {{Qt::Key_Up, Qt::Key_Right}, 90, 196, 100, 200},
      {{Qt::Key_Left}, 100, 198, 110, 202},
      {{}, 95, 198, 105, 202},
      {{Qt::Key_Right}, 90, 198, 100, 202},
      {{Qt::Key_Down, Qt::Key_Left}, 100, 200, 110, 204},
      {{Qt::Key_Down}, 95, 200, 105, 204},
      {{Qt::Key_Down, Qt::Key_Right}, 90, 200, 100, 204},
  };
  for (const Case& c : cases) {
    lx::RectangleSettings record = Record(0, 0, 0, 10, 4);
    EXPECT_TRUE(Run(record, [&](lx::TDlgRectangle* dlg) {
      Click(dlg, "ButtonWH");
      ChooseOrigin(dlg, c.keys);
      TypeInto(dlg, "EditXmin", "100");
      TypeInto(dlg, "EditYmin", "200");
      Click(dlg, "OkButton");
    }));
    const double got[] = {record.X1, record.Y1, record.X2, record.Y2};
    const double want[] = {c.x1, c.y1, c.x2, c.y2};
    for (int i = 0; i < 4; ++i)
      EXPECT_DOUBLE_EQ(got[i], want[i] * 1000) << c.x1 << "," << c.y1;
  }
}

TEST_F(RectangleDlg, BoxModeTurnsTheReferencePointAndCrossesWidthAndHeight) {
  lx::RectangleSettings record = Record(1, 0, 0, 10, 20, 90);
  EXPECT_TRUE(Run(record, [](lx::TDlgRectangle* dlg) {
    EXPECT_TRUE(Find<QToolButton>(dlg, "ButtonBox")->isChecked());
    EXPECT_EQ(Field(dlg, "EditAngle"), "90");
    EXPECT_TRUE(Find<QLineEdit>(dlg, "EditAngle")->isEnabled());
    ChooseOrigin(dlg, {Qt::Key_Down, Qt::Key_Left});
    EXPECT_EQ(Field(dlg, "EditXmin"), "10");
    EXPECT_EQ(Field(dlg, "EditYmin"), "-5");
    Click(dlg, "OkButton");
  }));
  EXPECT_EQ(record.Kind, 1);
  EXPECT_NEAR(record.X1, 0, 1e-6);
  EXPECT_NEAR(record.Y1, 0, 1e-6);
  EXPECT_DOUBLE_EQ(record.X2, 20000);  // the height
  EXPECT_DOUBLE_EQ(record.Y2, 10000);  // the width
  EXPECT_DOUBLE_EQ(record.Angle, 90);
}

TEST_F(RectangleDlg, TheAngleIsKeptBetweenMinus180And180) {
  struct Case {
    const char* typed;
    double angle;
  };
  const Case cases[] = {{"370", 10}, {"-190", 170}, {"180", 180}, {"-180", -180},
                        {"720", 0},  {"541", -179}, {"45", 45},   {"x", 45}};
  lx::RectangleSettings record = Record(1, 0, 0, 10, 20, 0);
  Run(record, [&](lx::TDlgRectangle* dlg) {
    for (const Case& c : cases) {
      TypeInto(dlg, "EditAngle", c.typed);
      EXPECT_DOUBLE_EQ(dlg->GetAngle(), c.angle) << c.typed;
      EXPECT_EQ(Field(dlg, "EditAngle"), c.typed);
    }
    Click(dlg, "CancelButton");
  });
}

TEST_F(RectangleDlg, CornerEditsKeepTheSizeAndSwitchingModesKeepsTheCentre) {
  lx::RectangleSettings record = Record(0, 0, 0, 10, 20);
  EXPECT_TRUE(Run(record, [](lx::TDlgRectangle* dlg) {
    Click(dlg, "ButtonCorners");
    TypeInto(dlg, "EditXmax", "-30");
    TypeInto(dlg, "EditYmin", "2*4");
    lxtest::Leave(dlg, "EditYmin");
    EXPECT_EQ(Field(dlg, "EditW"), "30");
    EXPECT_EQ(Field(dlg, "EditH"), "12");
    EXPECT_DOUBLE_EQ(dlg->GetCentreX(), -15000);
    EXPECT_DOUBLE_EQ(dlg->GetCentreY(), 14000);
    for (const char* mode : {"ButtonWH", "ButtonCorners", "ButtonBox", "ButtonWH"}) {
      Click(dlg, mode);
      EXPECT_DOUBLE_EQ(dlg->GetCentreX(), -15000) << mode;
      EXPECT_DOUBLE_EQ(dlg->GetCentreY(), 14000) << mode;
    }
    Click(dlg, "ButtonCorners");
    EXPECT_EQ(Shown(dlg), (std::vector<QString>{"-30", "8", "0", "20", "30", "12"}));
    Click(dlg, "OkButton");
  }));
  // The corners go out as typed, not sorted.
  EXPECT_EQ(record.Kind, 0);
  EXPECT_DOUBLE_EQ(record.X1, -30000);
  EXPECT_DOUBLE_EQ(record.X2, 0);
}

TEST_F(RectangleDlg, UnreadableFieldsKeepTheDialogOpenAndTheRecord) {
  struct Case {
    const char* mode;
    const char* field;
    const char* typed;
    const char* message;
  };
  const Case cases[] = {
      {"ButtonCorners", "EditYmax", "abc", "'abc' is not a valid number"},
      {"ButtonWH", "EditH", "12.5mm", "'12.5mm' is not a valid number"},
      {"ButtonBox", "EditAngle", "1/", "'1/' is not a valid number"},
      {"ButtonBox", "EditAngle", "inf", "'inf' is not a valid number"},
  };
  for (const Case& c : cases) {
    messages_.clear();
    lx::RectangleSettings record = Record(0, 1, 2, 3, 4);
    const bool ok = Run(record, [&](lx::TDlgRectangle* dlg) {
      Click(dlg, c.mode);
      TypeInto(dlg, c.field, c.typed);
      Click(dlg, "OkButton");
      EXPECT_TRUE(dlg->isVisible());
      Click(dlg, "CancelButton");
    });
    EXPECT_FALSE(ok);
    EXPECT_EQ(Errors(4010), QStringList{c.message}) << c.typed;
    EXPECT_DOUBLE_EQ(record.X2, 3000);
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

}  // namespace
