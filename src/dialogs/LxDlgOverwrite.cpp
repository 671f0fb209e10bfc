#include "lxcomp/LxDlgOverwrite.h"

#include <QListWidget>
#include <QStyle>

#include "ui_LxDlgOverwrite.h"

namespace lx {

TDlgOverwrite::TDlgOverwrite(QWidget* owner) : TLxDlgBase(owner), ui_(new Ui::TDlgOverwrite) {
  ui_->setupUi(ClientArea());
  setObjectName(QStringLiteral("DlgOverwrite"));
  setWindowTitle(QStringLiteral("Replace existing symbols?"));
  const QIcon icon = style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this);
  ui_->Image1->setPixmap(icon.pixmap(32, 32));
  resize(401, 229);
}

TDlgOverwrite::~TDlgOverwrite() = default;

QListWidget* TDlgOverwrite::ListBox1() const {
  return ui_->ListBox1;
}

void TDlgOverwrite::SetNames(const QStringList& names) {
  ui_->ListBox1->clear();
  ui_->ListBox1->addItems(names);
}

}  // namespace lx
