// Gives a recording echoes behind each word and, as no room can, in front of it.
//   echo in.wav out.wav out.png
// The echoes in front are ordinary echoes of the recording played backwards, turned round again.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>

#include "audio.h"
#include "plot.h"

namespace {

constexpr double margin_seconds = 1.2;   // silence around the recording, for the echoes to ring in
constexpr int    block_samples  = 1024;  // the echo works on a stream, a block at a time
constexpr float  peak_allowed   = 0.9F;

struct Echo {
  double delay_seconds;
  float  gain;  // of each echo to the one before
};

int samples_in(double seconds, const Sound& sound) { return static_cast<int>(std::lround(seconds * sound.rate)); }

void scale(std::vector<float>& samples, float gain) {
  for (float& sample : samples) sample *= gain;
}

Sound with_margins(const Sound& recording, Meter& meter) {
  const int margin = samples_in(margin_seconds, recording);
  Sound     sound{std::vector<float>(recording.samples.size() + 2 * margin), recording.rate};
  meter.call("tavsZero_32f", tavsZero_32f, sound.samples.data(), sound.size());
  meter.call("tavsCopy_32f", tavsCopy_32f, recording.samples.data(), sound.samples.data() + margin, recording.size());
  return sound;
}

// The echoes alone. What comes out of the delay line is heard, and goes in again together with the new sound.
Sound echoes(const Sound& sound, const Echo& echo, Meter& meter) {
  const int          delay = std::max(1, samples_in(echo.delay_seconds, sound));
  const int          block = std::min(block_samples, delay);
  std::vector<float> line(delay), newest(block);
  Sound              wet{std::vector<float>(sound.samples.size()), sound.rate};
  meter.call("tavsZero_32f", tavsZero_32f, line.data(), delay);
  for (int at = 0; at < sound.size(); at += block) {
    const int n = std::min(block, sound.size() - at);
    meter.call("tavsCopy_32f", tavsCopy_32f, line.data(), wet.samples.data() + at, n);
    meter.call("tavsAdd_32f", tavsAdd_32f, sound.samples.data() + at, line.data(), newest.data(), n);
    scale(newest, echo.gain);
    if (n < delay) meter.call("tavsMove_32f", tavsMove_32f, line.data() + n, line.data(), delay - n);
    meter.call("tavsCopy_32f", tavsCopy_32f, newest.data(), line.data() + delay - n, n);
  }
  return wet;
}

Sound echoes_in_front(const Sound& sound, const Echo& echo, Meter& meter) {
  Sound backwards = sound;
  meter.call("tavsFlip_32f", tavsFlip_32f, sound.samples.data(), backwards.samples.data(), sound.size());
  Sound wet = echoes(backwards, echo, meter);
  meter.call("tavsFlip_32f_I", tavsFlip_32f_I, wet.samples.data(), wet.size());
  return wet;
}

void keep_from_clipping(Sound& sound) {
  float peak = 0;
  for (float sample : sound.samples) peak = std::max(peak, std::fabs(sample));
  if (peak > peak_allowed) scale(sound.samples, peak_allowed / peak);
}

void run(const char* in, const char* out_wav, const char* out_png) {
  Meter       meter;
  const Sound dry    = with_margins(read_sound(in), meter);
  const Sound behind = echoes(dry, {0.28, 0.5F}, meter);
  const Sound front  = echoes_in_front(dry, {0.19, 0.45F}, meter);

  Sound mix = dry;
  for (const Sound* part : {&behind, &front})
    meter.call("tavsAdd_32f", tavsAdd_32f, mix.samples.data(), part->samples.data(), mix.samples.data(), mix.size());
  keep_from_clipping(mix);

  std::printf("echo: %.1f s of sound at %d Hz\n", mix.seconds(), mix.rate);
  meter.print(mix.seconds());
  write_sound(out_wav, mix);
  plot_waves(out_png, {{"The recording", dry}, {"With echoes in front and behind", mix}});
  std::printf("  wrote %s and %s\n", out_wav, out_png);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fprintf(stderr, "usage: echo in.wav out.wav out.png\n");
    return 2;
  }
  try {
    run(argv[1], argv[2], argv[3]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "echo: %s\n", error.what());
    return 1;
  }
  return 0;
}
