// What is lost when 16-bit samples are sent as 8-bit codes:   companding in.wav a-law.wav out.png
// A-law and mu-law keep the ratio of signal to noise over a wide range of levels; 8 linear bits do not.
#include <cmath>
#include <cstdio>

#include "audio.h"
#include "design.h"
#include "plot.h"

namespace {

using Samples = std::vector<Tav16s>;
using Codes   = std::vector<Tav8u>;

int length(const Samples& samples) { return static_cast<int>(samples.size()); }

Samples words_of(const Sound& sound, float gain, Meter& meter) {
  std::vector<float> scaled = sound.samples;
  Samples            words(scaled.size());
  meter.call("tavsMulC_32f_I", tavsMulC_32f_I, gain, scaled.data(), sound.size());
  meter.call("tavsConvert_32f16s_Sfs", tavsConvert_32f16s_Sfs, scaled.data(), words.data(), sound.size(), 1, -15);
  return words;
}

Samples by_a_law(const Samples& words, Meter& meter) {
  Codes   codes(words.size());
  Samples out(words.size());
  meter.call("tavsLinToALaw_16s8u", tavsLinToALaw_16s8u, words.data(), codes.data(), length(words));
  meter.call("tavsALawToLin_8u16s", tavsALawToLin_8u16s, codes.data(), out.data(), length(words));
  return out;
}

Samples by_mu_law(const Samples& words, Meter& meter) {
  Codes   codes(words.size());
  Samples out(words.size());
  meter.call("tavsLinToMuLaw_16s8u", tavsLinToMuLaw_16s8u, words.data(), codes.data(), length(words));
  meter.call("tavsMuLawToLin_8u16s", tavsMuLawToLin_8u16s, codes.data(), out.data(), length(words));
  return out;
}

// Rounded to the 256 multiples of 2^8.
Samples by_linear_bits(const Samples& words, Meter& meter) {
  Samples out(words.size());
  meter.call("tavsMulC_16s_Sfs", tavsMulC_16s_Sfs, words.data(), Tav16s{1}, out.data(), length(words), 8);
  meter.call("tavsMulC_16s_ISfs", tavsMulC_16s_ISfs, Tav16s{1}, out.data(), length(words), -8);
  return out;
}

double signal_to_noise(const Samples& words, const Samples& received, Meter& meter) {
  Tav32f signal = 0, noise = 0;
  meter.call("tavsNorm_L2_16s32f", tavsNorm_L2_16s32f, words.data(), length(words), &signal);
  meter.call("tavsNormDiff_L2_16s32f", tavsNormDiff_L2_16s32f, words.data(), received.data(), length(words), &noise);
  return noise == 0 ? 100 : decibels(signal / noise);
}

void run(char** names) {
  Meter       meter;
  const Sound sound = read_sound(names[0]);
  float       peak  = 0;
  meter.call("tavsNorm_Inf_32f", tavsNorm_Inf_32f, sound.samples.data(), sound.size(), &peak);

  const struct {
    const char* name;
    Samples (*send)(const Samples&, Meter&);
  } ways[] = {{"A-law", by_a_law}, {"mu-law", by_mu_law}, {"8 linear bits", by_linear_bits}};

  std::printf("companding: signal to noise with the recording's peak at full scale\n");
  std::vector<Curve> curves;
  for (const auto& way : ways) {
    Curve curve{way.name, {}, {}, "linespoints"};
    for (int level = -60; level <= 0; level += 5) {
      const float   gain  = 0.999F / std::max(peak, 1e-6F) * std::pow(10.0F, static_cast<float>(level) / 20);
      const Samples words = words_of(sound, gain, meter);
      curve.x.push_back(level);
      curve.y.push_back(signal_to_noise(words, way.send(words, meter), meter));
    }
    std::printf("  %-14s %5.1f dB\n", way.name, curve.y.back());
    curves.push_back(curve);
  }

  Sound received{std::vector<float>(sound.samples.size()), sound.rate};
  meter.call("tavsConvert_16s32f_Sfs", tavsConvert_16s32f_Sfs, by_a_law(words_of(sound, 1, meter), meter).data(),
             received.samples.data(), sound.size(), 15);
  write_sound(names[1], received);
  plot(names[2],
       {{"Companding to 8 bits", {"Peak level (dB of full scale)", -60, 0}, {"Signal to noise (dB)"}, curves, {}}});
  meter.print(sound.seconds());
  std::printf("  wrote %s and %s\n", names[1], names[2]);
}

}  // namespace

int main(int argc, char** argv) { return example("companding", "in.wav a-law.wav out.png", argc, argv, run); }
