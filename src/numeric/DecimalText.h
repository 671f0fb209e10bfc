// Plain decimal text to double, the one conversion behind every number reader and the
// expression scanner: optional blanks, a sign, digits with at most one point, an optional
// exponent ("e" or "E", a sign, digits). It never accepts "inf", "nan" or hexadecimal text and
// never depends on the locale, which the C library's strtod family would.
#pragma once

#include <charconv>
#include <cmath>
#include <cstddef>
#include <system_error>

namespace lx::detail {

enum class DecimalStatus {
  kNone,       // no number at the start of the text
  kOk,         // converted
  kOverflow,   // too large for a double (the C library would give infinity)
  kUnderflow,  // non-zero but below the normal range (the value is the rounded result)
};

struct DecimalResult {
  std::size_t stop = 0;  // where the conversion stopped; 0 when nothing was converted
  double value = 0.0;
  DecimalStatus status = DecimalStatus::kNone;
};

template <typename Char>
constexpr bool IsDecimalDigit(Char c) {
  return c >= Char('0') && c <= Char('9');
}

template <typename Char>
constexpr bool IsBlank(Char c) {
  return c == Char(' ') || (c >= Char('\t') && c <= Char('\r'));
}

// Longest number span accepted; longer spans are not numbers (no caller comes near it).
inline constexpr std::size_t kMaxDecimalSpan = 126;

// Converts the number at the start of text[0, length). Blanks before it are skipped when
// skipBlanks is set.
template <typename Char>
DecimalResult ScanDecimal(const Char* text, std::size_t length, bool skipBlanks) {
  DecimalResult result;
  std::size_t i = 0;
  if (skipBlanks)
    while (i < length && IsBlank(text[i]))
      ++i;
  const std::size_t numberStart = i;
  if (i < length && (text[i] == Char('+') || text[i] == Char('-'))) ++i;
  bool point = false;
  bool digits = false;
  for (; i < length; ++i) {
    if (IsDecimalDigit(text[i])) {
      digits = true;
    } else if (text[i] == Char('.') && !point) {
      point = true;
    } else {
      break;
    }
  }
  if (!digits) return result;
  std::size_t end = i;
  bool exponent = false;
  if (i < length && (text[i] == Char('e') || text[i] == Char('E'))) {
    std::size_t j = i + 1;
    if (j < length && (text[j] == Char('+') || text[j] == Char('-'))) ++j;
    if (j < length && IsDecimalDigit(text[j])) {
      while (j < length && IsDecimalDigit(text[j]))
        ++j;
      end = j;
      exponent = true;
    }
  }
  if (end - numberStart > kMaxDecimalSpan) return result;

  // std::from_chars takes a narrow span without a "+" sign; every character here is ASCII.
  char narrow[kMaxDecimalSpan + 1];
  std::size_t n = 0;
  bool negativeExponent = false;
  for (std::size_t k = numberStart; k < end; ++k) {
    const char c = static_cast<char>(text[k]);
    if (c == '+' && k == numberStart) continue;
    if (c == '-' && n > 0) negativeExponent = true;  // a "-" after the first is the exponent's
    narrow[n++] = c;
  }
  double value = 0.0;
  const auto [ptr, ec] = std::from_chars(narrow, narrow + n, value);
  (void)ptr;
  result.stop = end;
  if (ec == std::errc::result_out_of_range) {
    // The mantissa alone spans at most 1e-126..1e126, so only the exponent's sign can have
    // taken the value out of range.
    const bool negative = narrow[0] == '-';
    if (exponent && !negativeExponent) {
      result.status = DecimalStatus::kOverflow;
      result.value = negative ? -HUGE_VAL : HUGE_VAL;
    } else {
      result.status = DecimalStatus::kUnderflow;
      result.value = negative ? -0.0 : 0.0;
    }
    return result;
  }
  if (ec != std::errc()) return DecimalResult{};
  result.value = value;
  result.status =
      std::fpclassify(value) == FP_SUBNORMAL ? DecimalStatus::kUnderflow : DecimalStatus::kOk;
  return result;
}

}  // namespace lx::detail
