#include "design.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double pi = 3.14159265358979323846;

double sinc(double x) { return x == 0 ? 1 : std::sin(pi * x) / (pi * x); }

enum class Kind { low_pass, high_pass };

// One section by the bilinear transform, with the corner prewarped (R. Bristow-Johnson's audio EQ cookbook).
void add_section(std::vector<float>& sections, Kind kind, double corner, double rate, double quality) {
  const double w = 2 * pi * corner / rate, alpha = std::sin(w) / (2 * quality), c = std::cos(w);
  const double sum = kind == Kind::low_pass ? 1 - c : 1 + c, middle = kind == Kind::low_pass ? sum : -sum;
  for (double tap : {sum / 2, middle, sum / 2, 1 + alpha, -2 * c, 1 - alpha})
    sections.push_back(static_cast<float>(tap));
}

// Butterworth: the poles lie evenly on a half circle, and so each pair has a quality of its own.
void add_butterworth(std::vector<float>& sections, Kind kind, double corner, double rate, int order) {
  for (int pair = 0; pair < order / 2; ++pair)
    add_section(sections, kind, corner, rate, 1 / (2 * std::sin(pi * (2 * pair + 1) / (2 * order))));
}

}  // namespace

std::vector<float> hann(int n) {
  std::vector<float> window(n);
  for (int i = 0; i < n; ++i) window[i] = static_cast<float>(0.5 - 0.5 * std::cos(2 * pi * i / n));
  return window;
}

std::vector<float> band_pass_taps(double low, double high, double rate, int count) {
  std::vector<float> taps(count);
  for (int i = 0; i < count; ++i) {
    const double x = i - (count - 1) / 2.0, turn = 2 * pi * (i + 0.5) / count;
    const double ideal  = 2 * high / rate * sinc(2 * high / rate * x) - 2 * low / rate * sinc(2 * low / rate * x);
    const double window = 0.42 - 0.5 * std::cos(turn) + 0.08 * std::cos(2 * turn);
    taps[i]             = static_cast<float>(ideal * window);
  }
  return taps;
}

std::vector<float> band_pass_sections(double low, double high, double rate) {
  std::vector<float> sections;
  add_butterworth(sections, Kind::high_pass, low, rate, 4);
  add_butterworth(sections, Kind::low_pass, high, rate, 8);
  return sections;
}

double decibels(double ratio) { return 20 * std::log10(std::max(ratio, 1e-6)); }
