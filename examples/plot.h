// Pictures by gnuplot, written as PNG: curves, and maps of levels over time and frequency.
#pragma once

#include <limits>
#include <string>
#include <vector>

inline constexpr double automatic = std::numeric_limits<double>::quiet_NaN();

struct Axis {
  std::string label;  // with its unit
  double      low = automatic, high = automatic;
  bool        logarithmic = false;
};

struct Curve {
  std::string         title;
  std::vector<double> x, y;
  std::string         style = "lines";  // as gnuplot knows it
};

// Levels in decibels, a column for each moment from `start` on.
struct Map {
  int                columns, rows;
  double             start, seconds_a_column, hertz_a_row;
  double             lowest, highest;  // of the colours
  std::vector<float> levels;
};

struct Panel {
  std::string        title;
  Axis               x, y;
  std::vector<Curve> curves;
  std::vector<Map>   maps;  // none or one, below the curves
};

// Panels one below the other.
void plot(const std::string& path, const std::vector<Panel>& panels);
