// Two sounds over time and frequency:   spectrogram before.wav after.wav out.png
#include <cstdio>

#include "design.h"
#include "frames.h"
#include "plot.h"

namespace {

Map map_of(const Sound& sound, Meter& meter) {
  int order = 8;  // frames of 12 to 25 ms
  while (static_cast<double>(2 << order) / sound.rate < 0.025) ++order;
  Frames    frames(order, meter);
  const int count = std::max(1, frames.count(sound));

  std::vector<float> levels = magnitudes(sound, frames, meter);
  levels.resize(static_cast<size_t>(count) * frames.bins());
  for (float& level : levels) level = static_cast<float>(decibels(level));
  return {count,
          frames.bins(),
          static_cast<double>(frames.hop()) / sound.rate,
          static_cast<double>(frames.hop()) / sound.rate,
          static_cast<double>(sound.rate) / frames.size(),
          -100,
          -20,
          std::move(levels)};
}

Panel panel_of(const std::string& name, Meter& meter) {
  const Sound       sound = read_sound(name);
  const std::string file  = name.substr(name.find_last_of('/') + 1);
  return {file,
          {"Time (s)", 0, sound.seconds()},
          {"Frequency (Hz)", 0, std::min(8000.0, sound.rate / 2.0)},
          {},
          {map_of(sound, meter)}};
}

void run(char** names) {
  Meter meter;
  plot(names[2], {panel_of(names[0], meter), panel_of(names[1], meter)});
  std::printf("spectrogram: both sounds\n");
  meter.print(read_sound(names[0]).seconds() + read_sound(names[1]).seconds());
  std::printf("  wrote %s\n", names[2]);
}

}  // namespace

int main(int argc, char** argv) { return example("spectrogram", "before.wav after.wav out.png", argc, argv, run); }
