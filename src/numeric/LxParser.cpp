#include "lxcomp/LxParser.h"

#include <climits>
#include <cmath>
#include <cstring>

#include "numeric/DecimalText.h"

namespace lx {
namespace {

// Token kinds, as the scanner returns them.
enum Kind {
  kPlus,
  kMinus,
  kTimes,
  kDivide,
  kPower,
  kGreater,
  kGreaterEqual,
  kLess,
  kLessEqual,
  kEqual,
  kNotEqual,
  kOpen,
  kClose,
  kNumber,
  kFunction,
  kEnd,
  kBad,
};

constexpr int kStackTop = 29;  // 30 entries, the start entry included
constexpr int kErrorState = 30;
// A numeral is converted from a local copy of at most this many characters; longer ones are bad.
constexpr std::ptrdiff_t kMaxNumeral = 64;

// Longer names stand before their shorter prefixes, since matching is by prefix.
constexpr const char* kFunctions[] = {"ABS", "ACOS", "ASIN", "ATAN",  "COSH",  "COS",
                                      "EXP", "LOG",  "LN",   "POW10", "ROUND", "SINH",
                                      "SIN", "SQRT", "SQR",  "TANH",  "TAN",   "TRUNC"};

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}
bool IsLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}
bool IsAlnum(char c) {
  return IsDigit(c) || IsLetter(c);
}
char Upper(char c) {
  return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}

// The 32-bit truncation of the processor: out-of-range values and NaN give -2147483648.
int Truncate32(double v) {
  if (!(v > -2147483649.0 && v < 2147483648.0)) return INT_MIN;
  return static_cast<int>(v);
}

double ApplyFunction(const char* name, double x) {
  struct Entry {
    const char* name;
    double (*apply)(double);
  };
  static constexpr Entry kTable[] = {
      {"ABS", [](double v) { return std::fabs(v); }},
      {"ACOS", [](double v) { return std::acos(v); }},
      {"ASIN", [](double v) { return std::asin(v); }},
      {"ATAN", [](double v) { return std::atan(v); }},
      {"COSH", [](double v) { return std::cosh(v); }},
      {"COS", [](double v) { return std::cos(v); }},
      {"EXP", [](double v) { return std::exp(v); }},
      {"LOG", [](double v) { return std::log10(v); }},
      {"LN", [](double v) { return std::log(v); }},
      {"POW10", [](double v) { return std::pow(10.0, Truncate32(v)); }},
      {"ROUND", [](double v) { return static_cast<double>(Truncate32(v + 0.5)); }},
      {"SINH", [](double v) { return std::sinh(v); }},
      {"SIN", [](double v) { return std::sin(v); }},
      {"SQRT", [](double v) { return v > 0.0 ? std::sqrt(v) : 0.0; }},
      {"SQR", [](double v) { return v * v; }},
      {"TANH", [](double v) { return std::tanh(v); }},
      {"TAN", [](double v) { return std::tan(v); }},
      {"TRUNC", [](double v) { return static_cast<double>(Truncate32(v)); }},
  };
  for (const Entry& entry : kTable)
    if (std::strcmp(entry.name, name) == 0) return entry.apply(x);
  return 0.0;
}

// What the parser does next: shift to a state, reduce a production, accept, or fail.
struct Action {
  enum Type { kShift, kReduce, kAccept, kFail } type;
  int target;
};

constexpr Action Shift(int state) {
  return {Action::kShift, state};
}
constexpr Action Reduce(int production) {
  return {Action::kReduce, production};
}
constexpr Action kFailAction{Action::kFail, 0};

Action OperandStart(int kind) {
  switch (kind) {
    case kMinus:
      return Shift(5);
    case kOpen:
      return Shift(9);
    case kNumber:
      return Shift(10);
    case kFunction:
      return Shift(11);
    default:
      return kFailAction;
  }
}

// The operators that may follow a complete expression; fail for anything else.
Action OperatorAfterExpression(int kind) {
  switch (kind) {
    case kPlus:
      return Shift(12);
    case kMinus:
      return Shift(13);
    case kGreater:
      return Shift(40);
    case kGreaterEqual:
      return Shift(41);
    case kLess:
      return Shift(42);
    case kLessEqual:
      return Shift(43);
    case kEqual:
      return Shift(44);
    case kNotEqual:
      return Shift(45);
    default:
      return kFailAction;
  }
}

