// A temporary folder for tests that work on real files.
#pragma once

#include <QTemporaryDir>

namespace lxtest {

class TempDir {
 public:
  QString Path(const QString& name) const { return dir_.filePath(name); }
  QString Root() const { return dir_.path(); }

 private:
  QTemporaryDir dir_;
};

}  // namespace lxtest
