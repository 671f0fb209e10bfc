#include "lxcomp/LxDlgLayerSettings.h"

#include <QAction>
#include <QCheckBox>
#include <QFrame>
#include <QLayout>
#include <QLineEdit>
#include <QPainter>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

#include <functional>

#include "dialogs/LxOwnerDrawMenu.h"
#include "lxcomp/LxColorPopup.h"
#include "lxcomp/LxDialogs.h"
#include "lxcomp/LxDlgColorSelect.h"
#include "lxcomp/LxMisc.h"
#include "ui_LxDlgLayerSettings.h"

namespace lx {
namespace {

constexpr int kLayerHelpContext = 2470;
constexpr int kColorHelpContext = 1700;
constexpr int kFillImages = 8;  // per theme
constexpr int kLineImages = 5;  // per theme
constexpr int kHollowImage = 7;
constexpr int kExampleSize = 77;
constexpr int kMaxStreamNumber = 65535;
const QSize kStyleImageSize(48, 20);
constexpr int kMenuItemPadding = 3;  // beside the image, so the menu frame never covers it

// Light images are drawn in black, dark ones in a light grey.
QColor StyleInk(bool dark) {
  return dark ? QColor(225, 225, 225) : QColor(0, 0, 0);
}

// The brush of a fill image (light or dark index); Qt::NoBrush for the hollow ones.
Qt::BrushStyle BrushOfFillImage(int imageIndex) {
  static constexpr Qt::BrushStyle brushes[kFillImages] = {
      Qt::SolidPattern, Qt::BDiagPattern, Qt::FDiagPattern, Qt::DiagCrossPattern,
      Qt::HorPattern,   Qt::VerPattern,   Qt::CrossPattern, Qt::NoBrush};
  return brushes[((imageIndex % kFillImages) + kFillImages) % kFillImages];
}

Qt::PenStyle PenOfLineImage(int imageIndex) {
  static constexpr Qt::PenStyle pens[kLineImages] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine,
                                                     Qt::DashDotLine, Qt::DashDotDotLine};
  return pens[((imageIndex % kLineImages) + kLineImages) % kLineImages];
}

QPixmap BlankStyleImage(qreal pixelRatio) {
  QPixmap image(kStyleImageSize * pixelRatio);
  image.setDevicePixelRatio(pixelRatio);
  image.fill(Qt::transparent);
  return image;
}

QString DefaultShortName(int index, int datatype) {
  return datatype != 0 ? QStringLiteral("L%1D%2").arg(index).arg(datatype)
                       : QStringLiteral("L%1").arg(index);
}

bool HasDefaultShortName(const TK5Layer& layer) {
  return layer.ShortName == DefaultShortName(layer.Index, layer.Datatype);
}

bool ContainsParenthesis(const QString& name) {
  return name.contains(QLatin1Char('(')) || name.contains(QLatin1Char(')'));
}

// A number field as the checks read it: true (bad) when unreadable or outside [0, limit].
bool ReadStreamNumber(const QString& text, int limit, int* value) {
  return GetNumberNoMessage(text, value) || *value < 0 || *value > limit;
}

int NumberOrZero(const QString& text) {
  int value = 0;
  return GetNumberNoMessage(text, &value) ? 0 : value;
}

void SetPanelColor(QWidget* panel, const QColor& color) {
  QPalette colors = panel->palette();
  colors.setColor(QPalette::Window, color);
  panel->setPalette(colors);
  panel->setAutoFillBackground(true);
}

}  // namespace

// ---------------------------------------------------------------------------------------------
// Style images and conversions

QSize TDlgLayerSettings::StyleImageSize() {
  return kStyleImageSize;
}

QPixmap TDlgLayerSettings::FillImage(int imageIndex, qreal pixelRatio) {
  QPixmap image = BlankStyleImage(pixelRatio);
  QPainter painter(&image);
  const QColor ink = StyleInk(imageIndex >= kFillImages);
  painter.setPen(QPen(ink, 1));
  // Hatches are laid in device pixels, so they stay fine lines at any resolution.
  QBrush brush(ink, BrushOfFillImage(imageIndex));
  brush.setTransform(QTransform::fromScale(1.0 / pixelRatio, 1.0 / pixelRatio));
  painter.setBrush(brush);
  painter.drawRect(QRect(QPoint(2, 2), kStyleImageSize - QSize(5, 5)));
  return image;
}

