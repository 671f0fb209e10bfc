#include "lxcomp/LxDlgLayerSettings.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <memory>
#include <vector>

#include "lxcomp/LxColorPopup.h"
#include "support/ModalDriver.h"

namespace {

using lx::LayerSettings;
using lx::TDlgLayerSettings;
using lx::TK5Layer;
using lxtest::Find;
using lxtest::ModalDriver;

const QString kIndexMessage = "Invalid layer index! Must be a number between 0 and 65535.";
const QString kDatatypeMessage = "Invalid datatype value! Must be a number between 0 and 65535.";
const QString kCombinationMessage = "Index/datatype combination already exists!";
const QString kNameMessage = "Layer name already exists!";
const QString kNameParenMessage = "The layer name cannot contain the '(' or ')' characters!";
const QString kShortMessage = "Short layer name already exists!";
const QString kShortParenMessage = "The layer short name cannot contain the '(' or ')' characters!";

// A host's layer list: Active (index 1), Poly (index 2, edited), Metal (index 7, datatype 2).
class LayerSettingsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    main_.show();
    lx::SetMainForm(&main_);
    lx::SetMessageHook([this](const QString& text, int kind, int help) {
      messages_ << text;
      EXPECT_EQ(kind, -1);
      EXPECT_EQ(help, 2470);
      return lx::mrOk;
    });
    Add(new TK5Layer(1, 1, 0, "Active", 0x00ff00, -1, 0, 0, false));
    Add(new TK5Layer(2, 2, 0, "Poly", 0x0000ff, -1, -1, 0, false));
    Add(new TK5Layer(3, 7, 2, "Metal", 0xff0000, 0x00ffff, 5, 3, true));
    settings_ = {false, layers_[1].get(), layers_[0].get()};
  }
  void TearDown() override {
    lx::SetMessageHook(nullptr);
    lx::SetMainForm(nullptr);
    EXPECT_FALSE(ModalDriver::TakeFailure());
  }
  void Add(TK5Layer* layer) {
    if (!layers_.empty()) layers_.back()->Next = layer;
    layers_.emplace_back(layer);
  }
  TK5Layer& Edited() { return *layers_[1]; }

  // Opens the dialog, lets `act` work, presses OK; a dialog still open then is cancelled.
  struct Outcome {
    bool confirmed;
    bool stayedOpen;
  };
  Outcome Run(std::function<void(QWidget*)> act, bool pressOk = true) {
    bool stayedOpen = false;
    ModalDriver::WhenModal([&](QWidget* dlg) {
      act(dlg);
      if (pressOk) lxtest::Click(dlg, "OkButton");
      stayedOpen = dlg->isVisible();
      if (stayedOpen) lxtest::Click(dlg, "CancelButton");
    });
    const bool confirmed = lx::DoLayerSettingsDlg(&settings_);
    return {confirmed, stayedOpen};
  }
  static void TurnTo(QWidget* dlg, int page) {
    QTabBar* bar = Find<QTabWidget>(dlg, "PageControl1")->tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(page).center());
  }
  static int Page(QWidget* dlg) { return Find<QTabWidget>(dlg, "PageControl1")->currentIndex(); }
  static void Toggle(QWidget* dlg, const char* name) {
    auto* box = Find<QAbstractButton>(dlg, name);
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Space);
  }

  QWidget main_;
  std::vector<std::unique_ptr<TK5Layer>> layers_;
  LayerSettings settings_{};
  QStringList messages_;
};

TEST_F(LayerSettingsTest, ShowsTheLayer) {
  settings_.IsBlackBackground = true;
  Run(
      [](QWidget* dlg) {
        EXPECT_EQ(dlg->windowTitle(), "Layer properties...");
        EXPECT_EQ(Find<QLineEdit>(dlg, "EditLayerName")->text(), "Poly");
        EXPECT_EQ(Find<QLineEdit>(dlg, "EditIndex")->text(), "2");
        EXPECT_EQ(Find<QLineEdit>(dlg, "EditDatatype")->text(), "0");
        EXPECT_EQ(Find<QLineEdit>(dlg, "EditShortName")->text(), "L2");
        EXPECT_TRUE(Find<QCheckBox>(dlg, "CheckBox1")->isChecked());
        EXPECT_FALSE(Find<QLineEdit>(dlg, "EditShortName")->isEnabled());
        EXPECT_TRUE(Find<QCheckBox>(dlg, "CheckBox2")->isChecked());
        EXPECT_FALSE(Find<QWidget>(dlg, "PBC2")->isVisible());
        EXPECT_EQ(Find<lx::TLxColorBox>(dlg, "PBC1")->GetColor(), 0x0000ff);
        EXPECT_TRUE(Find<QRadioButton>(dlg, "RadioButtonDF")->isChecked());
        EXPECT_EQ(Find<QWidget>(dlg, "PanelExample")->palette().color(QPalette::Window),
                  QColor(Qt::black));
        auto* layerDlg = qobject_cast<TDlgLayerSettings*>(dlg);
        ASSERT_NE(layerDlg, nullptr);
        EXPECT_EQ(layerDlg->GetFillImageIndex(), 0);
        EXPECT_EQ(layerDlg->GetLineImageIndex(), 0);
      },
      false);
}

