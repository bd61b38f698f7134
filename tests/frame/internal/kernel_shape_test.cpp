// The element-wise shape by itself, on made-up operations: every number of sources, wider and narrower ones, warnings,
// short and long arrays, the first vector and the last, and the streaming limit.
#include "frame/kernel_shape.h"

#include <gtest/gtest.h>

#include "harness/layouts.h"

using namespace test;

namespace tav::TAV_VARIANT {
namespace {

constexpr int streamed_rounds = 6;

template <int RoundBytes> struct xor_8u {
  static constexpr kernel_shape shape{.round_bytes = RoundBytes, .stream_above = streamed_rounds};
  static Tav8u                  one(Tav8u a) { return Tav8u(a ^ 0x5A); }
  static __m128i                many(__m128i a) { return _mm_xor_si128(a, _mm_set1_epi8(0x5A)); }
};

struct sum_of_three_32u {
  static constexpr kernel_shape shape{.round_bytes = 32};
  static Tav32u                 one(Tav32u a, Tav32u b, Tav32u c) { return a + b + c; }
  static __m128i                many(__m128i a, __m128i b, __m128i c) { return _mm_add_epi32(_mm_add_epi32(a, b), c); }
};

struct widen_8u16u {
  static constexpr kernel_shape shape{.round_bytes = 32};
  static Tav16u                 one(Tav8u a) { return a; }
  static __m128i                many(__m128i a) { return _mm_unpacklo_epi8(a, _mm_setzero_si128()); }
};

struct widen_8u16u_by_registers {  // a whole register of bytes makes two of words
  static constexpr kernel_shape shape{.round_bytes = 32, .step = 16};
  static Tav16u                 one(Tav8u a) { return a; }
  static several<__m128i, 2>    many(__m128i a) {
       const __m128i zero = _mm_setzero_si128();
       return {{_mm_unpacklo_epi8(a, zero), _mm_unpackhi_epi8(a, zero)}};
  }
};

struct widen_8u32u {
  static constexpr kernel_shape shape{.round_bytes = 64};
  static Tav32u                 one(Tav8u a) { return a; }
  static __m128i                many(__m128i a) {
                   const __m128i zero = _mm_setzero_si128();
                   return _mm_unpacklo_epi16(_mm_unpacklo_epi8(a, zero), zero);
  }
};

struct widen_8s64f {  // two bytes feed a register of doubles
  static constexpr kernel_shape shape{.round_bytes = 32};
  static Tav64f                 one(Tav8s a) { return a; }
  static __m128d                many(__m128i a) {
                   a = _mm_unpacklo_epi8(a, a);
                   a = _mm_unpacklo_epi16(a, a);
                   return _mm_cvtepi32_pd(_mm_srai_epi32(a, 24));
  }
};

struct narrow_32u8u {  // four registers make one
  static constexpr kernel_shape shape{.round_bytes = 32};
  static Tav8u                  one(Tav32u a) { return Tav8u(a); }
  static __m128i                many(several<__m128i, 4> a) {
                   const __m128i low = _mm_set1_epi32(0xFF);
                   for (__m128i& r : a.r) r = _mm_and_si128(r, low);
    return _mm_packus_epi16(_mm_packs_epi32(a.r[0], a.r[1]), _mm_packs_epi32(a.r[2], a.r[3]));
  }
};

struct mixed_64f32f {  // a wider and a narrower source
  static constexpr kernel_shape shape{.round_bytes = 16};
  static Tav32f                 one(Tav64f a, Tav16u b) { return Tav32f(a) + Tav32f(b); }
  static __m128                 many(several<__m128d, 2> a, __m128i b) {
                    const __m128 wide = _mm_movelh_ps(_mm_cvtpd_ps(a.r[0]), _mm_cvtpd_ps(a.r[1]));
                    return _mm_add_ps(wide, _mm_cvtepi32_ps(_mm_unpacklo_epi16(b, _mm_setzero_si128())));
  }
};

struct sum_of_pairs_32fc {
  static constexpr kernel_shape shape{.round_bytes = 32};
  static Tav32fc                one(Tav32fc a, Tav32fc b) { return {a.re + b.re, a.im + b.im}; }
  static __m128                 many(__m128 a, __m128 b) { return _mm_add_ps(a, b); }
};

struct warn_of_zero_16u {
  static constexpr kernel_shape shape{.round_bytes = 32};
  bool                          met      = false;
  __m128i                       met_many = _mm_setzero_si128();

