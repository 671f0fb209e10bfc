#include "support/ModalDriver.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFocusEvent>
#include <QTimer>

#include <memory>

namespace lxtest {
namespace {

bool failure = false;

// Polls for a modal widget that is not `previous`, then runs the action on it.
void Poll(std::shared_ptr<std::vector<ModalDriver::Action>> actions, size_t index,
          QWidget* previous, std::shared_ptr<QElapsedTimer> clock, int timeoutMs) {
  QTimer::singleShot(10, [=] {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal && modal != previous && modal->isVisible()) {
      (*actions)[index](modal);
      if (index + 1 < actions->size()) {
        clock->restart();
        Poll(actions, index + 1, modal, clock, timeoutMs);
      }
      return;
    }
    if (clock->elapsed() > timeoutMs) {
      failure = true;
      return;
    }
    Poll(actions, index, previous, clock, timeoutMs);
  });
}

}  // namespace

void ModalDriver::WhenModal(Action action, int timeoutMs) {
  WhenModalSequence({std::move(action)}, timeoutMs);
}

void ModalDriver::WhenModalSequence(std::vector<Action> actions, int timeoutMs) {
  if (actions.empty()) return;
  auto clock = std::make_shared<QElapsedTimer>();
  clock->start();
  Poll(std::make_shared<std::vector<Action>>(std::move(actions)), 0,
       QApplication::activeModalWidget(), clock, timeoutMs);
}

bool ModalDriver::TakeFailure() {
  const bool was = failure;
  failure = false;
  return was;
}

void TypeInto(QWidget* root, const QString& name, const QString& text) {
  auto* edit = Find<QLineEdit>(root, name);
  if (!edit) return;
  edit->setFocus();
  edit->selectAll();
  QTest::keyClick(edit, Qt::Key_Delete);
  QTest::keyClicks(edit, text);
}

void Leave(QWidget* root, const QString& name) {
  auto* field = Find<QWidget>(root, name);
  if (!field) return;
  QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
  QApplication::sendEvent(field, &out);
}

void Click(QWidget* root, const QString& name) {
  if (auto* button = Find<QAbstractButton>(root, name)) QTest::mouseClick(button, Qt::LeftButton);
}

}  // namespace lxtest
