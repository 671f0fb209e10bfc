// Number text and expressions beside their peers: the evaluator beside muParser, the number
// readers and writers beside std::from_chars / std::to_chars.
#include <benchmark/benchmark.h>
#include <muParser.h>

#include <QString>

#include <array>
#include <charconv>
#include <string>
#include <vector>

#include "lxcomp/LxMisc.h"
#include "lxcomp/LxParser.h"

namespace {

// Written the same way in both grammars.
constexpr std::array<const char*, 6> kExpressions = {"2*sin(t)+3^2",        "(1+2)*3-4/5",
                                                     "sqrt(16)+abs(-3)*t",  "1.5E3/(t+2)-7",
                                                     "((2+3)*(4-1))/(6*t)", "exp(1)-ln(2)+cos(0)"};

constexpr std::array<const char*, 6> kNumbers = {"12.5", "-0.125", "1234.567",
                                                 "3",    "0.001",  "98765.4321"};

constexpr std::array<double, 6> kLengths = {12500.0, -125.0, 1234567.0, 3000.0, 1.0, 98765432.1};

std::vector<QString> AsQStrings(const auto& texts) {
  std::vector<QString> out;
  for (const char* text : texts)
    out.push_back(QString::fromLatin1(text));
  return out;
}

void LxEvaluateFresh(benchmark::State& state) {
  const std::vector<QString> texts = AsQStrings(kExpressions);
  std::size_t i = 0;
  for (auto _ : state) {
    double result = 0.0;
    benchmark::DoNotOptimize(lx::EvaluateExpression(texts[i++ % texts.size()], 1.25, &result));
    benchmark::DoNotOptimize(result);
  }
}
BENCHMARK(LxEvaluateFresh);

void MuParserSetExprEval(benchmark::State& state) {
  mu::Parser parser;
  double t = 1.25;
  parser.DefineVar("t", &t);
  std::vector<std::string> texts(kExpressions.begin(), kExpressions.end());
  std::size_t i = 0;
  for (auto _ : state) {
    parser.SetExpr(texts[i++ % texts.size()]);
    benchmark::DoNotOptimize(parser.Eval());
  }
}
BENCHMARK(MuParserSetExprEval);

void MuParserNewParserEval(benchmark::State& state) {
  double t = 1.25;
  std::vector<std::string> texts(kExpressions.begin(), kExpressions.end());
  std::size_t i = 0;
  for (auto _ : state) {
    mu::Parser parser;
    parser.DefineVar("t", &t);
    parser.SetExpr(texts[i++ % texts.size()]);
    benchmark::DoNotOptimize(parser.Eval());
  }
}
BENCHMARK(MuParserNewParserEval);

// muParser's strength: evaluating bytecode it has already compiled.
void MuParserEvalParsed(benchmark::State& state) {
  double t = 1.25;
  std::vector<mu::Parser> parsers(kExpressions.size());
  for (std::size_t k = 0; k < parsers.size(); ++k) {
    parsers[k].DefineVar("t", &t);
    parsers[k].SetExpr(kExpressions[k]);
    parsers[k].Eval();
  }
  std::size_t i = 0;
  for (auto _ : state)
    benchmark::DoNotOptimize(parsers[i++ % parsers.size()].Eval());
}
BENCHMARK(MuParserEvalParsed);

void LxGetCoordinateQString(benchmark::State& state) {
  const std::vector<QString> texts = AsQStrings(kNumbers);
  std::size_t i = 0;
  for (auto _ : state) {
    double value = 0.0;
    benchmark::DoNotOptimize(lx::GetCoordinateNoMessage(texts[i++ % texts.size()], &value));
    benchmark::DoNotOptimize(value);
  }
}
BENCHMARK(LxGetCoordinateQString);

void LxGetCoordinateWide(benchmark::State& state) {
  std::vector<std::wstring> texts;
  for (const char* text : kNumbers)
    texts.emplace_back(text, text + std::char_traits<char>::length(text));
  std::size_t i = 0;
  for (auto _ : state) {
    double value = 0.0;
    benchmark::DoNotOptimize(lx::GetCoordinateNoMessage(texts[i++ % texts.size()].c_str(), &value));
    benchmark::DoNotOptimize(value);
  }
}
BENCHMARK(LxGetCoordinateWide);

void StdFromChars(benchmark::State& state) {
  std::vector<std::string> texts(kNumbers.begin(), kNumbers.end());
  std::size_t i = 0;
  for (auto _ : state) {
    const std::string& text = texts[i++ % texts.size()];
    double value = 0.0;
    benchmark::DoNotOptimize(std::from_chars(text.data(), text.data() + text.size(), value));
    benchmark::DoNotOptimize(value *= 1000.0);
  }
}
BENCHMARK(StdFromChars);

void LxPrintMicronsWide(benchmark::State& state) {
  std::size_t i = 0;
  for (auto _ : state) {
    wchar_t text[64];
    lx::PrintMicrons(kLengths[i++ % kLengths.size()], text, 64);
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(LxPrintMicronsWide);

void LxPrintMicronsQString(benchmark::State& state) {
  std::size_t i = 0;
  QString text;
  for (auto _ : state) {
    lx::PrintMicrons(kLengths[i++ % kLengths.size()], &text);
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(LxPrintMicronsQString);

void StdToCharsFixed6(benchmark::State& state) {
  std::size_t i = 0;
  for (auto _ : state) {
    char text[64];
    benchmark::DoNotOptimize(std::to_chars(
        text, text + 64, kLengths[i++ % kLengths.size()] / 1000.0, std::chars_format::fixed, 6));
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(StdToCharsFixed6);

}  // namespace

BENCHMARK_MAIN();
