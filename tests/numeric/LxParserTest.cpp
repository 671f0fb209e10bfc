#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <optional>
#include <vector>

#include "lxcomp/LxParser.h"

namespace {

const double kInf = HUGE_VAL;

struct Case {
  const char* text;
  std::optional<double> value;  // nothing: the parse fails (result 0)
};

void ExpectEvaluates(const QString& text, std::optional<double> expected, double t = 5.0) {
  double result = -1.0;
  const bool failed = lx::EvaluateExpression(text, t, &result);
  EXPECT_EQ(failed, !expected.has_value()) << text.toStdString();
  if (expected && std::isnan(*expected)) {
    EXPECT_TRUE(std::isnan(result)) << text.toStdString();
  } else {
    EXPECT_EQ(result, expected.value_or(0.0)) << text.toStdString();
  }
}

TEST(EvaluateExpression, ValuesOfWellFormedTexts) {
  const std::vector<Case> precedence = {
      {"2+3*4", 14},  {"(2+3)*4", 20}, {"2^3^2", 512},   {"-2^2", 4},   {"2^-1", 0.5}, {"0^0", 1},
      {"1+2>2", 1},   {"2>1+1", 2},    {"1<2<3", 1},     {"10-4-3", 3}, {"8/4/2", 1},  {"2*-3", -6},
      {"-(2+1)", -3}, {"-sqr(2)", -4}, {"1-2*3^2", -17}, {"1 +  2 ", 3}};
  const std::vector<Case> operators = {
      {"=5*2", 10},  {"3 = 3", 1}, {"3 == 3", 1}, {"3 <> 3", 0}, {"3 != 4", 1},   {"2 >= 2", 1},
      {"2 <= 1", 0}, {"1 < 2", 1}, {"1 > 2", 0},  {"1/0", kInf}, {"-1/0", -kInf}, {"0/0", kInf}};
  const std::vector<Case> functions = {
      {"sqrt(-4)", 0},     {"sqrt(9)", 3},      {"sqr(3)", 9},       {"abs(-2)", 2},
      {"pow10(3)", 1000},  {"POW10(2.7)", 100}, {"trunc(-2.7)", -2}, {"round(2.5)", 3},
      {"round(-2.5)", -2}, {"round(-2.7)", -2}, {"exp(0)", 1},       {"log(1000)", 3},
      {"ln(1)", 0},        {"cos(0)", 1},       {"cosh(0)", 1},      {"tanh(0)", 0},
      {"sinh(0)", 0},      {"atan(0)", 0},      {"asin(0)", 0},      {"acos(1)", 0},
      {"tan(0)", 0},       {"sin(0)", 0},       {"log(0)", -kInf}};
  const std::vector<Case> names = {{"pi*2", 2 * M_PI}, {"Pi", M_PI}, {"E", M_E},
                                   {"e", M_E},         {"t*2", 10},  {"T", 5}};
  // Exponents only with a capital E; a bare E ends the number.
  const std::vector<Case> numerals = {{"1.5E3", 1500}, {"1E+2", 100}, {"1E-2", 0.01}, {".5", 0.5},
                                      {"5.", 5},       {"1E", 1},     {"1E+", 1},     {"0E999", 0}};
  for (const auto* table : {&precedence, &operators, &functions, &names, &numerals})
    for (const Case& c : *table)
      ExpectEvaluates(QString::fromLatin1(c.text), c.value);
  ExpectEvaluates(QStringLiteral("trunc(1E10)"), -2147483648.0);
  ExpectEvaluates(QStringLiteral("acos(2)"), std::nan(""));
  ExpectEvaluates(QString(64, u'1'), std::stod(std::string(64, '1')));
  ExpectEvaluates(QStringLiteral("1+2\0+x"), 3.0);  // the text ends at a NUL
}

TEST(EvaluateExpression, MalformedTextsFailWithZero) {
  for (const char* text :
       {"--3",   "-+3",    "+3",   "sin 1", "(1+2",  "1+2)",   "1 2",     "()",    "",
        "   ",   "2^--1",  "*2",   "2*",    "abs()", "==5",    " =5",     "1 ! 2", "1,5",
        "1 & 2", "1\t+2",  "ABSX", "T2",    "PIE",   "X",      "sinx(1)", "sqrt",  "sqrt(4",
        "1.5e3", "1E0001", ".",    "1.2.3", "1E999", "1E-999", "2 .5"})
    ExpectEvaluates(QString::fromLatin1(text), std::nullopt);
  for (const QString& text :
       {QString(65, u'1'), QString(100000, u'9'), QString(10000, u'x'), QString(1, QChar(0xD800)),
        QStringLiteral("\u00b5"), QStringLiteral("1+\U0001F600"), QStringLiteral("1+\x01"),
        QStringLiteral("t\u00e9")})
    ExpectEvaluates(text, std::nullopt);
}

TEST(EvaluateExpression, StackHoldsThirtyEntries) {
  const auto nested = [](int pairs) {
    return QString(pairs, u'(') + QStringLiteral("1") + QString(pairs, u')');
  };
  ExpectEvaluates(nested(27), 1.0);
  ExpectEvaluates(nested(28), std::nullopt);
  ExpectEvaluates(nested(5000), std::nullopt);
  ExpectEvaluates(QStringLiteral("1") + QStringLiteral("+1").repeated(5000), 5001.0);
}

// Random texts from the scanner's own alphabet: every one either evaluates or fails with 0.
TEST(EvaluateExpression, RandomTextsFailWithZero) {
  const QString alphabet = QStringLiteral("0123456789.E+-*/^()<>=! tpiesqrtabcoln,\t\u00e9");
  std::uint32_t seed = 12345;
  const auto next = [&seed] { return (seed = seed * 1664525u + 1013904223u) >> 8; };
  for (int round = 0; round < 3000; ++round) {
    QString text;
    for (std::uint32_t n = next() % 40; n > 0; --n)
      text += alphabet[static_cast<qsizetype>(next() % alphabet.size())];
    double result = -1.0;
    if (lx::EvaluateExpression(text, 2.0, &result)) {
      EXPECT_EQ(result, 0.0) << text.toStdString();
    }
  }
}

TEST(TLxParser, WithoutVariableTIsUnknownForGood) {
  lx::TLxParser parser(QStringLiteral("t"));
  double result = -1.0;
  EXPECT_FALSE(parser.Parse(7.0, &result));
  EXPECT_EQ(result, 7.0);
  EXPECT_TRUE(parser.Parse(&result));
  EXPECT_EQ(result, 0.0);
  EXPECT_TRUE(parser.Parse(7.0, &result));
  EXPECT_TRUE(lx::EvaluateExpression(QStringLiteral("t*2"), &result));
  EXPECT_FALSE(lx::EvaluateExpression(QStringLiteral("pi"), &result));
}

TEST(IsExpression, AnythingButDigitsPointsAndSpaces) {
  const std::pair<const char*, bool> cases[] = {{"", false},   {"12.5", false}, {" 3 ", false},
                                                {"-5", true},  {"2*3", true},   {"1,5", true},
                                                {"1e3", true}, {"\t1", true}};
  for (const auto& [text, expected] : cases)
    EXPECT_EQ(lx::IsExpression(QString::fromLatin1(text)), expected) << text;
  EXPECT_TRUE(lx::IsExpression(QStringLiteral("\u0661")));
}

}  // namespace
