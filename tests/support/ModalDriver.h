// Drives modal dialogs as a user does: waits until the dialog is the active modal widget, acts
// on it through the objectNames of its controls, and closes it.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QString>
#include <QTest>
#include <QWidget>

#include <functional>

namespace lxtest {

// Schedules `action` to run on the next modal widget that appears, then returns at once; the
// caller then opens the dialog (exec blocks) and the action closes it. If no modal widget
// appears within timeoutMs, the action is not run and Failed() reports it.
class ModalDriver {
 public:
  using Action = std::function<void(QWidget* dialog)>;
  static void WhenModal(Action action, int timeoutMs = 5000);
  // Runs several actions, one per modal widget in the order they appear (nested boxes too).
  static void WhenModalSequence(std::vector<Action> actions, int timeoutMs = 5000);
  // True when a scheduled action never found its dialog since the last call.
  static bool TakeFailure();
};

// The child with that objectName and type; fails the running test when it is missing.
template <class T>
T* Find(QWidget* root, const QString& name) {
  T* child = root ? root->findChild<T*>(name) : nullptr;
  if (!child)
    ADD_FAILURE() << "no " << T::staticMetaObject.className() << " named " << name.toStdString();
  return child;
}

// Replaces a field's text by typing, as a user does (select all, type).
void TypeInto(QWidget* root, const QString& name, const QString& text);
// Moves focus out of a field, so that its leave-field handling runs.
void Leave(QWidget* root, const QString& name);
// Clicks a button by objectName.
void Click(QWidget* root, const QString& name);

}  // namespace lxtest