TEST_F(LayerSettingsTest, ShowsStylesColoursPolarityAndCustomShortNames) {
  settings_.Layer = layers_[2].get();
  layers_[0]->SetShortName("ACT");
  Run(
      [](QWidget* dlg) {
        auto* layerDlg = qobject_cast<TDlgLayerSettings*>(dlg);
        EXPECT_EQ(layerDlg->GetFillImageIndex(), 3);  // diagonal cross
        EXPECT_EQ(layerDlg->GetLineImageIndex(), 3);  // dash-dot
        EXPECT_FALSE(Find<QCheckBox>(dlg, "CheckBox1")->isChecked());
        EXPECT_TRUE(Find<QLineEdit>(dlg, "EditShortName")->isEnabled());
        EXPECT_FALSE(Find<QCheckBox>(dlg, "CheckBox2")->isChecked());
        EXPECT_TRUE(Find<QWidget>(dlg, "PBC2")->isVisible());
        EXPECT_EQ(Find<lx::TLxColorBox>(dlg, "PBC2")->GetColor(), 0x00ffff);
        EXPECT_TRUE(Find<QRadioButton>(dlg, "RadioButtonCF")->isChecked());
      },
      false);
}

struct BasicCase {
  const char* name;
  const char* index;
  const char* datatype;
  QStringList messages;
};

TEST_F(LayerSettingsTest, BasicPageChecksInTheirOrder) {
  const BasicCase cases[] = {
      {"Poly", "2", "0", {}},
      {"Poly", "65535", "65535", {}},
      {"", "2", "0", {}},
      {"active", "2", "0", {}},
      {"Poly", "65536", "70000", {kIndexMessage}},
      {"Poly", "-1", "-5", {kIndexMessage}},
      {"Poly", "abc", "0", {kIndexMessage}},
      {"Poly", "", "0", {kIndexMessage}},
      {"Poly", "5", "65536", {kDatatypeMessage}},
      {"Poly", "5", "x", {kDatatypeMessage}},
      {"Poly", "1", "0", {kCombinationMessage}},
      {"Poly", "7", "2", {kCombinationMessage}},
      {"Poly", "7", "2.4", {kCombinationMessage}},
      {"Active", "2", "0", {kNameMessage}},
      {"Active", "1", "0", {kCombinationMessage}},
      {"A(1)", "65536", "0", {kIndexMessage, kNameParenMessage}},
      {"Metal)", "7", "2", {kCombinationMessage, kNameParenMessage}},
      {"A)", "2", "0", {kNameParenMessage}},
      {"(", "2", "0", {kNameParenMessage}},
  };
  for (const auto& c : cases) {
    messages_.clear();
    const TK5Layer before(&Edited());
    const Outcome outcome = Run([&](QWidget* dlg) {
      lxtest::TypeInto(dlg, "EditLayerName", c.name);
      lxtest::TypeInto(dlg, "EditIndex", c.index);
      lxtest::TypeInto(dlg, "EditDatatype", c.datatype);
    });
    const QString what = QString("%1 %2 %3").arg(c.name, c.index, c.datatype);
    EXPECT_EQ(messages_, c.messages) << what.toStdString();
    EXPECT_EQ(outcome.confirmed, c.messages.isEmpty()) << what.toStdString();
    EXPECT_EQ(outcome.stayedOpen, !c.messages.isEmpty()) << what.toStdString();
    if (!c.messages.isEmpty()) {
      EXPECT_EQ(Edited().LongName, before.LongName);
      EXPECT_EQ(Edited().Index, before.Index);
    } else {
      EXPECT_EQ(Edited().LongName, QString(c.name));
      EXPECT_EQ(Edited().Index, QString(c.index).toInt());
    }
    Edited() = TK5Layer(before);
    Edited().Next = layers_[2].get();
  }
}