QPixmap TDlgLayerSettings::LineImage(int imageIndex, qreal pixelRatio) {
  QPixmap image = BlankStyleImage(pixelRatio);
  QPainter painter(&image);
  painter.setPen(
      QPen(StyleInk(imageIndex >= kLineImages), 2, PenOfLineImage(imageIndex), Qt::FlatCap));
  const int y = kStyleImageSize.height() / 2;
  painter.drawLine(3, y, kStyleImageSize.width() - 3, y);
  return image;
}

int TDlgLayerSettings::FillImageOfStyle(int fillStyle) {
  static constexpr int images[] = {4, 5, 2, 1, 6, 3, 7};  // codes 0 to 6
  return fillStyle >= 0 && fillStyle < 7 ? images[fillStyle] : 0;
}

int TDlgLayerSettings::FillStyleOfImage(int imageIndex) {
  static constexpr int styles[kFillImages] = {-1, 3, 2, 5, 0, 1, 4, 6};
  return styles[((imageIndex % kFillImages) + kFillImages) % kFillImages];
}

int TDlgLayerSettings::LineStyleOfImage(int imageIndex) {
  return ((imageIndex % kLineImages) + kLineImages) % kLineImages;
}

// ---------------------------------------------------------------------------------------------
// Construction and initialisation

TDlgLayerSettings::TDlgLayerSettings(QWidget* owner)
    : TLxDlgBase(owner), ui_(new Ui::TDlgLayerSettings) {
  ui_->setupUi(ClientArea());
  setObjectName(QStringLiteral("DlgLayerSettings"));
  setWindowTitle(QStringLiteral("Layer properties..."));
  SetHelpContext(kLayerHelpContext);
  UseLxExit({ui_->EditIndex, ui_->EditDatatype});
  UseOwnerDrawnTabs(ui_->PageControl1);
  BuildStyleMenus();
  BuildColorMenus();
  SetFillImage(GetLightText() ? kFillImages : 0);
  SetLineImage(GetLightText() ? kLineImages : 0);
  SetPanelColor(ui_->PanelExample, Qt::white);
  ui_->ExampleBox->installEventFilter(this);

  connect(ui_->CheckBox1, &QCheckBox::toggled, this, [this] { CheckBox1Click(); });
  connect(ui_->CheckBox2, &QCheckBox::toggled, this, [this] { CheckBox2Click(); });
  connect(ui_->PBC1, &TLxColorBox::OnClick, this, [this] { PBC1Click(); });
  connect(ui_->PBC2, &TLxColorBox::OnClick, this, [this] { PBC2Click(); });
  connect(ui_->PBC1, &TLxColorBox::OnPaint, this, [this] { PBC1Paint(); });
  connect(ui_->PBC2, &TLxColorBox::OnPaint, this, [this] { PBC2Paint(); });
  // A new colour reaches the outline box and the example even before the boxes repaint.
  connect(ui_->PBC1, &TLxColorBox::OnChange, this, [this] { PBC1Paint(); });
  connect(ui_->PBC2, &TLxColorBox::OnChange, this, [this] { PBC2Paint(); });
  connect(ui_->FillStyleButton, &QToolButton::clicked, this, [this] { FillStyleButtonClick(); });
  connect(ui_->LineStyleButton, &QToolButton::clicked, this, [this] { LineStyleButtonClick(); });
  connect(ui_->PageControl1, &QTabWidget::currentChanged, this, &TDlgLayerSettings::PageChanged);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
}

TDlgLayerSettings::~TDlgLayerSettings() = default;

void TDlgLayerSettings::BuildStyleMenus() {
  const bool dark = GetLightText();
  popupFillStyles_ = new TLxOwnerDrawMenu(
      this, [this](QAction* item, int& w, int& h) { FillMeasureItem(item, nullptr, w, h); },
      [this](QAction* item, QPainter* canvas, const QRect& rect, bool selected) {
        FillDrawItem(item, canvas, rect, selected);
      });
  popupFillStyles_->setObjectName(QStringLiteral("PopupFillStyles"));
  for (int i = 0; i < kFillImages; ++i) {
    QAction* item = popupFillStyles_->addAction(QString());
    item->setObjectName(QStringLiteral("FillItem%1").arg(i));
    item->setData(i + (dark ? kFillImages : 0));
  }
  connect(popupFillStyles_, &QMenu::triggered, this, [this](QAction* item) { FillClick(item); });

  popupLineStyles_ = new TLxOwnerDrawMenu(
      this, [this](QAction* item, int& w, int& h) { LineMeasureItem(item, nullptr, w, h); },
      [this](QAction* item, QPainter* canvas, const QRect& rect, bool selected) {
        LineDrawItem(item, canvas, rect, selected);
      });
  popupLineStyles_->setObjectName(QStringLiteral("PopupLineStyles"));
  const char* captions[kLineImages] = {"solid", "dashed", "dotted", "dash-dot", "dash-dot-dot"};
  for (int i = 0; i < kLineImages; ++i) {
    QAction* item = popupLineStyles_->addAction(QString::fromLatin1(captions[i]));
    item->setObjectName(QStringLiteral("LineItem%1").arg(i));
    item->setData(i + (dark ? kLineImages : 0));
  }
  connect(popupLineStyles_, &QMenu::triggered, this,
          [this](QAction* item) { LineStyleClick(item); });
}

