#include "picture.h"

#include <png.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "font_tables.h"

namespace {

constexpr int advance = glyph_width + 1;

const Glyph& glyph_of(char character) {
  for (const Glyph& glyph : glyphs)
    if (glyph.character == character) return glyph;
  return glyphs[0];
}

// Calls dot(x, y) for each dot that is set, counted in dots from the top left of the text.
template <class Dot> void each_dot(const std::string& text, Dot dot) {
  for (size_t place = 0; place < text.size(); ++place) {
    const Glyph& glyph = glyph_of(text[place]);
    for (int y = 0; y < glyph_height; ++y)
      for (int x = 0; x < glyph_width; ++x)
        if (glyph.rows[y * glyph_width + x] == '#') dot(static_cast<int>(place) * advance + x, y);
  }
}

uint8_t mixed(uint8_t under, uint8_t over, double coverage) {
  return static_cast<uint8_t>(std::lround(under + (over - under) * coverage));
}

}  // namespace

Picture::Picture(int width, int height, Colour background)
    : width_(width), height_(height), pixels_(static_cast<size_t>(width) * height, background) {}

void Picture::blend(int x, int y, Colour colour, double coverage) {
  if (x < 0 || x >= width_ || y < 0 || y >= height_) return;
  Colour& pixel = pixels_[static_cast<size_t>(y) * width_ + x];
  pixel         = {mixed(pixel.red, colour.red, coverage), mixed(pixel.green, colour.green, coverage),
                   mixed(pixel.blue, colour.blue, coverage)};
}

void Picture::rectangle(int x, int y, int width, int height, Colour colour) {
  for (int row = y; row < y + height; ++row)
    for (int column = x; column < x + width; ++column) blend(column, row, colour);
}

void Picture::column(int x, double y0, double y1, Colour colour) {
  for (int y = static_cast<int>(std::floor(y0)); y < y1; ++y)
    blend(x, y, colour, std::min(y1, y + 1.0) - std::max<double>(y0, y));
}

int Picture::text_width(const std::string& text, int size) {
  return (static_cast<int>(text.size()) * advance - 1) * size;
}

void Picture::text(int x, int y, const std::string& text, int size, Colour colour, Align align) {
  if (align == Align::centre) x -= text_width(text, size) / 2;
  if (align == Align::right) x -= text_width(text, size);
  each_dot(text, [&](int dx, int dy) { rectangle(x + dx * size, y + dy * size, size, size, colour); });
}

void Picture::text_upwards(int x, int y, const std::string& text, int size, Colour colour) {
  y += text_width(text, size) / 2;
  each_dot(text, [&](int dx, int dy) { rectangle(x + dy * size, y - (dx + 1) * size, size, size, colour); });
}

void Picture::write_png(const std::string& path) const {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width   = width_;
  image.height  = height_;
  image.format  = PNG_FORMAT_RGB;
  if (!png_image_write_to_file(&image, path.c_str(), 0, pixels_.data(), 0, nullptr))
    throw std::runtime_error(path + ": " + image.message);
}
