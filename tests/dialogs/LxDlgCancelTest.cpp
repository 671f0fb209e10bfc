#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include "lxcomp/LxDlgCancel.h"
#include "lxcomp/LxProgress.h"
#include "support/ModalDriver.h"

namespace {

TEST(TDlgCancel, ShowsTimeCountAndRaisesTicks) {
  lx::TDlgCancel box;
  EXPECT_EQ(box.windowTitle(), "Executing script - please wait");
  EXPECT_EQ(box.GetHelpContext(), 232);
  EXPECT_EQ(box.Time()->text(), "0:00:00");
  EXPECT_EQ(box.NumObjects()->text(), "0");
  EXPECT_TRUE(box.ProgressIndicator()->GetAutonomous());
  EXPECT_EQ(box.Timer1()->interval(), 1000);
  int ticks = 0;
  box.Timer1Timer();  // no counter, no tick receiver yet
  EXPECT_EQ(box.NumObjects()->text(), "0");
  std::int64_t objects = 5000000000;
  box.SetObjectCounter(&objects);
  QObject::connect(&box, &lx::TDlgCancel::OnTick, [&](QObject* sender) {
    EXPECT_EQ(sender, &box);
    ++ticks;
  });
  for (int i = 1; i < 3725; ++i)
    box.Timer1Timer();
  EXPECT_EQ(box.Time()->text(), "1:02:05");
  EXPECT_EQ(box.NumObjects()->text(), "5000000000");
  EXPECT_EQ(ticks, 3724);
}

TEST(TDlgCancel, CancelOnlyAsksAndTheOwnerCloses) {
  lx::TDlgCancel box;
  box.show();
  EXPECT_FALSE(box.OkButton()->isVisible());
  EXPECT_FALSE(box.HelpButton()->isVisible());
  lxtest::Click(&box, "CancelButton");  // no cancel receiver: nothing, the box stays
  QTest::keyClick(&box, Qt::Key_Escape);
  EXPECT_TRUE(box.isVisible());
  int cancels = 0;
  QObject::connect(&box, &lx::TDlgCancel::OnCancel, [&](QObject*) { ++cancels; });
  lxtest::ModalDriver::WhenModal([&](QWidget* d) {
    lxtest::Click(d, "CancelButton");
    EXPECT_TRUE(d->isVisible());
    EXPECT_EQ(cancels, 1);
    static_cast<QDialog*>(d)->done(lx::mrOk);
  });
  box.hide();
  EXPECT_EQ(box.exec(), lx::mrOk);
  EXPECT_FALSE(lxtest::ModalDriver::TakeFailure());
}

}  // namespace
