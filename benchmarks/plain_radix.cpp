#include "plain_radix.h"

#include <stdint.h>
#include <string.h>

#include <type_traits>
#include <utility>

namespace plain {
namespace {

template <class T>
using word_of = std::conditional_t<sizeof(T) == 2, uint16_t, std::conditional_t<sizeof(T) == 4, uint32_t, uint64_t>>;

template <class T> struct traits {
  using word                   = word_of<T>;
  static constexpr int  bits   = 8 * sizeof(T);
  static constexpr int  digit  = bits == 16 ? 8 : 11;
  static constexpr int  passes = (bits + digit - 1) / digit;
  static constexpr word top    = word(word(1) << (bits - 1));
  static constexpr word mask   = (1 << digit) - 1;

  static word to_key(word w) {
    if constexpr (std::is_floating_point_v<T>)
      return w ^ (w & top ? word(~word(0)) : top);
    else
      return std::is_signed_v<T> ? word(w ^ top) : w;
  }
  static word from_key(word k) {
    if constexpr (std::is_floating_point_v<T>)
      return k ^ (k & top ? top : word(~word(0)));
    else
      return to_key(k);
  }
};

template <class T> struct places {
  using t = traits<T>;
  uint32_t of[t::passes][1 << t::digit];

  places() { memset(of, 0, sizeof of); }

  void count(typename t::word key) {
    for (int pass = 0; pass < t::passes; ++pass) ++of[pass][key >> (pass * t::digit) & t::mask];
  }
  void sum_up() {
    for (auto& digit : of) {
      uint32_t sum = 0;
      for (uint32_t& place : digit) {
        const uint32_t n = place;
        place            = sum;
        sum += n;
      }
    }
  }
};

}  // namespace

template <class T> void radix_sort(T* data, T* tmp, int n) {
  using t        = traits<T>;
  using word     = typename t::word;
  word *    from = reinterpret_cast<word*>(data), *to = reinterpret_cast<word*>(tmp);
  places<T> place;
  for (int i = 0; i < n; ++i) place.count(from[i] = t::to_key(from[i]));
  place.sum_up();
  for (int pass = 0; pass + 1 < t::passes; ++pass) {
    for (int i = 0; i < n; ++i) to[place.of[pass][from[i] >> (pass * t::digit) & t::mask]++] = from[i];
    std::swap(from, to);
  }
  constexpr int last = t::passes - 1;
  for (int i = 0; i < n; ++i) to[place.of[last][from[i] >> (last * t::digit) & t::mask]++] = t::from_key(from[i]);
  if (t::passes % 2) memcpy(static_cast<void*>(data), tmp, sizeof(T) * size_t(n));
}

void counting_sort(unsigned char* data, int n) {
  uint32_t counts[256] = {};
  for (int i = 0; i < n; ++i) ++counts[data[i]];
  for (int value = 0; value < 256; ++value) {
    memset(data, value, counts[value]);
    data += counts[value];
  }
}

template <class T> void radix_sort_index(const T* data, int* dst, int* tmp, int n) {
  using t           = traits<T>;
  const auto* words = reinterpret_cast<const typename t::word*>(data);
  places<T>   place;
  for (int i = 0; i < n; ++i) place.count(t::to_key(words[i]));
  place.sum_up();
  int *to = t::passes % 2 ? dst : tmp, *from = t::passes % 2 ? tmp : dst;
  for (int i = 0; i < n; ++i) to[place.of[0][t::to_key(words[i]) & t::mask]++] = i;
  for (int pass = 1; pass < t::passes; ++pass) {
    std::swap(from, to);
    for (int i = 0; i < n; ++i) {
      const int p                                                              = from[i];
      to[place.of[pass][t::to_key(words[p]) >> (pass * t::digit) & t::mask]++] = p;
    }
  }
}

template void radix_sort(int16_t*, int16_t*, int);
template void radix_sort(int32_t*, int32_t*, int);
template void radix_sort(float*, float*, int);
template void radix_sort(double*, double*, int);
template void radix_sort_index(const float*, int*, int*, int);

}  // namespace plain
