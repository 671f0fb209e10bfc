// A parent widget that records the keys its child controls let through.
#pragma once

#include <QKeyEvent>
#include <QList>
#include <QWidget>

namespace lxtest {

class KeyRecorder : public QWidget {
 public:
  QList<int> keys;

 protected:
  void keyPressEvent(QKeyEvent* event) override { keys.append(event->key()); }
};

}  // namespace lxtest
