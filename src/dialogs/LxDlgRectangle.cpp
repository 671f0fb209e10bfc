#include "lxcomp/LxDlgRectangle.h"

#include <QGridLayout>

#include <cmath>

#include "lxcomp/LxDialogs.h"
#include "lxcomp/LxMisc.h"
#include "ui_LxDlgRectangle.h"

namespace lx {
namespace {

// Remembered for the life of the library: whether the corners button was used last (rather
// than width/height), and the reference point last chosen.
bool lastTwoCorner = true;
int lastOrigin = 5;

bool IsOrigin(int origin) {
  return origin >= 1 && origin <= 9;
}

// From a reference point to the centre: +1 for the left column, 0 centre, -1 right.
double ColumnFactor(int origin) {
  const int col = (origin - 1) % 3;
  return col == 0 ? 1.0 : col == 1 ? 0.0 : -1.0;
}

// -1 for the top row, 0 middle, +1 bottom (y points up).
double RowFactor(int origin) {
  const int row = (origin - 1) / 3;
  return row == 0 ? -1.0 : row == 1 ? 0.0 : 1.0;
}

// Into -180 to 180 by whole turns.
double NormalisedAngle(double angle) {
  if (std::fabs(angle) > 3600.0) angle = std::fmod(angle, 360.0);
  while (angle > 180.0)
    angle += -360.0;
  while (angle < -180.0)
    angle += 360.0;
  return angle;
}

}  // namespace

TDlgRectangle::TDlgRectangle(QWidget* owner) : TLxDlgBase(owner), ui_(new Ui::TDlgRectangle) {
  ui_->setupUi(ClientArea());
  setObjectName(QStringLiteral("DlgRectangle"));
  setWindowTitle(QStringLiteral("Rectangle properties..."));
  SetHelpContext(4010);
  UseLxExit({ui_->EditXmin, ui_->EditYmin, ui_->EditXmax, ui_->EditYmax, ui_->EditW, ui_->EditH,
             ui_->EditAngle});
  const auto bind = [this](QLineEdit* edit, void (TDlgRectangle::*handler)(QObject*)) {
    connect(edit, &QLineEdit::textChanged, this, [this, edit, handler] { (this->*handler)(edit); });
  };
  bind(ui_->EditXmin, &TDlgRectangle::EditXminChange);
  bind(ui_->EditYmin, &TDlgRectangle::EditYminChange);
  bind(ui_->EditXmax, &TDlgRectangle::EditXmaxChange);
  bind(ui_->EditYmax, &TDlgRectangle::EditYmaxChange);
  bind(ui_->EditW, &TDlgRectangle::EditWChange);
  bind(ui_->EditH, &TDlgRectangle::EditHChange);
  bind(ui_->EditAngle, &TDlgRectangle::EditAngleChange);
  for (QToolButton* button : {ui_->ButtonCorners, ui_->ButtonWH, ui_->ButtonBox})
    connect(button, &QToolButton::clicked, this, [this, button] { ButtonCornersClick(button); });
  connect(ui_->CWHButtons, &TLxButtonGroup::OnChange, this, &TDlgRectangle::ButtonCornersClick);
  connect(ui_->RefSelect, &TLxOrigin::OnChange, this, &TDlgRectangle::OriginChange);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
}

TDlgRectangle::~TDlgRectangle() = default;

TDlgRectangle::TMode TDlgRectangle::Mode() const {
  if (ui_->ButtonBox->isChecked()) return Box;
  if (ui_->ButtonWH->isChecked()) return WidthHeight;
  return Corners;
}

int TDlgRectangle::Origin() const {
  return ui_->RefSelect->GetSelectedButton();
}

void TDlgRectangle::PrintField(QLineEdit* edit, double nanometres) {
  const bool was = updating_;
  updating_ = true;
  PrintMicrons(nanometres, edit);
  updating_ = was;
}

bool TDlgRectangle::ReadSilently(QLineEdit* edit, double* nanometres) const {
  return GetCoordinateNoMessage(edit->text(), nanometres);
}

void TDlgRectangle::DlgInit(RectangleSettings* settings) {
  settings_ = settings;
  if (settings && settings->Kind == 1) {
    ui_->ButtonBox->setChecked(true);
    cx_ = settings->X1;
    cy_ = settings->Y1;
    w_ = std::fabs(settings->X2);
    h_ = std::fabs(settings->Y2);
    angle_ = settings->Angle;
  } else {
    (lastTwoCorner ? ui_->ButtonCorners : ui_->ButtonWH)->setChecked(true);
    if (settings) {
      cx_ = (settings->X1 + settings->X2) * 0.5;
      cy_ = (settings->Y1 + settings->Y2) * 0.5;
      w_ = std::fabs(settings->X2 - settings->X1);
      h_ = std::fabs(settings->Y2 - settings->Y1);
    }
    angle_ = 0;
  }
  ButtonCornersClick();
  PrintField(ui_->EditW, w_);
  PrintField(ui_->EditH, h_);
  updating_ = true;
  PrintDouble(angle_, ui_->EditAngle);
  updating_ = false;
  if (settings) FillComboBoxExWithLayers(ui_->LayerCombo, settings->Layers, settings->Layer);
}

void TDlgRectangle::PlaceFields(bool corners) {
  QGridLayout* grid = ui_->FieldGrid;
  const auto place = [grid](QWidget* field, int row) {
    grid->removeWidget(field);
    grid->addWidget(field, row, 1);
  };
  place(ui_->EditW, corners ? 2 : 1);
  place(ui_->EditH, corners ? 3 : 2);
  place(ui_->EditAngle, 3);
  QWidget* order[] = {ui_->EditXmin, ui_->EditYmin, ui_->EditXmax,  ui_->EditYmax,
                      ui_->EditW,    ui_->EditH,    ui_->EditAngle, ui_->LayerCombo};
  for (std::size_t i = 1; i < std::size(order); ++i)
    setTabOrder(order[i - 1], order[i]);
}

void TDlgRectangle::ShowCorners() {
  updating_ = true;
  PrintMicrons(cx_ - w_ * 0.5, ui_->EditXmin);
  PrintMicrons(cy_ - h_ * 0.5, ui_->EditYmin);
  PrintMicrons(cx_ + w_ * 0.5, ui_->EditXmax);
  PrintMicrons(cy_ + h_ * 0.5, ui_->EditYmax);
  ui_->EditAngle->setText(QStringLiteral("0"));
  updating_ = false;
}

void TDlgRectangle::ButtonCornersClick(QObject*) {
  const TMode mode = Mode();
  lastTwoCorner = mode == Corners;
  // In corners mode the change handlers keep the centre in step with the corners; the corner
  // fields are no reference point, so the centre is not derived from them again.
  const bool fromCorners = wasCorners_;
  wasCorners_ = mode == Corners;
  const bool corners = mode == Corners;
  ui_->Label1->setText(corners ? QStringLiteral("(x1,y1):") : QStringLiteral("(x,y):"));
  ui_->Label2->setText(corners ? QStringLiteral("(x2,y2):") : QStringLiteral("Width:"));
  ui_->Label6->setText(corners ? QStringLiteral("Width:") : QStringLiteral("Height:"));
  ui_->Label7->setText(corners ? QStringLiteral("Height:") : QStringLiteral("Angle:"));
  if (corners) {
    ui_->EditAngle->hide();
    if (!fromCorners) CalcXY();
    angle_ = 0;
    ShowCorners();
  } else {
    ui_->EditAngle->show();
    ui_->EditAngle->setEnabled(mode == Box);
    if (mode == WidthHeight) {
      if (!fromCorners) CalcXY();
      angle_ = 0;
      updating_ = true;
      ui_->EditAngle->setText(QStringLiteral("0"));
      updating_ = false;
    }
    ui_->RefSelect->SetSelectedButton(lastOrigin);
    OriginChange();
  }
  for (QWidget* second :
       {static_cast<QWidget*>(ui_->EditXmax), static_cast<QWidget*>(ui_->EditYmax),
        static_cast<QWidget*>(ui_->Label4)}) {
    second->setVisible(corners);
    second->setEnabled(corners);
  }
  ui_->EditW->setEnabled(!corners);
  ui_->EditH->setEnabled(!corners);
  PlaceFields(corners);
  ui_->RefSelect->setVisible(!corners);
}

void TDlgRectangle::CalcXY() {
  double x = 0;
  double y = 0;
  if (ReadSilently(ui_->EditXmin, &x) || ReadSilently(ui_->EditYmin, &y)) return;
  const int origin = Origin();
  if (!IsOrigin(origin)) return;
  const double a = angle_ * 3.141592653589793 / 180.0;
  const double c = std::cos(a);
  const double s = std::sin(a);
  const double hw = w_ * 0.5;
  const double hh = h_ * 0.5;
  const double fx = ColumnFactor(origin);
  const double fy = RowFactor(origin);
  cx_ = x + c * (fx * hw) - s * (fy * hh);
  cy_ = y + s * (fx * hw) + c * (fy * hh);
}

void TDlgRectangle::OriginChange(QObject*) {
  const int origin = Origin();
  const double fx = IsOrigin(origin) ? ColumnFactor(origin) : 0.0;
  const double fy = IsOrigin(origin) ? RowFactor(origin) : 0.0;
  const double hw = w_ * 0.5;
  const double hh = h_ * 0.5;
  double x = cx_;
  double y = cy_;
  if (Mode() == WidthHeight) {
    x = cx_ - fx * hw;
    y = cy_ - fy * hh;
  } else if (Mode() == Box) {
    const double a = angle_ * 3.141592653589793 / 180.0;
    const double c = std::cos(a);
    const double s = std::sin(a);
    x = cx_ - c * fx * hw + s * fy * hh;
    y = cy_ - s * fx * hw - c * fy * hh;
  }
  if (IsOrigin(origin)) lastOrigin = origin;
  updating_ = true;
  PrintMicrons(x, ui_->EditXmin);
  PrintMicrons(y, ui_->EditYmin);
  ui_->EditXmax->clear();
  ui_->EditYmax->clear();
  updating_ = false;
}

void TDlgRectangle::EditXminChange(QObject*) {
  if (updating_) return;
  double x = 0;
  switch (Mode()) {
    case Corners: {
      double x2 = 0;
      if (ReadSilently(ui_->EditXmin, &x) || ReadSilently(ui_->EditXmax, &x2)) return;
      cx_ = (x + x2) * 0.5;
      w_ = std::fabs(x2 - x);
      PrintField(ui_->EditW, w_);
      break;
    }
    case WidthHeight:
      if (ReadSilently(ui_->EditXmin, &x)) return;
      cx_ = x + 0.5 * w_ * (IsOrigin(Origin()) ? ColumnFactor(Origin()) : 0.0);
      break;
    case Box:
      CalcXY();
      break;
  }
}

void TDlgRectangle::EditYminChange(QObject*) {
  if (updating_) return;
  double y = 0;
  switch (Mode()) {
    case Corners: {
      double y2 = 0;
      if (ReadSilently(ui_->EditYmin, &y) || ReadSilently(ui_->EditYmax, &y2)) return;
      cy_ = (y + y2) * 0.5;
      h_ = std::fabs(y2 - y);
      PrintField(ui_->EditH, h_);
      break;
    }
    case WidthHeight:
      if (ReadSilently(ui_->EditYmin, &y)) return;
      cy_ = y + 0.5 * h_ * (IsOrigin(Origin()) ? RowFactor(Origin()) : 0.0);
      break;
    case Box:
      CalcXY();
      break;
  }
}

void TDlgRectangle::EditXmaxChange(QObject* sender) {
  if (!updating_ && Mode() == Corners) EditXminChange(sender);
}

void TDlgRectangle::EditYmaxChange(QObject* sender) {
  if (!updating_ && Mode() == Corners) EditYminChange(sender);
}

void TDlgRectangle::EditWChange(QObject* sender) {
  if (updating_ || Mode() == Corners) return;
  double w = 0;
  if (ReadSilently(ui_->EditW, &w)) return;
  w_ = w;
  if (Mode() == Box)
    CalcXY();
  else
    EditXminChange(sender);
}

void TDlgRectangle::EditHChange(QObject* sender) {
  if (updating_ || Mode() == Corners) return;
  double h = 0;
  if (ReadSilently(ui_->EditH, &h)) return;
  h_ = h;
  if (Mode() == Box)
    CalcXY();
  else
    EditYminChange(sender);
}

void TDlgRectangle::EditAngleChange(QObject*) {
  if (updating_ || Mode() != Box) return;
  double angle = 0;
  if (GetDoubleNoMessage(ui_->EditAngle->text(), &angle) || !std::isfinite(angle)) return;
  angle_ = NormalisedAngle(angle);
  CalcXY();
}

void TDlgRectangle::OkButtonClick(QObject*) {
  if (!settings_) {
    done(mrOk);
    return;
  }
  const auto read = [this](QLineEdit* edit, double* value) { return ReadCoordinate(edit, value); };
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  const TMode mode = Mode();
  if (mode == Corners) {
    if (read(ui_->EditXmin, &x1) || read(ui_->EditYmin, &y1) || read(ui_->EditXmax, &x2) ||
        read(ui_->EditYmax, &y2))
      return;
  } else {
    double x = 0, y = 0, w = 0, h = 0;
    if (read(ui_->EditXmin, &x) || read(ui_->EditYmin, &y) || read(ui_->EditW, &w) ||
        read(ui_->EditH, &h))
      return;
    if (mode == Box) {
      double angle = 0;
      if (ReadDouble(ui_->EditAngle, &angle)) return;
      if (!std::isfinite(angle)) {  // a turn by infinity has no position
        NotAValidNumber(ui_->EditAngle->text());
        return ui_->EditAngle->setFocus();
      }
      w_ = w;
      h_ = h;
      angle_ = NormalisedAngle(angle);
      CalcXY();
      x1 = cx_;
      y1 = cy_;
      x2 = h;
      y2 = w;
    } else {
      // While the selector holds no cell (a release outside it), the point shown is the centre.
      const int origin = IsOrigin(Origin()) ? lastOrigin : 5;
      const int col = (origin - 1) % 3;
      const int row = (origin - 1) / 3;
      x1 = col == 0 ? x : col == 1 ? x - w / 2 : x - w;
      x2 = x1 + w;
      y2 = row == 0 ? y : row == 1 ? y + h / 2 : y + h;
      y1 = y2 - h;
    }
  }
  settings_->Kind = mode == Box ? 1 : 0;
  settings_->X1 = x1;
  settings_->Y1 = y1;
  settings_->X2 = x2;
  settings_->Y2 = y2;
  settings_->Angle = mode == Box ? angle_ : 0.0;
  if (const int layer = GetLayerIndex(ui_->LayerCombo, settings_->Layers); layer >= 0)
    settings_->Layer = layer;
  done(mrOk);
}

bool DoRectangleDlg(RectangleSettings* settings) {
  return RunModal<TDlgRectangle>(settings);
}

}  // namespace lx
