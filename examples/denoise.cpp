// Adds noise to a recording, and takes it away again:   denoise in.wav noisy.wav out.wav
// The noise in each bin is what a quarter of its magnitudes, sorted, do not reach. What stands not well above it goes.
#include <cmath>
#include <cstdio>
#include <random>

#include "design.h"
#include "frames.h"

namespace {

constexpr double noise_below_signal = 15;  // dB
constexpr float  above_noise        = 4;   // times the quarter that is taken for noise
constexpr float  left_over          = 0.08F;

double level(const std::vector<float>& samples, Meter& meter) {
  float norm = 0;
  meter.call("tavsNorm_L2_32f", tavsNorm_L2_32f, samples.data(), static_cast<int>(samples.size()), &norm);
  return norm;
}

double signal_to_noise(const Sound& clean, const Sound& other, Meter& meter) {
  float noise = 0;
  meter.call("tavsNormDiff_L2_32f", tavsNormDiff_L2_32f, clean.samples.data(), other.samples.data(), clean.size(),
             &noise);
  return decibels(level(clean.samples, meter) / std::max(noise, 1e-9F));
}

Sound with_noise(const Sound& clean, Meter& meter) {
  std::mt19937                    bits(1);
  std::normal_distribution<float> normal;
  std::vector<float>              noise(clean.samples.size());
  for (float& sample : noise) sample = normal(bits);
  const double wanted = level(clean.samples, meter) / std::pow(10, noise_below_signal / 20);
  Sound        noisy  = clean;
  meter.call("tavsAddProductC_32f", tavsAddProductC_32f, noise.data(), static_cast<float>(wanted / level(noise, meter)),
             noisy.samples.data(), noisy.size());
  return noisy;
}

// For each bin, from all its magnitudes.
std::vector<float> noise_of(const std::vector<float>& all, int bins, Meter& meter) {
  const int          count = static_cast<int>(all.size()) / bins;
  std::vector<float> noise(bins), one(count);
  for (int bin = 0; bin < bins; ++bin) {
    for (int i = 0; i < count; ++i) one[i] = all[i * bins + bin];
    meter.call("tavsSortAscend_32f_I", tavsSortAscend_32f_I, one.data(), count);
    noise[bin] = std::max(one[count / 4], 1e-9F);
  }
  return noise;
}

Sound cleaned(const Sound& noisy, Meter& meter) {
  Frames    frames(10, meter);
  const int bins = frames.bins();

  std::vector<float>   gains = magnitudes(noisy, frames, meter);
  const auto           noise = noise_of(gains, bins, meter);
  std::vector<Tav32fc> spectrum(bins);
  Sound                out{std::vector<float>(noisy.samples.size()), noisy.rate};
  for (int i = 0; i < frames.count(noisy); ++i) {
    float* const gain = gains.data() + i * bins;
    meter.call("tavsDiv_32f_I", tavsDiv_32f_I, noise.data(), gain, bins);
    meter.call("tavsThreshold_LTValGTVal_32f_I", tavsThreshold_LTValGTVal_32f_I, gain, bins, above_noise, left_over,
               above_noise, 1.0F);
    frames.spectrum(noisy, i, spectrum.data());
    meter.call("tavsMul_32f32fc_I", tavsMul_32f32fc_I, gain, spectrum.data(), bins);
    frames.add(spectrum.data(), out, i);
  }
  return out;
}

void run(char** names) {
  Meter       meter;
  const Sound clean = read_sound(names[0]);
  const Sound noisy = with_noise(clean, meter), out = cleaned(noisy, meter);
  write_sound(names[1], noisy);
  write_sound(names[2], out);
  std::printf("denoise: %.1f dB of signal to noise before, %.1f dB after\n", signal_to_noise(clean, noisy, meter),
              signal_to_noise(clean, out, meter));
  meter.print(clean.seconds());
  std::printf("  wrote %s and %s\n", names[1], names[2]);
}

}  // namespace

int main(int argc, char** argv) { return example("denoise", "in.wav noisy.wav out.wav", argc, argv, run); }
