// A small busy indicator for operations of unknown length: a ring of eight blocks around a
// centre block, in which a gap runs clockwise. It animates itself (Autonomous) or the host steps
// it by calling OnTimer.
#pragma once

#include <QColor>
#include <QRect>
#include <QWidget>

#include "lxcomp/LxPlatform.h"

class QPainter;
class QTimer;

namespace lx {

class TLxProgress : public QWidget {
  Q_OBJECT
  Q_PROPERTY(bool Autonomous READ GetAutonomous WRITE SetAutonomous)

 public:
  explicit TLxProgress(QWidget* parent = nullptr);

  bool GetAutonomous() const { return autonomous_; }
  void SetAutonomous(bool autonomous);

  TColor GetBlockColor() const { return blockColor_; }
  TColor GetGapColor() const { return gapColor_; }
  int GetPosition() const { return position_; }
  int GetGap() const { return gap_; }
  int GetBlockWidth() const { return blockWidth_; }
  int GetBlockHeight() const { return blockHeight_; }
  // The timer of the latest repaint of an autonomous indicator; null until then.
  QTimer* GetAnimationTimer() const { return animationTimer_; }

  // The rectangle of block 0..8 (8 is the centre); empty for any other number.
  QRect BlockRect(int block) const;
  // Fills the block with the current brush of the canvas being painted (none outside painting).
  void DrawBlock(int block);
  void Paint();

  QSize sizeHint() const override { return {50, 50}; }

 public slots:
  // Advances the gap by one place clockwise.
  void OnTimer(QObject* sender = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void ComputeBlockSize();
  void StartAnimation();
  void PaintBlocks();

  bool autonomous_ = false;
  TColor blockColor_ = 0xEECF00;  // red 0, green 0xCF, blue 0xEE
  TColor gapColor_ = 0;
  int position_ = 0;
  int gap_ = 4;
  int blockWidth_ = 0;
  int blockHeight_ = 0;
  QTimer* animationTimer_ = nullptr;
  QPainter* canvas_ = nullptr;
  bool stepPending_ = false;  // the next paint only shows a step, it is no full repaint
};

namespace LxProgress {
void Register();
}

}  // namespace lx
