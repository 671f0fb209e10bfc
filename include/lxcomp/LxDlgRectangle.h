// The rectangle dialog: a rectangle entered by two corners, by a reference point with width and
// height, or as a box turned by an angle about its centre.
#pragma once

#include <cstdint>
#include <memory>

#include "lxcomp/LxDlgBase.h"
#include "lxcomp/LxLayer.h"

namespace Ui {
class TDlgRectangle;
}

namespace lx {

// Kind 1 is a box: X1, Y1 its centre, Angle its counter-clockwise turn in degrees; it comes in
// with X2 the width and Y2 the height and goes out with X2 the height and Y2 the width (the
// host's box handling relies on that order). Any other Kind (0 on output) is a rectangle from
// corner (X1, Y1) to corner (X2, Y2). Lengths in nanometres.
struct RectangleSettings {
  std::int32_t Kind;
  double X1;
  double Y1;
  double X2;
  double Y2;
  double Angle;
  std::int32_t Layer;
  const TK5Layer* Layers;
};

class TDlgRectangle : public TLxDlgBase {
  Q_OBJECT

 public:
  enum TMode { Corners, WidthHeight, Box };

  explicit TDlgRectangle(QWidget* owner = nullptr);
  ~TDlgRectangle() override;

  void DlgInit(RectangleSettings* settings);
  // Lays the form out for the mode whose button is down and shows the model in it.
  void ButtonCornersClick(QObject* sender = nullptr);
  // Recomputes the centre from the reference point, size, angle and origin.
  void CalcXY();
  // Shows the reference point of the origin selected.
  void OriginChange(QObject* sender = nullptr);

  void EditXminChange(QObject* sender = nullptr);
  void EditYminChange(QObject* sender = nullptr);
  void EditXmaxChange(QObject* sender = nullptr);
  void EditYmaxChange(QObject* sender = nullptr);
  void EditWChange(QObject* sender = nullptr);
  void EditHChange(QObject* sender = nullptr);
  void EditAngleChange(QObject* sender = nullptr);
  void OkButtonClick(QObject* sender = nullptr) override;

  TMode Mode() const;
  // The model: centre and size in nanometres, angle in degrees.
  double GetCentreX() const { return cx_; }
  double GetCentreY() const { return cy_; }
  double GetWidth() const { return w_; }
  double GetHeight() const { return h_; }
  double GetAngle() const { return angle_; }

 private:
  void PrintField(QLineEdit* edit, double nanometres);
  void PlaceFields(bool corners);
  void ShowCorners();
  bool ReadSilently(QLineEdit* edit, double* nanometres) const;
  int Origin() const;

  std::unique_ptr<Ui::TDlgRectangle> ui_;
  RectangleSettings* settings_ = nullptr;
  double cx_ = 0;
  double cy_ = 0;
  double w_ = 0;
  double h_ = 0;
  double angle_ = 0;
  bool updating_ = false;
  bool wasCorners_ = false;
};

bool DoRectangleDlg(RectangleSettings* settings);

}  // namespace lx
