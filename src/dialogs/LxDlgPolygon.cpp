#include "lxcomp/LxDlgPolygon.h"

#include <QClipboard>
#include <QGuiApplication>

#include <cmath>

#include "dialogs/LxNodeTable.h"
#include "lxcomp/LxDialogs.h"
#include "lxcomp/LxPolygon.h"
#include "ui_LxDlgPolygon.h"

namespace lx {
namespace {

// Square micrometres to the unit of each item of the unit list.
constexpr double kAreaFactors[] = {1.0, 1e-06, 1e-08, 1e-12};
constexpr int kMostAreaNodes = 2000;

// A plain decimal (never an exponent) with about 15 significant digits.
QString AreaText(double value) {
  if (value == 0 || !std::isfinite(value)) return QString::number(value);
  const int integerDigits = static_cast<int>(std::floor(std::log10(std::fabs(value)))) + 1;
  const int decimals = std::clamp(15 - integerDigits, 0, 40);
  QString text = QString::number(value, 'f', decimals);
  if (text.contains(u'.')) {
    while (text.endsWith(u'0'))
      text.chop(1);
    if (text.endsWith(u'.')) text.chop(1);
  }
  return text;
}

}  // namespace

TDlgPolygon::TDlgPolygon(QWidget* owner) : TLxDlgBase(owner), ui_(new Ui::TDlgPolygon) {
  ui_->setupUi(ClientArea());
  setObjectName(QStringLiteral("DlgPolygon"));
  setWindowTitle(QStringLiteral("Polygon properties..."));
  SetHelpContext(4030);
  table_ = new TNodeTableEditor(this, ui_->AdvGrid, ui_->ButtonPaste);
  connect(table_, &TNodeTableEditor::NodesChanged, this, &TDlgPolygon::CalculateArea);
  connect(ui_->ButtonDelete, &QPushButton::clicked, this, [this] { ButtonDeleteClick(); });
  connect(ui_->ButtonInsert, &QPushButton::clicked, this, [this] { ButtonInsertClick(); });
  connect(ui_->ButtonAdd, &QPushButton::clicked, this, [this] { ButtonAddClick(); });
  connect(ui_->ButtonCopy, &QPushButton::clicked, this, [this] { ButtonCopyClick(); });
  connect(ui_->ButtonPaste, &QPushButton::clicked, this, [this] { ButtonPasteClick(); });
  connect(ui_->ComboUnits, &QComboBox::currentIndexChanged, this, [this] { ComboUnitsChange(); });
}

TDlgPolygon::~TDlgPolygon() = default;

void TDlgPolygon::DlgInit(PolygonSettings* settings) {
  settings_ = settings;
  if (settings) {
    table_->Load(settings->Nodes, std::max(settings->NodeCount, 0));
    FillComboBoxExWithLayers(ui_->LayerCombo, settings->Layers, settings->Layer);
  }
  area_ = 0;
  CalculateArea();
  connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &TDlgPolygon::WMClipboard,
          Qt::UniqueConnection);
  CheckClipboard();
}

void TDlgPolygon::CalculateArea() {
  const int count = table_->Count();
  if (count < 3 || count > kMostAreaNodes) {
    area_ = 0;
    ui_->LabelSurfaceArea->setText(QStringLiteral("-"));
    ui_->LabelType->clear();
    return;
  }
  area_ = signed_polygonarea(table_->Nodes(), static_cast<unsigned int>(count));
  if (area_ == 0) {
    ui_->LabelType->setText(QStringLiteral("self intersecting"));
    ui_->LabelSurfaceArea->setText(QStringLiteral("--"));
    return;
  }
  ShowArea();
}

void TDlgPolygon::ShowArea() {
  const int unit = std::clamp(ui_->ComboUnits->currentIndex(), 0, 3);
  ui_->LabelType->setText(area_ < 0 ? QStringLiteral("clockwise")
                                    : QStringLiteral("counterclockwise"));
  ui_->LabelSurfaceArea->setText(AreaText(std::fabs(area_) * kAreaFactors[unit]));
}

void TDlgPolygon::ComboUnitsChange(QObject*) {
  if (area_ != 0) ShowArea();
}

void TDlgPolygon::CheckClipboard() {
  table_->CheckClipboard();
}
void TDlgPolygon::WMClipboard() {
  CheckClipboard();
}

QString TDlgPolygon::AdvGridGetDisplText(int col, int row) const {
  return table_->Model()->DisplText(col, row);
}
QString TDlgPolygon::AdvGridGetEditText(int col, int row) {
  return table_->Model()->EditText(col, row);
}
void TDlgPolygon::AdvGridEditChange(const QString& value) {
  table_->Model()->EditChange(value);
}
void TDlgPolygon::AdvGridEditCellDone() {
  table_->Model()->EditDone();
}
void TDlgPolygon::AdvGridEditingDone() {
  table_->Model()->EditDone();
}
void TDlgPolygon::AdvGridResize() {
  table_->FitColumns();
}

void TDlgPolygon::ButtonDeleteClick(QObject*) {
  table_->DeleteNodes();
}
void TDlgPolygon::ButtonInsertClick(QObject*) {
  table_->InsertNode();
}
void TDlgPolygon::ButtonAddClick(QObject*) {
  table_->AddNode();
}
void TDlgPolygon::ButtonCopyClick(QObject*) {
  table_->CopyNodes();
}
void TDlgPolygon::ButtonPasteClick(QObject*) {
  table_->PasteNodes();
}

void TDlgPolygon::OkButtonClick(QObject*) {
  table_->Delegate()->FinishEdit();
  if (!settings_) {
    done(mrOk);
    return;
  }
  try {
    table_->WriteTo(&settings_->NodeCount, &settings_->Nodes);
  } catch (const std::bad_alloc&) {
    return;  // no room for the nodes: the record keeps its own, the dialog stays open
  }
  if (const int layer = GetLayerIndex(ui_->LayerCombo, settings_->Layers); layer >= 0)
    settings_->Layer = layer;
  done(mrOk);
}

int TDlgPolygon::GetNodeCount() const {
  return table_->Count();
}
const double* TDlgPolygon::GetNodes() const {
  return table_->Nodes();
}
QTableView* TDlgPolygon::Grid() const {
  return ui_->AdvGrid;
}

bool DoPolygonDlg(PolygonSettings* settings) {
  return RunModal<TDlgPolygon>(settings);
}

}  // namespace lx
