// How the sums of the integer filters become words: times a power of two, rounded to nearest, ties to even, limited.
//
// All but the limit happens in 32 bits that wrap, as the sums do: a shift to the left loses its upper bits, and what
// rounding adds to the largest sums makes them negative.
#pragma once
#include "filter/fir/samples.h"

namespace tav::TAV_VARIANT::fir {

class word_stage {
 public:
  // Times 2^(exponent - scaleFactor), within 31 places.
  word_stage(int exponent, int scaleFactor) {
    constexpr int64_t most  = 31;
    const int64_t     given = int64_t(exponent) - scaleFactor, s = given > most ? most : given < -most ? -most : given;
    up_         = _mm_cvtsi32_si128(s > 0 ? int(s) : 0);
    down_       = _mm_cvtsi32_si128(s < 0 ? int(-s) : 0);
    below_half_ = _mm_set1_epi32(s < 0 ? int((1u << (-s - 1)) - 1) : 0);
    one_        = _mm_set1_epi32(s < 0);
  }

  __m128i words(__m128i low, __m128i high) const { return _mm_packs_epi32(scaled(low), scaled(high)); }

  template <class S, class D> void operator()(const S* sums, D* dst, size_t n) const {
    const Tav32s* sum  = parts_of(sums);
    Tav16s*       out  = parts_of(dst);
    size_t        left = n * parts<S>;
    for (; left >= 4; left -= 4, sum += 4, out += 4) {
      const __m128i four = load<access::unaligned, 4>(sum);
      _mm_storel_epi64(reinterpret_cast<__m128i*>(out), words(four, four));
    }
    for (; left != 0; --left) put(_mm_cvtsi32_si128(*sum++), out++);
  }

  // One sum in the low part of a register, or the two of a pair.
  void put(__m128i sum, Tav16s* out) const { poke(out, Tav16s(_mm_cvtsi128_si32(words(sum, sum)))); }
  void put(__m128i sum, Tav16sc* out) const { poke(reinterpret_cast<int*>(out), _mm_cvtsi128_si32(words(sum, sum))); }

 private:
  __m128i scaled(__m128i sum) const {
    const __m128i v   = _mm_sll_epi32(sum, up_);
    const __m128i odd = _mm_and_si128(_mm_sra_epi32(v, down_), one_);
    return _mm_sra_epi32(_mm_add_epi32(_mm_add_epi32(v, below_half_), odd), down_);
  }

  __m128i up_, down_, below_half_, one_;
};

}  // namespace tav::TAV_VARIANT::fir
