// The plain quadratic self-intersection test, written straight from the rules (every pair of
// non-adjacent edges, then every edge for every sweep line), as the reference the fast test must
// match; and generators of random polygons for the agreement corpus and the benchmarks.
#pragma once

#include "geometry/SelfIntersection.h"
#include "lxcomp/LxGeometry.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <set>
#include <vector>

namespace lxtest {

inline lx::SelfIntersection ReferenceSelfIntersection(const double* nodes, unsigned count) {
  using lx::SelfIntersection;
  if (count < 4) return SelfIntersection::None;
  auto x = [&](unsigned k) { return nodes[2 * k]; };
  auto y = [&](unsigned k) { return nodes[2 * k + 1]; };
  std::set<double> events;
  auto addEvent = [&](double v) {
    if (!std::isnan(v)) events.insert(v);
  };
  for (unsigned i = 0; i + 1 < count; ++i)
    addEvent(y(i));
  for (unsigned i = 0; i + 3 <= count; ++i) {
    const unsigned ip = i == 0 ? count - 1 : i - 1;
    for (unsigned j = i + 2; j < count; ++j) {
      if (i == 0 && j == count - 1) continue;
      const unsigned jp = j - 1;
      double px, py;
      if (!lx::Intersect(x(i), y(i), x(ip), y(ip), x(j), y(j), x(jp), y(jp), px, py)) continue;
      addEvent(py);
      const double dxo = x(ip) - x(i), dyo = y(ip) - y(i);
      const double dxi = x(jp) - x(j), dyi = y(jp) - y(j);
      if (dxo == 0 && dxi == 0) {
        if (dyo * dyi <= 0 || y(i) == y(jp) || y(ip) == y(j)) continue;
        return SelfIntersection::ForbiddenContact;
      }
      if (dyo == 0 && dyi == 0) {
        if (dxo * dxi <= 0 || x(i) == x(jp) || x(ip) == x(j)) continue;
        return SelfIntersection::ForbiddenContact;
      }
      const double ao = std::atan2(dyo, dxo), ai = std::atan2(dyi, dxi);
      if (lx::SameAngleRadians(ao, ai)) {
        if ((x(ip) == x(j) && y(ip) == y(j)) || (x(i) == x(jp) && y(i) == y(jp))) continue;
        return SelfIntersection::ForbiddenContact;
      }
      if (lx::SameAngleRadians(ao + M_PI, ai)) continue;
      for (unsigned node : {i, ip, j, jp})
        if (px == x(node) && py == y(node)) goto allowed;
      return SelfIntersection::ForbiddenContact;
    allowed:;
    }
  }
  struct Crossing {
    double x;
    bool up;
  };
  std::vector<Crossing> crossings;
  auto before = [](const Crossing& a, const Crossing& b) {
    if (std::isnan(a.x) != std::isnan(b.x)) return std::isnan(b.x);
    if (!std::isnan(a.x) && a.x != b.x) return a.x < b.x;
    return !a.up && b.up;
  };
  for (auto a = events.begin(), b = std::next(a); a != events.end() && b != events.end();
       ++a, ++b) {
    const double line = (*a + *b) * 0.5;
    crossings.clear();
    for (unsigned k = 1; k <= count; ++k) {
      const unsigned from = k - 1, to = k % count;
      const bool up = y(from) < line && line < y(to);
      if (!up && !(y(from) > line && line > y(to))) continue;
      crossings.push_back({(x(to) - x(from)) * (line - y(from)) / (y(to) - y(from)) + x(from), up});
    }
    if (crossings.empty()) continue;
    std::sort(crossings.begin(), crossings.end(), before);
    int w = crossings[0].up ? 1 : -1;
    for (size_t m = 1; m < crossings.size(); ++m) {
      if ((w < -1 || w > 1) && crossings[m].x > crossings[m - 1].x)
        return SelfIntersection::CoveredTwice;
      w += crossings[m].up ? 1 : -1;
    }
  }
  return SelfIntersection::None;
}

// Interleaved x, y nodes.
using Nodes = std::vector<double>;

inline void Close(Nodes& p) {
  if (p.size() >= 2) {
    p.push_back(p[0]);
    p.push_back(p[1]);
  }
}

// A simple polygon: one node at a random angle in each of `count` equal sectors around the
// origin (so neighbours never come too close), at a radius from `radius`, rounded to whole
// nanometres as layout coordinates are.
template <typename Radius>
Nodes StarPolygon(std::mt19937& rng, unsigned count, Radius radius) {
  std::uniform_real_distribution<double> within(0.1, 0.9);
  Nodes p;
  p.reserve(2 * count + 2);
  for (unsigned i = 0; i < count; ++i) {
    const double a = (i + within(rng)) * 2 * M_PI / count;
    const double r = radius(a);
    p.push_back(std::round(r * std::cos(a)));
    p.push_back(std::round(r * std::sin(a)));
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

// A star whose radii are independent: every edge is a long spike.
inline Nodes SpikyStar(std::mt19937& rng, unsigned count) {
  std::uniform_real_distribution<double> radius(5e7, 1e8);
  return StarPolygon(rng, count, [&](double) { return radius(rng); });
}

}  // namespace lxtest
