#include "lxcomp/LxDlgWire.h"

#include <QClipboard>
#include <QGuiApplication>

#include <cmath>

#include "dialogs/LxNodeTable.h"
#include "lxcomp/LxDialogs.h"
#include "lxcomp/LxMisc.h"
#include "ui_LxDlgWire.h"

namespace lx {

TDlgWire::TDlgWire(QWidget* owner) : TLxDlgBase(owner), ui_(new Ui::TDlgWire) {
  ui_->setupUi(ClientArea());
  setObjectName(QStringLiteral("DlgWire"));
  setWindowTitle(QStringLiteral("Wire settings..."));
  SetHelpContext(4035);
  UseLxExit({ui_->EditW});
  table_ = new TNodeTableEditor(this, ui_->AdvGrid, ui_->ButtonPaste);
  connect(table_, &TNodeTableEditor::NodesChanged, this, &TDlgWire::CalculateLength);
  connect(ui_->ButtonDelete, &QPushButton::clicked, this, [this] { ButtonDeleteClick(); });
  connect(ui_->ButtonInsert, &QPushButton::clicked, this, [this] { ButtonInsertClick(); });
  connect(ui_->ButtonAdd, &QPushButton::clicked, this, [this] { ButtonAddClick(); });
  connect(ui_->ButtonCopy, &QPushButton::clicked, this, [this] { ButtonCopyClick(); });
  connect(ui_->ButtonPaste, &QPushButton::clicked, this, [this] { ButtonPasteClick(); });
}

TDlgWire::~TDlgWire() = default;

void TDlgWire::DlgInit(WireSettings* settings) {
  settings_ = settings;
  if (settings) {
    table_->Load(settings->Nodes, std::max(settings->NodeCount, 0));
    FillComboBoxExWithLayers(ui_->LayerCombo, settings->Layers, settings->Layer);
    QRadioButton* const styles[] = {ui_->RadioRound, ui_->RadioFlat, ui_->RadioExtended};
    if (settings->EndStyle >= 0 && settings->EndStyle <= 2)
      styles[settings->EndStyle]->setChecked(true);
    PrintMicrons(settings->Width, ui_->EditW);
  }
  CalculateLength();
  connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &TDlgWire::WMClipboard,
          Qt::UniqueConnection);
  CheckClipboard();
}

void TDlgWire::CalculateLength() {
  const double* nodes = table_->Nodes();
  double length = 0;
  for (int i = 1; i < table_->Count(); ++i) {
    const double dx = nodes[2 * i] - nodes[2 * i - 2];
    const double dy = nodes[2 * i + 1] - nodes[2 * i - 1];
    if (dx != 0 || dy != 0) length += std::sqrt(dx * dx + dy * dy);
  }
  wchar_t text[64];
  PrintMicrons(length, text, 64);
  ui_->LabelTotalLength->setText(QString::fromWCharArray(text) + QStringLiteral(" um"));
}

void TDlgWire::CheckClipboard() {
  table_->CheckClipboard();
}
void TDlgWire::WMClipboard() {
  CheckClipboard();
}

QString TDlgWire::AdvGridGetDisplText(int col, int row) const {
  return table_->Model()->DisplText(col, row);
}
QString TDlgWire::AdvGridGetEditText(int col, int row) {
  return table_->Model()->EditText(col, row);
}
void TDlgWire::AdvGridEditChange(const QString& value) {
  table_->Model()->EditChange(value);
}
void TDlgWire::AdvGridEditCellDone() {
  table_->Model()->EditDone();
}
void TDlgWire::AdvGridEditingDone() {
  table_->Model()->EditDone();
}
void TDlgWire::AdvGridResize() {
  table_->FitColumns();
}

void TDlgWire::ButtonDeleteClick(QObject*) {
  table_->DeleteNodes();
}
void TDlgWire::ButtonInsertClick(QObject*) {
  table_->InsertNode();
}
void TDlgWire::ButtonAddClick(QObject*) {
  table_->AddNode();
}
void TDlgWire::ButtonCopyClick(QObject*) {
  table_->CopyNodes();
}
void TDlgWire::ButtonPasteClick(QObject*) {
  table_->PasteNodes();
}

void TDlgWire::OkButtonClick(QObject*) {
  table_->Delegate()->FinishEdit();
  if (!settings_) {
    done(mrOk);
    return;
  }
  double width = 0;
  if (ReadCoordinate(ui_->EditW, &width)) return;
  settings_->Width = std::fabs(width);
  try {
    table_->WriteTo(&settings_->NodeCount, &settings_->Nodes);
  } catch (const std::bad_alloc&) {
    return;  // no room for the nodes: the record keeps its own, the dialog stays open
  }
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

int TDlgWire::GetNodeCount() const {
  return table_->Count();
}
const double* TDlgWire::GetNodes() const {
  return table_->Nodes();
}
QTableView* TDlgWire::Grid() const {
  return ui_->AdvGrid;
}

bool DoWireDlg(WireSettings* settings) {
  return RunModal<TDlgWire>(settings);
}

}  // namespace lx
