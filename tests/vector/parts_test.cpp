// tavsReal, tavsImag, tavsCplxToReal, tavsRealToCplx: parts of pairs, and pairs of parts, bit by bit.
#include <algorithm>

#include "harness/faults.h"
#include "harness/forms.h"

using namespace test;

namespace {

const auto real_part      = [](auto v) { return v.re; };
const auto imaginary_part = [](auto v) { return v.im; };

template <auto* Export, class C, class P, class One> void gathers(TavStatus (*)(const C*, P*, int), const One& one) {
  check_layouts<Export, P, C>(
      usual_lengths(), [](P* dst, int len, const C* src) { return call<Export>(src, dst, len); },
      [&](std::vector<P>& dst, const std::vector<C>& src) {
        std::transform(src.begin(), src.end(), dst.begin(), one);
        return tavStatusOk;
      });
}

TEST(Real, As16sc) { gathers<&::tavsReal_16sc>(&::tavsReal_16sc, real_part); }
TEST(Real, As32fc) { gathers<&::tavsReal_32fc>(&::tavsReal_32fc, real_part); }
TEST(Real, As64fc) { gathers<&::tavsReal_64fc>(&::tavsReal_64fc, real_part); }
TEST(Imag, As16sc) { gathers<&::tavsImag_16sc>(&::tavsImag_16sc, imaginary_part); }
TEST(Imag, As32fc) { gathers<&::tavsImag_32fc>(&::tavsImag_32fc, imaginary_part); }
TEST(Imag, As64fc) { gathers<&::tavsImag_64fc>(&::tavsImag_64fc, imaginary_part); }

// One destination goes through the layouts, while the other one lies between guards.
template <auto* Export, class C, class P> void takes_apart(TavStatus (*)(const C*, P*, P*, int)) {
  arena      home(1100 * sizeof(P));
  const auto check = [&](const auto& call_it, const auto& here, const auto& there) {
    std::vector<P> expected_there;
    check_layouts<Export, P, C>(
        usual_lengths(),
        [&](P* dst, int len, const C* src) {
          array<P>        other(home, size_t(len), {len % 2 ? placement::ends_at_page : placement::begins_at_page});
          const TavStatus status = call_it(src, dst, other.data(), len);
          EXPECT_LT(first_difference(other.values(), expected_there), 0) << "in the other destination";
          EXPECT_TRUE(other.guards_intact());
          return status;
        },
        [&](std::vector<P>& dst, const std::vector<C>& src) {
          expected_there.resize(src.size());
          std::transform(src.begin(), src.end(), dst.begin(), here);
          std::transform(src.begin(), src.end(), expected_there.begin(), there);
          return tavStatusOk;
        });
  };
  check([](const C* src, P* re, P* im, int len) { return call<Export>(src, re, im, len); }, real_part, imaginary_part);
  check([](const C* src, P* im, P* re, int len) { return call<Export>(src, re, im, len); }, imaginary_part, real_part);
}

TEST(CplxToReal, As16sc) { takes_apart<&::tavsCplxToReal_16sc>(&::tavsCplxToReal_16sc); }
TEST(CplxToReal, As32fc) { takes_apart<&::tavsCplxToReal_32fc>(&::tavsCplxToReal_32fc); }
TEST(CplxToReal, As64fc) { takes_apart<&::tavsCplxToReal_64fc>(&::tavsCplxToReal_64fc); }

template <auto* Export, class P, class C> void joins(TavStatus (*)(const P*, const P*, C*, int)) {
  check_two_sources<Export>([](P re, P im) { return C{re, im}; });
  const auto with_one = [](const auto& call_it, const auto& one) {
    check_layouts<Export, C, P>(usual_lengths(), call_it, [&](std::vector<C>& dst, const std::vector<P>& src) {
      std::transform(src.begin(), src.end(), dst.begin(), one);
      return tavStatusOk;
    });
  };
  with_one([](C* dst, int len, const P* re) { return call<Export>(re, nullptr, dst, len); },
           [](P re) {
             return C{re, 0};
           });
  with_one([](C* dst, int len, const P* im) { return call<Export>(nullptr, im, dst, len); },
           [](P im) {
             return C{0, im};
           });
}

TEST(RealToCplx, As16s) { joins<&::tavsRealToCplx_16s>(&::tavsRealToCplx_16s); }
TEST(RealToCplx, As32f) { joins<&::tavsRealToCplx_32f>(&::tavsRealToCplx_32f); }
TEST(RealToCplx, As64f) { joins<&::tavsRealToCplx_64f>(&::tavsRealToCplx_64f); }

// Parts are words here, so that nothing but the functions under test moves them: signaling NaNs stay what they are.
template <class Word, class Apart, class Joined, class Part>
void check_bits(Word nan, const Apart& apart, const Joined& joined, const Part& real, const Part& imag) {
  constexpr int     n = 23;
  std::vector<Word> pairs(2 * n), re(n), im(n), again(2 * n), want_re(n), want_im(n);
  for (int i = 0; i < n; ++i) {
    want_re[i] = pairs[2 * i] = nan + Word(i);
    want_im[i] = pairs[2 * i + 1] = ~nan - Word(i);
  }
  EXPECT_EQ(apart(pairs.data(), re.data(), im.data(), n), tavStatusOk);
  EXPECT_EQ(re, want_re);
  EXPECT_EQ(im, want_im);
  EXPECT_EQ(joined(re.data(), im.data(), again.data(), n), tavStatusOk);
  EXPECT_EQ(again, pairs);
  EXPECT_EQ(real(pairs.data(), im.data(), n), tavStatusOk);
  EXPECT_EQ(im, want_re);
  EXPECT_EQ(imag(pairs.data(), re.data(), n), tavStatusOk);
  EXPECT_EQ(re, want_im);
}

template <class F, class Word> const F* floats(const Word* p) { return reinterpret_cast<const F*>(p); }
template <class F, class Word> F*       floats(Word* p) { return reinterpret_cast<F*>(p); }

#define BITS(of_pairs, of_parts, Word, nan)                                                           \
  TEST(CplxToReal, KeepsBitsOf##of_pairs) {                                                           \
    using C         = Tav##of_pairs;                                                                  \
    using P         = Tav##of_parts;                                                                  \
    const auto part = [](auto function) {                                                             \
      return [=](const Word* src, Word* dst, int n) {                                                 \
        return checked_call(function, floats<C>(src), floats<P>(dst), n);                             \
      };                                                                                              \
    };                                                                                                \
    check_bits<Word>(                                                                                 \
        nan,                                                                                          \
        [](const Word* src, Word* re, Word* im, int n) {                                              \
          return call<&::tavsCplxToReal_##of_pairs>(floats<C>(src), floats<P>(re), floats<P>(im), n); \
        },                                                                                            \
        [](const Word* re, const Word* im, Word* dst, int n) {                                        \
          return call<&::tavsRealToCplx_##of_parts>(floats<P>(re), floats<P>(im), floats<C>(dst), n); \
        },                                                                                            \
        part(&::tavsReal_##of_pairs), part(&::tavsImag_##of_pairs));                                  \
  }
BITS(32fc, 32f, uint32_t, 0x7F800001)
BITS(64fc, 64f, uint64_t, 0x7FF0000000000001)
#undef BITS

// A null source alone is no fault.
void destination_and_a_source(const tested& f) {
  faults(f)
      .null(2)
      .add("both sources null", tavStatusNullPointer, [](arguments& a) { a.spoil(0), a.spoil(1); })
      .below_one(3)
      .expect();
  for (size_t source : {0u, 1u})
    faults(f).null(2).below_one(3).expect_after("source " + std::to_string(source) + " null",
                                                [=](arguments& a) { a.spoil(source); });
}

}  // namespace

#define CASE(of_pairs, of_parts)                          \
  TAV_FAULTS(Real_##of_pairs, pointers_then_length)       \
  TAV_FAULTS(Imag_##of_pairs, pointers_then_length)       \
  TAV_FAULTS(CplxToReal_##of_pairs, pointers_then_length) \
  TAV_FAULTS(RealToCplx_##of_parts, destination_and_a_source)
CASE(16sc, 16s)
CASE(32fc, 32f)
CASE(64fc, 64f)
#undef CASE
