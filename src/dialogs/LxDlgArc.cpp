#include "lxcomp/LxDlgArc.h"

#include <cmath>

#include "lxcomp/LxDialogs.h"
#include "lxcomp/LxMisc.h"
#include "ui_LxDlgArc.h"

namespace lx {
namespace {

// The mode of the last opening, for the life of the library: nodes (true) or radii and angles.
bool arcNodesMode = true;

constexpr double kDegreesPerRadian = 57.29577951308232;
constexpr double kRadiansPerDegree = 0.017453292519943295;

}  // namespace

TDlgArc::TDlgArc(QWidget* owner) : TLxDlgBase(owner), ui_(new Ui::TDlgArc) {
  ui_->setupUi(ClientArea());
  setObjectName(QStringLiteral("DlgArc"));
  setWindowTitle(QStringLiteral("Arc properties..."));
  SetHelpContext(4045);
  UseLxExit({ui_->EditX, ui_->EditY, ui_->EditXB, ui_->EditYB, ui_->EditXE, ui_->EditYE,
             ui_->EditRB, ui_->EditAB, ui_->EditRE, ui_->EditAE, ui_->EditNum});
  ui_->RB_CCW->setChecked(true);
  ui_->RB_CR->setChecked(true);
  for (QToolButton* button : {ui_->BtnNodes, ui_->BtnAngles})
    connect(button, &QToolButton::clicked, this, [this, button] { ButtonNodesClick(button); });
  connect(ui_->NAButtons, &TLxButtonGroup::OnChange, this, &TDlgArc::ButtonNodesClick);
  connect(ui_->RB_CR, &QRadioButton::clicked, this, [this] { RB_CRClick(ui_->RB_CR); });
  connect(ui_->RB_VR, &QRadioButton::clicked, this, [this] { RB_VRClick(ui_->RB_VR); });
  layout()->setSizeConstraint(QLayout::SetFixedSize);
}

TDlgArc::~TDlgArc() = default;

bool TDlgArc::NodesMode() const {
  return ui_->BtnNodes->isChecked();
}

void TDlgArc::DlgInit(ArcSettings* settings) {
  settings_ = settings;
  ui_->NAButtons->setEnabled(false);
  if (settings) {
    cx_ = settings->CentreX;
    cy_ = settings->CentreY;
    bx_ = settings->BeginX;
    by_ = settings->BeginY;
    ex_ = settings->EndX;
    ey_ = settings->EndY;
    PrintMicrons(cx_, ui_->EditX);
    PrintMicrons(cy_, ui_->EditY);
    PrintMicrons(bx_, ui_->EditXB);
    PrintMicrons(by_, ui_->EditYB);
    PrintMicrons(ex_, ui_->EditXE);
    PrintMicrons(ey_, ui_->EditYE);
    (settings->Clockwise ? ui_->RB_CW : ui_->RB_CCW)->setChecked(true);
    (settings->ConstantRadius ? ui_->RB_CR : ui_->RB_VR)->setChecked(true);
    PrintNumber(settings->Segments, ui_->EditNum);
    FillComboBoxExWithLayers(ui_->ComboLayers, settings->Layers, settings->Layer);
  }
  CalcRandA();
  ButtonNodesClick(arcNodesMode ? ui_->BtnNodes : ui_->BtnAngles);
  ui_->NAButtons->setEnabled(true);
}

void TDlgArc::CalcRandA() {
  rb_ = std::sqrt((bx_ - cx_) * (bx_ - cx_) + (by_ - cy_) * (by_ - cy_));
  ab_ = std::atan2(by_ - cy_, bx_ - cx_) * kDegreesPerRadian;
  re_ = std::sqrt((ex_ - cx_) * (ex_ - cx_) + (ey_ - cy_) * (ey_ - cy_));
  ae_ = std::atan2(ey_ - cy_, ex_ - cx_) * kDegreesPerRadian;
  PrintMicrons(rb_, ui_->EditRB);
  const bool constant = ui_->RB_CR->isChecked();
  ui_->EditRE->setEnabled(!constant);
  PrintMicrons(constant ? rb_ : re_, ui_->EditRE);
  PrintDouble(ab_, ui_->EditAB);
  PrintDouble(ae_, ui_->EditAE);
}

void TDlgArc::CalcNodes() {
  double x = 0;
  double y = 0;
  if (GetCoordinateNoMessage(ui_->EditX->text(), &x) ||
      GetCoordinateNoMessage(ui_->EditY->text(), &y))
    return;
  cx_ = x;
  cy_ = y;
  const double bx = std::cos(ab_ * kRadiansPerDegree) * rb_ + cx_;
  const double by = std::sin(ab_ * kRadiansPerDegree) * rb_ + cy_;
  const double r = ui_->RB_CR->isChecked() ? rb_ : re_;
  const double ex = std::cos(ae_ * kRadiansPerDegree) * r + cx_;
  const double ey = std::sin(ae_ * kRadiansPerDegree) * r + cy_;
  PrintMicrons(bx, ui_->EditXB);
  PrintMicrons(by, ui_->EditYB);
  PrintMicrons(ex, ui_->EditXE);
  PrintMicrons(ey, ui_->EditYE);
}

void TDlgArc::ButtonNodesClick(QObject* sender) {
  if (sender == ui_->BtnNodes) ui_->BtnNodes->setChecked(true);
  if (sender == ui_->BtnAngles) ui_->BtnAngles->setChecked(true);
  arcNodesMode = ui_->BtnNodes->isChecked();
  ShowHideItems(arcNodesMode);
  if (ui_->NAButtons->isVisible() && ui_->NAButtons->isEnabled()) ui_->NAButtons->setFocus();
}

void TDlgArc::ShowHideItems(bool nodesMode) {
  for (QWidget* node :
       {static_cast<QWidget*>(ui_->LabelBegin), static_cast<QWidget*>(ui_->EditXB),
        static_cast<QWidget*>(ui_->LabelComma2), static_cast<QWidget*>(ui_->EditYB),
        static_cast<QWidget*>(ui_->LabelEnd), static_cast<QWidget*>(ui_->EditXE),
        static_cast<QWidget*>(ui_->LabelComma3), static_cast<QWidget*>(ui_->EditYE)})
    node->setVisible(nodesMode);
  for (QWidget* polar : {static_cast<QWidget*>(ui_->LabelRB), static_cast<QWidget*>(ui_->EditRB),
                         static_cast<QWidget*>(ui_->LabelAB), static_cast<QWidget*>(ui_->EditAB),
                         static_cast<QWidget*>(ui_->LabelRE), static_cast<QWidget*>(ui_->EditRE),
                         static_cast<QWidget*>(ui_->LabelAE), static_cast<QWidget*>(ui_->EditAE)})
    polar->setVisible(!nodesMode);
}

void TDlgArc::RB_CRClick(QObject*) {
  ui_->EditRE->setEnabled(false);
  PrintMicrons(rb_, ui_->EditRE);
}

void TDlgArc::RB_VRClick(QObject*) {
  ui_->EditRE->setEnabled(true);
  PrintMicrons(re_, ui_->EditRE);
}

void TDlgArc::OkButtonClick(QObject*) {
  if (!settings_) {
    done(mrOk);
    return;
  }
  const auto read = [this](QLineEdit* edit, double* value) { return ReadCoordinate(edit, value); };
  // An angle must have a direction: infinity reads as a real but gives no node.
  const auto readAngle = [this](QLineEdit* edit, double* value) {
    double angle = 0;
    if (ReadDouble(edit, &angle)) return true;
    if (!std::isfinite(angle)) return NotAValidNumber(edit->text()), edit->setFocus(), true;
    *value = angle;
    return false;
  };
  if (!NodesMode()) {
    double cx = 0, cy = 0, rb = 0, re = 0, ab = 0, ae = 0;
    if (read(ui_->EditX, &cx) || read(ui_->EditY, &cy) || read(ui_->EditRB, &rb) ||
        read(ui_->EditRE, &re) || readAngle(ui_->EditAB, &ab) || readAngle(ui_->EditAE, &ae))
      return;
    cx_ = cx, cy_ = cy, rb_ = rb, re_ = re, ab_ = ab, ae_ = ae;
    CalcNodes();
  }
  double values[6];
  QLineEdit* const fields[] = {ui_->EditX,  ui_->EditY,  ui_->EditXB,
                               ui_->EditYB, ui_->EditXE, ui_->EditYE};
  for (int i = 0; i < 6; ++i)
    if (read(fields[i], &values[i])) return;
  int segments = 0;
  if (ReadNumber(ui_->EditNum, &segments)) return;
  settings_->CentreX = values[0];
  settings_->CentreY = values[1];
  settings_->BeginX = values[2];
  settings_->BeginY = values[3];
  settings_->EndX = values[4];
  settings_->EndY = values[5];
  settings_->Clockwise = ui_->RB_CW->isChecked();
  settings_->ConstantRadius = ui_->RB_CR->isChecked();
  settings_->Segments = std::max(segments, 1);
  if (const int layer = GetLayerIndex(ui_->ComboLayers, settings_->Layers); layer >= 0)
    settings_->Layer = layer;
  done(mrOk);
}

bool DoArcDlg(ArcSettings* settings) {
  return RunModal<TDlgArc>(settings);
}

}  // namespace lx
