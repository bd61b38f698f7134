#include "plot.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "picture.h"

namespace {

constexpr Colour paper{255, 255, 255}, ground{247, 248, 250}, grid{221, 225, 231}, frame{120, 128, 140},
    ink{33, 37, 43};
constexpr Colour range_colour{134, 182, 224}, rms_colour{24, 88, 150};
constexpr int    picture_width = 1280, panel_height = 400, text_size = 2;
constexpr int    left = 110, right = 30, top = 56, bottom = 74;  // margins of the axes within a panel
constexpr int    plot_width = picture_width - left - right, plot_height = panel_height - top - bottom;

// The step 1, 2 or 5 times a power of ten that gives at most `most` steps.
double tick_step(double range, int most) {
  const double power = std::pow(10.0, std::floor(std::log10(range / most)));
  for (double factor : {1.0, 2.0, 5.0})
    if (range <= most * factor * power) return factor * power;
  return 10 * power;
}

std::string tick_text(double value, double step) {
  char      text[32];
  const int decimals = std::max(0, static_cast<int>(-std::floor(std::log10(step) + 1e-9)));
  std::snprintf(text, sizeof text, "%.*f", decimals, value);
  return text;
}

struct Axes {
  Picture& picture;
  int      y;        // of the panel's top
  double   seconds;  // that the time axis spans

  int    x_of(double time) const { return left + static_cast<int>(std::lround(time / seconds * (plot_width - 1))); }
  double y_of(double level) const { return y + top + (1 - level) / 2 * plot_height; }
};

void draw_time_axis(const Axes& axes) {
  const int    y    = axes.y + top + plot_height;
  const double step = tick_step(axes.seconds, 10);
  for (int i = 0; i * step <= axes.seconds * 1.000001; ++i) {
    const int x = axes.x_of(i * step);
    axes.picture.vertical(x, axes.y + top, y - 1, grid);
    axes.picture.vertical(x, y, y + 7, frame);
    axes.picture.text(x, y + 14, tick_text(i * step, step), text_size, ink, Align::centre);
  }
  axes.picture.text(left + plot_width / 2, y + 40, "Time (s)", text_size, ink, Align::centre);
}

void draw_level_axis(const Axes& axes) {
  for (int i = -2; i <= 2; ++i) {
    const int y = static_cast<int>(std::lround(axes.y_of(i * 0.5)));
    axes.picture.horizontal(left, left + plot_width - 1, y, grid);
    axes.picture.horizontal(left - 8, left - 1, y, frame);
    axes.picture.text(left - 14, y - 7, tick_text(i * 0.5, 0.5), text_size, ink, Align::right);
  }
  axes.picture.text_upwards(14, axes.y + top + plot_height / 2, "Level (full scale = 1)", text_size, ink);
}

void draw_legend(const Axes& axes) {
  const int right_end = left + plot_width, y = axes.y + 26;
  const int rms_x   = right_end - Picture::text_width("RMS", text_size),
            range_x = rms_x - 50 - Picture::text_width("range", text_size);
  axes.picture.text(range_x, y, "range", text_size, ink);
  axes.picture.rectangle(range_x - 24, y, 14, 14, range_colour);
  axes.picture.text(rms_x, y, "RMS", text_size, ink);
  axes.picture.rectangle(rms_x - 24, y, 14, 14, rms_colour);
}

void draw_frame(const Axes& axes) {
  const int x1 = left + plot_width, y0 = axes.y + top - 1, y1 = axes.y + top + plot_height;
  axes.picture.horizontal(left - 1, x1, y0, frame);
  axes.picture.horizontal(left - 1, x1, y1, frame);
  axes.picture.vertical(left - 1, y0, y1, frame);
  axes.picture.vertical(x1, y0, y1, frame);
}

void draw_wave(const Axes& axes, const Sound& sound) {
  for (int column = 0; column < plot_width; ++column) {
    const double per_column = axes.seconds * sound.rate / plot_width;
    const int    begin      = static_cast<int>(column * per_column);
    const int    end        = std::min(sound.size(), std::max(begin + 1, static_cast<int>((column + 1) * per_column)));
    if (begin >= end) break;
    const auto [low, high] = std::minmax_element(sound.samples.begin() + begin, sound.samples.begin() + end);
    double squares         = 0;
    for (int i = begin; i < end; ++i) squares += static_cast<double>(sound.samples[i]) * sound.samples[i];
    const double rms = std::sqrt(squares / (end - begin));
    // Silence still is a line one pixel wide.
    axes.picture.column(left + column, axes.y_of(*high) - 0.5, axes.y_of(*low) + 0.5, range_colour);
    axes.picture.column(left + column, axes.y_of(std::min<double>(rms, *high)) - 0.5,
                        axes.y_of(std::max<double>(-rms, *low)) + 0.5, rms_colour);
  }
}

void draw_panel(const Axes& axes, const Wave& wave) {
  axes.picture.rectangle(left, axes.y + top, plot_width, plot_height, ground);
  draw_time_axis(axes);
  draw_level_axis(axes);
  draw_legend(axes);
  draw_wave(axes, wave.sound);
  draw_frame(axes);
  axes.picture.text(left, axes.y + 26, wave.title, text_size, ink);
}

}  // namespace

void plot_waves(const std::string& path, const std::vector<Wave>& waves) {
  double seconds = 0;
  for (const Wave& wave : waves) seconds = std::max(seconds, wave.sound.seconds());
  Picture picture(picture_width, panel_height * static_cast<int>(waves.size()), paper);
  for (size_t i = 0; i < waves.size(); ++i)
    draw_panel({picture, panel_height * static_cast<int>(i), seconds}, waves[i]);
  picture.write_png(path);
}
