// The ground of the dialog suites: a visible main form, so that messages are shown, and a hook
// that records every message instead of showing it.
#pragma once

#include <gtest/gtest.h>

#include <QStringList>
#include <QWidget>

#include <vector>

#include "lxcomp/LxPlatform.h"
#include "support/ModalDriver.h"

namespace lxtest {

class DialogTest : public ::testing::Test {
 protected:
  struct Message {
    QString text;
    int kind;
    int help;
  };

  void SetUp() override {
    main_.show();
    lx::SetMainForm(&main_);
    lx::SetMessageHook([this](const QString& text, int kind, int help) {
      messages_.push_back({text, kind, help});
      return lx::mrOk;
    });
  }
  void TearDown() override {
    EXPECT_FALSE(ModalDriver::TakeFailure());
    lx::SetMessageHook(nullptr);
    lx::SetHelpHandler(nullptr);
    lx::SetMainForm(nullptr);
  }
  // The texts shown, each checked to be an error box with this help context.
  QStringList Errors(int help) const {
    QStringList texts;
    for (const Message& m : messages_) {
      EXPECT_EQ(m.kind, -1) << m.text.toStdString();
      EXPECT_EQ(m.help, help) << m.text.toStdString();
      texts << m.text;
    }
    return texts;
  }

  QWidget main_;
  std::vector<Message> messages_;
};

}  // namespace lxtest
