// Asks whether existing symbol definitions may be replaced, listing their names.
#pragma once

#include <QStringList>

#include <memory>

#include "lxcomp/LxDlgBase.h"

class QListWidget;

namespace Ui {
class TDlgOverwrite;
}

namespace lx {

class TDlgOverwrite : public TLxDlgBase {
  Q_OBJECT

 public:
  explicit TDlgOverwrite(QWidget* owner = nullptr);
  ~TDlgOverwrite() override;

  QListWidget* ListBox1() const;
  void SetNames(const QStringList& names);

 private:
  std::unique_ptr<Ui::TDlgOverwrite> ui_;
};

}  // namespace lx