// After a term, "*" and "/" bind first; anything else completes the phrase.
Action TermOr(int kind, int production) {
  if (kind == kTimes) return Shift(14);
  if (kind == kDivide) return Shift(15);
  return Reduce(production);
}

Action ActionFor(int state, int kind) {
  switch (state) {
    case 0:
    case 9:
    case 12:
    case 13:
    case 14:
    case 15:
    case 16:
    case 20:
    case 40:
    case 41:
    case 42:
    case 43:
    case 44:
    case 45:
      return OperandStart(kind);
    case 1:
      return kind == kEnd ? Action{Action::kAccept, 0} : OperatorAfterExpression(kind);
    case 2:
      return TermOr(kind, 19);
    case 3:
      return Reduce(39);
    case 4:
      return kind == kPower ? Shift(16) : Reduce(59);
    case 5:
      return kind == kMinus ? kFailAction : OperandStart(kind);
    case 6:
      return Reduce(79);
    case 8:
      return Reduce(99);
    case 10:
      return Reduce(102);
    case 11:
      return kind == kOpen ? Shift(20) : kFailAction;
    case 17:
      return Reduce(60);
    case 19:
      return kind == kClose ? Shift(27) : OperatorAfterExpression(kind);
    case 21:
      return TermOr(kind, 1);
    case 22:
      return TermOr(kind, 2);
    case 23:
      return Reduce(20);
    case 24:
      return Reduce(21);
    case 25:
      return Reduce(40);
    case 27:
      return Reduce(101);
    case 28:
      return kind == kClose ? Shift(29) : OperatorAfterExpression(kind);
    case 29:
      return Reduce(103);
    case 50:
    case 51:
    case 52:
    case 53:
    case 54:
    case 55:
      return TermOr(kind, state - 47);
    default:
      return kFailAction;
  }
}

bool IsComparisonState(int state) {
  return state >= 40 && state <= 45;
}

// States from which an operand may start after an operator.
bool IsOperandState(int state) {
  return state == 0 || state == 9 || state == 12 || state == 13 || state == 20 ||
         IsComparisonState(state);
}

double Compare(int production, double a, double b) {
  switch (production) {
    case 3:
      return a > b ? 1.0 : 0.0;
    case 4:
      return a >= b ? 1.0 : 0.0;
    case 5:
      return a < b ? 1.0 : 0.0;
    case 6:
      return a <= b ? 1.0 : 0.0;
    case 7:
      return a == b ? 1.0 : 0.0;
    default:
      return a == b ? 0.0 : 1.0;
  }
}

double Divide(double a, double b) {
  if (b == 0.0) return a >= 0.0 ? HUGE_VAL : -HUGE_VAL;
  return a / b;
}

// UTF-8 of one UTF-16 text; unpaired surrogates become U+FFFD. Returns the bytes written.
std::size_t EncodeUtf8(const QString& text, char* out) {
  std::size_t n = 0;
  const qsizetype size = text.size();
  for (qsizetype i = 0; i < size; ++i) {
    char32_t c = text[i].unicode();
    if (QChar::isHighSurrogate(c) && i + 1 < size && text[i + 1].isLowSurrogate()) {
      c = QChar::surrogateToUcs4(static_cast<char16_t>(c), text[++i].unicode());
    } else if (QChar::isSurrogate(c)) {
      c = 0xFFFD;
    }
    if (c < 0x80) {
      out[n++] = static_cast<char>(c);
    } else if (c < 0x800) {
      out[n++] = static_cast<char>(0xC0 | (c >> 6));
      out[n++] = static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
      out[n++] = static_cast<char>(0xE0 | (c >> 12));
      out[n++] = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
      out[n++] = static_cast<char>(0x80 | (c & 0x3F));
    } else {
      out[n++] = static_cast<char>(0xF0 | (c >> 18));
      out[n++] = static_cast<char>(0x80 | ((c >> 12) & 0x3F));
      out[n++] = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
      out[n++] = static_cast<char>(0x80 | (c & 0x3F));
    }
  }
  out[n] = 0;
  return n;
}

}  // namespace

