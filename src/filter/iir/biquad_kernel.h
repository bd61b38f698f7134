// The kernel of the cascades: sections run over the data four samples at a time, two sections or one section of two
// channels in a pass. A single recursion would wait for its own sums; two keep the processor busy.
#pragma once
#include "filter/iir/biquad_rows.h"
#include "frame/rounding.h"

namespace tav::TAV_VARIANT::iir {

// The last two inputs and outputs of a section, in order.
template <class A> struct section_history { A x[2], y[2]; };

// As the second half of four samples, made without a detour through memory; the first half is never looked at.
template <class A> TAV_INLINE quad<A> as_last(const A (&v)[2]) {
  quad<A> q{};
  if constexpr (std::is_same_v<A, Tav32f>)
    q.r[0] = _mm_setr_ps(0, 0, v[0], v[1]);
  else if constexpr (std::is_same_v<A, Tav32fc>)
    q.r[1] = _mm_setr_ps(v[0].re, v[0].im, v[1].re, v[1].im);
  else if constexpr (std::is_same_v<A, Tav64f>)
    q.r[1] = _mm_setr_pd(v[0], v[1]);
  else
    q.r[2] = _mm_setr_pd(v[0].re, v[0].im), q.r[3] = _mm_setr_pd(v[1].re, v[1].im);
  return q;
}

template <class A> TAV_INLINE void keep_last(A (&to)[2], quad<A> q) {
  alignas(16) A v[look_ahead];
  store_quad(v, q);
  to[0] = v[look_ahead - 2], to[1] = v[look_ahead - 1];
}

// Adds what sample K of four contributes to four outputs. The first row of inputs, or of outputs before, begins a sum.
template <class A, int Row, int K> TAV_INLINE void add_row(quad<A>& sum, const section_rows<A>& rows, quad<A> v) {
  constexpr bool begins = Row == row_x_2 || Row == row_y_2;
  const reg<A>   x[2]   = {all_of<K * parts<A>>(v), all_of<K * parts<A> + parts<A> - 1>(v)};
#pragma GCC unroll 2
  for (int part = 0; part < parts<A>; ++part)
#pragma GCC unroll 4
    for (int q = row_layout<A>::first(Row); q < quad_registers<A>; ++q) {
      const reg<A> product = *reinterpret_cast<const reg<A>*>(rows.at(Row, part, q)) * x[part];
      sum.r[q]             = begins && part == 0 ? product : sum.r[q] + product;
    }
}

// Four outputs. What the inputs contribute does not wait for the outputs before, and stays ahead of them: compiled in
// another order it takes more registers than there are on 32 bits.
template <class A>
TAV_INLINE quad<A> next_four(const section_rows<A>& rows, quad<A> x_before, quad<A> x, quad<A> y_before) {
  quad<A> sum, of_outputs;
  add_row<A, row_x_2, 2>(sum, rows, x_before);
  add_row<A, row_x_1, 3>(sum, rows, x_before);
  add_row<A, row_x0, 0>(sum, rows, x);
  add_row<A, row_x1, 1>(sum, rows, x);
  add_row<A, row_x2, 2>(sum, rows, x);
  add_row<A, row_x3, 3>(sum, rows, x);
#pragma GCC unroll 4
  for (int q = 0; q < quad_registers<A>; ++q) sum.r[q] = held(sum.r[q]);
  add_row<A, row_y_2, 2>(of_outputs, rows, y_before);
  add_row<A, row_y_1, 3>(of_outputs, rows, y_before);
#pragma GCC unroll 4
  for (int q = 0; q < quad_registers<A>; ++q) sum.r[q] += of_outputs.r[q];
  return sum;
}

// Sections of one channel over a stretch of data.
template <class A> struct section_run {
  const A*               taps;
  const section_rows<A>* rows;
  section_history<A>*    history;
  const A*               src;
  A*                     dst;
};

// Whole groups of four. A section's inputs are the outputs of the section before it, so these histories have to agree.
template <class A, int Channels, int Sections>
TAV_INLINE void run_fours(const section_run<A> (&run)[Channels], size_t fours) {
  quad<A> before[Channels][Sections + 1];
  for (int c = 0; c < Channels; ++c) {
    before[c][0] = as_last(run[c].history[0].x);
    for (int s = 0; s < Sections; ++s) before[c][s + 1] = as_last(run[c].history[s].y);
  }
  for (size_t i = 0; i < fours * look_ahead; i += look_ahead)
#pragma GCC unroll 2
    for (int c = 0; c < Channels; ++c) {
      quad<A> v = load_quad(run[c].src + i);
#pragma GCC unroll 2
      for (int s = 0; s < Sections; ++s) {
        const quad<A> y = next_four<A>(run[c].rows[s], before[c][s], v, before[c][s + 1]);
        before[c][s]    = v;
        v               = y;
      }
      before[c][Sections] = v;
      store_quad(run[c].dst + i, v);
    }
  for (int c = 0; c < Channels; ++c)
    for (int s = 0; s < Sections; ++s) {
      keep_last(run[c].history[s].x, before[c][s]);
      keep_last(run[c].history[s].y, before[c][s + 1]);
    }
}

template <class A> TAV_INLINE A next_one(const A* taps, section_history<A>& h, A x) {
  const A of_inputs = plus(plus(times(taps[2], h.x[0]), times(taps[1], h.x[1])), times(taps[0], x));
  const A y         = minus(minus(of_inputs, times(taps[4], h.y[0])), times(taps[3], h.y[1]));
  h                 = {{h.x[1], x}, {h.y[1], y}};
  return y;
}

// The few samples in front of groups of four and behind them, one by one. Here the histories need not agree.
template <class A, int Sections> TAV_INLINE void run_few(const section_run<A>& run, size_t len) {
  for (size_t i = 0; i < len; ++i) {
    A v = peek(run.src + i);
#pragma GCC unroll 2
    for (int s = 0; s < Sections; ++s) v = next_one(run.taps + section_taps * s, run.history[s], v);
    poke(run.dst + i, v);
  }
}

template <class A, int Channels, int Sections>
TAV_INLINE void run_sections(section_run<A> (&run)[Channels], size_t len) {
  if (len >= look_ahead) run_fours<A, Channels, Sections>(run, len / look_ahead);
  const size_t left = len % look_ahead;
  if (left == 0) return;
  for (section_run<A>& r : run) {
    r.src += len - left, r.dst += len - left;
    run_few<A, Sections>(r, left);
  }
}

}  // namespace tav::TAV_VARIANT::iir
