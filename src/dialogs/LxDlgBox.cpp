#include "lxcomp/LxDlgBox.h"

#include "lxcomp/LxDialogs.h"
#include "lxcomp/LxMisc.h"
#include "ui_LxDlgBox.h"

namespace lx {

TDlgBox::TDlgBox(QWidget* owner) : TLxDlgBase(owner), ui_(new Ui::TDlgBox) {
  ui_->setupUi(ClientArea());
  setObjectName(QStringLiteral("DlgBox"));
  setWindowTitle(QStringLiteral("Box properties..."));
  SetHelpContext(4015);
  UseLxExit({ui_->EditX, ui_->EditY, ui_->EditL, ui_->EditW, ui_->EditA});
  layout()->setSizeConstraint(QLayout::SetFixedSize);
}

TDlgBox::~TDlgBox() = default;

void TDlgBox::DlgInit(BoxSettings* settings) {
  settings_ = settings;
  if (!settings) return;
  PrintMicrons(settings->X, ui_->EditX);
  PrintMicrons(settings->Y, ui_->EditY);
  PrintMicrons(settings->Length, ui_->EditL);
  PrintMicrons(settings->Width, ui_->EditW);
  PrintDouble(settings->Angle, ui_->EditA);
  FillComboBoxExWithLayers(ui_->LayerCombo, settings->Layers, settings->Layer);
}

void TDlgBox::OkButtonClick(QObject*) {
  if (!settings_) {
    done(mrOk);
    return;
  }
  double x = 0, y = 0, length = 0, width = 0, angle = 0;
  if (ReadCoordinate(ui_->EditX, &x) || ReadCoordinate(ui_->EditY, &y) ||
      ReadCoordinate(ui_->EditL, &length) || ReadCoordinate(ui_->EditW, &width) ||
      ReadDouble(ui_->EditA, &angle))
    return;
  settings_->X = x;
  settings_->Y = y;
  settings_->Length = length;
  settings_->Width = width;
  settings_->Angle = angle;
  if (const int layer = GetLayerIndex(ui_->LayerCombo, settings_->Layers); layer >= 0)
    settings_->Layer = layer;
  done(mrOk);
}

bool DoBoxDlg(BoxSettings* settings) {
  return RunModal<TDlgBox>(settings);
}

}  // namespace lx