TLxParser::TLxParser(const QString& expression) {
  // Every UTF-16 unit takes at most three bytes (a surrogate pair four for two units).
  const std::size_t needed = static_cast<std::size_t>(expression.size()) * 3 + 1;
  char* text = shortText_;
  if (needed > sizeof shortText_) {
    longText_ = std::make_unique<char[]>(needed);
    text = longText_.get();
  }
  EncodeUtf8(expression, text);
  text_ = text;
  input_ = text_;
}

TLxParser::~TLxParser() = default;

bool TLxParser::Parse(double* result) {
  noVariable_ = true;
  return Parse(0.0, result);
}

bool TLxParser::Parse(double t, double* result) {
  variable_ = t;
  input_ = text_;
  if (*input_ == '=') ++input_;
  error_ = false;
  sp_ = 0;
  stack_[0].state = 0;
  stack_[0].value.value = 0.0;
  kind_ = nexttoken();
  double value = 0.0;
  for (;;) {
    if (error_ || kind_ == kBad) break;
    const Action action = ActionFor(stack_[sp_].state, kind_);
    if (action.type == Action::kShift) {
      shift(action.target);
    } else if (action.type == Action::kReduce) {
      reduce(action.target);
    } else {
      if (action.type == Action::kAccept) value = stack_[sp_].value.value;
      if (action.type == Action::kAccept && !error_) {
        if (result) *result = value;
        return false;
      }
      break;
    }
  }
  if (result) *result = 0.0;
  return true;
}

int TLxParser::nexttoken() {
  while (*input_ == ' ')
    ++input_;
  const char c = *input_;
  if (c == 0) return kEnd;
  if (IsDigit(c) || c == '.') return numeral();
  if (!IsLetter(c)) return symbol();
  int n = 0;
  while (n < 5 && input_[n] != 0) {
    word_[n] = Upper(input_[n]);
    ++n;
  }
  word_[n] = 0;
  for (const char* name : kFunctions)
    if (isfunc(name)) return kFunction;
  return isvar() ? kNumber : kBad;
}

// Digits with at most one ".", then an upper-case "E", an optional sign and up to three
// digits; the characters taken are converted as the C library's atof would.
int TLxParser::numeral() {
  const char* start = input_;
  const char* p = input_;
  bool point = false;
  while (IsDigit(*p) || (*p == '.' && !point)) {
    point = point || *p == '.';
    ++p;
  }
  if (p - start == 1 && *start == '.') {
    input_ = p;
    return kBad;
  }
  if (*p == 'E') {
    ++p;
    if (*p == '+' || *p == '-') ++p;
    for (int digits = 0; digits < 3 && IsDigit(*p); ++digits)
      ++p;
  }
  input_ = p;
  if (p - start > kMaxNumeral) return kBad;
  const detail::DecimalResult r =
      detail::ScanDecimal(start, static_cast<std::size_t>(p - start), false);
  if (r.status != detail::DecimalStatus::kOk) return kBad;  // out of range
  token_.value.value = r.value;
  return kNumber;
}

int TLxParser::symbol() {
  const char c = *input_++;
  switch (c) {
    case '+':
      return kPlus;
    case '-':
      return kMinus;
    case '*':
      return kTimes;
    case '/':
      return kDivide;
    case '^':
      return kPower;
    case '(':
      return kOpen;
    case ')':
      return kClose;
    case '>':
      if (*input_ != '=') return kGreater;
      ++input_;
      return kGreaterEqual;
    case '<':
      if (*input_ == '=') return ++input_, kLessEqual;
      if (*input_ == '>') return ++input_, kNotEqual;
      return kLess;
    case '=':
      if (*input_ == '=') ++input_;
      return kEqual;
    case '!':
      if (*input_ != '=') return kBad;
      ++input_;
      return kNotEqual;
    default:
      return kBad;
  }
}

