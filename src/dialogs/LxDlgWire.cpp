#include "lxcomp/LxDlgWire.h"

#include <cmath>

#include "lxcomp/LxDialogs.h"
#include "lxcomp/LxMisc.h"
#include "ui_LxDlgWire.h"

namespace lx {

TDlgWire::TDlgWire(QWidget* owner) : TLxDlgNodeTable(owner), ui_(new Ui::TDlgWire) {
  ui_->setupUi(ClientArea());
  setObjectName(QStringLiteral("DlgWire"));
  setWindowTitle(QStringLiteral("Wire settings..."));
  SetHelpContext(4035);
  UseLxExit({ui_->EditW});
  AttachNodeTable({ui_->AdvGrid, ui_->ButtonDelete, ui_->ButtonInsert, ui_->ButtonAdd,
                   ui_->ButtonCopy, ui_->ButtonPaste});
}

TDlgWire::~TDlgWire() = default;

void TDlgWire::DlgInit(WireSettings* settings) {
  settings_ = settings;
  if (settings) {
    LoadNodes(settings->Nodes, settings->NodeCount);
    FillComboBoxExWithLayers(ui_->LayerCombo, settings->Layers, settings->Layer);
    QRadioButton* const styles[] = {ui_->RadioRound, ui_->RadioFlat, ui_->RadioExtended};
    if (settings->EndStyle >= 0 && settings->EndStyle <= 2)
      styles[settings->EndStyle]->setChecked(true);
    PrintMicrons(settings->Width, ui_->EditW);
  }
  CalculateLength();
  WatchClipboard();
}

void TDlgWire::CalculateLength() {
  const double* nodes = GetNodes();
  double length = 0;
  for (int i = 1; i < GetNodeCount(); ++i) {
    const double dx = nodes[2 * i] - nodes[2 * i - 2];
    const double dy = nodes[2 * i + 1] - nodes[2 * i - 1];
    if (dx != 0 || dy != 0) length += std::sqrt(dx * dx + dy * dy);
  }
  wchar_t text[64];
  PrintMicrons(length, text, 64);
  ui_->LabelTotalLength->setText(QString::fromWCharArray(text) + QStringLiteral(" um"));
}

void TDlgWire::OkButtonClick(QObject*) {
  FinishNodeEdit();
  if (!settings_) {
    done(mrOk);
    return;
  }
  double width = 0;
  if (ReadCoordinate(ui_->EditW, &width)) return;
  // With no room for the nodes the record keeps its own and the dialog stays open.
  if (!WriteNodes(&settings_->NodeCount, &settings_->Nodes)) return;
  settings_->Width = std::fabs(width);
  if (const int layer = GetLayerIndex(ui_->LayerCombo, settings_->Layers); layer >= 0)
    settings_->Layer = layer;
  if (ui_->RadioRound->isChecked())
    settings_->EndStyle = 0;
  else if (ui_->RadioFlat->isChecked())
    settings_->EndStyle = 1;
  else if (ui_->RadioExtended->isChecked())
    settings_->EndStyle = 2;
  settings_->MakeDefault = ui_->CheckBoxMakeDefault->isChecked();
  done(mrOk);
}

bool DoWireDlg(WireSettings* settings) {
  return RunModal<TDlgWire>(settings);
}

}  // namespace lx