void TDlgLayerSettings::BuildColorMenus() {
  colorPopupMenu1_ = new QMenu(this);
  colorPopupMenu1_->setObjectName(QStringLiteral("ColorPopupMenu1"));
  QAction* show1 = colorPopupMenu1_->addAction(QStringLiteral("Show color dialog..."));
  show1->setObjectName(QStringLiteral("ShowColorDialog1"));
  connect(show1, &QAction::triggered, this, [this] { ShowColorDialog1Click(); });
  // The outline colour's menu exists but no box carries it: both boxes offer the fill colour's.
  colorPopupMenu2_ = new QMenu(this);
  colorPopupMenu2_->setObjectName(QStringLiteral("ColorPopupMenu2"));
  QAction* show2 = colorPopupMenu2_->addAction(QStringLiteral("Show color dialog..."));
  show2->setObjectName(QStringLiteral("ShowColorDialog2"));
  connect(show2, &QAction::triggered, this, [this] { ShowColorDialog2Click(); });
  for (TLxColorBox* box : {ui_->PBC1, ui_->PBC2}) {
    box->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(box, &QWidget::customContextMenuRequested, this,
            [this, box](const QPoint& at) { colorPopupMenu1_->popup(box->mapToGlobal(at)); });
  }
}

void TDlgLayerSettings::DlgInit(LayerSettings* settings) {
  settings_ = settings;
  if (!settings || !settings->Layer) return;
  const TK5Layer& layer = *settings->Layer;
  ui_->EditLayerName->setText(layer.LongName);
  ui_->EditShortName->setText(layer.ShortName);
  ui_->EditIndex->setText(QString::number(layer.Index));
  ui_->EditDatatype->setText(QString::number(layer.Datatype));

  ui_->PBC1->SetColor(layer.FillColor);
  ui_->PBC2->SetColor(layer.LineColor);
  ui_->CheckBox2->setChecked(layer.FillColor == layer.LineColor);
  ui_->PBC2->setVisible(!ui_->CheckBox2->isChecked());

  ui_->RadioButtonCF->setChecked(layer.IsClearField);
  ui_->RadioButtonDF->setChecked(!layer.IsClearField);

  bool allDefault = true;
  for (const TK5Layer* other = settings->Layers; other && allDefault; other = other->Next)
    allDefault = HasDefaultShortName(*other);
  ui_->CheckBox1->setChecked(allDefault);
  ui_->EditShortName->setEnabled(!allDefault);

  const bool dark = GetLightText();
  SetFillImage(FillImageOfStyle(layer.FillStyle) + (dark ? kFillImages : 0));
  const int lineStyle = layer.LineStyle >= 0 && layer.LineStyle < kLineImages ? layer.LineStyle : 0;
  SetLineImage(lineStyle + (dark ? kLineImages : 0));
  SetPanelColor(ui_->PanelExample, settings->IsBlackBackground ? Qt::black : Qt::white);
  ui_->ExampleBox->update();
}

// ---------------------------------------------------------------------------------------------
// Checks and OK

