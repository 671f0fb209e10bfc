// The status line of a bottom dock: its texts, fields, repaint rules and progress bar.
#include <gtest/gtest.h>

#include <QApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>
#include <QTest>

#include <climits>
#include <functional>
#include <limits>
#include <memory>
#include <tuple>

#include "lxcomp/DockPanel.h"
#include "lxcomp/LxPlatform.h"

using namespace lx;

namespace {

TEST(StatusTextTest, MicronsAndGridValues) {
  const std::tuple<const wchar_t*, double, int, const char*> microns[] = {
      {L"x: ", 12500, 64, "x: 12.5"}, {L"x: ", 3000, 64, "x: 3"},
      {L"x: ", 0, 64, "x: 0"},        {L"x: ", 1234567, 64, "x: 1234.567"},
      {L"", -500, 64, "-0.5"},        {L"y: ", 1e6, 24, "y: 1000"},
      {L"", 0.001, 64, "0.000001"},   {L"", 0.0004, 64, "0"},
      {L"x: ", 12500, 7, "x: 12"},    {L"x: ", 12500, 6, "x: 12"},
      {L"x: ", 10000, 6, "x: 10"},    {L"x: ", 12500, 1, ""},
      {nullptr, 2500, 64, "2.5"},     {L"", 123456789012.0, 64, "123456789.012"},
      {L"", 7.8125, 64, "0.007812"}};  // an exact half rounds to even
  for (auto [prefix, value, size, text] : microns) {
    wchar_t out[64];
    std::fill(std::begin(out), std::end(out), L'#');
    PrintMicrons(prefix, value, out, size);
    EXPECT_EQ(QString::fromWCharArray(out), text);
  }
  wchar_t untouched[2] = {L'q', 0};
  PrintMicrons(L"x: ", 1, untouched, 0);
  EXPECT_EQ(untouched[0], L'q');
  PrintMicrons(L"x: ", 1, nullptr, 10);

  // grid values in micrometres, output size, text
  const std::tuple<double, double, double, double, int, const char*> grids[] = {
      {1, 1, 2, 2, 64, "grid: 1, 2"},        {1, .5, 2, 3, 64, "grid: 1 (0.5), 2 (3)"},
      {1, .5, 2, 2, 64, "grid: 1 (0.5), 2"}, {1, 1, 2, 3, 64, "grid: 1, 2 (3)"},
      {1, .5, 1, 3, 64, "grid: 1 (0.5)"},    {1, 1, 1, 1, 64, "grid: 1"},
      {1, 1, 1, 2, 64, "grid: 1"},           {1, .5, 2, 3, 8, "grid: 1"}};
  for (auto [a, b, c, d, size, text] : grids) {
    wchar_t out[64];
    PrintGridval(L"grid: ", a * 1e3, b * 1e3, c * 1e3, d * 1e3, out, size);
    EXPECT_EQ(QString::fromWCharArray(out), text);
  }
}

TEST(DrawRotatedElementTest, DrawsAcrossInsteadOfAlong) {
  QImage image(60, 60, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  const auto handle = QStyle::PE_IndicatorToolBarHandle;
  DrawRotatedElement(&painter, QApplication::style(), handle, 10, 5, 40, 12);
  DrawRotatedElement(&painter, nullptr, handle, 0, 0, 40, 12);
  DrawRotatedElement(&painter, QApplication::style(), handle, 0, 0, 0, 0);
  painter.end();
  int drawn = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (qAlpha(image.pixel(x, y)) != 0) {
        ++drawn;
        EXPECT_TRUE(QRect(10, 5, 12, 40).contains(x, y)) << x << "," << y;
      }
  EXPECT_GT(drawn, 0);
}

// Records what the dock repaints.
class StatusTest : public testing::Test, public QObject {
 protected:
  void SetUp() override {
    SetVisualStyles(false);
    host = std::make_unique<QWidget>();
    host->resize(1200, 300);
    dock = new TLxDockPanel(host.get());
    dock->SetAlign(alBottom);
    dock->Loaded();
    host->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(host.get()));
    QApplication::processEvents();
    QApplication::processEvents();
    dock->installEventFilter(this);
  }
  void TearDown() override {
    host.reset();
    SetVisualStyles(true);
  }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
  QRegion TakePainted() {
    QApplication::processEvents();
    return std::exchange(painted, QRegion());
  }
  QImage Picture() { return dock->grab().toImage(); }
  // `change` repaints exactly `area`; doing it again repaints nothing.
  void ExpectRepaint(const std::function<void()>& change, QRect area) {
    TakePainted();
    change();
    EXPECT_EQ(TakePainted().boundingRect(), area);
    change();
    EXPECT_TRUE(TakePainted().isEmpty());
  }

  std::unique_ptr<QWidget> host;
  TLxDockPanel* dock = nullptr;
  QRegion painted;
};

TEST_F(StatusTest, FieldsFromTheRightEdge) {
  const int h = dock->GetStatusHeight();
  ASSERT_EQ(h, 18);
  EXPECT_EQ(dock->height(), 25 + 18);
  const int band = dock->height() - h;
  EXPECT_EQ(dock->YRect(), QRect(1200 - 7 * h, band, 7 * h, h));
  EXPECT_EQ(dock->XRect(), QRect(1200 - 14 * h, band, 7 * h, h));
  EXPECT_EQ(dock->GridRect(), QRect(1200 - 28 * h, band, 14 * h, h));
  EXPECT_EQ(dock->MessageRect(), QRect(4, band, 1200 - 28 * h - 8, h));
  EXPECT_EQ(dock->ProgressRect(), QRect(4, band, 687 - 4, h));  // right edge trunc(W - 28.5h)
  dock->SetScaleFactor(1.5f);
  Picture();
  QApplication::processEvents();
  EXPECT_EQ(dock->GetStatusHeight(), 27);
  EXPECT_EQ(dock->height(), 25 + 27);
  for (float bad : {0.0f, -2.0f, 1e30f, std::numeric_limits<float>::infinity()})
    dock->SetScaleFactor(bad);
  EXPECT_EQ(dock->GetScaleFactor(), 1.5f);
}

TEST_F(StatusTest, SettersRepaintOnlyTheirFieldWhenTheValueChanges) {
  const QRect x = dock->XRect(), y = dock->YRect();
  ExpectRepaint([&] { dock->SetXY(12500, 3000); }, x.united(y));
  EXPECT_EQ(dock->GetXText(), "x: 12.5");
  EXPECT_EQ(dock->GetYText(), "y: 3");
  ExpectRepaint([&] { dock->SetGrid(1000, 1000, 1000, 2000); }, dock->GridRect());
  EXPECT_EQ(dock->GetGridText(), "grid: 1");
  ExpectRepaint([&] { dock->SetStatusMessage("Ready"); },
                dock->ProgressRect().united(dock->MessageRect()));
  ExpectRepaint([&] { dock->SetX(L"x: typed"); }, x);
  EXPECT_EQ(dock->GetXText(), "x: typed");
  EXPECT_EQ(dock->GetXValue(), 1.0) << "a text resets the number";
  ExpectRepaint([&] { dock->SetY(L"y: typed"); }, x.united(y));
  EXPECT_EQ(dock->GetYValue(), 1.0);
  dock->SetXY(5000, 6000);
  EXPECT_EQ(dock->GetXText(), "x: 5") << "the next numeric call renders again";
  dock->SetGrid(L"grid: off");
  EXPECT_EQ(dock->GetGridValues(), (std::array<double, 4>{1.0, 1.0, 1.0, 1.0}));
  dock->SetX(nullptr);
  EXPECT_EQ(dock->GetXText(), "");
}

TEST_F(StatusTest, ProgressBarAndItsRemoval) {
  const QRect r = dock->ProgressRect();
  const int k = (r.top() + r.bottom() + 1) / 4, mid = (r.top() + r.bottom() + 1) / 2;
  const QColor blue(0, 0, 255), grey(0x80, 0x80, 0x80);
  auto barEnd = [&](int percent) { return (r.width() - 2 * k) * percent / 100 + r.left() + k; };
  for (int percent : {80, 50}) {  // the shorter bar erases the longer one
    dock->SetProgress(percent);
    const QImage picture = Picture();
    EXPECT_EQ(picture.pixelColor(r.left() + k + 5, mid), blue) << percent;
    EXPECT_EQ(picture.pixelColor(barEnd(percent) - 2, mid), blue) << percent;
    EXPECT_EQ(picture.pixelColor(barEnd(percent) + k, mid), grey) << percent;
  }
  for (int wild : {INT_MIN, INT_MAX}) {  // drawn without overflow
    dock->SetProgress(wild);
    Picture();
  }
  ExpectRepaint([&] { dock->SetProgress(100); }, r);
  const QImage picture = Picture();
  EXPECT_NE(picture.pixelColor(r.left() + k + 5, mid), blue);
  EXPECT_NE(picture.pixelColor(barEnd(50) + k, mid), grey);
}

TEST_F(StatusTest, NarrowDocksDropFieldsFromTheLeftAndClipLongMessages) {
  dock->SetStatusMessage(QString(400, QLatin1Char('m')));
  const QRect message = dock->MessageRect();
  EXPECT_EQ(Picture().pixelColor(message.right() + 3, message.center().y()),
            dock->palette().color(QPalette::Button))
      << "nothing drawn past the message field";
  host->resize(13 * 18, 300);
  QApplication::processEvents();
  EXPECT_GE(dock->YRect().left(), 0);
  EXPECT_LT(dock->XRect().left(), 0);
  EXPECT_LT(dock->GridRect().left(), 0);
  EXPECT_LE(dock->MessageRect().width(), 0);
  dock->SetXY(1000, 2000);
  dock->SetProgress(30);
  Picture();
  host->resize(0, 0);
  Picture();
}

}  // namespace