TEST_F(LayerSettingsTest, AdvancedPageChecksOnlyWithoutDefaultShortNames) {
  layers_[2]->SetShortName("M(2)");
  struct Case {
    bool useDefault;
    const char* shortName;
    QStringList messages;
  } cases[] = {
      {false, "L1", {kShortMessage}},
      {false, "M(2)", {kShortMessage, kShortParenMessage}},
      {false, "P)", {kShortParenMessage}},
      {false, "PO", {}},
      {true, "(", {}},
  };
  for (const auto& c : cases) {
    messages_.clear();
    Edited().SetShortName("L2");
    const Outcome outcome = Run([&](QWidget* dlg) {
      auto* useDefault = Find<QCheckBox>(dlg, "CheckBox1");
      TurnTo(dlg, 1);
      if (useDefault->isChecked() != c.useDefault) Toggle(dlg, "CheckBox1");
      if (!c.useDefault)
        lxtest::TypeInto(dlg, "EditShortName", c.shortName);
      else
        Find<QLineEdit>(dlg, "EditShortName")->setText(c.shortName);
    });
    EXPECT_EQ(messages_, c.messages) << c.shortName;
    EXPECT_EQ(outcome.confirmed, c.messages.isEmpty()) << c.shortName;
    if (outcome.confirmed)
      EXPECT_EQ(Edited().ShortName, c.useDefault ? QString("L2") : QString(c.shortName));
    else
      EXPECT_EQ(Edited().ShortName, "L2");
  }
}

TEST_F(LayerSettingsTest, BasicErrorsComeBeforeAdvancedOnes) {
  layers_[0]->SetShortName("X");
  const Outcome outcome = Run([](QWidget* dlg) {
    lxtest::TypeInto(dlg, "EditIndex", "70000");
    Find<QLineEdit>(dlg, "EditShortName")->setText("X");
  });
  EXPECT_EQ(messages_, QStringList{kIndexMessage});
  EXPECT_TRUE(outcome.stayedOpen);
  messages_.clear();
  Run([](QWidget* dlg) {
    Find<QLineEdit>(dlg, "EditShortName")->setText("X");
    lxtest::Click(dlg, "OkButton");
    EXPECT_EQ(Page(dlg), 1);  // the failing field is brought to the front
  });
  EXPECT_EQ(messages_, (QStringList{kShortMessage, kShortMessage}));
}

TEST_F(LayerSettingsTest, OkWritesTheLayerAndRegeneratesEveryDefaultShortName) {
  layers_[0]->SetShortName("custom");
  const Outcome outcome = Run([](QWidget* dlg) {
    lxtest::TypeInto(dlg, "EditLayerName", "Poly 2");
    lxtest::TypeInto(dlg, "EditIndex", "12");
    lxtest::TypeInto(dlg, "EditDatatype", "3");
    TurnTo(dlg, 1);
    Toggle(dlg, "CheckBox1");
    EXPECT_EQ(Find<QLineEdit>(dlg, "EditShortName")->text(), "L12D3");
    Toggle(dlg, "RadioButtonCF");
  });
  ASSERT_TRUE(outcome.confirmed);
  EXPECT_EQ(Edited().LongName, "Poly 2");
  EXPECT_EQ(Edited().Index, 12);
  EXPECT_EQ(Edited().Datatype, 3);
  EXPECT_TRUE(Edited().IsClearField);
  EXPECT_EQ(Edited().ShortName, "L12D3");
  EXPECT_EQ(layers_[0]->ShortName, "L1");
  EXPECT_EQ(layers_[2]->ShortName, "L7D2");
  EXPECT_EQ(Edited().FillStyle, -1);
  EXPECT_EQ(Edited().LineStyle, 0);
  EXPECT_EQ(Edited().FillColor, 0x0000ff);
  EXPECT_EQ(Edited().LineColor, 0x0000ff);
}

