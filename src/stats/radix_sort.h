// Sorting words by their digits, from the lowest to the highest, between the array and a buffer.
//
// Words that are equal are so bit for bit, and nobody can tell in which order they end. So they need no mapping to
// keys: all passes but the last sort the raw bits upward, and the last one puts each half of its buckets where the
// order wants it, and fills them from the end where the words must fall.
#pragma once
#include "frame/bind.h"
#include "stats/radix_digits.h"
#include "stats/radix_order.h"
#include "vector/byte_engine.h"

namespace tav::TAV_VARIANT {

inline constexpr uint32_t upward = 1, downward = uint32_t(-1);

// How the places of the highest digit's buckets move on: alike in both halves, or not.
struct alike_in_both_halves {
  uint32_t step;

  uint32_t operator()(uint32_t) const { return step; }
};

template <int Half> struct otherwise_in_upper_half {
  uint32_t lower;

  uint32_t operator()(uint32_t digit) const { return lower ^ ((upward ^ downward) & (0 - digit / Half)); }
};

template <class Digits, class Word> class radix_sorter {
 public:
  radix_sorter(Word* srcDst, Word* tmp, size_t len) : home_(srcDst), from_(srcDst), to_(tmp), len_(len) {}

  void run(const radix_order& order) {
    count(Digits::each);
    lower_passes(Digits::lower);
    last_pass(order);
    if (from_ != home_) shared::copy_bytes(from_, home_, len_ * sizeof(Word));
  }

 private:
  static constexpr int last = Digits::last, half = Digits::buckets(last) / 2;

  // Only the half of a long word that holds the digit is looked at.
  template <int K> static uint32_t digit(const Word* p) {
    using part = std::conditional_t<(sizeof(Word) > 4), uint32_t, Word>;
    return Digits::template of<K>(peek(reinterpret_cast<const part*>(p) + Digits::shift(K) / 32));
  }

  template <int K> uint32_t* counters() { return counters_.template of_digit<K>(); }

  template <int... K> TAV_INLINE void count(std::integer_sequence<int, K...>) {
    const Word* const from = from_;
    for (size_t i = 0, len = len_; i < len; ++i) (void(++counters<K>()[digit<K>(from + i)]), ...);
  }

  // Whether a digit is the same everywhere, so that its pass has nothing to do.
  template <int K> bool all_alike() { return counters<K>()[digit<K>(from_)] == len_; }

  template <int K, class Step> TAV_INLINE void pass(Step step) {
    const auto read = [from = from_](size_t i) {
      if constexpr (sizeof(Word) == 8)
        return digit_and_value<__m128i>{digit<K>(from + i), load_low<8>(from + i)};
      else
        return digit_and_value<Word>{digit<K>(from + i), peek(from + i)};
    };
    const auto put = [to = to_](uint32_t place, auto value) {
      if constexpr (sizeof(Word) == 8)
        _mm_storel_epi64(reinterpret_cast<__m128i*>(to + place), value);
      else
        poke(to + place, value);
    };
    scatter(len_, counters<K>(), read, put, step);
    std::swap(from_, to_);
  }

  template <int K> TAV_INLINE void lower_pass() {
    if (all_alike<K>()) return;
    counts_to_places(counters<K>(), Digits::buckets(K), 0);
    pass<K>(forwards{});
  }
  template <int... K> TAV_INLINE void lower_passes(std::integer_sequence<int, K...>) { (lower_pass<K>(), ...); }

  TAV_INLINE void last_pass(const radix_order& order) {
    uint32_t* const counts = counters<last>();
    if (all_alike<last>()) {
      if (digit<last>(from_) < half ? order.lower_falls : order.upper_falls) reverse();
      return;
    }
    const uint32_t upper = total_count(counts + half, half), lower = uint32_t(len_) - upper;
    to_places(counts, order.upper_first ? upper : 0, lower, order.lower_falls);
    to_places(counts + half, order.upper_first ? 0 : lower, upper, order.upper_falls);
    const uint32_t step = order.lower_falls ? downward : upward;
    if (order.lower_falls == order.upper_falls)
      pass<last>(alike_in_both_halves{step});
    else
      pass<last>(otherwise_in_upper_half<half>{step});
  }

  // The places of the buckets of a half, which go to `count` elements from `first` on.
  static void to_places(uint32_t* counts, uint32_t first, uint32_t count, bool falls) {
    if (falls)
      counts_to_places<-1>(counts, half, first + count - 1);
    else
      counts_to_places(counts, half, first);
  }

  void reverse() {
    const int len = int(len_);
    if constexpr (sizeof(Word) == 8)
      forward<&::tavsFlip_64f>(reinterpret_cast<const Tav64f*>(from_), reinterpret_cast<Tav64f*>(home_), len);
    else if constexpr (sizeof(Word) == 4)
      forward<&::tavsFlip_32f>(reinterpret_cast<const Tav32f*>(from_), reinterpret_cast<Tav32f*>(home_), len);
    else
      forward<&::tavsFlip_16u>(from_, home_, len);
    from_ = home_;
  }

  Word *                  home_, *from_, *to_;
  size_t                  len_;
  bucket_counters<Digits> counters_;
};

// One body for all orders of a word.
template <class Word>
__attribute__((noinline)) void sort_words(Word* srcDst, Word* tmp, size_t len, radix_order order) {
  constexpr lengths wide{.from = 1000, .to = size_t(1) << 19};
  with_digits<sizeof(Word)>(len, wide,
                            [=]<class Digits>(Digits) { radix_sorter<Digits, Word>(srcDst, tmp, len).run(order); });
}

}  // namespace tav::TAV_VARIANT