bool TDlgLayerSettings::CheckPage1() {
  const TK5Layer* edited = settings_ ? settings_->Layer : nullptr;
  const TK5Layer* layers = settings_ ? settings_->Layers : nullptr;
  const QString name = ui_->EditLayerName->text();
  int index = 0, datatype = 0;
  const bool badIndex = ReadStreamNumber(ui_->EditIndex->text(), kMaxStreamNumber, &index);
  const bool badDatatype = ReadStreamNumber(ui_->EditDatatype->text(), kMaxStreamNumber, &datatype);
  QWidget* firstBad = nullptr;
  auto report = [&](const char* message, QWidget* field) {
    ShowK6Error(QString::fromLatin1(message), GetHelpContext());
    if (!firstBad) firstBad = field;
  };
  if (badIndex)
    report("Invalid layer index! Must be a number between 0 and 65535.", ui_->EditIndex);
  else if (badDatatype)
    report("Invalid datatype value! Must be a number between 0 and 65535.", ui_->EditDatatype);
  if (!badIndex && !badDatatype) {
    for (const TK5Layer* other = layers; other; other = other->Next) {
      if (other == edited || other->Index != index || other->Datatype != datatype) continue;
      report("Index/datatype combination already exists!", ui_->EditIndex);
      break;
    }
  }
  if (!firstBad) {
    for (const TK5Layer* other = layers; other; other = other->Next) {
      if (other == edited || other->LongName != name) continue;
      report("Layer name already exists!", ui_->EditLayerName);
      break;
    }
  }
  if (ContainsParenthesis(name))
    report("The layer name cannot contain the '(' or ')' characters!", ui_->EditLayerName);
  ShowPageOf(firstBad);
  return firstBad != nullptr;
}

bool TDlgLayerSettings::CheckPage2() {
  if (ui_->CheckBox1->isChecked()) return false;
  const TK5Layer* edited = settings_ ? settings_->Layer : nullptr;
  const QString shortName = ui_->EditShortName->text();
  bool error = false;
  for (const TK5Layer* other = settings_ ? settings_->Layers : nullptr; other;
       other = other->Next) {
    if (other == edited || other->ShortName != shortName) continue;
    ShowK6Error(QStringLiteral("Short layer name already exists!"), GetHelpContext());
    error = true;
    break;
  }
  if (ContainsParenthesis(shortName)) {
    ShowK6Error(QStringLiteral("The layer short name cannot contain the '(' or ')' characters!"),
                GetHelpContext());
    error = true;
  }
  if (error) ShowPageOf(ui_->EditShortName);
  return error;
}

// Brings the page of a field that failed a check to the front (without checking the page that
// is left) and puts the caret in the field.
void TDlgLayerSettings::ShowPageOf(QWidget* field) {
  if (!field) return;
  const int page = ui_->TabSheet1->isAncestorOf(field) ? 0 : 1;
  if (ui_->PageControl1->currentIndex() != page) {
    turningBack_ = true;
    ui_->PageControl1->setCurrentIndex(page);
    turningBack_ = false;
    shownPage_ = page;
  }
  field->setFocus();
  if (auto* edit = qobject_cast<QLineEdit*>(field)) edit->selectAll();
}

void TDlgLayerSettings::OkButtonClick(QObject*) {
  if (!settings_ || !settings_->Layer) {
    done(mrOk);
    return;
  }
  if (CheckPage1() || CheckPage2()) return;
  TK5Layer& layer = *settings_->Layer;
  layer.SetLongName(ui_->EditLayerName->text());
  layer.SetShortName(ui_->EditShortName->text());
  layer.FillColor = ui_->PBC1->GetColor();
  layer.LineColor = ui_->CheckBox2->isChecked() ? ui_->PBC1->GetColor() : ui_->PBC2->GetColor();
  layer.FillStyle = static_cast<std::int8_t>(FillStyleOfImage(fillImage_));
  layer.LineStyle = static_cast<std::int8_t>(LineStyleOfImage(lineImage_));
  int number = 0;
  if (!GetNumberNoMessage(ui_->EditIndex->text(), &number)) layer.Index = number;
  if (!GetNumberNoMessage(ui_->EditDatatype->text(), &number)) layer.Datatype = number;
  layer.IsClearField = ui_->RadioButtonCF->isChecked();
  if (ui_->CheckBox1->isChecked()) {
    for (TK5Layer* other = settings_->Layers; other; other = other->Next)
      other->SetShortName(DefaultShortName(other->Index, other->Datatype));
    layer.SetShortName(DefaultShortName(layer.Index, layer.Datatype));
  }
  done(mrOk);
}

// ---------------------------------------------------------------------------------------------
// Pages and short names

void TDlgLayerSettings::PageControl1Changing(QObject*, bool& allowChange) {
  if (shownPage_ == 0) {
    allowChange = !CheckPage1();
    if (allowChange) CheckBox1Click();
  } else {
    allowChange = !CheckPage2();
  }
}

