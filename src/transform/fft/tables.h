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

  // exp(-2 pi i power k / 2^order) for L neighbouring k: the cosines, then the negated sines.
  void put(int order, size_t k, int power) {
    for (int l = 0; l < lanes<T>; ++l) *at_++ = cosine(order, (k + l) * power);
    for (int l = 0; l < lanes<T>; ++l) *at_++ = negative_sine(order, (k + l) * power);
  }

  // The same for one k.
  void put_one(int order, size_t k) {
    *at_++ = cosine(order, k);
    *at_++ = negative_sine(order, k);
  }

  // For L neighbouring k the factor of a real transform's recombination: forward -i/2 exp(-2 pi i k / 2^order), moved
  // by `offset`, inverse i exp(2 pi i k / 2^order).
  void put_forward(int order, size_t k, T offset) {
    for (int l = 0; l < lanes<T>; ++l) *at_++ = offset + T(0.5) * negative_sine(order, k + l);
    for (int l = 0; l < lanes<T>; ++l) *at_++ = T(-0.5) * cosine(order, k + l);
  }
  void put_inverse(int order, size_t k) {
    for (int l = 0; l < lanes<T>; ++l) *at_++ = negative_sine(order, k + l);
    for (int l = 0; l < lanes<T>; ++l) *at_++ = cosine(order, k + l);
  }

  T* at() const { return at_; }

 private:
  T*                     at_;
  const quarter_wave<T>& wave_;

  // Of 2 pi k / 2^order. They are the wave a quarter and half a turn on.
  T cosine(int order, size_t k) const { return value(order, k, 1); }
  T negative_sine(int order, size_t k) const { return value(order, k, 2); }
  T value(int order, size_t k, int quarters) const {
    return wave_.sine((k << (wave_.order - order)) + (size_t(quarters) << (wave_.order - 2)));
  }
};

}  // namespace tav::TAV_VARIANT::fft
