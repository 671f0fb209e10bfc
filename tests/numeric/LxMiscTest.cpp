#include <gtest/gtest.h>

#include <QLineEdit>
#include <QWidget>

#include <charconv>
#include <climits>
#include <cmath>
#include <cstring>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "lxcomp/LxMisc.h"
#include "lxcomp/LxPlatform.h"

namespace {

constexpr double kUntouched = -777.0;
const double kInf = HUGE_VAL;

struct ReadCase {
  const wchar_t* text;
  std::optional<double> value;  // nothing: the text does not read
};

// Runs the wide-text and the QString form of a reader: the value times `scale`, or on failure
// the output left alone.
template <typename Reader>
void ExpectReads(Reader read, const std::vector<ReadCase>& cases, double scale) {
  for (const ReadCase& c : cases) {
    for (const bool wide : {true, false}) {
      double out = kUntouched;
      const bool failed = wide ? read(c.text, &out) : read(QString::fromWCharArray(c.text), &out);
      const std::string text = QString::fromWCharArray(c.text).toStdString();
      EXPECT_EQ(failed, !c.value.has_value()) << text;
      EXPECT_EQ(out, c.value ? *c.value * scale : kUntouched) << text;
    }
  }
}

TEST(GetCoordinate, ReadsMicrometresAsNanometres) {
  std::vector<ReadCase> cases = {
      {L"12.5", 12.5},    {L"12,5", 12.5},    {L" 12.5", 12.5},  {L"12.5 ", 12.5},
      {L"12.5 mm", 12.5}, {L"12.5\tx", 12.5}, {L"12.5\n", 12.5}, {L"12.5\r", 12.5},
      {L"+3", 3.0},       {L"-3", -3.0},      {L"1e3", 1000.0},  {L"1E-3", 0.001},
      {L"1.", 1.0},       {L".5", 0.5},       {L",5", 0.5},      {L"\t\n 7", 7.0}};
  cases.push_back({L"1234567890123456789012345678901234", 123456789012345678901234567890.0});
  for (const wchar_t* bad : {L"12.5mm",       L"",         L"abc",      L"1,000.5",
                             L"inf",          L"-INF",     L"nan",      L"0x10",
                             L"1.2.3",        L".",        L"-",        L"1e",
                             L"12.5\v",       L" ,5",      L"1e999",    L"1e306",
                             L"\u0661\u0662", L"12\u00a0", L"1\u20002", L"e5"})
    cases.push_back({bad, {}});
  ExpectReads([](auto t, double* v) { return lx::GetCoordinateNoMessage(t, v); }, cases, 1000);
}

TEST(GetDouble, ReadsRealsAndInfinityWords) {
  const ReadCase cases[] = {{L"2.5", 2.5},    {L"-1e-400", -0.0}, {L"inf", kInf},  {L"-INF", -kInf},
                            {L"xINFx", kInf}, {L" -inf", kInf},   {L"-1,5", -1.5}, {L"Inf", {}},
                            {L"1e999", {}},   {L"nan", {}},       {L"", {}},       {L"0x1p3", {}},
                            {L"12.5mm", {}},  {L"--1", {}}};
  ExpectReads([](auto t, double* v) { return lx::GetDoubleNoMessage(t, v); },
              {std::begin(cases), std::end(cases)}, 1);
}

// The readers round exactly as the standard library's correctly rounded conversion.
TEST(GetDouble, RoundsLikeFromChars) {
  for (const char* text :
       {"0.1", "0.3", "123456789012345", "1234567890123456", "9007199254740993",
        "2.2250738585072014e-308", "1.7976931348623157e308", "4.9e-324", "0.000001234", "1e22",
        "1e23", "12345678.90123e-5", "-0", "000000000000000000000000001.5"}) {
    double expected = 0.0, value = 0.0;
    std::from_chars(text, text + std::strlen(text), expected);
    EXPECT_FALSE(lx::GetDoubleNoMessage(QString::fromLatin1(text), &value)) << text;
    EXPECT_EQ(value, expected) << text;
    EXPECT_EQ(std::signbit(value), std::signbit(expected)) << text;
  }
}

TEST(GetNumber, RoundsHalfAwayFromZero) {
  const char* texts[] = {"2.5", "-2.5",         "2.4999",       "0", "1,5", "inf",
                         "3e9", "2147483647.4", "-2147483648.4"};
  const int rounded[] = {3, -3, 2, 0, 2, INT_MIN, INT_MIN, INT_MAX, INT_MIN};
  for (size_t i = 0; i < std::size(texts); ++i) {
    int out = 12345;
    EXPECT_FALSE(lx::GetNumberNoMessage(QString::fromLatin1(texts[i]), &out)) << texts[i];
    EXPECT_EQ(out, rounded[i]) << texts[i];
  }
}

TEST(Print, TrimsZerosAndSeparator) {
  const std::pair<double, const wchar_t*> cases[] = {
      {1500.0, L"1.5"}, {1000.0, L"1"},   {0.0, L"0"},        {1234567.0, L"1234.567"},
      {0.0004, L"0"},   {-0.0004, L"-0"}, {100000.0, L"100"}, {-2500.5, L"-2.5005"},
      {1.0, L"0.001"},  {kInf, L"inf"},   {-kInf, L"-inf"}};
  for (const auto& [nanometres, want] : cases) {
    wchar_t buffer[64];
    lx::PrintMicrons(nanometres, buffer, 64);
    QString text;
    lx::PrintMicrons(nanometres, &text);
    QLineEdit edit;
    lx::PrintDouble(nanometres / 1000.0, &edit);
    EXPECT_EQ(std::wstring(buffer), want) << nanometres;
    EXPECT_EQ(text, QString::fromWCharArray(want)) << nanometres;
    EXPECT_EQ(edit.text(), QString::fromWCharArray(want)) << nanometres;
  }
  wchar_t buffer[8];
  lx::PrintDouble(-0.0, buffer, 8);
  EXPECT_EQ(std::wstring(buffer), L"-0");
  for (const int value : {0, 42, -7, INT_MIN, INT_MAX}) {  // whole numbers
    QString text;
    lx::PrintNumber(value, &text);
    QLineEdit edit;
    lx::PrintNumber(value, &edit);
    EXPECT_EQ(text, QString::number(value));
    EXPECT_EQ(edit.text(), QString::number(value));
  }
}

TEST(Print, NeverWritesBeyondTheBuffer) {
  const std::tuple<double, int, const wchar_t*> cases[] = {
      // nullptr: the buffer is untouched
      {1234.5, 5, L"1234"}, {100.0, 4, L"1"},  {0.5, 2, L"0"},
      {7.0, 1, L""},        {7.0, 0, nullptr}, {7.0, -3, nullptr}};
  for (const auto& [value, size, text] : cases) {
    wchar_t buffer[16];
    std::fill(std::begin(buffer), std::end(buffer), L'#');
    lx::PrintDouble(value, buffer, size);
    const int beyond = std::max(size, 0);
    EXPECT_EQ(std::wstring(buffer + beyond, 16 - beyond), std::wstring(16 - beyond, L'#')) << size;
    if (text) {
      EXPECT_EQ(std::wstring(buffer), text) << value << " in " << size;
    }
  }
  wchar_t number[4] = {L'#', L'#', L'#', L'#'};
  lx::PrintNumber(12345, number, 3);
  EXPECT_EQ(std::wstring(number, 4), std::wstring(L"12\0#", 4));
  lx::PrintDouble(1.0, nullptr, 10);
  lx::PrintMicrons(1.0, static_cast<QString*>(nullptr));
  lx::PrintNumber(1, static_cast<QLineEdit*>(nullptr));
}

TEST(LoudReaders, QuoteAtMostTwentyCharactersWhileTheMainFormShows) {
  QWidget form;
  form.show();
  lx::SetMainForm(&form);
  std::vector<QString> messages;
  lx::SetMessageHook([&messages](const QString& text, int kind, int help) {
    messages.push_back(text + QStringLiteral(" |%1|%2").arg(kind).arg(help));
    return lx::mrOk;
  });
  double value = kUntouched;
  int number = 5;
  EXPECT_TRUE(lx::GetCoordinate(QStringLiteral("12.5mm"), &value));
  EXPECT_TRUE(lx::GetDouble(QStringLiteral("abcdefghijklmnopqrstuvwxyz"), &value));
  EXPECT_TRUE(lx::GetNumber(QString(), &number));
  EXPECT_TRUE(lx::GetCoordinate(QStringLiteral("x\u00e9\U0001F600"), &value));
  EXPECT_TRUE(lx::GetCoordinate(QStringLiteral("1,5x"), &value));  // quotes its own copy
  EXPECT_TRUE(lx::GetDouble(QStringLiteral("1,5x"), &value));      // quotes the caller's text
  lx::NotAValidNumber(static_cast<const wchar_t*>(nullptr));
  EXPECT_FALSE(lx::GetCoordinate(QStringLiteral("2"), &value));
  EXPECT_EQ(value, 2000.0);
  EXPECT_EQ(number, 5);
  std::vector<QString> expected;
  for (const char16_t* quoted :
       {u"12.5mm", u"abcdefghijklmnopqrst", u"", u"x\u00e9\U0001F600", u"1.5x", u"1,5x", u""})
    expected.push_back(
        QStringLiteral("'%1' is not a valid number |-1|0").arg(QString::fromUtf16(quoted)));
  EXPECT_EQ(messages, expected);
  form.hide();  // silent while the main form is hidden
  EXPECT_TRUE(lx::GetDouble(QStringLiteral("x"), &value));
  EXPECT_EQ(messages, expected);
  EXPECT_EQ(value, 2000.0);
  lx::SetMessageHook(nullptr);
  lx::SetMainForm(nullptr);
}

TEST(ReaderCopy, KeepsThirtyCharactersUpToANul) {
  EXPECT_EQ(lx::ReaderCopy(QString(40, u'7')), QString(30, u'7'));
  EXPECT_EQ(lx::ReaderCopy(QStringLiteral("12\0ab")), QStringLiteral("12"));
  EXPECT_EQ(lx::ReaderCopy(QStringLiteral("1,5x")), QStringLiteral("1.5x"));
  EXPECT_EQ(lx::NotAValidNumberText(QString(19, u'a') + QStringLiteral("\U0001F600")),
            QLatin1Char('\'') + QString(19, u'a') + QStringLiteral("' is not a valid number"));
}

TEST(BadInput, NeverCrashesAndNeverStores) {
  const QString texts[] = {QString(),
                           QStringLiteral("abc"),
                           QString(10000, u'x'),
                           QString(1, u'1') + QString(10000, u'x'),
                           QString(1, QChar(0xD800)),
                           QString(3, QChar(0xDFFF)) + u'1',
                           QStringLiteral("\x01\x02\x7f"),
                           QStringLiteral("\u4e00\u4e8c")};
  for (const QString& text : texts) {
    double value = kUntouched;
    int number = 5;
    EXPECT_TRUE(lx::GetCoordinateNoMessage(text, &value) && lx::GetDoubleNoMessage(text, &value) &&
                lx::GetNumberNoMessage(text, &number))
        << text.size();
    EXPECT_EQ(value, kUntouched);
    EXPECT_EQ(number, 5);
  }
  double value = kUntouched;
  EXPECT_TRUE(lx::GetCoordinateNoMessage(static_cast<const wchar_t*>(nullptr), &value));
  EXPECT_TRUE(lx::GetDoubleNoMessage(static_cast<const wchar_t*>(nullptr), &value));
  EXPECT_EQ(value, kUntouched);
}

TEST(Stepping, OneTwoFiveSeries) {
  const double cases[][3] = {// from, up, down
                             {1, 2, 0.5},   {2, 5, 1},       {5, 10, 2},           {10, 20, 5},
                             {3, 5, 2},     {0.3, 0.5, 0.2}, {99999999, 1e8, 5e7}, {2e8, 1e8, 1e8},
                             {0, 0, 0.001}, {-5, 0, 0.001},  {0.001, 0.005, 0.001}};
  for (const auto& c : cases) {
    EXPECT_DOUBLE_EQ(lx::IncreaseValue(c[0]), c[1]) << c[0];
    EXPECT_DOUBLE_EQ(lx::DecreaseValue(c[0]), c[2]) << c[0];
  }
}

TEST(Comparisons, CoordinatesEqualAndSimpleValues) {
  EXPECT_FALSE(lx::CoordinatesEqual(0, 1e-6));
  EXPECT_TRUE(lx::CoordinatesEqual(0, 0.9e-6));
  EXPECT_FALSE(lx::CoordinatesEqual(0, std::nan("")));
  const struct {
    std::vector<double> values;
    int count;
    bool simple;
  } cases[] = {{{1, -2, 1e9, -1e9}, 4, true}, {{1, 1e9 + 1}, 2, false}, {{1, 2.5}, 2, false},
               {{std::nan("")}, 1, false},    {{1, 2.5}, 1, true},      {{}, 0, true},
               {{1, 2.5}, -1, true}};
  for (const auto& c : cases)
    EXPECT_EQ(lx::SimpleValues(c.values.empty() ? nullptr : c.values.data(), c.count), c.simple)
        << &c - cases;
}

}  // namespace
