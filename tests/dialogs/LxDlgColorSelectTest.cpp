#include "lxcomp/LxDlgColorSelect.h"

#include <gtest/gtest.h>

#include <QFrame>
#include <QSlider>

#include "dialogs/DialogFixture.h"

namespace {

using lx::TColor;
using lxtest::Fields;
using lxtest::Find;
using lxtest::ModalDriver;

const char* const kSliders[] = {"TrackBar1", "TrackBar2", "TrackBar3"};

QString Sliders(QWidget* dlg) {
  QStringList values;
  for (const char* name : kSliders)
    values << QString::number(Find<QSlider>(dlg, name)->value());
  return values.join(';');
}
QColor Example(QWidget* dlg) {
  return Find<QFrame>(dlg, "PanelExample")->palette().color(QPalette::Window);
}
// Presses a key on a slider that has the focus.
void SlideWith(QWidget* dlg, const char* name, Qt::Key key) {
  auto* slider = Find<QSlider>(dlg, name);
  slider->setFocus();
  QTest::keyClick(slider, key);
}

class ColorSelectTest : public lxtest::DialogTest {
 protected:
  // Opens the dialog on `initial`, lets `act` work on it, presses OK and expects `chosen`.
  static void Choose(TColor initial, TColor chosen, const std::function<void(QWidget*)>& act) {
    ModalDriver::WhenModal([act](QWidget* dlg) {
      act(dlg);
      lxtest::Click(dlg, "OkButton");
    });
    EXPECT_EQ(lx::DoSelectColorDlg(initial, nullptr, 1700), chosen);
  }
};

TEST_F(ColorSelectTest, ShowsTheComponentsOfTheInitialColour) {
  Choose(0x336699, 0x336699, [](QWidget* dlg) {
    EXPECT_EQ(dlg->windowTitle(), "Select color...");
    EXPECT_EQ(Fields(dlg, {"EditR", "EditG", "EditB"}), "153;102;51");
    EXPECT_EQ(Sliders(dlg), "153;102;51");
    EXPECT_TRUE(lxtest::IsShown(dlg, "HelpButton"));
    EXPECT_EQ(Example(dlg), QColor(0x99, 0x66, 0x33));
    EXPECT_EQ(Find<QSlider>(dlg, "TrackBar1")->tickInterval(), 10);
    EXPECT_EQ(Find<QSlider>(dlg, "TrackBar1")->maximum(), 255);
  });
  // A caption replaces the title; no help context hides Help.
  ModalDriver::WhenModal([](QWidget* dlg) {
    EXPECT_EQ(dlg->windowTitle(), "Select fill color...");
    EXPECT_FALSE(lxtest::IsShown(dlg, "HelpButton"));
    lxtest::Click(dlg, "CancelButton");
  });
  lx::DoSelectColorDlg(0, L"Select fill color...", 0);
}

TEST_F(ColorSelectTest, TypedComponentsWrapOnOkWhileSlidersClamp) {
  // From 0x102030: the field typed into, the text, the colour chosen, the sliders afterwards.
  const std::tuple<const char*, const char*, TColor, const char*> cases[] = {
      {"EditR", "300", 0x10202c, "255;32;16"}, {"EditR", "256", 0x102000, "255;32;16"},
      {"EditG", "-1", 0x10ff30, "48;0;16"},    {"EditB", "255", 0xff2030, "48;32;255"},
      {"EditR", "abc", 0x102000, "48;32;16"},  {"EditR", "99999999999", 0x102000, "255;32;16"},
      {"EditB", " 7 ", 0x072030, "48;32;7"},   {"EditG", "", 0x100030, "48;32;16"},
      {"EditB", "513", 0x012030, "48;32;255"},
  };
  for (const auto& [field, text, result, sliders] : cases) {
    SCOPED_TRACE(std::string(field) + " " + text);
    Choose(0x102030, result, [&](QWidget* dlg) {
      lxtest::TypeInto(dlg, field, text);
      EXPECT_EQ(lxtest::Field(dlg, field), text);
      EXPECT_EQ(Sliders(dlg), sliders);
    });
  }
}

TEST_F(ColorSelectTest, ExampleShowsTheWrappedColourWhileTyping) {
  Choose(0, 0x01002c, [](QWidget* dlg) {
    lxtest::TypeInto(dlg, {{"EditR", "300"}, {"EditB", "513"}});
    EXPECT_EQ(Example(dlg), QColor(44, 0, 1));
  });
}

TEST_F(ColorSelectTest, GreyscaleTakesTheMeanAndThenMovesAllThree) {
  Choose(0, 0x141414, [](QWidget* dlg) {
    Find<QSlider>(dlg, "TrackBar1")->setValue(10);
    Find<QSlider>(dlg, "TrackBar2")->setValue(20);
    Find<QSlider>(dlg, "TrackBar3")->setValue(31);
    lxtest::Toggle(dlg, "CB_Greyscale");
    EXPECT_EQ(Fields(dlg, {"EditR", "EditG", "EditB"}), "20;20;20");
  });
  Choose(0x0000ff, 0xffffff, [](QWidget* dlg) {
    lxtest::Toggle(dlg, "CB_Greyscale");
    SlideWith(dlg, "TrackBar2", Qt::Key_End);
    EXPECT_EQ(lxtest::Field(dlg, "EditR"), "255");
    EXPECT_EQ(Sliders(dlg), "255;255;255");
  });
  Choose(0, 0x404040, [](QWidget* dlg) {
    lxtest::Toggle(dlg, "CB_Greyscale");
    lxtest::TypeInto(dlg, "EditB", "64");
  });
  // Without greyscale a slider writes only its own field.
  Choose(0, 0x0a0000, [](QWidget* dlg) {
    SlideWith(dlg, "TrackBar3", Qt::Key_PageUp);
    EXPECT_EQ(Fields(dlg, {"EditR", "EditG", "EditB"}), "0;0;10");
  });
}

TEST_F(ColorSelectTest, CancelAndEscapeReturnTheInitialColour) {
  for (const char* press : {"CancelButton", "Escape"}) {
    ModalDriver::WhenModal([press](QWidget* dlg) {
      lxtest::TypeInto(dlg, "EditR", "1");
      Find<QSlider>(dlg, "TrackBar2")->setValue(200);
      if (QString(press) == "Escape") return QTest::keyClick(dlg, Qt::Key_Escape);
      lxtest::Click(dlg, press);
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
