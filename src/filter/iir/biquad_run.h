// Cascades over blocks. A form of delay line is what stands before and behind the kernel: how the line becomes a
// history of inputs and outputs, and how it is made of one again.
#pragma once
#include "filter/iir/biquad_kernel.h"
#include "filter/iir/biquads.h"

namespace tav::TAV_VARIANT::iir {

template <class A> TAV_INLINE A section_sample(const A* taps, A* d, A x) {
  const A y = plus(times(taps[0], x), d[0]);
  d[0]      = plus(minus(times(taps[1], x), times(taps[3], y)), d[1]);
  d[1]      = minus(times(taps[2], x), times(taps[4], y));
  return y;
}

// Transposed direct form 2. The first two outputs take the delay line in; from then on the history tells everything.
// There are more than two samples.
struct transposed_form {
  static constexpr size_t entries = transposed_entries;

  template <int Sections, class A> TAV_INLINE static size_t begin(const section_run<A>& run, const A* d, size_t) {
    const A* taps = run.taps;
    A        x0 = peek(run.src), x1 = peek(run.src + 1);
#pragma GCC unroll 2
    for (int s = 0; s < Sections; ++s, taps += section_taps, d += entries) {
      const A y0     = plus(times(taps[0], x0), d[0]);
      const A y1     = minus(plus(plus(times(taps[0], x1), d[1]), times(taps[1], x0)), times(taps[3], y0));
      run.history[s] = {{x0, x1}, {y0, y1}};
      x0 = y0, x1 = y1;
    }
    poke(run.dst, x0), poke(run.dst + 1, x1);
    return 2;
  }

  template <class A> static void end(const section_history<A>& h, const A* taps, A* d) {
    d[0] = plus(times(taps[1], h.x[1]), times(taps[2], h.x[0]));
    d[1] = times(taps[2], h.x[1]);
    d[0] = minus(minus(d[0], times(taps[3], h.y[1])), times(taps[4], h.y[0]));
    d[1] = minus(d[1], times(taps[4], h.y[1]));
  }
};

// Direct form 1: x[n-2], x[n-1], y[n-2], y[n-1]. Whatever the lines hold, after two samples the outputs of a section
// are the inputs of the next one.
struct direct_form {
  static constexpr size_t entries = direct_entries;

  template <int Sections, class A> TAV_INLINE static size_t begin(const section_run<A>& run, const A* d, size_t n) {
    for (int s = 0; s < Sections; ++s, d += entries) run.history[s] = {{d[0], d[1]}, {d[2], d[3]}};
    const size_t head = n < 2 ? n : 2;
    run_few<A, Sections>(run, head);
    return head;
  }

  template <class A> static void end(const section_history<A>& h, const A*, A* d) {
    d[0] = h.x[0], d[1] = h.x[1], d[2] = h.y[0], d[3] = h.y[1];
  }
};

// One pass over the data: `Sections` sections of each channel, from `first` on. Loops over channels and sections are
// unrolled so that histories stay in registers.
template <class Form, class A, int Channels, int Sections>
void run_pass(const channels<A, Channels>& data, size_t first, size_t n) {
  section_history<A> history[Channels][Sections];
  section_run<A>     run[Channels];
  size_t             head = 0;
#pragma GCC unroll 2
  for (int k = 0; k < Channels; ++k) {
    const cascade<A>& c = *data.of[k];
    run[k]              = {c.taps + section_taps * first, c.rows + first, history[k], data.src[k], data.dst[k]};
    head                = Form::template begin<Sections>(run[k], c.delay + Form::entries * first, n);
    run[k].src += head, run[k].dst += head;
  }
  run_sections<A, Channels, Sections>(run, n - head);
#pragma GCC unroll 2
  for (int k = 0; k < Channels; ++k)
#pragma GCC unroll 2
    for (int s = 0; s < Sections; ++s)
      Form::end(history[k][s], data.of[k]->taps + section_taps * (first + s),
                data.of[k]->delay + Form::entries * (first + s));
}

// The sections of one channel from `first` on: the first pass reads src, the others are in place. A section of complex
// samples is work enough by itself.
template <class Form, class A> void run_from(const cascade<A>& c, int first, const A* src, A* dst, size_t n) {
  constexpr int at_once = is_complex<A> ? 1 : 2;
  for (; first + at_once <= c.sections; first += at_once, src = dst)
    run_pass<Form, A, 1, at_once>({{&c}, {src}, {dst}}, size_t(first), n);
  if (first < c.sections) run_pass<Form, A, 1, 1>({{&c}, {src}, {dst}}, size_t(first), n);
}

// Two channels. Each has pairs of sections of its own; of two odd cascades the first sections make a pass together,
// which in short blocks is not worth one more.
template <class Form, class A> void run_pair(channels<A, 2> data, size_t n) {
  constexpr size_t long_enough = 64;
  const auto       odd         = [&](int k) { return data.of[k]->sections % 2 != 0; };
  const bool       together    = odd(0) && odd(1) && n >= long_enough;
  if (together) {
    run_pass<Form, A, 2, 1>(data, 0, n);
    for (int k = 0; k < 2; ++k) data.src[k] = data.dst[k];
  }
  for (int k = 0; k < 2; ++k) run_from<Form>(*data.of[k], together ? 1 : 0, data.src[k], data.dst[k], n);
}

}  // namespace tav::TAV_VARIANT::iir
