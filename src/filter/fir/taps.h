// The tables of a float record: the taps in the orders that the kernels read, and their spectrum.
#pragma once
#include "filter/fir/layout.h"

namespace tav::TAV_VARIANT::fir {

// Parts of a tap through a register each: for a complex tap the real part, then the imaginary one.
template <class T> inline constexpr int repeated_size = parts<T>* lanes<part<T>>;

template <class T> void repeat_tap(T tap, part<T>* out) {
  for (int l = 0; l < repeated_size<T>; ++l) {
    if constexpr (is_complex<T>)
      out[l] = l < lanes<part<T>> ? tap.re : tap.im;
    else
      out[l] = tap;
  }
}

// Of singles only: four copies of the reversed taps, copy c beginning with c zeros, so that one register of samples
// meets the taps of four neighbouring outputs. Registers of the copies take turns.
inline constexpr int copies = 4;
inline int           registers_in_copy(int taps_len) { return (taps_len + 6) / 4; }

inline void stagger_taps(float_record<Tav32f>& r) {
  const int places = 4 * registers_in_copy(r.taps_len);
  for (int c = 0; c < copies; ++c)
    for (int i = 0; i < places; ++i)
      r.staggered[i / 4 * 4 * copies + 4 * c + i % 4] = i < c || i - c >= r.taps_len ? 0 : r.reversed[i - c];
}

template <class T, class S> void fill_tables(float_record<T>& r, const S* taps) {
  const int n = r.taps_len;
  for (int k = 0; k < n; ++k) {
    const T tap           = converted<T>(peek(taps + k));
    r.reversed[n - 1 - k] = tap;
    repeat_tap(tap, r.repeated + k * repeated_size<T>);
  }
  if constexpr (std::is_same_v<T, Tav32f>) stagger_taps(r);
}

template <class T> const typename transform<T>::context* context_of(const float_record<T>& r) {
  return static_cast<const typename transform<T>::context*>(r.fft);
}

// What the tables hold, padded with zeros and transformed.
template <class T> TavStatus fill_spectrum(float_record<T>& r) {
  const int n = r.taps_len;
  for (int k = 0; k < r.fft_points; ++k) r.spectrum[k] = k < n ? r.reversed[n - 1 - k] : T{};
  return transform<T>::forward(r.spectrum, r.spectrum, context_of(r), r.fft_work);
}

template <class T, class S> TavStatus set_taps(float_record<T>& r, const S* taps) {
  fill_tables(r, taps);
  return r.fft_points == 0 ? tavStatusOk : fill_spectrum(r);
}

}  // namespace tav::TAV_VARIANT::fir
