#include "lxcomp/LxDlgSelectLayer.h"

#include <QComboBox>
#include <QLayout>
#include <QPushButton>

#include "ui_LxDlgSelectLayer.h"

namespace lx {

TLxDlgSelectLayer::TLxDlgSelectLayer(QWidget* owner, const TK5Layer* layers, int* number)
    : TLxDlgBase(owner), ui_(new Ui::TLxDlgSelectLayer), layers_(layers), number_(number) {
  ui_->setupUi(ClientArea());
  setObjectName(QStringLiteral("LxDlgSelectLayer"));
  setWindowTitle(QStringLiteral("Change layer..."));
  FillComboBoxExWithLayers(ui_->LayerCombo, layers, number ? *number : -1);
  // No help topic: OK and Cancel close up to the right.
  HelpButton()->setEnabled(false);
  HelpButton()->hide();
  layout()->setSizeConstraint(QLayout::SetFixedSize);
}

TLxDlgSelectLayer::~TLxDlgSelectLayer() = default;

void TLxDlgSelectLayer::OkButtonClick(QObject*) {
  if (number_) *number_ = GetLayerIndex(ui_->LayerCombo, layers_);
  done(mrOk);
}

int DoSelectLayerDlg(const TK5Layer* layers, int current, const wchar_t* caption) {
  int number = current;
  try {
    TLxDlgSelectLayer dialog(MainForm(), layers, &number);
    number = -1;
    if (caption) dialog.setWindowTitle(QString::fromWCharArray(caption));
    dialog.exec();
  } catch (...) {
    return -1;
  }
  return number;
}

}  // namespace lx