  Tav16u one(Tav16u a) {
    met |= a == 0;
    return Tav16u(a + 1);
  }
  __m128i many(__m128i a) {
    met_many = _mm_or_si128(met_many, _mm_cmpeq_epi16(a, _mm_setzero_si128()));
    return _mm_add_epi16(a, _mm_set1_epi16(1));
  }
  TavStatus status() const { return met || _mm_movemask_epi8(met_many) != 0 ? tavStatusWarnDivideByZero : tavStatusOk; }
};

// The shape runs without an export: these two stand in for the switch of builds.
template <class D, class... S, class Run, class Expected> void check_shape(const Run& run, const Expected& expected) {
  const auto lengths = lengths_around({16, 200, int(short_array / sizeof(D)), 1100});
  check_layouts<&::tavsAdd_32f, D, S...>(
      lengths, [&](D* dst, int len, const S*... src) { return run(dst, size_t(len), src...); }, expected);
}

template <class Op> auto run_of() {
  return [](auto* dst, size_t len, const auto*... src) { return elementwise(Op{}, dst, len, src...); };
}

template <class Op> auto definition_of() {
  return [](auto& dst, const auto&... src) {
    for (size_t i = 0; i < dst.size(); ++i) dst[i] = Op{}.one(src[i]...);
    return tavStatusOk;
  };
}

template <class Op, class D, class... S> void check_operation() {
  check_shape<D, S...>(run_of<Op>(), definition_of<Op>());
}

TEST(KernelShape, OneSource16Bytes) { check_operation<xor_8u<16>, Tav8u, Tav8u>(); }
TEST(KernelShape, OneSource64Bytes) { check_operation<xor_8u<64>, Tav8u, Tav8u>(); }
TEST(KernelShape, ThreeSources) { check_operation<sum_of_three_32u, Tav32u, Tav32u, Tav32u, Tav32u>(); }
TEST(KernelShape, Pairs) { check_operation<sum_of_pairs_32fc, Tav32fc, Tav32fc, Tav32fc>(); }
TEST(KernelShape, TwiceAsWide) { check_operation<widen_8u16u, Tav16u, Tav8u>(); }
TEST(KernelShape, TwiceAsWideByRegisters) { check_operation<widen_8u16u_by_registers, Tav16u, Tav8u>(); }
TEST(KernelShape, FourTimesAsWide) { check_operation<widen_8u32u, Tav32u, Tav8u>(); }
TEST(KernelShape, EightTimesAsWide) { check_operation<widen_8s64f, Tav64f, Tav8s>(); }
TEST(KernelShape, AQuarterAsWide) { check_operation<narrow_32u8u, Tav8u, Tav32u>(); }
TEST(KernelShape, MixedWidths) { check_operation<mixed_64f32f, Tav32f, Tav64f, Tav16u>(); }

TEST(KernelShape, InPlace) {
  check_shape<Tav8u>([](Tav8u* p, size_t len) { return elementwise(xor_8u<32>{}, p, len, self{}); },
                     [](std::vector<Tav8u>& v) { return definition_of<xor_8u<32>>()(v, std::vector(v)); });
}

TEST(KernelShape, DestinationIsTheSource) {
  check_shape<Tav8u>(
      [](Tav8u* p, size_t len) { return elementwise(xor_8u<32>{}, p, len, static_cast<const Tav8u*>(p)); },
      [](std::vector<Tav8u>& v) { return definition_of<xor_8u<32>>()(v, std::vector(v)); });
}

TEST(KernelShape, InPlaceWithTwoSources) {
  check_shape<Tav32u, Tav32u, Tav32u>(
      [](Tav32u* p, size_t len, const Tav32u* a, const Tav32u* b) {
        return elementwise(sum_of_three_32u{}, p, len, a, self{}, b);
      },
      [](auto& v, const auto& a, const auto& b) { return definition_of<sum_of_three_32u>()(v, a, std::vector(v), b); });
}

// One element warns, wherever it stands.
TEST(KernelShape, Warnings) {
  arena home(4096);
  for (int len = 1; len <= 100; ++len)
    for (unsigned offset : {0u, 1u, 6u})
      for (int zero = -1; zero < len; ++zero) {
        array<Tav16u>       a(home, size_t(len), {placement::inside, offset});
        std::vector<Tav16u> v(size_t(len), 7);
        if (zero >= 0) v[size_t(zero)] = 0;
        a.assign(v);
        const TavStatus want = zero < 0 ? TavStatus(tavStatusOk) : TavStatus(tavStatusWarnDivideByZero);
        ASSERT_EQ(elementwise(warn_of_zero_16u{}, a.data(), size_t(len), self{}), want) << len << ", zero at " << zero;
        for (Tav16u& x : v) ++x;
        ASSERT_EQ(a.values(), v);
      }
}

// By which of the two each element is computed, and how many vectors are.
struct watched {
  static constexpr kernel_shape shape{.round_bytes = 32};
  int*                          vectors;
  Tav32u                        one(Tav32u) { return 1; }
  __m128i                       many(__m128i) { return ++*vectors, _mm_set1_epi32(4); }
};

TEST(KernelShape, VectorsAloneFromOneVectorOn) {
  constexpr int      longest = 300, at_boundary = 1;
  alignas(16) Tav32u block[longest + 8];
  for (unsigned byte = 0; byte < 16; ++byte)
    for (int len = 1; len <= longest; ++len) {
      auto* const dst     = reinterpret_cast<Tav32u*>(reinterpret_cast<char*>(block) + byte);
      int         vectors = 0;
      elementwise(watched{&vectors}, dst, size_t(len), self{});
      for (int i = 0; i < len; ++i) ASSERT_EQ(peek(dst + i), len < 4 ? 1u : 4u) << byte << ' ' << len << ' ' << i;
      const bool is_long = size_t(len) > short_array / sizeof(Tav32u) && byte % sizeof(Tav32u) == 0;
      const int  least   = len < 4 ? 0 : (len + 3) / 4;
      ASSERT_GE(vectors, least) << byte << ' ' << len;
      ASSERT_LE(vectors, least + (is_long ? at_boundary : 0)) << byte << ' ' << len;
    }
}

}  // namespace
}  // namespace tav::TAV_VARIANT
