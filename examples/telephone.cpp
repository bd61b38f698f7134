// Sends a recording through a telephone, once by an FIR filter and once by biquads:
//   telephone in.wav fir.wav biquads.wav out.png
// The picture shows what is left of the spectrum.
#include <cmath>
#include <cstdio>
#include <exception>
#include <memory>

#include "design.h"
#include "frames.h"
#include "plot.h"

namespace {

constexpr double low_edge = 300, high_edge = 3400;  // Hz
constexpr int    block_samples = 1024;              // as an audio driver would hand them over

template <class State> using Owner = std::unique_ptr<State, TavStatus (*)(State*)>;

Sound by_fir(const Sound& sound, Meter& meter) {
  const int                count = sound.rate / 100 * 2 + 1;  // 20 ms of taps separate 300 Hz from 200
  const std::vector<float> taps  = band_pass_taps(low_edge, high_edge, sound.rate, count);
  FIRState_32f*            state = nullptr;
  meter.call("tavsFIRInitAlloc_32f", tavsFIRInitAlloc_32f, &state, taps.data(), count, nullptr);
  const Owner<FIRState_32f> owner(state, tavsFIRFree_32f);

  Sound out{std::vector<float>(sound.samples.size()), sound.rate};
  for (int at = 0; at < sound.size(); at += block_samples)
    meter.call("tavsFIR_32f", tavsFIR_32f, sound.samples.data() + at, out.samples.data() + at,
               std::min(block_samples, sound.size() - at), state);
  return out;
}

Sound by_biquads(const Sound& sound, Meter& meter) {
  const std::vector<float> sections = band_pass_sections(low_edge, high_edge, sound.rate);
  IIRState_32f*            state    = nullptr;
  meter.call("tavsIIRInitAlloc_BiQuad_32f", tavsIIRInitAlloc_BiQuad_32f, &state, sections.data(),
             int{band_pass_section_count}, nullptr);
  const Owner<IIRState_32f> owner(state, tavsIIRFree_32f);

  Sound out = sound;
  for (int at = 0; at < sound.size(); at += block_samples)
    meter.call("tavsIIR_32f_I", tavsIIR_32f_I, out.samples.data() + at, std::min(block_samples, sound.size() - at),
               state);
  return out;
}

// The mean power of all frames, in decibels.
Curve mean_spectrum(const char* title, const Sound& sound, Meter& meter) {
  Frames             frames(11, meter);
  const int          count = frames.count(sound), bins = frames.bins();
  std::vector<float> all = magnitudes(sound, frames, meter), sum(bins);
  for (int i = 0; i < count; ++i)
    meter.call("tavsAddProduct_32f", tavsAddProduct_32f, all.data() + i * bins, all.data() + i * bins, sum.data(),
               bins);
  Curve curve{title, {}, {}};
  for (int bin = 1; bin < bins; ++bin) {
    curve.x.push_back(static_cast<double>(bin) * sound.rate / frames.size());
    curve.y.push_back(decibels(std::sqrt(sum[bin] / std::max(1, count))));
  }
  return curve;
}

void run(char** names) {
  Meter       meter;
  const Sound sound = read_sound(names[0]), fir = by_fir(sound, meter), biquads = by_biquads(sound, meter);
  write_sound(names[1], fir);
  write_sound(names[2], biquads);

  plot(names[3], {{"The mean spectrum on a telephone line",
                   {"Frequency (Hz)", 50, sound.rate / 2.0, true},
                   {"Level (dB of full scale)", -120, -20},
                   {mean_spectrum("recording", sound, meter), mean_spectrum("FIR filter", fir, meter),
                    mean_spectrum("biquads", biquads, meter)},
                   {}}});
  std::printf("telephone: %.0f to %.0f Hz\n", low_edge, high_edge);
  meter.print(sound.seconds());
  std::printf("  wrote %s, %s and %s\n", names[1], names[2], names[3]);
}

}  // namespace

int main(int argc, char** argv) { return example("telephone", "in.wav fir.wav biquads.wav out.png", argc, argv, run); }
