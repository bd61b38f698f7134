// The delay line of the Direct calls, which is the caller's: a ring of N samples that is written twice, 2 N entries in
// all, and the index of the place where the next sample goes.
#pragma once
#include "filter/fir/convert.h"

namespace tav::TAV_VARIANT::fir {

template <class D> class callers_line {
 public:
  callers_line(D* ring, const int* index, size_t len) : ring_(ring), len_(len), next_(size_t(peek(index))) {}

  int      index() const { return int(next_); }
  size_t   window_start() const { return next_ + 1 == len_ ? 0 : next_ + 1; }  // once the next sample is there
  const D* window() const { return ring_ + window_start(); }

  // As one by one. Of more samples than the ring has places the last ones stay.
  void push(const D* src, size_t n) {
    if (n > len_) {
      src += n - len_;
      next_ = (next_ + n - len_) % len_;
      n     = len_;
    }
    while (n != 0) {
      const size_t piece = n < len_ - next_ ? n : len_ - next_;
      shared::copy_bytes(src, ring_ + next_, piece * sizeof(D));
      shared::copy_bytes(src, ring_ + next_ + len_, piece * sizeof(D));
      next_ = next_ + piece == len_ ? 0 : next_ + piece;
      src += piece, n -= piece;
    }
  }
  void push(D val) {
    poke(ring_ + next_, val);
    poke(ring_ + next_ + len_, val);
    next_ = window_start();
  }

 private:
  D*     ring_;
  size_t len_, next_;
};

// What a block filters: the samples that were before, then its own.
template <class D> struct joined_signal {
  const D* past;
  size_t   past_len;
  const D* fresh;

  // Samples [from, from + n), n not 0, as T.
  template <class T> void read(size_t from, size_t n, T* out) const {
    if (from < past_len) {
      const size_t piece = n < past_len - from ? n : past_len - from;
      widen(past + from, out, piece);
      if (piece == n) return;
      from += piece, out += piece, n -= piece;
    }
    widen(fresh + (from - past_len), out, n);
  }
};

}  // namespace tav::TAV_VARIANT::fir
