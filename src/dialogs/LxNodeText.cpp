#include "dialogs/LxNodeText.h"

#include <algorithm>

#include "lxcomp/LxMisc.h"
#include "lxcomp/LxParser.h"

namespace lx {
namespace {

// Longer texts are not worth handing to the expression evaluator: they cannot be a length.
constexpr qsizetype kLongestExpression = 256;
constexpr qsizetype kQuotedLength = 64;

bool IsNodeSeparator(QChar c) {
  const char16_t u = c.unicode();
  return u == u'\t' || u == u'\n' || u == u' ' || u == u';';
}

bool IsPairSeparator(QChar c) {
  const char16_t u = c.unicode();
  return u == u'\t' || u == u' ' || u == u';';
}

bool IsBlank(QChar c) {
  return IsNodeSeparator(c) || c.unicode() == u'\r';
}

bool OnlyBlanksFrom(const QChar* p, const QChar* end) {
  return std::all_of(p, end, IsBlank);
}

// Reads one number as a typed length: the first 30 characters through the coordinate reader,
// or, when that fails, the whole token as an expression in micrometres.
bool ReadNumber(const QChar* begin, const QChar* end, double* nanometres) {
  wchar_t copy[32];
  const qsizetype length = std::min<qsizetype>(end - begin, 30);
  for (qsizetype i = 0; i < length; ++i)
    copy[i] = static_cast<wchar_t>(begin[i].unicode());
  copy[length] = 0;
  if (!GetCoordinateNoMessage(copy, nanometres)) return true;
  if (end - begin > kLongestExpression) return false;
  const QString token(begin, end - begin);
  double value = 0;
  if (!IsExpression(token) || EvaluateExpression(token, &value)) return false;
  // The value goes the way of a typed expression: printed, then read as a length.
  wchar_t printed[256];
  PrintDouble(value, printed, 256);
  return !GetCoordinateNoMessage(printed, nanometres);
}

const QChar* TokenEnd(const QChar* p, const QChar* end) {
  while (p < end && !IsNodeSeparator(*p))
    ++p;
  return p;
}

}  // namespace

TNodeTextScan ScanNodeText(QStringView text, int maxNodes, double* out) {
  TNodeTextScan scan;
  const QChar* p = text.data();
  const QChar* const end = p + text.size();
  auto fail = [&](const QChar* begin, const QChar* stop) {
    scan.failed = true;
    scan.badNumber = QString(begin, std::min<qsizetype>(stop - begin, kQuotedLength));
    return scan;
  };
  while (p < end && IsNodeSeparator(*p))
    ++p;
  while (scan.nodes < maxNodes && !OnlyBlanksFrom(p, end)) {
    double xy[2];
    for (int i = 0; i < 2; ++i) {
      if (i == 1)
        while (p < end && IsPairSeparator(*p))
          ++p;
      const QChar* begin = p;
      p = TokenEnd(p, end);
      if (!ReadNumber(begin, p, &xy[i])) return fail(begin, p);
    }
    if (out) {
      out[2 * scan.nodes] = xy[0];
      out[2 * scan.nodes + 1] = xy[1];
    }
    ++scan.nodes;
    while (p < end && IsNodeSeparator(*p))
      ++p;
  }
  return scan;
}

QString PrintNodeText(const double* nodes, int first, int count) {
  QString text;
  text.reserve(qsizetype(count) * 24);
  wchar_t number[64];
  auto append = [&](double value, char16_t after) {
    PrintMicrons(value, number, 64);
    for (const wchar_t* c = number; *c; ++c)
      text.append(QChar(char16_t(*c)));
    text.append(QChar(after));
  };
  for (int i = first; i < first + count; ++i) {
    append(nodes[2 * i], u'\t');
    append(nodes[2 * i + 1], u'\n');
  }
  return text;
}

}  // namespace lx
