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

// Powers of ten that a double holds exactly.
inline constexpr double kExactPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                               1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                               1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// The general conversion of a validated span, for what the exact shortcut cannot take.
template <typename Char>
DecimalResult ConvertSpan(const Char* text, std::size_t begin, std::size_t end, bool exponent,
                          bool negativeExponent) {
  DecimalResult result;
  if (end - begin > kMaxDecimalSpan) return result;
  // std::from_chars takes a narrow span without a "+" sign; every character here is ASCII.
  char narrow[kMaxDecimalSpan + 1];
  std::size_t n = 0;
  for (std::size_t k = begin; k < end; ++k) {
    if (k == begin && text[k] == Char('+')) continue;
    narrow[n++] = static_cast<char>(text[k]);
  }
  double value = 0.0;
  const auto [ptr, ec] = std::from_chars(narrow, narrow + n, value);
  (void)ptr;
  result.stop = end;
  const bool negative = narrow[0] == '-';
  if (ec == std::errc::result_out_of_range) {
    // The mantissa alone spans at most 1e-126..1e126, so only the exponent's sign can have
    // taken the value out of range.
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

// Converts the number at the start of text[0, length). Blanks before it are skipped when
// skipBlanks is set. Short numbers with small exponents take the exact shortcut (a mantissa
// below 2^53 times or over an exact power of ten rounds once, so correctly); the rest go
// through std::from_chars.
template <typename Char>
DecimalResult ScanDecimal(const Char* text, std::size_t length, bool skipBlanks) {
  std::size_t i = 0;
  if (skipBlanks)
    while (i < length && IsBlank(text[i]))
      ++i;
  const std::size_t numberStart = i;
  bool negative = false;
  if (i < length && (text[i] == Char('+') || text[i] == Char('-')))
    negative = text[i++] == Char('-');
  bool point = false;
  bool digits = false;
  unsigned long long mantissa = 0;
  int significant = 0;  // digits in the mantissa, leading zeros not counted
  int scale = 0;        // mantissa digits after the point
  for (; i < length; ++i) {
    const Char c = text[i];
    if (IsDecimalDigit(c)) {
      digits = true;
      const unsigned digit = static_cast<unsigned>(c - Char('0'));
      if (mantissa == 0 && digit == 0) {
        if (point) ++scale;
      } else {
        if (significant < 19) mantissa = mantissa * 10 + digit;
        ++significant;
        if (point) ++scale;
      }
    } else if (c == Char('.') && !point) {
      point = true;
    } else {
      break;
    }
  }
  if (!digits) return {};
  std::size_t end = i;
  bool exponent = false;
  bool negativeExponent = false;
  int exponentValue = 0;
  if (i < length && (text[i] == Char('e') || text[i] == Char('E'))) {
    std::size_t j = i + 1;
    if (j < length && (text[j] == Char('+') || text[j] == Char('-')))
      negativeExponent = text[j++] == Char('-');
    if (j < length && IsDecimalDigit(text[j])) {
      for (; j < length && IsDecimalDigit(text[j]); ++j)
        if (exponentValue < 100000)
          exponentValue = exponentValue * 10 + static_cast<int>(text[j] - Char('0'));
      end = j;
      exponent = true;
    }
  }
  const int power = (negativeExponent ? -exponentValue : exponentValue) - scale;
  if (mantissa == 0 || (significant <= 15 && power >= -22 && power <= 22)) {
    auto m = static_cast<double>(mantissa);
    if (power < 0)
      m /= kExactPowersOfTen[-power];
    else if (m != 0.0)
      m *= kExactPowersOfTen[power];
    return {end, negative ? -m : m, DecimalStatus::kOk};
  }
  return ConvertSpan(text, numberStart, end, exponent, negativeExponent);
}

}  // namespace lx::detail
