#include "lxcomp/LxDlgNodeTable.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>
#include <new>

#include "dialogs/LxNodeTable.h"

namespace lx {

TLxDlgNodeTable::TLxDlgNodeTable(QWidget* owner) : TLxDlgBase(owner) {}

TLxDlgNodeTable::~TLxDlgNodeTable() = default;

void TLxDlgNodeTable::AttachNodeTable(const TNodeTableControls& controls) {
  grid_ = controls.Grid;
  table_ = new TNodeTableEditor(this, controls.Grid, controls.Paste);
  connect(table_, &TNodeTableEditor::NodesChanged, this, [this] { NodesChanged(); });
  connect(controls.Delete, &QAbstractButton::clicked, this, [this] { ButtonDeleteClick(); });
  connect(controls.Insert, &QAbstractButton::clicked, this, [this] { ButtonInsertClick(); });
  connect(controls.Add, &QAbstractButton::clicked, this, [this] { ButtonAddClick(); });
  connect(controls.Copy, &QAbstractButton::clicked, this, [this] { ButtonCopyClick(); });
  connect(controls.Paste, &QAbstractButton::clicked, this, [this] { ButtonPasteClick(); });
}

void TLxDlgNodeTable::LoadNodes(const double* nodes, std::int32_t count) {
  table_->Load(nodes, std::max(count, 0));
}

void TLxDlgNodeTable::WatchClipboard() {
  connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this,
          &TLxDlgNodeTable::WMClipboard, Qt::UniqueConnection);
  CheckClipboard();
}

void TLxDlgNodeTable::FinishNodeEdit() {
  table_->Delegate()->FinishEdit();
}

bool TLxDlgNodeTable::WriteNodes(std::int32_t* count, double** nodes) {
  try {
    table_->WriteTo(count, nodes);
    return true;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

void TLxDlgNodeTable::CheckClipboard() {
  table_->CheckClipboard();
}
void TLxDlgNodeTable::WMClipboard() {
  CheckClipboard();
}

QString TLxDlgNodeTable::AdvGridGetDisplText(int col, int row) const {
  return table_->Model()->DisplText(col, row);
}
QString TLxDlgNodeTable::AdvGridGetEditText(int col, int row) {
  return table_->Model()->EditText(col, row);
}
void TLxDlgNodeTable::AdvGridEditChange(const QString& value) {
  table_->Model()->EditChange(value);
}
void TLxDlgNodeTable::AdvGridEditCellDone() {
  table_->Model()->EditDone();
}
void TLxDlgNodeTable::AdvGridEditingDone() {
  table_->Model()->EditDone();
}
void TLxDlgNodeTable::AdvGridResize() {
  table_->FitColumns();
}

void TLxDlgNodeTable::ButtonDeleteClick(QObject*) {
  table_->DeleteNodes();
}
void TLxDlgNodeTable::ButtonInsertClick(QObject*) {
  table_->InsertNode();
}
void TLxDlgNodeTable::ButtonAddClick(QObject*) {
  table_->AddNode();
}
void TLxDlgNodeTable::ButtonCopyClick(QObject*) {
  table_->CopyNodes();
}
void TLxDlgNodeTable::ButtonPasteClick(QObject*) {
  table_->PasteNodes();
}

int TLxDlgNodeTable::GetNodeCount() const {
  return table_->Count();
}
const double* TLxDlgNodeTable::GetNodes() const {
  return table_->Nodes();
}
QTableView* TLxDlgNodeTable::Grid() const {
  return grid_;
}

}  // namespace lx
