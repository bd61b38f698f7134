// How integer records filter blocks and single samples.
#pragma once
#include "filter/fir/word_kernel.h"
#include "filter/fir/word_record.h"
#include "filter/fir/word_stage.h"
#include "vector/byte_engine.h"

namespace tav::TAV_VARIANT::fir {

// y[i] for i from 0 to n - 1 from x, whose first sample meets the first tap of the list.
template <class Tap, class D>
void run_words(const word_record<Tap, D>& r, const D* x, D* y, size_t n, const word_stage& stage) {
  constexpr size_t outputs = word_steps<D>::outputs;
  const size_t     steps   = step_count(r);
  if (n < outputs) {
    for (size_t i = 0; i < n; ++i) stage.put(one_sum(x + i, r.list, steps), y + i);
    return;
  }
  const auto done = [&stage](D* to) {
    return [&stage, to](size_t i, __m128i low, __m128i high) {
      store<access::unaligned>(to + i, stage.words(low, high));
    };
  };
  run_groups(x, r.list, steps, n, done(y));
  const size_t last = n - outputs;  // the group that ends with the last output overlaps the one before
  if (n % outputs != 0) run_groups(x + last, r.list, steps, outputs, done(y + last));
}

// The last N samples up to `end` become the delay line.
template <class Tap, class D> void remember_words(word_record<Tap, D>& r, const D* end) {
  r.delay.start = 0;
  shared::move_bytes(end - r.taps_len, r.delay.ring, size_t(r.taps_len) * sizeof(D));
}

// src and dst lie apart. Only the first outputs read the delay line, which has room for their samples behind it.
template <class Tap, class D>
void filter_words(word_record<Tap, D>& r, const D* src, D* dst, size_t len, const word_stage& stage) {
  const size_t n = size_t(r.taps_len), before = step_count(r) * word_steps<D>::taps - 1;
  const size_t stretch = first_stretch<D>(n), first = len < stretch ? len : stretch;
  D* const     fresh = r.delay.window() + n;
  shared::copy_bytes(src, fresh, first * sizeof(D));
  run_words(r, fresh - before, dst, first, stage);
  if (first == len) return remember_words(r, fresh + len);
  remember_words(r, src + len);
  run_words(r, src + first - before, dst + first, len - first, stage);
}

// In pieces whose results wait until their samples have been read.
template <class Tap, class D>
void filter_words_in_place(word_record<Tap, D>& r, D* srcDst, size_t len, const word_stage& stage) {
  constexpr size_t piece = 512;
  D                results[piece];
  for (size_t done = 0; done < len; done += piece) {
    const size_t n = len - done < piece ? len - done : piece;
    filter_words(r, srcDst + done, results, n, stage);
    shared::copy_bytes(results, srcDst + done, n * sizeof(D));
  }
}

template <class Tap, class D> void filter_word(word_record<Tap, D>& r, D val, D* dst, const word_stage& stage) {
  r.delay.push(val);
  const size_t steps = step_count(r);
  stage.put(one_sum(r.delay.window() + r.taps_len - steps * word_steps<D>::taps, r.list, steps), dst);
}

}  // namespace tav::TAV_VARIANT::fir
