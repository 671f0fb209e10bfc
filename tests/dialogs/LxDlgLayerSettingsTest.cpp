#include "lxcomp/LxDlgLayerSettings.h"

#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QMenu>
#include <QSet>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>

#include "dialogs/DialogFixture.h"
#include "lxcomp/LxColorPopup.h"

namespace {

using lx::TDlgLayerSettings;
using lx::TK5Layer;
using lxtest::Field;
using lxtest::Find;
using lxtest::ModalDriver;
using lxtest::TypeInto;

const QString kIndexMessage = "Invalid layer index! Must be a number between 0 and 65535.";
const QString kDatatypeMessage = "Invalid datatype value! Must be a number between 0 and 65535.";
const QString kCombinationMessage = "Index/datatype combination already exists!";
const QString kNameMessage = "Layer name already exists!";
const QString kNameParenMessage = "The layer name cannot contain the '(' or ')' characters!";
const QString kShortMessage = "Short layer name already exists!";
const QString kShortParenMessage = "The layer short name cannot contain the '(' or ')' characters!";

// What a host reads back from a layer, on one line.
QString Summary(const TK5Layer& l) {
  return QString::asprintf("%s %d/%d %s fill %06x line %06x styles %d/%d clear %d",
                           qPrintable(l.LongName), l.Index, l.Datatype, qPrintable(l.ShortName),
                           l.FillColor, l.LineColor, l.FillStyle, l.LineStyle, l.IsClearField);
}

// What the dialog shows: the fields, whether short names are the default ones and whether the
// short name can be typed, whether the outline takes the fill colour and its box is shown, both
// colours, the polarity and the two style images.
QString Shown(TDlgLayerSettings* dlg) {
  const auto on = [dlg](const char* name) { return int(Find<QWidget>(dlg, name)->isEnabled()); };
  const auto checked = [dlg](const char* name) {
    return int(Find<QAbstractButton>(dlg, name)->isChecked());
  };
  const auto colour = [dlg](const char* name) {
    return Find<lx::TLxColorBox>(dlg, name)->GetColor();
  };
  return QString::asprintf(
      "%s defaults:%d editable:%d same:%d shown:%d %06x/%06x clear:%d images:%d/%d",
      qPrintable(
          lxtest::Fields(dlg, {"EditLayerName", "EditIndex", "EditDatatype", "EditShortName"})),
      checked("CheckBox1"), on("EditShortName"), checked("CheckBox2"),
      int(lxtest::IsShown(dlg, "PBC2")), colour("PBC1"), colour("PBC2"), checked("RadioButtonCF"),
      dlg->GetFillImageIndex(), dlg->GetLineImageIndex());
}

QSet<QRgb> Colours(const QImage& image, const QRect& area) {
  QSet<QRgb> colours;
  for (int y = area.top(); y <= area.bottom(); ++y)
    for (int x = area.left(); x <= area.right(); ++x)
      colours.insert(image.pixel(x, y));
  return colours;
}

void TurnTo(QWidget* dlg, int page) {
  QTabBar* bar = Find<QTabWidget>(dlg, "PageControl1")->tabBar();
  QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(page).center());
}
int Page(QWidget* dlg) {
  return Find<QTabWidget>(dlg, "PageControl1")->currentIndex();
}
void Toggle(QWidget* dlg, const char* name) {
  auto* box = Find<QAbstractButton>(dlg, name);
  box->setFocus();
  QTest::keyClick(box, Qt::Key_Space);
}
bool Checked(QWidget* dlg, const char* name) {
  return Find<QAbstractButton>(dlg, name)->isChecked();
}

class LayerSettingsTest : public lxtest::DialogTest {
 protected:
  using Act = std::function<void(TDlgLayerSettings*)>;
  void SetUp() override {
    DialogTest::SetUp();
    Reset();
  }
  // A host's layer list: Active (index 1), Poly (index 2, edited), Metal (index 7, datatype 2).
  void Reset() {
    layers_[0] = TK5Layer(1, 1, 0, "Active", 0x00ff00, -1, 0, 0, false);
    layers_[1] = TK5Layer(2, 2, 0, "Poly", 0x0000ff, -1, -1, 0, false);
    layers_[2] = TK5Layer(3, 7, 2, "Metal", 0xff0000, 0x00ffff, 5, 3, true);
    layers_[0].Next = &layers_[1];
    layers_[1].Next = &layers_[2];
    settings_ = {false, &layers_[1], &layers_[0]};
    messages_.clear();
  }
  TK5Layer& Edited() { return layers_[1]; }

