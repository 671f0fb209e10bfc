// The colour selection dialog: red, green and blue on three sliders and in three fields, with a
// grey-scale option and an example of the colour.
#pragma once

#include <cstdint>
#include <memory>

#include "lxcomp/LxDlgBase.h"

namespace Ui {
class TLxDlgColorSelect;
}

namespace lx {

class TLxDlgColorSelect : public TLxDlgBase {
  Q_OBJECT

 public:
  // Shows *colour and writes the chosen colour back into it on OK. helpContext 0 hides Help.
  TLxDlgColorSelect(QWidget* owner, TColor* colour, int helpContext);
  ~TLxDlgColorSelect() override;

  // The working components as typed; they may lie outside 0 to 255 until OK wraps them.
  std::int32_t GetR() const { return r_; }
  std::int32_t GetG() const { return g_; }
  std::int32_t GetB() const { return b_; }

  void OkButtonClick(QObject* sender = nullptr) override;
  void TrackBar1Change(QObject* sender = nullptr);
  void TrackBar2Change(QObject* sender = nullptr);
  void TrackBar3Change(QObject* sender = nullptr);
  void EditRChange(QObject* sender = nullptr);
  void EditGChange(QObject* sender = nullptr);
  void EditBChange(QObject* sender = nullptr);
  void CB_GreyscaleClick(QObject* sender = nullptr);

 private:
  struct Channel;
  Channel ChannelOf(int index) const;
  void SliderMoved(int index);
  void FieldEdited(int index);
  void ShowExample();
  TColor WrappedColor() const;

  std::unique_ptr<Ui::TLxDlgColorSelect> ui_;
  std::int32_t r_ = 0;
  std::int32_t g_ = 0;
  std::int32_t b_ = 0;
  TColor* colour_ = nullptr;
  // While a field moves its own slider, the slider leaves the field's text alone, so that a
  // typed 300 stays 300 although the slider stops at 255.
  bool fieldMovesSlider_ = false;
};

// Opens the colour dialog on `initial`; returns the chosen colour after OK and `initial` after
// Cancel. A non-null caption replaces "Select color..."; `helpContext` is the dialog's help
// topic (0: no Help button).
TColor DoSelectColorDlg(TColor initial, const wchar_t* caption, int helpContext);

}  // namespace lx
