// How float records filter a block: directly, or long blocks through transforms, piece by piece (overlap-save).
#pragma once
#include "filter/fir/convert.h"
#include "filter/fir/kernels.h"
#include "filter/fir/product.h"
#include "filter/fir/taps.h"

namespace tav::TAV_VARIANT::fir {

template <class T> TAV_INLINE void copy_samples(const T* src, T* dst, size_t n) {
  shared::copy_bytes(src, dst, n * sizeof(T));
}

// The last N samples up to `end` become the delay line.
template <class T> void remember(float_record<T>& r, const T* end) {
  r.delay.start = 0;
  shared::move_bytes(end - r.taps_len, r.delay.ring, size_t(r.taps_len) * sizeof(T));
}

// src and dst lie apart. Only the first outputs read the delay line, which has room behind it for as many samples and
// one more.
template <class T> void filter_directly(float_record<T>& r, const T* src, T* dst, size_t len) {
  const size_t n = size_t(r.taps_len), first = (n + 3) & ~size_t(3), room = first + 1;
  T* const     history = r.delay.window() + 1;
  if (len <= room) {
    copy_samples(src, history + n - 1, len);
    run_taps(r, history, dst, len);
    remember(r, history + n - 1 + len);
    return;
  }
  copy_samples(src, history + n - 1, first);
  run_taps(r, history, dst, first);
  remember(r, src + len);
  run_taps(r, src + first + 1 - n, dst + first, len - first);
}

// The next samples behind those of the delay line, and zeros to the end of the block.
template <class T, class S> void fill_block(float_record<T>& r, const S* src, size_t n) {
  const size_t history = size_t(r.taps_len) - 1, filled = history + n;
  copy_samples(r.delay.window() + 1, r.block, history);
  widen(src, r.block + history, n);
  remember(r, r.block + filled);
  shared::zero_bytes(r.block + filled, (size_t(r.fft_points) - filled) * sizeof(T));
}

// From `input`, which may be the block, to the block.
template <class T> TavStatus filter_block(const float_record<T>& r, const T* input) {
  const auto* const context = context_of(r);
  if (const TavStatus bad = transform<T>::forward(input, r.block, context, r.fft_work)) return bad;
  multiply_spectra(r.block, r.spectrum, size_t(r.fft_points));
  return transform<T>::inverse(r.block, r.block, context, r.fft_work);
}

// src may be dst. Blocks that need no conversion are read where they stand, but for the first, which begins in the
// delay line, and the last, which ends with zeros.
template <class T, class S, class D, class Output>
TavStatus filter_by_transforms(float_record<T>& r, const S* src, D* dst, size_t len, const Output& output) {
  const size_t history = size_t(r.taps_len) - 1, fresh = size_t(r.fft_points) - history;
  const bool   apart = static_cast<const void*>(src) != dst;
  for (size_t done = 0; done < len;) {
    const size_t n     = len - done < fresh ? len - done : fresh;
    const T*     input = nullptr;
    if constexpr (std::is_same_v<S, T>)
      if (apart && done != 0 && n == fresh) remember(r, src + done + n), input = src + done - history;
    if (!input) fill_block(r, src + done, n), input = r.block;
    if (const TavStatus bad = filter_block(r, input)) return bad;
    output(r.block + history, dst + done, n);
    done += n;
  }
  return tavStatusOk;
}

inline constexpr size_t in_place_samples = scratch_samples, stretch_samples = scratch_samples / 2;

// With results by way of the scratch area. Transforms only run where as many samples are left behind a piece, so that
// calls of one piece never use them.
template <class T> TavStatus filter_in_place(float_record<T>& r, T* srcDst, size_t len) {
  constexpr size_t from = transform<T>::samples_from;
  size_t           done = 0;
  if (r.fft_points != 0 && len >= in_place_samples + from) {
    done = (len - from) / in_place_samples * in_place_samples;
    if (const TavStatus bad = filter_by_transforms(r, srcDst, srcDst, done, unscaled{})) return bad;
  }
  while (done < len) {
    const size_t n = len - done < in_place_samples ? len - done : in_place_samples;
    filter_directly(r, srcDst + done, r.scratch, n);
    copy_samples(r.scratch, srcDst + done, n);
    done += n;
  }
  return tavStatusOk;
}

// Converted on the way in and out, so that src may be dst.
template <class T, class S, class D, class Output>
void filter_in_stretches(float_record<T>& r, const S* src, D* dst, size_t len, const Output& output) {
  T* const results = r.scratch + stretch_samples;
  for (size_t done = 0; done < len;) {
    const size_t n = len - done < stretch_samples ? len - done : stretch_samples;
    widen(src + done, r.scratch, n);
    filter_directly(r, r.scratch, results, n);
    output(results, dst + done, n);
    done += n;
  }
}

template <class T, class D, class Output>
TavStatus filter(float_record<T>& r, const D* src, D* dst, size_t len, const Output& output) {
  constexpr bool converts = !std::is_same_v<T, D>;
  if constexpr (!converts)
    if (src == dst) return filter_in_place(r, dst, len);
  if (r.fft_points != 0 && len >= transform<T>::samples_from) return filter_by_transforms(r, src, dst, len, output);
  if constexpr (converts)
    filter_in_stretches(r, src, dst, len, output);
  else
    filter_directly(r, src, dst, len);
  return tavStatusOk;
}

}  // namespace tav::TAV_VARIANT::fir