bool TLxParser::isvar() {
  const char first = Upper(input_[0]);
  if (!noVariable_ && first == 'T' && !IsAlnum(input_[1])) {
    token_.value.value = variable_;
    input_ += 1;
    return true;
  }
  if (first == 'E' && !IsAlnum(input_[1])) {
    token_.value.value = 2.718281828459045;
    input_ += 1;
    return true;
  }
  if (first == 'P' && Upper(input_[1]) == 'I' && !IsAlnum(input_[2])) {
    token_.value.value = 3.141592653589793;
    input_ += 2;
    return true;
  }
  return false;
}

bool TLxParser::isfunc(const char* name) {
  const std::size_t length = std::strlen(name);
  if (std::strncmp(word_, name, length) != 0) return false;
  std::memcpy(token_.value.name, name, length);
  token_.value.name[length] = 0;
  input_ += length;
  return true;
}

void TLxParser::push(const TOKENREC* token) {
  if (sp_ >= kStackTop) {
    error_ = true;
    return;
  }
  stack_[++sp_] = *token;
}

void TLxParser::pop() {
  if (sp_ > 0) --sp_;
}

void TLxParser::shift(int state) {
  token_.state = static_cast<std::int8_t>(state);
  push(&token_);
  kind_ = nexttoken();
}

void TLxParser::reduce(int production) {
  int length = 1;
  if (production <= 8 || production == 20 || production == 21 || production == 40 ||
      production == 101)
    length = 3;
  else if (production == 103)
    length = 4;
  else if (production == 60)
    length = 2;
  if (sp_ < length) {
    error_ = true;
    return;
  }
  const double top = stack_[sp_].value.value;
  const double left = stack_[sp_ - length + 1].value.value;
  double value = top;
  switch (production) {
    case 1:
      value = left + top;
      break;
    case 2:
      value = left - top;
      break;
    case 3:
    case 4:
    case 5:
    case 6:
    case 7:
    case 8:
      value = Compare(production, left, top);
      break;
    case 20:
      value = left * top;
      break;
    case 21:
      value = Divide(left, top);
      break;
    case 40:
      value = top == 0.0 ? 1.0 : std::pow(left, top);
      break;
    case 60:
      value = -top;
      break;
    case 101:
      value = stack_[sp_ - 1].value.value;
      break;
    case 103:
      value = ApplyFunction(stack_[sp_ - 3].value.name, stack_[sp_ - 1].value.value);
      break;
    case 19:
    case 39:
    case 59:
    case 79:
    case 99:
    case 102:
      break;
    default:
      error_ = true;
      return;
  }
  for (int i = 0; i < length; ++i)
    pop();
  TOKENREC phrase;
  phrase.state = static_cast<std::int8_t>(gotostate(production));
  phrase.value.value = value;
  push(&phrase);
}

int TLxParser::gotostate(int production) {
  const int from = stack_[sp_].state;
  if (production < 20) {
    if (from == 0) return 1;
    if (from == 9) return 19;
    if (from == 20) return 28;
  } else if (production < 40) {
    if (from == 0 || from == 9 || from == 20) return 2;
    if (from == 12) return 21;
    if (from == 13) return 22;
    if (IsComparisonState(from)) return from + 10;
  } else if (production < 60) {
    if (IsOperandState(from)) return 3;
    if (from == 14) return 23;
    if (from == 15) return 24;
    if (from == 16) return 25;
  } else if (production < 80) {
    if (IsOperandState(from) || from == 14 || from == 15 || from == 16) return 4;
  } else if (production < 100) {
    if (IsOperandState(from) || from == 14 || from == 15 || from == 16) return 6;
    if (from == 5) return 17;
  } else {
    if (IsOperandState(from) || from == 5 || from == 14 || from == 15 || from == 16) return 8;
  }
  return kErrorState;
}

bool IsExpression(const QString& text) {
  for (const QChar c : text) {
    const char16_t u = c.unicode();
    if (!((u >= u'0' && u <= u'9') || u == u'.' || u == u' ')) return true;
  }
  return false;
}

bool EvaluateExpression(const QString& text, double t, double* result) {
  TLxParser parser(text);
  return parser.Parse(t, result);
}

bool EvaluateExpression(const QString& text, double* result) {
  TLxParser parser(text);
  return parser.Parse(result);
}

}  // namespace lx
