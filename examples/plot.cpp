#include "plot.h"

#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <stdexcept>

namespace {

constexpr int width = 1280, panel_height = 420;

class Gnuplot {
 public:
  Gnuplot() : pipe_(popen("gnuplot", "w")) {
    if (pipe_ == nullptr) throw std::runtime_error("cannot start gnuplot");
  }
  ~Gnuplot() {
    if (pipe_ != nullptr) pclose(pipe_);
  }
  Gnuplot(const Gnuplot&)            = delete;
  Gnuplot& operator=(const Gnuplot&) = delete;

  __attribute__((format(printf, 2, 3))) void say(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::vfprintf(pipe_, format, arguments);
    va_end(arguments);
  }

  void send(const std::vector<float>& values) { std::fwrite(values.data(), sizeof(float), values.size(), pipe_); }

  void finish() {
    FILE* const pipe = pipe_;
    pipe_            = nullptr;
    if (pclose(pipe) != 0) throw std::runtime_error("gnuplot failed");
  }

 private:
  FILE* pipe_;
};

// A text as gnuplot takes it word for word: in single quotes, those in it doubled.
std::string quoted(const std::string& text) {
  std::string result = "'";
  for (const char c : text) result.append(c == '\'' ? 2 : 1, c);
  return result + "'";
}

std::string limit(double value) { return std::isnan(value) ? "*" : std::to_string(value); }

void set_axis(Gnuplot& gnuplot, const char* name, const Axis& axis) {
  gnuplot.say("set %slabel %s\nset %srange [%s:%s]\n%s logscale %s\n", name, quoted(axis.label).c_str(), name,
              limit(axis.low).c_str(), limit(axis.high).c_str(), axis.logarithmic ? "set" : "unset", name);
}

void send_map(Gnuplot& gnuplot, const Map& map) {
  std::vector<float> rows(map.levels.size());  // gnuplot takes it row by row
  for (int column = 0; column < map.columns; ++column)
    for (int row = 0; row < map.rows; ++row) rows[row * map.columns + column] = map.levels[column * map.rows + row];
  gnuplot.send(rows);
}

void draw(Gnuplot& gnuplot, const Panel& panel) {
  gnuplot.say("set title %s\n", quoted(panel.title).c_str());
  set_axis(gnuplot, "x", panel.x);
  set_axis(gnuplot, "y", panel.y);
  const char* between = "plot";
  for (const Map& map : panel.maps) {
    gnuplot.say("set cbrange [%g:%g]\nset cblabel \"Level (dB)\"\n", map.lowest, map.highest);
    gnuplot.say("%s '-' binary array=(%d,%d) origin=(%.9g,0) dx=%.9g dy=%.9g format='%%float' with image notitle",
                between, map.columns, map.rows, map.start, map.seconds_a_column, map.hertz_a_row);
    between = ",";
  }
  for (const Curve& curve : panel.curves) {
    gnuplot.say("%s '-' with %s title %s", between, curve.style.c_str(), quoted(curve.title).c_str());
    between = ",";
  }
  gnuplot.say("\n");
  for (const Map& map : panel.maps) send_map(gnuplot, map);
  for (const Curve& curve : panel.curves) {
    for (size_t i = 0; i < curve.x.size(); ++i) {
      if (std::isnan(curve.y[i]))
        gnuplot.say("\n");  // a gap
      else
        gnuplot.say("%.9g %.9g\n", curve.x[i], curve.y[i]);
    }
    gnuplot.say("e\n");
  }
}

}  // namespace

void plot(const std::string& path, const std::vector<Panel>& panels) {
  const int count = static_cast<int>(panels.size());
  Gnuplot   gnuplot;
  gnuplot.say("set terminal pngcairo noenhanced size %d,%d font \"DejaVu Sans,12\" background \"white\"\n", width,
              panel_height * count);
  gnuplot.say("set output %s\nset multiplot layout %d,1\n", quoted(path).c_str(), count);
  gnuplot.say("set grid lt 1 lc rgb \"#dde1e7\"\nset border lc rgb \"#78808c\"\nset tics textcolor rgb \"#212529\"\n");
  gnuplot.say(
      "set lmargin 11\nset rmargin 14\nset key tmargin right horizontal\nset linetype 1 lc rgb \"#185896\" lw 1.5\n");
  gnuplot.say("set linetype 2 lc rgb \"#d1495b\" lw 1.5\nset linetype 3 lc rgb \"#3a8f5c\" lw 1.5\n");
  gnuplot.say("set palette defined (0 '#0b0724', 1 '#3b0f70', 2 '#8c2981', 3 '#de4968', 4 '#fe9f6d', 5 '#fcfdbf')\n");
  for (const Panel& panel : panels) draw(gnuplot, panel);
  gnuplot.say("unset multiplot\n");
  gnuplot.finish();
}
