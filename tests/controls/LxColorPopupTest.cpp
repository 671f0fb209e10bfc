#include "lxcomp/LxColorPopup.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace {

using lx::TColor;
using lx::TLxColorBox;
using lx::TLxColorPopup;

struct LightCase {
  TColor color;
  bool light;
};

TEST(IsLightColor, SumOfComponentsAbove381IsLight) {
  const LightCase cases[] = {
      {0xffffff, true},  {0x000000, false}, {0x7f7f7f, false}, {0x7f7f80, true},   {0x007fff, true},
      {0x00ff00, false}, {0x0000ff, false}, {0xff7f00, true},  {0x10ffffff, true},
  };
  for (const auto& c : cases)
    EXPECT_EQ(lx::IsLightColor(c.color), c.light) << std::hex << c.color;
}

TEST(IsLightColor, SystemColoursFollowThePalette) {
  const QPalette saved = QApplication::palette();
  QPalette dark = saved;
  dark.setColor(QPalette::Button, Qt::black);
  dark.setColor(QPalette::ButtonText, Qt::white);
  QApplication::setPalette(dark);
  const TColor buttonFace = static_cast<TColor>(0xff00000f);
  const TColor buttonText = static_cast<TColor>(0xff000012);
  EXPECT_FALSE(lx::IsLightColor(buttonFace));
  EXPECT_TRUE(lx::IsLightColor(buttonText));
  QApplication::setPalette(saved);
}

// A dialog-like window with a colour box and a text field, and the popup aimed at the box.
class ColorPopupTest : public ::testing::Test {
 protected:
  void SetUp() override {
    window_.setObjectName("Owner");
    auto* layout = new QVBoxLayout(&window_);
    box_ = new TLxColorBox(&window_);
    box_->setFixedSize(40, 20);
    box_->SetColor(kStored);
    field_ = new QLineEdit(&window_);
    layout->addWidget(box_);
    layout->addWidget(field_);
    window_.setGeometry(100, 100, 400, 300);
    window_.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
    popup_ = new TLxColorPopup(&window_, box_);
  }
  void TearDown() override {
    if (popup_->isVisible()) popup_->close();
  }

  QLabel* Picture() const { return popup_->findChild<QLabel*>("ColorImage"); }
  QColor ShownInBox() const { return box_->grab().toImage().pixelColor(box_->width() / 2, 10); }
  TColor PictureAt(int x, int y) const {
    return lx::FromQColor(TLxColorPopup::ColorPicture().pixelColor(x, y));
  }
  void Open() {
    popup_->PopupBelowTarget();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(popup_));
  }

  static constexpr TColor kStored = 0x123456;
  QWidget window_;
  TLxColorBox* box_ = nullptr;
  QLineEdit* field_ = nullptr;
  TLxColorPopup* popup_ = nullptr;
};

TEST_F(ColorPopupTest, PictureHasHuesAndGreysFromBlackToWhite) {
  const QImage& picture = TLxColorPopup::ColorPicture();
  ASSERT_EQ(picture.size(), QSize(128, 128));
  EXPECT_EQ(picture.pixelColor(0, 127), QColor(Qt::black));
  EXPECT_EQ(picture.pixelColor(127, 127), QColor(Qt::white));
  EXPECT_EQ(picture.pixelColor(0, 55), QColor(Qt::red));
}

TEST_F(ColorPopupTest, MovingPreviewsWithoutStoringAndEscapeDropsThePreview) {
  Open();
  EXPECT_EQ(popup_->geometry().topLeft(), box_->mapToGlobal(QPoint(0, box_->height())));
  EXPECT_EQ(TLxColorPopup::Active(), popup_);
  QTest::mouseMove(Picture(), QPoint(20, 30));
  EXPECT_EQ(popup_->GetCurrentColor(), PictureAt(20, 30));
  EXPECT_EQ(box_->GetShownColor(), PictureAt(20, 30));
  EXPECT_EQ(ShownInBox(), lx::ToQColor(PictureAt(20, 30)));
  EXPECT_EQ(box_->GetColor(), kStored);

  QTest::keyClick(popup_, Qt::Key_Escape);
  EXPECT_FALSE(popup_->isVisible());
  EXPECT_EQ(TLxColorPopup::Active(), nullptr);
  EXPECT_EQ(box_->GetColor(), kStored);
  EXPECT_EQ(ShownInBox(), lx::ToQColor(kStored));
}

