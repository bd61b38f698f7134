// What the radix sorts are made of: how a key is cut into digits, counters for each digit, and the scattering of items
// into the buckets of a digit.
//
// Wide digits take fewer passes, narrow ones fewer counters. Short arrays are sorted by digits of 8 bits, since the
// counters cost more than the passes; very long ones too, since the ends of 2048 buckets do not stay in the cache.
#pragma once
#include <utility>

#include "frame/registers.h"

namespace tav::TAV_VARIANT {

// The widths of a key's digits from the low end. A digit does not cross a boundary of 32 bits.
template <int... Widths> struct digits {
  static constexpr int  number         = sizeof...(Widths);
  static constexpr int  last           = number - 1;
  static constexpr int  widths[number] = {Widths...};
  static constexpr auto each           = std::make_integer_sequence<int, number>{};
  static constexpr auto lower          = std::make_integer_sequence<int, last>{};  // all but the last

  static constexpr int buckets(int k) { return 1 << widths[k]; }

  static constexpr int shift(int k) { return k == 0 ? 0 : shift(k - 1) + widths[k - 1]; }

  static constexpr int counters_before(int k) { return k == 0 ? 0 : counters_before(k - 1) + buckets(k - 1); }

  // Digit k of a key of up to 32 bits, or of the half of a wider one that holds the digit.
  template <int K> static uint32_t of(uint32_t key) { return key >> shift(K) % 32 & (buckets(K) - 1); }
};

// Keys of so many bytes: by digits of 8 bits, and by wide ones.
template <size_t Bytes> struct digits_of_size { using narrow = digits<8>; };

template <> struct digits_of_size<2> { using narrow = digits<8, 8>; };

template <> struct digits_of_size<4> {
  using narrow = digits<8, 8, 8, 8>;
  using wide   = digits<11, 11, 10>;
};

template <> struct digits_of_size<8> {
  using narrow = digits<8, 8, 8, 8, 8, 8, 8, 8>;
  using wide   = digits<11, 11, 10, 11, 11, 10>;
};

struct lengths {
  size_t from, to;
};

// Calls work(digits) with the wide digits for arrays of those lengths, and with the narrow ones for others.
template <size_t Bytes, class Work> TAV_INLINE void with_digits(size_t len, lengths wide, const Work& work) {
  using of_size = digits_of_size<Bytes>;
  if constexpr (Bytes >= 4)
    if (len >= wide.from && len <= wide.to) return work(typename of_size::wide{});
  work(typename of_size::narrow{});
}

// The items of each bucket of each digit, counted first and then turned into places. A place is where the next item of
// the bucket goes.
template <class Digits> class bucket_counters {
 public:
  bucket_counters() {
    for (size_t i = 0; i < total; i += 16)
#pragma GCC unroll 4
      for (size_t k = 0; k < 16; k += 4) store<access::aligned>(all_ + i + k, _mm_setzero_si128());
  }

  template <int K> uint32_t* of_digit() { return all_ + Digits::counters_before(K); }

 private:
  static constexpr size_t total = Digits::counters_before(Digits::number);

  alignas(16) uint32_t all_[total];
};

TAV_INLINE __m128i running_sum(__m128i v) {
  v = _mm_add_epi32(v, _mm_slli_si128(v, 4));
  return _mm_add_epi32(v, _mm_slli_si128(v, 8));
}

// Turns counts into places: the first bucket's is `first`, and each bucket's lies behind those of the buckets before
// it, or, with a Step of -1, in front of them.
template <int Step = 1> TAV_INLINE void counts_to_places(uint32_t* counts, int buckets, uint32_t first) {
  const auto stepped = [](__m128i a, __m128i b) { return Step > 0 ? _mm_add_epi32(a, b) : _mm_sub_epi32(a, b); };
  __m128i    place   = _mm_set1_epi32(int(first));
  for (int i = 0; i < buckets; i += 8) {
    const __m128i low = load<access::aligned, 4>(counts + i), high = load<access::aligned, 4>(counts + i + 4);
    const __m128i low_sum = running_sum(low), high_sum = running_sum(high);
    const __m128i low_total = _mm_shuffle_epi32(low_sum, 0xFF), high_total = _mm_shuffle_epi32(high_sum, 0xFF);
    const __m128i before_high = _mm_add_epi32(_mm_sub_epi32(high_sum, high), low_total);
    store<access::aligned>(counts + i, stepped(place, _mm_sub_epi32(low_sum, low)));
    store<access::aligned>(counts + i + 4, stepped(place, before_high));
    place = stepped(place, _mm_add_epi32(low_total, high_total));
  }
}

TAV_INLINE uint32_t total_count(const uint32_t* counts, int buckets) {
  __m128i sum = _mm_setzero_si128();
  for (int i = 0; i < buckets; i += 4) sum = _mm_add_epi32(sum, load<access::aligned, 4>(counts + i));
  return uint32_t(_mm_cvtsi128_si32(_mm_shuffle_epi32(running_sum(sum), 0xFF)));
}

// What a pass moves, and the digit it goes by.
template <class V> struct digit_and_value {
  uint32_t digit;
  V        value;
};

struct forwards {
  uint32_t operator()(uint32_t) const { return 1; }
};

// Puts the items read(0) to read(len - 1) into their buckets; put(place, value) stores one. A bucket's place then moves
// on by step(digit). Never inlined, since the loop needs all the registers there are. Where there are enough, several
// items are read before the first is stored: equal digits wait for one another's counter, and the reads need not.
template <class Read, class Put, class Step>
__attribute__((noinline)) void scatter(size_t len, uint32_t* places, Read read, Put put, Step step) {
  constexpr size_t batch          = 4;
  constexpr bool   many_registers = sizeof(void*) == 8;

  const auto place = [&](auto item) {
    const uint32_t p   = places[item.digit];
    places[item.digit] = p + step(item.digit);
    put(p, item.value);
  };
  size_t i = 0;
  if constexpr (many_registers)
    for (; len - i >= batch; i += batch) {
      const auto a = read(i), b = read(i + 1), c = read(i + 2), d = read(i + 3);
      place(a), place(b), place(c), place(d);
    }
  for (; i < len; ++i) place(read(i));
}

}  // namespace tav::TAV_VARIANT
