// The plain quadratic self-intersection test, written straight from the rules (every pair of
// non-adjacent edges, then every edge for every sweep line), as the reference the fast test must
// match; and random polygons for the agreement corpus and the benchmarks.
#pragma once

#include "geometry/SelfIntersection.h"
#include "lxcomp/LxGeometry.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <set>
#include <utility>
#include <vector>

namespace lxtest {

inline lx::SelfIntersection ReferenceSelfIntersection(const double* nodes, unsigned count) {
  using lx::SelfIntersection;
  if (count < 4) return SelfIntersection::None;
  auto x = [&](unsigned k) { return nodes[2 * k]; };
  auto y = [&](unsigned k) { return nodes[2 * k + 1]; };
  std::set<double> events;  // heights where edges start, end or cross
  auto addEvent = [&](double v) {
    if (!std::isnan(v)) events.insert(v);
  };
  for (unsigned i = 0; i + 1 < count; ++i)
    addEvent(y(i));
  for (unsigned i = 0; i + 3 <= count; ++i) {
    const unsigned ip = i == 0 ? count - 1 : i - 1;
    for (unsigned j = i + 2; j < count; ++j) {
      const unsigned jp = j - 1;
      double px, py;
      if ((i == 0 && j == count - 1) ||
          !lx::Intersect(x(i), y(i), x(ip), y(ip), x(j), y(j), x(jp), y(jp), px, py))
        continue;
      addEvent(py);
      const double dxo = x(ip) - x(i), dyo = y(ip) - y(i), dxi = x(jp) - x(j), dyi = y(jp) - y(j);
      auto meet = [&](unsigned a, unsigned b) { return x(a) == x(b) && y(a) == y(b); };
      auto atNode = [&](unsigned k) { return px == x(k) && py == y(k); };
      bool allowed;  // a touch, not a crossing
      if (dxo == 0 && dxi == 0)
        allowed = dyo * dyi <= 0 || y(i) == y(jp) || y(ip) == y(j);
      else if (dyo == 0 && dyi == 0)
        allowed = dxo * dxi <= 0 || x(i) == x(jp) || x(ip) == x(j);
      else if (lx::SameAngleRadians(std::atan2(dyo, dxo), std::atan2(dyi, dxi)))
        allowed = meet(ip, j) || meet(i, jp);
      else
        allowed = lx::SameAngleRadians(std::atan2(dyo, dxo) + M_PI, std::atan2(dyi, dxi)) ||
                  atNode(i) || atNode(ip) || atNode(j) || atNode(jp);
      if (!allowed) return SelfIntersection::ForbiddenContact;
    }
  }
  std::vector<std::pair<double, bool>> crossings;  // x, upwards
  auto before = [](const auto& a, const auto& b) {
    if (std::isnan(a.first) != std::isnan(b.first)) return std::isnan(b.first);
    if (!std::isnan(a.first) && a.first != b.first) return a.first < b.first;
    return !a.second && b.second;
  };
  for (auto a = events.begin(); a != events.end() && std::next(a) != events.end(); ++a) {
    const double line = (*a + *std::next(a)) * 0.5;
    crossings.clear();
    for (unsigned k = 1; k <= count; ++k) {
      const unsigned from = k - 1, to = k % count;
      const bool up = y(from) < line && line < y(to);
      if (up || (y(from) > line && line > y(to)))
        crossings.push_back(
            {(x(to) - x(from)) * (line - y(from)) / (y(to) - y(from)) + x(from), up});
    }
    std::sort(crossings.begin(), crossings.end(), before);
    int winding = 0;
    for (size_t m = 0; m < crossings.size(); ++m) {
      if (m > 0 && std::abs(winding) > 1 && crossings[m].first > crossings[m - 1].first)
        return SelfIntersection::CoveredTwice;
      winding += crossings[m].second ? 1 : -1;
    }
  }
  return SelfIntersection::None;
}

// Interleaved x, y nodes.
using Nodes = std::vector<double>;

inline void Close(Nodes& p) {
  if (p.size() >= 2) p.insert(p.end(), {p[0], p[1]});
}

// A simple polygon: one node at a random angle in each of `count` equal sectors around the
// origin (so neighbours never come too close), at a radius from `radius`, rounded to whole
// nanometres as layout coordinates are.
template <typename Radius>
Nodes StarPolygon(std::mt19937& rng, unsigned count, Radius radius) {
  std::uniform_real_distribution<double> within(0.1, 0.9);
  Nodes p;
  for (unsigned i = 0; i < count; ++i) {
    const double a = (i + within(rng)) * 2 * M_PI / count, r = radius(a);
    p.insert(p.end(), {std::round(r * std::cos(a)), std::round(r * std::sin(a))});
  }
  Close(p);
  return p;
}

// A random star with a smooth random outline: radius 1e8 nm modulated by a few random waves,
// plus a little jitter per node. Simple, like the outlines of a layout.
inline Nodes SmoothStar(std::mt19937& rng, unsigned count) {
  std::uniform_real_distribution<double> unit(0, 1);
  double amp[5], phase[5];
  for (int w = 0; w < 5; ++w)
    amp[w] = 0.06 * unit(rng), phase[w] = 2 * M_PI * unit(rng);
  const double jitter = 1e8 * 2 * M_PI / count * 0.5;
  return StarPolygon(rng, count, [&](double a) {
    double r = 1e8;
    for (int w = 0; w < 5; ++w)
      r += 1e8 * amp[w] * std::sin((w + 2) * a + phase[w]);
    return r + jitter * (unit(rng) - 0.5);
  });
}

// A star whose radii are independent, between half and all of `radius`: every edge is a spike.
inline Nodes SpikyStar(std::mt19937& rng, unsigned count, double radius = 1e8) {
  std::uniform_real_distribution<double> pick(radius / 2, radius);
  return StarPolygon(rng, count, [&](double) { return pick(rng); });
}

}  // namespace lxtest
