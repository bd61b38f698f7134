// One call of a complex transform of floats in a layout, watched by guard bytes, and the signals for it.
#pragma once
#include "transform/fft_calls.h"

namespace test {

template <class F> using points = std::vector<typename F::sample>;

// Values between -1 and 1 that fill the mantissa, of doubles too.
template <class F> points<F> noise(size_t n, uint32_t seed) {
  using T = typename F::part;
  source_of_data data(seed);
  points<F>      x(n);
  const auto     coarse = [&] { return T(int32_t(data.bits())) / T(1u << 31); };
  const auto     v      = [&] {
    const T high = coarse(), low = coarse();
    return high + low / T(1u << 31);
  };
  for (auto& point : x) {
    const T re = v(), im = v();
    point = {re, im};
  }
  return x;
}

template <class F> points<F> impulse(size_t n, size_t at, typename F::sample value) {
  points<F> x(n);
  x[at] = value;
  return x;
}

// Room for the arrays of calls of one length. What a call leaves in the work area, the next one finds there.
template <class F> class fft_room {
 public:
  using T = typename F::part;

  explicit fft_room(size_t n)
      : n_(n), source_home_(bytes() + 64), home_(bytes() + 64), work_home_(bytes() * 2 + 0x20000) {}

  template <bool Inverse> points<F> run(const points<F>& x, const fft_context<F>& context, const fft_layout& l = {}) {
    const fft_arrays<F> from{source_home_, n_}, to{home_, n_};
    auto                src = from.place(l.src), dst = to.place(l.dst);
    from.assign(src, x);
    to.assign(dst, x);
    const int    size = context.buf_size();
    array<Tav8u> work(work_home_, size_t(size), {placement::inside, unsigned(l.buf_offset < 0 ? 0 : l.buf_offset)});
    Tav8u*       buf  = l.buf_offset < 0 ? nullptr : work.data();
    const T*     read = l.in_place ? dst.data() : src.data();
    EXPECT_EQ((run_fft<F, Inverse>(read, dst.data(), n_, context.get(), buf)), tavStatusOk);
    EXPECT_EQ(first_difference(from.values(src), x), -1) << "the source was written";
    EXPECT_TRUE(src.guards_intact() && dst.guards_intact() && work.guards_intact());
    return to.values(dst);
  }

 private:
  size_t bytes() const { return n_ * sizeof(typename F::sample); }

  size_t n_;
  arena  source_home_, home_, work_home_;
};

}  // namespace test
