#include "lxcomp/LxDlgColorSelect.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QFrame>
#include <QPushButton>
#include <QSlider>
#include <QTest>

#include "support/ModalDriver.h"

namespace {

using lx::TColor;
using lxtest::Find;
using lxtest::ModalDriver;

class ColorSelectTest : public ::testing::Test {
 protected:
  void SetUp() override {
    main_.show();
    lx::SetMainForm(&main_);
  }
  void TearDown() override {
    lx::SetMainForm(nullptr);
    EXPECT_FALSE(ModalDriver::TakeFailure());
  }
  // Opens the dialog on `initial`, lets `act` work on it, then presses OK.
  TColor ChooseWith(TColor initial, std::function<void(QWidget*)> act) {
    ModalDriver::WhenModal([act](QWidget* dlg) {
      act(dlg);
      lxtest::Click(dlg, "OkButton");
    });
    return lx::DoSelectColorDlg(initial, nullptr, 1700);
  }
  static QString Text(QWidget* dlg, const char* name) { return Find<QLineEdit>(dlg, name)->text(); }
  static void ToggleGreyscale(QWidget* dlg) {
    auto* box = Find<QCheckBox>(dlg, "CB_Greyscale");
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Space);
  }
  static int Slider(QWidget* dlg, const char* name) { return Find<QSlider>(dlg, name)->value(); }
  QWidget main_;
};

TEST_F(ColorSelectTest, ShowsTheComponentsOfTheInitialColour) {
  QStringList fields, title;
  QList<int> sliders;
  bool helpShown = false;
  const TColor chosen = ChooseWith(0x336699, [&](QWidget* dlg) {
    title << dlg->windowTitle();
    fields << Text(dlg, "EditR") << Text(dlg, "EditG") << Text(dlg, "EditB");
    sliders << Slider(dlg, "TrackBar1") << Slider(dlg, "TrackBar2") << Slider(dlg, "TrackBar3");
    helpShown = Find<QPushButton>(dlg, "HelpButton")->isVisible();
    EXPECT_EQ(Find<QFrame>(dlg, "PanelExample")->palette().color(QPalette::Window),
              QColor(0x99, 0x66, 0x33));
    EXPECT_EQ(Find<QSlider>(dlg, "TrackBar1")->tickInterval(), 10);
    EXPECT_EQ(Find<QSlider>(dlg, "TrackBar1")->maximum(), 255);
  });
  EXPECT_EQ(title, QStringList{"Select color..."});
  EXPECT_EQ(fields, (QStringList{"153", "102", "51"}));
  EXPECT_EQ(sliders, (QList<int>{153, 102, 51}));
  EXPECT_TRUE(helpShown);
  EXPECT_EQ(chosen, 0x336699);
}

TEST_F(ColorSelectTest, CaptionReplacesTheTitleAndNoHelpContextHidesHelp) {
  QString title;
  bool helpShown = true;
  ModalDriver::WhenModal([&](QWidget* dlg) {
    title = dlg->windowTitle();
    helpShown = Find<QPushButton>(dlg, "HelpButton")->isVisible();
    lxtest::Click(dlg, "CancelButton");
  });
  lx::DoSelectColorDlg(0, L"Select fill color...", 0);
  EXPECT_EQ(title, "Select fill color...");
  EXPECT_FALSE(helpShown);
}

struct TypedCase {
  const char* field;
  const char* text;
  TColor result;  // from initial 0x102030
  int slider;     // the field's slider afterwards
};

TEST_F(ColorSelectTest, TypedComponentsWrapOnOkWhileSlidersClamp) {
  const TypedCase cases[] = {
      {"EditR", "300", 0x10202c, 255},  {"EditR", "256", 0x102000, 255},
      {"EditG", "-1", 0x10ff30, 0},     {"EditB", "255", 0xff2030, 255},
      {"EditR", "abc", 0x102000, 0x30}, {"EditR", "99999999999", 0x102000, 255},
      {"EditB", " 7 ", 0x072030, 7},    {"EditG", "", 0x100030, 0x20},
  };
  const char* sliders[] = {"TrackBar1", "TrackBar2", "TrackBar3"};
  for (const auto& c : cases) {
    QString shown;
    int slider = -1;
    const int which = c.field[4] == 'R' ? 0 : c.field[4] == 'G' ? 1 : 2;
    const TColor chosen = ChooseWith(0x102030, [&](QWidget* dlg) {
      lxtest::TypeInto(dlg, c.field, c.text);
      shown = Text(dlg, c.field);
      slider = Slider(dlg, sliders[which]);
    });
    EXPECT_EQ(chosen, c.result) << c.field << " " << c.text;
    EXPECT_EQ(shown, QString(c.text)) << c.field << " " << c.text;
    EXPECT_EQ(slider, c.slider) << c.field << " " << c.text;
  }
}

