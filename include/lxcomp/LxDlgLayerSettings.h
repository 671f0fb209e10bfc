// The layer settings dialog: a layer's names, stream index and datatype, fill and outline
// style and colour, and polarity, with a live example of overlapping shapes of the layer.
#pragma once

#include <QPixmap>

#include <memory>

#include "lxcomp/LxDlgBase.h"
#include "lxcomp/LxLayer.h"

class QMenu;
class QPainter;

namespace Ui {
class TDlgLayerSettings;
}

namespace lx {

class TLxColorPopup;

// Layer is changed in place on OK; Layers is the head of the host's whole list (it holds Layer)
// and its short names are rewritten when default short names are chosen.
struct LayerSettings {
  bool IsBlackBackground;
  TK5Layer* Layer;
  TK5Layer* Layers;
};

class TDlgLayerSettings : public TLxDlgBase {
  Q_OBJECT

 public:
  explicit TDlgLayerSettings(QWidget* owner = nullptr);
  ~TDlgLayerSettings() override;

  // The style images: fills 0-7 light and 8-15 dark (solid, backward diagonal, forward diagonal,
  // diagonal cross, horizontal, vertical, cross, hollow); lines 0-4 light and 5-9 dark (solid,
  // dashed, dotted, dash-dot, dash-dot-dot).
  static constexpr int kFillImageCount = 16;
  static constexpr int kLineImageCount = 10;
  static QPixmap FillImage(int imageIndex, qreal pixelRatio = 1.0);
  static QPixmap LineImage(int imageIndex, qreal pixelRatio = 1.0);
  static QSize StyleImageSize();
  // Conversions between a layer's styles and the images (light set; add 8 or 5 for the dark).
  static int FillImageOfStyle(int fillStyle);
  static int FillStyleOfImage(int imageIndex);
  static int LineStyleOfImage(int imageIndex);

  // The working styles: the images the two style buttons show.
  int GetFillImageIndex() const { return fillImage_; }
  int GetLineImageIndex() const { return lineImage_; }
  // The style menus and the colour popup (created at the first click on a colour box).
  QMenu* PopupFillStyles() const { return popupFillStyles_; }
  QMenu* PopupLineStyles() const { return popupLineStyles_; }
  TLxColorPopup* ColorPopup() const { return colorPopup_; }
  // The example as painted now, 77 x 77.
  QImage ExampleImage() const;

  void DlgInit(LayerSettings* settings);
  void OkButtonClick(QObject* sender = nullptr) override;
  // Each shows its messages and returns true when it found an error.
  bool CheckPage1();
  bool CheckPage2();

  void ExampleBoxPaint(QObject* sender = nullptr);
  void CheckBox1Click(QObject* sender = nullptr);
  void CheckBox2Click(QObject* sender = nullptr);
  void PBC1Click(QObject* sender = nullptr);
  void PBC2Click(QObject* sender = nullptr);
  void PBC1Paint(QObject* sender = nullptr);
  void PBC2Paint(QObject* sender = nullptr);
  void ShowColorDialog1Click(QObject* sender = nullptr);
  void ShowColorDialog2Click(QObject* sender = nullptr);
  void FillStyleButtonClick(QObject* sender = nullptr);
  // Menu item handlers: `sender` is the item (a QAction); measuring has no canvas.
  void FillClick(QObject* sender = nullptr);
  void FillDrawItem(QObject* sender, QPainter* canvas, const QRect& rect, bool selected);
  void FillMeasureItem(QObject* sender, QPainter* canvas, int& width, int& height);
  void LineStyleButtonClick(QObject* sender = nullptr);
  void LineStyleClick(QObject* sender = nullptr);
  void LineDrawItem(QObject* sender, QPainter* canvas, const QRect& rect, bool selected);
  void LineMeasureItem(QObject* sender, QPainter* canvas, int& width, int& height);
  // Leaving a page is allowed only when its checks pass.
  void PageControl1Changing(QObject* sender, bool& allowChange);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildStyleMenus();
  void BuildColorMenus();
  void SetFillImage(int imageIndex);
  void SetLineImage(int imageIndex);
  void OpenColorPopup(class TLxColorBox* box);
  void PageChanged(int index);
  void ShowPageOf(QWidget* field);
  QString DefaultShortNameOfFields() const;

  std::unique_ptr<Ui::TDlgLayerSettings> ui_;
  LayerSettings* settings_ = nullptr;
  QMenu* popupFillStyles_ = nullptr;
  QMenu* popupLineStyles_ = nullptr;
  QMenu* colorPopupMenu1_ = nullptr;
  QMenu* colorPopupMenu2_ = nullptr;
  TLxColorPopup* colorPopup_ = nullptr;
  int fillImage_ = 0;
  int lineImage_ = 0;
  int shownPage_ = 0;
  bool turningBack_ = false;
};

// Opens the layer settings on settings->Layer; true when the user confirmed and the layer (and
// possibly the list's short names) was written.
bool DoLayerSettingsDlg(LayerSettings* settings);

}  // namespace lx
