// The three formats of a real signal's spectrum, N = 2^order, by slots:
//
//   Perm   X[0], X[N/2], then X[1] ... X[N/2-1] as pairs
//   Pack   X[0], then X[1] ... X[N/2-1] as pairs, X[N/2]
//   CCS    X[0] ... X[N/2] as pairs, the parts that are zero written too: N + 2 slots
#pragma once
#include "frame/registers.h"

namespace tav::TAV_VARIANT::fft {

// `from_perm` rewrites what a transform has left in Perm order. To be read, a format tells where the middle bin and the
// first pair stand; the one whose pairs stand elsewhere than in Perm can be moved there.
struct perm {
  static constexpr bool          moves      = false;
  static constexpr size_t        first_pair = 2;
  static size_t                  middle(size_t) { return 1; }
  template <class T> static void from_perm(T*, size_t) {}
};

struct pack {
  static constexpr bool          moves      = true;
  static constexpr size_t        first_pair = 1;
  static size_t                  middle(size_t n) { return n - 1; }
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

struct ccs {
  static constexpr bool          moves      = false;
  static constexpr size_t        first_pair = 2;
  static size_t                  middle(size_t n) { return n; }
  template <class T> static void from_perm(T* x, size_t n) {
    if (n > 1) {
      poke(x + n, peek(x + 1));
      poke(x + n + 1, T(0));
    }
    poke(x + 1, T(0));
  }
};

}  // namespace tav::TAV_VARIANT::fft