TEST_F(ColorPopupTest, ReleasingOverThePicturePicksAndCloses) {
  Open();
  QTest::mouseMove(Picture(), QPoint(5, 5));
  QTest::mousePress(Picture(), Qt::LeftButton, {}, QPoint(90, 120));
  EXPECT_TRUE(popup_->isVisible());
  QTest::mouseRelease(Picture(), Qt::LeftButton, {}, QPoint(90, 120));
  EXPECT_FALSE(popup_->isVisible());
  EXPECT_EQ(box_->GetColor(), PictureAt(90, 120));
  EXPECT_EQ(ShownInBox(), lx::ToQColor(PictureAt(90, 120)));
}

TEST_F(ColorPopupTest, ClickThroughTheWindowSystemPicksThePixelUnderTheMouse) {
  Open();
  const QPoint inPicture = Picture()->mapTo(popup_, QPoint(100, 40));
  QTest::mouseMove(popup_->windowHandle(), inPicture);
  EXPECT_EQ(box_->GetShownColor(), PictureAt(100, 40));
  QTest::mouseClick(popup_->windowHandle(), Qt::LeftButton, {}, inPicture);
  EXPECT_FALSE(popup_->isVisible());
  EXPECT_EQ(box_->GetColor(), PictureAt(100, 40));
}

TEST_F(ColorPopupTest, ClickOutsideClosesWithoutPick) {
  Open();
  QTest::mouseMove(Picture(), QPoint(64, 64));
  // Through the window system, as a real click reaches a window while a popup is open.
  const QPoint outside(window_.width() - 3, 3);
  ASSERT_FALSE(popup_->geometry().contains(window_.mapToGlobal(outside)));
  QTest::mouseClick(window_.windowHandle(), Qt::LeftButton, {}, outside);
  EXPECT_FALSE(popup_->isVisible());
  EXPECT_EQ(box_->GetColor(), kStored);
  EXPECT_EQ(ShownInBox(), lx::ToQColor(kStored));
}

TEST_F(ColorPopupTest, OwnsTheKeyboardWhileOpen) {
  field_->setFocus();
  Open();
  QTest::keyClick(window_.windowHandle(), Qt::Key_A);
  QTest::keyClick(window_.windowHandle(), Qt::Key_B);
  EXPECT_TRUE(popup_->isVisible());
  EXPECT_EQ(field_->text(), QString());
}

TEST_F(ColorPopupTest, LosingTheKeyboardClosesAfterTheEvent) {
  Open();
  popup_->WmKillFocus();
  EXPECT_TRUE(popup_->isVisible());
  QApplication::processEvents();
  EXPECT_FALSE(popup_->isVisible());
}

TEST_F(ColorPopupTest, ReaimedPopupPreviewsInTheNewBoxOnly) {
  auto* other = new TLxColorBox(&window_);
  other->SetColor(0xabcdef);
  window_.layout()->addWidget(other);
  Open();
  QTest::mouseMove(Picture(), QPoint(10, 10));
  popup_->SetTarget(other);
  EXPECT_EQ(box_->GetShownColor(), kStored);
  QTest::mouseRelease(Picture(), Qt::LeftButton, {}, QPoint(10, 10));
  EXPECT_EQ(other->GetColor(), PictureAt(10, 10));
  EXPECT_EQ(box_->GetColor(), kStored);
}

TEST_F(ColorPopupTest, BoxReportsClicksAndPaints) {
  QSignalSpy clicks(box_, &TLxColorBox::OnClick);
  QSignalSpy paints(box_, &TLxColorBox::OnPaint);
  QTest::mouseClick(box_, Qt::LeftButton);
  QTest::mouseClick(box_, Qt::RightButton);
  EXPECT_EQ(clicks.count(), 1);
  box_->SetColor(0x00ff00);
  box_->repaint();
  EXPECT_GE(paints.count(), 1);
  EXPECT_EQ(ShownInBox(), QColor(Qt::green));
}

}  // namespace
