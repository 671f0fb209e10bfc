// The polygon kernel beside Boost.Geometry on the same random simple polygons, and beside the
// plain quadratic self-intersection test while that stays affordable.
#include <benchmark/benchmark.h>

#include <boost/geometry.hpp>

#include "../tests/geometry/LxPolygonTestSupport.h"
#include "lxcomp/LxPolygon.h"

#include <map>

namespace {

namespace bg = boost::geometry;
using BoostPoint = bg::model::d2::point_xy<double>;
using BoostPolygon = bg::model::polygon<BoostPoint, false, true>;  // counter-clockwise, closed

enum Family { kSmooth, kSpiky };

// Random simple polygons with a closing node, the same for every benchmark of one size.
const lxtest::Nodes& Polygon(Family family, unsigned count) {
  static std::map<std::pair<Family, unsigned>, lxtest::Nodes> cache;
  auto& nodes = cache[{family, count}];
  if (nodes.empty()) {
    std::mt19937 rng(count);
    nodes = family == kSmooth ? lxtest::SmoothStar(rng, count) : lxtest::SpikyStar(rng, count);
  }
  return nodes;
}

const BoostPolygon& AsBoost(Family family, unsigned count) {
  static std::map<std::pair<Family, unsigned>, BoostPolygon> cache;
  auto& polygon = cache[{family, count}];
  if (polygon.outer().empty()) {
    const auto& nodes = Polygon(family, count);
    for (size_t i = 0; i < nodes.size(); i += 2)
      polygon.outer().push_back(BoostPoint(nodes[i], nodes[i + 1]));
  }
  return polygon;
}

unsigned Count(const lxtest::Nodes& nodes) {
  return static_cast<unsigned>(nodes.size() / 2);
}

template <Family F>
void SelfIntersecting(benchmark::State& state) {
  const auto& p = Polygon(F, state.range(0));
  bool crosses = true;
  for (auto _ : state)
    benchmark::DoNotOptimize(crosses = lx::SelfIntersectingPolygon(p.data(), Count(p)));
  if (crosses) state.SkipWithError("a simple polygon was reported self-intersecting");
}

template <Family F>
void SignedArea(benchmark::State& state) {
  const auto& p = Polygon(F, state.range(0));
  for (auto _ : state)
    benchmark::DoNotOptimize(lx::signed_polygonarea(p.data(), Count(p)));
}

template <Family F>
void QuadraticReference(benchmark::State& state) {
  const auto& p = Polygon(F, state.range(0));
  for (auto _ : state)
    benchmark::DoNotOptimize(lxtest::ReferenceSelfIntersection(p.data(), Count(p)));
}

template <Family F>
void BoostIsValid(benchmark::State& state) {
  const auto& polygon = AsBoost(F, state.range(0));
  bool valid = false;
  for (auto _ : state)
    benchmark::DoNotOptimize(valid = bg::is_valid(polygon));
  if (!valid) state.SkipWithError("Boost finds the polygon invalid");
}

template <Family F>
void BoostIsValidPlusArea(benchmark::State& state) {
  const auto& polygon = AsBoost(F, state.range(0));
  for (auto _ : state) {
    benchmark::DoNotOptimize(bg::is_valid(polygon));
    benchmark::DoNotOptimize(bg::area(polygon));
  }
}

void BoostArea(benchmark::State& state) {
  const auto& polygon = AsBoost(kSmooth, state.range(0));
  for (auto _ : state)
    benchmark::DoNotOptimize(bg::area(polygon));
}

void PointInPolygon(benchmark::State& state) {
  auto p = Polygon(kSmooth, state.range(0));
  for (auto _ : state)
    benchmark::DoNotOptimize(lx::PointInPolygon(1234, -5678, p.data(), Count(p)));
}

void BoostWithin(benchmark::State& state) {
  const auto& polygon = AsBoost(kSmooth, state.range(0));
  const BoostPoint point(1234, -5678);
  for (auto _ : state)
    benchmark::DoNotOptimize(bg::within(point, polygon));
}

// One clipping stage through the middle of the polygon (the copy back is part of the work).
template <unsigned (*Clip)(double*, unsigned, double)>
void ClipStage(benchmark::State& state) {
  const auto& p = Polygon(kSmooth, state.range(0));
  lxtest::Nodes buffer(2 * p.size());
  for (auto _ : state) {
    std::copy(p.begin(), p.end(), buffer.begin());
    benchmark::DoNotOptimize(Clip(buffer.data(), Count(p), 1000));
  }
}

void Sizes(benchmark::internal::Benchmark* b) {
  for (long n : {1000, 2000, 10000, 100000, 1000000})
    b->Arg(n);
  b->Unit(benchmark::kMillisecond);
}

void SmallSizes(benchmark::internal::Benchmark* b) {
  for (long n : {1000, 2000, 10000})
    b->Arg(n);
  b->Unit(benchmark::kMillisecond);
}

}  // namespace

BENCHMARK(SelfIntersecting<kSmooth>)->Apply(Sizes);
BENCHMARK(SignedArea<kSmooth>)->Apply(Sizes);
BENCHMARK(BoostIsValid<kSmooth>)->Apply(Sizes);
BENCHMARK(BoostArea)->Apply(Sizes);
BENCHMARK(BoostIsValidPlusArea<kSmooth>)->Apply(Sizes);
BENCHMARK(QuadraticReference<kSmooth>)->Apply(SmallSizes);
BENCHMARK(PointInPolygon)->Apply(Sizes);
BENCHMARK(BoostWithin)->Apply(Sizes);
BENCHMARK(ClipStage<lx::PolyClipLeft>)->Apply(Sizes);
BENCHMARK(ClipStage<lx::PolyClipRight>)->Apply(Sizes);
BENCHMARK(ClipStage<lx::PolyClipBottom>)->Apply(Sizes);
BENCHMARK(ClipStage<lx::PolyClipTop>)->Apply(Sizes);
// Independent radii: every edge is a long spike whose box overlaps a large share of the others.
BENCHMARK(SignedArea<kSpiky>)->Apply(SmallSizes);
BENCHMARK(BoostIsValidPlusArea<kSpiky>)->Apply(SmallSizes);
BENCHMARK(QuadraticReference<kSpiky>)->Apply(SmallSizes);

BENCHMARK_MAIN();
