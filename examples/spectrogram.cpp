// Two sounds over time and frequency:   spectrogram before.wav after.wav out.png
#include <cstdio>

#include "design.h"
#include "frames.h"
#include "plot.h"

namespace {

constexpr int most_columns = 2000;  // more than the picture has

// Of each `several` neighbouring columns the highest levels.
void merge(std::vector<float>& columns, int bins, int several, Meter& meter) {
  const int count = static_cast<int>(columns.size()) / bins;
  for (int i = 0; i < count; ++i) {
    float *const from = columns.data() + i * bins, *const to = columns.data() + i / several * bins;
    if (i % several == 0)
      meter.call("tavsMove_32f", tavsMove_32f, from, to, bins);
    else
      meter.call("tavsMaxEvery_32f_I", tavsMaxEvery_32f_I, from, to, bins);
  }
  columns.resize(static_cast<size_t>((count + several - 1) / several) * bins);
}

Map map_of(const Sound& sound, Meter& meter) {
  int order = 8;  // frames of 12 to 25 ms
  while (static_cast<double>(2 << order) / sound.rate < 0.025) ++order;
  Frames       frames(order, meter);
  const int    count = std::max(1, frames.count(sound)), several = (count + most_columns - 1) / most_columns;
  const double step = static_cast<double>(frames.hop()) / sound.rate;

  std::vector<float> levels = magnitudes(sound, frames, meter);
  levels.resize(static_cast<size_t>(count) * frames.bins());
  if (several > 1) merge(levels, frames.bins(), several, meter);
  for (float& level : levels) level = static_cast<float>(decibels(level));
  return {static_cast<int>(levels.size()) / frames.bins(),
          frames.bins(),
          step * (several + 1) / 2,
          step * several,
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