TEST_F(ColorSelectTest, ExampleShowsTheWrappedColourWhileTyping) {
  ChooseWith(0, [](QWidget* dlg) {
    lxtest::TypeInto(dlg, "EditR", "300");
    lxtest::TypeInto(dlg, "EditB", "513");
    EXPECT_EQ(Find<QFrame>(dlg, "PanelExample")->palette().color(QPalette::Window),
              QColor(44, 0, 1));
  });
}

TEST_F(ColorSelectTest, GrayscaleTakesTheMeanOfTheSliders) {
  QStringList fields;
  const TColor chosen = ChooseWith(0, [&](QWidget* dlg) {
    Find<QSlider>(dlg, "TrackBar1")->setValue(10);
    Find<QSlider>(dlg, "TrackBar2")->setValue(20);
    Find<QSlider>(dlg, "TrackBar3")->setValue(31);
    ToggleGreyscale(dlg);
    fields << Text(dlg, "EditR") << Text(dlg, "EditG") << Text(dlg, "EditB");
  });
  EXPECT_EQ(fields, (QStringList{"20", "20", "20"}));
  EXPECT_EQ(chosen, 0x141414);
}

TEST_F(ColorSelectTest, WithGrayscaleOneSliderOrFieldMovesAllThree) {
  const TColor bySlider = ChooseWith(0x0000ff, [](QWidget* dlg) {
    ToggleGreyscale(dlg);
    auto* green = Find<QSlider>(dlg, "TrackBar2");
    green->setFocus();
    QTest::keyClick(green, Qt::Key_End);
    EXPECT_EQ(Text(dlg, "EditR"), "255");
    EXPECT_EQ(Slider(dlg, "TrackBar3"), 255);
  });
  EXPECT_EQ(bySlider, 0xffffff);
  const TColor byField = ChooseWith(0, [](QWidget* dlg) {
    ToggleGreyscale(dlg);
    lxtest::TypeInto(dlg, "EditB", "64");
  });
  EXPECT_EQ(byField, 0x404040);
}

TEST_F(ColorSelectTest, SliderWritesOnlyItsOwnFieldWithoutGrayscale) {
  const TColor chosen = ChooseWith(0x000000, [](QWidget* dlg) {
    auto* blue = Find<QSlider>(dlg, "TrackBar3");
    blue->setFocus();
    QTest::keyClick(blue, Qt::Key_PageUp);
    EXPECT_EQ(Text(dlg, "EditB"), "10");
    EXPECT_EQ(Text(dlg, "EditR"), "0");
  });
  EXPECT_EQ(chosen, 0x0a0000);
}

TEST_F(ColorSelectTest, CancelAndEscapeReturnTheInitialColour) {
  for (const bool escape : {false, true}) {
    ModalDriver::WhenModal([escape](QWidget* dlg) {
      lxtest::TypeInto(dlg, "EditR", "1");
      Find<QSlider>(dlg, "TrackBar2")->setValue(200);
      if (escape)
        QTest::keyClick(dlg, Qt::Key_Escape);
      else
        lxtest::Click(dlg, "CancelButton");
    });
    EXPECT_EQ(lx::DoSelectColorDlg(0x00abcdef, nullptr, 1700), 0x00abcdef);
  }
}

TEST_F(ColorSelectTest, ConstructorWritesTheCallersVariableOnlyOnOk) {
  TColor colour = 0x010203;
  lx::TLxDlgColorSelect dialog(&main_, &colour, 1700);
  EXPECT_EQ(dialog.GetHelpContext(), 1700);
  Find<QLineEdit>(&dialog, "EditG")->setText("128");
  EXPECT_EQ(colour, 0x010203);
  dialog.OkButtonClick();
  EXPECT_EQ(colour, 0x018003);
  EXPECT_EQ(dialog.result(), lx::mrOk);
}

}  // namespace
