// Quarter waves of sines: T[i] = sin(2 pi i / 2^order) for i = 0 ... 2^order / 4, from which all twiddles are taken.
//
// The wave of order 10 is constant data and serves all smaller orders; longer ones are computed at set-up. All values
// are rounded once, to nearest, whatever the caller's mode.
#pragma once
#include <stddef.h>

#include "tavs.h"

namespace tav {

inline constexpr int constant_wave_order = 10;

extern const Tav32f sineTable10_32f[257];
extern const Tav64f sineTable10_64f[257];
extern const Tav16s sineTable10_16s[257];  // Q14

template <class T> const T*      constant_wave();
template <> inline const Tav32f* constant_wave<Tav32f>() { return sineTable10_32f; }
template <> inline const Tav64f* constant_wave<Tav64f>() { return sineTable10_64f; }

// Writes 2^order / 4 + 1 values.
void fill_quarter_wave(Tav32f* table, int order);
void fill_quarter_wave(Tav64f* table, int order);

template <class T> struct quarter_wave {
  const T* table;
  int      order;

  // sin(2 pi i / 2^order), for any i.
  T sine(size_t i) const {
    const size_t quarter = size_t(1) << (order - 2);
    i &= 4 * quarter - 1;
    const bool negative = i >= 2 * quarter;
    if (negative) i -= 2 * quarter;
    const T value = table[i <= quarter ? i : 2 * quarter - i];
    return negative ? -value : value;
  }
};

}  // namespace tav