TEST_F(LayerSettingsTest, CancelLeavesEveryLayerAsItWas) {
  const TK5Layer before(&Edited());
  const Outcome outcome = Run(
      [](QWidget* dlg) {
        lxtest::TypeInto(dlg, "EditLayerName", "Changed");
        lxtest::TypeInto(dlg, "EditIndex", "40");
        Toggle(dlg, "CheckBox2");
        Find<lx::TLxColorBox>(dlg, "PBC1")->SetColor(0x123456);
        QTest::keyClick(dlg, Qt::Key_Escape);
      },
      false);
  EXPECT_FALSE(outcome.confirmed);
  EXPECT_EQ(Edited().LongName, before.LongName);
  EXPECT_EQ(Edited().Index, before.Index);
  EXPECT_EQ(Edited().FillColor, before.FillColor);
  EXPECT_EQ(Edited().ShortName, before.ShortName);
}

TEST_F(LayerSettingsTest, TurningThePageChecksAndFollowsTheIndex) {
  Run(
      [this](QWidget* dlg) {
        lxtest::TypeInto(dlg, "EditIndex", "9");
        TurnTo(dlg, 1);
        EXPECT_EQ(Page(dlg), 1);
        EXPECT_EQ(Find<QLineEdit>(dlg, "EditShortName")->text(), "L9");
        TurnTo(dlg, 0);
        lxtest::TypeInto(dlg, "EditDatatype", "-1");
        TurnTo(dlg, 1);
        EXPECT_EQ(Page(dlg), 0);
        EXPECT_EQ(messages_, QStringList{kDatatypeMessage});
        lxtest::TypeInto(dlg, "EditDatatype", "4");
        TurnTo(dlg, 1);
        Toggle(dlg, "CheckBox1");
        lxtest::TypeInto(dlg, "EditShortName", "L1");
        TurnTo(dlg, 0);
        EXPECT_EQ(Page(dlg), 1);
        EXPECT_EQ(messages_, (QStringList{kDatatypeMessage, kShortMessage}));
        QTest::keyClick(dlg, Qt::Key_Escape);
      },
      false);
}

struct StyleCase {
  int menuItem;
  int fillStyle;
};

TEST_F(LayerSettingsTest, FillMenuItemsGiveTheirStyles) {
  const StyleCase cases[] = {{0, -1}, {1, 3}, {2, 2}, {3, 5}, {4, 0}, {5, 1}, {6, 4}, {7, 6}};
  for (const auto& c : cases) {
    Run([&](QWidget* dlg) {
      lxtest::Click(dlg, "FillStyleButton");
      auto* menu = Find<QMenu>(dlg, "PopupFillStyles");
      auto* button = Find<QToolButton>(dlg, "FillStyleButton");
      EXPECT_TRUE(menu->isVisible());
      EXPECT_EQ(menu->pos(), button->mapToGlobal(QPoint(0, button->height())));
      const QRect item = menu->actionGeometry(menu->actions()[c.menuItem]);
      EXPECT_EQ(item.height(), TDlgLayerSettings::StyleImageSize().height() + 3);
      QTest::mouseClick(menu, Qt::LeftButton, {}, item.center());
      EXPECT_FALSE(menu->isVisible());
      EXPECT_EQ(button->property("ImageIndex").toInt(), c.menuItem);
    });
    EXPECT_EQ(Edited().FillStyle, c.fillStyle) << c.menuItem;
  }
}

TEST_F(LayerSettingsTest, LineMenuItemsGiveTheirStyles) {
  const char* captions[] = {"solid", "dashed", "dotted", "dash-dot", "dash-dot-dot"};
  for (int i = 4; i >= 0; --i) {
    Run([&](QWidget* dlg) {
      lxtest::Click(dlg, "LineStyleButton");
      auto* menu = Find<QMenu>(dlg, "PopupLineStyles");
      ASSERT_EQ(menu->actions().size(), 5);
      EXPECT_EQ(menu->actions()[i]->text(), captions[i]);
      QTest::mouseClick(menu, Qt::LeftButton, {},
                        menu->actionGeometry(menu->actions()[i]).center());
    });
    EXPECT_EQ(Edited().LineStyle, i);
  }
}

TEST(LayerStyleImages, HollowIsAnOutlineAndDarkImagesAreLight) {
  EXPECT_EQ(TDlgLayerSettings::FillImageOfStyle(7), 0);  // unknown codes show solid
  // Hollow images are an outline only; the solid ones are filled.
  const QImage hollow = TDlgLayerSettings::FillImage(7).toImage();
  const QImage solid = TDlgLayerSettings::FillImage(8).toImage();
  const QPoint inside(24, 10);
  EXPECT_EQ(qAlpha(hollow.pixel(inside)), 0);
  EXPECT_EQ(solid.pixelColor(inside), QColor(225, 225, 225));
  EXPECT_EQ(TDlgLayerSettings::FillImage(0, 2.0).size(), QSize(96, 40));
}

