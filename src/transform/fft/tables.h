// The twiddle tables of a record, and how they are filled from a quarter wave of sines. Each value is a sine of the
// table or its negation.
#pragma once
#include "frame/registers.h"
#include "transform/fft/sine.h"

namespace tav::TAV_VARIANT::fft {

// The tables of a complex transform. Orders from columns_from up have column tables, one behind the other, the longest
// first; the stages are those of the length that is left.
template <class T> struct fft_tables {
  const T *stages, *columns;
  int      columns_from;

  fft_tables inner(int order) const { return {stages, columns + (size_t(1) << order) / 2, columns_from}; }
};

// Writes twiddles in the order in which the butterflies read them.
template <class T> class twiddle_writer {
 public:
  twiddle_writer(T* at, const quarter_wave<T>& wave) : at_(at), wave_(wave) {}

  // exp(-2 pi i power k / 2^order) for L neighbouring k: the cosines, then the negated sines, which are the sines a
  // quarter and half a turn on.
  void put(int order, size_t k, int power) {
    const int    shift = wave_.order - order;
    const size_t turn  = size_t(1) << wave_.order;
    for (int part = 0; part < 2; ++part)
      for (int l = 0; l < lanes<T>; ++l) *at_++ = wave_.sine((((k + l) * power << shift) + turn / 4 * (1 + part)));
  }

  T* at() const { return at_; }

 private:
  T*                     at_;
  const quarter_wave<T>& wave_;
};

}  // namespace tav::TAV_VARIANT::fft
