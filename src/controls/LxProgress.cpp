#include "lxcomp/LxProgress.h"

#include <QEvent>
#include <QPainter>
#include <QTimer>

#include "lxcomp/LxRegistry.h"

namespace lx {
namespace {

constexpr int kBlockGap = 4;
constexpr int kAnimationIntervalMs = 120;
constexpr int kRingBlocks = 8;

struct Cell {
  int column;
  int row;
};
// Clockwise from the top-left corner, then the centre.
constexpr Cell kCells[9] = {{0, 0}, {1, 0}, {2, 0}, {2, 1}, {2, 2}, {1, 2}, {0, 2}, {0, 1}, {1, 1}};

}  // namespace

TLxProgress::TLxProgress(QWidget* parent) : QWidget(parent) {
  gapColor_ = FromQColor(palette().color(QPalette::Button));
  ComputeBlockSize();
}

void TLxProgress::SetAutonomous(bool autonomous) {
  if (autonomous_ == autonomous) return;
  autonomous_ = autonomous;
  update();
}

void TLxProgress::ComputeBlockSize() {
  gap_ = kBlockGap;
  blockWidth_ = (width() - 2 * kBlockGap) / 3;
  blockHeight_ = (height() - 2 * kBlockGap) / 3;
}

QRect TLxProgress::BlockRect(int block) const {
  if (block < 0 || block > kRingBlocks) return {};
  const Cell cell = kCells[block];
  return {cell.column * (blockWidth_ + gap_), cell.row * (blockHeight_ + gap_), blockWidth_,
          blockHeight_};
}

void TLxProgress::DrawBlock(int block) {
  if (!canvas_) return;
  const QRect rect = BlockRect(block);
  if (!rect.isEmpty()) canvas_->fillRect(rect, canvas_->brush());
}

void TLxProgress::Paint() {
  ComputeBlockSize();
  PaintBlocks();
  if (autonomous_) StartAnimation();
}

void TLxProgress::PaintBlocks() {
  if (!canvas_) return;
  canvas_->setBrush(ToQColor(blockColor_));
  for (int block = 0; block <= kRingBlocks; ++block)
    if (block != position_) DrawBlock(block);
}

// Every full repaint of an autonomous indicator starts one more timer; the earlier ones keep
// running, so the gap then moves more often.
void TLxProgress::StartAnimation() {
  animationTimer_ = new QTimer(this);
  animationTimer_->stop();
  animationTimer_->setInterval(kAnimationIntervalMs);
  connect(animationTimer_, &QTimer::timeout, this, [this] { OnTimer(this); });
  animationTimer_->start();
}

void TLxProgress::OnTimer(QObject*) {
  position_ = position_ > kRingBlocks - 2 ? 0 : position_ + 1;
  // The step only redraws two blocks; it is no full repaint and starts no timer.
  stepPending_ = true;
  update();
}

void TLxProgress::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  canvas_ = &painter;
  if (stepPending_) {
    stepPending_ = false;
    ComputeBlockSize();
    PaintBlocks();
    painter.setBrush(ToQColor(gapColor_));
    DrawBlock(position_);
  } else {
    Paint();
  }
  canvas_ = nullptr;
}

void TLxProgress::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange)
    gapColor_ = FromQColor(palette().color(QPalette::Button));
  QWidget::changeEvent(event);
}

namespace LxProgress {

void Register() {
  RegisterComponents(QStringLiteral("Quarnel"),
                     {{QStringLiteral("TLxProgress"), QStringLiteral("lxcomp/LxProgress.h"),
                       QStringLiteral("Busy indicator: a gap running round a ring of blocks"),
                       [](QWidget* parent) { return new TLxProgress(parent); }}});
}

}  // namespace LxProgress

}  // namespace lx
