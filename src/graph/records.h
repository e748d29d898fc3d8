#pragma once
// The records behind the list of a graph session: one parameter set per
// object type, already evaluated, plus the look and the typed texts that
// refill the object's tab when it is edited.

#include <cstdint>
#include <map>
#include <string>
#include <variant>
#include <vector>

#include "graph/items.h"
#include "graph/sampling.h"

namespace lp::graph {

struct AnyParams {
  int16_t mode = 0;     // 0: y = f(x), 1: x = f(y)
  std::u16string expr;  // normalised, always written in x
  std::vector<Segment> segments;
};

struct PowerParams {
  int16_t kind = 0;  // 0: x^n, 1: x^(n/m)
  int16_t n = 2, m = 1;
  double xmin = -5, xmax = 5;
};

struct ExponentParams {
  double a = 2, h = 0, k = 0, xmin = -5, xmax = 5;  // y = a^(x+h)+k
};

struct LogParams {
  int16_t form = 0;  // 0: logx, 1: logabsx, 2: abslogx
  double a = 2, h = 0, k = 0, xmin = -5, xmax = 5;
};

struct ReciprocalParams {
  double k = 1, d = 0.1, lower = -5, upper = 5;  // y = k/x, kept d away from 0
};

// A point of the five-point method with its two labels.
struct TrigMark {
  WorldPoint at;
  std::u16string xText, yText;
};

struct TrigParams {
  int16_t kind = 0;  // sine, cosine, tangent, cotangent, then the inverse functions
  double A = 1, w = 1, F = 0, K = 0;
  double rxmin = 0, rxmax = 0;
  std::vector<Segment> segments;
  std::vector<TrigMark> marks;
};

struct LineParams {
  double x1 = 0, x2 = 0, y1 = 0, y2 = 0;
};

struct CircleParams {
  double cx = 0, cy = 0, r2 = 1;
  bool drawCentre = false;
};

// Ellipses and hyperbolas: centre, squared semi-axes (a along the focal
// axis), and what to draw besides the curve.
struct ConicParams {
  double cx = 0, cy = 0, a2 = 1, b2 = 1;
  bool hyperbola = false;
  bool horizontal = true;
  bool focus = false, directrix = false, axis = false, asymptotes = false;
  std::u16string form;
  double from = -5, to = 5;  // hyperbola: the range of the coordinate along the branches
};

struct ParabolaParams {
  double h = 0, k = 0, q = 1;  // vertex, and q with the focus q/4 from the vertex
  bool verticalAxis = true;    // y = (x-h)^2/q + k; else x = (y-k)^2/q + h
  bool focus = false, directrix = false, axis = false;
  std::u16string form;
  double from = -5, to = 5;
};

struct PointParams {
  double x = 0, y = 0;
  std::u16string letter;
  bool labelled = false, pointOnly = false, segment = false;
};

using Params =
    std::variant<AnyParams, PowerParams, ExponentParams, LogParams, ReciprocalParams, TrigParams,
                 LineParams, CircleParams, ConicParams, ParabolaParams, PointParams>;

// The state of a tab's controls by object name: texts as typed, check boxes
// and option buttons as "1" or "0".
using FormState = std::map<std::u16string, std::u16string>;

struct GraphObject {
  Look look;
  Params params;
  FormState texts;
};

}  // namespace lp::graph
