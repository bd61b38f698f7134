#include "frames.h"

#include "design.h"

Frames::Frames(int order, Meter& meter) : order_(order), meter_(meter), window_(hann(1 << order)), frame_(1 << order) {
  meter.call("tavsFFTInitAlloc_R_32f", tavsFFTInitAlloc_R_32f, &context_, order, int{fftScaleNone}, 0);
  int work_bytes = 0;
  meter.call("tavsFFTGetBufSize_R_32f", tavsFFTGetBufSize_R_32f, context_, &work_bytes);
  work_.resize(work_bytes + 1);
  // Half of the window's sum, so that a tone's bin holds its amplitude.
  meter.call("tavsMulC_32f_I", tavsMulC_32f_I, 4.0F / static_cast<float>(size()), window_.data(), size());
}

Frames::~Frames() { tavsFFTFree_R_32f(context_); }

void Frames::spectrum(const Sound& sound, int i, Tav32fc* bins) {
  meter_.call("tavsMul_32f", tavsMul_32f, sound.samples.data() + i * hop(), window_.data(), frame_.data(), size());
  meter_.call("tavsFFTFwd_RToCCS_32f", tavsFFTFwd_RToCCS_32f, frame_.data(), &bins->re, context_, work_.data());
}

void Frames::add(Tav32fc* bins, Sound& sound, int i) {
  meter_.call("tavsFFTInv_CCSToR_32f", tavsFFTInv_CCSToR_32f, &bins->re, frame_.data(), context_, work_.data());
  // Undoes the factor 4 / N of the window and the transform's N.
  meter_.call("tavsAddProductC_32f", tavsAddProductC_32f, frame_.data(), 0.25F, sound.samples.data() + i * hop(),
              size());
}

std::vector<float> magnitudes(const Sound& sound, Frames& frames, Meter& meter) {
  std::vector<float>   all(static_cast<size_t>(frames.count(sound)) * frames.bins());
  std::vector<Tav32fc> spectrum(frames.bins());
  for (int i = 0; i < frames.count(sound); ++i) {
    frames.spectrum(sound, i, spectrum.data());
    meter.call("tavsMagnitude_32fc", tavsMagnitude_32fc, spectrum.data(), all.data() + i * frames.bins(),
               frames.bins());
  }
  return all;
}
