#include "lxcomp/LxDlgBase.h"

#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QStyleOptionTab>
#include <QStylePainter>
#include <QTabBar>
#include <QTabWidget>

#include <cmath>

#include "lxcomp/LxDialogs.h"
#include "lxcomp/LxLayer.h"
#include "lxcomp/LxMisc.h"
#include "lxcomp/LxParser.h"
#include "ui_LxDlgBase.h"

namespace lx {
namespace {

constexpr int kSwatchWidth = 22;
constexpr int kSwatchHeight = 16;
constexpr int kLightTextSum = 381;

// One layer's swatch, drawn at 22 x 16 and scaled to the picker's resolution; the mask's white
// becomes transparent.
QIcon LayerSwatch(const TK5Layer& layer, double scale, double pixelRatio) {
  QImage image(kSwatchWidth, kSwatchHeight, QImage::Format_RGB32);
  QImage mask(kSwatchWidth, kSwatchHeight, QImage::Format_RGB32);
  layer.DrawBitmap(&image, &mask);
  const int w = static_cast<int>(kSwatchWidth * scale * pixelRatio);
  const int h = static_cast<int>(kSwatchHeight * scale * pixelRatio);
  QImage scaled = image.scaled(w, h, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  QImage opacity = mask.scaled(w, h, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                       .convertToFormat(QImage::Format_Grayscale8);
  opacity.invertPixels();  // black in the mask is opaque
  scaled = scaled.convertToFormat(QImage::Format_ARGB32);
  scaled.setAlphaChannel(opacity);
  scaled.setDevicePixelRatio(pixelRatio);
  return QIcon(QPixmap::fromImage(scaled));
}

QString LayerCaption(const TK5Layer& layer) {
  return layer.LongName.isEmpty() ? QStringLiteral("Layer %1").arg(layer.Number) : layer.LongName;
}

QString TabCaption(QWidget* control, int tabIndex) {
  if (auto* bar = qobject_cast<QTabBar*>(control)) return bar->tabText(tabIndex);
  if (auto* tabs = qobject_cast<QTabWidget*>(control)) return tabs->tabText(tabIndex);
  return {};
}

// The plain "no help" notice: to the host's hook when one is set, otherwise a simple box.
void ShowPlainMessage(QWidget* parent, const QString& text) {
  if (const MessageHook& hook = GetMessageHook()) {
    hook(text, 3, 0);
    return;
  }
  QMessageBox box(QMessageBox::NoIcon, QApplication::applicationName(), text, QMessageBox::Ok,
                  parent);
  box.exec();
}

}  // namespace

TLxDlgBase::TLxDlgBase(QWidget* parent) : QDialog(parent), baseUi_(new Ui::TLxDlgBase) {
  baseUi_->setupUi(this);
  connect(baseUi_->OkButton, &QPushButton::clicked, this, &TLxDlgBase::OkClicked);
  connect(baseUi_->CancelButton, &QPushButton::clicked, this, [this] { CancelButtonClick(); });
  connect(baseUi_->HelpButton, &QPushButton::clicked, this, [this] { HelpButtonClick(); });
  ReadColors();
}

TLxDlgBase::~TLxDlgBase() {
  FormDestroy(this);
  // The fields outlive this part of the dialog: they go with the QWidget base.
  for (QObject* watched : exitFields_ + drawnTabs_) {
    watched->removeEventFilter(this);
    disconnect(watched, nullptr, this, nullptr);
  }
}

QWidget* TLxDlgBase::ClientArea() const {
  return baseUi_->ClientArea;
}
QWidget* TLxDlgBase::BottomPanel() const {
  return baseUi_->BottomPanel;
}
QPushButton* TLxDlgBase::OkButton() const {
  return baseUi_->OkButton;
}
QPushButton* TLxDlgBase::CancelButton() const {
  return baseUi_->CancelButton;
}
QPushButton* TLxDlgBase::HelpButton() const {
  return baseUi_->HelpButton;
}

void TLxDlgBase::ReadColors() {
  const QPalette& colors = palette();
  const QColor text =
      colors.color(VisualStylesActive() ? QPalette::ButtonText : QPalette::WindowText);
  const QColor back = colors.color(VisualStylesActive() ? QPalette::Button : QPalette::Window);
  textColor_ = FromQColor(text);
  backgroundColor_ = FromQColor(back);
  lightText_ = text.red() + text.green() + text.blue() > kLightTextSum;
}

void TLxDlgBase::UseLxExit(std::initializer_list<QLineEdit*> fields) {
  for (QLineEdit* field : fields) {
    if (!field || exitFields_.contains(field)) continue;
    exitFields_.insert(field);
    field->installEventFilter(this);
    connect(field, &QObject::destroyed, this, [this, field] { exitFields_.remove(field); });
  }
}

void TLxDlgBase::LxExit(QObject* sender) {
  auto* edit = qobject_cast<QLineEdit*>(sender);
  if (!edit) return;
  const QString text = edit->text();
  if (!IsExpression(text)) return;
  double value = 0;
  if (EvaluateExpression(text, &value)) return;  // left as typed; reading it reports it
  PrintDouble(value, edit);
}

void TLxDlgBase::NotAValidNumber(const QString& text) {
  ShowK6Error(NotAValidNumberText(text), helpContext_);
}

bool TLxDlgBase::GetCoordinate(const QString& text, double* nanometres) {
  double value = 0;
  if (GetCoordinateNoMessage(text, &value)) {
    NotAValidNumber(ReaderCopy(text));
    return true;
  }
  if (nanometres) *nanometres = value;
  return false;
}

bool TLxDlgBase::GetDouble(const QString& text, double* result) {
  double value = 0;
  if (GetDoubleNoMessage(text, &value)) {
    NotAValidNumber(text);
    return true;
  }
  if (result) *result = value;
  return false;
}

bool TLxDlgBase::GetNumber(const QString& text, int* result) {
  int value = 0;
  if (GetNumberNoMessage(text, &value)) {
    NotAValidNumber(text);
    return true;
  }
  if (result) *result = value;
  return false;
}

bool TLxDlgBase::Refocus(QLineEdit* field, bool failed) {
  if (failed && field) {
    field->setFocus();
    field->selectAll();
  }
  return failed;
}

bool TLxDlgBase::ReadCoordinate(QLineEdit* field, double* nanometres) {
  return Refocus(field, GetCoordinate(field ? field->text() : QString(), nanometres));
}

bool TLxDlgBase::ReadDouble(QLineEdit* field, double* value) {
  return Refocus(field, GetDouble(field ? field->text() : QString(), value));
}

bool TLxDlgBase::ReadNumber(QLineEdit* field, int* value) {
  return Refocus(field, GetNumber(field ? field->text() : QString(), value));
}

int TLxDlgBase::FillComboBoxExWithLayers(QComboBox* combo, const TK5Layer* layers,
                                         int selectedNumber) {
  if (!combo) return 0;
  const bool wasBlocked = combo->blockSignals(true);
  combo->setUpdatesEnabled(false);
  lyrImages_.clear();
  const double scale = ScaleFactor(combo);
  const double pixelRatio = combo->devicePixelRatioF();
  for (const TK5Layer* layer = layers; layer; layer = layer->Next)
    lyrImages_.append(LayerSwatch(*layer, scale, pixelRatio));
  combo->setIconSize(
      QSize(static_cast<int>(kSwatchWidth * scale), static_cast<int>(kSwatchHeight * scale)));
  combo->clear();
  int selected = 0, i = 0;
  for (const TK5Layer* layer = layers; layer; layer = layer->Next, ++i) {
    combo->addItem(lyrImages_[i], LayerCaption(*layer));
    if (layer->Number == selectedNumber) selected = i;
  }
  combo->setCurrentIndex(combo->count() > 0 ? selected : -1);
  combo->setUpdatesEnabled(true);
  combo->blockSignals(wasBlocked);
  return combo->count();
}

int TLxDlgBase::GetLayerIndex(QComboBox* combo, const TK5Layer* layers) const {
  if (!layers || !combo) return -1;
  const int index = combo->currentIndex();
  if (index < 0) return -1;
  const TK5Layer* layer = layers;
  for (int step = 0; layer && step < index; ++step)
    layer = layer->Next;
  return layer ? layer->Number : -1;
}

void TLxDlgBase::FillComboBoxWithFonts(QComboBox* combo, const wchar_t* selectedName) {
  FillComboBoxWithFonts(combo, selectedName ? QString::fromWCharArray(selectedName) : QString());
}

void TLxDlgBase::FillComboBoxWithFonts(QComboBox* combo, const QString& selectedName) {
  if (!combo) return;
  const bool wasBlocked = combo->blockSignals(true);
  combo->clear();
  for (const QString& family : QFontDatabase::families())
    if (family.toUpper() != QLatin1String("DEFAULT")) combo->addItem(family);
  combo->setCurrentIndex(selectedName.isNull() ? -1 : combo->findText(selectedName));
  combo->blockSignals(wasBlocked);
}

void TLxDlgBase::TabsDrawTab(QPainter* canvas, QWidget* control, int tabIndex, const QRect& rect,
                             bool active) {
  if (!canvas) return;
  if (!qobject_cast<QTabBar*>(control) && !qobject_cast<QTabWidget*>(control)) return;
  const QString caption = TabCaption(control, tabIndex);
  canvas->save();
  canvas->setPen(ToQColor(textColor_));
  canvas->setBackgroundMode(Qt::TransparentMode);
  canvas->drawText(rect, Qt::AlignCenter | Qt::TextSingleLine, caption);
  if (active && control->hasFocus()) {
    const QSize text = canvas->fontMetrics().size(Qt::TextSingleLine, caption);
    const int dx = (rect.width() - text.width()) / 4;
    const int dy = (rect.height() - text.height() - 1) / 2;
    QStyleOptionFocusRect focus;
    focus.initFrom(control);
    focus.rect = rect.adjusted(dx, dy, -dx, -dy);
    control->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, canvas, control);
  }
  canvas->restore();
}

void TLxDlgBase::UseOwnerDrawnTabs(QTabWidget* tabs) {
  if (tabs) UseOwnerDrawnTabs(tabs->tabBar());
}

void TLxDlgBase::UseOwnerDrawnTabs(QTabBar* tabs) {
  if (!tabs || drawnTabs_.contains(tabs)) return;
  drawnTabs_.insert(tabs);
  tabs->installEventFilter(this);
  connect(tabs, &QObject::destroyed, this, [this, tabs] { drawnTabs_.remove(tabs); });
}

// The style draws each tab's shape; the dialog draws its caption.
bool TLxDlgBase::PaintTabs(QTabBar* bar) {
  QStylePainter painter(bar);
  for (int i = 0; i < bar->count(); ++i) {
    QStyleOptionTab tab;
    tab.initFrom(bar);
    tab.rect = bar->tabRect(i);
    tab.shape = bar->shape();
    if (i == bar->currentIndex()) tab.state |= QStyle::State_Selected;
    painter.drawControl(QStyle::CE_TabBarTabShape, tab);
    TabsDrawTab(&painter, bar, i, tab.rect, i == bar->currentIndex());
  }
  return true;
}

void TLxDlgBase::OkClicked() {
  // Enter presses OK without leaving the field: the field is left first, as a click would.
  if (QWidget* focused = focusWidget(); focused && exitFields_.contains(focused)) LxExit(focused);
  OkButtonClick(baseUi_->OkButton);
}

void TLxDlgBase::OkButtonClick(QObject*) {
  done(mrOk);
}

void TLxDlgBase::CancelButtonClick(QObject*) {
  done(mrCancel);
}

void TLxDlgBase::HelpButtonClick(QObject*) {
  const HelpHandler& handler = GetHelpHandler();
  if (helpContext_ != 0 && handler)
    handler(helpContext_);
  else
    ShowPlainMessage(this, QStringLiteral("No Help available"));
}

void TLxDlgBase::FormDestroy(QObject*) {
  delete ownedObject_;
  ownedObject_ = nullptr;
}

void TLxDlgBase::GrowToFitText(int minimumHeight) {
  if (growing_ || !layout()) return;
  growing_ = true;
  // Controls shown or hidden while the dialog is hidden reach the layouts only when asked.
  if (QLayout* client = ClientArea()->layout()) client->invalidate();
  ClientArea()->updateGeometry();
  layout()->invalidate();
  layout()->activate();
  const int needed = std::max(minimumHeight, layout()->totalHeightForWidth(width()));
  setMinimumHeight(needed);
  if (height() < needed) resize(width(), needed);
  growing_ = false;
}

void TLxDlgBase::reject() {
  done(mrCancel);
}

QAbstractButton* TLxDlgBase::EscapeButton() const {
  QPushButton* cancel = baseUi_->CancelButton;
  return cancel->isVisibleTo(const_cast<TLxDlgBase*>(this)) && cancel->isEnabled() ? cancel
                                                                                   : nullptr;
}

void TLxDlgBase::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
    if (QAbstractButton* button = EscapeButton())
      button->click();
    else
      reject();
    return;
  }
  if (event->key() == Qt::Key_F1) {
    HelpButtonClick(this);
    return;
  }
  QDialog::keyPressEvent(event);
}

bool TLxDlgBase::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusOut && exitFields_.contains(watched)) LxExit(watched);
  if (event->type() == QEvent::Paint && drawnTabs_.contains(watched))
    return PaintTabs(static_cast<QTabBar*>(watched));
  return QDialog::eventFilter(watched, event);
}

}  // namespace lx
