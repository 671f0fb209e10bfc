#include <gtest/gtest.h>

#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTableView>

#include <functional>
#include <vector>

#include "dialogs/DialogFixture.h"
#include "lxcomp/LxDlgWire.h"
#include "support/ModalDriver.h"

namespace {

using lxtest::Click;
using lxtest::Find;
using lxtest::ModalDriver;

struct HostWire {
  HostWire(std::vector<double> micrometres, double width, int endStyle) {
    settings.NodeCount = static_cast<int>(micrometres.size() / 2);
    settings.Nodes = new double[micrometres.size() + 2];
    for (size_t i = 0; i < micrometres.size(); ++i)
      settings.Nodes[i] = micrometres[i] * 1000.0;
    settings.Width = width * 1000.0;
    settings.EndStyle = endStyle;
    settings.MakeDefault = false;
    settings.Layer = 3;
    settings.Layers = nullptr;
  }
  ~HostWire() { delete[] settings.Nodes; }
  lx::WireSettings settings{};
};

class WireDlg : public lxtest::DialogTest {
 protected:
  void TearDown() override {
    QGuiApplication::clipboard()->clear();
    DialogTest::TearDown();
  }
  bool Run(HostWire& host, const std::function<void(lx::TDlgWire*)>& act) {
    ModalDriver::WhenModal([&](QWidget* w) {
      auto* dlg = qobject_cast<lx::TDlgWire*>(w);
      if (!dlg) return ADD_FAILURE() << "not the wire dialog", void();
      act(dlg);
      if (dlg->isVisible()) dlg->reject();
    });
    const bool result = lx::DoWireDlg(&host.settings);
    EXPECT_FALSE(ModalDriver::TakeFailure());
    return result;
  }
};

const std::vector<double> kPath = {0, 0, 3, 4, 3, 4, 3, 8};

TEST_F(WireDlg, ShowsWidthEndStyleAndTotalLength) {
  const char* radios[] = {"RadioRound", "RadioFlat", "RadioExtended"};
  for (int style : {0, 1, 2, 7}) {
    HostWire host(kPath, 2.5, style);
    Run(host, [&](lx::TDlgWire* dlg) {
      EXPECT_EQ(dlg->windowTitle(), "Wire settings...");
      EXPECT_EQ(dlg->GetHelpContext(), 4035);
      EXPECT_EQ(Find<QLineEdit>(dlg, "EditW")->text(), "2.5");
      EXPECT_EQ(Find<QLabel>(dlg, "LabelTotalLength")->text(), "9 um");
      for (int r = 0; r < 3; ++r)
        EXPECT_EQ(Find<QRadioButton>(dlg, radios[r])->isChecked(), r == style) << style;
      EXPECT_FALSE(Find<QCheckBox>(dlg, "CheckBoxMakeDefault")->isChecked());
      Click(dlg, "CancelButton");
    });
  }
}

TEST_F(WireDlg, OkWritesWidthEndStyleAndMakeDefault) {
  struct Case {
    int style;
    const char* click;  // radio pressed, or none
    const char* width;
    int styleAfter;
    double widthAfter;
  };
  const Case cases[] = {
      {0, "RadioFlat", "3", 1, 3000},
      {1, "RadioExtended", "-4", 2, 4000},
      {2, "RadioRound", "2*0.75", 0, 1500},
      {7, nullptr, "1,5", 7, 1500},
  };
  for (const Case& c : cases) {
    HostWire host(kPath, 2.5, c.style);
    EXPECT_TRUE(Run(host, [&](lx::TDlgWire* dlg) {
      if (c.click) Click(dlg, c.click);
      lxtest::TypeInto(dlg, "EditW", c.width);
      lxtest::Leave(dlg, "EditW");
      Click(dlg, "CheckBoxMakeDefault");
      Click(dlg, "OkButton");
    }));
    EXPECT_EQ(host.settings.EndStyle, c.styleAfter) << c.width;
    EXPECT_DOUBLE_EQ(host.settings.Width, c.widthAfter) << c.width;
    EXPECT_TRUE(host.settings.MakeDefault);
    EXPECT_EQ(host.settings.NodeCount, 4);
  }
}

TEST_F(WireDlg, AnUnreadableWidthKeepsTheDialogOpen) {
  HostWire host(kPath, 2.5, 1);
  const bool ok = Run(host, [this](lx::TDlgWire* dlg) {
    lxtest::TypeInto(dlg, "EditW", "wide");
    Click(dlg, "OkButton");
    EXPECT_TRUE(dlg->isVisible());
    EXPECT_EQ(Errors(4035), QStringList{"'wide' is not a valid number"});
    Click(dlg, "CancelButton");
  });
  EXPECT_FALSE(ok);
  EXPECT_DOUBLE_EQ(host.settings.Width, 2500);
}

TEST_F(WireDlg, TheLengthFollowsEveryChangeOfTheNodes) {
  HostWire host(kPath, 1, 0);
  Run(host, [](lx::TDlgWire* dlg) {
    auto length = [dlg] { return Find<QLabel>(dlg, "LabelTotalLength")->text(); };
    QTableView* grid = Find<QTableView>(dlg, "AdvGrid");
    QGuiApplication::clipboard()->setText("3 10");
    grid->setCurrentIndex(grid->model()->index(3, 1));
    Click(dlg, "ButtonPaste");
    EXPECT_EQ(length(), "13 um");  // 0,0 3,4 3,4 3,10 3,8
    grid->setCurrentIndex(grid->model()->index(1, 1));
    Click(dlg, "ButtonDelete");
    EXPECT_EQ(length(), "13 um");
    grid->model()->setData(grid->model()->index(0, 1), "3");
    EXPECT_EQ(length(), "12 um");
    grid->model()->setData(grid->model()->index(0, 2), "-4.5");
    EXPECT_EQ(length(), "16.5 um");
    Click(dlg, "CancelButton");
  });
}

}  // namespace