  // Opens the dialog and lets `act` work in it; a dialog still open then is cancelled.
  bool Look(const Act& act) {
    return Drive<TDlgLayerSettings>([this] { return lx::DoLayerSettingsDlg(&settings_); }, act);
  }
  // The same, pressing OK after `act`.
  bool Run(const Act& act) {
    return Look([&](TDlgLayerSettings* dlg) {
      act(dlg);
      lxtest::Click(dlg, "OkButton");
    });
  }
  QImage Example() {
    TDlgLayerSettings dialog(&main_);
    dialog.DlgInit(&settings_);
    return dialog.ExampleImage();
  }

  TK5Layer layers_[3];
  lx::LayerSettings settings_{};
};

TEST_F(LayerSettingsTest, ShowsTheLayer) {
  settings_.IsBlackBackground = true;
  Look([](TDlgLayerSettings* dlg) {
    EXPECT_EQ(dlg->windowTitle(), "Layer properties...");
    EXPECT_EQ(Shown(dlg),
              "Poly;2;0;L2 defaults:1 editable:0 same:1 shown:0 0000ff/0000ff "
              "clear:0 images:0/0");
    EXPECT_EQ(Find<QWidget>(dlg, "PanelExample")->palette().color(QPalette::Window),
              QColor(Qt::black));
  });
  settings_ = {false, &layers_[2], &layers_[0]};
  layers_[0].SetShortName("ACT");    // a custom short name clears "use default short names"
  Look([](TDlgLayerSettings* dlg) {  // diagonal cross, dash-dot
    EXPECT_EQ(Shown(dlg),
              "Metal;7;2;L7D2 defaults:0 editable:1 same:0 shown:1 ff0000/00ffff "
              "clear:1 images:3/3");
  });
}