// Qt has already turned the page; a page whose checks fail is turned back to.
void TDlgLayerSettings::PageChanged(int index) {
  if (turningBack_ || index == shownPage_) return;
  const int target = index;
  turningBack_ = true;
  ui_->PageControl1->setCurrentIndex(shownPage_);
  turningBack_ = false;
  bool allowChange = true;
  PageControl1Changing(ui_->PageControl1, allowChange);
  if (!allowChange) return;
  shownPage_ = target;
  turningBack_ = true;
  ui_->PageControl1->setCurrentIndex(target);
  turningBack_ = false;
}

QString TDlgLayerSettings::DefaultShortNameOfFields() const {
  return DefaultShortName(NumberOrZero(ui_->EditIndex->text()),
                          NumberOrZero(ui_->EditDatatype->text()));
}

void TDlgLayerSettings::CheckBox1Click(QObject*) {
  if (ui_->CheckBox1->isChecked()) {
    ui_->EditShortName->setText(DefaultShortNameOfFields());
    ui_->EditShortName->setEnabled(false);
  } else {
    ui_->EditShortName->setEnabled(true);
  }
}

// ---------------------------------------------------------------------------------------------
// Colours

void TDlgLayerSettings::CheckBox2Click(QObject*) {
  if (ui_->CheckBox2->isChecked()) {
    ui_->PBC2->SetColor(ui_->PBC1->GetColor());
    ui_->PBC2->hide();
    ui_->ExampleBox->update();
  } else {
    ui_->PBC2->show();
  }
}

void TDlgLayerSettings::PBC1Paint(QObject*) {
  if (ui_->CheckBox2->isChecked()) ui_->PBC2->SetColor(ui_->PBC1->GetColor());
  ui_->ExampleBox->update();
}

void TDlgLayerSettings::PBC2Paint(QObject*) {
  ui_->ExampleBox->update();
}

void TDlgLayerSettings::OpenColorPopup(TLxColorBox* box) {
  if (!colorPopup_)
    colorPopup_ = new TLxColorPopup(this, box);
  else
    colorPopup_->SetTarget(box);
  colorPopup_->PopupBelowTarget();
}

void TDlgLayerSettings::PBC1Click(QObject*) {
  OpenColorPopup(ui_->PBC1);
}

void TDlgLayerSettings::PBC2Click(QObject*) {
  OpenColorPopup(ui_->PBC2);
}

void TDlgLayerSettings::ShowColorDialog1Click(QObject*) {
  const TColor chosen =
      DoSelectColorDlg(ui_->PBC1->GetColor(), L"Select fill color...", kColorHelpContext);
  ui_->PBC1->SetColor(chosen);
  if (ui_->CheckBox2->isChecked()) ui_->PBC2->SetColor(chosen);
  ui_->ExampleBox->update();
}

void TDlgLayerSettings::ShowColorDialog2Click(QObject*) {
  const TColor chosen =
      DoSelectColorDlg(ui_->PBC2->GetColor(), L"Select line color...", kColorHelpContext);
  ui_->PBC2->SetColor(chosen);
  ui_->ExampleBox->update();
}

// ---------------------------------------------------------------------------------------------
// Style buttons and their menus

void TDlgLayerSettings::SetFillImage(int imageIndex) {
  fillImage_ = std::clamp(imageIndex, 0, kFillImageCount - 1);
  ui_->FillStyleButton->setIcon(QIcon(FillImage(fillImage_, devicePixelRatioF())));
  ui_->FillStyleButton->setIconSize(kStyleImageSize);
  ui_->FillStyleButton->setProperty("ImageIndex", fillImage_);
  ui_->ExampleBox->update();
}

void TDlgLayerSettings::SetLineImage(int imageIndex) {
  lineImage_ = std::clamp(imageIndex, 0, kLineImageCount - 1);
  ui_->LineStyleButton->setIcon(QIcon(LineImage(lineImage_, devicePixelRatioF())));
  ui_->LineStyleButton->setIconSize(kStyleImageSize);
  ui_->LineStyleButton->setProperty("ImageIndex", lineImage_);
  ui_->ExampleBox->update();
}

void TDlgLayerSettings::FillStyleButtonClick(QObject*) {
  QToolButton* button = ui_->FillStyleButton;
  popupFillStyles_->popup(button->mapToGlobal(QPoint(0, button->height())));
}

void TDlgLayerSettings::LineStyleButtonClick(QObject*) {
  QToolButton* button = ui_->LineStyleButton;
  popupLineStyles_->popup(button->mapToGlobal(QPoint(0, button->height())));
}

void TDlgLayerSettings::FillClick(QObject* sender) {
  if (auto* item = qobject_cast<QAction*>(sender)) SetFillImage(item->data().toInt());
}

