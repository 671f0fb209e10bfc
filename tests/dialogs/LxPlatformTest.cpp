#include <gtest/gtest.h>

#include <QWidget>

#include "lxcomp/LxDialogs.h"
#include "lxcomp/LxPlatform.h"

namespace {

struct ColorCase {
  lx::TColor value;
  QColor color;
};

TEST(TColor, RedIsTheLowByte) {
  const ColorCase cases[] = {
      {0x000000ff, QColor(255, 0, 0)},   {0x0000ff00, QColor(0, 255, 0)},
      {0x00ff0000, QColor(0, 0, 255)},   {0x00f616ba, QColor(186, 22, 246)},
      {0x00808000, QColor(0, 128, 128)}, {0x00ffffff, QColor(255, 255, 255)},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(lx::ToQColor(c.value), c.color) << std::hex << c.value;
    EXPECT_EQ(lx::FromQColor(c.color), c.value) << std::hex << c.value;
  }
}

TEST(TColor, HighByteIsIgnoredOnTheWayOut) {
  EXPECT_EQ(lx::ToQColor(-1), QColor(255, 255, 255));
  EXPECT_EQ(lx::FromQColor(QColor(10, 20, 30, 40)), 0x1e140a);
}

class MessageRouting : public ::testing::Test {
 protected:
  void TearDown() override {
    lx::SetMessageHook(nullptr);
    lx::SetMainForm(nullptr);
  }
};

TEST_F(MessageRouting, NothingIsShownWithoutAVisibleMainForm) {
  int calls = 0;
  lx::SetMessageHook([&](const QString&, int, int) { return ++calls, lx::mrOk; });
  lx::ShowK6Error(QStringLiteral("lost"), 0);
  QWidget hidden;
  lx::SetMainForm(&hidden);
  lx::ShowK6Error(L"still lost", 0);
  EXPECT_EQ(calls, 0);
}

TEST_F(MessageRouting, UnattendedAnswersDependOnKindAndForm) {
  struct Case {
    int kind;
    int wide;
    int string;
  };
  const Case cases[] = {{-1, 1, 0}, {0, 1, 0}, {1, 6, 6}, {2, 6, 6}, {3, 1, 0}};
  for (const Case& c : cases) {
    EXPECT_EQ(lx::ShowK6Message(L"q", c.kind, 0), c.wide) << c.kind;
    EXPECT_EQ(lx::ShowK6Message(QStringLiteral("q"), c.kind, 0), c.string) << c.kind;
  }
}

TEST_F(MessageRouting, HookReceivesTextKindAndHelpContext) {
  QWidget main;
  main.show();
  lx::SetMainForm(&main);
  QString text;
  int kind = 99, help = 0;
  lx::SetMessageHook([&](const QString& t, int k, int h) {
    text = t, kind = k, help = h;
    return lx::mrNo;
  });
  lx::ShowK6Error(L"'abc' is not a valid number", 4040);
  EXPECT_EQ(text, "'abc' is not a valid number");
  EXPECT_EQ(kind, -1);
  EXPECT_EQ(help, 4040);
  EXPECT_EQ(lx::ShowK6Message(QStringLiteral("Replace?"), 1, 7), lx::mrNo);
  EXPECT_EQ(kind, 1);
}

TEST_F(MessageRouting, MainFormIsForgottenWhenDestroyed) {
  {
    QWidget main;
    lx::SetMainForm(&main);
    EXPECT_EQ(lx::MainForm(), &main);
  }
  EXPECT_EQ(lx::MainForm(), nullptr);
  EXPECT_FALSE(lx::MainFormShowing());
}

TEST(ScaleFactor, IsOneAtNinetySixDpiAndWithoutAWidget) {
  EXPECT_DOUBLE_EQ(lx::ScaleFactor(nullptr), 1.0);
  QWidget w;
  EXPECT_GT(lx::ScaleFactor(&w), 0.0);
}

}  // namespace
