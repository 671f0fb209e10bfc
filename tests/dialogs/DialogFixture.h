// The ground of the dialog suites: a visible main form, so that messages are shown, and a hook
// that records every message instead of showing it.
#pragma once

#include <gtest/gtest.h>

#include <QLabel>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <initializer_list>
#include <utility>
#include <vector>

#include "lxcomp/LxPlatform.h"
#include "support/ModalDriver.h"

namespace lxtest {

// What a field or a label shows, and whether a control is on screen.
inline QString Field(QWidget* root, const QString& name) {
  auto* edit = Find<QLineEdit>(root, name);
  return edit ? edit->text() : QString();
}
// The texts of several fields, joined by ';'.
inline QString Fields(QWidget* root, std::initializer_list<const char*> names) {
  QStringList texts;
  for (const char* name : names)
    texts << Field(root, name);
  return texts.join(';');
}
inline QString Caption(QWidget* root, const QString& name) {
  auto* label = Find<QLabel>(root, name);
  return label ? label->text() : QString();
}
// The texts of several labels, joined by ' '.
inline QString Captions(QWidget* root, std::initializer_list<const char*> names) {
  QStringList texts;
  for (const char* name : names)
    texts << Caption(root, name);
  return texts.join(' ');
}
inline bool IsShown(QWidget* root, const QString& name) {
  auto* widget = Find<QWidget>(root, name);
  return widget && widget->isVisible();
}

// Types into several fields in turn: TypeInto(dlg, {{"EditX", "1"}, {"EditY", "2"}}).
inline void TypeInto(QWidget* root, std::initializer_list<std::pair<const char*, QString>> texts) {
  for (const auto& [name, text] : texts)
    TypeInto(root, name, text);
}
inline bool Checked(QWidget* root, const QString& name) {
  auto* button = Find<QAbstractButton>(root, name);
  return button && button->isChecked();
}
// Flips a check box or radio button from the keyboard, as a user does.
inline void Toggle(QWidget* root, const QString& name) {
  if (auto* button = Find<QAbstractButton>(root, name)) {
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
  }
}

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

  // Schedules `act` on the dialog `open` shows, runs `open`, and cancels a dialog left open.
  template <class Dlg>
  static bool Drive(const std::function<bool()>& open, const std::function<void(Dlg*)>& act) {
    ModalDriver::WhenModal([&](QWidget* w) {
      auto* dlg = qobject_cast<Dlg*>(w);
      if (!dlg) return ADD_FAILURE() << "not a " << Dlg::staticMetaObject.className(), void();
      act(dlg);
      if (dlg->isVisible()) dlg->reject();
    });
    const bool result = open();
    EXPECT_FALSE(ModalDriver::TakeFailure());
    return result;
  }

  QWidget main_;
  std::vector<Message> messages_;
};

}  // namespace lxtest
