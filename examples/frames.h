// A sound in frames that overlap by half, each with its spectrum, and back.
#pragma once

#include "audio.h"

class Frames {
 public:
  // Frames of 2^order samples.
  Frames(int order, Meter& meter);
  ~Frames();
  Frames(const Frames&)            = delete;
  Frames& operator=(const Frames&) = delete;

  int size() const { return 1 << order_; }
  int hop() const { return size() / 2; }
  int bins() const { return size() / 2 + 1; }
  int count(const Sound& sound) const { return std::max(0, sound.size() / hop() - 1); }

  // Bins 0 to N/2 of frame number i, which a Hann window fades in and out. A tone as loud as full scale has 1 in its
  // bin.
  void spectrum(const Sound& sound, int i, Tav32fc* bins);

  // Adds the samples of a spectrum as frame number i. The overlapping windows add up, so nothing else is needed.
  void add(Tav32fc* bins, Sound& sound, int i);

 private:
  int                order_;
  Meter&             meter_;
  FftContext_R_32f*  context_ = nullptr;
  std::vector<float> window_, frame_;
  std::vector<Tav8u> work_;
};

// The magnitudes of all frames, one behind the other, each with all its bins.
std::vector<float> magnitudes(const Sound& sound, Frames& frames, Meter& meter);
