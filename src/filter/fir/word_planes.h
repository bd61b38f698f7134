// The sums of the Direct calls with taps in integers: products and sums in 32 bits that wrap.
//
// A tap of 32 bits is 2^16 times one word, its high one, and another that has a sign; each has a run of the kernel.
// Taps that are words themselves need the low one only.
#pragma once
#include "filter/fir/callers_line.h"
#include "filter/fir/word_kernel.h"

namespace tav::TAV_VARIANT::fir {

template <class Tap, class Data> class word_planes {
 public:
  static constexpr size_t at_once = 128;
  using sum                       = std::conditional_t<is_complex<Data>, Tav32sc, Tav32s>;

  void run(const joined_signal<Data>& x, const Tap* taps, size_t taps_len, size_t n) {
    const size_t whole = (n + steps::outputs - 1) / steps::outputs * steps::outputs;
    shared::zero_bytes(low_, whole * sizeof(sum));
    shared::zero_bytes(high_, whole * sizeof(sum));
    for (size_t done = 0; done < taps_len; done += panel) {
      const size_t count = taps_len - done < panel ? taps_len - done : panel, samples = count + n - 1;
      split(taps + (taps_len - 1 - done), count);
      x.read(done, samples, samples_);
      shared::zero_bytes(samples_ + samples, steps::outputs * sizeof(Data));  // what the last registers read too much
      const size_t in_steps = (count + steps::taps - 1) / steps::taps;
      add(low_list_, in_steps, low_, whole);
      if (has_high_) add(high_list_, in_steps, high_, whole);
    }
    join(whole);
  }
  const sum* sums() const { return low_; }

  static sum newest(const Data* window, const Tap* taps, size_t taps_len) {
    uint32_t re = 0, im = 0;
    for (size_t i = 0; i < taps_len; ++i) {
      const Tap  h = peek(taps + (taps_len - 1 - i));
      const Data x = peek(window + i);
      if constexpr (is_complex<Data>) {
        re += uint32_t(h.re) * uint32_t(x.re) - uint32_t(h.im) * uint32_t(x.im);
        im += uint32_t(h.re) * uint32_t(x.im) + uint32_t(h.im) * uint32_t(x.re);
      } else {
        re += uint32_t(h) * uint32_t(x);
      }
    }
    if constexpr (is_complex<Data>)
      return {Tav32s(re), Tav32s(im)};
    else
      return Tav32s(re);
  }

 private:
  using steps                   = word_steps<Data>;
  static constexpr size_t panel = 256;  // a multiple of what a step takes

  // The taps of the panel from the oldest sample on, whose tap is h[0], before it h[-1] ...
  void split(const Tap* h, size_t count) {
    has_high_ = false;
    for (size_t i = 0; i < count; ++i) {
      const Tap tap = peek(h - i);
      if constexpr (is_complex<Data>) {
        const uint32_t re = uint32_t(tap.re), im = uint32_t(tap.im);
        put(4 * i, re), put(4 * i + 1, 0 - im), put(4 * i + 2, im), put(4 * i + 3, re);
      } else {
        put(i, uint32_t(tap));
      }
    }
    if constexpr (!is_complex<Data>)
      if (count % 2 != 0) put(count, 0);
  }
  void put(size_t i, uint32_t tap) {
    low_list_[i]  = Tav16s(tap);
    high_list_[i] = Tav16s((tap - uint32_t(low_list_[i])) >> 16);
    has_high_ |= high_list_[i] != 0;
  }

  void add(const Tav16s* list, size_t in_steps, sum* sums, size_t n) const {
    run_groups(samples_, list, in_steps, n, [&](size_t i, __m128i low, __m128i high) {
      Tav32s* const at = parts_of(sums + i);
      store<access::aligned>(at, _mm_add_epi32(load<access::aligned, 4>(at), low));
      store<access::aligned>(at + 4, _mm_add_epi32(load<access::aligned, 4>(at + 4), high));
    });
  }
  void join(size_t n) {
    Tav32s *const low = parts_of(low_), *const high = parts_of(high_);
    for (size_t i = 0; i < n * parts<sum>; i += 4) {
      const __m128i shifted = _mm_slli_epi32(load<access::aligned, 4>(high + i), 16);
      store<access::aligned>(low + i, _mm_add_epi32(load<access::aligned, 4>(low + i), shifted));
    }
  }

  alignas(16) sum low_[at_once];
  alignas(16) sum high_[at_once];
  alignas(16) Tav16s low_list_[panel * steps::words / steps::taps];
  alignas(16) Tav16s high_list_[panel * steps::words / steps::taps];
  Data samples_[panel + at_once + steps::outputs];
  bool has_high_;
};

}  // namespace tav::TAV_VARIANT::fir
