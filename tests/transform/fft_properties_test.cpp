// The complex transforms of floats by their properties, and what the flags of a context do.
#include <gtest/gtest.h>

#include "transform/fft_properties.h"

using namespace test;

namespace {

template <class F> class FftProperties : public testing::Test {};
using families = testing::Types<fft_32fc, fft_32f, fft_64fc, fft_64f>;
TYPED_TEST_SUITE(FftProperties, families);

TYPED_TEST(FftProperties, UpTo16) {
  for (int order = 0; order <= 16 && !this->HasFailure(); ++order) check_properties<TypeParam>(order);
}

struct scaling {
  int         flag;
  long double forward, inverse;
};

std::vector<scaling> scalings(size_t n) {
  const long double all = 1 / (long double)n, root = 1 / sqrtl((long double)n);
  return {{fftScaleForward, all, 1}, {fftScaleInverse, 1, all}, {fftScaleBoth, root, root}, {fftScaleNone, 1, 1}};
}

// Factor and product are rounded once each.
template <class T> bool is_scaled(T is, T plain, long double factor) {
  const long double right = plain * factor;
  return factor == 1 ? is == plain : fabsl(is - right) <= std::numeric_limits<T>::epsilon() * fabsl(right);
}

template <class F, bool Inverse> void check_flags(int order) {
  using p           = placement;
  const size_t    n = size_t(1) << order;
  const points<F> x = noise<F>(n, uint32_t(order));
  fft_room<F>     room(n);
  const points<F> plain = room.template run<Inverse>(x, fft_context<F>(order, fftScaleNone));
  for (const scaling& s : scalings(n)) {
    SCOPED_TRACE(testing::Message() << "order " << order << ", flag " << s.flag
                                    << (Inverse ? ", inverse" : ", forward"));
    const fft_context<F> context(order, s.flag);
    const auto           run    = [&](const fft_layout& l) { return room.template run<Inverse>(x, context, l); };
    const points<F>      is     = run({});
    const long double    factor = Inverse ? s.inverse : s.forward;
    for (size_t k = 0; k < n; ++k)
      ASSERT_TRUE(is_scaled(is[k].re, plain[k].re, factor) && is_scaled(is[k].im, plain[k].im, factor)) << "at " << k;
    for (const fft_layout& l : {fft_layout{{}, {}, true, 0},
                                {{p::inside, 4}, {}, false, -1},
                                {{}, {p::inside, 12}, false, 7},
                                {{}, {p::inside, 4}, true, 15}})
      ASSERT_EQ(first_difference(run(l), is), -1)
          << "src " << l.src << ", dst " << l.dst << ", in place " << l.in_place;
  }
}

TYPED_TEST(FftProperties, FlagsScaleEveryOrder) {
  each_build<TypeParam::forward>([&] {
    for (int order = 0; order <= 14 && !this->HasFailure(); ++order) {
      check_flags<TypeParam, false>(order);
      check_flags<TypeParam, true>(order);
    }
  });
}

}  // namespace
