// The arithmetic expression evaluator behind every numeric field.
#pragma once

#include <QString>

#include <cstdint>
#include <memory>

namespace lx {

// One parser stack entry, also the current token: its state and its value (a number, or a
// function name of up to 7 characters).
struct TOKENREC {
  std::int8_t state;
  union {
    double value;
    char name[8];
  } value;
};

// A table-driven shift/reduce parser for one expression text. Parse returns false on success
// and true on any error (the result is then 0).
class TLxParser {
 public:
  explicit TLxParser(const QString& expression);
  ~TLxParser();
  TLxParser(const TLxParser&) = delete;
  TLxParser& operator=(const TLxParser&) = delete;

  bool Parse(double t, double* result);  // with the variable T = t
  bool Parse(double* result);            // T is not recognised (now and in later calls)

 private:
  int nexttoken();
  int numeral();
  int symbol();
  bool isvar();
  bool isfunc(const char* name);
  void push(const TOKENREC* token);
  void pop();
  void shift(int state);
  void reduce(int production);
  int gotostate(int production);

  TOKENREC stack_[30];
  TOKENREC token_;
  int sp_ = 0;
  int kind_ = 0;
  bool error_ = false;
  const char* input_ = nullptr;
  char word_[6] = {};
  // The expression as UTF-8: short texts live in the parser itself, longer ones on the heap.
  const char* text_ = nullptr;
  char shortText_[96];
  std::unique_ptr<char[]> longText_;
  double variable_ = 0.0;
  bool noVariable_ = false;
};

// True when the text holds a character other than a digit, "." or a space.
bool IsExpression(const QString& text);
// Evaluate with a fresh parser; false on success, like the number readers.
bool EvaluateExpression(const QString& text, double t, double* result);
bool EvaluateExpression(const QString& text, double* result);

}  // namespace lx
