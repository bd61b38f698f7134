// A picture in memory: rectangles, lines and text, written as PNG.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct Colour {
  uint8_t red, green, blue;
};

enum class Align { left, centre, right };

class Picture {
 public:
  Picture(int width, int height, Colour background);

  int width() const { return width_; }
  int height() const { return height_; }

  // Paints one pixel; coverage 0 leaves it, 1 replaces it. Outside the picture nothing happens.
  void blend(int x, int y, Colour colour, double coverage = 1);

  void rectangle(int x, int y, int width, int height, Colour colour);
  void horizontal(int x0, int x1, int y, Colour colour) { rectangle(x0, y, x1 - x0 + 1, 1, colour); }
  void vertical(int x, int y0, int y1, Colour colour) { rectangle(x, y0, 1, y1 - y0 + 1, colour); }

  // One column from y0 down to y1, both between pixels: the ends are smoothed.
  void column(int x, double y0, double y1, Colour colour);

  // Text whose capitals are 7 * size pixels high, with x at the place that `align` tells and y at their top.
  void text(int x, int y, const std::string& text, int size, Colour colour, Align align = Align::left);

  // The same from bottom to top: x is at the capitals' top, y at the middle of the text.
  void text_upwards(int x, int y, const std::string& text, int size, Colour colour);

  static int text_width(const std::string& text, int size);

  void write_png(const std::string& path) const;

 private:
  int                 width_, height_;
  std::vector<Colour> pixels_;
};