TEST_F(LayerSettingsTest, BasicPageChecksInTheirOrder) {
  const std::tuple<const char*, const char*, const char*, QStringList> cases[] = {
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
  for (const auto& [name, index, datatype, messages] : cases) {
    Reset();
    const QString before = Summary(Edited());
    const std::string what = QString("%1 %2 %3").arg(name, index, datatype).toStdString();
    const bool ok = Look([&](TDlgLayerSettings* dlg) {
      TypeInto(dlg, {{"EditLayerName", name}, {"EditIndex", index}, {"EditDatatype", datatype}});
      lxtest::Click(dlg, "OkButton");
      EXPECT_EQ(dlg->isVisible(), !messages.isEmpty()) << what;
      if (dlg->isVisible()) lxtest::Click(dlg, "CancelButton");
    });
    EXPECT_EQ(Errors(2470), messages) << what;
    EXPECT_EQ(ok, messages.isEmpty()) << what;
    if (ok)
      EXPECT_EQ(QString("%1 %2").arg(Edited().LongName).arg(Edited().Index),
                QString("%1 %2").arg(name, index));
    else
      EXPECT_EQ(Summary(Edited()), before) << what;
  }
}

TEST_F(LayerSettingsTest, AdvancedPageChecksOnlyWithoutDefaultShortNames) {
  const std::tuple<bool, const char*, QStringList> cases[] = {
      {false, "L1", {kShortMessage}},
      {false, "M(2)", {kShortMessage, kShortParenMessage}},
      {false, "P)", {kShortParenMessage}},
      {false, "PO", {}},
      {true, "(", {}},
  };
  for (const auto& [useDefault, shortName, messages] : cases) {
    Reset();
    layers_[2].SetShortName("M(2)");
    const bool ok = Run([&](TDlgLayerSettings* dlg) {
      TurnTo(dlg, 1);
      if (Checked(dlg, "CheckBox1") != useDefault) Toggle(dlg, "CheckBox1");
      if (!useDefault)
        TypeInto(dlg, "EditShortName", shortName);
      else
        Find<QLineEdit>(dlg, "EditShortName")->setText(shortName);
    });
    EXPECT_EQ(Errors(2470), messages) << shortName;
    EXPECT_EQ(ok, messages.isEmpty()) << shortName;
    EXPECT_EQ(Edited().ShortName, ok && !useDefault ? QString(shortName) : "L2");
  }
}

TEST_F(LayerSettingsTest, BasicErrorsComeBeforeAdvancedOnes) {
  layers_[0].SetShortName("X");
  const std::tuple<const char*, QString, int> cases[] = {{"70000", kIndexMessage, 0},
                                                         {"2", kShortMessage, 1}};
  for (const auto& [index, message, page] : cases) {
    messages_.clear();
    EXPECT_FALSE(Look([&](TDlgLayerSettings* dlg) {
      TypeInto(dlg, "EditIndex", index);
      Find<QLineEdit>(dlg, "EditShortName")->setText("X");
      lxtest::Click(dlg, "OkButton");
      EXPECT_TRUE(dlg->isVisible());
      EXPECT_EQ(Page(dlg), page);  // the failing field is brought to the front
    }));
    EXPECT_EQ(Errors(2470), QStringList{message});
  }
}

TEST_F(LayerSettingsTest, OkWritesTheLayerAndRegeneratesEveryDefaultShortNameCancelNothing) {
  layers_[0].SetShortName("custom");
  const QString before = Summary(Edited());
  for (const bool ok : {false, true}) {
    const auto act = [ok](TDlgLayerSettings* dlg) {
      TypeInto(dlg, {{"EditLayerName", "Poly 2"}, {"EditIndex", "12"}, {"EditDatatype", "3"}});
      TurnTo(dlg, 1);
      Toggle(dlg, "CheckBox1");
      Toggle(dlg, "RadioButtonCF");
      EXPECT_EQ(Shown(dlg),
                "Poly 2;12;3;L12D3 defaults:1 editable:0 same:1 shown:0 "
                "0000ff/0000ff clear:1 images:0/0");
      if (!ok) QTest::keyClick(dlg, Qt::Key_Escape);
    };
    EXPECT_EQ(ok ? Run(act) : Look(act), ok);
    EXPECT_EQ(Summary(Edited()),
              ok ? "Poly 2 12/3 L12D3 fill 0000ff line 0000ff styles -1/0 clear 1" : before);
    EXPECT_EQ(layers_[0].ShortName + " " + layers_[2].ShortName, ok ? "L1 L7D2" : "custom L7D2");
  }
}

TEST_F(LayerSettingsTest, TurningThePageChecksAndFollowsTheIndex) {
  Look([this](QWidget* dlg) {
    TypeInto(dlg, "EditIndex", "9");
    TurnTo(dlg, 1);
    EXPECT_EQ(Page(dlg), 1);
    EXPECT_EQ(Field(dlg, "EditShortName"), "L9");
    TurnTo(dlg, 0);
    TypeInto(dlg, "EditDatatype", "-1");
    TurnTo(dlg, 1);
    EXPECT_EQ(Page(dlg), 0);
    EXPECT_EQ(Errors(2470), QStringList{kDatatypeMessage});
    TypeInto(dlg, "EditDatatype", "4");
    TurnTo(dlg, 1);
    Toggle(dlg, "CheckBox1");
    TypeInto(dlg, "EditShortName", "L1");
    TurnTo(dlg, 0);
    EXPECT_EQ(Page(dlg), 1);
    EXPECT_EQ(Errors(2470), (QStringList{kDatatypeMessage, kShortMessage}));
  });
}

TEST_F(LayerSettingsTest, StyleMenusDropBelowTheirButtonsAndGiveTheirStyles) {
  const int fillStyles[] = {-1, 3, 2, 5, 0, 1, 4, 6};  // of the fill menu's items
  for (const QString kind : {"FillStyle", "LineStyle"}) {
    for (int item = 0; item < (kind == "FillStyle" ? 8 : 5); ++item) {
      Reset();
      Run([&](QWidget* dlg) {
        auto* button = Find<QToolButton>(dlg, kind + "Button");
        lxtest::Click(dlg, button->objectName());
        auto* menu = Find<QMenu>(dlg, "Popup" + kind + "s");
        ASSERT_TRUE(menu->isVisible());
        EXPECT_EQ(menu->pos(), button->mapToGlobal(QPoint(0, button->height())));
        const QRect rect = menu->actionGeometry(menu->actions()[item]);
        EXPECT_EQ(rect.height(), TDlgLayerSettings::StyleImageSize().height() + 3);
        QTest::mouseClick(menu, Qt::LeftButton, {}, rect.center());
        EXPECT_FALSE(menu->isVisible());
        EXPECT_EQ(button->property("ImageIndex").toInt(), item);
      });
      const bool fill = kind == "FillStyle";
      EXPECT_EQ(Edited().FillStyle, fill ? fillStyles[item] : -1) << kind.toStdString() << item;
      EXPECT_EQ(Edited().LineStyle, fill ? 0 : item) << kind.toStdString() << item;
    }
  }
}

TEST(LayerStyleImages, HollowIsAnOutlineAndDarkImagesAreLight) {
  EXPECT_EQ(TDlgLayerSettings::FillImageOfStyle(7), 0);  // unknown codes show solid
  const QImage hollow = TDlgLayerSettings::FillImage(7).toImage();
  const QImage solid = TDlgLayerSettings::FillImage(8).toImage();
  EXPECT_EQ(qAlpha(hollow.pixel(24, 10)), 0);
  EXPECT_EQ(solid.pixelColor(24, 10), QColor(225, 225, 225));
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
  Run([](TDlgLayerSettings* dlg) {
    EXPECT_EQ(dlg->GetFillImageIndex(), 4 + 8);
    EXPECT_EQ(dlg->GetLineImageIndex(), 2 + 5);
    EXPECT_EQ(dlg->PopupFillStyles()->actions()[7]->data().toInt(), 15);
    QStringList lines;
    for (QAction* action : dlg->PopupLineStyles()->actions())
      lines << action->text() + "=" + action->data().toString();
    EXPECT_EQ(lines.join(' '), "solid=5 dashed=6 dotted=7 dash-dot=8 dash-dot-dot=9");
    dlg->FillClick(dlg->PopupFillStyles()->actions()[7]);
  });
  QApplication::setPalette(saved);
  EXPECT_EQ(Edited().FillStyle, 6);
  EXPECT_EQ(Edited().LineStyle, 2);
}

TEST_F(LayerSettingsTest, ColourPopupPicksIntoTheClickedBox) {
  const lx::TColor picked = lx::FromQColor(lx::TLxColorPopup::ColorPicture().pixelColor(30, 100));
  Run([&](TDlgLayerSettings* dlg) {
    auto* fill = Find<lx::TLxColorBox>(dlg, "PBC1");
    QTest::mouseClick(fill, Qt::LeftButton);
    lx::TLxColorPopup* popup = dlg->ColorPopup();
    ASSERT_NE(popup, nullptr);
    EXPECT_TRUE(popup->isVisible());
    EXPECT_EQ(popup->pos(), fill->mapToGlobal(QPoint(0, fill->height())));
    auto* picture = Find<QLabel>(popup, "ColorImage");
    QTest::mouseMove(picture, QPoint(30, 100));
    EXPECT_EQ(fill->GetShownColor(), picked);
    EXPECT_EQ(fill->GetColor(), 0x0000ff);
    QTest::mouseRelease(picture, Qt::LeftButton, {}, QPoint(30, 100));
    EXPECT_FALSE(popup->isVisible());
    // Once "Use fill color for outline" is cleared, the outline box takes its own colour.
    Toggle(dlg, "CheckBox2");
    auto* outline = Find<lx::TLxColorBox>(dlg, "PBC2");
    QTest::mouseClick(outline, Qt::LeftButton);
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
        TypeInto(colourDlg, {{"EditR", "300"}, {"EditG", "0"}, {"EditB", "-2"}});
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
    TypeInto(colourDlg, "EditG", "255");
    lxtest::Click(colourDlg, "OkButton");
  });
  dialog.ShowColorDialog2Click();
  EXPECT_EQ(Find<lx::TLxColorBox>(&dialog, "PBC2")->GetColor(), 0x00ffff);
  EXPECT_EQ(Find<lx::TLxColorBox>(&dialog, "PBC1")->GetColor(), 0x0000ff);
}

TEST_F(LayerSettingsTest, ExampleMixesOverlapsLikeTheLayoutView) {
  const QRgb red = qRgb(255, 0, 0), black = qRgb(0, 0, 0), white = qRgb(255, 255, 255);
  // Ground, fill, outline, fill style; the colours inside the rectangle, away from the ellipse;
  // one colour where the ellipse's outline crosses the rectangle's inside near its leftmost point.
  const std::tuple<bool, lx::TColor, lx::TColor, int, QSet<QRgb>, QRgb> cases[] = {
      {true, 0x0000ff, 0x00ff00, -1, {red}, qRgb(255, 255, 0)},    // red | green
      {false, 0x0000ff, 0x00ff00, -1, {red}, black},               // red & green
      {false, 0x00ffff, 0xffff00, 6, {white}, qRgb(0, 255, 255)},  // hollow: outlines only
      {false, 0x0000ff, 0x0000ff, 4, {red, white}, red},           // hatch gaps keep the ground
      {true, 0x0000ff, 0x0000ff, 4, {red, black}, red},
  };
  for (const auto& [dark, fill, line, style, inside, crossing] : cases) {
    settings_.IsBlackBackground = dark;
    Edited().FillColor = fill;
    Edited().LineColor = line;
    Edited().FillStyle = static_cast<std::int8_t>(style);
    const QImage example = Example();
    ASSERT_EQ(example.size(), QSize(77, 77));
    EXPECT_EQ(example.pixel(2, 2), dark ? black : white);
    EXPECT_EQ(example.pixel(74, 74), dark ? black : white);
    EXPECT_EQ(Colours(example, {12, 12, 8, 8}), inside) << dark << " " << style;
    EXPECT_TRUE(Colours(example, {20, 40, 6, 14}).contains(crossing)) << dark << " " << style;
  }
}

TEST_F(LayerSettingsTest, MissingRecordOrLayerOnlyCloses) {
  ModalDriver::WhenModal([](QWidget* dlg) { lxtest::Click(dlg, "OkButton"); });
  EXPECT_TRUE(lx::DoLayerSettingsDlg(nullptr));
  settings_.Layer = nullptr;
  EXPECT_TRUE(Run([](QWidget*) {}));
  EXPECT_TRUE(messages_.empty());
}

}  // namespace