void TDlgLayerSettings::LineStyleClick(QObject* sender) {
  if (auto* item = qobject_cast<QAction*>(sender)) SetLineImage(item->data().toInt());
}

void TDlgLayerSettings::FillMeasureItem(QObject*, QPainter*, int& width, int& height) {
  width = kStyleImageSize.width() + 2 * kMenuItemPadding;
  height = kStyleImageSize.height() + 3;
}

void TDlgLayerSettings::LineMeasureItem(QObject*, QPainter*, int& width, int& height) {
  width = kStyleImageSize.width() + 2 * kMenuItemPadding;
  height = kStyleImageSize.height() + 3;
}

void TDlgLayerSettings::FillDrawItem(QObject* sender, QPainter* canvas, const QRect& rect,
                                     bool selected) {
  auto* item = qobject_cast<QAction*>(sender);
  if (!item || !canvas) return;
  if (selected) canvas->fillRect(rect, palette().color(QPalette::Highlight));
  const int image = item->data().toInt();
  if (image % kFillImages == kHollowImage) return;
  const int left = rect.left() + (rect.width() - kStyleImageSize.width()) / 2;
  canvas->drawPixmap(QPoint(left, rect.top() + 1),
                     FillImage(image, canvas->device()->devicePixelRatioF()));
}

void TDlgLayerSettings::LineDrawItem(QObject* sender, QPainter* canvas, const QRect& rect,
                                     bool selected) {
  auto* item = qobject_cast<QAction*>(sender);
  if (!item || !canvas) return;
  if (selected) canvas->fillRect(rect, palette().color(QPalette::Highlight));
  const QPixmap image = LineImage(item->data().toInt(), canvas->device()->devicePixelRatioF());
  QRect place(QPoint(), kStyleImageSize);
  place.moveCenter(rect.center());
  canvas->drawPixmap(place.topLeft(), image);
}

// ---------------------------------------------------------------------------------------------
// The example

QImage TDlgLayerSettings::ExampleImage() const {
  const bool black = settings_ && settings_->IsBlackBackground;
  const QColor ground = ui_->PanelExample->palette().color(QPalette::Window);
  const QBrush brush(ToQColor(ColorToRGB(ui_->PBC1->GetColor())), BrushOfFillImage(fillImage_));
  const QPen pen(ToQColor(ColorToRGB(ui_->PBC2->GetColor())), 1, PenOfLineImage(lineImage_));
  QImage bitmap(kExampleSize, kExampleSize, QImage::Format_RGB32);
  bitmap.fill(ground);
  QPainter painter(&bitmap);
  // Overlaps combine as in the layout view: additively on black (merge pen), multiplicatively
  // on white (mask pen).
  painter.setCompositionMode(black ? QPainter::RasterOp_SourceOrDestination
                                   : QPainter::RasterOp_SourceAndDestination);
  // Each shape is drawn opaque on the ground colour first, so that the gaps of its hatch and
  // dashes carry the ground colour, which the raster operation leaves as it is.
  auto combine = [&](const std::function<void(QPainter&)>& draw) {
    QImage shape(kExampleSize, kExampleSize, QImage::Format_RGB32);
    shape.fill(ground);
    QPainter shapePainter(&shape);
    shapePainter.setBackgroundMode(Qt::OpaqueMode);
    shapePainter.setBackground(ground);
    shapePainter.setBrush(brush);
    shapePainter.setPen(pen);
    draw(shapePainter);
    shapePainter.end();
    painter.drawImage(0, 0, shape);
  };
  combine([](QPainter& p) { p.drawRect(QRect(10, 10, 39, 39)); });     // (10, 10) to (50, 50)
  combine([](QPainter& p) { p.drawEllipse(QRect(22, 22, 49, 49)); });  // box (22, 22)-(72, 72)
  return bitmap;
}

void TDlgLayerSettings::ExampleBoxPaint(QObject*) {
  QPainter painter(ui_->ExampleBox);
  painter.drawImage(ui_->ExampleBox->rect(), ExampleImage());
}

bool TDlgLayerSettings::eventFilter(QObject* watched, QEvent* event) {
  if (watched == ui_->ExampleBox && event->type() == QEvent::Paint) {
    ExampleBoxPaint(watched);
    return true;
  }
  return TLxDlgBase::eventFilter(watched, event);
}

bool DoLayerSettingsDlg(LayerSettings* settings) {
  return RunModal<TDlgLayerSettings>(settings);
}

}  // namespace lx
