// The layer record: names, number, stream index and datatype, colours, fill and outline style,
// and the swatch it draws of itself for the layer pickers. The host owns a singly linked list of
// them (through Next) and hands its head to every dialog that shows or picks layers.
#pragma once

#include <QString>

#include <cstdint>

#include "lxcomp/LxPlatform.h"

class QImage;

namespace lx {

class TK5Layer {
 public:
  // fillColor -1 takes the default colour of `number` with a solid fill and solid outline.
  explicit TK5Layer(int number = 0, int index = 0, int datatype = 0,
                    const QString& longName = QString(), int fillColor = -1, int lineColor = -1,
                    char fillStyle = -1, char lineStyle = 0, bool clearField = false);
  // Copies another record (a null pointer gives a default layer); the copy is never linked.
  explicit TK5Layer(const TK5Layer* other);
  TK5Layer(const TK5Layer&) = default;
  TK5Layer& operator=(const TK5Layer&) = default;
  ~TK5Layer() = default;

  // Never true, not even for the record itself: layers are identified by Number, or by Index
  // with Datatype.
  bool operator==(const TK5Layer& other) const;

  void SetLongName(const QString& name);
  void SetShortName(const QString& name);

  // Draws the swatch into `image` and its black-on-white mask into `mask`; the size of `image`
  // governs both. Either may be null.
  void DrawBitmap(QImage* image, QImage* mask) const;

  // The colour a layer without one takes from its number.
  static TColor DefaultColor(int number);

  QString LongName;
  QString ShortName;
  std::int32_t Number = 0;
  std::int32_t Index = 0;
  std::int32_t Datatype = 0;
  TColor FillColor = 0;
  TColor LineColor = 0;
  std::int8_t FillStyle = -1;  // -1 solid, 0..5 hatches, 6 clear
  std::int8_t LineStyle = 0;   // 0 solid, 1 dash, 2 dot, 3 dash-dot, 4 dash-dot-dot
  std::uint8_t FlagP = 1;      // the cross-section view draws only layers with this set
  std::uint8_t FlagQ = 0;
  std::uint8_t FlagR = 0;
  bool IsClearField = false;  // cross-section polarity: clear field (true) or dark field
  std::uint8_t FlagS = 0;
  TK5Layer* Next = nullptr;
  std::uintptr_t LinkT = 0;

 private:
  void NormaliseStyles();
};

}  // namespace lx
