#include "lxcomp/LxDlgPolygon.h"

#include <cmath>

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

TDlgPolygon::TDlgPolygon(QWidget* owner) : TLxDlgNodeTable(owner), ui_(new Ui::TDlgPolygon) {
  ui_->setupUi(ClientArea());
  setObjectName(QStringLiteral("DlgPolygon"));
  setWindowTitle(QStringLiteral("Polygon properties..."));
  SetHelpContext(4030);
  AttachNodeTable({ui_->AdvGrid, ui_->ButtonDelete, ui_->ButtonInsert, ui_->ButtonAdd,
                   ui_->ButtonCopy, ui_->ButtonPaste});
  connect(ui_->ComboUnits, &QComboBox::currentIndexChanged, this, [this] { ComboUnitsChange(); });
}

TDlgPolygon::~TDlgPolygon() = default;

void TDlgPolygon::DlgInit(PolygonSettings* settings) {
  settings_ = settings;
  if (settings) {
    LoadNodes(settings->Nodes, settings->NodeCount);
    FillComboBoxExWithLayers(ui_->LayerCombo, settings->Layers, settings->Layer);
  }
  area_ = 0;
  CalculateArea();
  WatchClipboard();
}

void TDlgPolygon::CalculateArea() {
  const int count = GetNodeCount();
  if (count < 3 || count > kMostAreaNodes) {
    area_ = 0;
    ui_->LabelSurfaceArea->setText(QStringLiteral("-"));
    ui_->LabelType->clear();
    return;
  }
  area_ = signed_polygonarea(GetNodes(), static_cast<unsigned int>(count));
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

void TDlgPolygon::OkButtonClick(QObject*) {
  FinishNodeEdit();
  if (!settings_) {
    done(mrOk);
    return;
  }
  // With no room for the nodes the record keeps its own and the dialog stays open.
  if (!WriteNodes(&settings_->NodeCount, &settings_->Nodes)) return;
  if (const int layer = GetLayerIndex(ui_->LayerCombo, settings_->Layers); layer >= 0)
    settings_->Layer = layer;
  done(mrOk);
}

bool DoPolygonDlg(PolygonSettings* settings) {
  return RunModal<TDlgPolygon>(settings);
}

}  // namespace lx
