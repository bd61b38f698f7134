// Sorting the positions of keys by the digits of the keys, which stay where they are: fields of records, a number of
// bytes apart. The passes go between two arrays of positions and are stable.
//
// To look a key up by its position is the slow part, and is done in blocks, apart from the sorting. And as soon as the
// bits of a key that have been sorted by make room for a position, the words of the arrays carry both: the rest of the
// key above, the position below.
#pragma once
#include "stats/radix_digits.h"
#include "stats/radix_order.h"

namespace tav::TAV_VARIANT {

// Keys are fetched in blocks: one loop that only loads, then the mapping in vectors.
template <class Word> struct strided_keys {
  static constexpr int    unused = radix_keys<Word>::unused;
  static constexpr size_t block  = 256;

  const char*      src;
  size_t           stride;  // bytes
  radix_keys<Word> key_of;

  // out[i] = the key at position(i), for i below n.
  template <class Position> __attribute__((noinline)) void fetch(size_t n, Position position, uint32_t* out) const {
    const char* const from = src;
    const size_t      step = stride;
    for (size_t i = 0; i < n; ++i)
      out[i] = uint32_t(peek(reinterpret_cast<const Word*>(from + position(i) * step))) << unused;
    for (size_t i = n; i % 4 != 0; ++i) out[i] = 0;
    for (size_t i = 0; i < n; i += 4) store<access::aligned>(out + i, key_of(load<access::aligned, 4>(out + i)));
  }
};

template <class Digits, class Word> class radix_index_sorter {
 public:
  radix_index_sorter(const strided_keys<Word>& keys, int* dst, int* tmp, size_t len)
      : keys_(keys), dst_(dst), tmp_(tmp), len_(len) {}

  // Which array the first pass goes to depends on how many there are, for the last one ends in dst.
  void run() {
    count(Digits::each);
    plan(Digits::each);
    if (left_ == 0)
      for (size_t i = 0; i < len_; ++i) poke(dst_ + i, int(i));
    to_ = left_ % 2 ? dst_ : tmp_;
    passes(Digits::each);
  }

 private:
  static constexpr int unused = strided_keys<Word>::unused;

  template <int K> static uint32_t digit(uint32_t key) { return Digits::template of<K>(key >> unused); }
  template <int K> uint32_t*       counters() { return counters_.template of_digit<K>(); }

  // Calls work(from, n) for blocks of positions.
  template <class Work> TAV_INLINE void in_blocks(const Work& work) {
    constexpr size_t block = strided_keys<Word>::block;
    for (size_t i = 0; i < len_; i += block) work(i, len_ - i < block ? len_ - i : block);
  }

  TAV_INLINE void fetch_in_order(size_t from, size_t n) {
    keys_.fetch(
        n, [from](size_t i) { return from + i; }, block_);
  }

  template <int... K> TAV_INLINE void count(std::integer_sequence<int, K...>) {
    in_blocks([this](size_t from, size_t n) {
      fetch_in_order(from, n);
      for (size_t i = 0; i < n; ++i) {
        const uint32_t key = block_[i];
        (void(++counters<K>()[digit<K>(key)]), ...);
      }
    });
  }

  // A digit that is the same everywhere needs no pass.
  template <int... K> TAV_INLINE void plan(std::integer_sequence<int, K...>) {
    fetch_in_order(0, 1);
    const uint32_t key = block_[0];
    ((needed_[K] = counters<K>()[digit<K>(key)] != len_, left_ += needed_[K]), ...);
  }

  template <int... K> TAV_INLINE void passes(std::integer_sequence<int, K...>) { (pass<K>(), ...); }

  template <int K> TAV_INLINE void pass() {
    if (!needed_[K]) return;
    --left_;
    counts_to_places(counters<K>(), Digits::buckets(K), 0);
    if (carried_ != 0) {
      sort_carried<K>(left_ == 0 ? carried_ : ~uint32_t(0));
    } else {
      constexpr uint32_t sorted = K == Digits::last ? 0 : (uint32_t(1) << (Digits::shift(K + 1) % 32 + unused)) - 1;
      const bool         carry  = left_ != 0 && len_ - 1 <= sorted;
      sort_looked_up<K>(carry ? ~sorted : 0);
      if (carry) carried_ = sorted;
    }
    from_ = to_;
    to_   = to_ == dst_ ? tmp_ : dst_;
  }

  // The words' own upper bits tell the digit; `kept` is what of them goes on.
  template <int K> TAV_INLINE void sort_carried(uint32_t kept) {
    move<K>(len_, [from = from_, kept](size_t i) {
      const uint32_t word = uint32_t(peek(from + i));
      return digit_and_value<uint32_t>{digit<K>(word), word & kept};
    });
  }

  // The first pass takes the positions in their order. Bits of the key in `carried` go along from here.
  template <int K> TAV_INLINE void sort_looked_up(uint32_t carried) {
    const uint32_t* const keys = block_;
    const auto            item = [keys, carried](size_t i, uint32_t position) {
      return digit_and_value<uint32_t>{digit<K>(keys[i]), (keys[i] & carried) | position};
    };
    in_blocks([&](size_t first, size_t n) {
      if (!from_) {
        fetch_in_order(first, n);
        move<K>(n, [=](size_t i) { return item(i, uint32_t(first + i)); });
      } else {
        const auto position = [at = from_ + first](size_t i) { return uint32_t(peek(at + i)); };
        keys_.fetch(n, position, block_);
        move<K>(n, [=](size_t i) { return item(i, position(i)); });
      }
    });
  }

  template <int K, class Read> TAV_INLINE void move(size_t n, const Read& read) {
    scatter(
        n, counters<K>(), read, [to = to_](uint32_t place, uint32_t word) { poke(to + place, int(word)); }, forwards{});
  }

  strided_keys<Word> keys_;
  int *              dst_, *tmp_, *to_ = nullptr;
  const int*         from_ = nullptr;  // none: the positions in their order
  size_t             len_;

  int      left_                   = 0;  // passes
  uint32_t carried_                = 0;  // where the position is in words that carry more, else 0
  bool     needed_[Digits::number] = {};

  alignas(16) uint32_t block_[strided_keys<Word>::block];  // keys
  bucket_counters<Digits> counters_;
};

// One body for all orders of a key.
template <class Word>
__attribute__((noinline)) void sort_positions(const strided_keys<Word>& keys, int* dst, int* tmp, size_t len) {
  constexpr lengths wide{.from = 600, .to = size_t(-1)};  // fewer passes, fewer keys to look up
  with_digits<sizeof(Word)>(len, wide,
                            [=]<class Digits>(Digits) { radix_index_sorter<Digits, Word>(keys, dst, tmp, len).run(); });
}

}  // namespace tav::TAV_VARIANT
