// The status line of a bottom dock: its texts, fields, repaint rules and progress bar.
#include <gtest/gtest.h>

#include <QApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>
#include <QTest>

#include <memory>

#include "lxcomp/DockPanel.h"
#include "lxcomp/LxPlatform.h"

using namespace lx;

namespace {

QString Microns(const wchar_t* prefix, double value, int size = 64) {
  wchar_t out[64];
  std::fill(std::begin(out), std::end(out), L'#');
  PrintMicrons(prefix, value, out, size);
  return QString::fromWCharArray(out);
}

TEST(PrintMicronsTest, Texts) {
  struct Row {
    const wchar_t* prefix;
    double value;
    int size;
    const char* text;
  } rows[] = {{L"x: ", 12500, 64, "x: 12.5"}, {L"x: ", 3000, 64, "x: 3"},
              {L"x: ", 0, 64, "x: 0"},        {L"x: ", 1234567, 64, "x: 1234.567"},
              {L"", -500, 64, "-0.5"},        {L"y: ", 1e6, 24, "y: 1000"},
              {L"", 0.001, 64, "0.000001"},   {L"", 0.0004, 64, "0"},
              {L"x: ", 12500, 7, "x: 12"},    {L"x: ", 12500, 6, "x: 12"},
              {L"x: ", 10000, 6, "x: 10"},    {L"x: ", 12500, 1, ""},
              {nullptr, 2500, 64, "2.5"},     {L"", 123456789012.0, 64, "123456789.012"}};
  for (const Row& row : rows)
    EXPECT_EQ(Microns(row.prefix, row.value, row.size), row.text) << row.text;
  wchar_t untouched[2] = {L'q', 0};
  PrintMicrons(L"x: ", 1, untouched, 0);
  EXPECT_EQ(untouched[0], L'q');
  PrintMicrons(L"x: ", 1, nullptr, 10);
}

TEST(PrintGridvalTest, EveryForm) {
  struct Row {
    double a, b, c, d;
    const char* text;
  } rows[] = {
      {1000, 1000, 2000, 2000, "grid: 1, 2"},      {1000, 500, 2000, 3000, "grid: 1 (0.5), 2 (3)"},
      {1000, 500, 2000, 2000, "grid: 1 (0.5), 2"}, {1000, 1000, 2000, 3000, "grid: 1, 2 (3)"},
      {1000, 500, 1000, 3000, "grid: 1 (0.5)"},    {1000, 1000, 1000, 1000, "grid: 1"},
      {1000, 1000, 1000, 2000, "grid: 1"}};
  for (const Row& row : rows) {
    wchar_t out[64];
    PrintGridval(L"grid: ", row.a, row.b, row.c, row.d, out, 64);
    EXPECT_EQ(QString::fromWCharArray(out), row.text);
  }
  wchar_t shortOut[8];
  PrintGridval(L"grid: ", 1000, 500, 2000, 3000, shortOut, 8);
  EXPECT_EQ(QString::fromWCharArray(shortOut), "grid: 1");
}

TEST(DrawRotatedElementTest, DrawsAcrossInsteadOfAlong) {
  QImage image(60, 60, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  DrawRotatedElement(&painter, QApplication::style(), QStyle::PE_IndicatorToolBarHandle, 10, 5, 40,
                     12);
  DrawRotatedElement(&painter, nullptr, QStyle::PE_IndicatorToolBarHandle, 0, 0, 40, 12);
  DrawRotatedElement(&painter, QApplication::style(), QStyle::PE_IndicatorToolBarHandle, 0, 0, 0,
                     0);
  painter.end();
  const QRect turned(10, 5, 12, 40);
  int drawn = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (qAlpha(image.pixel(x, y)) != 0) {
        ++drawn;
        EXPECT_TRUE(turned.contains(x, y)) << x << "," << y;
      }
  EXPECT_GT(drawn, 0);
}

// Records the paint events of a widget.
class PaintSpy : public QObject {
 public:
  explicit PaintSpy(QWidget* widget) { widget->installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) region += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
  QRegion Take() {
    QApplication::processEvents();
    QRegion taken = region;
    region = QRegion();
    return taken;
  }
  QRegion region;
};

class StatusTest : public testing::Test {
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
    spy = std::make_unique<PaintSpy>(dock);
  }
  void TearDown() override {
    spy.reset();
    host.reset();
    SetVisualStyles(true);
  }
  QImage Picture() { return dock->grab().toImage(); }

  std::unique_ptr<QWidget> host;
  TLxDockPanel* dock = nullptr;
  std::unique_ptr<PaintSpy> spy;
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
}

TEST_F(StatusTest, SettersRepaintOnlyTheirFieldWhenTheValueChanges) {
  spy->Take();
  dock->SetXY(12500, 3000);
  EXPECT_EQ(dock->GetXText(), "x: 12.5");
  EXPECT_EQ(dock->GetYText(), "y: 3");
  EXPECT_EQ(spy->Take().boundingRect(), dock->XRect().united(dock->YRect()));
  dock->SetXY(12500, 3000);
  EXPECT_TRUE(spy->Take().isEmpty());

  dock->SetGrid(1000, 1000, 1000, 2000);
  EXPECT_EQ(dock->GetGridText(), "grid: 1");
  EXPECT_EQ(spy->Take().boundingRect(), dock->GridRect());
  dock->SetGrid(1000, 1000, 1000, 2000);
  EXPECT_TRUE(spy->Take().isEmpty());

  dock->SetStatusMessage("Ready");
  EXPECT_EQ(spy->Take().boundingRect(), dock->ProgressRect().united(dock->MessageRect()));
  dock->SetStatusMessage("Ready");
  EXPECT_TRUE(spy->Take().isEmpty());
}

TEST_F(StatusTest, TextSettersResetTheNumbers) {
  dock->SetXY(5000, 6000);
  spy->Take();
  dock->SetX(L"x: typed");
  EXPECT_EQ(dock->GetXText(), "x: typed");
  EXPECT_EQ(dock->GetXValue(), 1.0);
  EXPECT_EQ(spy->Take().boundingRect(), dock->XRect());
  dock->SetY(L"y: typed");
  EXPECT_EQ(dock->GetYValue(), 1.0);
  EXPECT_EQ(spy->Take().boundingRect(), dock->XRect().united(dock->YRect()));
  dock->SetX(L"x: typed");
  EXPECT_TRUE(spy->Take().isEmpty());
  dock->SetXY(5000, 6000);
  EXPECT_EQ(dock->GetXText(), "x: 5") << "the next numeric call renders again";
  dock->SetGrid(L"grid: off");
  EXPECT_EQ(dock->GetGridValues(), (std::array<double, 4>{1.0, 1.0, 1.0, 1.0}));
  dock->SetGrid(L"grid: off");
  dock->SetX(nullptr);
  EXPECT_EQ(dock->GetXText(), "");
}

TEST_F(StatusTest, ProgressBarAndItsRemoval) {
  const QRect r = dock->ProgressRect();
  const int top = r.top(), bottom = r.bottom() + 1, right = r.right() + 1;
  const int k = (top + bottom) / 4, mid = (top + bottom) / 2;
  const QColor blue(0, 0, 255), grey(0x80, 0x80, 0x80);
  dock->SetProgress(80);
  QImage picture = Picture();
  const int end80 = (right - r.left() - 2 * k) * 80 / 100 + r.left() + k;
  EXPECT_EQ(picture.pixelColor(r.left() + k + 5, mid), blue);
  EXPECT_EQ(picture.pixelColor(end80 - 2, mid), blue);
  EXPECT_EQ(picture.pixelColor(end80 + k, mid), grey);
  dock->SetProgress(50);
  picture = Picture();
  const int end50 = (right - r.left() - 2 * k) * 50 / 100 + r.left() + k;
  EXPECT_EQ(picture.pixelColor(end50 - 2, mid), blue);
  EXPECT_EQ(picture.pixelColor(end50 + k, mid), grey) << "the longer bar was erased";
  spy->Take();
  dock->SetProgress(100);
  EXPECT_EQ(spy->Take().boundingRect(), r);
  picture = Picture();
  EXPECT_NE(picture.pixelColor(r.left() + k + 5, mid), blue);
  EXPECT_NE(picture.pixelColor(end50 + k, mid), grey);
  spy->Take();
  dock->SetProgress(100);
  EXPECT_TRUE(spy->Take().isEmpty());
}

TEST_F(StatusTest, StatusHeightFollowsTheScale) {
  dock->SetScaleFactor(1.5f);
  Picture();
  QApplication::processEvents();
  EXPECT_EQ(dock->GetStatusHeight(), 27);
  EXPECT_DOUBLE_EQ(dock->GetEffectiveScale(), 1.5);
  EXPECT_EQ(dock->height(), 25 + 27);
  dock->SetScaleFactor(0.0f);
  dock->SetScaleFactor(-2.0f);
  EXPECT_EQ(dock->GetScaleFactor(), 1.5f);
}

TEST_F(StatusTest, NarrowDocksDropFieldsFromTheLeft) {
  host->resize(13 * 18, 300);
  QApplication::processEvents();
  EXPECT_GE(dock->YRect().left(), 0);
  EXPECT_LT(dock->XRect().left(), 0);
  EXPECT_LT(dock->GridRect().left(), 0);
  EXPECT_LE(dock->MessageRect().width(), 0);
  dock->SetXY(1000, 2000);
  dock->SetProgress(30);
  dock->SetStatusMessage("long message that has no room");
  Picture();
  host->resize(0, 0);
  Picture();
}

TEST_F(StatusTest, LongMessagesEndInAnEllipsis) {
  dock->SetStatusMessage(QString(400, QLatin1Char('m')));
  const QImage picture = Picture();
  const QRect message = dock->MessageRect();
  const QColor face = dock->palette().color(QPalette::Button);
  EXPECT_EQ(picture.pixelColor(message.right() + 3, message.center().y()), face)
      << "nothing drawn past the message field";
}

}  // namespace
