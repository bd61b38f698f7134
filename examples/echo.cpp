// Gives a recording echoes behind each word and, as no room can, in front of it.
//   echo in.wav out.wav out.png
// The echoes in front are ordinary echoes of the recording played backwards, turned round again.
#include <cmath>
#include <cstdio>

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
    meter.call("tavsMulC_32f_I", tavsMulC_32f_I, echo.gain, newest.data(), n);
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

void keep_from_clipping(Sound& sound, Meter& meter) {
  float peak = 0;
  meter.call("tavsNorm_Inf_32f", tavsNorm_Inf_32f, sound.samples.data(), sound.size(), &peak);
  if (peak > peak_allowed)
    meter.call("tavsMulC_32f_I", tavsMulC_32f_I, peak_allowed / peak, sound.samples.data(), sound.size());
}

// The range of the samples in each of so many moments, as one line up and down.
Panel wave(const char* title, const Sound& sound, Meter& meter) {
  const int moment = std::max(1, sound.size() / 1200);
  Curve     curve{"", {}, {}};
  for (int at = 0; at + moment <= sound.size(); at += moment) {
    float low = 0, high = 0;
    meter.call("tavsMinMax_32f", tavsMinMax_32f, sound.samples.data() + at, moment, &low, &high);
    for (float level : {low, high}) curve.x.push_back(static_cast<double>(at) / sound.rate), curve.y.push_back(level);
  }
  return {title, {"Time (s)", 0, sound.seconds()}, {"Level (full scale = 1)", -1, 1}, {curve}, {}};
}

void run(char** names) {
  Meter       meter;
  const Sound dry    = with_margins(read_sound(names[0]), meter);
  const Sound behind = echoes(dry, {0.28, 0.5F}, meter);
  const Sound front  = echoes_in_front(dry, {0.19, 0.45F}, meter);

  Sound mix = dry;
  for (const Sound* part : {&behind, &front})
    meter.call("tavsAdd_32f_I", tavsAdd_32f_I, part->samples.data(), mix.samples.data(), mix.size());
  keep_from_clipping(mix, meter);

  write_sound(names[1], mix);
  plot(names[2], {wave("The recording", dry, meter), wave("With echoes in front and behind", mix, meter)});
  std::printf("echo: behind each word, and in front of it\n");
  meter.print(mix.seconds());
  std::printf("  wrote %s and %s\n", names[1], names[2]);
}

}  // namespace

int main(int argc, char** argv) { return example("echo", "in.wav out.wav out.png", argc, argv, run); }