TEST_F(LayerSettingsTest, DarkThemeUsesTheDarkImages) {
  const QPalette saved = QApplication::palette();
  QPalette dark = saved;
  dark.setColor(QPalette::ButtonText, Qt::white);
  dark.setColor(QPalette::WindowText, Qt::white);
  QApplication::setPalette(dark);
  Edited().FillStyle = 0;
  Edited().LineStyle = 2;
  Run([](QWidget* dlg) {
    auto* layerDlg = qobject_cast<TDlgLayerSettings*>(dlg);
    EXPECT_EQ(layerDlg->GetFillImageIndex(), 4 + 8);
    EXPECT_EQ(layerDlg->GetLineImageIndex(), 2 + 5);
    EXPECT_EQ(layerDlg->PopupFillStyles()->actions()[7]->data().toInt(), 15);
    EXPECT_EQ(layerDlg->PopupLineStyles()->actions()[0]->data().toInt(), 5);
    layerDlg->FillClick(layerDlg->PopupFillStyles()->actions()[7]);
  });
  QApplication::setPalette(saved);
  EXPECT_EQ(Edited().FillStyle, 6);
  EXPECT_EQ(Edited().LineStyle, 2);
}

TEST_F(LayerSettingsTest, ColourPopupPicksIntoTheClickedBox) {
  const lx::TColor picked = lx::FromQColor(lx::TLxColorPopup::ColorPicture().pixelColor(30, 100));
  Run([&](QWidget* dlg) {
    auto* layerDlg = qobject_cast<TDlgLayerSettings*>(dlg);
    auto* fill = Find<lx::TLxColorBox>(dlg, "PBC1");
    QTest::mouseClick(fill, Qt::LeftButton);
    lx::TLxColorPopup* popup = layerDlg->ColorPopup();
    ASSERT_NE(popup, nullptr);
    EXPECT_TRUE(popup->isVisible());
    EXPECT_EQ(popup->pos(), fill->mapToGlobal(QPoint(0, fill->height())));
    auto* picture = Find<QLabel>(popup, "ColorImage");
    QTest::mouseMove(picture, QPoint(30, 100));
    EXPECT_EQ(fill->GetShownColor(), picked);
    EXPECT_EQ(fill->GetColor(), 0x0000ff);
    QTest::mouseRelease(picture, Qt::LeftButton, {}, QPoint(30, 100));
    EXPECT_FALSE(popup->isVisible());
    // The outline follows the fill while "Use fill color for outline" is checked.
    Toggle(dlg, "CheckBox2");
    auto* outline = Find<lx::TLxColorBox>(dlg, "PBC2");
    QTest::mouseClick(outline, Qt::LeftButton);
    EXPECT_EQ(layerDlg->ColorPopup(), popup);
    EXPECT_EQ(popup->GetTarget(), outline);
    QTest::mouseRelease(picture, Qt::LeftButton, {}, QPoint(127, 127));
  });
  EXPECT_EQ(Edited().FillColor, picked);
  EXPECT_EQ(Edited().LineColor, 0xffffff);
}

TEST_F(LayerSettingsTest, BothBoxesOfferTheFillColourDialog) {
  ModalDriver::WhenModalSequence({
      [](QWidget* dlg) {
        auto* outline = Find<lx::TLxColorBox>(dlg, "PBC2");
        Toggle(dlg, "CheckBox2");
        QContextMenuEvent menuEvent(QContextMenuEvent::Mouse, QPoint(3, 3),
                                    outline->mapToGlobal(QPoint(3, 3)));
        QApplication::sendEvent(outline, &menuEvent);
        auto* menu = Find<QMenu>(dlg, "ColorPopupMenu1");
        ASSERT_TRUE(menu->isVisible());
        // The colour dialog runs its own loop: choose the item once this action has returned.
        QTimer::singleShot(0, menu->actions()[0], &QAction::trigger);
      },
      [](QWidget* colourDlg) {
        EXPECT_EQ(colourDlg->windowTitle(), "Select fill color...");
        lxtest::TypeInto(colourDlg, "EditR", "300");
        lxtest::TypeInto(colourDlg, "EditG", "0");
        lxtest::TypeInto(colourDlg, "EditB", "-2");
        lxtest::Click(colourDlg, "OkButton");
      },
      [](QWidget* dlg) { lxtest::Click(dlg, "OkButton"); },
  });
  ASSERT_TRUE(lx::DoLayerSettingsDlg(&settings_));
  EXPECT_EQ(Edited().FillColor, 0xfe002c);
  EXPECT_EQ(Edited().LineColor, 0x0000ff);
}

