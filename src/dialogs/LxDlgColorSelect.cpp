#include "lxcomp/LxDlgColorSelect.h"

#include <QCheckBox>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>

#include "lxcomp/LxColorPopup.h"
#include "ui_LxDlgColorSelect.h"

namespace lx {
namespace {

constexpr int kColorHelpContext = 1700;

// A whole number as typed (blanks around it allowed); false for anything else.
bool ReadWholeNumber(const QString& text, std::int32_t* value) {
  bool ok = false;
  const int number = text.trimmed().toInt(&ok, 10);
  if (ok) *value = number;
  return ok;
}

std::uint32_t LowByte(std::int32_t component) {
  return static_cast<std::uint32_t>(component) & 0xffu;
}

}  // namespace

struct TLxDlgColorSelect::Channel {
  std::int32_t* component;
  QSlider* slider;
  QLineEdit* field;
};

TLxDlgColorSelect::TLxDlgColorSelect(QWidget* owner, TColor* colour, int helpContext)
    : TLxDlgBase(owner), ui_(new Ui::TLxDlgColorSelect), colour_(colour) {
  ui_->setupUi(ClientArea());
  setObjectName(QStringLiteral("LxDlgColorSelect"));
  setWindowTitle(QStringLiteral("Select color..."));
  SetHelpContext(helpContext);
  HelpButton()->setVisible(helpContext != 0);
  HelpButton()->setEnabled(helpContext != 0);
  layout()->setSizeConstraint(QLayout::SetFixedSize);

  connect(ui_->TrackBar1, &QSlider::valueChanged, this, [this] { TrackBar1Change(); });
  connect(ui_->TrackBar2, &QSlider::valueChanged, this, [this] { TrackBar2Change(); });
  connect(ui_->TrackBar3, &QSlider::valueChanged, this, [this] { TrackBar3Change(); });
  connect(ui_->EditR, &QLineEdit::textChanged, this, [this] { EditRChange(); });
  connect(ui_->EditG, &QLineEdit::textChanged, this, [this] { EditGChange(); });
  connect(ui_->EditB, &QLineEdit::textChanged, this, [this] { EditBChange(); });
  connect(ui_->CB_Greyscale, &QCheckBox::clicked, this, [this] { CB_GreyscaleClick(); });

  const auto value = static_cast<std::uint32_t>(colour ? ColorToRGB(*colour) : 0);
  r_ = static_cast<std::int32_t>(value & 0xff);
  g_ = static_cast<std::int32_t>((value >> 8) & 0xff);
  b_ = static_cast<std::int32_t>((value >> 16) & 0xff);
  ShowExample();
  for (int i = 0; i < 3; ++i) {
    const Channel channel = ChannelOf(i);
    const std::int32_t component = *channel.component;
    channel.slider->setValue(component);
    channel.field->setText(QString::number(component));
  }
}

TLxDlgColorSelect::~TLxDlgColorSelect() = default;

TLxDlgColorSelect::Channel TLxDlgColorSelect::ChannelOf(int index) const {
  switch (index) {
    case 0:
      return {const_cast<std::int32_t*>(&r_), ui_->TrackBar1, ui_->EditR};
    case 1:
      return {const_cast<std::int32_t*>(&g_), ui_->TrackBar2, ui_->EditG};
    default:
      return {const_cast<std::int32_t*>(&b_), ui_->TrackBar3, ui_->EditB};
  }
}

void TLxDlgColorSelect::SliderMoved(int index) {
  if (fieldMovesSlider_) return;
  const QString number = QString::number(ChannelOf(index).slider->value());
  ChannelOf(index).field->setText(number);
  if (!ui_->CB_Greyscale->isChecked()) return;
  for (int other = 0; other < 3; ++other)
    if (other != index) ChannelOf(other).field->setText(number);
}

void TLxDlgColorSelect::FieldEdited(int index) {
  const Channel channel = ChannelOf(index);
  if (!ReadWholeNumber(channel.field->text(), channel.component)) {
    *channel.component = 0;
    return;
  }
  fieldMovesSlider_ = true;
  channel.slider->setValue(*channel.component);
  fieldMovesSlider_ = false;
  // With grey scale on, the other fields follow the one typed into.
  if (ui_->CB_Greyscale->isChecked()) {
    const QString number = channel.field->text();
    for (int other = 0; other < 3; ++other)
      if (other != index) ChannelOf(other).field->setText(number);
  }
  ShowExample();
}

TColor TLxDlgColorSelect::WrappedColor() const {
  return static_cast<TColor>(LowByte(r_) | (LowByte(g_) << 8) | (LowByte(b_) << 16));
}

void TLxDlgColorSelect::ShowExample() {
  QPalette colors = ui_->PanelExample->palette();
  colors.setColor(QPalette::Window, ToQColor(WrappedColor()));
  ui_->PanelExample->setPalette(colors);
  ui_->PanelExample->setAutoFillBackground(true);
}

void TLxDlgColorSelect::TrackBar1Change(QObject*) {
  SliderMoved(0);
}
void TLxDlgColorSelect::TrackBar2Change(QObject*) {
  SliderMoved(1);
}
void TLxDlgColorSelect::TrackBar3Change(QObject*) {
  SliderMoved(2);
}
void TLxDlgColorSelect::EditRChange(QObject*) {
  FieldEdited(0);
}
void TLxDlgColorSelect::EditGChange(QObject*) {
  FieldEdited(1);
}
void TLxDlgColorSelect::EditBChange(QObject*) {
  FieldEdited(2);
}

void TLxDlgColorSelect::CB_GreyscaleClick(QObject*) {
  if (!ui_->CB_Greyscale->isChecked()) return;
  const int mean =
      (ui_->TrackBar1->value() + ui_->TrackBar2->value() + ui_->TrackBar3->value()) / 3;
  const QString number = QString::number(mean);
  ui_->EditR->setText(number);
  ui_->EditG->setText(number);
  ui_->EditB->setText(number);
}

void TLxDlgColorSelect::OkButtonClick(QObject*) {
  if (colour_) *colour_ = WrappedColor();
  done(mrOk);
}

TColor DoSelectColorDlg(TColor initial, const wchar_t* caption, int helpContext) {
  TColor colour = initial;
  try {
    TLxDlgColorSelect dialog(MainForm(), &colour, helpContext);
    if (caption) dialog.setWindowTitle(QString::fromWCharArray(caption));
    if (dialog.exec() != mrOk) return initial;
  } catch (...) {
    return initial;
  }
  return colour;
}

}  // namespace lx
