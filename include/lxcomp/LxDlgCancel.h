// The running-script box: a busy indicator, the count of generated objects and the elapsed
// time. Its Cancel button only asks the script to stop; the owner closes the box when the script
// has ended.
#pragma once

#include <cstdint>
#include <memory>

#include "lxcomp/LxDlgBase.h"

class QLabel;
class QTimer;

namespace Ui {
class TDlgCancel;
}

namespace lx {

class TLxProgress;

class TDlgCancel : public TLxDlgBase {
  Q_OBJECT

 public:
  explicit TDlgCancel(QWidget* owner = nullptr);
  ~TDlgCancel() override;

  // The host's count of generated objects, shown every second; may be null.
  void SetObjectCounter(const std::int64_t* counter) { objectCounter_ = counter; }
  const std::int64_t* GetObjectCounter() const { return objectCounter_; }
  int GetSeconds() const { return seconds_; }

  QLabel* NumObjects() const;
  QLabel* Time() const;
  TLxProgress* ProgressIndicator() const;
  QTimer* Timer1() const { return timer1_; }

  // Once a second: the elapsed time, the object count, then the tick event.
  void Timer1Timer(QObject* sender = nullptr);
  // Raises the cancel event and keeps the box open.
  void CancelButtonClick(QObject* sender = nullptr) override;

 signals:
  void OnCancel(QObject* sender);
  void OnTick(QObject* sender);

 private:
  std::unique_ptr<Ui::TDlgCancel> ui_;
  QTimer* timer1_ = nullptr;
  int seconds_ = 0;
  const std::int64_t* objectCounter_ = nullptr;
};

}  // namespace lx
