#include "lxcomp/LxMisc.h"

#include <QLineEdit>
#include <QStringView>

#include <algorithm>
#include <charconv>
#include <climits>
#include <cmath>
#include <cwchar>

#include "lxcomp/LxDialogs.h"
#include "numeric/DecimalText.h"

namespace lx {
namespace {

// Readers see at most the first 30 characters of their input.
constexpr int kParseChars = 30;
// The string and edit-field writers work through a buffer of this many characters.
constexpr int kWorkChars = 256;
// "%.6f" of the largest double: 309 digits, a sign, a point and six decimals.
constexpr int kFixedChars = 330;
// The invalid-number message shows at most this many characters of the text.
constexpr int kQuotedChars = 20;

// The readers' local copy of their input, NUL-terminated at index 30 at the latest.
struct ParseBuffer {
  wchar_t text[kParseChars + 2];
  int length = 0;

  explicit ParseBuffer(const wchar_t* source) {
    if (source)
      while (length < kParseChars && source[length] != 0) {
        text[length] = source[length];
        ++length;
      }
    text[length] = 0;
  }
  explicit ParseBuffer(QStringView source) {
    const int limit = static_cast<int>(std::min<qsizetype>(source.size(), kParseChars));
    const char16_t* units = source.utf16();
    while (length < limit && units[length] != 0) {
      text[length] = units[length];
      ++length;
    }
    text[length] = 0;
  }
  QString ToString() const { return QString::fromWCharArray(text, length); }
};

bool IsTerminator(wchar_t c) {
  return c == 0 || c == L'\t' || c == L'\n' || c == L'\r' || c == L' ';
}

// Converts the copy; a "," where the conversion first stopped counts as the decimal point.
bool ConvertParseBuffer(ParseBuffer& buffer, double* value) {
  const auto length = static_cast<std::size_t>(buffer.length);
  detail::DecimalResult r = detail::ScanDecimal(buffer.text, length, true);
  if (r.stop < length && buffer.text[r.stop] == L',') {
    buffer.text[r.stop] = L'.';
    r = detail::ScanDecimal(buffer.text, length, true);
  }
  if (r.status == detail::DecimalStatus::kNone || r.status == detail::DecimalStatus::kOverflow)
    return false;
  if (!IsTerminator(buffer.text[r.stop])) return false;
  *value = r.value;
  return true;
}

// Lengths are typed in micrometres and held in nanometres.
bool ConvertCoordinate(ParseBuffer& buffer, double* nanometres) {
  double typed = 0.0;
  if (!ConvertParseBuffer(buffer, &typed)) return true;
  const double scaled = typed * 1000.0;
  if (!std::isfinite(scaled)) return true;
  if (nanometres) *nanometres = scaled;
  return false;
}

// The text up to an embedded NUL, as the C string functions see it.
QStringView UpToNul(QStringView text) {
  const qsizetype nul = text.indexOf(QChar(0));
  return nul < 0 ? text : text.left(nul);
}

// A real that does not read may still name infinity: "inf" or "INF" anywhere in the text, with
// the sign of a leading "-".
double SignedInfinity(bool negative) {
  return negative ? -HUGE_VAL : HUGE_VAL;
}

bool InfinityWord(QStringView text, double* value) {
  text = UpToNul(text);
  if (!text.contains(u"INF") && !text.contains(u"inf")) return false;
  *value = SignedInfinity(!text.isEmpty() && text[0] == u'-');
  return true;
}

bool InfinityWord(const wchar_t* text, double* value) {
  if (!text || (!std::wcsstr(text, L"INF") && !std::wcsstr(text, L"inf"))) return false;
  *value = SignedInfinity(text[0] == L'-');
  return true;
}

template <typename Whole>
bool ReadReal(ParseBuffer& buffer, Whole whole, double* value) {
  double read = 0.0;
  if (!ConvertParseBuffer(buffer, &read) && !InfinityWord(whole, &read)) return true;
  if (value) *value = read;
  return false;
}

// The 32-bit truncation of the processor: out-of-range values and NaN give -2147483648.
int TruncateToInt(double v) {
  if (!(v > -2147483649.0 && v < 2147483648.0)) return INT_MIN;
  return static_cast<int>(v);
}

// "%.6f" with "." whatever the locale; returns the length.
int FormatFixed(double value, char (&text)[kFixedChars]) {
  const auto r = std::to_chars(text, text + kFixedChars, value, std::chars_format::fixed, 6);
  return r.ec == std::errc() ? static_cast<int>(r.ptr - text) : 0;
}

// Cuts the text as a buffer of `size` characters would, then removes trailing zeros and a bare
// separator. Returns the new length.
template <typename Char>
int TrimmedInto(double value, Char* out, int size) {
  char text[kFixedChars];
  const int length = std::min(FormatFixed(value, text), size - 1);
  for (int i = 0; i < length; ++i)
    out[i] = static_cast<Char>(text[i]);
  out[length] = 0;
  if (length == 0) return 0;
  int last = length - 1;
  while (last > 0 && out[last] == Char('0'))
    --last;
  const int cut = (out[last] == Char('.') || out[last] == Char(',')) ? last : last + 1;
  out[cut] = 0;
  return cut;
}

QString TrimmedText(double value) {
  char16_t text[kWorkChars];
  const int length = TrimmedInto(value, text, kWorkChars);
  return QString::fromUtf16(text, length);
}

QString WholeText(int value) {
  char text[16];
  const auto r = std::to_chars(text, text + sizeof text, value);
  return QString::fromLatin1(text, r.ptr - text);
}

}  // namespace

void PrintMicrons(double nanometres, wchar_t* out, int size) {
  PrintDouble(nanometres / 1000.0, out, size);
}

void PrintMicrons(double nanometres, QString* out) {
  if (out) *out = TrimmedText(nanometres / 1000.0);
}

void PrintMicrons(double nanometres, QLineEdit* edit) {
  if (edit) edit->setText(TrimmedText(nanometres / 1000.0));
}

void PrintDouble(double value, wchar_t* out, int size) {
  if (out && size > 0) TrimmedInto(value, out, size);
}

void PrintDouble(double value, QLineEdit* edit) {
  if (edit) edit->setText(TrimmedText(value));
}

void PrintNumber(int value, wchar_t* out, int size) {
  if (!out || size <= 0) return;
  char text[16];
  const auto r = std::to_chars(text, text + sizeof text, value);
  const int length = std::min(static_cast<int>(r.ptr - text), size - 1);
  for (int i = 0; i < length; ++i)
    out[i] = text[i];
  out[length] = 0;
}

void PrintNumber(int value, QLineEdit* edit) {
  if (edit) edit->setText(WholeText(value));
}

void PrintNumber(int value, QString* out) {
  if (out) *out = WholeText(value);
}

bool GetCoordinateNoMessage(const wchar_t* text, double* nanometres) {
  ParseBuffer buffer(text);
  return ConvertCoordinate(buffer, nanometres);
}

bool GetCoordinateNoMessage(const QString& text, double* nanometres) {
  ParseBuffer buffer{QStringView(text)};
  return ConvertCoordinate(buffer, nanometres);
}

bool GetCoordinate(const QString& text, double* nanometres) {
  ParseBuffer buffer{QStringView(text)};
  const QString copy = buffer.ToString();
  if (!ConvertCoordinate(buffer, nanometres)) return false;
  NotAValidNumber(copy);
  return true;
}

bool GetDoubleNoMessage(const wchar_t* text, double* value) {
  ParseBuffer buffer(text);
  return ReadReal(buffer, text, value);
}

bool GetDoubleNoMessage(const QString& text, double* value) {
  ParseBuffer buffer{QStringView(text)};
  return ReadReal(buffer, QStringView(text), value);
}

bool GetDouble(const QString& text, double* value) {
  if (!GetDoubleNoMessage(text, value)) return false;
  NotAValidNumber(text);
  return true;
}

bool GetNumberNoMessage(const QString& text, int* value) {
  double read = 0.0;
  if (GetDoubleNoMessage(text, &read)) return true;
  if (value) *value = TruncateToInt(read >= 0.0 ? read + 0.5 : read - 0.5);
  return false;
}

bool GetNumber(const QString& text, int* value) {
  if (!GetNumberNoMessage(text, value)) return false;
  NotAValidNumber(text);
  return true;
}

void NotAValidNumber(const wchar_t* text) {
  NotAValidNumber(text ? QString::fromWCharArray(text) : QString());
}

void NotAValidNumber(const QString& text) {
  ShowK6Error(NotAValidNumberText(text), 0);
}

QString NotAValidNumberText(const QString& text) {
  QStringView quoted = UpToNul(text).left(kQuotedChars);
  if (!quoted.isEmpty() && quoted.back().isHighSurrogate()) quoted.chop(1);
  QString message;
  message.reserve(quoted.size() + 25);
  message += u'\'';
  message += quoted;
  message += QLatin1String("' is not a valid number");
  return message;
}

QString ReaderCopy(const QString& text) {
  return ParseBuffer{QStringView(text)}.ToString();
}

bool CoordinatesEqual(double a, double b) {
  return std::fabs(a - b) < 1e-6;
}

double IncreaseValue(double value) {
  if (value >= 1e8) return 1e8;
  // log10 of zero or a negative value is not finite: the exponent is then INT_MIN and p is 0.
  const int e = TruncateToInt(std::ceil(std::log10(value)));
  double p = std::pow(10.0, e);
  if (std::fabs(value - p) < 1e-4) p = std::pow(10.0, e + 1);
  const double w = value + 0.001;
  if (0.2 * p > w) return 0.2 * p;
  if (0.5 * p > w) return 0.5 * p;
  return p;
}

double DecreaseValue(double value) {
  const int e = TruncateToInt(std::floor(std::log10(value)));
  double p = std::pow(10.0, e);
  // At the bottom of the int range (log10 of zero) the exponent stays put.
  if (std::fabs(value - p) < 1e-4) p = std::pow(10.0, e == INT_MIN ? e : e - 1);
  const double m = std::max(0.001, p);
  const double w = value - 0.001;
  if (w > 5.0 * m) return 5.0 * m;
  if (w > 2.0 * m) return 2.0 * m;
  return m;
}

bool SimpleValues(const double* values, int count) {
  if (count < 1) return true;
  if (!values) return false;
  return std::all_of(values, values + count,
                     [](double v) { return v == std::floor(v) && std::fabs(v) <= 1e9; });
}

}  // namespace lx
