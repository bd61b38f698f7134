// The melody of a voice:   pitch in.wav out.png
// Each frame's autocorrelation, by way of its power spectrum, has its highest peak at the period of the voice.
#include <cmath>
#include <cstdio>

#include "audio.h"
#include "design.h"
#include "plot.h"

namespace {

constexpr double lowest = 70, highest = 400;  // Hz
constexpr double frame_seconds = 0.04, step_seconds = 0.01;
constexpr double clear   = 0.5;   // of the frame's energy comes back after a period, or there is no pitch
constexpr double audible = 0.01;  // of full scale

class Pitch {
 public:
  Pitch(int rate, Meter& meter) : rate_(rate), length_(static_cast<int>(frame_seconds * rate)), meter_(meter) {
    while ((1 << order_) < 2 * length_) ++order_;  // as much silence as sound, so that nothing wraps round
    meter.call("tavsFFTInitAlloc_R_32f", tavsFFTInitAlloc_R_32f, &context_, order_, int{fftScaleInverse}, 0);
    frame_.resize(size() + 2), power_.resize(size() / 2 + 1), zeros_.resize(size() / 2 + 1);
  }
  ~Pitch() { tavsFFTFree_R_32f(context_); }
  Pitch(const Pitch&)            = delete;
  Pitch& operator=(const Pitch&) = delete;

  int length() const { return length_; }

  // In Hz; NaN where there is none.
  double of(const float* samples) {
    autocorrelate(samples);
    const int    first = static_cast<int>(rate_ / highest), last = static_cast<int>(rate_ / lowest);
    const double energy = frame_[0];
    if (energy < audible * audible * length_) return NAN;
    for (int lag = first; lag <= last; ++lag)
      frame_[lag] *= static_cast<float>(length_) / (length_ - lag);  // overlap less

    float peak = 0;
    int   at   = 0;
    meter_.call("tavsMaxIndx_32f", tavsMaxIndx_32f, frame_.data() + first, last - first + 1, &peak, &at);
    return peak < clear * energy ? NAN : rate_ / refined(first + at);
  }

 private:
  int size() const { return 1 << order_; }

  void autocorrelate(const float* samples) {
    const auto bins = reinterpret_cast<Tav32fc*>(frame_.data());
    const int  n    = size() / 2 + 1;
    meter_.call("tavsZero_32f", tavsZero_32f, frame_.data(), size());
    meter_.call("tavsCopy_32f", tavsCopy_32f, samples, frame_.data(), length_);
    meter_.call("tavsFFTFwd_RToCCS_32f_I", tavsFFTFwd_RToCCS_32f_I, frame_.data(), context_, nullptr);
    meter_.call("tavsPowerSpectr_32fc", tavsPowerSpectr_32fc, bins, power_.data(), n);
    meter_.call("tavsRealToCplx_32f", tavsRealToCplx_32f, power_.data(), zeros_.data(), bins, n);
    meter_.call("tavsFFTInv_CCSToR_32f_I", tavsFFTInv_CCSToR_32f_I, frame_.data(), context_, nullptr);
  }

  // The peak of a parabola through a point and its neighbours.
  double refined(int at) const {
    const double left = frame_[at - 1], middle = frame_[at], right = frame_[at + 1], bend = left - 2 * middle + right;
    return bend < 0 ? at + 0.5 * (left - right) / bend : at;
  }

  int                rate_, length_, order_ = 4;
  Meter&             meter_;
  FftContext_R_32f*  context_ = nullptr;
  std::vector<float> frame_, power_, zeros_;
};

void run(char** names) {
  Meter              meter;
  const Sound        sound = read_sound(names[0]);
  Pitch              pitch(sound.rate, meter);
  Curve              melody{"", {}, {}, "points pt 7 ps 0.7"}, level{"", {}, {}};
  std::vector<float> found;

  for (int i = 0; static_cast<int>(i * step_seconds * sound.rate) + pitch.length() <= sound.size(); ++i) {
    const float* const samples = sound.samples.data() + static_cast<int>(i * step_seconds * sound.rate);
    const double       time = i * step_seconds + frame_seconds / 2, hertz = pitch.of(samples);
    float              energy = 0;
    meter.call("tavsNorm_L2_32f", tavsNorm_L2_32f, samples, pitch.length(), &energy);
    melody.x.push_back(time), melody.y.push_back(hertz);
    level.x.push_back(time), level.y.push_back(decibels(energy / std::sqrt(pitch.length())));
    if (!std::isnan(hertz)) found.push_back(static_cast<float>(hertz));
  }

  std::printf("pitch: %zu of %zu frames have one", found.size(), melody.x.size());
  if (!found.empty()) {
    const int n = static_cast<int>(found.size());
    meter.call("tavsSortAscend_32f_I", tavsSortAscend_32f_I, found.data(), n);
    std::printf(", half of them from %.0f to %.0f Hz", found[n / 4], found[n * 3 / 4]);
  }
  std::printf("\n");
  plot(names[1],
       {{"The pitch of the voice", {"Time (s)", 0, sound.seconds()}, {"Pitch (Hz)", 0, highest}, {melody}, {}},
        {"Its level", {"Time (s)", 0, sound.seconds()}, {"Level (dB of full scale)", -100, 0}, {level}, {}}});
  meter.print(sound.seconds());
  std::printf("  wrote %s\n", names[1]);
}

}  // namespace

int main(int argc, char** argv) { return example("pitch", "in.wav out.png", argc, argv, run); }
