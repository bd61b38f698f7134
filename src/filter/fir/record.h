// The records of the FIR filters: what all of them begin with, and the one of the filters that compute in floats.
#pragma once
#include "filter/fir/delay_line.h"
#include "frame/record.h"

namespace tav::TAV_VARIANT::fir {

// Free needs no more, so that it serves the records of other families too.
struct head {
  record_id id;
  origin    from;
};

// T is the type of taps, sums and delay line. Everything lies behind the record, in one block with it.
template <class T> struct float_record : head {
  delay_line<T> delay;
  int32_t       taps_len;
  int32_t       fft_points;  // 0: the record has no transform
  T*            reversed;    // the taps, those of the oldest samples first
  part<T>*      repeated;    // h[0], h[1] ..., each part through a whole register
  part<T>*      staggered;   // four copies of the reversed taps, singles only
  void*         fft;         // the transform's context
  T*            spectrum;    // of the taps, padded with zeros
  T*            block;       // fft_points samples on their way through the transforms
  Tav8u*        fft_work;
  T*            scratch;  // scratch_samples of them: conversions, results in place
};

inline constexpr int scratch_samples = 4096;

}  // namespace tav::TAV_VARIANT::fir
