// Rounded roots of any integer, next to each middle between two results: sums of two squares seldom come so near.
#include <gtest/gtest.h>

#include "harness/forms.h"
#include "oracle/complex.h"
#include "vector/rounded_roots.h"

using namespace test;
using namespace tav::shared;

namespace {

template <class Row> struct lanes_of;
template <> struct lanes_of<roots_of_32_bits> {
  using number                 = uint32_t;
  using result                 = Tav16s;
  static constexpr int    zero = 16, sign = -15;
  static constexpr number largest = 0x80000000;
};
template <> struct lanes_of<roots_of_64_bits> {
  using number                 = uint64_t;
  using result                 = Tav32s;
  static constexpr int    zero = 32, sign = -31;
  static constexpr number largest = uint64_t(1) << 63;
};

template <class Row> class roots {
  using number = typename lanes_of<Row>::number;
  using result = typename lanes_of<Row>::result;

 public:
  explicit roots(int s) : s_(s) {}

  void expect(number n) const {
    if (n > lanes_of<Row>::largest) return;
    const oracle::exact wide = oracle::exact(0, n);
    ASSERT_EQ(of(n), oracle::scaled_root<result>(wide, s_)) << "root of " << n << ", factor " << s_;
  }

  // The numbers around the square of q + 1/2, if there is such a number.
  void expect_around_middle(uint64_t q) const {
    const oracle::exact square = oracle::exact(2 * q + 1) * oracle::exact(2 * q + 1);  // times 4^(s-1)
    oracle::exact       n      = square;
    for (int k = 0; k < 2 * (s_ - 1); ++k) n = n + n;
    for (int k = 0; k < 2 * (1 - s_); ++k) n = oracle::halved(n);
    if (n.high != 0 || n.low > lanes_of<Row>::largest) return;
    for (number d = 0; d < 5; ++d) expect(number(n.low) + d - 2);
  }

 private:
  result of(number n) const {
    const __m128i v   = Row::all(int64_t(n));
    const __m128i r   = s_ > 0 ? root_scaled_down<Row>(s_).of(v) : root_scaled_up<Row>(-s_).of(v);
    const auto    low = uint32_t(_mm_cvtsi128_si32(r));
    return result(std::min(low, uint32_t(std::numeric_limits<result>::max())));
  }

  int s_;
};

template <class Row> void check_ends() {
  for (int s = lanes_of<Row>::sign; s <= lanes_of<Row>::zero; ++s)
    for (int d = 0; d < 100; ++d) {
      roots<Row>(s).expect(typename lanes_of<Row>::number(d));
      roots<Row>(s).expect(lanes_of<Row>::largest - typename lanes_of<Row>::number(d));
    }
}

TEST(RoundedRoots, Of32Bits) {
  check_ends<roots_of_32_bits>();
  for (unsigned mode : {0u, 0x2000u, 0x4000u, 0x6000u}) {
    const rounding_mode set(mode);
    for (int s = -15; s <= 16; ++s)
      for (uint64_t q = 0; q <= 32768; q += 1 + unsigned(s * s) % 5 * 4) {
        roots<roots_of_32_bits>(s).expect_around_middle(q);
        if (HasFatalFailure()) return;
      }
  }
}

TEST(RoundedRoots, Of64Bits) {
  check_ends<roots_of_64_bits>();
  source_of_data data(41);
  for (unsigned mode : {0u, 0x2000u, 0x4000u, 0x6000u}) {
    const rounding_mode set(mode);
    for (int s = -31; s <= 32; ++s)
      for (int i = 0; i < 400; ++i) {
        const uint64_t any = data.bits() >> (1 + data.below(31));
        roots<roots_of_64_bits>(s).expect_around_middle(i < 20   ? uint64_t(i)
                                                        : i < 40 ? 0x80000010u - unsigned(i)
                                                                 : any);
        if (HasFatalFailure()) return;
      }
  }
}

}  // namespace
