#include <gtest/gtest.h>

#include <QImage>

#include "lxcomp/LxLayer.h"

namespace {

using lx::TK5Layer;

TEST(TK5Layer, NamesComeFromIndexAndDatatype) {
  struct Case {
    int index, datatype;
    QString given, longName, shortName;
  };
  const Case cases[] = {{5, 0, "", "Layer 5", "L5"},
                        {5, 3, "", "Layer 5 Datatype 3", "L5D3"},
                        {7, 2, "Metal", "Metal", "L7D2"},
                        {0, 0, QString(), "Layer 0", "L0"}};
  for (const Case& c : cases) {
    const TK5Layer layer(1, c.index, c.datatype, c.given);
    EXPECT_EQ(layer.LongName, c.longName);
    EXPECT_EQ(layer.ShortName, c.shortName);
  }
}

TEST(TK5Layer, ColoursAndStylesAreNormalised) {
  struct Case {
    int number, fill, line;
    char fillStyle, lineStyle;
    lx::TColor wantFill, wantLine;
    int wantFillStyle, wantLineStyle;
  };
  const Case cases[] = {
      {0, -1, 0x123456, 3, 2, 0x808000, 0x808000, -1, 0},  // default colour, solid, solid
      {254, -1, -1, 0, 0, 0xf616ba, 0xf616ba, -1, 0},
      {24, -1, -1, 0, 0, 0x808080, 0x808080, -1, 0},
      {1, -1, -1, 0, 0, 0xe08080, 0xe08080, -1, 0},
      {2, 0x00ff00, -5, 4, 1, 0x00ff00, 0x00ff00, 4, 1},  // negative line colour takes fill
      {2, 0x00ff00, 0xff, 9, 7, 0x00ff00, 0xff, -1, 0},   // out-of-range styles become solid
      {2, 0x00ff00, 0xff, 6, 4, 0x00ff00, 0xff, 6, 4},
  };
  for (const Case& c : cases) {
    const TK5Layer layer(c.number, 1, 0, "", c.fill, c.line, c.fillStyle, c.lineStyle, true);
    EXPECT_EQ(layer.FillColor, c.wantFill) << c.number;
    EXPECT_EQ(layer.LineColor, c.wantLine) << c.number;
    EXPECT_EQ(layer.FillStyle, c.wantFillStyle) << c.number;
    EXPECT_EQ(layer.LineStyle, c.wantLineStyle) << c.number;
    EXPECT_EQ(layer.FlagP, 1);
    EXPECT_TRUE(layer.IsClearField);
  }
}

TEST(TK5Layer, CopyFromPointerIsUnlinkedAndNormalised) {
  TK5Layer next(9);
  TK5Layer source(3, 4, 5, "Poly", 0x0000ff, 0x00ff00, 2, 3, true);
  source.Next = &next;
  source.LinkT = 77;
  source.FlagQ = 2;
  source.LineColor = -1;
  source.FillStyle = 8;
  const TK5Layer copy(&source);
  EXPECT_EQ(copy.LongName, "Poly");
  EXPECT_EQ(copy.Number, 3);
  EXPECT_EQ(copy.LineColor, 0x0000ff);
  EXPECT_EQ(copy.FillStyle, -1);
  EXPECT_EQ(copy.LineStyle, 3);
  EXPECT_EQ(copy.FlagQ, 2);
  EXPECT_EQ(copy.Next, nullptr);
  EXPECT_EQ(copy.LinkT, 0u);
  const TK5Layer fromNull(static_cast<const TK5Layer*>(nullptr));
  EXPECT_EQ(fromNull.LongName, "Layer 0");
}

TEST(TK5Layer, IsNeverEqualNotEvenToItself) {
  const TK5Layer layer(1);
  EXPECT_FALSE(layer == layer);
}

QImage White(int w, int h) {
  QImage image(w, h, QImage::Format_RGB32);
  image.fill(Qt::black);
  return image;
}

TEST(TK5Layer, SwatchIsAnInsetRectangleWithMask) {
  TK5Layer solid(1, 1, 0, "", 0x0000ff, 0x00ff00, -1, 0, false);
  QImage image = White(22, 16), mask = White(22, 16);
  solid.DrawBitmap(&image, &mask);
  EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(2, 2), QColor(0, 255, 0));    // outline, line colour
  EXPECT_EQ(image.pixelColor(19, 13), QColor(0, 255, 0));  // right and bottom edges at w-3, h-3
  EXPECT_EQ(image.pixelColor(20, 14), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(10, 8), QColor(255, 0, 0));  // fill colour
  EXPECT_EQ(mask.pixelColor(10, 8), QColor(Qt::black));
  EXPECT_EQ(mask.pixelColor(0, 0), QColor(Qt::white));

  TK5Layer clear(1, 1, 0, "", 0x0000ff, 0x00ff00, 6, 0, false);
  clear.DrawBitmap(&image, &mask);
  EXPECT_EQ(image.pixelColor(10, 8), QColor(Qt::white));
  EXPECT_EQ(mask.pixelColor(10, 8), QColor(Qt::white));
  EXPECT_EQ(mask.pixelColor(2, 2), QColor(Qt::black));
  clear.DrawBitmap(nullptr, nullptr);  // nothing to draw into
}

TEST(TK5Layer, HatchesLeaveGapsInImageAndMask) {
  for (char style = 0; style <= 5; ++style) {
    TK5Layer hatched(1, 1, 0, "", 0x0000ff, 0x00ff00, style, 1, false);
    QImage image = White(22, 16), mask = White(22, 16);
    hatched.DrawBitmap(&image, &mask);
    int red = 0, white = 0, black = 0;
    for (int y = 4; y < 12; ++y)
      for (int x = 4; x < 18; ++x) {
        red += image.pixelColor(x, y) == QColor(255, 0, 0);
        white += image.pixelColor(x, y) == QColor(Qt::white);
        black += mask.pixelColor(x, y) == QColor(Qt::black);
      }
    EXPECT_GT(red, 0) << int(style);
    EXPECT_GT(white, 0) << int(style);
    EXPECT_EQ(black, red) << int(style);
  }
}

}  // namespace
