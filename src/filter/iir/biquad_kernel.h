// The kernel of the cascades: sections run over the data four samples at a time, two sections or one section of two
// channels in a pass. A single recursion would wait for its own sums; two keep the processor busy.
#pragma once
#include "filter/iir/biquad_rows.h"
#include "frame/rounding.h"

namespace tav::TAV_VARIANT::iir {

// What a section has seen last; the newest two of each count.
template <class A> struct alignas(16) section_history { A x[look_ahead], y[look_ahead]; };

// Adds what sample K of four contributes to four outputs.
template <class A, int Row, int K> TAV_INLINE void add_row(quad<A>& sum, const section_rows<A>& rows, quad<A> v) {
  const reg<A> x[2] = {all_of<K * parts<A>>(v), all_of<K * parts<A> + parts<A> - 1>(v)};
#pragma GCC unroll 2
  for (int part = 0; part < parts<A>; ++part)
#pragma GCC unroll 4
    for (int q = row_layout<A>::first(Row); q < quad_registers<A>; ++q) {
      const reg<A> product = *reinterpret_cast<const reg<A>*>(rows.at(Row, part, q)) * x[part];
      sum.r[q]             = Row == row_x_2 && part == 0 ? product : sum.r[q] + product;
    }
}

// Four outputs. What the inputs contribute does not wait for the outputs before, and stays ahead of them: compiled in
// another order it takes more registers than there are on 32 bits.
template <class A>
TAV_INLINE quad<A> next_four(const section_rows<A>& rows, quad<A> x_before, quad<A> x, quad<A> y_before) {
  quad<A> sum;
  add_row<A, row_x_2, 2>(sum, rows, x_before);
  add_row<A, row_x_1, 3>(sum, rows, x_before);
  add_row<A, row_x0, 0>(sum, rows, x);
  add_row<A, row_x1, 1>(sum, rows, x);
  add_row<A, row_x2, 2>(sum, rows, x);
  add_row<A, row_x3, 3>(sum, rows, x);
#pragma GCC unroll 4
  for (int q = 0; q < quad_registers<A>; ++q) sum.r[q] = held(sum.r[q]);
  add_row<A, row_y_2, 2>(sum, rows, y_before);
  add_row<A, row_y_1, 3>(sum, rows, y_before);
  return sum;
}

// Sections of one channel over a stretch of data.
template <class A> struct section_run {
  const section_rows<A>* rows;
  section_history<A>*    history;
  const A*               src;
  A*                     dst;
};

// Whole groups of four. A section's inputs are the outputs of the section before it, so these histories have to agree.
template <class A, int Channels, int Sections> void run_fours(const section_run<A> (&run)[Channels], size_t fours) {
  quad<A> before[Channels][Sections + 1];
  for (int c = 0; c < Channels; ++c) {
    before[c][0] = load_quad(run[c].history[0].x);
    for (int s = 0; s < Sections; ++s) before[c][s + 1] = load_quad(run[c].history[s].y);
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
      store_quad(run[c].history[s].x, before[c][s]);
      store_quad(run[c].history[s].y, before[c][s + 1]);
    }
}

template <class A> void shift_in(A (&before)[look_ahead], const A (&v)[look_ahead], size_t count) {
  for (size_t k = 0; k < look_ahead; ++k)
    before[k] = k + count < look_ahead ? before[k + count] : v[k + count - look_ahead];
}

// Up to four samples; here the histories need not agree. What comes out behind the last sample is none, and must not
// reach the next section: it might be infinite.
template <class A> void run_few(const section_run<A>& run, int sections, size_t len) {
  alignas(16) A v[look_ahead] = {};
  for (size_t k = 0; k < len; ++k) v[k] = peek(run.src + k);
  for (int s = 0; s < sections; ++s) {
    section_history<A>& h = run.history[s];
    const quad<A>       y = next_four<A>(run.rows[s], load_quad(h.x), load_quad(v), load_quad(h.y));
    shift_in(h.x, v, len);
    store_quad(v, y);
    for (size_t k = len; k < look_ahead; ++k) v[k] = {};
    shift_in(h.y, v, len);
  }
  for (size_t k = 0; k < len; ++k) poke(run.dst + k, v[k]);
}

template <class A, int Channels, int Sections> void run_sections(section_run<A> (&run)[Channels], size_t len) {
  if (len >= look_ahead) run_fours<A, Channels, Sections>(run, len / look_ahead);
  const size_t left = len % look_ahead;
  if (left == 0) return;
  for (section_run<A>& r : run) {
    r.src += len - left, r.dst += len - left;
    run_few(r, Sections, left);
  }
}

}  // namespace tav::TAV_VARIANT::iir
