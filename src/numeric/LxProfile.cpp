#include "lxcomp/LxProfile.h"

#include <climits>

#include "lxcomp/LxMisc.h"
#include "numeric/IniFile.h"

namespace lx {
namespace {

// Every value is read through a buffer of this many characters.
constexpr int kReadBuffer = 255;
// Lengths and reals are formatted into buffers of this many characters.
constexpr int kNumberBuffer = 64;

QString Text(const wchar_t* text) {
  return text ? QString::fromWCharArray(text) : QString();
}

// The profile read: the value text, or the default text for a missing key. Returns the number
// of characters given (0 for a key whose value is empty).
int ReadText(const wchar_t* file, const wchar_t* section, const wchar_t* key,
             const QString& defaultText, QString* out) {
  if (!section || !key) {
    *out = defaultText.left(kReadBuffer - 1);
    return static_cast<int>(out->size());
  }
  return ini::ReadProfileString(Text(file), Text(section), Text(key), defaultText, out,
                                kReadBuffer);
}

void WriteText(const wchar_t* file, const wchar_t* section, const wchar_t* key,
               const QString& value) {
  if (!file || !section || !key) return;
  ini::WriteProfileString(Text(file), Text(section), Text(key), value);
}

// Wide atol: leading blanks, a sign, digits; anything else ends the number; no digits give 0.
// Values beyond the range of long stop at its limits.
long TextToLong(QStringView text) {
  qsizetype i = 0;
  while (i < text.size() && (text[i] == u' ' || (text[i] >= u'\t' && text[i] <= u'\r')))
    ++i;
  bool negative = false;
  if (i < text.size() && (text[i] == u'+' || text[i] == u'-')) negative = text[i++] == u'-';
  unsigned long magnitude = 0;
  const unsigned long limit = negative ? static_cast<unsigned long>(LONG_MAX) + 1 : LONG_MAX;
  for (; i < text.size() && text[i] >= u'0' && text[i] <= u'9'; ++i) {
    const unsigned long digit = text[i].unicode() - u'0';
    magnitude = magnitude > (limit - digit) / 10 ? limit : magnitude * 10 + digit;
  }
  if (!negative) return static_cast<long>(magnitude);
  return magnitude > static_cast<unsigned long>(LONG_MAX) ? LONG_MIN
                                                          : -static_cast<long>(magnitude);
}

long BoundInteger(long v, long min, long max) {
  if (v < min) v = min;
  if (max > min && v >= max) v = max;
  return v;
}

double BoundReal(double v, double min, double max) {
  if (v < min) v = min;
  if (max > min && v > max) v = max;
  return v;
}

QString MicronsText(double nanometres) {
  wchar_t text[kNumberBuffer];
  PrintMicrons(nanometres, text, kNumberBuffer);
  return QString::fromWCharArray(text);
}

QString DoubleText(double value) {
  wchar_t text[kNumberBuffer];
  PrintDouble(value, text, kNumberBuffer);
  return QString::fromWCharArray(text);
}

}  // namespace

bool GetIniFileBool(const wchar_t* file, const wchar_t* section, const wchar_t* key, bool def) {
  if (!file) return def;
  QString text;
  if (ReadText(file, section, key, QString::number(def ? 1 : 0), &text) == 0) return def;
  return TextToLong(text) != 0;
}

long GetIniFileInteger(const wchar_t* file, const wchar_t* section, const wchar_t* key, long def) {
  if (!file) return def;
  QString text;
  if (ReadText(file, section, key, QString::number(def), &text) == 0) return def;
  return TextToLong(text);
}

long GetIniFileInteger(const wchar_t* file, const wchar_t* section, const wchar_t* key, long def,
                       long min, long max) {
  if (!file) return def;
  QString text;
  if (ReadText(file, section, key, QString::number(def), &text) == 0) return def;
  return BoundInteger(TextToLong(text), min, max);
}

double GetIniFileMicrons(const wchar_t* file, const wchar_t* section, const wchar_t* key,
                         double def, double min, double max) {
  if (!file) return def;
  QString text;
  double nanometres = 0.0;
  if (ReadText(file, section, key, MicronsText(def), &text) == 0 ||
      GetCoordinateNoMessage(text, &nanometres))
    return def;
  return BoundReal(nanometres, min, max);
}

double GetIniFileDouble(const wchar_t* file, const wchar_t* section, const wchar_t* key, double def,
                        double min, double max) {
  if (!file) return def;
  QString text;
  double value = 0.0;
  if (ReadText(file, section, key, DoubleText(def), &text) == 0 || GetDoubleNoMessage(text, &value))
    return def;
  return BoundReal(value, min, max);
}

void GetIniFileString(const wchar_t* file, const wchar_t* section, const wchar_t* key,
                      const wchar_t* def, QString* out) {
  if (!out) return;
  if (!file) {
    *out = Text(def);
    return;
  }
  QString text;
  *out = ReadText(file, section, key, Text(def), &text) == 0 ? Text(def) : text;
}

void WriteIniFileBool(const wchar_t* file, const wchar_t* section, const wchar_t* key, bool value) {
  WriteText(file, section, key, QString(QChar(u'0' + (value ? 1 : 0))));
}

void WriteIniFileChar(const wchar_t* file, const wchar_t* section, const wchar_t* key,
                      wchar_t value) {
  WriteText(file, section, key, value == 0 ? QString() : QString::fromWCharArray(&value, 1));
}

void WriteIniFileInteger(const wchar_t* file, const wchar_t* section, const wchar_t* key,
                         long value) {
  WriteText(file, section, key, QString::number(value));
}

void WriteIniFileString(const wchar_t* file, const wchar_t* section, const wchar_t* key,
                        const wchar_t* value) {
  if (value) WriteText(file, section, key, Text(value));
}

void WriteIniFileMicrons(const wchar_t* file, const wchar_t* section, const wchar_t* key,
                         double nanometres) {
  WriteText(file, section, key, MicronsText(nanometres));
}

void WriteIniFileDouble(const wchar_t* file, const wchar_t* section, const wchar_t* key,
                        double value) {
  WriteText(file, section, key, DoubleText(value));
}

}  // namespace lx