TEST_F(LayerSettingsTest, OutlineColourDialogKeepsTheFill) {
  TDlgLayerSettings dialog(&main_);
  dialog.DlgInit(&settings_);
  ModalDriver::WhenModal([](QWidget* colourDlg) {
    EXPECT_EQ(colourDlg->windowTitle(), "Select line color...");
    lxtest::TypeInto(colourDlg, "EditG", "255");
    lxtest::Click(colourDlg, "OkButton");
  });
  dialog.ShowColorDialog2Click();
  EXPECT_EQ(Find<lx::TLxColorBox>(&dialog, "PBC2")->GetColor(), 0x00ffff);
  EXPECT_EQ(Find<lx::TLxColorBox>(&dialog, "PBC1")->GetColor(), 0x0000ff);
}

TEST_F(LayerSettingsTest, ExampleMixesOverlapsLikeTheLayoutView) {
  struct Case {
    bool black;
    lx::TColor fill, line;
    int fillImage;
    QColor ground, crossing;
  } cases[] = {
      {true, 0x0000ff, 0x00ff00, 0, Qt::black, Qt::yellow},  // red | green
      {false, 0x0000ff, 0x00ff00, 0, Qt::white, Qt::black},  // red & green
      {false, 0x00ffff, 0xffff00, 7, Qt::white, Qt::cyan},   // hollow: outlines only
  };
  for (const auto& c : cases) {
    settings_.IsBlackBackground = c.black;
    Edited().FillColor = c.fill;
    Edited().LineColor = c.line;
    Edited().FillStyle = static_cast<std::int8_t>(TDlgLayerSettings::FillStyleOfImage(c.fillImage));
    TDlgLayerSettings dialog(&main_);
    dialog.DlgInit(&settings_);
    const QImage example = dialog.ExampleImage();
    ASSERT_EQ(example.size(), QSize(77, 77));
    EXPECT_EQ(example.pixelColor(2, 2), c.ground);
    EXPECT_EQ(example.pixelColor(74, 74), c.ground);
    // The ellipse's outline crosses the inside of the rectangle at its leftmost point.
    bool found = false;
    for (int y = 40; y < 54 && !found; ++y)
      for (int x = 20; x < 26 && !found; ++x)
        found = example.pixelColor(x, y) == c.crossing;
    EXPECT_TRUE(found) << c.black << " " << c.fillImage;
    const QColor inside = c.fillImage == 7 ? c.ground : lx::ToQColor(c.fill);
    EXPECT_EQ(example.pixelColor(30, 30), inside);
  }
}

TEST_F(LayerSettingsTest, HatchGapsKeepTheGroundColour) {
  for (const bool black : {false, true}) {
    settings_.IsBlackBackground = black;
    Edited().FillColor = Edited().LineColor = 0x0000ff;
    Edited().FillStyle = 4;  // cross hatch
    TDlgLayerSettings dialog(&main_);
    dialog.DlgInit(&settings_);
    const QImage example = dialog.ExampleImage();
    const QColor ground = black ? Qt::black : Qt::white;
    int groundPixels = 0, redPixels = 0, others = 0;
    for (int y = 12; y < 20; ++y)
      for (int x = 12; x < 20; ++x) {
        const QColor pixel = example.pixelColor(x, y);
        pixel == ground ? ++groundPixels : pixel == QColor(Qt::red) ? ++redPixels : ++others;
      }
    EXPECT_GT(groundPixels, 0) << black;
    EXPECT_GT(redPixels, 0) << black;
    EXPECT_EQ(others, 0) << black;
  }
}

TEST_F(LayerSettingsTest, MissingRecordOrLayerOnlyCloses) {
  ModalDriver::WhenModal([](QWidget* dlg) { lxtest::Click(dlg, "OkButton"); });
  EXPECT_TRUE(lx::DoLayerSettingsDlg(nullptr));
  settings_.Layer = nullptr;
  ModalDriver::WhenModal([](QWidget* dlg) { lxtest::Click(dlg, "OkButton"); });
  EXPECT_TRUE(lx::DoLayerSettingsDlg(&settings_));
  EXPECT_TRUE(messages_.isEmpty());
}

}  // namespace
