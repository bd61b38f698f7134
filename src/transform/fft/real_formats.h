// The packed forms as the real transforms use them: what it takes to go from Perm order, which a transform works in, to
// each of them, and back.
#pragma once
#include "transform/fft/packed_formats.h"

namespace tav::TAV_VARIANT::fft {

// A spectrum is read where it stands, wherever its pairs begin; `moves` says that this is not where Perm has them.
struct perm : packed::perm_format {
  static constexpr bool          moves = false;
  template <class T> static void from_perm(T*, size_t) {}
};

struct pack : packed::pack_format {
  static constexpr bool          moves = true;
  template <class T> static void from_perm(T* x, size_t n) {
    if (n <= 2) return;
    const T last = peek(x + 1);
    __builtin_memmove(x + 1, x + 2, (n - 2) * sizeof(T));
    poke(x + n - 1, last);
  }
  template <class T> static void to_perm(T* x, size_t n) {
    if (n <= 2) return;
    const T last = peek(x + n - 1);
    __builtin_memmove(x + 2, x + 1, (n - 2) * sizeof(T));
    poke(x + 1, last);
  }
};

struct ccs : packed::ccs_format {
  static constexpr bool          moves = false;
  template <class T> static void from_perm(T* x, size_t n) {
    if (n > 1) {
      poke(x + n, peek(x + 1));
      poke(x + n + 1, T(0));
    }
    poke(x + 1, T(0));
  }
};

}  // namespace tav::TAV_VARIANT::fft
